#pragma once

#include "replay/Json.h"

#include <string>

namespace TC {
class CBaseTaskParamWidget;
class CHpfBasketTaskParamWidget;
} // namespace TC

namespace replay {

/// What a task dialog shows, the table in it as stateOf() says it. @p className is the name it is reported by.
Json dialogState(const TC::CBaseTaskParamWidget& dialog, const std::string& className);

/// A basket has no table of its own to show; it counts as expanded while its next click shows the second view.
Json dialogState(const TC::CHpfBasketTaskParamWidget& dialog, const std::string& className);

} // namespace replay
