#pragma once

#include "benchmarks/CostBaseline.h"

namespace bench {

/// Does what a host does with our cell table and our panel and counts allocations, layouts, paints and events. The same
/// operations without a visible change must cost no layout and no paint. Each operation runs between marks that
/// callgrind understands, so that the same run gives instruction counts.
Costs countCosts(long (*allocations)());

} // namespace bench
