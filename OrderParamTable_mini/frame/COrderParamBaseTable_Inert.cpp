// Operations of wider editions. Hosts call them; here they answer as if nothing was to be done.

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

namespace TC {

using namespace ttservice;

void COrderParamBaseTable::clear()
{
}

void COrderParamBaseTable::fillOrderParam(QString, int, CCodeOrderParam&, double) const
{
}

void COrderParamBaseTable::loadFromOrderParam(const CCodeOrderParam&, bool, std::string)
{
}

std::string COrderParamBaseTable::getAlgParamsStr(std::vector<CCodeOrderParam>)
{
    return {};
}

std::string COrderParamBaseTable::getAlgParamsStr(CCodeOrderParam param)
{
    return getAlgParamsStr(std::vector<CCodeOrderParam>{param});
}

std::string COrderParamBaseTable::getAlgoStrategyType()
{
    return {};
}

std::string COrderParamBaseTable::getAlgoStrategyTypeName()
{
    return {};
}

void COrderParamBaseTable::loadOpParam(const COrderSetting*, double)
{
}

void COrderParamBaseTable::saveOpParam(QString, COrderSetting*) const
{
}

void COrderParamBaseTable::resetOrderParamSetting()
{
    save();
}

QString COrderParamBaseTable::doGetSingleNvAlgoUiParam(EOrderType) const
{
    return {};
}

void COrderParamBaseTable::doSetSingleNvAlgoUiParam(EOrderType, const QString&)
{
}

QString COrderParamBaseTable::getAlgoPriceTypeName() const
{
    return {};
}

bool COrderParamBaseTable::changePriceType(EPriceType&)
{
    return true;
}

bool COrderParamBaseTable::checkPriceLimit(QString&)
{
    return true;
}

bool COrderParamBaseTable::hasUpStopPrice()
{
    return true;
}

void COrderParamBaseTable::getPriceLimit(double&, double&)
{
}

void COrderParamBaseTable::handleWheel()
{
}

void COrderParamBaseTable::hideAmountUsed()
{
}

void COrderParamBaseTable::onPriceTypeChange()
{
}

void COrderParamBaseTable::reSetPriceTypeEnable()
{
}

void COrderParamBaseTable::resetCurrentPriceType()
{
}

void COrderParamBaseTable::resetMarketPriceType()
{
}

void COrderParamBaseTable::resetStrategyType(EOrderType, QString)
{
}

void COrderParamBaseTable::setAlgirithmBtnVisible(EOrderType)
{
}

void COrderParamBaseTable::setTableEnabled(EOrderType, bool)
{
}

void COrderParamBaseTable::setTableUIByParams(ETradePlatform)
{
}

void COrderParamBaseTable::updateIntervalUnit()
{
}

void COrderParamBaseTable::updatePriceLimit()
{
}

void COrderParamBaseTable::updateRandomVolume()
{
}

void COrderParamBaseTable::updateUnit()
{
}

} // namespace TC
