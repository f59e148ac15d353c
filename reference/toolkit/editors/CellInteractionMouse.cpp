#include "reference/toolkit/editors/CellInteraction.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/CellMenu.h"
#include "reference/toolkit/editors/ChoicePopup.h"
#include "reference/toolkit/editors/FilterPopup.h"
#include "reference/toolkit/editors/PersonCommits.h"

#include <QMouseEvent>

#include <algorithm>

namespace WQ {

CellInteraction::Area CellInteraction::areaAt(const CellItem& cell, const QPoint& position) const
{
    const RowLayout layout = m_table.layoutOf(cell);
    if (cell.kind() != CellKind::Combo && cell.hasChevron() && position.x() >= layout.unitArea().left())
        return Area::Unit;
    if (!layout.check.isEmpty() && position.x() >= layout.check.left() && position.x() <= layout.check.right())
        return Area::Check;
    return position.x() >= layout.value.left() ? Area::Value : Area::Label;
}

bool CellInteraction::mousePress(QMouseEvent* event)
{
    const QPointer<CMultiParamsTable> alive(&widget());
    CellItem* cell = m_table.cellAt(event->pos());
    if (cell != m_cell)
        finish(Ending::Commit);
    if (!alive)
        return true;
    setFooterFocus(false);
    forgetRefusal();
    if (cell) {
        m_table.setCurrentCell(*cell);
        if (event->button() == Qt::LeftButton)
            pressCell(*cell, event->pos());
        else if (cell == m_cell)
            m_editor->takeFocus();
    } else if (event->button() == Qt::LeftButton && m_table.footerRect().contains(event->pos())) {
        openFilter();
    }
    return true;
}

void CellInteraction::pressCell(CellItem& cell, const QPoint& position)
{
    const bool isEdited = m_cell == &cell;
    switch (areaAt(cell, position)) {
    case Area::Check:
        toggleCheck(cell);
        break;
    case Area::Unit:
        openAlternatives(cell);
        break;
    case Area::Value:
        if (activate(cell) && m_cell == &cell)
            m_editor->takeFocusAt(position);
        return;
    case Area::Label:
        break;
    }
    // The press has taken the focus to the table; what is being typed goes on.
    if (isEdited && m_cell == &cell)
        m_editor->takeFocus();
}

bool CellInteraction::mouseRelease(QMouseEvent*)
{
    return true;
}

// The second press of a double click counts on the box as the first does.
bool CellInteraction::mouseDoubleClick(QMouseEvent* event)
{
    CellItem* cell = m_table.cellAt(event->pos());
    if (!cell || event->button() != Qt::LeftButton) {
        mousePress(event);
        return true;
    }
    closePopups();
    if (m_table.model().isEnabled())
        commits::doubleClick(widget(), *cell);
    if (areaAt(*cell, event->pos()) == Area::Check)
        toggleCheck(*cell);
    return true;
}

bool CellInteraction::mouseMove(QMouseEvent* event)
{
    const CellItem* cell = m_table.cellAt(event->pos());
    const bool isUnit = cell && canEdit(*cell) && areaAt(*cell, event->pos()) == Area::Unit;
    setMouseAt(cell, isUnit, m_table.footerRect().contains(event->pos()));
    return true;
}

void CellInteraction::leave()
{
    setMouseAt(nullptr, false, false);
}

void CellInteraction::setMouseAt(const CellItem* cell, bool unit, bool footer)
{
    const CellItem* before = m_mouseCell;
    const bool isSame = cell == before && unit == m_unitMouse;
    m_mouseCell = cell;
    m_unitMouse = unit;
    if (!isSame && before)
        m_table.update(*before);
    if (!isSame && cell)
        m_table.update(*cell);
    if (footer == m_footerMouse)
        return;
    m_footerMouse = footer;
    m_table.updateFooter();
}

// The editor that has the focus takes the wheel itself; here it scrolls, be it what is around the table.
bool CellInteraction::wheel(QWheelEvent*)
{
    return false;
}

QRect CellInteraction::toGlobal(const QRect& rect) const
{
    return QRect(widget().viewport()->mapToGlobal(rect.topLeft()), rect.size());
}

QRect CellInteraction::choicesAnchor(const CellItem& cell) const
{
    const QRect row = m_table.rowRect(cell);
    const int left = cell.kind() == CellKind::Combo
        ? row.center().x()
        : m_table.layoutOf(cell).unitArea().left() - m_table.metrics().padding;
    return toGlobal(row.adjusted(std::max(0, left - row.left()), 0, 0, 0));
}

void CellInteraction::fillChoices(const CellItem& cell)
{
    QStringList entries;
    if (cell.kind() == CellKind::Combo) {
        const auto& combo = static_cast<const ComboCell&>(cell);
        for (int i = 0; i < combo.count(); ++i)
            entries << combo.entryText(i);
        m_choices->setEntries(entries, combo.currentIndex());
        return;
    }
    const auto& number = static_cast<const NumberCell&>(cell);
    for (const NumberUnit& unit : number.units())
        entries << unit.text;
    m_choices->setEntries(entries, number.currentUnitIndex());
}

void CellInteraction::openChoices(CellItem& cell)
{
    if (!m_choices) {
        m_choices = new ChoicePopup(&widget());
        m_choices->setClosed([this] {
            if (const CellItem* closed = std::exchange(m_choiceCell, nullptr))
                m_table.update(*closed);
        });
        m_choices->setPressedOutside([this](const QPoint& global, bool isDoubleClick) {
            const bool isOwn = m_choiceCell && toGlobal(m_table.rowRect(*m_choiceCell)).contains(global);
            if (isOwn && isDoubleClick)
                commits::doubleClick(widget(), *m_choiceCell);
            return isOwn;
        });
    }
    if (m_cell != &cell)
        finish(Ending::Commit);
    m_table.setCurrentCell(cell);
    makeVisible(cell);
    m_choiceCell = &cell;
    m_choices->setPicked([this, &cell](int row) { picked(cell, row); });
    fillChoices(cell);
    m_choices->popUp(choicesAnchor(cell), m_table.scale());
    m_table.update(cell);
}

void CellInteraction::picked(CellItem& cell, int row)
{
    if (!canEdit(cell))
        return;
    if (cell.kind() == CellKind::Combo)
        commits::entry(widget(), static_cast<ComboCell&>(cell), row);
    else
        commits::unit(widget(), static_cast<NumberCell&>(cell), row);
    if (m_cell == &cell)
        cellChanged(cell);
}

void CellInteraction::openFilter()
{
    if (!m_table.isFilterEnabled())
        return;
    if (!m_filter) {
        m_filter = new FilterPopup(&widget());
        m_filter->setApplied([this](const QSet<int>& ids) { commits::filter(widget(), ids); });
        m_filter->setReset([this] { commits::filterReset(widget()); });
        m_filter->setPressedOutside(
            [this](const QPoint& global, bool) { return toGlobal(m_table.footerRect()).contains(global); });
    }
    const QRect footer = m_table.footerRect();
    m_filter->load(m_table.model());
    m_filter->popUp(toGlobal(footer.adjusted(footer.width() / 2, 0, 0, 0)), m_table.scale());
}

void CellInteraction::filterChanged()
{
    if (!m_table.isFilterEnabled())
        setFooterFocus(false);
    if (!m_filter || !m_filter->isVisible())
        return;
    if (m_table.isFilterEnabled())
        m_filter->load(m_table.model());
    else
        m_filter->hide();
}

void CellInteraction::closePopups()
{
    if (m_choices)
        m_choices->hide();
    if (m_filter)
        m_filter->hide();
    if (m_menu)
        m_menu->close();
}

} // namespace WQ
