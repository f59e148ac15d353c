#include "reference/toolkit/AccessibleTable.h"

#include "reference/toolkit/AccessibleFooter.h"
#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/CellInteraction.h"
#include "reference/toolkit/editors/ChoicePopup.h"

#include <QAccessibleWidget>
#include <QMap>
#include <QPointer>

namespace WQ {

namespace {

constexpr int kColumns = CellModel::ValueColumn + 1;

// The key of the footer among the cells: no cell has it as its column.
constexpr int kFooter = kColumns;

bool hasFooterFocus(const CMultiParamsTable& table)
{
    const CellInteraction* interaction = CMultiParamsTablePrivate::of(&table)->interactionIfAny();
    return interaction && interaction->footerState().focus;
}

bool isListOpen(const CMultiParamsTable& table)
{
    const auto* list = table.findChild<ChoicePopup*>(QString(), Qt::FindDirectChildrenOnly);
    return list && list->isVisible();
}

/// A row's label or value. It stands for the cell's ID, so that it stays with its cell when other rows come and go.
class AccessibleTableCell : public QAccessibleInterface
{
public:
    AccessibleTableCell(CMultiParamsTable* table, int id, int column)
        : m_table(table)
        , m_id(id)
        , m_column(column)
    {
    }

    bool isValid() const override
    {
        return m_table && index().isValid();
    }

    QObject* object() const override
    {
        return nullptr;
    }

    QAccessibleInterface* parent() const override
    {
        return m_table ? QAccessible::queryAccessibleInterface(m_table.data()) : nullptr;
    }

    QAccessibleInterface* child(int) const override
    {
        return nullptr;
    }

    QAccessibleInterface* childAt(int, int) const override
    {
        return nullptr;
    }

    int childCount() const override
    {
        return 0;
    }

    int indexOfChild(const QAccessibleInterface*) const override
    {
        return -1;
    }

    QString text(QAccessible::Text kind) const override
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

    void setText(QAccessible::Text, const QString&) override
    {
    }

    QRect rect() const override
    {
        if (!isValid())
            return QRect();
        const QRect place = m_table->visualRect(index());
        return QRect(m_table->viewport()->mapToGlobal(place.topLeft()), place.size());
    }

    QAccessible::Role role() const override
    {
        return m_column == CellModel::ValueColumn ? QAccessible::Cell : QAccessible::StaticText;
    }

    QAccessible::State state() const override;

    int id() const
    {
        return m_id;
    }

    int column() const
    {
        return m_column;
    }

private:
    void addKindState(QAccessible::State& state) const;

    QModelIndex index() const
    {
        return model().index(model().rowOf(m_id), m_column);
    }

    const CellModel& model() const
    {
        return CMultiParamsTablePrivate::of(m_table)->model();
    }

    QPointer<CMultiParamsTable> m_table;
    int m_id;
    int m_column;
};

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

class AccessibleTable : public QAccessibleWidget
{
public:
    explicit AccessibleTable(CMultiParamsTable* table)
        : QAccessibleWidget(table, QAccessible::Table)
    {
    }

    ~AccessibleTable() override
    {
        for (const QAccessible::Id cell : qAsConst(m_cells))
            QAccessible::deleteAccessibleInterface(cell);
    }

    int childCount() const override
    {
        return footerChild() + (CMultiParamsTablePrivate::of(table())->isFooterVisible() ? 1 : 0);
    }

    QAccessibleInterface* child(int number) const override
    {
        if (number == footerChild() && number < childCount())
            return footer();
        const CellItem* const cell = number < 0 ? nullptr : model().cellAtRow(number / kColumns);
        if (!cell)
            return nullptr;
        QAccessible::Id& known = m_cells[{cell->id(), number % kColumns}];
        if (known == 0) {
            known = QAccessible::registerAccessibleInterface(
                new AccessibleTableCell(table(), cell->id(), number % kColumns));
        }
        return QAccessible::accessibleInterface(known);
    }

    QAccessibleInterface* childAt(int x, int y) const override
    {
        if (footer()->rect().contains(x, y))
            return footer();
        const QModelIndex index = table()->indexAt(table()->viewport()->mapFromGlobal(QPoint(x, y)));
        return index.isValid() ? child(accessibleChild(index.row(), index.column())) : nullptr;
    }

    QAccessibleInterface* focusChild() const override
    {
        if (table()->hasFocus() && hasFooterFocus(*table()))
            return footer();
        const int row = table()->currentIndex().row();
        return table()->hasFocus() && row >= 0 ? child(accessibleChild(row, CellModel::ValueColumn)) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* wanted) const override
    {
        if (dynamic_cast<const AccessibleFooter*>(wanted))
            return childCount() > footerChild() ? footerChild() : -1;
        const auto* const cell = dynamic_cast<const AccessibleTableCell*>(wanted);
        const int row = cell ? model().rowOf(cell->id()) : -1;
        return row < 0 ? -1 : accessibleChild(row, cell->column());
    }

private:
    CMultiParamsTable* table() const
    {
        return static_cast<CMultiParamsTable*>(widget());
    }

    const CellModel& model() const
    {
        return CMultiParamsTablePrivate::of(table())->model();
    }

    int footerChild() const
    {
        return model().rowCount() * kColumns;
    }

    QAccessibleInterface* footer() const
    {
        QAccessible::Id& known = m_cells[{0, kFooter}];
        if (known == 0)
            known = QAccessible::registerAccessibleInterface(new AccessibleFooter(table()));
        return QAccessible::accessibleInterface(known);
    }

    mutable QMap<QPair<int, int>, QAccessible::Id> m_cells; // by cell and column
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* const table = qobject_cast<CMultiParamsTable*>(object);
    return table ? new AccessibleTable(table) : nullptr;
}

} // namespace

int accessibleChild(int row, int column)
{
    return row * kColumns + column;
}

void announceAccessibleFocus(CMultiParamsTable& table)
{
    if (!QAccessible::isActive() || !table.hasFocus())
        return;
    const int row = table.currentIndex().row();
    if (!hasFooterFocus(table) && row < 0)
        return;
    QAccessibleEvent focus(&table, QAccessible::Focus);
    focus.setChild(hasFooterFocus(table) ? accessibleChild(table.model()->rowCount(), 0)
                                         : accessibleChild(row, CellModel::ValueColumn));
    QAccessible::updateAccessibility(&focus);
}

void announceAccessibleValues(CMultiParamsTable& table, int first, int last)
{
    if (!QAccessible::isActive() || !table.isVisible())
        return;
    for (int row = first; row <= last; ++row) {
        const QModelIndex value = table.model()->index(row, CellModel::ValueColumn);
        QAccessibleValueChangeEvent change(&table, value.data());
        change.setChild(accessibleChild(row, CellModel::ValueColumn));
        QAccessible::updateAccessibility(&change);
    }
}

void makeTablesAccessible()
{
    static const bool installed = (QAccessible::installFactory(makeInterface), true);
    Q_UNUSED(installed)
}

} // namespace WQ
