#pragma once

#include "semantics/PriceTypeListing.h"
#include "semantics/RuleText.h"

#include <OrderParamTable_mini/semantics/OrderState.h>

/// The states and modules that the tests of price types go through.
namespace listing {

inline const std::vector<int> kBrokers{1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 1001, 1002};
constexpr int kFirstIdentity = -2;
constexpr int kLastIdentity = 60;

struct Modules
{
    bool sloSell;
    bool stockMarket;
    TC::ModuleQuery query;
};

inline Modules modules(bool sloSell, bool stockMarket)
{
    std::set<TC::FeatureModule> on;
    if (sloSell)
        on.insert(TC::FeatureModule::SloSellOnlyFixedPrice);
    if (stockMarket)
        on.insert(TC::FeatureModule::StockMultiMarketPrice);
    return {sloSell, stockMarket, ruletext::modulesOn(on)};
}

inline const std::vector<Modules>& allModules()
{
    static const std::vector<Modules> all{modules(false, false), modules(true, false), modules(false, true),
                                          modules(true, true)};
    return all;
}

inline TC::OrderState state(int identity, int broker, int trader = 1, int order = 0, int operation = -1,
                            bool autoBook = false)
{
    return {identity,
            ttservice::ENVBrokerType(broker),
            ttservice::ENvTraderType(trader),
            ttservice::EOrderType(order),
            ttservice::EOperationType(operation),
            autoBook};
}

inline Case caseOf(const TC::OrderState& s, int flags, int market, const Modules& m)
{
    return {s.identity, s.broker, s.trader, s.order, s.operation, s.autoBook, flags, market, m.sloSell, m.stockMarket};
}

} // namespace listing
