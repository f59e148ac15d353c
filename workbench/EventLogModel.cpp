#include "workbench/EventLogModel.h"

#include "workbench/Vocabulary.h"

#include <QCoreApplication>
#include <QDateTime>

#include <array>

namespace workbench {

namespace {

constexpr std::array<const char*, EventLogModel::ColumnCount> kHeaders = {
    QT_TRANSLATE_NOOP("workbench", "No."),   QT_TRANSLATE_NOOP("workbench", "Time"),
    QT_TRANSLATE_NOOP("workbench", "Event"), QT_TRANSLATE_NOOP("workbench", "From"),
    QT_TRANSLATE_NOOP("workbench", "Value"), QT_TRANSLATE_NOOP("workbench", "Text"),
    QT_TRANSLATE_NOOP("workbench", "Data"),
};

QString cellText(const EventRecord& record, int column, qint64 sequence)
{
    switch (column) {
    case EventLogModel::Sequence:
        return QString::number(sequence);
    case EventLogModel::Time:
        return QDateTime::fromSecsSinceEpoch(record.time).toString(QStringLiteral("HH:mm:ss"));
    case EventLogModel::Event:
        return eventName(record);
    case EventLogModel::Source:
        return eventSource(record);
    case EventLogModel::Value:
        return eventValue(record);
    case EventLogModel::Text:
        return record.text;
    case EventLogModel::Data:
        return record.data;
    }
    return {};
}

} // namespace

EventLogModel::EventLogModel(int capacity, QObject* parent)
    : QAbstractTableModel(parent)
    , m_capacity(capacity)
{
}

void EventLogModel::append(const EventRecord& record)
{
    if (rowCount() == m_capacity) {
        beginRemoveRows({}, 0, 0);
        m_records.pop_front();
        endRemoveRows();
    }
    beginInsertRows({}, rowCount(), rowCount());
    m_records.push_back(record);
    ++m_arrived;
    endInsertRows();
}

void EventLogModel::clear()
{
    beginResetModel();
    m_records.clear();
    m_arrived = 0;
    endResetModel();
}

qint64 EventLogModel::arrived() const
{
    return m_arrived;
}

EventRecord EventLogModel::record(int row) const
{
    return row >= 0 && row < rowCount() ? m_records[static_cast<std::size_t>(row)] : EventRecord();
}

void EventLogModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int EventLogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

int EventLogModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant EventLogModel::data(const QModelIndex& index, int role) const
{
    if (!hasIndex(index.row(), index.column(), index.parent()))
        return {};
    if (role == Qt::TextAlignmentRole && index.column() == Sequence)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const EventRecord& record = m_records[static_cast<std::size_t>(index.row())];
    const qint64 sequence = m_arrived - rowCount() + index.row() + 1;
    const QString text = cellText(record, index.column(), sequence);
    if (role == Qt::DisplayRole || eventCell(record) == 0)
        return text;
    const QString way = translated(QT_TRANSLATE_NOOP("workbench", "Enter or double-click: to the cell"));
    return text.isEmpty() ? way : text + QLatin1Char('\n') + way;
}

QVariant EventLogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return {};
    return translated(kHeaders[static_cast<std::size_t>(section)]);
}

} // namespace workbench
