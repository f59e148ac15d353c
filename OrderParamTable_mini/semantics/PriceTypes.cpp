#include <OrderParamTable_mini/semantics/PriceTypes.h>

#include <OrderParamTable_mini/semantics/BrokerGroups.h>
#include <OrderParamTable_mini/semantics/IdentitySets.h>

namespace TC {

using namespace ttservice;

namespace {

// clang-format off
constexpr EntryRow kBookLevels[] = {
    {u"卖⑤价",  PRTP_SELL5}, {u"卖④价", PRTP_SELL4}, {u"卖③价", PRTP_SELL3}, {u"卖②价", PRTP_SELL2},
    {u"卖①价",  PRTP_SELL1}, {u"最新价", PRTP_LATEST}, {u"买①价", PRTP_BUY1}, {u"买②价", PRTP_BUY2},
    {u"买③价",  PRTP_BUY3},  {u"买④价", PRTP_BUY4},  {u"买⑤价", PRTP_BUY5},
};
constexpr EntryRow kOptionLevels[]  = {{u"卖①价", PRTP_SELL1}, {u"最新价", PRTP_LATEST}, {u"买①价", PRTP_BUY1}};
constexpr EntryRow kBestLevels[]    = {{u"卖①价", PRTP_SELL1}, {u"买①价", PRTP_BUY1}};
constexpr EntryRow kTenLevels[]     = {
    {u"卖⑤价", PRTP_SELL5}, {u"卖④价", PRTP_SELL4}, {u"卖③价", PRTP_SELL3}, {u"卖②价", PRTP_SELL2}, {u"卖①价", PRTP_SELL1},
    {u"买①价", PRTP_BUY1},  {u"买②价", PRTP_BUY2},  {u"买③价", PRTP_BUY3},  {u"买④价", PRTP_BUY4},  {u"买⑤价", PRTP_BUY5},
};
constexpr EntryRow kAskLevels[]     = {
    {u"最新价", PRTP_LATEST}, {u"卖⑤价", PRTP_SELL5}, {u"卖④价", PRTP_SELL4}, {u"卖③价", PRTP_SELL3},
    {u"卖②价", PRTP_SELL2},  {u"卖①价", PRTP_SELL1}, {u"买①价", PRTP_BUY1},
};
constexpr EntryRow kBidLevels[]     = {
    {u"最新价", PRTP_LATEST}, {u"卖①价", PRTP_SELL1}, {u"买①价", PRTP_BUY1}, {u"买②价", PRTP_BUY2},
    {u"买③价", PRTP_BUY3},   {u"买④价", PRTP_BUY4},  {u"买⑤价", PRTP_BUY5},
};
constexpr EntryRow kLatest[]        = {{u"最新价", PRTP_LATEST}};
constexpr EntryRow kAutoBook[]      = {{u"自动盘口", PRTP_AUTO_BOOK}};
constexpr EntryRow kSelfQueue[]     = {{u"挂单价", PRTP_SELF_QUEUE}};
constexpr EntryRow kCounterpart[]   = {{u"对手价", PRTP_COUNTERPART}};
constexpr EntryRow kPreClose[]      = {{u"昨收价", PRTP_PRE_CLOSE}};
constexpr EntryRow kAfterHours[]    = {{u"盘后定价", PRTP_AFTER_HOURS_FIX}};
constexpr EntryRow kSpecified[]     = {{u"指定价", PRTP_FIX}};
constexpr EntryRow kLimit[]         = {{u"限价", PRTP_FIX}};
constexpr EntryRow kModel[]         = {{u"模型价", PRTP_FIX}};

constexpr EntryRow kOptionLimitFok[] = {{u"限价即全成否则撤", PRTP_OPT_FIX_FOK}};
constexpr EntryRow kOptionMarket[]   = {
    {u"市价即成剩撤", PRTP_OPT_MARKET_FAK}, {u"市价即全成否则撤", PRTP_OPT_MARKET_FOK}, {u"市价剩转限价", PRTP_OPT_MARKET_TO_FIX},
};

// The best five levels with the rest cancelled are a price type of its own in each of the two market families, under one
// label.
constexpr EntryRow kMarket1[]  = {{u"最优五档即成剩撤", PRTP_SH_BEST5_CANCEL}, {u"最优五档即成剩转", PRTP_SH_BEST5_TO_FIX}};
constexpr EntryRow kMarket2[]  = {
    {u"最优五档即成剩撤", PRTP_SZ_BEST5_CANCEL}, {u"即成剩撤", PRTP_SZ_FAK}, {u"全额成交或撤", PRTP_SZ_FOK},
    {u"本方最优价", PRTP_SZ_SELF_BEST}, {u"对手最优价", PRTP_SZ_COUNTERPART_BEST},
};
constexpr EntryRow kMarket3[]  = {
    {u"最优五档即成剩撤", PRTP_SH_BEST5_CANCEL}, {u"最优五档即成剩转", PRTP_SH_BEST5_TO_FIX},
    {u"本方最优价", PRTP_SZ_SELF_BEST}, {u"对手最优价", PRTP_SZ_COUNTERPART_BEST},
};
constexpr EntryRow kMarket45[] = {{u"最优五档即成剩撤", PRTP_SZ_BEST5_CANCEL}};
// clang-format on

constexpr int kInitialFlags = PTF_AutoBook | PTF_Unused | PTF_OwnAndOther | PTF_PreClose | PTF_BookLevels;
constexpr int kInitialMarket = 5;
constexpr int kComposeFlags = PTF_AutoBook | PTF_Unused | PTF_OwnAndOther | PTF_BookLevels;
constexpr int kMarketOfAfterHours = 3;
constexpr IntSet kInitialEmptyBrokers{1, 5};
constexpr IntSet kTenLevelBrokers{1001, 1002, 10};
constexpr IntSet kPreCloseComposeTraders{4, 4096};

// Built once a process and shared by every table.
template <const auto& rows>
const ComboEntries& shared()
{
    static const ComboEntries entries(rows);
    return entries;
}

const ComboEntries& fixedPriceEntry(const OrderState& state)
{
    static const ComboEntries none;
    if (state.identity < kTypedPriceTablesEnd && !kTablesWithoutTypedPrice.contains(state.identity))
        return state.broker == BROKER_TYPE_OPTION ? shared<kLimit>() : shared<kSpecified>();
    return kModelPriceTables.contains(state.identity) ? shared<kModel>() : none;
}

bool isPreCloseOffered(const OrderState& state)
{
    if (state.trader == TRADER_TYPE_1)
        return state.broker == BROKER_TYPE_STOCK && kPreCloseTablesOfTrader1.contains(state.identity);
    return state.trader == TRADER_TYPE_4 && kStockBrokersOfTrader4.contains(state.broker)
        && kPreCloseTablesOfTrader4.contains(state.identity);
}

void appendSelected(ComboEntries& entries, const OrderState& state, int flags)
{
    if ((flags & PTF_AutoBook) && state.autoBook)
        entries += shared<kAutoBook>();
    if (flags & PTF_OwnAndOther) {
        if (state.broker != BROKER_TYPE_OPTION)
            entries += shared<kSelfQueue>();
        entries += shared<kCounterpart>();
    }
    if ((flags & PTF_PreClose) && isPreCloseOffered(state))
        entries += shared<kPreClose>();
    if (flags & PTF_BookLevels)
        entries += bookLevelEntries(state.broker);
    else if (flags & PTF_AskLevels)
        entries += shared<kAskLevels>();
    else if (flags & PTF_BidLevels)
        entries += shared<kBidLevels>();
}

void appendMarketFamily(ComboEntries& entries, int market)
{
    switch (market) {
    case 1:
        entries += shared<kMarket1>();
        break;
    case 2:
        entries += shared<kMarket2>();
        break;
    case 3:
        entries += shared<kMarket3>();
        break;
    case 4:
    case 5:
        entries += shared<kMarket45>();
        break;
    }
}

bool offersMarketOrders(const OrderState& state, const ModuleQuery& isModuleOn)
{
    return isModuleOn(FeatureModule::StockMultiMarketPrice) && !kTablesWithoutMarketOrders.contains(state.identity)
        && state.operation != OPT_SLO_SELL && state.order == ORDER_TYPE_NORMAL;
}

ComboEntries optionOrderTypes(int identity)
{
    ComboEntries entries = shared<kOptionLimitFok>();
    if (!kTablesWithoutOptionMarketOrders.contains(identity))
        entries += shared<kOptionMarket>();
    return entries;
}

} // namespace

bool isSpecifiedPriceOnly(const OrderState& state, const ModuleQuery& isModuleOn)
{
    return state.operation == OPT_SLO_SELL && isModuleOn(FeatureModule::SloSellOnlyFixedPrice);
}

const ComboEntries& specifiedPriceEntry()
{
    return shared<kSpecified>();
}

const ComboEntries& bookLevelEntries(ENVBrokerType broker)
{
    return broker == BROKER_TYPE_OPTION ? shared<kOptionLevels>() : shared<kBookLevels>();
}

bool appendPriceTypes(ComboEntries& entries, const OrderState& state, int flags, int market,
                      const ModuleQuery& isModuleOn)
{
    if (isSpecifiedPriceOnly(state, isModuleOn)) {
        entries += specifiedPriceEntry();
        return false;
    }
    entries += fixedPriceEntry(state);
    appendSelected(entries, state, flags);
    if (state.order == ORDER_TYPE_NORMAL && market == kMarketOfAfterHours && kAfterHoursTables.contains(state.identity))
        entries += shared<kAfterHours>();
    if (offersMarketOrders(state, isModuleOn))
        appendMarketFamily(entries, market);
    if (state.broker == BROKER_TYPE_OPTION)
        entries += optionOrderTypes(state.identity);
    return true;
}

ComboEntries initialPriceTypes(const OrderState& state, const ModuleQuery& isModuleOn)
{
    if (kInitialEmptyBrokers.contains(state.broker))
        return {};
    if (kTenLevelBrokers.contains(state.broker)) {
        return shared<kLatest>() + shared<kSelfQueue>() + shared<kCounterpart>() + fixedPriceEntry(state)
            + shared<kTenLevels>();
    }
    if (kHongKongBrokers.contains(state.broker))
        return shared<kLatest>() + shared<kCounterpart>() + fixedPriceEntry(state) + shared<kBestLevels>();
    if (state.broker == BROKER_TYPE_OPTION) {
        return shared<kLatest>() + shared<kCounterpart>() + fixedPriceEntry(state) + optionOrderTypes(state.identity)
            + shared<kBestLevels>();
    }
    ComboEntries entries;
    appendPriceTypes(entries, state, kInitialFlags, kInitialMarket, isModuleOn);
    return entries;
}

PriceTypeRebuild priceTypeRebuild(const OrderState& state, const ModuleQuery& isModuleOn)
{
    if (isSpecifiedPriceOnly(state, isModuleOn))
        return PriceTypeRebuild::SpecifiedOnly;
    if (kTablesWithBookLevelRebuild.contains(state.identity))
        return PriceTypeRebuild::BookLevels;
    if (kComposeStockTables.contains(state.identity) && !kHongKongBrokers.contains(state.broker))
        return PriceTypeRebuild::Compose;
    return PriceTypeRebuild::None;
}

ComboEntries composePriceTypes(const OrderState& state, const ModuleQuery& isModuleOn)
{
    ComboEntries entries;
    const bool orderListed = state.order == ORDER_TYPE_NORMAL || state.order == ORDER_TYPE_ALGORITHM;
    if (!isModuleOn(FeatureModule::ComposeFullPriceTypes) || !orderListed)
        return entries;
    const bool preClose = kPreCloseComposeTraders.contains(state.trader)
        && kComposeTablesWithPreClose.contains(state.identity) && state.broker == BROKER_TYPE_STOCK;
    appendPriceTypes(entries, state, kComposeFlags | (preClose ? PTF_PreClose : 0), kRebuildMarket, isModuleOn);
    return entries;
}

} // namespace TC
