#include "model/RecordModel.h"

#include <array>
#include <ctime>

namespace model {

namespace {

// 'i' a whole number, 'd' a double, 'b' a bool
struct Field
{
    const char* name;
    char type;
};

// clang-format off
constexpr std::array<Field, 41> kFields = {{
    {"orderType", 'i'},    {"intField2", 'i'},   {"intField3", 'i'},   {"realField4", 'd'},  {"realField5", 'd'},
    {"intField6", 'i'},    {"intField7", 'i'},   {"realField8", 'd'},  {"realField9", 'd'},  {"intField10", 'i'},
    {"realField11", 'd'},  {"realField12", 'd'}, {"intField13", 'i'},  {"realField14", 'd'}, {"intField15", 'i'},
    {"intField16", 'i'},   {"intField17", 'i'},  {"intField18", 'i'},  {"validTimeStart", 'i'}, {"validTimeEnd", 'i'},
    {"intField21", 'i'},   {"intField22", 'i'},  {"intField23", 'i'},  {"realField24", 'd'}, {"intField25", 'i'},
    {"realField26", 'd'},  {"realField27", 'd'}, {"intField28", 'i'},  {"intField29", 'i'},  {"realField30", 'd'},
    {"intField31", 'i'},   {"realField32", 'd'}, {"realField33", 'd'}, {"realField34", 'd'}, {"flag35", 'b'},
    {"flag36", 'b'},       {"cellWord1", 'i'},   {"cellWord2", 'i'},   {"cellWord3", 'i'},   {"cellWord4", 'i'},
    {"cellWord5", 'i'},
}};

// The record's field that each item of the text shows, counted from 1.
constexpr std::array<int, 41> kItems = {
    1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21,
    22, 23, 14, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 41, 39, 40,
};
// clang-format on

int secondsOfToday(int hour, int minute)
{
    const std::time_t now = std::time(nullptr);
    std::tm day = *std::localtime(&now);
    day.tm_hour = hour;
    day.tm_min = minute;
    day.tm_sec = 0;
    return static_cast<int>(std::mktime(&day));
}

std::string itemText(const Json& setting, const Field& field)
{
    const Json& value = setting.at(field.name);
    switch (field.type) {
    case 'd':
        return fixedDecimals(doubleOf(value), 3);
    case 'b':
        return value.get<bool>() ? "1" : "0";
    default:
        return std::to_string(value.get<int>());
    }
}

Json makeEmptySetting()
{
    Json setting;
    for (const Field& field : kFields)
        setting[field.name] = field.type == 'd' ? Json(0.0) : field.type == 'b' ? Json(false) : Json(0);
    return setting;
}

} // namespace

Json emptySetting()
{
    static const Json kEmpty = makeEmptySetting();
    return kEmpty;
}

Json settingOf(const Json& fields)
{
    Json setting = emptySetting();
    setting.update(fields);
    return setting;
}

Json defaultSetting()
{
    return settingOf({{"orderType", 0},
                      {"intField2", 0},
                      {"intField3", 5},
                      {"realField4", 30.0},
                      {"realField5", 30.0},
                      {"intField7", 0},
                      {"realField8", 5.0},
                      {"realField9", 0.05},
                      {"intField13", 10},
                      {"realField14", 0.2},
                      {"intField15", 1},
                      {"intField16", 500000},
                      {"intField17", 1},
                      {"intField18", 1800},
                      {"validTimeStart", secondsOfToday(9, 30)},
                      {"validTimeEnd", secondsOfToday(15, 0)},
                      {"intField21", 1},
                      {"intField23", 1},
                      {"realField24", 0.1},
                      {"intField25", -1}});
}

Json defaultOrderSetting(int trader, int orderType)
{
    Json setting = settingOf({{"orderType", orderType},
                              {"cellWord1", 0x7100003},
                              {"cellWord2", 0x6103FFF},
                              {"cellWord4", 0x4000080},
                              {"cellWord5", 0x4801889}});
    if (trader == 1 || trader == 2 || trader == 4)
        setting.update({{"intField3", 5}, {"realField9", 0.05}, {"realField11", 1.0}, {"intField13", 10}});
    if (trader == 1 || trader == 4) {
        setting.update({{"realField4", 30.0},
                        {"realField5", 30.0},
                        {"intField6", 20},
                        {"realField14", trader == 1 ? 0.3 : 0.5},
                        {"intField15", 100},
                        {"intField16", 100000}});
    }
    if (trader == 2) {
        setting.update({{"realField4", 1.0},
                        {"realField5", 1.0},
                        {"intField6", 30},
                        {"realField14", 0.5},
                        {"intField15", 1},
                        {"intField16", 5}});
    }
    return setting;
}

std::string settingText(const Json& setting)
{
    std::string text;
    for (const int number : kItems)
        text += (text.empty() ? "" : "+") + itemText(setting, kFields.at(static_cast<std::size_t>(number) - 1));
    return text;
}

} // namespace model
