#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <OrderParamTable_mini/frame/CellCatalogue.h>
#include <OrderParamTable_mini/frame/Services.h>
#include <OrderParamTable_mini/semantics/CommandLogRules.h>

#include <WQ/CMultiParamsTable.h>

namespace TC {

void COrderParamBaseTable::updateCmdLog()
{
    if (isModuleOn(FeatureModule::CommandRemark) && mayCarryRemark(m_id) && m_table)
        addRemarkCell(*m_table);
}

std::string COrderParamBaseTable::getCmdLog() const
{
    return m_table ? m_table->itemText(OCF_InvestRemark).toStdString() : std::string();
}

} // namespace TC
