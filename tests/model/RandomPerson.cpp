#include "model/RandomValues.h"

namespace model {

using namespace values;

namespace {

rc::Gen<Json> typedNumber()
{
    return oneOf({0,     1,     2,       5,       11,       50,     99,    100, 101,      150,  200,  1000,
                  1500,  10000, 1000000, 1000001, -1,       -5,     -100,  0.5, 2.5,      0.01, 6.25, -7.5,
                  99.99, 0.001, "1,000", "1,00",  "１５０", "2．5", "abc", "",  "-1,000", ",5"});
}

rc::Gen<Json> times()
{
    const auto clock = oneOf({"09:30:00", "10:00:00", "15:00:00", "14:59:59", "00:00:00", "23:59:59", "25:00:00"});
    return rc::gen::map(rc::gen::pair(clock, clock), [](const std::pair<Json, Json>& pair) {
        return Json::array({pair.first, pair.second});
    });
}

rc::Gen<Json> numberCell()
{
    return oneOf({0x2, 0x4, 0x8, 0x40, 0x200, 0x400, 0x1000, 0x80000, 0x2000000, 0x100000, 0x4000, 0x8000});
}

rc::Gen<Json> comboCell()
{
    return oneOf({0x1, 0x1, 0x10, 0x10, 0x2000, 0x10000, 0x20000});
}

} // namespace

rc::Gen<Command> randomPersonCommand()
{
    const auto index = oneOf({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    return rc::gen::weightedOneOf<Command>({
        {4, command("edit", {"cell", "value"}, numberCell(), typedNumber())},
        {3, command("edit", {"cell", "index"}, comboCell(), index)},
        {1, command("edit", {"cell", "value"}, comboCell(), priceType())},
        {1,
         command("edit", {"cell", "text"}, comboCell(),
                 oneOf({"最新价", "目标剩余量", "卖①价", "不处理", "none such"}))},
        {2, command("edit", {"cell", "unit"}, oneOf({0x2, 0x8, 0x40}), oneOf({"%", "元", "点", "股", "手"}))},
        {1,
         command("edit", {"cell", "unit", "value"}, oneOf({0x2, 0x8, 0x40}), oneOf({"%", "元", "股"}), typedNumber())},
        {1, command("edit", {"cell", "checked"}, oneOf({0x8, 0x100000}), boolean())},
        {1, command("edit", {"cell", "time"}, oneOf({0x800}), times())},
        {1, command("edit", {"cell", "elapse"}, oneOf({0x800}), oneOf({600, 0, 3600, 86399, 86400, 86401, -1}))},
        {1, command("edit", {"cell", "text"}, oneOf({0x4000000, 0x1}), text())},
        {1,
         command("edit", {"cell", "low", "high"}, oneOf({0x800000}), oneOf({1, 100, 500}),
                 oneOf({500, 1000, 2000000}))},
        {7, command("click", {"button"}, buttonId())},
        {4, command("filter", {"cells"}, cells())},
        {2, rc::gen::just(Command{{{"do", "filterReset"}, {"on", "t"}}})},
    });
}

rc::Gen<Command> randomGridCommand()
{
    const auto addCell = [](int id, const char* label, const char* unitText) {
        return rc::gen::just(Command{{{"do", "grid"},
                                      {"on", "t"},
                                      {"op", "addParamCell"},
                                      {"args", Json::array({id, label, 6, 0.0, 1000.0, 0.01, unitText, 1.5, 4})}}});
    };
    const Json units = Json::array({{{"text", "元"}, {"type", 6}, {"min", 0.0}, {"max", 1000.0}, {"step", 0.001}}});
    const auto trigger =
        rc::gen::just(Command{{{"do", "grid"},
                               {"on", "t"},
                               {"op", "addCheckParamUnitCell"},
                               {"args", Json::array({0x100000, "触发价", "启用", true, units, 12.5, -1.0})}}});
    const auto limits = oneOf({0.0, 1.0, -5.0, 2.0, 100.0, 1000.0, 5000.0, 1e7});
    return rc::gen::join(rc::gen::elementOf(std::vector<rc::Gen<Command>>{
        addCell(0x4000, "上限", "元"),
        addCell(0x8000, "下限", "元"),
        trigger,
        operation("grid", "setItemDouble", numberCell(), price()),
        operation("grid", "setItemInt", numberCell(), wholeNumber()),
        operation("grid", "setItemHidden", cell(), boolean()),
        operation("grid", "setItemEditable", cell(), boolean()),
        operation("grid", "setItemName", cell(), text()),
        operation("grid", "setComboData", cell(), priceType()),
        operation("grid", "setItemUnit", cell(), unit()),
        operation("grid", "setItemUnit", cell(), unit(), limits, limits, oneOf({0.0, 0.1, 1.0}), boolean()),
        operation("grid", "setItemTick", cell(), unit(), oneOf({0.1, 1.0, 100.0})),
        operation("grid", "setCheckDouble", cell(), boolean(), price(), boolean()),
        operation("grid", "resetCellRange", cell(), limits, limits),
        operation("grid", "setVisibleItemSet", cells()),
        operation("grid", "addVisibleItemSet", cell()),
        operation("grid", "removeVisbleItemSet", cell()),
        operation("grid", "setAllItemSet", cells()),
        operation("grid", "addAllItemSet", cell()),
        operation("grid", "setItemFilterBlacklist", cell(), boolean()),
        operation("grid", "clearFilterBlacklist"),
        operation("grid", "clearVisibleItem"),
        operation("grid", "showAllItems"),
        operation("grid", "setCustomWidgetVisible", boolean()),
        operation("grid", "setAllItemEnable", boolean()),
        operation("grid", "resetComboData", oneOf({0x1, 0x10}), oneOf({Json::array({"一", "二"}), Json::array()}),
                  oneOf({Json::array({11, 5, 6}), Json::array({10})}), oneOf({0, 1, -1, 7})),
        operation("grid", "itemDouble", cell()),
        operation("grid", "itemInt", cell()),
        operation("grid", "itemText", cell()),
        operation("grid", "itemUnit", cell()),
        operation("grid", "timeElapse", oneOf({0x800})),
        operation("grid", "itemTimeRangeType", oneOf({0x800})),
        operation("grid", "cellRange", oneOf({0x2, 0x8, 0x40, 0x200, 0x400, 0x80000})),
    }));
}

rc::Gen<Command> randomCreditCommand(bool isProbe)
{
    const auto operationKey = oneOf({22, 23, 24, 25, 1021, -1, 7});
    const auto row = oneOf({"726=A1", "727=X1", "727=", "728=12", "728=1.255", "729=30", "730=99.5", "730=abc",
                            "731=4=5", "731", "=", "0=1", "728=1=2", "731=77"});
    const auto group =
        rc::gen::map(rc::gen::pair(operationKey, rc::gen::resize(7, rc::gen::container<std::vector<Json>>(row))),
                     [](const std::pair<Json, std::vector<Json>>& parts) {
                         std::string joined = std::to_string(parts.first.get<int>());
                         for (const Json& entry : parts.second) {
                             joined += "-" + entry.get<std::string>();
                         }
                         return joined;
                     });
    const auto param = rc::gen::map(
        rc::gen::pair(operationKey, rc::gen::resize(3, rc::gen::container<std::vector<std::string>>(group))),
        [](const std::pair<Json, std::vector<std::string>>& parts) {
            std::string joined = std::to_string(parts.first.get<int>());
            for (const std::string& piece : parts.second) {
                joined += "+" + piece;
            }
            return Json(joined);
        });
    const auto odd =
        oneOf({"", "+", "22+", "x+y", "24", "1021+", "23+22-726=A-727=B-728=1-729=2", "++", "-1+-5-1=2-3=4-5=6-7=8"});
    const auto contract =
        oneOf({nullptr, Json{{"unrepaidVolume", 5}, {"key", "K"}}, Json{{"unrepaidFees", 2.5}, {"key", nullptr}}});
    const auto row728 = oneOf({726, 727, 728, 729, 730, 731, 1});
    std::vector<rc::Gen<Command>> gens = {
        operation("call", "setParam", param),
        operation("call", "setParam", param),
        operation("call", "setParam", odd),
        operation("call", "param"),
        operation("call", "refreshAccounts"),
        operation("call", "setSelectAccount", text()),
        operation("call", "getSelectAccount"),
        operation("call", "getCurrentCode"),
        operation("call", "getDefaultCompact", text()),
        operation("call", "refreshAvailableNum", text(), boolean(), text()),
        operation("call", "getUnRepayNum", text()),
        operation("call", "getAllUnrepayValue", text()),
        operation("call", "getDefaultUnrepayValue", text()),
        operation("call", "getTodayAvailableNum", text()),
        operation("call", "refreshUnrepayValue", text()),
        operation("call", "setStkCompacts", contract, text(), boolean()),
        operation("call", "setStockCode", text(), oneOf({"", "", "K1"}), boolean()),
        operation("call", "setIsFontScale", boolean()),
        operation("call", "setCompactBrushSourceType", oneOf({48, 49, 0})),
        operation("call", "doStockUnitChange"),
        operation("call", "setOperationType", operationKey, boolean()),
        operation("grid", "resetComboData", oneOf({726}), oneOf({Json::array({"甲", "乙"}), Json::array()}),
                  oneOf({Json::array({"A1", "12"}), Json::array({"A1"})}), oneOf({0, 1, -1})),
        operation("grid", "setItemHidden", row728, boolean()),
        operation("grid", "setItemEditable", row728, boolean()),
        command("edit", {"cell", "index"}, oneOf({726}), oneOf({0, 1, 2})),
        command("edit", {"cell", "text"}, oneOf({727, 728}), oneOf({"", "600000", "A-1 &*", "编号", "a+b"})),
        rc::gen::map(oneOf({1.0, 1.25, 2.0}),
                     [](const Json& value) {
                         return Command{{{"do", "scale"}, {"value", value}}};
                     }),
    };
    if (isProbe) {
        gens.push_back(operation("call", "fixCodeChanged", text()));
        gens.push_back(operation("call", "refreshUIData"));
        gens.push_back(operation("call", "resetColumnWidth"));
        gens.push_back(operation("call", "setFixCodeText", text(), boolean(), boolean(), text()));
        gens.push_back(operation("call", "getCurrentCompactType", operationKey));
        gens.push_back(operation("call", "getCurrentNumUnit"));
        gens.push_back(operation("call", "saveUIDataToMap"));
    }
    return rc::gen::join(rc::gen::elementOf(std::move(gens)));
}

} // namespace model
