#include <WQ/Formatting.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
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

// A mantissa shifted left so far at most, times the largest power of ten, still fits: 53 + 7 + 67 bits.
constexpr int kMostLeftShift = 7;
// Shifted right by this much or more, the same product without the left shift is below a half: 53 + 67 bits.
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

/// Digits written from the end to the front. Room for the longest: 39 digits, point, sign.
class DigitBuffer
{
public:
    void put(char16_t character)
    {
        *--m_begin = character;
    }

    void putLow(std::uint64_t& number)
    {
        put(static_cast<char16_t>(u'0' + number % 10));
        number /= 10;
    }

    QString text() const
    {
        return QString(reinterpret_cast<const QChar*>(m_begin),
                       static_cast<int>(m_room.data() + m_room.size() - m_begin));
    }

private:
    std::array<char16_t, 48> m_room;
    char16_t* m_begin = m_room.data() + m_room.size();
};

/// @p scaled, a number times ten to the @p decimals, with its point.
QString pointed(Wide scaled, int decimals, bool negative)
{
    constexpr std::uint64_t kChunk = 1'000'000'000'000'000'000u;
    constexpr int kChunkDigits = 18;
    DigitBuffer digits;
    if (negative && scaled == 0)
        negative = false;
    int written = 0;
    const auto putDigit = [&](std::uint64_t& number) {
        if (decimals > 0 && written == decimals)
            digits.put(u'.');
        digits.putLow(number);
        ++written;
    };
    while (scaled >> 64 != 0) {
        auto low = static_cast<std::uint64_t>(scaled % kChunk);
        scaled /= kChunk;
        for (int i = 0; i < kChunkDigits; ++i)
            putDigit(low);
    }
    auto rest = static_cast<std::uint64_t>(scaled);
    while (rest != 0 || written <= decimals)
        putDigit(rest);
    if (negative)
        digits.put(u'-');
    return digits.text();
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
    if (parts.exponent > kMostLeftShift)
        return QString::number(number, 'f', decimals);
    const Wide product = parts.mantissa * kPowersOfTen[static_cast<std::size_t>(decimals)];
    Wide scaled = 0;
    if (parts.exponent >= 0)
        scaled = product << parts.exponent;
    else if (-parts.exponent < kRightShiftToZero)
        scaled = ((product >> (-parts.exponent - 1)) + 1) >> 1;
    return pointed(scaled, decimals, std::signbit(number));
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
