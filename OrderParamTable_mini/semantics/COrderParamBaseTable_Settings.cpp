#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <OrderParamTable_mini/frame/HeldException.h>
#include <OrderParamTable_mini/semantics/ParameterString.h>
#include <OrderParamTable_mini/semantics/SettingsDefaults.h>

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/Formatting.h>

#include <QDateTime>

namespace TC {

using namespace ttservice;

namespace {

int secondsOfToday(const QTime& time)
{
    return WQ::qDateTimeToSecond(QDateTime(QDate::currentDate(), time));
}

QString realFieldText(double value)
{
    constexpr int kDecimals = 3;
    static const QString invalidValue = QStringLiteral("非法值");
    return WQ::formatDoubleNumber(value, kDecimals, WQ::FormatFlags(), false, invalidValue);
}

} // namespace

COrderSetting COrderParamBaseTable::getDefault()
{
    return defaultSetting(secondsOfToday(QTime(9, 30)), secondsOfToday(QTime(15, 0)));
}

COrderSetting COrderParamBaseTable::getDefaultOrderSetting(EOperationType, ENvTraderType traderType, EOrderType type)
{
    return defaultSettingOfTrader(traderType, type);
}

COrderSetting COrderParamBaseTable::getOrderSettings(int key)
{
    const HeldException held;
    return saveAndStayAlive() ? m_orderSettings.value(key) : COrderSetting();
}

void COrderParamBaseTable::setOrderSettings(int key, COrderSetting& setting)
{
    m_orderSettings.insert(key, setting);
}

QString COrderParamBaseTable::orderSetting2Param(COrderSetting setting)
{
    return parameterString(setting, realFieldText);
}

QString COrderParamBaseTable::loadCheckParam()
{
    return m_btnGroup ? m_btnGroup->getParam() : QString();
}

void COrderParamBaseTable::setCheckParam(QString text)
{
    if (!m_btnGroup)
        return;
    m_btnGroup->setParam(text);
    m_btnGroup->resetLayout();
}

} // namespace TC
