#include <OrderParamTable_mini/semantics/FeatureModules.h>

#include <array>
#include <cstddef>

namespace TC {

namespace {

struct ModuleRow
{
    FeatureModule module;
    ModulePath path;
};

// clang-format off
constexpr std::array<ModuleRow, 9> kModules = {{
    {FeatureModule::ThirdAlgorithm,        {"mdl_order", "mdl_order_algorithm3"}},
    {FeatureModule::MultiMarketPrice,      {"mdl_order", "mdl_order_multi_market_price"}},
    {FeatureModule::StockMultiMarketPrice, {"mdl_order", "mdl_order_stock_multi_market_price"}},
    {FeatureModule::SloSellOnlyFixedPrice, {"mdl_order", "mdl_order_credit_opt_slosell_only_fixed_price"}},
    {FeatureModule::ComposeFullPriceTypes, {"mdl_order", "mdl_order_compose_full_pricetype"}},
    {FeatureModule::CommandRemark,         {"mdl_order", "mdl_order_command_remark"}},
    {FeatureModule::TriggerPrice,          {"mdl_order", "mdl_order_trigger_price"}},
    {FeatureModule::StopProfitLoss,        {"mdl_order", "mdl_order_stop_profit_loss"}},
    {FeatureModule::RandomVolume,          {"mdl_alg",   "mdl_alg_randvolume"}},
}};
// clang-format on

constexpr bool rowsStandInOrder()
{
    for (std::size_t i = 0; i < kModules.size(); ++i) {
        if (std::size_t(kModules[i].module) != i)
            return false;
    }
    return true;
}
static_assert(rowsStandInOrder(), "modulePath() finds a row by its module's number");

} // namespace

ModulePath modulePath(FeatureModule module)
{
    return kModules[std::size_t(module)].path;
}

} // namespace TC
