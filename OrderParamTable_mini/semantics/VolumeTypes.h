#pragma once

#include <OrderParamTable_mini/semantics/ComboEntries.h>
#include <OrderParamTable_mini/semantics/FeatureModules.h>
#include <OrderParamTable_mini/semantics/OrderState.h>

namespace TC {

/// Whether the broker type has a volume-type cell.
bool hasBaseVolume(ttservice::ENVBrokerType broker);

/// What the volume-type cell offers after construction.
ComboEntries initialVolumeTypes(const OrderState& state);

/// Whether the volume types follow the operation on this table.
bool hasVolumeTypesByOperation(const OrderState& state);

/// The volume types of the state's operation. Once one is chosen the ask side is not offered, whatever it is.
const ComboEntries& operationVolumeTypes(const OrderState& state);

/// Shares in whole lots of 100, the remainder dropped toward zero.
constexpr int wholeLots(int shares)
{
    return shares / 100 * 100;
}

/// Whether the algorithms may randomise volumes.
bool mayRandomiseVolume(const OrderState& state, const ModuleQuery& isModuleOn);

} // namespace TC
