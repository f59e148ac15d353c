#pragma once

#include <QtGlobal>

namespace TC {

/// A valid-time range in whole seconds since the epoch.
struct ValidTime
{
    int start = 0;
    int end = 0;
};

/// A range of @p length seconds from @p start on, in 32-bit arithmetic that wraps.
ValidTime validTimeFrom(qint64 start, int length);

/// The range moved onto the calendar day of @p now: the start keeps its time of day and the range its length in
/// seconds, so that the end's time of day moves where a day has another length.
ValidTime validTimeOnDay(const ValidTime& range, qint64 now);

} // namespace TC
