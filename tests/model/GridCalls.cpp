#include "model/SessionModel.h"

#include <unordered_map>

namespace model {

namespace {

using Call = Json (*)(GridModel& grid, const Json& args);

int idOf(const Json& args)
{
    return args.at(0).get<int>();
}

std::string textAt(const Json& args, std::size_t index)
{
    return args.at(index).get<std::string>();
}

double doubleAt(const Json& args, std::size_t index)
{
    return doubleOf(args.at(index));
}

Json addParamCell(GridModel& grid, const Json& args)
{
    Cell cell;
    cell.id = idOf(args);
    cell.label = textAt(args, 1);
    cell.units = {{textAt(args, 6), args.at(2).get<int>(), doubleAt(args, 3), doubleAt(args, 4), doubleAt(args, 5)}};
    cell.setNumber(doubleAt(args, 7));
    return grid.add(cell);
}

Json addCheckParamUnitCell(GridModel& grid, const Json& args)
{
    Cell cell;
    cell.id = idOf(args);
    cell.kind = Kind::CheckNumber;
    cell.label = textAt(args, 1);
    cell.checkText = textAt(args, 2);
    cell.checked = args.at(3).get<bool>();
    for (const Json& unit : args.at(4)) {
        cell.units.push_back(
            {unit.at("text").get<std::string>(), unit.at("type").get<int>(), unit.at("min").get<double>(),
             unit.at("max").get<double>(),
             unit.contains("step") ? std::optional<double>(unit.at("step").get<double>()) : std::nullopt});
    }
    cell.setNumber(doubleAt(args, 5));
    return grid.add(cell);
}

Json resetComboData(GridModel& grid, const Json& args)
{
    Entries entries;
    for (std::size_t entry = 0; entry < args.at(1).size() && entry < args.at(2).size(); ++entry)
        entries.emplace_back(args.at(1).at(entry).get<std::string>(), args.at(2).at(entry));
    grid.resetComboData(idOf(args), entries, args.at(3).get<int>());
    return nullptr;
}

Json setItemUnit(GridModel& grid, const Json& args)
{
    if (args.size() == 2) {
        grid.setItemUnit(idOf(args), textAt(args, 1));
    } else {
        grid.setItemUnit(idOf(args), textAt(args, 1), doubleAt(args, 2), doubleAt(args, 3), doubleAt(args, 4),
                         args.at(5).get<bool>());
    }
    return nullptr;
}

Json setItemEditable(GridModel& grid, const Json& args)
{
    if (Cell* cell = grid.find(idOf(args)))
        cell->editable = args.at(1).get<bool>();
    return nullptr;
}

Json setItemFilterBlacklist(GridModel& grid, const Json& args)
{
    if (args.at(1).get<bool>())
        grid.blacklist.insert(idOf(args));
    else
        grid.blacklist.erase(idOf(args));
    return nullptr;
}

Json cellRange(GridModel& grid, const Json& args)
{
    const Cell* cell = grid.find(idOf(args));
    const bool limited = cell && !cell->units.empty() && cell->kind != Kind::Text;
    return limited ? Json::array({cell->current().min, cell->current().max}) : Json::array({0.0, 0.0});
}

Json itemTimeRangeType(GridModel& grid, const Json& args)
{
    const Cell* cell = grid.find(idOf(args));
    return cell && cell->kind == Kind::Period ? cell->rangeType : 0;
}

#define ORDERPARAM_CALL(expression) [](GridModel& grid, const Json& args) -> Json { return expression; }
#define ORDERPARAM_DO(expression) ORDERPARAM_CALL((expression, Json()))

// clang-format off
const std::unordered_map<std::string, Call> kCalls = {
    {"addParamCell", addParamCell},
    {"addCheckParamUnitCell", addCheckParamUnitCell},
    {"itemDouble", ORDERPARAM_CALL(jsonOf(grid.itemDouble(idOf(args))))},
    {"itemInt", ORDERPARAM_CALL(grid.itemInt(idOf(args)))},
    {"itemText", ORDERPARAM_CALL(grid.itemText(idOf(args)))},
    {"itemUnit", ORDERPARAM_CALL(grid.itemUnit(idOf(args)))},
    {"timeElapse", ORDERPARAM_CALL(grid.timeElapse(idOf(args)))},
    {"itemTimeRangeType", itemTimeRangeType},
    {"cellRange", cellRange},
    {"resetCellRange", ORDERPARAM_DO(grid.resetCellRange(idOf(args), doubleAt(args, 1), doubleAt(args, 2)))},
    {"setItemDouble", ORDERPARAM_DO(grid.setItemDouble(idOf(args), doubleAt(args, 1)))},
    {"setItemInt", ORDERPARAM_DO(grid.setItemDouble(idOf(args), args.at(1).get<int>()))},
    {"setCheckDouble",
     ORDERPARAM_DO(grid.setCheckDouble(idOf(args), args.at(1).get<bool>(), doubleAt(args, 2)))},
    {"setComboData", ORDERPARAM_DO(grid.setComboData(idOf(args), args.at(1)))},
    {"resetComboData", resetComboData},
    {"setItemText", ORDERPARAM_DO(grid.setItemText(idOf(args), textAt(args, 1)))},
    {"setItemName", ORDERPARAM_DO(grid.setItemName(idOf(args), textAt(args, 1)))},
    {"setItemUnit", setItemUnit},
    {"setItemTick", ORDERPARAM_DO(grid.setItemTick(idOf(args), textAt(args, 1), doubleAt(args, 2)))},
    {"setItemEditable", setItemEditable},
    {"setItemHidden", ORDERPARAM_DO(grid.setItemHidden(idOf(args), args.at(1).get<bool>()))},
    {"setItemFilterBlacklist", setItemFilterBlacklist},
    {"clearFilterBlacklist", [](GridModel& grid, const Json& /*args*/) -> Json { grid.blacklist.clear(); return {}; }},
    {"setVisibleItemSet", ORDERPARAM_DO(grid.visible = args.at(0).get<std::set<int>>())},
    {"addVisibleItemSet", ORDERPARAM_DO(grid.visible.insert(idOf(args)))},
    {"removeVisbleItemSet", ORDERPARAM_DO(grid.visible.erase(idOf(args)))},
    {"setAllItemSet", ORDERPARAM_DO(grid.all = args.at(0).get<std::set<int>>())},
    {"addAllItemSet", ORDERPARAM_DO(grid.all.insert(idOf(args)))},
    {"clearVisibleItem", [](GridModel& grid, const Json& /*args*/) -> Json { grid.visible.clear(); return {}; }},
    {"showAllItems", [](GridModel& grid, const Json& /*args*/) -> Json { grid.visible.clear(); return {}; }},
    {"setCustomWidgetVisible", ORDERPARAM_DO(grid.footer = args.at(0).get<bool>())},
    {"setAllItemEnable", ORDERPARAM_DO(grid.enabled = args.at(0).get<bool>())},
};
// clang-format on

#undef ORDERPARAM_DO
#undef ORDERPARAM_CALL

} // namespace

Json callGrid(GridModel& grid, const std::string& operation, const Json& args)
{
    return kCalls.at(operation)(grid, args);
}

} // namespace model
