#pragma once

#include <WQ/WqExport.h>

#include <QDateTime>
#include <QFlags>
#include <QString>

#include <string>

namespace WQ {

/// How a number is written; none of these is settled but the plain form.
enum EFormatFlag : int {
    FormatPlain = 0, ///< digits and point alone, no grouping
};

/// Any of them.
using FormatFlags = QFlags<EFormatFlag>;

/// A number with so many decimals: the digits of QString::number(value, 'f', decimals), point "." whatever the locale,
/// no grouping, no sign on what rounds to zero. The bool means nothing here.
/// @param value any
/// @param decimals 0 to 20; what is outside stops at these
/// @param flags FormatPlain
/// @param invalidText answered for NaN, infinities and the no-price value
/// @return the number as text
WQ_EXPORT QString formatDoubleNumber(long double value, int decimals, FormatFlags flags, bool,
                                     const QString& invalidText);

/// A whole number in plain decimal.
/// @param value any
/// @param width the fewest characters, filled with blanks at the left; at most 4,096
/// @param flags FormatPlain
/// @return the number as text
WQ_EXPORT QString formatIntNumber(int value, int width, FormatFlags flags);

/// A text of the client's records.
/// @param text UTF-8
/// @return the same text
WQ_EXPORT QString sToQs(const std::string& text);

/// A time of the client's records.
/// @param seconds whole seconds since the epoch
/// @return local date and time
WQ_EXPORT QDateTime secondToQDateTime(int seconds);

/// A date and time as the client's records have it.
/// @param dateTime an invalid one answers 0
/// @return whole seconds since the epoch, stopped at the ends of 32 bits
WQ_EXPORT int qDateTimeToSecond(QDateTime dateTime);

} // namespace WQ
