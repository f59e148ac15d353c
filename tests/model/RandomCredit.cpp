#include "model/RandomValues.h"

namespace model {

using namespace values;

namespace {

rc::Gen<Json> operationKey()
{
    return oneOf({22, 23, 24, 25, 1021, -1, 7});
}

rc::Gen<std::string> group()
{
    const auto row = oneOf({"726=A1", "727=X1", "727=", "728=12", "728=1.255", "729=30", "730=99.5", "730=abc",
                            "731=4=5", "731", "=", "0=1", "728=1=2", "731=77"});
    return rc::gen::map(rc::gen::pair(operationKey(), rc::gen::resize(7, rc::gen::container<std::vector<Json>>(row))),
                        [](const std::pair<Json, std::vector<Json>>& parts) {
                            std::string joined = std::to_string(parts.first.get<int>());
                            for (const Json& entry : parts.second) {
                                joined += "-" + entry.get<std::string>();
                            }
                            return joined;
                        });
}

rc::Gen<Json> parameterString()
{
    return rc::gen::map(
        rc::gen::pair(operationKey(), rc::gen::resize(3, rc::gen::container<std::vector<std::string>>(group()))),
        [](const std::pair<Json, std::vector<std::string>>& parts) {
            std::string joined = std::to_string(parts.first.get<int>());
            for (const std::string& piece : parts.second)
                joined += "+" + piece;
            return Json(joined);
        });
}

} // namespace

rc::Gen<Command> randomCreditCommand(bool isProbe)
{
    const auto odd =
        oneOf({"", "+", "22+", "x+y", "24", "1021+", "23+22-726=A-727=B-728=1-729=2", "++", "-1+-5-1=2-3=4-5=6-7=8"});
    const auto contract =
        oneOf({nullptr, Json{{"unrepaidVolume", 5}, {"key", "K"}}, Json{{"unrepaidFees", 2.5}, {"key", nullptr}}});
    const auto row728 = oneOf({726, 727, 728, 729, 730, 731, 1});
    std::vector<rc::Gen<Command>> gens = {
        operation("call", "setParam", parameterString()),
        operation("call", "setParam", parameterString()),
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
        operation("call", "setOperationType", operationKey(), boolean()),
        operation("grid", "resetComboData", oneOf({726}), oneOf({Json::array({"甲", "乙"}), Json::array()}),
                  oneOf({Json::array({"A1", "12"}), Json::array({"A1"})}), oneOf({0, 1, -1})),
        operation("grid", "setItemHidden", row728, boolean()),
        operation("grid", "setItemEditable", row728, boolean()),
        command("event", {"args"},
                oneOf({Json::array({73, 726, 0, ""}), Json::array({73, 727, 0, "x"}), Json::array({102, 727, 0, ""}),
                       Json::array({5, 600, 0, ""})})),
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
        gens.push_back(operation("call", "getCurrentCompactType", operationKey()));
        gens.push_back(operation("call", "getCurrentNumUnit"));
        gens.push_back(operation("call", "saveUIDataToMap"));
    }
    return rc::gen::join(rc::gen::elementOf(std::move(gens)));
}

} // namespace model
