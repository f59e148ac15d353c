#pragma once

#include "replay/Json.h"

#include <string>
#include <vector>

namespace replay {

/// Where an answer differs from what is expected of it, a line each ("events[0][2]: expected 3, got 4"); none when it
/// is as expected. A key that an expected object leaves out, at any depth, is not compared; lists are compared whole;
/// numbers by their value, so that 1 and 1.0 are the same.
std::vector<std::string> differences(const Json& expected, const Json& actual);

} // namespace replay
