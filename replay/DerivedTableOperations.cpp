#include "replay/Operation.h"

#include <OrderParamTable_mini/tables/CCodeOrderParamTable.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <OrderParamTable_mini/tables/CStopLossOrderParamTable.h>

namespace replay {

namespace {

using ttservice::CCodeOrderParam;
using ttservice::COrderSetting;
using Global = TC::CGlobalOrderParamTable;
using Code = TC::CCodeOrderParamTable;
using StopLoss = TC::CStopLossOrderParamTable;

std::optional<CCodeOrderParam> transferredTimePeriod(Global& table, std::optional<CCodeOrderParam> param)
{
    table.transferTimePeriod(param ? &*param : nullptr);
    return param;
}

} // namespace

// clang-format off
const Operations& globalTableOperations()
{
    static const Operations operations = {
        operation<Global>("getStockCode", &Global::getStockCode),
        operation<Global>("setParam", static_cast<void (Global::*)(const QString&)>(&Global::setParam), "text"),
        operation<Global>("setParam", static_cast<void (Global::*)(COrderSetting&)>(&Global::setParam), "setting"),
        operation<Global>("saveParam", &Global::saveParam),
        operation<Global>("getOrderSettingParam", &Global::getOrderSettingParam),
        operation<Global>("getSingleNvAlgoUiParam", &Global::getSingleNvAlgoUiParam, "type"),
        operation<Global>("setSingleNvAlgoParam", &Global::setSingleNvAlgoParam, "type, param"),
        operation<Global>("getUiParamByTrdTradeParam", &Global::getUiParamByTrdTradeParam, "type, tradeParam"),
        operation<Global>("resetStrategyType", &Global::resetStrategyType, "type, strategy"),
        operation<Global>("setNvAlgoHideAmountUsed", &Global::setNvAlgoHideAmountUsed, "hide, type"),
        operation<Global>("fixTimeRange", &Global::fixTimeRange),
        operation<Global>("transferTimePeriod", &transferredTimePeriod, "param"),
    };
    return operations;
}

const Operations& codeTableOperations()
{
    static const Operations operations = {
        operation<Code>("getDefaultParam", &Code::getDefaultParam),
        operation<Code>("saveParamFlag", &Code::saveParamFlag),
        operation<Code>("setOrderParam", &Code::setOrderParam, "code, setting"),
        operation<Code>("setSell", &Code::setSell, "sell"),
    };
    return operations;
}

const Operations& stopLossTableOperations()
{
    static const Operations operations = {
        operation<StopLoss>("setStopLoss", &StopLoss::setStopLoss, "first, second"),
    };
    return operations;
}
// clang-format on

} // namespace replay
