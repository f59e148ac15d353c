#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <OrderParamTable_mini/frame/HeldException.h>
#include <OrderParamTable_mini/frame/Services.h>
#include <OrderParamTable_mini/semantics/CellMasks.h>
#include <OrderParamTable_mini/semantics/OrderModes.h>
#include <OrderParamTable_mini/semantics/OrderState.h>
#include <OrderParamTable_mini/semantics/VolumeTypes.h>

#include <WQ/CComboBoxDelegate.h>
#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>

#include <QPointer>

namespace TC {

using namespace ttservice;

void COrderParamBaseTable::setOrderType(EOrderType type)
{
    const HeldException held;
    // The rebuild sees the order type that is being left.
    if (type != m_orderType)
        resetPriceType();
    m_orderType = type;
    checkModeButton();
    if (!isParameterSetType(type))
        showCellArea(true);
    else if (!showParameterSet(type))
        return;
    const QPointer<COrderParamBaseTable> alive(this);
    resetCellVisibilities();
    fixSuperPrice();
    setAlgoBtnVisible();
    if (alive)
        resetTableByPriceType();
}

void COrderParamBaseTable::checkModeButton()
{
    if (!m_btnGroup)
        return;
    const int button = modeButton(m_orderType);
    m_btnGroup->setCheckedByID(button);
    m_btnGroup->showSelectButton(button);
    const bool help = bShowHelp(m_orderType);
    if (followsHelpPage(m_id))
        m_btnGroup->setHelpButtonVisible(help);
    if (help)
        m_btnGroup->setHelpButtonCritical(m_hintMap.value(m_orderType));
}

bool COrderParamBaseTable::showParameterSet(EOrderType type)
{
    m_paramIndex = parameterSetIndex(type);
    showCellArea(false);
    if (m_btnGroup && hasParameterSetHelp(type)) {
        if (showAlgoHelpButton())
            m_btnGroup->setHelpButtonVisible(true);
        m_btnGroup->setHelpButtonCritical(m_hintMap.value(type));
    }
    return recolourPriceDisplay();
}

int COrderParamBaseTable::singleVolType() const
{
    if (!m_table)
        return VOLUME_TYPE_NONE;
    const auto* const volume = dynamic_cast<const WQ::CComboBoxDelegate*>(m_table->getItem(OCF_BaseVolume));
    return volume ? volume->currentData().toInt() : VOLUME_TYPE_NONE;
}

void COrderParamBaseTable::onVolumeTypeChange(EVolumeType type)
{
    if (m_table)
        m_table->setItemHidden(OCF_TailMinVolume, !asksForTailVolume(type));
}

EVolumeType COrderParamBaseTable::getRealVolumeType(EVolumeType type) const
{
    return type;
}

bool COrderParamBaseTable::isRandVolume() const
{
    return mayRandomiseVolume(state(), isModuleOn);
}

bool COrderParamBaseTable::bShowHelp(const EOrderType& type)
{
    return hasHelpPage(type);
}

} // namespace TC
