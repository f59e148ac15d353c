#pragma once

#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

/// A global table with its records within reach.
class GlobalTableProbe : public TC::CGlobalOrderParamTable
{
public:
    explicit GlobalTableProbe(int id = 31, int broker = 2)
        : TC::CGlobalOrderParamTable(TC::EOpParamWidgetID(id), ttservice::ENVBrokerType(broker), true, nullptr, true,
                                     ttservice::TRADER_TYPE_1, false)
    {
    }

    ttservice::COrderSetting& record(int orderType)
    {
        return m_settingsByOrderType[orderType];
    }

    bool hasRecord(int orderType) const
    {
        return m_settingsByOrderType.contains(orderType);
    }

    int recordCount() const
    {
        return m_settingsByOrderType.size();
    }

    using TC::CGlobalOrderParamTable::m_btnGroup;
    using TC::CGlobalOrderParamTable::m_workingSetting;
    using TC::CGlobalOrderParamTable::reloadParam;
    using TC::CGlobalOrderParamTable::resetStrategyType;
};
