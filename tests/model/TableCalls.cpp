#include "model/RecordModel.h"
#include "model/TableModel.h"

#include <algorithm>
#include <cmath>
#include <ctime>
#include <unordered_map>

namespace model {

std::int64_t World::now() const
{
    return clock ? *clock : static_cast<std::int64_t>(std::time(nullptr));
}

namespace {

using Call = Json (*)(TableModel& table, const Json& args);

int intAt(const Json& args, std::size_t index)
{
    return args.at(index).get<int>();
}

bool boolAt(const Json& args, std::size_t index)
{
    return args.at(index).get<bool>();
}

std::string textAt(const Json& args, std::size_t index)
{
    return args.at(index).get<std::string>();
}

Json listsOf(const Entries& entries)
{
    Json lists = {{"labels", Json::array()}, {"values", Json::array()}};
    for (const auto& [label, value] : entries) {
        lists["labels"].push_back(label);
        lists["values"].push_back(value);
    }
    return lists;
}

Json nothing(TableModel& /*table*/, const Json& /*args*/)
{
    return nullptr;
}

Json yes(TableModel& /*table*/, const Json& /*args*/)
{
    return true;
}

Json empty(TableModel& /*table*/, const Json& /*args*/)
{
    return "";
}

Json savesOnly(TableModel& table, const Json& /*args*/)
{
    table.save();
    return nullptr;
}

Json setShowTimeAlgorith(TableModel& table, const Json& args)
{
    const int id = table.group.idOf("隔时交易");
    if (id >= 0)
        table.group.setVisible(id, boolAt(args, 0));
    return nullptr;
}

Json getOrderSettings(TableModel& table, const Json& args)
{
    table.save();
    const auto found = table.settings.find(intAt(args, 0));
    return found == table.settings.end() ? emptySetting() : found->second;
}

Json getCurrentPriceTypeName(TableModel& table, const Json& /*args*/)
{
    if (table.priceTypeName.empty())
        table.updateCurrentPriceTypeName();
    return table.priceTypeName;
}

Json slotShouldHintAlgorithm(TableModel& table, const Json& args)
{
    table.hint(intAt(args, 0), boolAt(args, 1));
    return nullptr;
}

Json fixPriceInRange(TableModel& /*table*/, const Json& args)
{
    const double value = doubleOf(args.at(0));
    return std::fabs(value - kNoPrice) <= 1e-5 ? Json(0.0) : jsonOf(value);
}

Json changeSuperPrice(TableModel& table, const Json& args)
{
    const double value = doubleOf(args.at(0));
    return jsonOf(table.flags == 0x7103FFF && value < 0 ? 0.0 : value);
}

Json saveParamFlag(TableModel& table, const Json& /*args*/)
{
    table.saveVisibleFlag(table.expand);
    table.save();
    return nullptr;
}

Json onVolumeTypeChange(TableModel& table, const Json& args)
{
    table.grid.setItemHidden(0x40, intAt(args, 0) != 11);
    return nullptr;
}

Json setVisibleByOrderType(TableModel& table, const Json& args)
{
    if (intAt(args, 0) == 13)
        table.group.setVisible(613, boolAt(args, 1));
    return nullptr;
}

Json hideAlgTable(TableModel& table, const Json& /*args*/)
{
    table.group.setVisible(608, false);
    table.group.setVisible(611, false);
    return nullptr;
}

Json resetTriggerPriceSetting(TableModel& table, const Json& /*args*/)
{
    table.grid.setCheckDouble(0x100000, false, 0.0);
    table.save();
    return nullptr;
}

#define ORDERPARAM_CALL(expression)                   \
    [](TableModel& table, const Json& args) -> Json { \
        static_cast<void>(table);                     \
        static_cast<void>(args);                      \
        return expression;                            \
    }
#define ORDERPARAM_DO(expression) ORDERPARAM_CALL((expression, Json()))

// clang-format off
const std::unordered_map<std::string, Call> kCalls = {
    {"setStockCode", ORDERPARAM_DO(table.setStockCode(textAt(args, 0)))},
    {"clear", nothing},
    {"setParam", [](TableModel& table, const Json& args) -> Json {
        if (args.at(0).is_object())
            table.save();
        return nullptr;
    }},
    {"param", empty},
    {"save", savesOnly},
    {"reloadParam", ORDERPARAM_DO(table.reloadParam())},
    {"getId", ORDERPARAM_CALL(table.made.id)},
    {"orderType", ORDERPARAM_CALL(table.orderType)},
    {"getOperationType", ORDERPARAM_CALL(table.operationType)},
    {"priceType", ORDERPARAM_CALL(table.priceType)},
    {"getStockCode", ORDERPARAM_CALL(table.stockCode)},
    {"isOrderService", ORDERPARAM_CALL(table.idIn({15, 17, 18, 19, 20, 21, 22, 25, 26, 27, 28, 29, 30, 40}))},
    {"isCloseSetting", ORDERPARAM_CALL(table.isCloseSetting())},
    {"isTrdParamTable", ORDERPARAM_CALL(table.orderType < -1 || table.orderType > 3)},
    {"isComposeFuture", ORDERPARAM_CALL(table.idIn({8, 10, 23}))},
    {"isComposeStock", ORDERPARAM_CALL(table.idIn({7, 9, 22, 24}))},
    {"isAuthorityLegal", yes},
    {"setAllItemEnable", ORDERPARAM_DO(table.grid.enabled = boolAt(args, 0))},
    {"setFlag", ORDERPARAM_DO(table.setFlag(intAt(args, 0)))},
    {"setInstrument", nothing},

    {"resetCellVisibilities", ORDERPARAM_DO(table.resetCellVisibilities())},
    {"setExpandItemsHidden", ORDERPARAM_DO(table.setExpandItemsHidden(boolAt(args, 0)))},
    {"isExpand", ORDERPARAM_CALL(table.expand)},
    {"loadVisibleFlag", ORDERPARAM_DO(table.loadVisibleFlag())},
    {"saveVisibleFlag", ORDERPARAM_DO(table.saveVisibleFlag(boolAt(args, 0)))},
    {"hideAlgTable", hideAlgTable},
    {"setVisibleByID", ORDERPARAM_DO(table.group.setVisible(intAt(args, 0), boolAt(args, 1)))},
    {"setVisibleByOrderType", setVisibleByOrderType},
    {"handleScaleChanged", ORDERPARAM_DO(table.handleScaleChanged())},
    {"themeChanged", nothing},

    {"showOrderParamBtn", nothing},
    {"setShowTimeAlgorith", setShowTimeAlgorith},
    {"showSelectButton", ORDERPARAM_DO(table.group.setVisible(intAt(args, 0), true))},
    {"getSelectedButton", ORDERPARAM_CALL(table.group.selected())},
    {"getBtnIDByName", ORDERPARAM_CALL(table.group.idOf(textAt(args, 0)))},
    {"getBtnNameByID", ORDERPARAM_CALL(table.group.textOf(intAt(args, 0)))},
    {"forceHideHelpBtn", nothing},
    {"slotShouldHintAlgorithm", slotShouldHintAlgorithm},
    {"resetBtnType", ORDERPARAM_DO(table.resetBtnType())},
    {"setAlgoBtnVisible", ORDERPARAM_DO(table.announceOrderType())},
    {"showAlgo", ORDERPARAM_CALL(table.showAlgo())},
    {"showAlgoHelpButton", ORDERPARAM_CALL(table.showAlgoHelpButton())},

    {"genPriceTypeBySubType", ORDERPARAM_CALL(listsOf(table.bookLevels()))},
    {"doResetPriceType",
     ORDERPARAM_CALL(listsOf(table.priceTypes(intAt(args, 0), intAt(args, 1), boolAt(args, 2))))},
    {"resetPriceType", ORDERPARAM_DO(table.resetPriceType())},
    {"setPriceType", ORDERPARAM_DO(table.setPriceType(intAt(args, 0)))},
    {"selectPrice", ORDERPARAM_DO(table.selectPrice(intAt(args, 0)))},
    {"updateCurrentPriceTypeName", ORDERPARAM_DO(table.updateCurrentPriceTypeName())},
    {"getCurrentPriceTypeName", getCurrentPriceTypeName},

    {"setOperationType", ORDERPARAM_DO(table.setOperationType(intAt(args, 0)))},
    {"setOrderType", ORDERPARAM_DO(table.setOrderType(intAt(args, 0)))},
    {"singleVolType", ORDERPARAM_CALL(table.singleVolType())},
    {"onVolumeTypeChange", onVolumeTypeChange},
    {"getRealVolumeType", ORDERPARAM_CALL(args.at(0))},
    {"isRandVolume", ORDERPARAM_CALL(table.isRandVolume())},
    {"bShowHelp", [](TableModel& /*table*/, const Json& args) -> Json {
        const int type = intAt(args, 0);
        return type == 1 || type == 2 || type == 5 || type == 13;
    }},

    {"setFixedPrice", ORDERPARAM_DO(table.setFixedPrice(doubleOf(args.at(0))))},
    {"setOriginalPrice", ORDERPARAM_DO(table.setOriginalPrice(doubleOf(args.at(0))))},
    {"setPriceImpl", ORDERPARAM_DO(table.setPriceImpl(doubleOf(args.at(0)), textAt(args, 1)))},
    {"resetShowFixPrice", ORDERPARAM_DO(table.resetShowFixPrice())},
    {"resetSuperPrice", ORDERPARAM_DO(table.resetSuperPrice())},
    {"resetSuperPriceShow", ORDERPARAM_DO(table.resetSuperPriceShow())},
    {"fixSuperPrice", ORDERPARAM_DO(table.fixSuperPrice())},
    {"changeSuperPrice", changeSuperPrice},
    {"fixPriceInRange", fixPriceInRange},
    {"bSuperPriceHide", ORDERPARAM_CALL(false)},
    {"bSuperPriceStartHide", ORDERPARAM_CALL(table.bSuperPriceStartHide())},
    {"getModifiedPriceByOptTypeForCalc",
     ORDERPARAM_CALL(jsonOf(table.priceForCalc(intAt(args, 0), boolAt(args, 1))))},
    {"getModifiedPriceByOptTypeForOrder", ORDERPARAM_CALL(kNoPrice)},
    {"modPriceCell", ORDERPARAM_DO((table.fitHeight(), table.resetSuperPriceShow()))},
    {"resetTableByPriceType", ORDERPARAM_DO(table.resetTableByPriceType())},
    {"resetTriggerPriceSetting", resetTriggerPriceSetting},

    {"getDefault", ORDERPARAM_CALL(defaultSetting())},
    {"getDefaultOrderSetting", ORDERPARAM_CALL(defaultOrderSetting(intAt(args, 1), intAt(args, 2)))},
    {"getOrderSettings", getOrderSettings},
    {"setOrderSettings", ORDERPARAM_DO(table.settings[intAt(args, 0)] = settingOf(args.at(1)))},
    {"orderSetting2Param", ORDERPARAM_CALL(settingText(settingOf(args.at(0))))},
    {"loadCheckParam", ORDERPARAM_CALL(table.group.param())},
    {"setCheckParam", ORDERPARAM_DO(table.group.setParam(textAt(args, 0)))},
    {"updateCmdLog", ORDERPARAM_DO(table.updateCmdLog())},
    {"getCmdLog", ORDERPARAM_CALL(table.grid.itemText(0x4000000))},

    {"fillOrderParam", ORDERPARAM_CALL(args.at(2))},
    {"loadFromOrderParam", nothing},
    {"getAlgParamsStr", empty},
    {"loadOpParam", nothing},
    {"saveOpParam", ORDERPARAM_CALL(args.at(1).is_null() ? Json() : settingOf(args.at(1)))},
    {"resetOrderParamSetting", savesOnly},
    {"changePriceType", ORDERPARAM_CALL((Json{{"result", true}, {"priceType", args.at(0)}}))},
    {"checkPriceLimit", ORDERPARAM_CALL((Json{{"result", true}, {"message", ""}}))},
    {"getPriceLimit", ORDERPARAM_CALL((Json{{"low", 0.0}, {"high", 0.0}}))},
    {"hasUpStopPrice", yes},
    {"getAlgoPriceTypeName", empty},
    {"doGetSingleNvAlgoUiParam", empty},
    {"doSetSingleNvAlgoUiParam", nothing},
    {"getAlgoStrategyType", empty},
    {"getAlgoStrategyTypeName", empty},
    {"handleWheel", nothing},
    {"hideAmountUsed", nothing},
    {"onPriceTypeChange", nothing},
    {"reSetPriceTypeEnable", nothing},
    {"resetCurrentPriceType", nothing},
    {"resetMarketPriceType", nothing},
    {"resetStrategyType", nothing},
    {"setAlgirithmBtnVisible", nothing},
    {"setTableEnabled", nothing},
    {"setTableUIByParams", nothing},
    {"updateIntervalUnit", nothing},
    {"updatePriceLimit", nothing},
    {"updateRandomVolume", nothing},
    {"updateUnit", nothing},

    {"saveParam", savesOnly},
    {"getOrderSettingParam", empty},
    {"getSingleNvAlgoUiParam", empty},
    {"setSingleNvAlgoParam", nothing},
    {"getUiParamByTrdTradeParam", empty},
    {"setNvAlgoHideAmountUsed", nothing},
    {"fixTimeRange", nothing},
    {"transferTimePeriod", ORDERPARAM_CALL(table.transferTimePeriod(args.at(0)))},
    {"getDefaultParam", ORDERPARAM_CALL(emptySetting())},
    {"saveParamFlag", saveParamFlag},
    {"setOrderParam", nothing},
    {"setSell", nothing},
    {"setStopLoss", nothing},
};
// clang-format on

#undef ORDERPARAM_DO
#undef ORDERPARAM_CALL

} // namespace

Json TableModel::call(const std::string& operation, const Json& args)
{
    return kCalls.at(operation)(*this, args);
}

Json TableModel::transferTimePeriod(Json record) const
{
    const int type = record.is_null() ? 0 : record.value("orderType", 0);
    if (type == 0 || type == 6)
        return record;
    const Cell* cell = grid.find(0x800);
    const std::time_t now = static_cast<std::time_t>(world.now());
    std::time_t start = now;
    if (cell->rangeType != 0) {
        std::tm day = *std::localtime(&now);
        day.tm_hour = cell->start / 3600;
        day.tm_min = cell->start / 60 % 60;
        day.tm_sec = cell->start % 60;
        start = std::mktime(&day);
    }
    record["validTimeStart"] = static_cast<int>(start);
    record["validTimeEnd"] = static_cast<int>(start) + grid.timeElapse(0x800);
    return record;
}

} // namespace model
