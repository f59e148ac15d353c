#include "monkey/Calls.h"

#include <vector>

namespace monkey {

namespace {

using Value = Json (*)(Random& random);

Json flag(Random& random)
{
    return random.oneIn(2);
}

// What would leave a panel without anything to do for long.
Json mostly(Random& random)
{
    return !random.oneIn(6);
}

Json rarely(Random& random)
{
    return random.oneIn(6);
}

template <int... Choices>
Json oneOf(Random& random)
{
    static constexpr int kChoices[] = {Choices...};
    return random.pick(kChoices);
}

constexpr Value kOrderType = &oneOf<-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 11, 13, 14, 15, 104, 2147483647>;
constexpr Value kOperation = &oneOf<-1, 0, 1, 2, 6, 16, 18, 20, 22, 23, 24, 25, 32, 40, 41, 88, 1000, 1021>;
constexpr Value kPriceType = &oneOf<-1, 0, 4, 5, 6, 10, 11, 12, 14, 26, 31, 40, 44, 49, 1000>;
constexpr Value kFlags = &oneOf<0, 0x7103fff, 0x7103fff, 0x7ffffff, 0x13813, 0x800a00, -1>;
constexpr Value kCell = &oneOf<1, 2, 4, 8, 0x10, 0x40, 0x200, 0x400, 0x800, 0x1000, 0x2000, 0x4000, 0x8000, 0x10000,
                               0x20000, 0x80000, 0x100000, 0x800000, 0x2000000, 0x4000000, 725, 726, 727, 99>;
constexpr Value kButton = &oneOf<600, 601, 602, 603, 604, 605, 608, 611, 613, 614, 700, 0, -1>;
constexpr Value kWhole = &oneOf<0, 1, 2, 7, 100, -5, 31, 1000000, 2147483647, -2147483647>;
constexpr Value kEvent = &oneOf<5, 73, 87, 97, 101, 102, 118, 124, 249, 1071, 4711>;
constexpr Value kMode = &oneOf<0, 7, 100, 101>;
constexpr Value kEdge = &oneOf<1, 20, 120, 219, 220, 260, 350, 480, 700>;

Json priceTypeOutside(Random& random)
{
    return {{"int", kPriceType(random)}};
}

Json price(Random& random)
{
    static const Json values = {0,    0.5,  1,     9.875, 12.345, -3,    99.9999999,
                                1000, 1e12, "nan", "inf", "-inf", 1e300, 1.7976931348623157e308};
    return random.pick(values);
}

Json text(Random& random)
{
    static const Json values = {"",        "600000", "IF2401", "买一",    "12",
                                "-0.5",    "股",     "%",      "元",      "😀",
                                "a\tb\nc", "1^2^3",  "605",    "603,600", std::string(2000, 'x')};
    return random.pick(values);
}

Json creditText(Random& random)
{
    static const Json values = {"",
                                "22+22-725=A1-726=600000-727=C7+",
                                "23+23-725=A1-727=C8-728=5+24-725=B-726=-727=",
                                "24+24-725=-726=1-727=2-728=3-729=4-730=5",
                                "1021+",
                                "x+y-z=+",
                                "+",
                                "25+25-725"};
    return random.pick(values);
}

Json contract(Random& random)
{
    static const Json values = {nullptr,
                                {{"unrepaidVolume", 300}, {"unrepaidFees", 12.5}, {"key", "K1"}},
                                {{"unrepaidVolume", 0}, {"unrepaidFees", 0.0}, {"key", nullptr}}};
    return random.pick(values);
}

Json cells(Random& random)
{
    Json ids = Json::array();
    for (int count = random.below(6); count > 0; --count)
        ids.push_back(kCell(random));
    return ids;
}

struct Call
{
    const char* command;
    const char* op;
    std::vector<Value> arguments;
};

// clang-format off
const std::vector<Call>& tableCalls()
{
    static const std::vector<Call> rows = {
        {"call", "setOrderType",           {kOrderType}},
        {"call", "setOrderType",           {kOrderType}},
        {"call", "setOrderType",           {kOrderType}},
        {"call", "setOperationType",       {kOperation}},
        {"call", "setOperationType",       {kOperation}},
        {"call", "setExpandItemsHidden",   {flag}},
        {"call", "setExpandItemsHidden",   {flag}},
        {"call", "setFlag",                {kFlags}},
        {"call", "setStockCode",           {text}},
        {"call", "setPriceType",           {kPriceType}},
        {"call", "selectPrice",            {kPriceType}},
        {"call", "setFixedPrice",          {price}},
        {"call", "setOriginalPrice",       {price}},
        {"call", "saveVisibleFlag",        {flag}},
        {"call", "loadVisibleFlag",        {}},
        {"call", "hideAlgTable",           {}},
        {"call", "setVisibleByID",         {kButton, mostly}},
        {"call", "setVisibleByOrderType",  {kOrderType, mostly}},
        {"call", "setAllItemEnable",       {mostly}},
        {"call", "setShowTimeAlgorith",    {mostly}},
        {"call", "showSelectButton",       {kButton}},
        {"call", "modPriceCell",           {}},
        {"call", "resetTriggerPriceSetting", {}},
        {"call", "setCheckParam",          {text}},
        {"call", "updateCmdLog",           {}},
        {"call", "clear",                  {}},
        {"call", "setParam",               {text}},
        {"call", "handleScaleChanged",     {}},
        {"call", "getOrderSettings",       {kWhole}},
        {"call", "getModifiedPriceByOptTypeForCalc", {kOperation, flag}},
        {"call", "getCurrentPriceTypeName", {}},
    };
    return rows;
}

const std::vector<Call>& globalTableCalls()
{
    static const std::vector<Call> rows = {
        {"call", "saveParam",              {}},
        {"call", "fixTimeRange",           {}},
        {"call", "setSingleNvAlgoParam",   {kOrderType, text}},
        {"call", "setNvAlgoHideAmountUsed", {flag, kWhole}},
    };
    return rows;
}

const std::vector<Call>& creditTableCalls()
{
    static const std::vector<Call> rows = {
        {"call", "handleScaleChanged",     {}},
        {"call", "setIsFontScale",         {flag}},
        {"call", "refreshAccounts",        {}},
        {"call", "setSelectAccount",       {text}},
        {"call", "setParam",               {creditText}},
        {"call", "setParam",               {creditText}},
        {"call", "setStkCompacts",         {contract, text, flag}},
        {"call", "setStockCode",           {text, text, flag}},
        {"call", "refreshUnrepayValue",    {text}},
        {"call", "getAllUnrepayValue",     {text}},
        {"call", "param",                  {}},
    };
    return rows;
}

// What a host does with the cells themselves.
const std::vector<Call>& gridCalls()
{
    static const std::vector<Call> rows = {
        {"grid", "setItemHidden",          {kCell, rarely}},
        {"grid", "setItemHidden",          {kCell, rarely}},
        {"grid", "setItemDouble",          {kCell, price}},
        {"grid", "setItemInt",             {kCell, kWhole}},
        {"grid", "setItemText",            {kCell, text}},
        {"grid", "setItemName",            {kCell, text}},
        {"grid", "setItemUnit",            {kCell, text}},
        {"grid", "setItemEditable",        {kCell, mostly}},
        {"grid", "resetCellRange",         {kCell, price, price}},
        {"grid", "setItemTick",            {kCell, text, price}},
        {"grid", "setCheckDouble",         {kCell, flag, price, flag}},
        {"grid", "setComboData",           {kCell, kPriceType}},
        {"grid", "setVisibleItemSet",      {cells}},
        {"grid", "setAllItemSet",          {cells}},
        {"grid", "addVisibleItemSet",      {kCell}},
        {"grid", "setItemFilterBlacklist", {kCell, flag}},
        {"grid", "clearFilterBlacklist",   {}},
        {"grid", "showAllItems",           {}},
        {"grid", "setExpand",              {flag}},
        {"grid", "setAllItemEnable",       {mostly}},
        {"grid", "setCustomWidgetVisible", {mostly}},
        {"grid", "setMultiFilterWidgetParam", {}},
    };
    return rows;
}

// Cells that hosts add, of kinds that the tables have none of.
const Json& addedCells()
{
    static const Json rows = {
        {{"op", "addRangeCell"}, {"args", {0x200000, "区间", 6, -9, 9, -5, 5, 0.1, "元", 1.0, -1, " ~ ", false}}},
        {{"op", "addLineEdit"},  {"args", {0x400000, "说明", "[a-z0-9]*", true, "abc"}}},
        {{"op", "addParamCell"}, {"args", {0x20, "备注", 10, 0, 0, 0, "股", 0, 4}}},
        {{"op", "addTimePeriod"}, {"args", {0x80, "时段", "09:30:00", "15:00:00"}}},
        {{"op", "addParamCell"}, {"args", {0x4000, "上限", 6, 0, 100, 0.5, "%", 50, 4}}},
        {{"op", "addParamCell"}, {"args", {0x8000, "限内", 6, 0, 100, 0.1, "%", 20, 4}}},
        {{"op", "addParamCell"}, {"args", {0x100000, "触发价", 6, 0, 1000000, 0.01, "元", 0, 4}}},
    };
    return rows;
}
// clang-format on

Json argumentsOf(Random& random, const Call& call)
{
    Json arguments = Json::array();
    for (const Value value : call.arguments)
        arguments.push_back(value(random));
    return arguments;
}

Json rowCall(Random& random, const std::vector<Call>& rows, const std::string& on)
{
    const Call& row = random.pick(rows);
    return {{"do", row.command}, {"on", on}, {"op", row.op}, {"args", argumentsOf(random, row)}};
}

Json addedCell(Random& random, const std::string& on)
{
    Json command = {{"do", "grid"}, {"on", on}};
    command.update(random.pick(addedCells()));
    return command;
}

Json sentEvent(Random& random, const std::string& on)
{
    if (random.oneIn(3))
        return {{"do", "event"}, {"on", on}, {"args", {1213, 0, 0, text(random)}}, {"data", priceTypeOutside(random)}};
    return {{"do", "event"}, {"on", on}, {"args", {kEvent(random), kCell(random), kWhole(random), text(random)}}};
}

Json addedButton(Random& random, const std::string& on)
{
    return {{"do", "addButton"}, {"on", on}, {"id", kButton(random)}, {"text", text(random)}};
}

Json tableCall(Random& random, const std::string& on)
{
    const int kind = random.below(20);
    if (kind == 0)
        return addedButton(random, on);
    if (kind == 1)
        return sentEvent(random, on);
    if (kind < 4)
        return addedCell(random, on);
    return rowCall(random, kind < 10 ? gridCalls() : tableCalls(), on);
}

Json modules(Random& random)
{
    static const Json known = {"mdl_order/mdl_order_algorithm3",
                               "mdl_order/mdl_order_command_remark",
                               "mdl_order/mdl_order_compose_full_pricetype",
                               "mdl_order/mdl_order_stock_multi_market_price",
                               "mdl_order/mdl_order_stop_profit_loss",
                               "mdl_order/mdl_order_trigger_price",
                               "mdl_alg/mdl_alg_randvolume"};
    Json on = Json::array();
    for (const Json& module : known) {
        if (random.oneIn(2))
            on.push_back(module);
    }
    return {{"do", "modules"}, {"on", on}};
}

} // namespace

Json randomCall(Random& random, Family family, const std::string& on)
{
    switch (family) {
    case Family::Table:
        return tableCall(random, on);
    case Family::GlobalTable:
        return random.oneIn(5) ? rowCall(random, globalTableCalls(), on) : tableCall(random, on);
    case Family::CreditTable:
        return rowCall(random, random.oneIn(3) ? gridCalls() : creditTableCalls(), on);
    case Family::TaskDialog:
        return random.oneIn(4) ? sentEvent(random, on) : rowCall(random, gridCalls(), on);
    case Family::BasketDialog:
        return sentEvent(random, on);
    }
    return {};
}

Json randomService(Random& random)
{
    switch (random.below(4)) {
    case 0:
        return modules(random);
    case 1:
        return {{"do", "clientMode"}, {"value", kMode(random)}};
    case 2:
        return {{"do", "hint"}, {"orderType", kOrderType(random)}, {"hint", flag(random)}};
    default:
        return {{"do", "account"}, {"key", "K"}, {"brokerType", 3}, {"id", "A1"}, {"name", text(random)}};
    }
}

Json randomSize(Random& random, const std::string& on)
{
    return {{"do", "resize"}, {"on", on}, {"size", {kEdge(random), kEdge(random)}}};
}

Json randomIdentity(Random& random)
{
    return oneOf<1, 3, 5, 7, 8, 9, 10, 12, 14, 15, 17, 22, 24, 27, 30, 31, 32, 33, 35, 36, 38, 40, 43, 45, 52, -1>(
        random);
}

Json randomBroker(Random& random)
{
    return oneOf<1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 1001, 1002, 0>(random);
}

Json randomTrader(Random& random)
{
    return oneOf<1, 2, 4, 4096>(random);
}

Json randomTask(Random& random)
{
    const Json account = {{"brokerType", randomBroker(random)}, {"accountId", "A1"}, {"accountName", "账户一"}};
    Json task = {{"operationType", kOperation(random)},
                 {"orderType", kOrderType(random)},
                 {"code", "600000"},
                 {"name", text(random)},
                 {"priceType", kPriceType(random)},
                 {"price", price(random)},
                 {"volume", kWhole(random)}};
    if (!random.oneIn(6))
        task["account"] = account;
    return task;
}

} // namespace monkey
