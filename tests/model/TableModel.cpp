#include "model/TableModel.h"

#include <algorithm>
#include <cmath>

namespace model {

namespace {

Cell combo(int id, const char* label, Entries entries, int index = 0)
{
    Cell cell;
    cell.id = id;
    cell.kind = Kind::Combo;
    cell.label = label;
    cell.entries = std::move(entries);
    cell.index = index;
    return cell;
}

Cell number(int id, const char* label, std::vector<Unit> units, double value)
{
    Cell cell;
    cell.id = id;
    cell.label = label;
    cell.units = std::move(units);
    cell.value = value;
    cell.bound();
    return cell;
}

Cell checked(Cell cell, const char* text)
{
    cell.kind = Kind::CheckNumber;
    cell.checkText = text;
    return cell;
}

Cell period(int id, const char* label, int start, int end)
{
    Cell cell;
    cell.id = id;
    cell.kind = Kind::Period;
    cell.label = label;
    cell.start = start;
    cell.end = end;
    return cell;
}

Cell remarkLine()
{
    Cell cell;
    cell.id = 0x4000000;
    cell.kind = Kind::Line;
    cell.label = "投资备注";
    return cell;
}

Cell volumeRange()
{
    Cell cell = number(0x800000, "单笔量区间", {{"股", 2, 1, 1000000, 1.0}}, 1);
    cell.kind = Kind::Range;
    cell.high = 1000000;
    cell.text = " - ";
    return cell;
}

// clang-format off
const Entries kQuoteLevels = {
    {"卖⑤价", 0}, {"卖④价", 1}, {"卖③价", 2}, {"卖②价", 3}, {"卖①价", 4}, {"最新价", 5},
    {"买①价", 6}, {"买②价", 7}, {"买③价", 8}, {"买④价", 9}, {"买⑤价", 10},
};
const Entries kUnfinishedFutures = {
    {"不处理", -1}, {"按卖①价委托", 4}, {"按最新价委托", 5}, {"按买①价委托", 6}, {"按挂单价委托", 13},
    {"按对手价委托", 14},
};
const Entries kUnfinishedHongKong = {
    {"不处理", -1}, {"按卖①价委托", 4}, {"按最新价委托", 5}, {"按买①价委托", 6}, {"按对手价委托", 14},
};
const Entries kUnfinishedOptionMarket = {
    {"按市价即成剩撤委托", 27}, {"按市价即全成否则撤委托", 28}, {"按市价剩转限价委托", 29},
};
const Entries kUnfinishedOptionEnd = {
    {"按卖①价委托", 4}, {"按最新价委托", 5}, {"按买①价委托", 6}, {"按对手价委托", 14},
};
const Entries kUnfinishedStock = {
    {"不处理", -1}, {"按卖⑤价委托", 0}, {"按卖④价委托", 1}, {"按卖③价委托", 2}, {"按卖②价委托", 3},
    {"按卖①价委托", 4}, {"按最新价委托", 5}, {"按买①价委托", 6}, {"按买②价委托", 7}, {"按买③价委托", 8},
    {"按买④价委托", 9}, {"按买⑤价委托", 10}, {"按挂单价委托", 13}, {"按对手价委托", 14},
};
const Entries kAllVolumes = {
    {"卖①+②+③+④+⑤量", 0}, {"卖①+②+③+④量", 1}, {"卖①+②+③量", 2}, {"卖①+②量", 3}, {"卖①量", 4}, {"目标量", 10},
    {"买①量", 5}, {"买①+②量", 6}, {"买①+②+③量", 7}, {"买①+②+③+④量", 8}, {"买①+②+③+④+⑤量", 9}, {"目标剩余量", 11},
    {"持仓总量", 12},
};
// clang-format on

void append(Entries& entries, const Entries& more)
{
    entries.insert(entries.end(), more.begin(), more.end());
}

Entries baseVolumes(const TableModel& table)
{
    if (!table.brokerIn({1, 4, 5}))
        return kAllVolumes;
    Entries entries = {{"卖①量", 4}, {"买①量", 5}};
    if (table.made.id != 14)
        append(entries, {{"目标量", 10}, {"目标剩余量", 11}});
    append(entries, {{"持仓数量", 12}});
    return entries;
}

Entries unfinishedOrders(const TableModel& table)
{
    if (table.brokerIn({1, 4, 5}))
        return kUnfinishedFutures;
    if (table.brokerIn({7, 11}))
        return kUnfinishedHongKong;
    if (table.made.broker == 6) {
        Entries entries = {{"不处理", -1}, {"按限价即全成否则撤委托", 26}};
        if (table.made.id != 43)
            append(entries, kUnfinishedOptionMarket);
        append(entries, kUnfinishedOptionEnd);
        return entries;
    }
    Entries entries = kUnfinishedStock;
    const bool desk = table.made.trader == 1 || table.made.trader == 4;
    if (desk && table.made.broker == 2 && table.idIn({5, 7, 15, 22, 36}))
        append(entries, {{"按昨收价委托", 16}});
    return entries;
}

struct SingleVolume
{
    const char* unit;
    double min;
    double step;
    double value;
};

SingleVolume singleVolume(const TableModel& table)
{
    if (table.brokerIn({1, 4, 5, 1001, 1002}))
        return {"手", 1, 1, 100};
    return table.made.broker == 6 ? SingleVolume{"张", 1, 1, 100} : SingleVolume{"股", 100, 100, 10000};
}

} // namespace

TableModel::TableModel(World& around, TableClass kind, std::string ownName, const Construction& construction)
    : world(around)
    , tableClass(kind)
    , name(std::move(ownName))
    , made(construction)
{
    createButtons();
    createCells();
    if (tableClass == TableClass::StopLoss)
        setExpandItemsHidden(false);
}

bool TableModel::idIn(std::initializer_list<int> ids) const
{
    return std::find(ids.begin(), ids.end(), made.id) != ids.end();
}

bool TableModel::brokerIn(std::initializer_list<int> brokers) const
{
    return std::find(brokers.begin(), brokers.end(), made.broker) != brokers.end();
}

void TableModel::createButtons()
{
    const bool helps = (made.id >= 15 && made.id <= 30) || idIn({36, 37, 38, 39, 40, 43, 45, 48, 49, 51});
    group.helpHidden = !helps;
    if (made.modeButtons) {
        group.add(600, "普通交易");
        group.check(600);
    }
    if (world.isOn("mdl_order/mdl_order_algorithm3"))
        group.add(603, "");
}

std::string TableModel::moneyUnit() const
{
    if (brokerIn({1, 4, 5, 1001, 1002}))
        return "点";
    return brokerIn({7, 11}) ? "港币" : "元";
}

bool TableModel::isRandVolume() const
{
    return world.isOn("mdl_alg/mdl_alg_randvolume") && made.broker == 2 && made.trader == 1
        && idIn({5, 15, 31, 33, 36});
}

void TableModel::createCells()
{
    const bool points = brokerIn({1, 4, 5, 1001, 1002});
    const bool option = made.broker == 6;
    const double fineStep = option ? 0.0001 : 0.01;
    const Entries types = initialPriceTypes();
    if (!types.empty()) {
        grid.add(combo(0x1, "报价方式", types));
        priceType = types.front().second.get<int>();
    }
    if (!brokerIn({7, 11}))
        grid.add(number(0x2, "单笔超价", {{"%", 6, -100, 100, {}}, {moneyUnit(), 6, -1000000, 1000000, {}}}, 0.5));
    if (!brokerIn({6, 7, 10, 11}))
        grid.add(combo(0x10, "单笔基准量", baseVolumes(*this)));
    const double lot = points || option ? 1 : 100;
    grid.add(number(0x40, "尾单最小量", {{"%", 2, 1, 100, {}}, {points ? "手" : "股", 2, lot, 1000000, {}}}, lot));
    if (!brokerIn({7, 11}))
        grid.add(number(0x4, "超价启用笔数", {{"笔", 2, 1, 1000000, 0.0}}, 1));
    const std::optional<double> moneyStep = option ? std::optional<double>(0.0001) : std::nullopt;
    grid.add(checked(number(0x8, "波动区间", {{"%", 6, 0, 100, fineStep}, {moneyUnit(), 6, 0, 1000000, moneyStep}},
                            made.id == 7 ? 5 : 3),
                     "单向"));
    const SingleVolume volume = singleVolume(*this);
    grid.add(number(0x200, "单笔最小量", {{volume.unit, 2, volume.min, 1000000, volume.step}}, volume.value));
    grid.add(number(0x400, "单笔最大量", {{volume.unit, 2, volume.min, 1000000, volume.step}}, volume.value));
    grid.add(brokerIn({1, 4, 5}) ? period(0x800, "有效时间", 9 * 3600, 15 * 3600 + 900)
                                 : period(0x800, "有效时间", 9 * 3600 + 1800, 15 * 3600));
    grid.add(number(0x1000, "最大委托次数", {{"次", 2, 1, 10000, 1.0}}, 1000));
    grid.add(combo(0x2000, "未成委托处理", unfinishedOrders(*this)));
    if (isRandVolume())
        grid.add(volumeRange());
    grid.add(combo(0x10000, "初始报价", kQuoteLevels, 6));
    grid.add(combo(0x20000, "未成处理", kQuoteLevels, 4));
    grid.add(number(0x80000, "波动区间", {{"%", 6, 0, 100, fineStep}}, 0));
    if (idIn({5, 11, 12, 13})) {
        grid.add(number(0x2000000, "限价", {{"元", 6, 0, 1000000, 0.01}}, 0));
        grid.setItemHidden(0x2000000, true);
    }
    if (world.isOn("mdl_order/mdl_order_command_remark"))
        grid.add(remarkLine());
}

void TableModel::updateCmdLog()
{
    const bool excluded =
        idIn({15, 17, 18, 19, 20, 21, 22, 25, 26, 27, 28, 29, 30, 36, 37, 38, 40, 42, 43, 48, 49, 51});
    if (world.isOn("mdl_order/mdl_order_command_remark") && !excluded)
        grid.add(remarkLine());
}

Json TableModel::state() const
{
    return {
        {"orderType", orderType},
        {"operationType", operationType},
        {"priceType", priceType},
        {"stockCode", stockCode},
        {"expand", expand},
        {"strip", {{"hidden", stripHidden}, {"height", made.modeButtons ? 28 : 0}}},
        {"buttons", group.state()},
        {"help", {{"hidden", group.helpHidden}, {"critical", group.helpCritical}}},
        {"grid", {{"hidden", grid.hidden}}},
        {"scroll", {{"hidden", grid.hidden}}},
        {"filter",
         {{"all", grid.all}, {"visible", grid.visible}, {"blacklist", grid.blacklist}, {"expanded", grid.expanded}}},
        {"cells", grid.state()}};
}

} // namespace model
