#include "replay/Operation.h"
#include "replay/Probes.h"

namespace replay {

namespace {

using ttservice::CCodeOrderParam;
using ttservice::COrderSetting;
using Table = TC::COrderParamBaseTable;

/// Lists of labels with their values, which several operations append to.
struct Entries
{
    QStringList labels;
    QVector<QVariant> values;
};

Json written(const Entries& entries)
{
    return {{"labels", replay::written(entries.labels)}, {"values", replay::written(entries.values)}};
}

Json cellTableOf(Table& table)
{
    return table.getMultiParamsTable() ? Json{{"widget", table.objectName().toStdString()}} : Json();
}

Json levels(Table& table)
{
    Entries entries;
    table.genPriceTypeBySubType(entries.labels, entries.values);
    return written(entries);
}

Json priceTypes(BaseTableProbe& table, int flags, int market, bool apply, QString current)
{
    Entries entries;
    table.doResetPriceType(entries.labels, entries.values, flags, market, apply, current);
    return written(entries);
}

Json filledOrderParam(Table& table, QString code, int key, CCodeOrderParam record, double price)
{
    table.fillOrderParam(code, key, record, price);
    return replay::written(record);
}

Json savedOpParam(Table& table, QString code, std::optional<COrderSetting> setting)
{
    table.saveOpParam(code, setting ? &*setting : nullptr);
    return replay::written(setting);
}

void loadOpParam(Table& table, std::optional<COrderSetting> setting, double price)
{
    table.loadOpParam(setting ? &*setting : nullptr, price);
}

void showOrderParamButton(Table& table, std::optional<COrderSetting> setting)
{
    table.showOrderParamBtn(setting ? &*setting : nullptr);
}

Json changedPriceType(Table& table, ttservice::EPriceType priceType)
{
    const bool answer = table.changePriceType(priceType);
    return {{"result", answer}, {"priceType", static_cast<int>(priceType)}};
}

Json priceLimitMessage(Table& table)
{
    QString message;
    const bool answer = table.checkPriceLimit(message);
    return {{"result", answer}, {"message", replay::written(message)}};
}

Json priceLimit(Table& table)
{
    double low = 0.0;
    double high = 0.0;
    table.getPriceLimit(low, high);
    return {{"low", replay::written(low)}, {"high", replay::written(high)}};
}

} // namespace

// clang-format off
const Operations& baseTableOperations()
{
    static const Operations operations = {
        operation<Table>("setStockCode", &Table::setStockCode, "code"),
        operation<Table>("clear", &Table::clear),
        operation<Table>("setParam", &Table::setParam, "text"),
        operation<Table>("param", &Table::param),
        operation<Table>("save", &Table::save),

        operation<Table>("getId", &Table::getId),
        operation<Table>("getMultiParamsTable", &cellTableOf),
        operation<Table>("orderType", &Table::orderType),
        operation<Table>("getOperationType", &Table::getOperationType),
        operation<Table>("priceType", &Table::priceType),
        operation<Table>("getStockCode", &Table::getStockCode),
        operation<Table>("isOrderService", &Table::isOrderService),
        operation<Table>("isCloseSetting", &Table::isCloseSetting),
        operation<Table>("isTrdParamTable", &Table::isTrdParamTable),
        operation<Table>("setAllItemEnable", &Table::setAllItemEnable, "enable"),
        operation<Table>("setFlag", &Table::setFlag, "flags"),
        operation<Table>("setInstrument", &Table::setInstrument, "detail"),

        operation<Table>("setExpandItemsHidden", &Table::setExpandItemsHidden, "hidden"),
        operation<Table>("isExpand", &Table::isExpand),
        operation<Table>("loadVisibleFlag", &Table::loadVisibleFlag),
        operation<Table>("saveVisibleFlag", &Table::saveVisibleFlag, "skip"),
        operation<Table>("hideAlgTable", &Table::hideAlgTable),
        operation<Table>("setVisibleByID", &Table::setVisibleByID, "buttonId, visible"),
        operation<Table>("setVisibleByOrderType", &Table::setVisibleByOrderType, "type, visible"),
        operation<Table>("handleScaleChanged", &Table::handleScaleChanged),
        operation<Table>("themeChanged", &Table::themeChanged),

        operation<Table>("showOrderParamBtn", &showOrderParamButton, "setting"),
        operation<Table>("setShowTimeAlgorith", &Table::setShowTimeAlgorith, "visible"),
        operation<Table>("showSelectButton", &Table::showSelectButton, "buttonId"),
        operation<Table>("getSelectedButton", &Table::getSelectedButton),
        operation<Table>("getBtnIDByName", &Table::getBtnIDByName, "name"),
        operation<Table>("getBtnNameByID", &Table::getBtnNameByID, "buttonId"),
        operation<Table>("forceHideHelpBtn", &Table::forceHideHelpBtn, "hide"),

        operation<Table>("genPriceTypeBySubType", &levels),
        operation<Table>("setPriceType", &Table::setPriceType, "priceType"),
        operation<Table>("selectPrice", &Table::selectPrice, "priceType"),
        operation<Table>("getCurrentPriceTypeName", &Table::getCurrentPriceTypeName),

        operation<Table>("setOperationType", &Table::setOperationType, "operationType"),
        operation<Table>("setOrderType", &Table::setOrderType, "type"),
        operation<Table>("singleVolType", &Table::singleVolType),
        operation<Table>("isRandVolume", &Table::isRandVolume),
        operation<Table>("bShowHelp", &Table::bShowHelp, "type"),

        operation<Table>("setFixedPrice", &Table::setFixedPrice, "price"),
        operation<Table>("setOriginalPrice", &Table::setOriginalPrice, "price"),
        operation<Table>("bSuperPriceHide", &Table::bSuperPriceHide),
        operation<Table>("bSuperPriceStartHide", &Table::bSuperPriceStartHide),
        operation<Table>("getModifiedPriceByOptTypeForCalc", &Table::getModifiedPriceByOptTypeForCalc,
                         "operationType, zeroIfUnset"),
        operation<Table>("getModifiedPriceByOptTypeForOrder", &Table::getModifiedPriceByOptTypeForOrder,
                         "operationType"),
        operation<Table>("modPriceCell", &Table::modPriceCell),
        operation<Table>("resetTriggerPriceSetting", &Table::resetTriggerPriceSetting),

        operation<Table>("getDefault", &Table::getDefault),
        staticOperation("getDefaultOrderSetting", &Table::getDefaultOrderSetting, "operationType, traderType, type"),
        operation<Table>("getOrderSettings", &Table::getOrderSettings, "key"),
        operation<Table>("setOrderSettings", &Table::setOrderSettings, "key, setting"),
        staticOperation("orderSetting2Param", &Table::orderSetting2Param, "setting"),
        operation<Table>("loadCheckParam", &Table::loadCheckParam),
        operation<Table>("setCheckParam", &Table::setCheckParam, "text"),
        operation<Table>("updateCmdLog", &Table::updateCmdLog),
        operation<Table>("getCmdLog", &Table::getCmdLog),

        operation<Table>("fillOrderParam", &filledOrderParam, "code, key, param, price"),
        operation<Table>("loadFromOrderParam", &Table::loadFromOrderParam, "param, flag, text"),
        operation<Table>("getAlgParamsStr",
            static_cast<std::string (Table::*)(std::vector<CCodeOrderParam>)>(&Table::getAlgParamsStr), "params"),
        operation<Table>("getAlgParamsStr",
            static_cast<std::string (Table::*)(CCodeOrderParam)>(&Table::getAlgParamsStr), "param"),
        operation<Table>("getAlgoStrategyType", &Table::getAlgoStrategyType),
        operation<Table>("getAlgoStrategyTypeName", &Table::getAlgoStrategyTypeName),
        operation<Table>("loadOpParam", &loadOpParam, "setting, price"),
        operation<Table>("saveOpParam", &savedOpParam, "code, setting"),
        operation<Table>("resetOrderParamSetting", &Table::resetOrderParamSetting),
        operation<Table>("doGetSingleNvAlgoUiParam", &Table::doGetSingleNvAlgoUiParam, "type"),
        operation<Table>("doSetSingleNvAlgoUiParam", &Table::doSetSingleNvAlgoUiParam, "type, param"),
        operation<Table>("getAlgoPriceTypeName", &Table::getAlgoPriceTypeName),
        operation<Table>("changePriceType", &changedPriceType, "priceType"),
        operation<Table>("checkPriceLimit", &priceLimitMessage),
        operation<Table>("hasUpStopPrice", &Table::hasUpStopPrice),
        operation<Table>("getPriceLimit", &priceLimit),
        operation<Table>("handleWheel", &Table::handleWheel),
        operation<Table>("hideAmountUsed", &Table::hideAmountUsed),
        operation<Table>("onPriceTypeChange", &Table::onPriceTypeChange),
        operation<Table>("reSetPriceTypeEnable", &Table::reSetPriceTypeEnable),
        operation<Table>("resetCurrentPriceType", &Table::resetCurrentPriceType),
        operation<Table>("resetMarketPriceType", &Table::resetMarketPriceType),
        operation<Table>("resetStrategyType", &Table::resetStrategyType, "type, strategy"),
        operation<Table>("setAlgirithmBtnVisible", &Table::setAlgirithmBtnVisible, "type"),
        operation<Table>("setTableEnabled", &Table::setTableEnabled, "type, enable"),
        operation<Table>("setTableUIByParams", &Table::setTableUIByParams, "platform"),
        operation<Table>("updateIntervalUnit", &Table::updateIntervalUnit),
        operation<Table>("updatePriceLimit", &Table::updatePriceLimit),
        operation<Table>("updateRandomVolume", &Table::updateRandomVolume),
        operation<Table>("updateUnit", &Table::updateUnit),
    };
    return operations;
}

const Operations& baseTableProbeOperations()
{
    using Probe = BaseTableProbe;
    static const Operations operations = {
        operation<Probe>("reloadParam", &Probe::reloadParam),
        operation<Probe>("changeSuperPrice", &Probe::changeSuperPrice, "value"),
        operation<Probe>("doResetPriceType", &priceTypes, "flags, market, apply, current"),
        operation<Probe>("fixPriceInRange", &Probe::fixPriceInRange, "value"),
        operation<Probe>("fixSuperPrice", &Probe::fixSuperPrice),
        operation<Probe>("getRealVolumeType", &Probe::getRealVolumeType, "type"),
        operation<Probe>("isAuthorityLegal", &Probe::isAuthorityLegal, "module"),
        operation<Probe>("isComposeFuture", &Probe::isComposeFuture),
        operation<Probe>("isComposeStock", &Probe::isComposeStock),
        operation<Probe>("onVolumeTypeChange", &Probe::onVolumeTypeChange, "type"),
        operation<Probe>("resetBtnType", &Probe::resetBtnType),
        operation<Probe>("resetCellVisibilities", &Probe::resetCellVisibilities),
        operation<Probe>("resetLayout", &Probe::resetLayout, "size"),
        operation<Probe>("resetPriceType", &Probe::resetPriceType),
        operation<Probe>("resetShowFixPrice", &Probe::resetShowFixPrice),
        operation<Probe>("resetSuperPrice", &Probe::resetSuperPrice),
        operation<Probe>("resetSuperPriceShow", &Probe::resetSuperPriceShow),
        operation<Probe>("resetTableByPriceType", &Probe::resetTableByPriceType),
        operation<Probe>("setAlgoBtnVisible", &Probe::setAlgoBtnVisible),
        operation<Probe>("setPriceImpl", &Probe::setPriceImpl, "price, text"),
        operation<Probe>("showAlgo", &Probe::showAlgo),
        operation<Probe>("showAlgoHelpButton", &Probe::showAlgoHelpButton),
        operation<Probe>("slotShouldHintAlgorithm", &Probe::slotShouldHintAlgorithm, "orderType, hint"),
        operation<Probe>("updateCurrentPriceTypeName", &Probe::updateCurrentPriceTypeName),
    };
    return operations;
}
// clang-format on

} // namespace replay
