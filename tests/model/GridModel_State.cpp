#include "model/GridModel.h"

namespace model {

namespace {

std::string clockText(int seconds)
{
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
    return buffer;
}

std::string numberText(const Unit& unit, double value)
{
    return shownNumber(value, unit.type == 2 ? 0 : unit.step.value_or(0) != 0 ? decimalsOfStep(*unit.step) : 2);
}

Json stepOf(const Unit& unit)
{
    return unit.step ? Json(*unit.step) : Json();
}

void addNumber(Json& state, const Cell& cell)
{
    const Unit& current = cell.current();
    state["value"] = cell.value;
    state["unit"] = current.text;
    state["min"] = current.min;
    state["max"] = current.max;
    state["step"] = stepOf(current);
    Json units = Json::array();
    for (const Unit& unit : cell.units) {
        units.push_back(
            {{"text", unit.text}, {"type", unit.type}, {"min", unit.min}, {"max", unit.max}, {"step", stepOf(unit)}});
    }
    state["units"] = std::move(units);
}

void addCombo(Json& state, const Cell& cell)
{
    Json entries = Json::array();
    for (const auto& [text, value] : cell.entries)
        entries.push_back(Json::array({text, value}));
    state["kind"] = "combo";
    state["entries"] = std::move(entries);
    state["index"] = cell.index;
    state["data"] = cell.data();
    state["text"] = cell.shownText();
}

} // namespace

std::string Cell::shownText() const
{
    switch (kind) {
    case Kind::Combo:
        return index < 0 ? std::string() : entries.at(static_cast<std::size_t>(index)).first;
    case Kind::Number:
    case Kind::CheckNumber:
        return numberText(current(), value);
    case Kind::Range:
        return numberText(current(), value) + text + numberText(current(), high);
    case Kind::Period:
        return clockText(start) + "-" + clockText(end);
    case Kind::Line:
    case Kind::Text:
        return text;
    }
    return {};
}

Json Cell::state() const
{
    Json state = {{"id", id}, {"label", label}, {"hidden", hidden}, {"editable", editable}};
    switch (kind) {
    case Kind::Combo:
        addCombo(state, *this);
        break;
    case Kind::Number:
        state["kind"] = "number";
        addNumber(state, *this);
        break;
    case Kind::CheckNumber:
        state["kind"] = "checkNumber";
        addNumber(state, *this);
        state["checked"] = checked;
        state["checkText"] = checkText;
        break;
    case Kind::Range:
        state.update({{"kind", "range"},
                      {"low", value},
                      {"high", high},
                      {"min", current().min},
                      {"max", current().max},
                      {"unit", current().text},
                      {"separator", text}});
        break;
    case Kind::Period:
        state.update(
            {{"kind", "timePeriod"}, {"start", clockText(start)}, {"end", clockText(end)}, {"rangeType", rangeType}});
        break;
    case Kind::Line:
        state.update({{"kind", "line"}, {"text", text}, {"pattern", pattern}, {"placeholder", placeholder}});
        break;
    case Kind::Text:
        state.update({{"kind", "text"}, {"text", text}, {"unit", current().text}});
        break;
    }
    return state;
}

Json GridModel::state() const
{
    Json list = Json::array();
    for (const Cell& cell : cells) {
        Json state = cell.state();
        state["shown"] = shown(cell);
        state["enabled"] = enabled;
        if (cell.kind == Kind::Period)
            state["elapse"] = timeElapse(cell.id);
        list.push_back(std::move(state));
    }
    return list;
}

} // namespace model
