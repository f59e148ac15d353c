#include "reference/toolkit/cells/NumberRules.h"

#include <cmath>

namespace WQ {

namespace {

// A longer text is no number that a person types, and reading it would only take time.
constexpr int kLongestNumber = 400;

constexpr QChar kPoint = QLatin1Char('.');
constexpr QChar kComma = QLatin1Char(',');

struct Twin
{
    ushort wide;
    char ascii;
};

// clang-format off
constexpr Twin kTwins[] = {
    {0x3002, '.'}, // 。 the stop that a Chinese input method writes for the point
    {0xFF0E, '.'},
    {0xFF0C, ','},
    {0xFF0D, '-'},
    {0x2212, '-'},
    {0xFF0B, '+'},
    {0xFF1A, ':'},
    {0x3000, ' '},
};
// clang-format on

QChar asciiTwin(QChar c)
{
    constexpr ushort kWideZero = 0xFF10;
    constexpr ushort kWideNine = 0xFF19;
    if (c.unicode() >= kWideZero && c.unicode() <= kWideNine)
        return QChar(static_cast<ushort>(c.unicode() - kWideZero + '0'));
    for (const Twin& twin : kTwins) {
        if (twin.wide == c.unicode())
            return QLatin1Char(twin.ascii);
    }
    return c;
}

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool isSign(QChar c)
{
    return c == QLatin1Char('-') || c == QLatin1Char('+');
}

int countDigits(const QString& text, int from)
{
    int at = from;
    while (at < text.size() && isDigit(text.at(at)))
        ++at;
    return at - from;
}

// Takes the commas between groups of three digits out of the integer part; false when one stands elsewhere.
bool takeGrouping(QString& text, int start)
{
    if (!text.contains(kComma))
        return true;
    int at = start + countDigits(text, start);
    if (at == start || at - start > 3)
        return false;
    while (at < text.size() && text.at(at) == kComma) {
        if (countDigits(text, at + 1) != 3)
            return false;
        text.remove(at, 1);
        at += 3;
    }
    return !text.contains(kComma);
}

} // namespace

QString asciiTwins(const QString& text)
{
    QString ascii = text;
    for (QChar& c : ascii)
        c = asciiTwin(c);
    return ascii.trimmed();
}

QString groupedDigits(const QString& text)
{
    const int start = !text.isEmpty() && isSign(text.at(0)) ? 1 : 0;
    const int digits = countDigits(text, start);
    const int point = start + digits;
    const bool isNumber = digits > 0
        && (point == text.size()
            || (text.at(point) == kPoint && point + 1 + countDigits(text, point + 1) == text.size()));
    if (!isNumber || digits <= 3)
        return text;
    QString grouped;
    grouped.reserve(text.size() + digits / 3);
    for (int at = 0; at < text.size(); ++at) {
        if (at > start && at < point && (point - at) % 3 == 0)
            grouped += kComma;
        grouped += text.at(at);
    }
    return grouped;
}

std::optional<double> typedNumber(const QString& text)
{
    if (text.size() > kLongestNumber)
        return std::nullopt;
    QString plain = asciiTwins(text);
    const int start = !plain.isEmpty() && isSign(plain.at(0)) ? 1 : 0;
    if (!takeGrouping(plain, start))
        return std::nullopt;
    const int digits = countDigits(plain, start);
    int end = start + digits;
    int decimals = 0;
    if (end < plain.size() && plain.at(end) == kPoint) {
        decimals = countDigits(plain, end + 1);
        end += 1 + decimals;
    }
    if (end != plain.size() || digits + decimals == 0)
        return std::nullopt;
    const double value = plain.toDouble();
    return std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

std::optional<double> numberOf(const QString& text)
{
    if (const std::optional<double> typed = typedNumber(text))
        return typed;
    if (text.size() > kLongestNumber)
        return std::nullopt;
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

} // namespace WQ
