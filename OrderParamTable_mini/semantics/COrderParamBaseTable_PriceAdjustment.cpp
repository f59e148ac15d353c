#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <OrderParamTable_mini/frame/CellUnits.h>
#include <OrderParamTable_mini/frame/HeldException.h>
#include <OrderParamTable_mini/semantics/CellMasks.h>
#include <OrderParamTable_mini/semantics/EventNumbers.h>
#include <OrderParamTable_mini/semantics/PriceAdjustment.h>

#include <WQ/CCheckParamUnitCellDelegate.h>
#include <WQ/CMultiParamsTable.h>

namespace TC {

using namespace ttservice;

void COrderParamBaseTable::setFixedPrice(double price)
{
    const HeldException held;
    if (!m_table || m_orderType == ORDER_TYPE_PARAM_SET_5)
        return;
    m_table->setComboData(OCF_PriceType, int(PRTP_FIX));
    updateCurrentPriceTypeName();
    resetTableByPriceType();
    if (!send(events::kPriceTypeApplied, m_id, PRTP_FIX, QString::fromLatin1("")))
        return;
    m_originalPrice = price;
    resetSuperPriceShow();
    announceChange(QString::fromLatin1(""));
}

void COrderParamBaseTable::setOriginalPrice(double price)
{
    if (m_priceType == PRTP_FIX)
        m_originalPrice = price;
}

// A typed price is never overwritten by a quoted one.
void COrderParamBaseTable::setPriceImpl(double price, QString text)
{
    const HeldException held;
    if (m_priceType == PRTP_FIX)
        return;
    m_originalPrice = price;
    send(events::kPriceDisplay, m_id, 0, text, &m_originalPrice);
}

void COrderParamBaseTable::resetShowFixPrice()
{
    const HeldException held;
    const PriceDisplayEvent display = priceDisplayEvent(m_priceType);
    if (display.event == 0 || !send(display.event, m_id, 1, QString::fromLatin1(display.colourKey)))
        return;
    // A listener that has chosen another price type meanwhile may have set its price.
    if (priceDisplayEvent(m_priceType).event != 0)
        m_originalPrice = kNoPrice;
}

// A step of 0 and no change of the current unit: a trader is never switched from percent to money.
void COrderParamBaseTable::resetSuperPrice()
{
    if (!m_table)
        return;
    const SuperPriceRange percent = percentRange(m_flags);
    const SuperPriceRange money = moneyRange(m_flags);
    m_table->setItemUnit(OCF_SuperPrice, percentUnit(), percent.min, percent.max, 0.0, false);
    m_table->setItemUnit(OCF_SuperPrice, moneyUnit(m_brokerType), money.min, money.max, 0.0, false);
}

void COrderParamBaseTable::resetSuperPriceShow() const
{
    if (!m_table)
        return;
    m_table->addAllItemSet(OCF_SuperPrice);
    if (m_orderType != ORDER_TYPE_NORMAL)
        m_table->addAllItemSet(OCF_SuperPriceStartCount);
    for (const int cell : kSuperPriceCells)
        m_table->setItemHidden(cell, superPriceMark(cell, bSuperPriceStartHide()) == HiddenMark::Hidden);
}

void COrderParamBaseTable::fixSuperPrice()
{
    if (!m_table)
        return;
    const auto* const range =
        dynamic_cast<const WQ::CCheckParamUnitCellDelegate*>(m_table->getItem(OCF_FluctuationCheck));
    const auto* const price = dynamic_cast<const WQ::CParamCellDelegate*>(m_table->getItem(OCF_SuperPrice));
    if (!range || !price || range->unit() != price->unit())
        return;
    const double current = m_table->itemDouble(OCF_SuperPrice);
    const double limited = limitedSuperPrice(current, m_table->itemDouble(OCF_FluctuationCheck), m_flags);
    if (limited < current || limited > current)
        m_table->setItemDouble(OCF_SuperPrice, limited);
}

double COrderParamBaseTable::changeSuperPrice(double value)
{
    return allowedSuperPrice(value, m_flags);
}

double COrderParamBaseTable::fixPriceInRange(double value) const
{
    return isNoPrice(value) ? 0.0 : value;
}

bool COrderParamBaseTable::bSuperPriceHide() const
{
    return false;
}

bool COrderParamBaseTable::bSuperPriceStartHide() const
{
    return isStartCountHidden(m_expand, m_orderType);
}

double COrderParamBaseTable::getModifiedPriceByOptTypeForCalc(EOperationType operationType, bool zeroIfUnset) const
{
    switch (calculationPrice(m_priceType, m_orderType, operationType)) {
    case CalculationPrice::Original:
        return zeroIfUnset ? fixPriceInRange(m_originalPrice) : m_originalPrice;
    case CalculationPrice::AfterHours:
        return m_table ? m_table->itemDouble(OCF_LimitPrice) : 0.0;
    case CalculationPrice::None:
        break;
    }
    return kNoPrice;
}

double COrderParamBaseTable::getModifiedPriceByOptTypeForOrder(EOperationType) const
{
    return kNoPrice;
}

void COrderParamBaseTable::modPriceCell()
{
    fitTableHeight();
    resetSuperPriceShow();
}

void COrderParamBaseTable::resetTableByPriceType()
{
    if (!m_table || !hasPriceTypeCells(m_orderType))
        return;
    const auto isHidden = [this](int cell) { return priceTypeMark(cell, m_orderType) == HiddenMark::Hidden; };
    m_table->setItemHidden(OCF_TriggerPrice, isHidden(OCF_TriggerPrice));
    m_table->setItemFilterBlacklist(OCF_TriggerPrice, true);
    m_table->setItemFilterBlacklist(OCF_LimitPrice, false);
    // Passing through the visible set brings the cell up in a filtered table.
    m_table->addVisibleItemSet(OCF_LimitPrice);
    m_table->setItemHidden(OCF_LimitPrice, isHidden(OCF_LimitPrice));
    m_table->removeVisbleItemSet(OCF_LimitPrice);
    resetSuperPriceShow();
}

void COrderParamBaseTable::resetTriggerPriceSetting()
{
    if (m_table)
        m_table->setCheckDouble(OCF_TriggerPrice, false, 0.0, false);
    save();
}

} // namespace TC
