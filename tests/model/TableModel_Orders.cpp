#include "model/TableModel.h"

namespace model {

namespace {

void append(Entries& entries, const Entries& more)
{
    entries.insert(entries.end(), more.begin(), more.end());
}

// clang-format off
const Entries kAllOperations = {
    {"卖①+②+③+④+⑤量", 0}, {"卖①+②+③+④量", 1}, {"卖①+②+③量", 2}, {"卖①+②量", 3}, {"卖①量", 4}, {"目标量", 10},
    {"买①量", 5}, {"买①+②量", 6}, {"买①+②+③量", 7}, {"买①+②+③+④量", 8}, {"买①+②+③+④+⑤量", 9}, {"目标剩余量", 11},
    {"持仓数量", 12},
};
const Entries kTargets = {{"目标量", 10}, {"目标剩余量", 11}};
const Entries kOneOperation = {
    {"买①量", 5}, {"买①+②量", 6}, {"买①+②+③量", 7}, {"买①+②+③+④量", 8}, {"买①+②+③+④+⑤量", 9}, {"目标量", 10},
    {"目标剩余量", 11}, {"持仓数量", 12},
};
// clang-format on

bool oneOf(int value, std::initializer_list<int> set)
{
    for (const int member : set)
        if (value == member)
            return true;
    return false;
}

Entries marketTypes(int market)
{
    switch (market) {
    case 1:
        return {{"最优五档即成剩撤", 42}, {"最优五档即成剩转", 43}};
    case 2:
        return {
            {"最优五档即成剩撤", 47}, {"即成剩撤", 46}, {"全额成交或撤", 48}, {"本方最优价", 45}, {"对手最优价", 44}};
    case 3:
        return {{"最优五档即成剩撤", 42}, {"最优五档即成剩转", 43}, {"本方最优价", 45}, {"对手最优价", 44}};
    case 4:
    case 5:
        return {{"最优五档即成剩撤", 47}};
    default:
        return {};
    }
}

void appendOptionTypes(Entries& entries, int id)
{
    append(entries, {{"限价即全成否则撤", 26}});
    if (id != 43)
        append(entries, {{"市价即成剩撤", 27}, {"市价即全成否则撤", 28}, {"市价剩转限价", 29}});
}

} // namespace

void TableModel::appendFixedPrice(Entries& entries) const
{
    const bool user =
        made.id < 35 && !idIn({7, 8, 9, 10, 14, 15, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30});
    if (user)
        append(entries, {{made.broker == 6 ? "限价" : "指定价", 11}});
    else if (idIn({15, 17, 22, 30, 40}))
        append(entries, {{"模型价", 11}});
}

Entries TableModel::bookLevels() const
{
    if (made.broker == 6)
        return {{"卖①价", 4}, {"最新价", 5}, {"买①价", 6}};
    return {{"卖⑤价", 0}, {"卖④价", 1}, {"卖③价", 2}, {"卖②价", 3}, {"卖①价", 4}, {"最新价", 5},
            {"买①价", 6}, {"买②价", 7}, {"买③价", 8}, {"买④价", 9}, {"买⑤价", 10}};
}

Entries TableModel::initialPriceTypes() const
{
    if (brokerIn({1, 5}))
        return {};
    Entries entries = {{"最新价", 5}};
    if (brokerIn({1001, 1002, 10}))
        append(entries, {{"挂单价", 13}});
    append(entries, {{"对手价", 14}});
    appendFixedPrice(entries);
    if (brokerIn({1001, 1002, 10})) {
        append(entries,
               {{"卖⑤价", 0},
                {"卖④价", 1},
                {"卖③价", 2},
                {"卖②价", 3},
                {"卖①价", 4},
                {"买①价", 6},
                {"买②价", 7},
                {"买③价", 8},
                {"买④价", 9},
                {"买⑤价", 10}});
        return entries;
    }
    if (made.broker == 6)
        appendOptionTypes(entries, made.id);
    if (brokerIn({6, 7, 11})) {
        append(entries, {{"卖①价", 4}, {"买①价", 6}});
        return entries;
    }
    return const_cast<TableModel*>(this)->priceTypes(31, 5, false);
}

Entries TableModel::priceTypes(int bits, int market, bool apply)
{
    if (operationType == 21 && world.isOn("mdl_order/mdl_order_credit_opt_slosell_only_fixed_price"))
        return {{"指定价", 11}};
    Entries entries;
    appendFixedPrice(entries);
    if ((bits & 1) != 0 && made.autoBook)
        append(entries, {{"自动盘口", 15}});
    if ((bits & 4) != 0)
        append(entries, made.broker == 6 ? Entries{{"对手价", 14}} : Entries{{"挂单价", 13}, {"对手价", 14}});
    const bool deskOne = made.trader == 1 && made.broker == 2 && idIn({5, 15, 22, 31, 36});
    const bool deskFour = made.trader == 4 && brokerIn({2, 3}) && idIn({7, 31});
    if ((bits & 8) != 0 && (deskOne || deskFour))
        append(entries, {{"昨收价", 16}});
    if ((bits & 16) != 0) {
        append(entries, bookLevels());
    } else if ((bits & 32) != 0) {
        append(entries,
               {{"最新价", 5}, {"卖⑤价", 0}, {"卖④价", 1}, {"卖③价", 2}, {"卖②价", 3}, {"卖①价", 4}, {"买①价", 6}});
    } else if ((bits & 64) != 0) {
        append(entries,
               {{"最新价", 5}, {"卖①价", 4}, {"买①价", 6}, {"买②价", 7}, {"买③价", 8}, {"买④价", 9}, {"买⑤价", 10}});
    }
    if (orderType == 0 && market == 3 && idIn({5, 31}))
        append(entries, {{"盘后定价", 49}});
    if (world.isOn("mdl_order/mdl_order_stock_multi_market_price") && !idIn({22, 24}) && operationType != 21
        && orderType == 0)
        append(entries, marketTypes(market));
    if (made.broker == 6)
        appendOptionTypes(entries, made.id);
    if (apply && !entries.empty())
        grid.resetComboData(0x1, entries, 0);
    return entries;
}

void TableModel::resetPriceType()
{
    if (operationType == 21 && world.isOn("mdl_order/mdl_order_credit_opt_slosell_only_fixed_price")) {
        grid.resetComboData(0x1, {{"指定价", 11}}, 0);
        return;
    }
    if (idIn({36, 38, 39}))
        priceTypes(30, 4, true);
    if (!idIn({7, 9, 22, 24}) || brokerIn({7, 11}))
        return;
    Entries entries;
    if (world.isOn("mdl_order/mdl_order_compose_full_pricetype") && (orderType == 0 || orderType == 1)) {
        const bool desk = (made.trader == 4 || made.trader == 4096) && made.id == 7 && made.broker == 2;
        entries = priceTypes(desk ? 31 : 23, 4, false);
    }
    const int chosen = grid.itemInt(0x1);
    grid.resetComboData(0x1, entries, 0);
    grid.setComboData(0x1, chosen);
}

void TableModel::updateCurrentPriceTypeName()
{
    if (paramIndex >= 0) {
        priceTypeName.clear();
        priceType = paramPriceType;
    } else if (const Cell* cell = grid.find(0x1); cell && cell->kind == Kind::Combo) {
        priceTypeName = cell->shownText();
        priceType = grid.itemInt(0x1);
    }
}

void TableModel::setPriceType(int type)
{
    grid.setComboData(0x1, type);
    updateCurrentPriceTypeName();
    resetSuperPriceShow();
}

void TableModel::selectPrice(int type)
{
    grid.setComboData(0x10000, type);
    grid.setComboData(0x1, type);
    priceType = type;
    save();
    world.hear(129, made.id, 0, "");
    resetCellVisibilities();
}

void TableModel::setStockCode(const std::string& code)
{
    if (tableClass != TableClass::Global) {
        stockCode = code;
        resetPriceType();
    }
}

int TableModel::singleVolType() const
{
    const Cell* cell = grid.find(0x10);
    return cell && cell->kind == Kind::Combo ? grid.itemInt(0x10) : -1;
}

void TableModel::announceOrderType()
{
    if (world.clientMode == 100 || world.clientMode == 101)
        world.hear(1244, orderType, 0, "");
}

void TableModel::setOperationType(int type)
{
    const int before = operationType;
    operationType = type;
    if (brokerIn({2, 3, 7, 10, 11}) || idIn({7, 22})) {
        grid.setItemTick(0x40, "股", 100);
        if (grid.itemUnit(0x40) == "股")
            grid.setItemDouble(0x40, grid.itemInt(0x40) / 100 * 100);
        grid.resetComboData(0x10, type == -1 ? kAllOperations : brokerIn({7, 11}) ? kTargets : kOneOperation, 0);
        grid.setComboData(0x10, 10);
    }
    if (type != before) {
        resetPriceType();
        updateCurrentPriceTypeName();
        resetSuperPriceShow();
        resetTableByPriceType();
    }
    resetShowFixPrice();
    announceOrderType();
}

void TableModel::setOrderType(int type)
{
    if (type != orderType) {
        resetPriceType();
        orderType = type;
    }
    const int button = static_cast<int>(600U + static_cast<unsigned>(type));
    group.check(button);
    group.setVisible(button, true);
    const bool help = oneOf(type, {1, 2, 5, 13});
    const bool ownHelp = (made.id >= 15 && made.id <= 30) || idIn({36, 37, 38, 39, 40, 43, 45, 48, 49, 51});
    if (!ownHelp)
        group.helpHidden = !help;
    if (help)
        group.helpCritical = hints.count(type) > 0 && hints.at(type);
    showCellArea(type < 4);
    if (type >= 4) {
        paramIndex = type - 4;
        if ((type == 5 || type == 13) && showAlgoHelpButton())
            group.helpHidden = false;
        resetShowFixPrice();
    }
    resetCellVisibilities();
    fixSuperPrice();
    announceOrderType();
    resetTableByPriceType();
}

bool TableModel::showAlgo() const
{
    return !idIn({36, 37, 38, 39, 43, 45, 48, 49, 51}) && !brokerIn({4, 6, 10});
}

bool TableModel::showAlgoHelpButton() const
{
    return !idIn({36, 37, 38, 39, 40, 43, 45, 48, 49, 51}) && (made.id < 15 || made.id > 30);
}

} // namespace model
