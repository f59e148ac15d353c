#pragma once

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <functional>
#include <vector>

namespace faults {

using TableCall = std::function<void(TC::COrderParamBaseTable&)>;

/// Everything that makes any table send events, to be called one after the other.
std::vector<TableCall> publicCalls();

/// What a host and a person can see of any table.
QString seen(TC::COrderParamBaseTable& table);

} // namespace faults
