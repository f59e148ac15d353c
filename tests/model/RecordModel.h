#pragma once

#include "model/ModelText.h"

#include <string>

namespace model {

/// A settings record with its fields' defaults, in record order.
Json emptySetting();

/// @p fields over the defaults.
Json settingOf(const Json& fields);

Json defaultSetting();
Json defaultOrderSetting(int trader, int orderType);
std::string settingText(const Json& setting);

} // namespace model
