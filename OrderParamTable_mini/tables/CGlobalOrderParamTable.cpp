#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

#include <OrderParamTable_mini/semantics/OrderModes.h>
#include <OrderParamTable_mini/tables/ValidTime.h>

#include <TC/CTimeService.h>
#include <WQ/CMultiParamsTable.h>

namespace TC {

using namespace ttservice;

namespace {

/// The price tick that records are loaded with.
constexpr double kPriceTick = 0.001;

} // namespace

CGlobalOrderParamTable::CGlobalOrderParamTable(EOpParamWidgetID id, ENVBrokerType brokerType, bool showModeButtons,
                                               QWidget* parent, bool tableFontScale, ENvTraderType traderType,
                                               bool lastFlag)
    : COrderParamBaseTable(id, brokerType, showModeButtons, parent, tableFontScale, traderType, lastFlag)
{
}

CGlobalOrderParamTable::~CGlobalOrderParamTable() = default;

void CGlobalOrderParamTable::setStockCode(QString)
{
}

QString CGlobalOrderParamTable::getStockCode() const
{
    return m_storedCode;
}

void CGlobalOrderParamTable::clear()
{
    COrderSetting& setting = m_settingsByOrderType[orderType()];
    setting = COrderSetting();
    loadOpParam(&setting, kPriceTick);
}

// Fields after the second are keys and values of wider editions; they have no effect here, so none is taken apart.
void CGlobalOrderParamTable::setParam(const QString&)
{
    loadOpParam(&m_settingsByOrderType[orderType()], kPriceTick);
}

void CGlobalOrderParamTable::setParam(COrderSetting& setting)
{
    loadOpParam(&setting, kPriceTick);
    save();
}

QString CGlobalOrderParamTable::param() const
{
    return {};
}

void CGlobalOrderParamTable::save()
{
    COrderSetting& setting = m_settingsByOrderType[orderType()];
    saveOpParam(m_storedCode, &setting);
    setting.orderType = orderType();
}

void CGlobalOrderParamTable::saveParam()
{
    save();
}

void CGlobalOrderParamTable::reloadParam()
{
    const EOrderType type = orderType();
    const auto stored = m_settingsByOrderType.constFind(type);
    if (stored != m_settingsByOrderType.constEnd()) {
        loadOpParam(&*stored, kPriceTick);
        return;
    }
    m_workingSetting.orderType = type;
    loadOpParam(&m_workingSetting, kPriceTick);
    m_settingsByOrderType.insert(type, m_workingSetting);
}

QString CGlobalOrderParamTable::getOrderSettingParam() const
{
    return {};
}

QString CGlobalOrderParamTable::getSingleNvAlgoUiParam(EOrderType type) const
{
    return isSingleOrderAlgorithm(type) ? doGetSingleNvAlgoUiParam(type) : QString();
}

void CGlobalOrderParamTable::setSingleNvAlgoParam(EOrderType type, const QString& param)
{
    if (isSingleOrderAlgorithm(type))
        doSetSingleNvAlgoUiParam(type, param);
}

QString CGlobalOrderParamTable::getUiParamByTrdTradeParam(EOrderType, const QString&)
{
    return {};
}

void CGlobalOrderParamTable::resetStrategyType(EOrderType, QString)
{
}

void CGlobalOrderParamTable::setNvAlgoHideAmountUsed(bool, int)
{
}

void CGlobalOrderParamTable::fixTimeRange()
{
    COrderSetting& setting = m_settingsByOrderType[orderType()];
    if (!hasValidTime(setting.orderType))
        return;
    const CTimeService* const clock = getTimeService();
    if (!clock)
        return;
    const ValidTime moved = validTimeOnDay({setting.validTimeStart, setting.validTimeEnd}, clock->currentTime());
    setting.validTimeStart = moved.start;
    setting.validTimeEnd = moved.end;
}

void CGlobalOrderParamTable::transferTimePeriod(CCodeOrderParam* param)
{
    if (!param || !m_table || !hasValidTime(param->orderType))
        return;
    const bool isDuration = m_table->itemTimeRangeType(OCF_ValidTime) == WQ::TimeRangeDuration;
    const CTimeService* const clock = getTimeService();
    if (!clock)
        return;
    ValidTime range;
    if (isDuration) {
        range = validTimeFrom(clock->currentTime(), m_table->timeElapse(OCF_ValidTime));
    } else {
        const QPair<int, int> cell = m_table->timeRange(OCF_ValidTime);
        range = validTimeOnDay({cell.first, cell.second}, clock->currentTime());
    }
    param->validTimeStart = range.start;
    param->validTimeEnd = range.end;
}

} // namespace TC
