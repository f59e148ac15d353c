#pragma once

#include <initializer_list>

namespace support {

namespace modules {
constexpr char kAlgorithm3[] = "mdl_order/mdl_order_algorithm3";
constexpr char kCommandRemark[] = "mdl_order/mdl_order_command_remark";
constexpr char kComposeFullPriceType[] = "mdl_order/mdl_order_compose_full_pricetype";
constexpr char kSloSellFixedPrice[] = "mdl_order/mdl_order_credit_opt_slosell_only_fixed_price";
constexpr char kStockMarketPrice[] = "mdl_order/mdl_order_stock_multi_market_price";
constexpr char kStopProfitLoss[] = "mdl_order/mdl_order_stop_profit_loss";
constexpr char kTriggerPrice[] = "mdl_order/mdl_order_trigger_price";
constexpr char kRandomVolume[] = "mdl_alg/mdl_alg_randvolume";
} // namespace modules

/// Switches exactly these feature modules on (an empty name is none), and all off again at the end of its scope.
class ModuleGuard
{
public:
    ModuleGuard(std::initializer_list<const char*> on);
    ~ModuleGuard();
    ModuleGuard(const ModuleGuard&) = delete;
    ModuleGuard& operator=(const ModuleGuard&) = delete;
};

/// Sets the user configuration's client mode, and 0 again at the end of its scope.
class ClientModeGuard
{
public:
    explicit ClientModeGuard(int mode);
    ~ClientModeGuard();
    ClientModeGuard(const ClientModeGuard&) = delete;
    ClientModeGuard& operator=(const ClientModeGuard&) = delete;
};

/// Sets the UI scale, and 1 again at the end of its scope.
class ScaleGuard
{
public:
    explicit ScaleGuard(double scale);
    ~ScaleGuard();
    ScaleGuard(const ScaleGuard&) = delete;
    ScaleGuard& operator=(const ScaleGuard&) = delete;
};

/// The user configuration says that the algorithm of that order type should be hinted at.
void sendAlgorithmHint(int orderType, bool hint);

} // namespace support
