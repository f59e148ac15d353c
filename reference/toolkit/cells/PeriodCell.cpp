#include "reference/toolkit/cells/ValueCells.h"

#include <QDateTime>

#include <limits>
#include <utility>

namespace WQ {

namespace {

constexpr int kSecondsPerDay = 24 * 60 * 60;

QTime validTime(QTime time)
{
    return time.isValid() ? time : QTime(0, 0);
}

QString secondsText(QTime time)
{
    return time.toString(QStringLiteral("HH:mm:ss"));
}

// Seconds are rarely set and only then worth their room.
QString shortText(QTime time)
{
    return time.toString(time.second() == 0 ? QStringLiteral("HH:mm") : QStringLiteral("HH:mm:ss"));
}

int clockLength(QTime start, QTime end)
{
    const int seconds = start.secsTo(end);
    return seconds < 0 ? seconds + kSecondsPerDay : seconds;
}

int epochSeconds(const QDateTime& dateTime)
{
    if (!dateTime.isValid())
        return 0;
    constexpr qint64 kLowest = std::numeric_limits<int>::min();
    constexpr qint64 kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(qBound(kLowest, dateTime.toSecsSinceEpoch(), kHighest));
}

} // namespace

PeriodCell::PeriodCell(int id, QString label, QTime start, QTime end)
    : CellItem(CellKind::TimePeriod, id, std::move(label))
    , m_start(validTime(start))
    , m_end(validTime(end))
    , m_initialStart(m_start)
    , m_initialEnd(m_end)
{
}

int PeriodCell::elapse() const
{
    return m_type == TimeRangeDuration ? m_duration : clockLength(m_start, m_end);
}

bool PeriodCell::setClock(QTime start, QTime end)
{
    if (!start.isValid() || !end.isValid())
        return false;
    const bool changed = m_type != TimeRangeClock || start != m_start || end != m_end;
    m_type = TimeRangeClock;
    m_start = start;
    m_end = end;
    return changed;
}

bool PeriodCell::setDuration(int seconds)
{
    const int bounded = qBound(0, seconds, kSecondsPerDay);
    const bool changed = m_type != TimeRangeDuration || bounded != m_duration;
    m_type = TimeRangeDuration;
    m_duration = bounded;
    return changed;
}

QPair<int, int> PeriodCell::epochRange(qint64 now) const
{
    // What a date cannot hold would overflow on its way through milliseconds.
    constexpr qint64 kFarthest = std::numeric_limits<qint64>::max() / 4000;
    const QDate today = QDateTime::fromSecsSinceEpoch(qBound(-kFarthest, now, kFarthest)).date();
    const QDate endDay = m_end < m_start ? today.addDays(1) : today;
    return {epochSeconds(QDateTime(today, m_start)), epochSeconds(QDateTime(endDay, m_end))};
}

QString PeriodCell::text() const
{
    return secondsText(m_start) + QLatin1Char('-') + secondsText(m_end);
}

QString PeriodCell::displayText() const
{
    if (m_type == TimeRangeClock)
        return shortText(m_start) + QStringLiteral(" – ") + shortText(m_end);
    return QStringLiteral("%1:%2:%3")
        .arg(m_duration / 3600, 2, 10, QLatin1Char('0'))
        .arg(m_duration / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(m_duration % 60, 2, 10, QLatin1Char('0'));
}

bool PeriodCell::setText(const QString& text)
{
    const QString format = QStringLiteral("HH:mm:ss");
    const int at = text.indexOf(QLatin1Char('-'));
    return at > 0 && setClock(QTime::fromString(text.left(at), format), QTime::fromString(text.mid(at + 1), format));
}

} // namespace WQ
