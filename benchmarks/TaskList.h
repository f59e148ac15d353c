#pragma once

#include <ttservice/CCodeOrderParam.h>

#include <QAbstractTableModel>

#include <vector>

namespace bench {

/// Task records as a host lists them, one a row.
class TaskList : public QAbstractTableModel
{
    Q_OBJECT
public:
    void setTasks(std::vector<ttservice::CCodeOrderParam> tasks);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<ttservice::CCodeOrderParam> m_tasks;
};

} // namespace bench
