#include <OrderParamTable_mini/tables/CStopLossOrderParamTable.h>

namespace TC {

using namespace ttservice;

CStopLossOrderParamTable::CStopLossOrderParamTable(EOpParamWidgetID id, ENVBrokerType brokerType, QWidget* parent)
    : COrderParamBaseTable(id, brokerType, true, parent, true, TRADER_TYPE_1, false)
{
    setExpandItemsHidden(false);
}

CStopLossOrderParamTable::~CStopLossOrderParamTable() = default;

void CStopLossOrderParamTable::setStopLoss(QString first, QString second)
{
    m_stopLossPrice = first;
    m_secondStopLoss = second;
}

void CStopLossOrderParamTable::setParam(const QString&)
{
}

QString CStopLossOrderParamTable::param() const
{
    return {};
}

void CStopLossOrderParamTable::save()
{
}

void CStopLossOrderParamTable::reloadParam()
{
}

} // namespace TC
