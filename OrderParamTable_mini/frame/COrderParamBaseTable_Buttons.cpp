#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <OrderParamTable_mini/frame/Services.h>
#include <OrderParamTable_mini/semantics/EventNumbers.h>
#include <OrderParamTable_mini/semantics/OrderModes.h>

#include <WQ/CDropDownButtonGroup.h>

namespace TC {

using namespace ttservice;

namespace {

constexpr int kMissingButton = -1;

/// Algorithm buttons that hosts of reduced editions take away.
constexpr int kHiddenAlgorithmButtons[] = {608, 611};

} // namespace

void COrderParamBaseTable::slotShouldHintAlgorithm(int orderType, bool hint)
{
    if (!m_btnGroup)
        return;
    m_btnGroup->setHelpButtonCritical(hint);
    m_hintMap[orderType] = hint;
}

void COrderParamBaseTable::resetBtnType()
{
    if (!m_btnGroup || m_btnGroup->selectedButton() == modeButton(m_orderType))
        return;
    const QList<int> buttons = m_btnGroup->getButtonList();
    if (buttons.isEmpty())
        return;
    m_orderType = EOrderType(int(unsigned(buttons.first()) - unsigned(kModeButtonBase)));
    m_btnGroup->setCheckedByID(buttons.first());
    m_paramIndex = parameterSetIndex(m_orderType);
    showCellArea(!isParameterSetMode());
}

void COrderParamBaseTable::setAlgoBtnVisible()
{
    if (isAlgorithmClient())
        send(events::kAlgorithmButtons, m_orderType, 0, QString::fromLatin1(""));
}

bool COrderParamBaseTable::showAlgo()
{
    return showsAlgorithms(m_id, m_brokerType);
}

bool COrderParamBaseTable::showAlgoHelpButton()
{
    return followsHelpPage(m_id);
}

void COrderParamBaseTable::hideAlgTable()
{
    for (const int button : kHiddenAlgorithmButtons)
        setVisibleByID(button, false);
}

void COrderParamBaseTable::setVisibleByID(int buttonId, bool visible)
{
    if (m_btnGroup)
        m_btnGroup->setVisibleByID(buttonId, visible);
}

void COrderParamBaseTable::setVisibleByOrderType(EOrderType type, bool visible)
{
    if (type == ORDER_TYPE_PARAM_SET_13)
        setVisibleByID(modeButton(type), visible);
}

void COrderParamBaseTable::showOrderParamBtn(const COrderSetting* setting)
{
    if (!m_btnGroup || !setting)
        return;
    const QList<int> buttons = m_btnGroup->getButtonList();
    const int button = modeButton(setting->orderType);
    if (!buttons.isEmpty() && !buttons.contains(button))
        m_btnGroup->showSelectButton(button);
}

void COrderParamBaseTable::setShowTimeAlgorith(bool visible)
{
    const int button = getBtnIDByName(QStringLiteral("隔时交易"));
    if (button >= 0)
        setVisibleByID(button, visible);
}

void COrderParamBaseTable::showSelectButton(int buttonId)
{
    if (m_btnGroup)
        m_btnGroup->showSelectButton(buttonId);
}

int COrderParamBaseTable::getSelectedButton()
{
    return m_btnGroup ? m_btnGroup->selectedButton() : kMissingButton;
}

int COrderParamBaseTable::getBtnIDByName(QString name)
{
    return m_btnGroup ? m_btnGroup->getBtnIDByName(name) : kMissingButton;
}

QString COrderParamBaseTable::getBtnNameByID(int buttonId)
{
    return m_btnGroup ? m_btnGroup->getBtnNameByID(buttonId) : QString();
}

void COrderParamBaseTable::forceHideHelpBtn(bool hide)
{
    m_forceHideHelp = hide;
}

} // namespace TC
