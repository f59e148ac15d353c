#pragma once

#include <QString>
#include <QStringList>

#include <algorithm>
#include <initializer_list>
#include <vector>

inline bool oneOf(int value, std::initializer_list<int> values)
{
    return std::find(values.begin(), values.end(), value) != values.end();
}

/// What doResetPriceType() is asked with, and the table that it is asked of.
struct PriceTypeQuestion
{
    int id = 0;
    int brokerType = 0;
    int traderType = 0;
    bool autoBook = false;
    int orderType = 0;
    int operationType = -1;
    int flags = 0;
    int market = 0;
    bool sloSellModule = false;
    bool marketPriceModule = false;

    bool has(int flag) const
    {
        return (flags & flag) != 0;
    }
    bool onlyFixedPrice() const
    {
        return operationType == 21 && sloSellModule;
    }
    bool marketOrders(std::initializer_list<int> markets) const
    {
        return marketPriceModule && operationType != 21 && orderType == 0 && id != 22 && id != 24
            && oneOf(market, markets);
    }
};

using Q = PriceTypeQuestion;

struct OfferedPriceType
{
    const char* entry;
    bool (*offered)(const Q&);
};

// clang-format off
inline bool typesThePrice(const Q& q)
{
    return oneOf(q.id, {0, 1, 2, 3, 4, 5, 6, 11, 12, 13, 16, 31, 32, 33, 34});
}

inline bool askShort(const Q& q) { return q.has(32) && !q.has(16); }
inline bool bidShort(const Q& q) { return q.has(64) && !q.has(32) && !q.has(16); }
inline bool levels(const Q& q) { return q.has(16) && q.brokerType != 6; }
inline bool optionLevels(const Q& q) { return q.has(16) && q.brokerType == 6; }
inline bool optionMarketOrder(const Q& q) { return q.brokerType == 6 && q.id != 43; }
inline bool previousClose(const Q& q)
{
    return q.has(8)
        && ((q.traderType == 1 && q.brokerType == 2 && oneOf(q.id, {5, 15, 22, 31, 36}))
            || (q.traderType == 4 && (q.brokerType == 2 || q.brokerType == 3) && (q.id == 7 || q.id == 31)));
}

/// The rows of a price-type list in the order in which they may appear, each with the question that lets it in.
const std::vector<OfferedPriceType> kPriceTypeRows = {
    {"限价=11",             [](const Q& q) { return typesThePrice(q) && q.brokerType == 6; }},
    {"指定价=11",           [](const Q& q) { return typesThePrice(q) && q.brokerType != 6; }},
    {"模型价=11",           [](const Q& q) { return oneOf(q.id, {15, 17, 22, 30, 40}); }},
    {"自动盘口=15",         [](const Q& q) { return q.has(1) && q.autoBook; }},
    {"挂单价=13",           [](const Q& q) { return q.has(4) && q.brokerType != 6; }},
    {"对手价=14",           [](const Q& q) { return q.has(4); }},
    {"昨收价=16",           previousClose},
    {"卖⑤价=0",            levels},
    {"卖④价=1",            levels},
    {"卖③价=2",            levels},
    {"卖②价=3",            levels},
    {"卖①价=4",            [](const Q& q) { return levels(q) || optionLevels(q); }},
    {"最新价=5",            [](const Q& q) { return levels(q) || optionLevels(q); }},
    {"买①价=6",            [](const Q& q) { return levels(q) || optionLevels(q); }},
    {"买②价=7",            levels},
    {"买③价=8",            levels},
    {"买④价=9",            levels},
    {"买⑤价=10",           levels},
    {"最新价=5",            [](const Q& q) { return askShort(q) || bidShort(q); }},
    {"卖⑤价=0",            askShort},
    {"卖④价=1",            askShort},
    {"卖③价=2",            askShort},
    {"卖②价=3",            askShort},
    {"卖①价=4",            [](const Q& q) { return askShort(q) || bidShort(q); }},
    {"买①价=6",            [](const Q& q) { return askShort(q) || bidShort(q); }},
    {"买②价=7",            bidShort},
    {"买③价=8",            bidShort},
    {"买④价=9",            bidShort},
    {"买⑤价=10",           bidShort},
    {"盘后定价=49",         [](const Q& q) { return q.orderType == 0 && q.market == 3 && (q.id == 5 || q.id == 31); }},
    {"最优五档即成剩撤=42", [](const Q& q) { return q.marketOrders({1, 3}); }},
    {"最优五档即成剩转=43", [](const Q& q) { return q.marketOrders({1, 3}); }},
    {"最优五档即成剩撤=47", [](const Q& q) { return q.marketOrders({2, 4, 5}); }},
    {"即成剩撤=46",         [](const Q& q) { return q.marketOrders({2}); }},
    {"全额成交或撤=48",     [](const Q& q) { return q.marketOrders({2}); }},
    {"本方最优价=45",       [](const Q& q) { return q.marketOrders({2, 3}); }},
    {"对手最优价=44",       [](const Q& q) { return q.marketOrders({2, 3}); }},
    {"限价即全成否则撤=26", [](const Q& q) { return q.brokerType == 6; }},
    {"市价即成剩撤=27",     optionMarketOrder},
    {"市价即全成否则撤=28", optionMarketOrder},
    {"市价剩转限价=29",     optionMarketOrder},
};
// clang-format on

inline QStringList expectedPriceTypes(const Q& question)
{
    if (question.onlyFixedPrice())
        return {QStringLiteral("指定价=11")};
    QStringList entries;
    for (const OfferedPriceType& row : kPriceTypeRows) {
        if (row.offered(question))
            entries << QString::fromUtf8(row.entry);
    }
    return entries;
}
