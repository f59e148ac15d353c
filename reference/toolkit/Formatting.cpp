#include <WQ/Formatting.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>

namespace WQ {

namespace {

using Wide = unsigned __int128;

constexpr int kMostDecimals = 20;
constexpr int kWidestInt = 4096;

constexpr std::array<Wide, kMostDecimals + 1> powersOfTen()
{
    std::array<Wide, kMostDecimals + 1> powers{};
    Wide power = 1;
    for (Wide& entry : powers) {
        entry = power;
        power *= 10;
    }
    return powers;
}

constexpr std::array<Wide, kMostDecimals + 1> kPowersOfTen = powersOfTen();

// Shifted right by this much or more, a mantissa times the largest power of ten is below a half: 53 + 67 bits.
constexpr int kRightShiftToZero = 121;
static_assert(kPowersOfTen.back() < (Wide(1) << 67), "the products must fit into 128 bits");

/// A finite double's amount is exactly mantissa * 2^exponent.
struct BinaryParts
{
    std::uint64_t mantissa;
    int exponent;
};

BinaryParts partsOf(double number)
{
    static_assert(std::numeric_limits<double>::is_iec559 && sizeof(double) == sizeof(std::uint64_t));
    constexpr int kStoredBits = 52;
    constexpr int kExponentOfUnit = 1075;
    constexpr std::uint64_t kHiddenBit = std::uint64_t(1) << kStoredBits;
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    const auto storedExponent = static_cast<int>((bits >> kStoredBits) & 0x7FF);
    const std::uint64_t stored = bits & (kHiddenBit - 1);
    if (storedExponent == 0)
        return {stored, 1 - kExponentOfUnit};
    return {stored | kHiddenBit, storedExponent - kExponentOfUnit};
}

/// @p scaled, a number times ten to the @p decimals, with its point. Written from the end to the front.
QString pointed(std::uint64_t scaled, int decimals, bool negative)
{
    char16_t room[kMostDecimals + 24]; // digits, point, sign
    char16_t* const end = std::end(room);
    char16_t* begin = end;
    const auto putLow = [&begin, &scaled] {
        *--begin = static_cast<char16_t>(u'0' + scaled % 10);
        scaled /= 10;
    };
    for (int i = 0; i < decimals; ++i)
        putLow();
    if (decimals > 0)
        *--begin = u'.';
    do
        putLow();
    while (scaled != 0);
    if (negative)
        *--begin = u'-';
    return QString(reinterpret_cast<const QChar*>(begin), static_cast<int>(end - begin));
}

// Most amounts of a record are zero; they share their texts.
const QString& zero(int decimals)
{
    static const auto texts = [] {
        std::array<QString, kMostDecimals + 1> all;
        for (int i = 0; i <= kMostDecimals; ++i)
            all[static_cast<std::size_t>(i)] = pointed(0, i, false);
        return all;
    }();
    return texts[static_cast<std::size_t>(decimals)];
}

} // namespace

QString formatDoubleNumber(long double value, int decimals, FormatFlags, bool, const QString& invalidText)
{
    const auto number = static_cast<double>(value);
    if (!std::isfinite(number) || number == std::numeric_limits<double>::max())
        return invalidText;
    decimals = std::clamp(decimals, 0, kMostDecimals);

    // Scaled in integers nothing is lost before the one rounding.
    const BinaryParts parts = partsOf(number);
    const Wide product = parts.mantissa * kPowersOfTen[static_cast<std::size_t>(decimals)];
    const int shift = -parts.exponent;
    const Wide scaled = shift > 0 && shift < kRightShiftToZero ? ((product >> (shift - 1)) + 1) >> 1 : 0;
    if (shift <= 0 || scaled >> 64 != 0)
        return QString::number(number, 'f', decimals);
    if (scaled == 0)
        return zero(decimals);
    return pointed(static_cast<std::uint64_t>(scaled), decimals, std::signbit(number));
}

QString formatIntNumber(int value, int width, FormatFlags)
{
    return QString::number(value).rightJustified(std::min(width, kWidestInt));
}

QString sToQs(const std::string& text)
{
    return QString::fromStdString(text);
}

QDateTime secondToQDateTime(int seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds);
}

int qDateTimeToSecond(QDateTime dateTime)
{
    if (!dateTime.isValid())
        return 0;
    constexpr qint64 kEarliest = std::numeric_limits<int>::min();
    constexpr qint64 kLatest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(dateTime.toSecsSinceEpoch(), kEarliest, kLatest));
}

} // namespace WQ
