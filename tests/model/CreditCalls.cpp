#include "model/CreditModel.h"

#include <unordered_map>

namespace model {

namespace {

constexpr int kAccount = 726;
constexpr int kCode = 727;
constexpr int kUnrepaid = 728;

int compactType(int operation)
{
    switch (operation) {
    case 22:
    case 23:
    case 1021:
        return 49;
    case 24:
    case 25:
        return 48;
    default:
        return 32;
    }
}

using Call = Json (*)(CreditModel&, const Json&);

Json nothing(CreditModel& /*table*/, const Json& /*args*/)
{
    return nullptr;
}

// clang-format off
const std::unordered_map<std::string, Call> kCalls = {
    {"setIsFontScale", nothing},
    {"setCompactBrushSourceType", nothing},
    {"refreshAccounts", [](CreditModel& table, const Json&) -> Json {
        table.grid.resetComboData(kAccount, {}, -1);
        return nullptr;
    }},
    {"setSelectAccount", [](CreditModel& table, const Json& args) -> Json {
        table.setSelectAccount(args.at(0).get<std::string>());
        return nullptr;
    }},
    {"getSelectAccount", [](CreditModel& table, const Json&) -> Json { return table.selectedAccount(); }},
    {"getCurrentCode", [](CreditModel& table, const Json&) -> Json { return table.grid.itemText(kCode); }},
    {"getDefaultCompact", nothing},
    {"getCompatctByCode", nothing},
    {"refreshAvailableNum", [](CreditModel&, const Json&) -> Json { return true; }},
    {"getUnRepayNum", [](CreditModel&, const Json&) -> Json { return 0.0; }},
    {"getAllUnrepayValue", [](CreditModel& table, const Json&) -> Json { return table.allUnrepaid(); }},
    {"getDefaultUnrepayValue", [](CreditModel&, const Json&) -> Json { return "0"; }},
    {"getTodayAvailableNum", [](CreditModel& table, const Json&) -> Json { return table.todayAvailable(); }},
    {"refreshUnrepayValue", [](CreditModel& table, const Json& args) -> Json {
        table.grid.setItemText(kUnrepaid, args.at(0).get<std::string>());
        return nullptr;
    }},
    {"setStkCompacts", [](CreditModel& table, const Json& args) -> Json {
        table.setStkCompacts(args.at(0), args.at(1).get<std::string>(), args.at(2).get<bool>());
        return nullptr;
    }},
    {"setStockCode", [](CreditModel& table, const Json& args) -> Json {
        table.setStockCode(args.at(0).get<std::string>(), args.at(1).get<std::string>(), args.at(2).get<bool>());
        return nullptr;
    }},
    {"param", [](CreditModel& table, const Json&) -> Json { return table.param(); }},
    {"setParam", [](CreditModel& table, const Json& args) -> Json {
        table.setParam(args.at(0).get<std::string>());
        return nullptr;
    }},
    {"doStockUnitChange", nothing},
    {"setOperationType", nothing},
    {"fixCodeChanged", [](CreditModel& table, const Json& args) -> Json {
        table.fixCodeChanged(args.at(0).get<std::string>());
        return nullptr;
    }},
    {"getCurrentCompactType", [](CreditModel&, const Json& args) -> Json {
        return compactType(args.at(0).get<int>());
    }},
    {"getCurrentNumUnit", [](CreditModel&, const Json&) -> Json { return 1.0; }},
    {"refreshUIData", [](CreditModel& table, const Json&) -> Json { table.refreshUiData(); return nullptr; }},
    {"resetColumnWidth", [](CreditModel& table, const Json&) -> Json { table.resetColumnWidth(); return nullptr; }},
    {"saveUIDataToMap", nothing},
    {"setFixCodeText", [](CreditModel& table, const Json& args) -> Json {
        table.setFixCodeText(args.at(0).get<std::string>(), args.at(1).get<bool>());
        return nullptr;
    }},
    {"setOptBuySecuRepayNum", nothing},
};
// clang-format on

} // namespace

Json CreditModel::call(const std::string& operation, const Json& args)
{
    return kCalls.at(operation)(*this, args);
}

} // namespace model
