#include "replay/PersonLog.h"

#include "replay/Numbers.h"
#include "replay/Values.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"

#include <WQ/EventNumbers.h>

#include <cmath>
#include <iterator>

namespace replay {

namespace {

namespace events = WQ::events;

using WQ::CellItem;
using WQ::CellKind;
using WQ::CellModel;
using WQ::PersonEvent;

/// What was done, without its object; null when it cannot be said.
using Deed = Json (*)(const PersonEvent& event, const CellModel* cells);

Json click(const PersonEvent& event, const CellModel*)
{
    return {{"do", "click"}, {"button", event.a}};
}

Json filter(const PersonEvent&, const CellModel* cells)
{
    if (!cells)
        return nullptr;
    return {{"do", "filter"}, {"cells", written(cells->visibleSet())}};
}

Json filterReset(const PersonEvent&, const CellModel*)
{
    return {{"do", "filterReset"}};
}

/// All digits; a whole number without a point, as a person writes it.
Json typed(double value)
{
    constexpr double kLargestExact = 9007199254740992.0;
    if (std::abs(value) <= kLargestExact && std::trunc(value) == value)
        return static_cast<qint64>(value);
    return numberJson(value);
}

Json edited(const CellItem& cell)
{
    return {{"do", "edit"}, {"cell", cell.id()}};
}

Json choice(const PersonEvent& event, const CellItem& cell)
{
    Json command = edited(cell);
    command["index"] = event.b;
    return command;
}

Json text(const PersonEvent& event, const CellItem& cell)
{
    Json command = edited(cell);
    command["text"] = written(event.text);
    return command;
}

Json number(const PersonEvent&, const CellItem& cell)
{
    Json command = edited(cell);
    command["value"] = typed(cell.number());
    return command;
}

Json range(const PersonEvent&, const CellItem& cell)
{
    const auto& held = static_cast<const WQ::RangeCell&>(cell);
    Json command = edited(cell);
    command["low"] = typed(held.low());
    command["high"] = typed(held.high());
    return command;
}

Json period(const PersonEvent&, const CellItem& cell)
{
    const auto& held = static_cast<const WQ::PeriodCell&>(cell);
    const QString format = QStringLiteral("HH:mm:ss");
    Json command = edited(cell);
    if (held.rangeType() == WQ::TimeRangeDuration)
        command["elapse"] = held.elapse();
    else
        command["time"] = {written(held.start().toString(format)), written(held.end().toString(format))};
    return command;
}

Json unit(const PersonEvent& event, const CellItem& cell)
{
    Json command = edited(cell);
    command["unit"] = written(event.text);
    return command;
}

/// The event of a check box and that of a unit differ in their texts alone. Where these are the same, the command says
/// both: what stands as it should is not done again.
Json unitOrCheck(const PersonEvent& event, const CellItem& cell)
{
    Json command = edited(cell);
    const bool isCheck = event.text == cell.checkText();
    if (!isCheck || event.text == cell.unit())
        command["unit"] = written(cell.unit());
    if (isCheck)
        command["checked"] = cell.isChecked();
    return command;
}

struct CellDeed
{
    int event;
    CellKind kind;
    Json (*say)(const PersonEvent& event, const CellItem& cell);
};

// clang-format off
constexpr CellDeed kCellDeeds[] = {
    {events::kEntryChosen,          CellKind::Combo,       choice},
    {events::kNumberCommitted,      CellKind::Number,      number},
    {events::kNumberCommitted,      CellKind::CheckNumber, number},
    {events::kNumberCommitted,      CellKind::Range,       range},
    {events::kNumberCommitted,      CellKind::Text,        text},
    {events::kPeriodCommitted,      CellKind::TimePeriod,  period},
    {events::kLineCommitted,        CellKind::Line,        text},
    {events::kUnitOrCheckChanged,   CellKind::Number,      unit},
    {events::kUnitOrCheckChanged,   CellKind::CheckNumber, unitOrCheck},
};
// clang-format on

Json edit(const PersonEvent& event, const CellModel* cells)
{
    const CellItem* cell = cells ? cells->cell(event.a) : nullptr;
    for (const CellDeed& row : kCellDeeds) {
        if (cell && row.event == event.event && row.kind == cell->kind())
            return row.say(event, *cell);
    }
    return nullptr;
}

struct EventDeed
{
    int event;
    Deed say;
};

// clang-format off
constexpr EventDeed kEventDeeds[] = {
    {events::kButtonClicked,        click},
    {events::kEntryChosen,          edit},
    {events::kNumberCommitted,      edit},
    {events::kPeriodCommitted,      edit},
    {events::kLineCommitted,        edit},
    {events::kUnitOrCheckChanged,   edit},
    {events::kFilterApplied,        filter},
    {events::kFilterReset,          filterReset},
};
// clang-format on

} // namespace

Json personCommand(const std::string& on, const PersonEvent& event, const WQ::CMultiParamsTable* cells)
{
    const CellModel* model = cells ? &WQ::CMultiParamsTablePrivate::of(cells)->model() : nullptr;
    for (const EventDeed& row : kEventDeeds) {
        Json deed = row.event == event.event ? row.say(event, model) : Json();
        if (deed.is_null())
            continue;
        Json command = {{"do", deed["do"]}, {"on", on}};
        command.update(deed);
        return command;
    }
    return nullptr;
}

} // namespace replay
