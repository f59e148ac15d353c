#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <OrderParamTable_mini/semantics/IdentitySets.h>
#include <OrderParamTable_mini/semantics/OrderModes.h>
#include <OrderParamTable_mini/semantics/OrderState.h>

#include <WQ/CMultiParamsTable.h>

namespace TC {

using namespace ttservice;

COrderParamBaseTable::~COrderParamBaseTable() = default;

OrderState COrderParamBaseTable::state() const
{
    return {m_id, m_brokerType, m_traderType, m_orderType, m_operationType, m_lastFlag};
}

EOpParamWidgetID COrderParamBaseTable::getId() const
{
    return m_id;
}

WQ::CMultiParamsTable* COrderParamBaseTable::getMultiParamsTable()
{
    return m_table;
}

EOrderType COrderParamBaseTable::orderType() const
{
    return m_orderType;
}

EOperationType COrderParamBaseTable::getOperationType() const
{
    return m_operationType;
}

EPriceType COrderParamBaseTable::priceType() const
{
    return m_priceType;
}

QString COrderParamBaseTable::getStockCode() const
{
    return m_stockCode;
}

void COrderParamBaseTable::setStockCode(QString code)
{
    m_stockCode = code;
    resetPriceType();
}

bool COrderParamBaseTable::isOrderService() const
{
    return kOrderServiceTables.contains(m_id);
}

bool COrderParamBaseTable::isCloseSetting() const
{
    return kCloseSettingTables.contains(m_id);
}

bool COrderParamBaseTable::isComposeFuture()
{
    return kComposeFutureTables.contains(m_id);
}

bool COrderParamBaseTable::isComposeStock()
{
    return kComposeStockTables.contains(m_id);
}

bool COrderParamBaseTable::isTrdParamTable() const
{
    return isTradeParameterType(m_orderType);
}

bool COrderParamBaseTable::isAuthorityLegal(std::string)
{
    return true;
}

void COrderParamBaseTable::setAllItemEnable(bool enable)
{
    if (m_table)
        m_table->setAllItemEnable(enable);
}

void COrderParamBaseTable::setFlag(OperationCellFlags flags)
{
    m_flags = flags;
    resetCellVisibilities();
    resetSuperPrice();
}

void COrderParamBaseTable::setInstrument(std::shared_ptr<CInstrumentDetail>)
{
}

} // namespace TC
