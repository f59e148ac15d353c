#include <OrderParamTable_mini/tables/ValidTime.h>

#include <WQ/Formatting.h>
#include <utils/secondsToDateTime.h>

#include <QDateTime>

namespace TC {

namespace {

QDate dayOf(qint64 seconds)
{
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    utils::secondsToDateTime(seconds, year, month, day, hour, minute, second);
    return QDate(year, month, day);
}

/// A time of day that daylight saving skips is as far into the day as it would be without the change.
QDateTime onDay(QDateTime dateTime, const QDate& day)
{
    const QTime timeOfDay = dateTime.time();
    dateTime.setDate(day);
    dateTime.setTime(timeOfDay);
    if (dateTime.isValid() || !day.isValid())
        return dateTime;
    const int offset = QDateTime(day.addDays(-1), QTime(12, 0)).offsetFromUtc();
    return QDateTime(day, timeOfDay, Qt::OffsetFromUTC, offset);
}

} // namespace

ValidTime validTimeFrom(qint64 start, int length)
{
    const auto first = quint32(start);
    return {int(first), int(first + quint32(length))};
}

ValidTime validTimeOnDay(const ValidTime& range, qint64 now)
{
    const auto length = int(quint32(range.end) - quint32(range.start));
    const QDateTime start = onDay(WQ::secondToQDateTime(range.start), dayOf(now));
    return validTimeFrom(WQ::qDateTimeToSecond(start), length);
}

} // namespace TC
