#pragma once

#include "model/ModelText.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace model {

/// What a table stands in: the services it asks, and the host that hears it.
struct World
{
    std::set<std::string> modules; ///< "group/module"
    int clientMode = 0;
    std::optional<std::int64_t> clock;

    std::vector<Json> events;
    int saves = 0;
    int reloads = 0;

    bool isOn(const std::string& module) const
    {
        return modules.count(module) > 0;
    }

    void hear(int event, int a, int b, const std::string& text, const Json& data = nullptr)
    {
        events.push_back(Json::array({event, a, b, text, data}));
    }

    std::int64_t now() const;
};

} // namespace model
