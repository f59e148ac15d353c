#include "reference/toolkit/AccessibleTable.h"

#include "reference/toolkit/AccessibleFooter.h"
#include "reference/toolkit/AccessibleTableCell.h"
#include "reference/toolkit/CMultiParamsTablePrivate.h"

#include <QAccessibleWidget>
#include <QMap>

namespace WQ {

namespace {

constexpr int kColumns = CellModel::ValueColumn + 1;

// The key of the footer among the cells: no cell has it as its column.
constexpr int kFooter = kColumns;

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
