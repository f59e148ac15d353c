#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace model {

using Json = nlohmann::ordered_json;

inline constexpr double kNoPrice = 1.7976931348623157e308;

/// Fixed decimals of the exact value, ties away from zero, no sign on what rounds to zero; the invalid text for what
/// is no finite price.
std::string fixedDecimals(double value, int decimals);

/// As a cell shows it: at least @p decimals, up to six when the value has them.
std::string shownNumber(double value, int decimals);

/// Digits after the point that a step asks for.
int decimalsOfStep(double step);

/// Pieces between the separators, empty ones kept.
std::vector<std::string> split(const std::string& text, char separator);

/// Base 10; what is no 32-bit number reads as 0.
int toInt(const std::string& text);

/// What is no number reads as 0.
double toDouble(const std::string& text);

/// Whether the whole text is a number.
bool isNumber(const std::string& text);

/// A double as commands and answers write it: "nan", "inf" and "-inf" as texts.
Json jsonOf(double value);
double doubleOf(const Json& value);

} // namespace model
