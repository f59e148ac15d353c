#include <OrderParamTable_mini/frame/UnfinishedHandling.h>

#include <OrderParamTable_mini/semantics/BrokerGroups.h>
#include <OrderParamTable_mini/semantics/IdentitySets.h>

namespace TC {

using namespace ttservice;

namespace {

// clang-format off
constexpr EntryRow kFutureHandling[] = {
    {u"不处理", PRTP_NONE}, {u"按卖①价委托", PRTP_SELL1}, {u"按最新价委托", PRTP_LATEST}, {u"按买①价委托", PRTP_BUY1},
    {u"按挂单价委托", PRTP_SELF_QUEUE}, {u"按对手价委托", PRTP_COUNTERPART},
};
constexpr EntryRow kLeave[] = {{u"不处理", PRTP_NONE}};
constexpr EntryRow kBestLevelHandling[] = {
    {u"按卖①价委托", PRTP_SELL1}, {u"按最新价委托", PRTP_LATEST}, {u"按买①价委托", PRTP_BUY1},
    {u"按对手价委托", PRTP_COUNTERPART},
};
constexpr EntryRow kOptionLimitHandling[] = {{u"按限价即全成否则撤委托", PRTP_OPT_FIX_FOK}};
constexpr EntryRow kOptionMarketHandling[] = {
    {u"按市价即成剩撤委托", PRTP_OPT_MARKET_FAK}, {u"按市价即全成否则撤委托", PRTP_OPT_MARKET_FOK},
    {u"按市价剩转限价委托", PRTP_OPT_MARKET_TO_FIX},
};
constexpr EntryRow kBookHandling[] = {
    {u"不处理", PRTP_NONE},
    {u"按卖⑤价委托", PRTP_SELL5}, {u"按卖④价委托", PRTP_SELL4}, {u"按卖③价委托", PRTP_SELL3},
    {u"按卖②价委托", PRTP_SELL2}, {u"按卖①价委托", PRTP_SELL1}, {u"按最新价委托", PRTP_LATEST},
    {u"按买①价委托", PRTP_BUY1},  {u"按买②价委托", PRTP_BUY2},  {u"按买③价委托", PRTP_BUY3},
    {u"按买④价委托", PRTP_BUY4},  {u"按买⑤价委托", PRTP_BUY5},
    {u"按挂单价委托", PRTP_SELF_QUEUE}, {u"按对手价委托", PRTP_COUNTERPART},
};
constexpr EntryRow kPreCloseHandling[] = {{u"按昨收价委托", PRTP_PRE_CLOSE}};

constexpr IntSet kPreCloseTraders{1, 4};
// clang-format on

bool isPreCloseOffered(const OrderState& state)
{
    return kPreCloseTraders.contains(state.trader) && state.broker == BROKER_TYPE_STOCK
        && kTablesWithPreCloseHandling.contains(state.identity);
}

ComboEntries optionHandling(int identity)
{
    static const ComboEntries limit = ComboEntries(kLeave) + ComboEntries(kOptionLimitHandling);
    static const ComboEntries levels(kBestLevelHandling);
    static const ComboEntries withoutMarket = limit + levels;
    static const ComboEntries withMarket = limit + ComboEntries(kOptionMarketHandling) + levels;
    return kTablesWithoutOptionMarketOrders.contains(identity) ? withoutMarket : withMarket;
}

} // namespace

ComboEntries unfinishedOrderHandling(const OrderState& state)
{
    static const ComboEntries futures(kFutureHandling);
    static const ComboEntries hongKong = ComboEntries(kLeave) + ComboEntries(kBestLevelHandling);
    static const ComboEntries book(kBookHandling);
    static const ComboEntries bookAndPreClose = book + ComboEntries(kPreCloseHandling);
    if (kFutureBrokers.contains(state.broker))
        return futures;
    if (kHongKongBrokers.contains(state.broker))
        return hongKong;
    if (state.broker == BROKER_TYPE_OPTION)
        return optionHandling(state.identity);
    return isPreCloseOffered(state) ? bookAndPreClose : book;
}

} // namespace TC
