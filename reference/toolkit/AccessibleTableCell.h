#pragma once

#include "reference/toolkit/AccessibleTablePart.h"

namespace WQ {

class CellModel;

/// A row's label or value. It stands for the cell's ID, so that it stays with its cell when other rows come and go.
class AccessibleTableCell : public AccessibleTablePart
{
public:
    AccessibleTableCell(CMultiParamsTable* table, int id, int column);

    bool isValid() const override;
    QString text(QAccessible::Text kind) const override;
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

    int m_id;
    int m_column;
};

} // namespace WQ
