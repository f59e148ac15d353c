#include "model/GridModel.h"

#include <algorithm>
#include <cctype>
#include <cmath>

namespace model {

namespace {

constexpr int kSecondsOfDay = 24 * 60 * 60;

int secondsOf(const std::string& clock)
{
    const std::vector<std::string> parts = split(clock, ':');
    return (toInt(parts.at(0)) * 60 + toInt(parts.at(1))) * 60 + toInt(parts.at(2));
}

/// Full-width digits and points as their ASCII twins.
std::string narrow(const std::string& text)
{
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::string wide = text.substr(at, 3);
        const bool isDigit = wide.size() == 3 && wide >= "\xEF\xBC\x90" && wide <= "\xEF\xBC\x99";
        if (!isDigit && wide != "\xEF\xBC\x8E") {
            result.push_back(text.at(at));
            continue;
        }
        result.push_back(isDigit ? static_cast<char>('0' + (wide.at(2) - '\x90')) : '.');
        at += 2;
    }
    return result;
}

/// Without the commas of well-formed thousands groups; nothing where they are not.
std::optional<std::string> ungrouped(const std::string& text)
{
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::size_t sign = !text.empty() && text.front() == '-' ? 1 : 0;
    const std::vector<std::string> groups = split(text.substr(sign, point - sign), ',');
    std::string digits = text.substr(0, sign);
    for (std::size_t group = 0; group < groups.size(); ++group) {
        const std::size_t length = groups.at(group).size();
        const bool isLong = groups.size() == 1 || length == 3 || (group == 0 && length >= 1 && length <= 3);
        if (!isLong)
            return {};
        digits += groups.at(group);
    }
    return digits + text.substr(point);
}

std::optional<double> typedNumber(const Json& value)
{
    if (value.is_number())
        return value.get<double>();
    const std::optional<std::string> digits = ungrouped(narrow(value.get<std::string>()));
    return digits && isNumber(*digits) ? std::optional<double>(toDouble(*digits)) : std::nullopt;
}

int indexOf(const Cell& cell, const Json& command)
{
    if (command.contains("index"))
        return command.at("index").get<int>();
    for (std::size_t entry = 0; entry < cell.entries.size(); ++entry) {
        const auto& [text, value] = cell.entries.at(entry);
        if (command.contains("value") ? command.at("value") == value : command.at("text") == text)
            return static_cast<int>(entry);
    }
    return -1;
}

bool fits(const Unit& unit, double value)
{
    const bool whole = unit.type != 2 || value == std::trunc(value);
    return whole && value >= unit.min && value <= unit.max;
}

std::optional<PersonEvent> number(Cell& cell, std::optional<double> value, bool& accepted)
{
    accepted = value && fits(cell.current(), *value);
    if (!accepted || *value == cell.value)
        return {};
    cell.value = *value;
    return PersonEvent{87, cell.id, 0, cell.shownText(), nullptr};
}

std::optional<PersonEvent> range(Cell& cell, double low, double high, bool& accepted)
{
    accepted = fits(cell.current(), low) && fits(cell.current(), high) && low <= high;
    if (!accepted || (low == cell.value && high == cell.high))
        return {};
    cell.value = low;
    cell.high = high;
    return PersonEvent{87, cell.id, 0, cell.shownText(), nullptr};
}

std::optional<PersonEvent> period(Cell& cell, int start, int end, bool& accepted)
{
    accepted = start < kSecondsOfDay && end < kSecondsOfDay;
    if (!accepted)
        return {};
    if (cell.rangeType == 1 && start == cell.start && end == cell.end)
        return {};
    cell.rangeType = 1;
    cell.start = start;
    cell.end = end;
    return PersonEvent{101, cell.id, 0, cell.shownText(), nullptr};
}

std::optional<PersonEvent> duration(Cell& cell, int seconds, bool& accepted)
{
    accepted = seconds >= 0 && seconds <= kSecondsOfDay;
    if (!accepted)
        return {};
    if (cell.rangeType == 0 && seconds == cell.elapse)
        return {};
    cell.rangeType = 0;
    cell.elapse = seconds;
    return PersonEvent{101, cell.id, 0, cell.shownText(), nullptr};
}

/// The one pattern that validates: a run of letters, digits, '-', white space, '&' and '*', or nothing.
bool isCode(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](unsigned char character) {
        return character < 0x80
            && (std::isalnum(character) || std::isspace(character) || character == '-' || character == '&'
                || character == '*');
    });
}

std::optional<PersonEvent> line(Cell& cell, const std::string& text, bool& accepted)
{
    accepted = cell.pattern.empty() || isCode(text);
    if (!accepted || text == cell.text)
        return {};
    cell.text = text;
    return PersonEvent{cell.kind == Kind::Line ? 102 : 87, cell.id, 0, text, nullptr};
}

std::optional<PersonEvent> choice(Cell& cell, int index)
{
    if (index == cell.index)
        return {};
    cell.index = index;
    const auto& [text, value] = cell.entries.at(static_cast<std::size_t>(index));
    return PersonEvent{73, cell.id, index, text, Json{{"variant", value}}};
}

bool hasUnit(const Cell& cell, const std::string& unit)
{
    return std::any_of(cell.units.begin(), cell.units.end(),
                       [&unit](const Unit& candidate) { return candidate.text == unit; });
}

/// Which keys of the command the editor of a cell of that kind understands.
bool understands(const Cell& cell, const Json& command)
{
    switch (cell.kind) {
    case Kind::Combo:
        return indexOf(cell, command) >= 0 && indexOf(cell, command) < static_cast<int>(cell.entries.size());
    case Kind::Number:
    case Kind::CheckNumber:
        return (!command.contains("unit") || hasUnit(cell, command.at("unit").get<std::string>()))
            && (!command.contains("checked") || cell.kind == Kind::CheckNumber)
            && (command.contains("value") || command.contains("unit") || command.contains("checked"));
    case Kind::Range:
        return command.contains("low");
    case Kind::Period:
        return command.contains("time") || command.contains("elapse");
    case Kind::Line:
    case Kind::Text:
        return command.contains("text");
    }
    return false;
}

} // namespace

bool GridModel::canEdit(const Json& command) const
{
    const Cell* cell = find(command.at("cell").get<int>());
    return cell && !hidden && enabled && cell->editable && shown(*cell) && understands(*cell, command);
}

std::optional<PersonEvent> GridModel::commitUnit(Cell& cell, const std::string& unit)
{
    if (cell.current().text == unit)
        return {};
    setItemUnit(cell.id, unit);
    return PersonEvent{118, cell.id, 0, unit, nullptr};
}

std::optional<PersonEvent> GridModel::commitCheck(Cell& cell, bool checked)
{
    if (cell.checked == checked)
        return {};
    cell.checked = checked;
    return PersonEvent{118, cell.id, checked ? 1 : 0, cell.checkText, nullptr};
}

std::optional<PersonEvent> GridModel::commitValue(Cell& cell, const Json& command, bool& accepted)
{
    if (cell.kind == Kind::Combo)
        return choice(cell, indexOf(cell, command));
    if (command.contains("value"))
        return number(cell, typedNumber(command.at("value")), accepted);
    if (command.contains("low"))
        return range(cell, doubleOf(command.at("low")), doubleOf(command.at("high")), accepted);
    if (command.contains("time")) {
        return period(cell, secondsOf(command.at("time").at(0).get<std::string>()),
                      secondsOf(command.at("time").at(1).get<std::string>()), accepted);
    }
    if (command.contains("elapse"))
        return duration(cell, command.at("elapse").get<int>(), accepted);
    if (command.contains("text"))
        return line(cell, command.at("text").get<std::string>(), accepted);
    return {};
}

} // namespace model
