#include "reference/toolkit/editors/TimeTexts.h"

#include "reference/toolkit/cells/NumberRules.h"

#include <QStringList>

namespace WQ::times {

namespace {

constexpr int kLongestTime = 16;
constexpr int kPlainShort = 4; // HHMM
constexpr int kPlainLong = 6;  // HHMMSS

std::optional<int> part(const QString& digits)
{
    if (digits.isEmpty() || digits.size() > 2)
        return std::nullopt;
    int value = 0;
    for (const QChar c : digits) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return std::nullopt;
        value = value * 10 + (c.unicode() - '0');
    }
    return value;
}

QStringList partsOf(const QString& plain)
{
    if (plain.contains(QLatin1Char(':')))
        return plain.split(QLatin1Char(':'));
    if (plain.size() == kPlainShort)
        return {plain.left(2), plain.mid(2)};
    if (plain.size() == kPlainLong)
        return {plain.left(2), plain.mid(2, 2), plain.mid(4)};
    return {};
}

} // namespace

std::optional<int> typedSeconds(const QString& text)
{
    if (text.size() > kLongestTime)
        return std::nullopt;
    const QStringList parts = partsOf(asciiTwins(text));
    if (parts.size() != 2 && parts.size() != 3)
        return std::nullopt;
    const std::optional<int> hours = part(parts.at(0));
    const std::optional<int> minutes = part(parts.at(1));
    const std::optional<int> seconds = parts.size() == 3 ? part(parts.at(2)) : 0;
    if (!hours || !minutes || !seconds || *minutes >= 60 || *seconds >= 60)
        return std::nullopt;
    const int all = *hours * 3600 + *minutes * 60 + *seconds;
    return all <= kSecondsPerDay ? std::optional<int>(all) : std::nullopt;
}

std::optional<QTime> typedTime(const QString& text)
{
    const std::optional<int> seconds = typedSeconds(text);
    if (!seconds || *seconds == kSecondsPerDay)
        return std::nullopt;
    return QTime(0, 0).addSecs(*seconds);
}

QString secondsText(int seconds)
{
    const int bounded = qBound(0, seconds, kSecondsPerDay);
    return QStringLiteral("%1:%2:%3")
        .arg(bounded / 3600, 2, 10, QLatin1Char('0'))
        .arg(bounded / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(bounded % 60, 2, 10, QLatin1Char('0'));
}

Section sectionAt(const QString& text, int cursor)
{
    constexpr int kWorth[] = {3600, 60, 1};
    const int at = qBound(0, text.left(cursor).count(QLatin1Char(':')), 2);
    return {at * 3, 2, kWorth[at]};
}

} // namespace WQ::times
