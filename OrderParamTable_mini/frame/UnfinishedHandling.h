#pragma once

#include <OrderParamTable_mini/semantics/ComboEntries.h>
#include <OrderParamTable_mini/semantics/OrderState.h>

namespace TC {

/// How orders that stay unfinished may be placed again: entries with the price type, -1 for leaving them.
ComboEntries unfinishedOrderHandling(const OrderState& state);

} // namespace TC
