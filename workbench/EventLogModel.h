#pragma once

#include "workbench/EventDecoder.h"

#include <QAbstractTableModel>

#include <deque>

namespace workbench {

/// The events that arrived, oldest first. It keeps the last ones up to its capacity.
class EventLogModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Sequence, Time, Event, Source, Value, Text, Data, ColumnCount };

    static constexpr int kCapacity = 5000;

    explicit EventLogModel(int capacity = kCapacity, QObject* parent = nullptr);

    void append(const EventRecord& record);
    void clear();

    /// How many events arrived since the start, those that are no longer kept included.
    qint64 arrived() const;

    /// The event of that row; an empty one outside the rows.
    EventRecord record(int row) const;

    /// Names and headers in the language of the program.
    void retranslate();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    int m_capacity;
    std::deque<EventRecord> m_records;
    qint64 m_arrived = 0;
};

} // namespace workbench
