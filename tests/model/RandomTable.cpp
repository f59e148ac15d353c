#include "model/RandomCommands.h"

#include "model/RandomValues.h"

namespace model {

using namespace values;

namespace {

rc::Gen<Command> call(const char* name)
{
    return operation("call", name);
}

template <class... Values>
rc::Gen<Command> call(const char* name, rc::Gen<Json> first, rc::Gen<Values>... rest)
{
    return operation("call", name, std::move(first), std::move(rest)...);
}

rc::Gen<Command> chosenFrom(std::vector<rc::Gen<Command>> gens)
{
    return rc::gen::join(rc::gen::elementOf(std::move(gens)));
}

rc::Gen<Json> taskRecord()
{
    return rc::gen::map(rc::gen::tuple(orderType(), wholeNumber()), [](const std::tuple<Json, Json>& values) {
        return Json{{"orderType", std::get<0>(values)}, {"validTimeStart", std::get<1>(values)}, {"code", "600000"}};
    });
}

rc::Gen<Command> setter()
{
    return chosenFrom({
        call("setOrderType", orderType()),
        call("setOrderType", orderType()),
        call("setOperationType", operationType()),
        call("setOperationType", operationType()),
        call("setPriceType", priceType()),
        call("selectPrice", priceType()),
        call("setFlag", flags()),
        call("setExpandItemsHidden", boolean()),
        call("setExpandItemsHidden", boolean()),
        call("setStockCode", text()),
        call("setFixedPrice", price()),
        call("setOriginalPrice", price()),
        call("saveVisibleFlag", boolean()),
        call("loadVisibleFlag"),
        call("hideAlgTable"),
        call("setVisibleByID", buttonId(), boolean()),
        call("setVisibleByOrderType", orderType(), boolean()),
        call("setAllItemEnable", boolean()),
        call("showOrderParamBtn", setting()),
        call("setShowTimeAlgorith", boolean()),
        call("showSelectButton", buttonId()),
        call("forceHideHelpBtn", boolean()),
        call("modPriceCell"),
        call("resetTriggerPriceSetting"),
        call("setOrderSettings", wholeNumber(), setting()),
        call("setCheckParam", oneOf({"", "600", "603,600", "605,600,613", "613", "x,600", "600,600", "99"})),
        call("updateCmdLog"),
        call("clear"),
        call("setParam", text()),
        call("save"),
        call("resetOrderParamSetting"),
        call("themeChanged"),
    });
}

rc::Gen<Command> getter()
{
    return chosenFrom({
        call("orderType"),
        call("getOperationType"),
        call("priceType"),
        call("getStockCode"),
        call("isExpand"),
        call("getId"),
        call("isOrderService"),
        call("isCloseSetting"),
        call("isTrdParamTable"),
        call("singleVolType"),
        call("isRandVolume"),
        call("bShowHelp", orderType()),
        call("bSuperPriceHide"),
        call("bSuperPriceStartHide"),
        call("getCurrentPriceTypeName"),
        call("getModifiedPriceByOptTypeForCalc", operationType(), boolean()),
        call("getModifiedPriceByOptTypeForOrder", operationType()),
        call("getSelectedButton"),
        call("getBtnIDByName", buttonText()),
        call("getBtnNameByID", buttonId()),
        call("loadCheckParam"),
        call("getCmdLog"),
        call("getOrderSettings", wholeNumber()),
        call("getDefault"),
        call("getDefaultOrderSetting", operationType(), trader(), orderType()),
        call("orderSetting2Param", setting()),
        call("genPriceTypeBySubType"),
        call("changePriceType", priceType()),
        call("checkPriceLimit"),
        call("getPriceLimit"),
        call("hasUpStopPrice"),
        call("param"),
    });
}

rc::Gen<Command> inert()
{
    return chosenFrom({
        call("handleWheel"),
        call("hideAmountUsed"),
        call("onPriceTypeChange"),
        call("reSetPriceTypeEnable"),
        call("resetCurrentPriceType"),
        call("resetMarketPriceType"),
        call("setAlgirithmBtnVisible", orderType()),
        call("setTableEnabled", orderType(), boolean()),
        call("updateIntervalUnit"),
        call("updatePriceLimit"),
        call("updateRandomVolume"),
        call("updateUnit"),
        call("getAlgoPriceTypeName"),
        call("getAlgoStrategyType"),
        call("doGetSingleNvAlgoUiParam", orderType()),
        call("doSetSingleNvAlgoUiParam", orderType(), text()),
        call("resetStrategyType", orderType(), text()),
        call("setTableUIByParams", wholeNumber()),
        call("setInstrument", oneOf({nullptr, Json{{"code", "600000"}}})),
        call("fillOrderParam", text(), wholeNumber(), taskRecord(), price()),
        call("loadFromOrderParam", taskRecord(), boolean(), text()),
        call("getAlgParamsStr", taskRecord()),
        call("getAlgParamsStr", oneOf({Json::array()})),
        call("loadOpParam", setting(), oneOf({0.001})),
        call("loadOpParam", oneOf({nullptr}), oneOf({0.001})),
        call("saveOpParam", text(), setting()),
    });
}

rc::Gen<Command> probed()
{
    return chosenFrom({
        call("resetCellVisibilities"),
        call("reloadParam"),
        call("changeSuperPrice", price()),
        call("fixPriceInRange", price()),
        call("fixSuperPrice"),
        call("doResetPriceType", oneOf({0, 1, 4, 8, 16, 23, 30, 31, 32, 36, 64, 68, 127, -1}),
             oneOf({0, 1, 2, 3, 4, 5, 6, -1}), boolean(), text()),
        call("doResetPriceType", oneOf({31, 4, 45, 77}), oneOf({1, 2, 3, 4, 5}), boolean(), text()),
        call("getRealVolumeType", wholeNumber()),
        call("isAuthorityLegal", text()),
        call("isComposeFuture"),
        call("isComposeStock"),
        call("onVolumeTypeChange", oneOf({10, 11, 12, -1})),
        call("resetBtnType"),
        call("resetPriceType"),
        call("resetShowFixPrice"),
        call("resetSuperPrice"),
        call("resetSuperPriceShow"),
        call("resetTableByPriceType"),
        call("setAlgoBtnVisible"),
        call("setPriceImpl", price(), text()),
        call("showAlgo"),
        call("showAlgoHelpButton"),
        call("slotShouldHintAlgorithm", orderType(), boolean()),
        call("updateCurrentPriceTypeName"),
    });
}

rc::Gen<Command> ownOperation(const std::string& className)
{
    if (className == "BaseTableProbe")
        return probed();
    if (className == "CGlobalOrderParamTable") {
        return chosenFrom({
            call("saveParam"),
            call("fixTimeRange"),
            call("setParam", setting()),
            call("setParam", oneOf({"", "a^b^c=d^e", "^^^", "x"})),
            call("transferTimePeriod", taskRecord()),
            call("transferTimePeriod", oneOf({nullptr})),
            call("getOrderSettingParam"),
            call("getSingleNvAlgoUiParam", orderType()),
            call("setSingleNvAlgoParam", orderType(), text()),
            call("getUiParamByTrdTradeParam", orderType(), text()),
            call("setNvAlgoHideAmountUsed", boolean(), orderType()),
        });
    }
    if (className == "CCodeOrderParamTable") {
        return chosenFrom({call("getDefaultParam"), call("saveParamFlag"), call("setOrderParam", text(), setting()),
                           call("setSell", boolean())});
    }
    return call("setStopLoss", text(), text());
}

rc::Gen<Json> eventArgs()
{
    const auto plain = rc::gen::tuple(oneOf({5, 87, 97, 101, 102, 118, 124, 248, 249, 1071, 74, 0, -1}), cell(),
                                      oneOf({0, 1, -1}), text());
    const auto click = rc::gen::tuple(oneOf({5}), buttonId(), oneOf({0}), buttonText());
    return rc::gen::map(rc::gen::oneOf(plain, click), [](const std::tuple<Json, Json, Json, Json>& values) {
        const auto& [event, a, b, label] = values;
        return Json::array({event, a, b, label});
    });
}

rc::Gen<Command> sentEvent()
{
    const auto changed =
        rc::gen::map(rc::gen::tuple(cell(), text(), priceType()), [](const std::tuple<Json, Json, Json>& values) {
            const auto& [id, label, value] = values;
            return Command{{{"do", "event"},
                            {"on", "t"},
                            {"args", Json::array({73, id, 0, label})},
                            {"data", {{"variant", value}}}}};
        });
    const auto outside = rc::gen::map(rc::gen::tuple(text(), priceType()), [](const std::tuple<Json, Json>& values) {
        return Command{{{"do", "event"},
                        {"on", "t"},
                        {"args", Json::array({1213, 0, 0, std::get<0>(values)})},
                        {"data", {{"int", std::get<1>(values)}}}}};
    });
    return chosenFrom(
        {command("event", {"args"}, eventArgs()), command("event", {"args"}, eventArgs()), changed, outside});
}

/// What is no command: it changes nothing.
rc::Gen<Command> wrongCommand()
{
    const auto line = [](Json json) { return rc::gen::just(Command{std::move(json)}); };
    return chosenFrom({
        line({{"do", "nothing"}, {"on", "t"}}),
        line({{"do", "call"}, {"on", "nobody"}, {"op", "orderType"}, {"args", Json::array()}}),
        line({{"do", "call"}, {"on", "t"}, {"op", "noOperation"}, {"args", Json::array()}}),
        line({{"do", "call"}, {"on", "t"}, {"op", "setOrderType"}, {"args", Json::array()}}),
        line({{"do", "call"}, {"on", "t"}, {"op", "setOrderType"}, {"args", {"one"}}}),
        line({{"do", "call"}, {"on", "t"}, {"op", "setFixedPrice"}, {"args", {nullptr}}}),
        line({{"do", "grid"}, {"on", "t"}, {"op", "setItemText"}, {"args", {1}}}),
        line({{"do", "edit"}, {"on", "t"}, {"cell", 4242}, {"value", 1}}),
        line({{"do", "click"}, {"on", "t"}}),
        line({{"do", "filter"}, {"on", "t"}, {"cells", Json::array()}}),
    });
}

rc::Gen<Command> surroundings()
{
    return chosenFrom({
        rc::gen::map(modules(),
                     [](const Json& on) {
                         return Command{{{"do", "modules"}, {"on", on}}};
                     }),
        rc::gen::map(oneOf({0, 100, 101, 102}),
                     [](const Json& mode) {
                         return Command{{{"do", "clientMode"}, {"value", mode}}};
                     }),
        rc::gen::map(oneOf({1763700000, 1763740799, 1763740800, 86399, 1600000000}),
                     [](const Json& epoch) {
                         return Command{{{"do", "clock"}, {"epoch", epoch}}};
                     }),
        rc::gen::map(
            rc::gen::tuple(orderType(), boolean()),
            [](const std::tuple<Json, Json>& values) {
                return Command{{{"do", "hint"}, {"orderType", std::get<0>(values)}, {"hint", std::get<1>(values)}}};
            }),
        rc::gen::map(oneOf({1.0, 1.25, 3.0}),
                     [](const Json& value) {
                         return Command{{{"do", "scale"}, {"value", value}}};
                     }),
        rc::gen::map(oneOf({"light", "dark"}),
                     [](const Json& name) {
                         return Command{{{"do", "theme"}, {"name", name}}};
                     }),
        call("handleScaleChanged"),
        command("resize", {"size"}, oneOf({Json::array({300, 200}), Json::array({300, 900}), Json::array({1, 1})})),
        command("addButton", {"id", "text"}, oneOf({601, 602, 603, 604, 605, 608, 611, 612, 613, 600, 599, 7}),
                buttonText()),
    });
}

} // namespace

rc::Gen<Command> randomTableCommand(const std::string& className)
{
    return rc::gen::weightedOneOf<Command>({
        {10, setter()},
        {2, getter()},
        {1, inert()},
        {5, ownOperation(className)},
        {4, sentEvent()},
        {2, surroundings()},
        {1, wrongCommand()},
        {3, randomGridCommand()},
        {9, randomPersonCommand()},
    });
}

} // namespace model
