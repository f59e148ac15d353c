#pragma once

#include <ttservice/CCodeOrderParam.h>

#include <QAbstractTableModel>

#include <vector>

namespace workbench {

/// The task records of the host, one a row.
class TaskModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Account, Broker, Code, Name, OrderType, Operation, PriceType, Price, Volume, ColumnCount };

    explicit TaskModel(QObject* parent = nullptr);

    void setTasks(std::vector<ttservice::CCodeOrderParam> tasks);

    /// The record of that row; a default-constructed one outside the rows.
    ttservice::CCodeOrderParam task(int row) const;

    /// Names and headers in the language of the program.
    void retranslate();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<ttservice::CCodeOrderParam> m_tasks;
};

} // namespace workbench
