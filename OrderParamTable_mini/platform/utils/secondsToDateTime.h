#pragma once

#include <WQ/WqExport.h>

#include <QtGlobal>

namespace utils {

/// Splits seconds since the epoch into local calendar fields.
/// @param seconds outside the years that a date can hold they answer the fields of the nearest date that can
/// @param[out] year in full
/// @param[out] month 1 to 12
/// @param[out] day 1 to 31
/// @param[out] hour 0 to 23
/// @param[out] minute 0 to 59
/// @param[out] second 0 to 59
WQ_EXPORT void secondsToDateTime(qint64 seconds, int& year, int& month, int& day, int& hour, int& minute, int& second);

} // namespace utils
