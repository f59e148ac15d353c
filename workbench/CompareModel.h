#pragma once

#include "workbench/CompareRows.h"

#include <QAbstractTableModel>

namespace workbench {

/// Two tables side by side, a row a fact. What differs carries a mark and another colour.
class CompareModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Mark, Cell, What, Left, Right, ColumnCount };

    /// Whether the row differs, as a bool.
    static constexpr int kDiffersRole = Qt::UserRole;

    explicit CompareModel(QObject* parent = nullptr);

    void setRows(std::vector<CompareRow> rows);
    int differences() const;
    void retranslate();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const CompareRow& row, int column) const;

    std::vector<CompareRow> m_rows;
};

} // namespace workbench
