#pragma once

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <functional>

namespace support {

/// What a table is constructed from; a test names only what it is about.
struct TableSetup
{
    int id = 5;
    int brokerType = 2;
    int traderType = 2;
    bool autoBook = false;
    bool modeButtons = true;
    bool fontScale = true;
    QWidget* parent = nullptr;
};

class EventLog;

/// The smallest concrete table. It counts what the frame asks of derived tables and lets tests reach what is protected.
class BaseTableProbe : public TC::COrderParamBaseTable
{
public:
    explicit BaseTableProbe(const TableSetup& setup = {});

    void setParam(const QString& text) override;
    QString param() const override;
    void save() override;
    void reloadParam() override;

    int saves = 0;
    int reloads = 0;
    QStringList hooks; ///< "save" and "reload" in the order of the calls
    std::function<void()> onSave;
    std::function<void()> onReload;

    /// Writes "save" and "reload" into the log of the host, between the events that it hears.
    void noteHooks(EventLog& host);

    /// The data of handleEvent() is passed by address, so tests keep it here.
    bool sendCellChanged(int cellId, const QString& text, const QVariant& value);
    bool sendPriceTypeFromOutside(const QString& text, int value);
    bool sendEvent(int event, int a, const QString& text = {});

    using TC::COrderParamBaseTable::changeSuperPrice;
    using TC::COrderParamBaseTable::doResetPriceType;
    using TC::COrderParamBaseTable::fixPriceInRange;
    using TC::COrderParamBaseTable::fixSuperPrice;
    using TC::COrderParamBaseTable::getRealVolumeType;
    using TC::COrderParamBaseTable::isAuthorityLegal;
    using TC::COrderParamBaseTable::isComposeFuture;
    using TC::COrderParamBaseTable::isComposeStock;
    using TC::COrderParamBaseTable::onVolumeTypeChange;
    using TC::COrderParamBaseTable::resetBtnType;
    using TC::COrderParamBaseTable::resetCellVisibilities;
    using TC::COrderParamBaseTable::resetLayout;
    using TC::COrderParamBaseTable::resetPriceType;
    using TC::COrderParamBaseTable::resetShowFixPrice;
    using TC::COrderParamBaseTable::resetSuperPrice;
    using TC::COrderParamBaseTable::resetSuperPriceShow;
    using TC::COrderParamBaseTable::resetTableByPriceType;
    using TC::COrderParamBaseTable::setAlgoBtnVisible;
    using TC::COrderParamBaseTable::setPriceImpl;
    using TC::COrderParamBaseTable::showAlgo;
    using TC::COrderParamBaseTable::showAlgoHelpButton;
    using TC::COrderParamBaseTable::slotShouldHintAlgorithm;
    using TC::COrderParamBaseTable::updateCurrentPriceTypeName;

    using TC::COrderParamBaseTable::m_btnGroup;
    using TC::COrderParamBaseTable::m_btnList;
    using TC::COrderParamBaseTable::m_flags;
    using TC::COrderParamBaseTable::m_forceHideHelp;
    using TC::COrderParamBaseTable::m_hintMap;
    using TC::COrderParamBaseTable::m_mapReady;
    using TC::COrderParamBaseTable::m_operationType;
    using TC::COrderParamBaseTable::m_orderSettings;
    using TC::COrderParamBaseTable::m_orderType;
    using TC::COrderParamBaseTable::m_originalPrice;
    using TC::COrderParamBaseTable::m_paramIndex;
    using TC::COrderParamBaseTable::m_paramPriceType;
    using TC::COrderParamBaseTable::m_pendingPriceType;
    using TC::COrderParamBaseTable::m_priceType;
    using TC::COrderParamBaseTable::m_priceTypeName;
    using TC::COrderParamBaseTable::m_ready;
    using TC::COrderParamBaseTable::m_scrollArea;
    using TC::COrderParamBaseTable::m_table;
    using TC::COrderParamBaseTable::m_visibleFlags;
};

} // namespace support
