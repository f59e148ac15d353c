#include <OrderParamTable_mini/tables/CCodeOrderParamTable.h>

namespace TC {

using namespace ttservice;

CCodeOrderParamTable::CCodeOrderParamTable(EOpParamWidgetID id, ENVBrokerType brokerType, QWidget* parent, bool a,
                                           ENvTraderType traderType, bool b)
    : COrderParamBaseTable(id, brokerType, b, parent, a, traderType, false)
{
}

CCodeOrderParamTable::~CCodeOrderParamTable() = default;

void CCodeOrderParamTable::setStockCode(QString code)
{
    m_stockCode = code;
    COrderParamBaseTable::setStockCode(code);
}

COrderSetting CCodeOrderParamTable::getDefaultParam()
{
    return m_defaultSetting;
}

void CCodeOrderParamTable::saveParamFlag()
{
    saveVisibleFlag(isExpand());
    save();
}

void CCodeOrderParamTable::setOrderParam(QString, COrderSetting&)
{
}

void CCodeOrderParamTable::setSell(bool)
{
}

void CCodeOrderParamTable::setParam(const QString&)
{
}

QString CCodeOrderParamTable::param() const
{
    return {};
}

void CCodeOrderParamTable::save()
{
}

void CCodeOrderParamTable::reloadParam()
{
}

} // namespace TC
