#include "replay/CellState.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "replay/Numbers.h"
#include "replay/Values.h"

#include <cmath>

namespace replay {

namespace {

using WQ::CellItem;
using WQ::CellKind;
using WQ::NumberUnit;

struct KindName
{
    CellKind kind;
    const char* name;
};

constexpr KindName kKindNames[] = {
    {CellKind::Combo, "combo"}, {CellKind::Number, "number"},         {CellKind::CheckNumber, "checkNumber"},
    {CellKind::Range, "range"}, {CellKind::TimePeriod, "timePeriod"}, {CellKind::Line, "line"},
    {CellKind::Text, "text"},
};

const char* nameOf(CellKind kind)
{
    for (const KindName& row : kKindNames) {
        if (row.kind == kind)
            return row.name;
    }
    return "";
}

/// Whole where the unit is, as long as a double holds every whole number.
Json unitNumber(const NumberUnit& unit, double value)
{
    constexpr double kLargestExact = 9007199254740992.0;
    if (unit.isWhole() && std::abs(value) <= kLargestExact && std::trunc(value) == value)
        return static_cast<qint64>(value);
    return numberJson(value);
}

Json givenStep(const NumberUnit& unit)
{
    return unit.hasStep ? unitNumber(unit, unit.step) : Json();
}

Json unitState(const NumberUnit& unit)
{
    Json json = Json::object();
    json["text"] = written(unit.text);
    json["type"] = unit.type;
    json["min"] = unitNumber(unit, unit.min);
    json["max"] = unitNumber(unit, unit.max);
    json["step"] = givenStep(unit);
    return json;
}

void addCombo(Json& json, const WQ::ComboCell& cell)
{
    Json& entries = json["entries"] = Json::array();
    for (int i = 0; i < cell.count(); ++i)
        entries.push_back(Json::array({written(cell.entryText(i)), written(cell.entryData(i))}));
    json["index"] = cell.currentIndex();
    json["data"] = written(cell.data());
    json["text"] = written(cell.text());
}

void addNumber(Json& json, const WQ::NumberCell& cell)
{
    const NumberUnit& current = cell.currentUnit();
    json["value"] = unitNumber(current, cell.number());
    json["unit"] = written(current.text);
    json["min"] = unitNumber(current, current.min);
    json["max"] = unitNumber(current, current.max);
    json["step"] = givenStep(current);
    Json& units = json["units"] = Json::array();
    for (const NumberUnit& unit : cell.units())
        units.push_back(unitState(unit));
}

void addCheckNumber(Json& json, const WQ::NumberCell& cell)
{
    addNumber(json, cell);
    json["checked"] = cell.isChecked();
    json["checkText"] = written(cell.checkText());
}

void addRange(Json& json, const WQ::RangeCell& cell)
{
    json["low"] = unitNumber(cell.limits(), cell.low());
    json["high"] = unitNumber(cell.limits(), cell.high());
    json["min"] = unitNumber(cell.limits(), cell.minimum());
    json["max"] = unitNumber(cell.limits(), cell.maximum());
    json["unit"] = written(cell.unit());
    json["separator"] = written(cell.separator());
}

void addPeriod(Json& json, const WQ::PeriodCell& cell)
{
    const QString format = QStringLiteral("HH:mm:ss");
    json["start"] = written(cell.start().toString(format));
    json["end"] = written(cell.end().toString(format));
    json["rangeType"] = written(cell.rangeType());
    json["elapse"] = cell.elapse();
}

void addLine(Json& json, const WQ::LineCell& cell)
{
    json["text"] = written(cell.text());
    json["pattern"] = written(cell.pattern());
    json["placeholder"] = written(cell.placeholder());
}

void addText(Json& json, const WQ::TextCell& cell)
{
    json["text"] = written(cell.text());
    json["unit"] = written(cell.unit());
}

void addByKind(Json& json, const CellItem& cell)
{
    switch (cell.kind()) {
    case CellKind::Combo:
        return addCombo(json, static_cast<const WQ::ComboCell&>(cell));
    case CellKind::Number:
        return addNumber(json, static_cast<const WQ::NumberCell&>(cell));
    case CellKind::CheckNumber:
        return addCheckNumber(json, static_cast<const WQ::NumberCell&>(cell));
    case CellKind::Range:
        return addRange(json, static_cast<const WQ::RangeCell&>(cell));
    case CellKind::TimePeriod:
        return addPeriod(json, static_cast<const WQ::PeriodCell&>(cell));
    case CellKind::Line:
        return addLine(json, static_cast<const WQ::LineCell&>(cell));
    case CellKind::Text:
        return addText(json, static_cast<const WQ::TextCell&>(cell));
    }
}

Json cellState(const WQ::CellModel& model, const CellItem& cell)
{
    Json json = Json::object();
    json["id"] = cell.id();
    json["kind"] = nameOf(cell.kind());
    json["label"] = written(cell.label());
    json["hidden"] = cell.isHidden();
    json["shown"] = model.isShown(cell);
    json["enabled"] = model.isEnabled();
    json["editable"] = cell.isEditable();
    addByKind(json, cell);
    return json;
}

} // namespace

Json cellStates(const WQ::CMultiParamsTable& table)
{
    const WQ::CellModel& model = WQ::CMultiParamsTablePrivate::of(&table)->model();
    Json cells = Json::array();
    for (int position = 0; position < model.cellCount(); ++position)
        cells.push_back(cellState(model, *model.itemAt(position)->cell()));
    return cells;
}

} // namespace replay
