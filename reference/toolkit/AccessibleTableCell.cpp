#include "reference/toolkit/AccessibleTableCell.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/ChoicePopup.h"

namespace WQ {

namespace {

bool isListOpen(const CMultiParamsTable& table)
{
    const auto* list = table.findChild<ChoicePopup*>(QString(), Qt::FindDirectChildrenOnly);
    return list && list->isVisible();
}

} // namespace

AccessibleTableCell::AccessibleTableCell(CMultiParamsTable* table, int id, int column)
    : AccessibleTablePart(table)
    , m_id(id)
    , m_column(column)
{
}

bool AccessibleTableCell::isValid() const
{
    return m_table && index().isValid();
}

QString AccessibleTableCell::text(QAccessible::Text kind) const
{
    if (!isValid())
        return QString();
    switch (kind) {
    case QAccessible::Name:
        return index().data(Qt::AccessibleTextRole).toString();
    case QAccessible::Value:
        return m_column == CellModel::ValueColumn ? index().data(Qt::DisplayRole).toString() : QString();
    case QAccessible::Description:
        return index().data(Qt::ToolTipRole).toString();
    default:
        return QString();
    }
}

QRect AccessibleTableCell::rect() const
{
    return isValid() ? onScreen(m_table->visualRect(index())) : QRect();
}

QAccessible::Role AccessibleTableCell::role() const
{
    return m_column == CellModel::ValueColumn ? QAccessible::Cell : QAccessible::StaticText;
}

QModelIndex AccessibleTableCell::index() const
{
    return model().index(model().rowOf(m_id), m_column);
}

const CellModel& AccessibleTableCell::model() const
{
    return CMultiParamsTablePrivate::of(m_table)->model();
}

QAccessible::State AccessibleTableCell::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const Qt::ItemFlags flags = index().flags();
    state.disabled = !m_table->isEnabled() || !(flags & Qt::ItemIsEnabled);
    state.invisible = !m_table->isVisible();
    if (m_column != CellModel::ValueColumn)
        return state;
    state.editable = !state.disabled && (flags & Qt::ItemIsEditable);
    state.readOnly = !state.editable;
    state.focusable = !state.disabled;
    const bool isCurrent = m_table->currentIndex().row() == index().row();
    state.focused = m_table->hasFocus() && isCurrent && !hasFooterFocus(*m_table);
    addKindState(state);
    return state;
}

// What the cell offers beside its text: a list of entries or units, a box to tick.
void AccessibleTableCell::addKindState(QAccessible::State& state) const
{
    const CellItem& cell = *model().cell(m_id);
    if (cell.hasChevron()) {
        const bool isCurrent = m_table->currentIndex().row() == index().row();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = isCurrent && isListOpen(*m_table);
        state.collapsed = !state.expanded;
    }
    state.checkable = cell.kind() == CellKind::CheckNumber;
    state.checked = cell.isChecked();
}

} // namespace WQ
