#include "benchmarks/TaskList.h"

#include <WQ/Formatting.h>

#include <array>

namespace bench {

namespace {

using ttservice::CCodeOrderParam;

constexpr std::array<QString (*)(const CCodeOrderParam&), 6> kColumns = {
    [](const CCodeOrderParam& task) { return WQ::sToQs(task.account->accountId); },
    [](const CCodeOrderParam& task) { return WQ::sToQs(task.code); },
    [](const CCodeOrderParam& task) { return WQ::sToQs(task.name); },
    [](const CCodeOrderParam& task) { return QString::number(int(task.orderType)); },
    [](const CCodeOrderParam& task) { return WQ::formatDoubleNumber(task.price, 3, {}, false, QString()); },
    [](const CCodeOrderParam& task) { return QString::number(task.volume); },
};

} // namespace

void TaskList::setTasks(std::vector<CCodeOrderParam> tasks)
{
    beginResetModel();
    m_tasks = std::move(tasks);
    endResetModel();
}

int TaskList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_tasks.size());
}

int TaskList::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(kColumns.size());
}

QVariant TaskList::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid())
        return {};
    return kColumns[std::size_t(index.column())](m_tasks[std::size_t(index.row())]);
}

} // namespace bench
