#pragma once

#include <OrderParamTable_mini/credit/CCreditParamTable.h>

namespace support {

/// A credit table whose protected side tests may reach.
class CreditProbe : public TC::CCreditParamTable
{
public:
    using TC::CCreditParamTable::CCreditParamTable;

    using TC::CCreditParamTable::fixCodeChanged;
    using TC::CCreditParamTable::getAvailableNum;
    using TC::CCreditParamTable::getComBoDisplayAccounts;
    using TC::CCreditParamTable::getCompatctByCode;
    using TC::CCreditParamTable::getCurrentCompactType;
    using TC::CCreditParamTable::getCurrentNumUnit;
    using TC::CCreditParamTable::handleEvent;
    using TC::CCreditParamTable::refreshUIData;
    using TC::CCreditParamTable::resetColumnWidth;
    using TC::CCreditParamTable::resizeEvent;
    using TC::CCreditParamTable::resizeTable;
    using TC::CCreditParamTable::saveUIDataToMap;
    using TC::CCreditParamTable::setFixCodeText;
    using TC::CCreditParamTable::setOptBuySecuRepayNum;

    using TC::CCreditParamTable::m_compactBrushSource;
    using TC::CCreditParamTable::m_isFontScale;
    using TC::CCreditParamTable::m_operationType;
    using TC::CCreditParamTable::m_savedValues;
    using TC::CCreditParamTable::m_table;
    using TC::CCreditParamTable::m_useAllCompacts;
};

} // namespace support
