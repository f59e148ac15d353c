#pragma once

#include <QString>
#include <QStringList>
#include <QVarLengthArray>

#include <initializer_list>

/// The price-type catalogue as it is laid down: the entries of each selection as lists, written down a second time, so
/// that the rules are compared with something that does not share their code.
namespace listing {

struct Entry
{
    const char16_t* text;
    int value;
};
using Entries = QVarLengthArray<Entry, 32>;

struct Case
{
    int identity;
    int broker;
    int trader;
    int order;
    int operation;
    bool autoBook;
    int flags;
    int market;
    bool sloSellModule;
    bool stockMarketModule;
};

inline bool isOneOf(int value, std::initializer_list<int> values)
{
    for (const int v : values) {
        if (v == value)
            return true;
    }
    return false;
}

// clang-format off
constexpr Entry kSpecified   {u"指定价", 11};
constexpr Entry kLimit       {u"限价", 11};
constexpr Entry kModel       {u"模型价", 11};
constexpr Entry kAutoBook    {u"自动盘口", 15};
constexpr Entry kOwnQueue    {u"挂单价", 13};
constexpr Entry kCounterpart {u"对手价", 14};
constexpr Entry kPreClose    {u"昨收价", 16};
constexpr Entry kAfterHours  {u"盘后定价", 49};

constexpr Entry kLevels[] = {
    {u"卖⑤价", 0}, {u"卖④价", 1}, {u"卖③价", 2}, {u"卖②价", 3}, {u"卖①价", 4}, {u"最新价", 5},
    {u"买①价", 6}, {u"买②价", 7}, {u"买③价", 8}, {u"买④价", 9}, {u"买⑤价", 10}};
constexpr Entry kOptionLevels[] = {{u"卖①价", 4}, {u"最新价", 5}, {u"买①价", 6}};
constexpr Entry kAskShort[] = {
    {u"最新价", 5}, {u"卖⑤价", 0}, {u"卖④价", 1}, {u"卖③价", 2}, {u"卖②价", 3}, {u"卖①价", 4}, {u"买①价", 6}};
constexpr Entry kBidShort[] = {
    {u"最新价", 5}, {u"卖①价", 4}, {u"买①价", 6}, {u"买②价", 7}, {u"买③价", 8}, {u"买④价", 9}, {u"买⑤价", 10}};

constexpr Entry kMarket1[] = {{u"最优五档即成剩撤", 42}, {u"最优五档即成剩转", 43}};
constexpr Entry kMarket2[] = {
    {u"最优五档即成剩撤", 47}, {u"即成剩撤", 46}, {u"全额成交或撤", 48}, {u"本方最优价", 45}, {u"对手最优价", 44}};
constexpr Entry kMarket3[] = {
    {u"最优五档即成剩撤", 42}, {u"最优五档即成剩转", 43}, {u"本方最优价", 45}, {u"对手最优价", 44}};
constexpr Entry kMarket4And5[] = {{u"最优五档即成剩撤", 47}};

constexpr Entry kOptionFok {u"限价即全成否则撤", 26};
constexpr Entry kOptionMarkets[] = {{u"市价即成剩撤", 27}, {u"市价即全成否则撤", 28}, {u"市价剩转限价", 29}};
// clang-format on

template <std::size_t N>
void append(Entries& entries, const Entry (&rows)[N])
{
    entries.append(rows, int(N));
}

inline bool isSpecifiedOnly(const Case& c)
{
    return c.operation == 21 && c.sloSellModule;
}

inline void appendFixedPrice(Entries& entries, const Case& c)
{
    const bool isTypedPriceTable = c.identity < 35
        && !isOneOf(c.identity, {7, 8, 9, 10, 14, 15, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30});
    if (isTypedPriceTable)
        entries.append(c.broker == 6 ? kLimit : kSpecified);
    else if (isOneOf(c.identity, {15, 17, 22, 30, 40}))
        entries.append(kModel);
}

inline bool hasPreClose(const Case& c)
{
    const bool desk1 = c.trader == 1 && c.broker == 2 && isOneOf(c.identity, {5, 15, 22, 31, 36});
    const bool desk4 = c.trader == 4 && isOneOf(c.broker, {2, 3}) && isOneOf(c.identity, {7, 31});
    return (c.flags & 8) != 0 && (desk1 || desk4);
}

inline void appendLevels(Entries& entries, const Case& c)
{
    if ((c.flags & 16) != 0 && c.broker == 6)
        append(entries, kOptionLevels);
    else if ((c.flags & 16) != 0)
        append(entries, kLevels);
    else if ((c.flags & 32) != 0)
        append(entries, kAskShort);
    else if ((c.flags & 64) != 0)
        append(entries, kBidShort);
}

inline void appendMarketOrders(Entries& entries, const Case& c)
{
    if (!c.stockMarketModule || isOneOf(c.identity, {22, 24}) || c.operation == 21 || c.order != 0)
        return;
    if (c.market == 1)
        append(entries, kMarket1);
    if (c.market == 2)
        append(entries, kMarket2);
    if (c.market == 3)
        append(entries, kMarket3);
    if (c.market == 4 || c.market == 5)
        append(entries, kMarket4And5);
}

/// What is appended for the case.
inline Entries catalogue(const Case& c)
{
    Entries entries;
    if (isSpecifiedOnly(c)) {
        entries.append(kSpecified);
        return entries;
    }
    appendFixedPrice(entries, c);
    if ((c.flags & 1) != 0 && c.autoBook)
        entries.append(kAutoBook);
    if ((c.flags & 4) != 0 && c.broker != 6)
        entries.append(kOwnQueue);
    if ((c.flags & 4) != 0)
        entries.append(kCounterpart);
    if (hasPreClose(c))
        entries.append(kPreClose);
    appendLevels(entries, c);
    if (c.order == 0 && c.market == 3 && isOneOf(c.identity, {5, 31}))
        entries.append(kAfterHours);
    appendMarketOrders(entries, c);
    if (c.broker == 6)
        entries.append(kOptionFok);
    if (c.broker == 6 && c.identity != 43)
        append(entries, kOptionMarkets);
    return entries;
}

inline QString text(const Entries& entries)
{
    QStringList parts;
    for (const Entry& entry : entries)
        parts << QString::fromUtf16(entry.text) + QLatin1Char('=') + QString::number(entry.value);
    return parts.join(QLatin1String(", "));
}

} // namespace listing
