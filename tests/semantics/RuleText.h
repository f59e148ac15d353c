#pragma once

#include <OrderParamTable_mini/semantics/ComboEntries.h>
#include <OrderParamTable_mini/semantics/FeatureModules.h>

#include <QString>

#include <climits>
#include <initializer_list>
#include <set>
#include <vector>

/// Helpers of the tests of rules: entries as one text, so that a failure prints two lists, and switched modules.
namespace ruletext {

/// "卖①价=4, 买①价=6"; a text without a value, or a value without a text, shows as "?".
inline QString text(const TC::ComboEntries& entries)
{
    QStringList parts;
    const int count = std::max(entries.texts.size(), entries.values.size());
    for (int i = 0; i < count; ++i) {
        parts << entries.texts.value(i, QStringLiteral("?")) + QLatin1Char('=')
                + (i < entries.values.size() ? entries.values.at(i).toString() : QStringLiteral("?"));
    }
    return parts.join(QLatin1String(", "));
}

inline QString u(const char16_t* text)
{
    return QString::fromUtf16(text);
}

/// A module service in which exactly these modules are on.
inline TC::ModuleQuery modulesOn(std::set<TC::FeatureModule> on)
{
    return [on = std::move(on)](TC::FeatureModule module) { return on.count(module) > 0; };
}

/// -200 to 200, the neighbours of what is known beyond, and the ends of int.
inline std::vector<int> manyIntegers()
{
    std::vector<int> integers{INT_MIN, INT_MIN + 1, -1002, -601, -600, INT_MAX - 1, INT_MAX};
    for (int i = -200; i <= 200; ++i)
        integers.push_back(i);
    for (const int i : {255, 256, 257, 512, 599, 600, 601, 1001, 1002, 1021, 4096, 65536 + 1})
        integers.push_back(i);
    return integers;
}

} // namespace ruletext
