#pragma once

#include <WQ/CMultiParamsTable.h>

#include <QAccessibleInterface>
#include <QPointer>

namespace WQ {

class CellModel;

/// A row's label or value. It stands for the cell's ID, so that it stays with its cell when other rows come and go.
class AccessibleTableCell : public QAccessibleInterface
{
public:
    AccessibleTableCell(CMultiParamsTable* table, int id, int column);

    bool isValid() const override;
    QObject* object() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString& text) override;
    QRect rect() const override;
    QAccessible::Role role() const override;
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
    QModelIndex index() const;
    const CellModel& model() const;

    QPointer<CMultiParamsTable> m_table;
    int m_id;
    int m_column;
};

/// Whether the keys of @p table go to the filter's footer.
bool hasFooterFocus(const CMultiParamsTable& table);

} // namespace WQ
