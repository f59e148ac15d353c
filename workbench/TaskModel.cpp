#include "workbench/TaskModel.h"

#include "workbench/Vocabulary.h"

#include <WQ/Formatting.h>

#include <QCoreApplication>

#include <array>

namespace workbench {

namespace {

constexpr std::array<const char*, TaskModel::ColumnCount> kHeaders = {
    QT_TRANSLATE_NOOP("workbench", "Account"),    QT_TRANSLATE_NOOP("workbench", "Broker type"),
    QT_TRANSLATE_NOOP("workbench", "Code"),       QT_TRANSLATE_NOOP("workbench", "Name"),
    QT_TRANSLATE_NOOP("workbench", "Order type"), QT_TRANSLATE_NOOP("workbench", "Operation"),
    QT_TRANSLATE_NOOP("workbench", "Price type"), QT_TRANSLATE_NOOP("workbench", "Price"),
    QT_TRANSLATE_NOOP("workbench", "Volume"),
};

constexpr int kPriceDecimals = 3;

QString taskText(const ttservice::CCodeOrderParam& task, int column)
{
    switch (column) {
    case TaskModel::Account:
        return task.account ? WQ::sToQs(task.account->accountId) : QString();
    case TaskModel::Broker:
        return task.account ? valueWithName(brokerTypes(), task.account->brokerType) : QString();
    case TaskModel::Code:
        return WQ::sToQs(task.code);
    case TaskModel::Name:
        return WQ::sToQs(task.name);
    case TaskModel::OrderType:
        return valueWithName(orderTypes(), task.orderType);
    case TaskModel::Operation:
        return valueWithName(operationTypes(), task.operationType);
    case TaskModel::PriceType:
        return QStringLiteral("%1  %2").arg(task.priceType).arg(labelOf(priceTypes(), task.priceType));
    case TaskModel::Price:
        return WQ::formatDoubleNumber(task.price, kPriceDecimals, WQ::FormatPlain, false, QStringLiteral("非法值"));
    case TaskModel::Volume:
        return WQ::formatIntNumber(task.volume, 0, WQ::FormatPlain);
    }
    return {};
}

} // namespace

TaskModel::TaskModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

void TaskModel::setTasks(std::vector<ttservice::CCodeOrderParam> tasks)
{
    beginResetModel();
    m_tasks = std::move(tasks);
    endResetModel();
}

ttservice::CCodeOrderParam TaskModel::task(int row) const
{
    return row >= 0 && row < rowCount() ? m_tasks[static_cast<std::size_t>(row)] : ttservice::CCodeOrderParam();
}

void TaskModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int TaskModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_tasks.size());
}

int TaskModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TaskModel::data(const QModelIndex& index, int role) const
{
    if (!hasIndex(index.row(), index.column(), index.parent()))
        return {};
    const bool isNumber = index.column() == Price || index.column() == Volume;
    if (role == Qt::TextAlignmentRole && isNumber)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    return taskText(m_tasks[static_cast<std::size_t>(index.row())], index.column());
}

QVariant TaskModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return {};
    return translated(kHeaders[static_cast<std::size_t>(section)]);
}

} // namespace workbench
