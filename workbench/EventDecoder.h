#pragma once

#include <QString>

namespace workbench {

/// A toolkit event as it arrived, without the pointer: the data is the sender's and is read while it is delivered.
struct EventRecord
{
    qint64 time = 0; ///< the client's clock, whole seconds since the epoch
    int event = 0;
    int a = 0;
    int b = 0;
    QString text; ///< shortened when very long
    QString data; ///< what the data pointer led to; empty for none
};

/// The longest text that a record keeps; the rest is replaced by an ellipsis.
constexpr int kLongestKeptText = 400;

/// Takes an event over. The number says what @p data points at: 73 a QVariant, 1062 a double, 1206 a
/// COrderParamBaseTable, 1213 an int; other events' data is not read.
EventRecord capture(int event, int a, int b, const QString& text, const void* data);

/// The cell that the event came from; 0 where it came from none.
int eventCell(const EventRecord& record);

/// "129  changed"; the bare number for an event without a name.
QString eventName(const EventRecord& record);

/// What the first argument names: the cell with its label, the button, the table or the order type.
QString eventSource(const EventRecord& record);

/// What the second argument says: an index, a check, a price or order type.
QString eventValue(const EventRecord& record);

} // namespace workbench
