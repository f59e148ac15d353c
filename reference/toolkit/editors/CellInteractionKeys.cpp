#include "reference/toolkit/editors/CellInteraction.h"

#include "reference/toolkit/AccessibleTable.h"
#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/ChoicePopup.h"
#include "reference/toolkit/editors/PersonCommits.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

namespace WQ {

bool CellInteraction::activate(CellItem& cell)
{
    if (!canEdit(cell))
        return false;
    if (cell.kind() != CellKind::Combo)
        return beginEdit(cell);
    openChoices(cell);
    return true;
}

// The entries of a combo, the other units of a number, the other kind of a period.
bool CellInteraction::openAlternatives(CellItem& cell)
{
    if (!canEdit(cell))
        return false;
    if (cell.kind() == CellKind::TimePeriod) {
        if (beginEdit(cell))
            m_editor->switchPeriod();
        return true;
    }
    if (cell.hasChevron())
        openChoices(cell);
    return cell.hasChevron();
}

bool CellInteraction::toggleCheck(CellItem& cell)
{
    if (cell.kind() != CellKind::CheckNumber || !canEdit(cell))
        return false;
    commits::check(widget(), cell, !cell.isChecked());
    return true;
}

// A text is ready to be replaced where the focus comes to it by Tab; a list only opens when asked for.
bool CellInteraction::enter(CellItem& cell)
{
    if (hasFields(cell.kind()))
        return beginEdit(cell);
    m_table.setCurrentCell(cell);
    makeVisible(cell);
    return true;
}

CellItem* CellInteraction::nextEditable(int row, bool next) const
{
    const int rows = m_table.model().rowCount();
    for (int at = row + (next ? 1 : -1); at >= 0 && at < rows; at += next ? 1 : -1) {
        CellItem* cell = m_table.model().cellAtRow(at);
        if (canEdit(*cell))
            return cell;
    }
    return nullptr;
}

bool CellInteraction::focusNextPrevious(bool next)
{
    if (m_closing || !widget().isVisible())
        return false;
    const QPointer<CMultiParamsTable> alive(&widget());
    if (m_cell) {
        if (m_editor->moveFocus(next))
            return true;
        submitted();
        if (!alive || m_cell)
            return true;
    }
    const CellItem* current = m_table.currentCell();
    const int row = m_footerFocus ? m_table.model().rowCount() : current ? m_table.model().rowOf(current->id()) : -1;
    CellItem* target = nextEditable(row, next);
    if (!target)
        return false;
    setFooterFocus(false);
    enter(*target);
    return true;
}

void CellInteraction::focusIn(QFocusEvent* event)
{
    if (m_closing)
        return;
    const bool isTab = event->reason() == Qt::TabFocusReason;
    if (m_cell && event->reason() != Qt::MouseFocusReason && event->reason() != Qt::PopupFocusReason)
        m_editor->takeFocus();
    if (m_cell || (!isTab && event->reason() != Qt::BacktabFocusReason))
        return;
    if (CellItem* cell = nextEditable(isTab ? -1 : m_table.model().rowCount(), isTab))
        enter(*cell);
}

void CellInteraction::focusOut(QFocusEvent* event)
{
    if (event->reason() == Qt::PopupFocusReason)
        return;
    setFooterFocus(false);
    forgetRefusal();
}

void CellInteraction::setFooterFocus(bool focus)
{
    if (m_footerFocus == focus)
        return;
    m_footerFocus = focus;
    m_table.updateFooter();
    if (const CellItem* cell = m_table.currentCell())
        m_table.update(*cell);
    announceAccessibleFocus(widget());
}

bool CellInteraction::leavesRows(const QKeyEvent& event) const
{
    const CellItem* current = m_table.currentCell();
    const int row = current ? m_table.model().rowOf(current->id()) : -1;
    return event.key() == Qt::Key_Down && event.modifiers() == Qt::NoModifier && row == m_table.model().rowCount() - 1
        && m_table.isFilterEnabled();
}

bool CellInteraction::footerKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Up:
        setFooterFocus(false);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Down:
        openFilter();
        return true;
    default:
        return false;
    }
}

// While a cell is edited a key is the editor's, wherever it arrives; what the editor leaves of it is the host's.
bool CellInteraction::forwardKey(QKeyEvent& event)
{
    if (m_forwarding) {
        // The editor's copy has come up to the table, unused. It ends here, and the host gets the event itself.
        m_forwarding = false;
        return true;
    }
    m_forwarding = true;
    const QPointer<CMultiParamsTable> alive(&widget());
    QKeyEvent copy(event);
    QCoreApplication::sendEvent(m_editor->field(), &copy);
    if (alive)
        event.setAccepted(std::exchange(m_forwarding, false) && copy.isAccepted());
    return true;
}

bool CellInteraction::keyPress(QKeyEvent* event)
{
    // A window hands its keys to what had the focus last, though that be hidden by now.
    if (!widget().isVisible()) {
        event->ignore();
        return true;
    }
    if (m_cell)
        return forwardKey(*event);
    forgetRefusal();
    if (m_footerFocus)
        return footerKey(*event);
    if (leavesRows(*event)) {
        setFooterFocus(true);
        return true;
    }
    if (CellItem* cell = m_table.currentCell())
        return rowKey(*event, *cell);
    // Without a row Enter still presses no button of the window around.
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

bool CellInteraction::rowKey(QKeyEvent& event, CellItem& cell)
{
    if (commandKey(event, cell))
        return true;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
        event.accept();
        // Held down, Enter would open the edit that it has just ended.
        if (!event.isAutoRepeat())
            activate(cell);
        return true;
    case Qt::Key_Space:
        if (event.isAutoRepeat())
            return true;
        return toggleCheck(cell) || (cell.kind() == CellKind::Combo && activate(cell)) || typeInto(cell, event);
    case Qt::Key_Up:
    case Qt::Key_Down:
        return event.modifiers().testFlag(Qt::AltModifier) && openAlternatives(cell);
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        return cell.kind() != CellKind::Combo && typeInto(cell, event);
    default:
        break;
    }
    const bool isText = !event.text().isEmpty() && event.text().at(0).isPrint();
    return isText && typeInto(cell, event);
}

// The key that opens an editor is its first: it replaces the value, which is selected.
bool CellInteraction::typeInto(CellItem& cell, const QKeyEvent& event)
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    if (!activate(cell))
        return true;
    if (m_cell == &cell) {
        QKeyEvent first(event);
        QCoreApplication::sendEvent(m_editor->field(), &first);
    } else if (m_choices) {
        m_choices->typeAhead(event.text());
    }
    return true;
}

} // namespace WQ
