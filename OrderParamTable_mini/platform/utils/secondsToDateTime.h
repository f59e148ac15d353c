#pragma once

#include <WQ/WqExport.h>

#include <QtGlobal>

namespace utils {

/// Splits seconds since the epoch into local calendar fields: full year, month 1 to 12, day 1 to 31, and time of day.
/// Seconds outside the years that a date can hold answer the fields of the nearest date that can.
WQ_EXPORT void secondsToDateTime(qint64 seconds, int& year, int& month, int& day, int& hour, int& minute, int& second);

} // namespace utils
