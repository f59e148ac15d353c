#pragma once

#include "replay/Json.h"

#include "reference/toolkit/PersonEvents.h"

#include <string>

namespace WQ {
class CMultiParamsTable;
}

namespace replay {

/// The command that does once more what a person has done: "click", "edit", "filter" or "filterReset" on the object of
/// that name. Null for an event that no command causes (a double click) and for a cell that is not there any more.
///
/// @p cells is the cell table of the sender, null for a button. It is asked while what was committed still stands in
/// it, as it does for WQ::watchPersonEvents(): the event's text alone does not hold a duration, all digits of a number,
/// or the cells of a filter.
Json personCommand(const std::string& on, const WQ::PersonEvent& event, const WQ::CMultiParamsTable* cells);

} // namespace replay
