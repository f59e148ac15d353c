#pragma once

#include <functional>

namespace TC {

/// The feature modules that the tables ask for. A module that is switched off hides or narrows a feature.
enum class FeatureModule {
    ThirdAlgorithm,        ///< the mode button of order type 3
    MultiMarketPrice,      ///< wider task dialogs
    StockMultiMarketPrice, ///< market-order price types by market family
    SloSellOnlyFixedPrice, ///< securities-lending sells at a specified price alone
    ComposeFullPriceTypes, ///< price types of composite tables
    CommandRemark,         ///< the investment remark
    TriggerPrice,          ///< the trigger price
    StopProfitLoss,        ///< stop profit and stop loss
    RandomVolume,          ///< random single volumes
};

/// Group and name of a module, as the module control service knows it.
struct ModulePath
{
    const char* group;
    const char* name;
};

ModulePath modulePath(FeatureModule module);

/// Answers whether a module is switched on.
using ModuleQuery = std::function<bool(FeatureModule)>;

} // namespace TC
