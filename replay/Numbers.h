#pragma once

#include "replay/Json.h"

#include <optional>

namespace replay {

/// A number as scripts and answers write it: what JSON has no literal for is the text "nan", "inf" or "-inf".
Json numberJson(double value);

/// The number that @p value is, written either way; nothing for anything else.
std::optional<double> numberOf(const Json& value);

} // namespace replay
