#include "replay/Expectation.h"

#include <algorithm>

namespace replay {

namespace {

/// Where a value stands, from the outermost key on.
std::string memberPath(const std::string& path, const std::string& key)
{
    return path.empty() ? key : path + '.' + key;
}

std::string elementPath(const std::string& path, std::size_t index)
{
    return path + '[' + std::to_string(index) + ']';
}

bool isDeeperThan(const Json& value, int levels)
{
    return value.is_structured() && std::any_of(value.begin(), value.end(), [levels](const Json& inner) {
               return levels == 0 || isDeeperThan(inner, levels - 1);
           });
}

// Writing takes stack for every level, and a file may nest as deep as it is long. Texts that are no UTF-8 are written
// all the same.
std::string textOf(const Json& value)
{
    constexpr int kMostLevels = 100;
    if (isDeeperThan(value, kMostLevels))
        return "(nested too deep)";
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

// Signed and unsigned integers alone would compare by their bits.
bool isSame(const Json& expected, const Json& actual)
{
    if (expected.is_number() && actual.is_number() && expected.get<double>() != actual.get<double>())
        return false;
    return expected == actual;
}

class Comparison
{
public:
    void compare(const Json& expected, const Json& actual, const std::string& path)
    {
        if (expected.is_object() && actual.is_object())
            compareMembers(expected, actual, path);
        else if (expected.is_array() && actual.is_array())
            compareElements(expected, actual, path);
        else if (!isSame(expected, actual))
            report(path, textOf(expected), textOf(actual));
    }

    std::vector<std::string> found;

private:
    void compareMembers(const Json& expected, const Json& actual, const std::string& path)
    {
        for (const auto& [key, value] : expected.items()) {
            const auto member = actual.find(key);
            if (member == actual.end())
                report(memberPath(path, key), textOf(value), "nothing");
            else
                compare(value, *member, memberPath(path, key));
        }
    }

    void compareElements(const Json& expected, const Json& actual, const std::string& path)
    {
        const std::size_t longer = std::max(expected.size(), actual.size());
        for (std::size_t i = 0; i < longer; ++i) {
            if (i >= actual.size())
                report(elementPath(path, i), textOf(expected[i]), "nothing");
            else if (i >= expected.size())
                report(elementPath(path, i), "nothing", textOf(actual[i]));
            else
                compare(expected[i], actual[i], elementPath(path, i));
        }
    }

    void report(const std::string& path, const std::string& expected, const std::string& actual)
    {
        found.push_back((path.empty() ? "" : path + ": ") + "expected " + expected + ", got " + actual);
    }
};

} // namespace

std::vector<std::string> differences(const Json& expected, const Json& actual)
{
    Comparison comparison;
    comparison.compare(expected, actual, std::string());
    return comparison.found;
}

} // namespace replay
