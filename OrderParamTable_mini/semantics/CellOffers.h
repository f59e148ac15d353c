#pragma once

#include <OrderParamTable_mini/semantics/FeatureModules.h>
#include <OrderParamTable_mini/semantics/OrderState.h>
#include <OrderParamTable_mini/semantics/OrderVocabulary.h>

namespace TC {

/// When the catalogue creates a cell.
enum class CellOffer {
    Never,        ///< not in the catalogue; a host may add it
    Always,       ///< in every table
    PriceTypes,   ///< where construction finds price types
    SuperPrice,   ///< not for Hong Kong accounts
    BaseVolume,   ///< by broker type
    RandomVolume, ///< where volumes may be randomised: a module, stock, trader type 1, some identities
    LimitPrice,   ///< by identity
    Remark,       ///< with its module
};
CellOffer cellOffer(int cell);

/// Whether a table of that state, as it is constructed, has a cell. @p hasPriceTypes: construction finds price types.
bool isCellOffered(int cell, const OrderState& state, bool hasPriceTypes, const ModuleQuery& isModuleOn);

/// Whether a cell is hidden as soon as it is created.
constexpr bool isCreatedHidden(int cell)
{
    return cell == OCF_LimitPrice;
}

} // namespace TC
