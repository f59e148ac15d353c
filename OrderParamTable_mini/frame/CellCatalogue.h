#pragma once

#include <OrderParamTable_mini/semantics/ComboEntries.h>
#include <OrderParamTable_mini/semantics/FeatureModules.h>
#include <OrderParamTable_mini/semantics/OrderState.h>

namespace WQ {
class CMultiParamsTable;
}

namespace TC {

/// Adds the cells that a table of that state has, in the order of display. @p priceTypes are the entries of the
/// price-type cell, which is left out when they are none.
void addCells(WQ::CMultiParamsTable& table, const OrderState& state, ComboEntries& priceTypes,
              const ModuleQuery& isModuleOn);

/// Adds the cell of the investment remark.
void addRemarkCell(WQ::CMultiParamsTable& table);

} // namespace TC
