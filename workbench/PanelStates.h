#pragma once

#include "workbench/TourStops.h"

namespace TC {
class COrderParamBaseTable;
}

namespace workbench {

/// Does to a shown panel what a person would do to bring it into @p state.
void bringInto(TC::COrderParamBaseTable& table, PanelState state);

} // namespace workbench
