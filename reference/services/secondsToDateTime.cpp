#include <utils/secondsToDateTime.h>

#include <QDateTime>

#include <algorithm>
#include <limits>

namespace utils {

void secondsToDateTime(qint64 seconds, int& year, int& month, int& day, int& hour, int& minute, int& second)
{
    // QDateTime counts milliseconds; a day is left at both ends for the time zone.
    constexpr qint64 kSecondsOfDay = 86400;
    constexpr qint64 kLatest = std::numeric_limits<qint64>::max() / 1000 - kSecondsOfDay;
    const QDateTime local = QDateTime::fromSecsSinceEpoch(std::clamp(seconds, -kLatest, kLatest));
    local.date().getDate(&year, &month, &day);
    hour = local.time().hour();
    minute = local.time().minute();
    second = local.time().second();
}

} // namespace utils
