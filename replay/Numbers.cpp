#include "replay/Numbers.h"

#include <cmath>
#include <limits>

namespace replay {

namespace {

constexpr const char* kNotANumber = "nan";
constexpr const char* kInfinity = "inf";
constexpr const char* kMinusInfinity = "-inf";

std::optional<double> namedNumber(const std::string& text)
{
    using Limits = std::numeric_limits<double>;
    if (text == kNotANumber)
        return Limits::quiet_NaN();
    if (text == kInfinity)
        return Limits::infinity();
    if (text == kMinusInfinity)
        return -Limits::infinity();
    return std::nullopt;
}

} // namespace

Json numberJson(double value)
{
    if (std::isnan(value))
        return kNotANumber;
    if (std::isinf(value))
        return value > 0 ? kInfinity : kMinusInfinity;
    return value;
}

std::optional<double> numberOf(const Json& value)
{
    if (value.is_number())
        return value.get<double>();
    if (value.is_string())
        return namedNumber(value.get_ref<const std::string&>());
    return std::nullopt;
}

} // namespace replay
