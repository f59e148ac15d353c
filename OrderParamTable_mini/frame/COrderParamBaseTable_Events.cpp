#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <OrderParamTable_mini/frame/HeldException.h>
#include <OrderParamTable_mini/semantics/EventNumbers.h>
#include <OrderParamTable_mini/semantics/OrderModes.h>

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/EventNumbers.h>

#include <QPointer>

namespace TC {

using namespace ttservice;

namespace {

const QString& noText()
{
    static const QString text = QString::fromLatin1("");
    return text;
}

/// The smallest value that a host's limited cell takes.
constexpr double kSmallestLimitedValue = 0.5;

/// The click has checked the button of a mode that was not entered.
void checkAgain(WQ::CDropDownButtonGroup* group, EOrderType type)
{
    if (group)
        group->setCheckedByID(modeButton(type));
}

/// A switch that cannot store what was entered does not take place. False when the table is gone.
template <class Stay>
bool saveBeforeSwitch(COrderParamBaseTable& table, Stay stay)
{
    const QPointer<COrderParamBaseTable> alive(&table);
    try {
        table.save();
    } catch (...) {
        if (alive)
            stay();
        throw;
    }
    return !alive.isNull();
}

} // namespace

bool COrderParamBaseTable::isParameterSetMode() const
{
    return m_paramIndex >= 0;
}

bool COrderParamBaseTable::isInMode(EOrderType type) const
{
    return m_orderType == orderTypeInMode(m_id, type) && isParameterSetMode() == isParameterSetType(type);
}

bool COrderParamBaseTable::send(int event, int a, int b, const QString& text, void* payload)
{
    const QPointer<COrderParamBaseTable> alive(this);
    HeldException::run([&] { deliverEvent(event, a, b, text, payload); });
    return !alive.isNull();
}

bool COrderParamBaseTable::saveAndStayAlive()
{
    const QPointer<COrderParamBaseTable> alive(this);
    HeldException::run([this] { save(); });
    return !alive.isNull();
}

bool COrderParamBaseTable::reloadAndStayAlive()
{
    const QPointer<COrderParamBaseTable> alive(this);
    HeldException::run([this] { reloadParam(); });
    return !alive.isNull();
}

bool COrderParamBaseTable::announceChange(const QString& text)
{
    return saveAndStayAlive() && send(events::kParametersChanged, m_id, 0, text);
}

bool COrderParamBaseTable::recolourPriceDisplay()
{
    const QPointer<COrderParamBaseTable> alive(this);
    HeldException::run([this] { resetShowFixPrice(); });
    return !alive.isNull();
}

bool COrderParamBaseTable::handleEvent(int event, int a, int b, QString text, void* payload)
{
    const HeldException held;
    switch (event) {
    case WQ::events::kButtonClicked:
        if (onButtonClicked(a, text))
            return true;
        break;
    case WQ::events::kEntryChosen:
        onCellChanged(a, text, payload);
        return false;
    case WQ::events::kNumberCommitted:
    case WQ::events::kUnitOrCheckChanged:
        onNumberChanged(a, text);
        return false;
    case WQ::events::kDoubleClicked:
        send(events::kParameterDoubleClicked, m_id, 0, text);
        return true;
    case WQ::events::kPeriodCommitted:
    case WQ::events::kLineCommitted:
        onTextChanged();
        return false;
    case WQ::events::kFilterApplied:
        onFilterApplied();
        return false;
    case WQ::events::kFilterReset:
        onFilterReset();
        return true;
    case events::kKept:
        return true;
    case WQ::events::kNeededHeightChanged:
        resetLayout(size());
        return false;
    case events::kPriceTypeFromOutside:
        onPriceTypeFromOutside(text, payload);
        return true;
    }
    return WQ::CBaseWidget::handleEvent(event, a, b, text, payload);
}

bool COrderParamBaseTable::onButtonClicked(int buttonId, const QString& text)
{
    const ButtonKind kind = buttonKind(buttonId);
    if (kind == ButtonKind::Other)
        return false;
    const auto type = EOrderType(buttonId - kModeButtonBase);
    const bool plain = kind == ButtonKind::PlainMode;
    if (!(plain ? enterPlainMode(type) : enterParameterSetMode(type))
        || !send(events::kOrderTypeChosen, m_id, m_orderType, text))
        return true;
    if (!(plain || reloadParameterSet()) || !announceMode(text))
        return true;
    // A listener that has switched the mode meanwhile has settled what is shown.
    if (isInMode(type))
        showCellArea(plain);
    if (!announceWithoutOperation(text))
        return true;
    if (isInMode(type))
        updateHelp(plain);
    setAlgoBtnVisible();
    return true;
}

bool COrderParamBaseTable::enterPlainMode(EOrderType type)
{
    const auto stay = [this, index = m_paramIndex, before = m_orderType] {
        if (m_orderType == before)
            m_paramIndex = index;
        checkAgain(m_btnGroup, m_orderType);
    };
    m_paramIndex = -1;
    saveVisibleFlag(m_expand);
    if (m_ready && !saveBeforeSwitch(*this, stay))
        return false;
    m_paramIndex = -1; // save() may have chosen another mode
    m_orderType = type;
    resetPriceType();
    if (!reloadAndStayAlive())
        return false;
    resetCellVisibilities();
    resetTableByPriceType();
    fixSuperPrice();
    updateCurrentPriceTypeName();
    return true;
}

bool COrderParamBaseTable::enterParameterSetMode(EOrderType type)
{
    saveVisibleFlag(m_expand);
    if (m_ready && !saveBeforeSwitch(*this, [this] { checkAgain(m_btnGroup, m_orderType); }))
        return false;
    m_paramIndex = parameterSetIndex(type);
    m_orderType = type;
    resetPriceType();
    resetCellVisibilities();
    fixSuperPrice();
    return true;
}

bool COrderParamBaseTable::reloadParameterSet()
{
    if (!reloadAndStayAlive())
        return false;
    updateCurrentPriceTypeName();
    return true;
}

bool COrderParamBaseTable::announceMode(const QString& text)
{
    const bool isSet = isParameterSetMode();
    const EPriceType priceType = isSet ? m_paramPriceType : m_priceType;
    const bool isAnnounced = isSet || priceType != PRTP_NONE;
    if (isAnnounced && !send(events::kPriceTypeApplied, m_id, priceType, text))
        return false;
    return recolourPriceDisplay() && (!m_ready || send(events::kParametersChanged, m_id, 0, text));
}

bool COrderParamBaseTable::announceWithoutOperation(const QString& text)
{
    return isOperationChosen(m_operationType) || send(events::kOperationToBeChosen, 0, 0, text, this);
}

void COrderParamBaseTable::updateHelp(bool plain)
{
    const bool followsMode = showAlgoHelpButton();
    if (!m_btnGroup || (plain && !followsMode))
        return;
    const bool hasHelp = plain ? hasHelpPage(m_orderType) : hasParameterSetHelp(m_orderType);
    m_btnGroup->setHelpButtonVisible(followsMode && hasHelp);
    m_btnGroup->setHelpButtonCritical(m_hintMap.value(m_orderType));
}

void COrderParamBaseTable::setPriceTypeFromCell(const QString& text, EPriceType priceType)
{
    m_priceTypeName = text;
    m_priceType = priceType;
    if (isParameterSetMode())
        m_paramPriceType = priceType;
}

void COrderParamBaseTable::onCellChanged(int cellId, const QString& text, const void* payload)
{
    if (!m_ready)
        return;
    if (const auto* const value = static_cast<const QVariant*>(payload)) {
        if (cellId == OCF_PriceType)
            setPriceTypeFromCell(text, EPriceType(value->toInt()));
        else if (cellId == OCF_BaseVolume)
            onVolumeTypeChange(EVolumeType(value->toInt()));
    }
    if (!saveAndStayAlive())
        return;
    fitTableHeight();
    send(events::kParametersChanged, m_id, 0, text);
}

void COrderParamBaseTable::onNumberChanged(int cellId, const QString& text)
{
    if (isParameterSetMode())
        return;
    if (m_table)
        limitCellsBy(cellId);
    fixSuperPrice();
    if (m_ready)
        announceChange(text);
}

void COrderParamBaseTable::limitCellsBy(int cellId)
{
    const double value = m_table->itemDouble(cellId);
    switch (cellId) {
    case OCF_LimitingCell:
        m_table->resetCellRange(OCF_LimitedCell, kSmallestLimitedValue, value);
        break;
    case OCF_MinSingleVolume:
        m_table->resetCellRange(OCF_MaxSingleVolume, value, m_table->cellRange(OCF_MaxSingleVolume).second);
        break;
    case OCF_MaxSingleVolume:
        m_table->resetCellRange(OCF_MinSingleVolume, m_table->cellRange(OCF_MinSingleVolume).first, value);
        break;
    }
}

void COrderParamBaseTable::onTextChanged()
{
    if (m_ready)
        announceChange(noText());
}

void COrderParamBaseTable::onFilterApplied()
{
    saveVisibleFlag(m_expand);
    if (!saveAndStayAlive())
        return;
    fitTableHeight();
    resetLayout(size());
}

void COrderParamBaseTable::onFilterReset()
{
    if (quint32* const word = visibleWord())
        *word = 0;
    resetCellVisibilities();
    if (m_table)
        m_table->setMultiFilterWidgetParam();
}

void COrderParamBaseTable::onPriceTypeFromOutside(const QString& text, const void* payload)
{
    if (const auto* const value = static_cast<const int*>(payload))
        setPriceTypeFromCell(text, EPriceType(*value));
}

} // namespace TC
