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
using FormatFlags = QFlags<EFormatFlag>;

/// @p value with exactly @p decimals decimals (0 to 20): the digits of QString::number(value, 'f', decimals), point "."
/// whatever the locale, no grouping, no sign on what rounds to zero. NaN, infinities and the no-price value answer
/// @p invalidText. The bool means nothing here.
WQ_EXPORT QString formatDoubleNumber(long double value, int decimals, FormatFlags flags, bool,
                                     const QString& invalidText);

/// @p value in plain decimal, at least @p width characters wide, filled with blanks at the left.
WQ_EXPORT QString formatIntNumber(int value, int width, FormatFlags flags);

/// A text of the client's records, UTF-8, as QString.
WQ_EXPORT QString sToQs(const std::string& text);

/// Whole seconds since the epoch as local date and time, and back (stopped at the ends of 32 bits; an invalid date and
/// time answers 0).
WQ_EXPORT QDateTime secondToQDateTime(int seconds);
WQ_EXPORT int qDateTimeToSecond(QDateTime dateTime);

} // namespace WQ
