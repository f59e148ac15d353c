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

rc::Gen<Json> unitCell()
{
    return oneOf({0x40, 0x40, 0x2, 0x8});
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
        operation("grid", "setItemUnit", unitCell(), oneOf({"股", "%", "元"})),
        operation("grid", "setItemUnit", unitCell(), oneOf({"股", "%", "元"})),
        operation("grid", "setItemInt", oneOf({0x40}), wholeNumber()),
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

} // namespace model
