#pragma once

#include <nlohmann/json.hpp>

namespace replay {

/// Scripts, answers and states: JSON that keeps the order of its keys, so that an answer reads as it was written.
using Json = nlohmann::ordered_json;

} // namespace replay
