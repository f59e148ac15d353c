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

} // namespace

ValidTime validTimeFrom(qint64 start, int length)
{
    const auto first = quint32(start);
    return {int(first), int(first + quint32(length))};
}

ValidTime validTimeOnDay(const ValidTime& range, qint64 now)
{
    const auto length = int(quint32(range.end) - quint32(range.start));
    QDateTime start = WQ::secondToQDateTime(range.start);
    const QTime timeOfDay = start.time();
    start.setDate(dayOf(now));
    start.setTime(timeOfDay);
    return validTimeFrom(WQ::qDateTimeToSecond(start), length);
}

} // namespace TC
