#include "model/ModelText.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace model {

namespace {

constexpr int kExactDigits = 1080; // no double needs more after the point

std::string exactDigits(double value)
{
    std::string text(1500, '\0');
    const int length = std::snprintf(text.data(), text.size(), "%.*f", kExactDigits, std::fabs(value));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

/// Adds one to the last digit of a decimal text, with its carries.
void incrementDigits(std::string& digits)
{
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        if (*digit == '.')
            continue;
        if (*digit != '9') {
            ++*digit;
            return;
        }
        *digit = '0';
    }
    digits.insert(digits.begin(), '1');
}

} // namespace

std::string fixedDecimals(double value, int decimals)
{
    if (!std::isfinite(value) || value == kNoPrice)
        return "非法值";
    std::string digits = exactDigits(value);
    const std::size_t point = digits.find('.');
    const bool up = digits.at(point + static_cast<std::size_t>(decimals) + 1) >= '5';
    digits.resize(decimals == 0 ? point : point + 1 + static_cast<std::size_t>(decimals));
    if (up)
        incrementDigits(digits);
    const bool zero = digits.find_first_not_of("0.") == std::string::npos;
    return value < 0 && !zero ? "-" + digits : digits;
}

std::string shownNumber(double value, int decimals)
{
    char buffer[400];
    std::snprintf(buffer, sizeof buffer, "%.*f", decimals > 6 ? decimals : 6, value);
    std::string text = buffer;
    if (text.find('.') == std::string::npos)
        return text;
    const std::size_t point = text.find('.');
    while (text.size() > point + 1 + static_cast<std::size_t>(decimals) && text.back() == '0')
        text.pop_back();
    if (text.back() == '.')
        text.pop_back();
    return text.find_first_not_of("-0.") == std::string::npos && text.front() == '-' ? text.substr(1) : text;
}

int decimalsOfStep(double step)
{
    int decimals = 0;
    for (double scaled = std::fabs(step); decimals < 6 && std::fabs(scaled - std::round(scaled)) > 1e-9; scaled *= 10)
        ++decimals;
    return decimals;
}

std::vector<std::string> split(const std::string& text, char separator)
{
    std::vector<std::string> pieces(1);
    for (const char character : text)
        if (character == separator)
            pieces.emplace_back();
        else
            pieces.back().push_back(character);
    return pieces;
}

int toInt(const std::string& text)
{
    if (text.empty())
        return 0;
    char* end = nullptr;
    errno = 0;
    const long long value = std::strtoll(text.c_str(), &end, 10);
    const bool fits =
        errno == 0 && value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max();
    return *end == '\0' && fits ? static_cast<int>(value) : 0;
}

bool isNumber(const std::string& text)
{
    if (text.empty() || text.find_first_not_of("+-.0123456789eE") != std::string::npos)
        return false;
    char* end = nullptr;
    std::strtod(text.c_str(), &end);
    return *end == '\0';
}

double toDouble(const std::string& text)
{
    return isNumber(text) ? std::strtod(text.c_str(), nullptr) : 0.0;
}

Json jsonOf(double value)
{
    if (std::isnan(value))
        return "nan";
    if (std::isinf(value))
        return value > 0 ? "inf" : "-inf";
    return value;
}

double doubleOf(const Json& value)
{
    if (!value.is_string())
        return value.get<double>();
    const std::string text = value.get<std::string>();
    if (text == "nan")
        return std::numeric_limits<double>::quiet_NaN();
    return text == "inf" ? std::numeric_limits<double>::infinity() : -std::numeric_limits<double>::infinity();
}

} // namespace model
