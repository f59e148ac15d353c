#pragma once

#include <OrderParamTable_mini/OrderParamTableExport.h>
#include <OrderParamTable_mini/semantics/OrderVocabulary.h>

#include <WQ/CBaseWidget.h>
#include <ttservice/CCodeOrderParam.h>
#include <ttservice/COrderSetting.h>
#include <ttservice/Enumerations.h>

#include <QMap>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace WQ {
class CDropDownButtonGroup;
class CMultiParamsTable;
class CScrollArea;
class CWidgetList;
} // namespace WQ

namespace ttservice {
struct CInstrumentDetail;
}

namespace TC {

struct OrderState;

/// The widget that every order-parameter table is built on: a strip of order-mode buttons over a scrolling cell table.
///
/// Cells are built once, by the constructor, and addressed by the bits of EOperationCellFlag; later operations hide,
/// show, relabel, re-range or refill them. The host learns of changes through toolkit events; after any event, and
/// after save() and reloadParam(), the table may have been deleted by its host and touches nothing of itself then.
///
/// No operation fails loudly: a missing cell, button or cell table makes the step that needs it do nothing, and unknown
/// enumeration values take the general branch. Everything runs on the GUI thread.
class ORDERPARAMTABLE_EXPORT COrderParamBaseTable : public WQ::CBaseWidget
{
    Q_OBJECT
public:
    /// @param id which place of the host the table serves
    /// @param brokerType the account's broker type; decides which cells exist, with which units and ranges
    /// @param showModeButtons whether the strip of order-mode buttons is built (28 pixels high, else 0)
    /// @param parent the owner; may be null
    /// @param tableFontScale whether the cell table follows the UI scale
    /// @param traderType the kind of trading desk
    /// @param lastFlag whether the automatic order-book price type may be offered
    COrderParamBaseTable(EOpParamWidgetID id, ttservice::ENVBrokerType brokerType, bool showModeButtons,
                         QWidget* parent, bool tableFontScale, ttservice::ENvTraderType traderType, bool lastFlag);
    ~COrderParamBaseTable() override;

    /// @name What hosts and derived tables supply
    /// @{

    /// Stores the instrument code and rebuilds the price types. Sends no event.
    virtual void setStockCode(QString code);

    /// Clears the table's settings; nothing here.
    virtual void clear();

    /// Reads the table's state from a parameter string.
    virtual void setParam(const QString& text) = 0;

    /// The table's state as a parameter string.
    virtual QString param() const = 0;

    /// Stores what the cells hold; called before the table announces a change. It may delete the table. It must not
    /// call what saves itself (getOrderSettings(), selectPrice(), setFixedPrice(), resetTriggerPriceSetting()): that
    /// would never end.
    virtual void save() = 0;

protected:
    /// Loads the cells for the order type that was just chosen.
    virtual void reloadParam() = 0;

public:
    /// @}
    /// @name State
    /// @{

    EOpParamWidgetID getId() const;

    /// The cell table; null only when the toolkit could not make one.
    WQ::CMultiParamsTable* getMultiParamsTable();

    ttservice::EOrderType orderType() const;
    ttservice::EOperationType getOperationType() const;

    /// The chosen price type; -1 when there is no price-type cell or it is empty at construction.
    ttservice::EPriceType priceType() const;

    QString getStockCode() const;

    /// Whether the table serves the order service, by its identity.
    bool isOrderService() const;

    /// Whether the table belongs to the close settings, by its identity.
    bool isCloseSetting() const;

    /// Whether the order type is none of -1, 0, 1, 2 and 3.
    bool isTrdParamTable() const;

    /// Lets a person edit the cells, or not.
    void setAllItemEnable(bool enable);

    /// Stores the cells that the host allows, re-runs the visibility rules and re-limits the super price. Flags other
    /// than the default let super prices be negative. Sends no event.
    void setFlag(OperationCellFlags flags);

    /// Takes the instrument's details and keeps nothing of them.
    void setInstrument(std::shared_ptr<ttservice::CInstrumentDetail> detail);

    /// @}
    /// @name Visibility
    /// @{

    /// Collapses (true) or expands (false) the table: collapsed it shows what the user chose to see, expanded all that
    /// the rules allow. Sends no event.
    void setExpandItemsHidden(bool hidden);

    bool isExpand();

    /// While collapsed, applies the user's visible-cell word of the current order type; order types outside 0 to 3 and
    /// an empty word show no choice.
    void loadVisibleFlag();

    /// Records the user's visible cells into the word of the current order type (0 to 3), unless @p skip or nothing is
    /// chosen.
    void saveVisibleFlag(bool skip);

    /// Hides the algorithm buttons 608 and 611.
    void hideAlgTable();

    /// Shows or hides an order-mode button; an unknown ID changes nothing.
    void setVisibleByID(int buttonId, bool visible);

    /// Shows or hides button 613 for order type 13; other types change nothing.
    void setVisibleByOrderType(ttservice::EOrderType type, bool visible);

    /// @}
    /// @name Layout
    /// @{

    /// Takes the sizes of the current UI scale; nothing when the cell table does not follow it. Only the host calls it.
    void handleScaleChanged();

    /// Repaints.
    void themeChanged() override;

    /// @}
    /// @name Events and order-mode buttons
    /// @{

    /// Receives the events of the cell table and the buttons. Answers true for clicks on mode buttons (5, ID 600 and
    /// up) and for 97, 248, 249 and 1213, false for the others it acts on (73, 87, 101, 102, 118, 124, 1071), and what
    /// the toolkit base answers for any other. Sends 129, 130, 1061, 1062, 1063, 1064, 1206 and 1244. The data of 73
    /// points at a QVariant, that of 1213 at an int; without data neither changes a price type.
    bool handleEvent(int event, int a, int b, QString text, void* payload) override;

    /// Makes sure that the button of the setting's order type can be seen: when the group has buttons but not that one,
    /// asks it to bring it in. Null changes nothing.
    void showOrderParamBtn(const ttservice::COrderSetting* setting);

    /// Shows or hides the button that reads "隔时交易"; nothing when there is none.
    void setShowTimeAlgorith(bool visible);

    void showSelectButton(int buttonId);

    /// The ID of the checked order-mode button, -1 when none is.
    int getSelectedButton();

    /// The ID of the first button with that text; negative when none has it.
    int getBtnIDByName(QString name);

    /// The text of that button; empty when there is none.
    QString getBtnNameByID(int buttonId);

    /// Stores that the help button is to stay hidden; nothing acts on it in this edition.
    void forceHideHelpBtn(bool hide);

    /// @}
    /// @name Price types
    /// @{

    /// Appends the levels of the order book from the fifth ask to the fifth bid (options: best ask, latest, best bid).
    void genPriceTypeBySubType(QStringList& labels, QVector<QVariant>& values);

    /// Selects @p priceType in the price-type cell, which keeps its choice when it does not offer it. Sends no event.
    void setPriceType(ttservice::EPriceType priceType);

    /// Selects @p priceType as price type and as initial quote, saves, sends 129 and re-runs the visibility rules.
    void selectPrice(ttservice::EPriceType priceType);

    /// The label of the price type; re-read from the cell only while none is stored.
    QString getCurrentPriceTypeName();

    /// @}
    /// @name Operation and order type
    /// @{

    /// Applies an operation type: rebuilds the volume types and the lot of the tail volume where the broker type or the
    /// identity asks for it, and, when it is another one, the price types. Sends 1244 in client modes 100 and 101, and
    /// 1062 or 1063 when the price type calls for another colour.
    void setOperationType(ttservice::EOperationType operationType);

    /// Applies an order type: checks its button, shows or hides the cell area, the help button, cells and super price.
    /// Sends 1062 or 1063 for types from 4 on when the price type calls for another colour (and forgets the original
    /// price then), and 1244 in client modes 100 and 101. Going back below 4 keeps the index of the parameter set until
    /// a mode button is clicked: number and unit edits stay unheard and the price type 12 until then.
    void setOrderType(ttservice::EOrderType type);

    /// The chosen volume type; -1 without a volume-type cell.
    int singleVolType() const;

    /// Whether the algorithms may randomise volumes: a module, for stock with trader type 1, on a few identities.
    bool isRandVolume() const;

    /// Whether the order type is an algorithm with a help page.
    bool bShowHelp(const ttservice::EOrderType& type);

    /// @}
    /// @name Price adjustment
    /// @{

    /// Switches to the specified price and stores @p price; nothing in order type 5. Sends 1061 and 129.
    void setFixedPrice(double price);

    /// Stores @p price while the price type is the specified price.
    void setOriginalPrice(double price);

    /// Always false in this edition.
    bool bSuperPriceHide() const;

    /// Whether the start count of the super price is hidden: collapsed, or plain orders.
    bool bSuperPriceStartHide() const;

    /// The price for amount calculations, the no-price value where there is none (with @p zeroIfUnset 0.0 where a
    /// specified price is meant).
    double getModifiedPriceByOptTypeForCalc(ttservice::EOperationType operationType, bool zeroIfUnset) const;

    /// Always the no-price value in this edition.
    double getModifiedPriceByOptTypeForOrder(ttservice::EOperationType operationType) const;

    /// Fits the cell table's height and shows the super-price cells again.
    void modPriceCell();

    /// Clears the trigger price and saves.
    void resetTriggerPriceSetting();

    /// @}
    /// @name Settings records and parameter string
    /// @{

    /// A default record, valid today from 09:30 to 15:00 local time.
    ttservice::COrderSetting getDefault();

    /// The default record of a trader type; @p operationType is ignored.
    static ttservice::COrderSetting getDefaultOrderSetting(ttservice::EOperationType operationType,
                                                           ttservice::ENvTraderType traderType,
                                                           ttservice::EOrderType type);

    /// Saves, then answers the record stored under @p key, a default-constructed one when there is none.
    ttservice::COrderSetting getOrderSettings(int key);

    /// Stores a copy of @p setting under @p key.
    void setOrderSettings(int key, ttservice::COrderSetting& setting);

    /// The record as 41 items joined by "+": ints in decimal, doubles with three decimals or "非法值".
    static QString orderSetting2Param(ttservice::COrderSetting setting);

    /// The visible order-mode buttons as text, and back; empty and nothing without a button group.
    QString loadCheckParam();
    void setCheckParam(QString text);

    /// @}
    /// @name Command log
    /// @{

    /// Adds the remark cell where the module and the identity allow it; the host calls it once a table.
    void updateCmdLog();

    /// The remark as UTF-8; empty without a remark cell.
    std::string getCmdLog() const;

    /// @}
    /// @name Inert in this edition
    /// They do nothing, answer true where they answer a bool, and nothing but an empty text elsewhere;
    /// resetOrderParamSetting() calls save() and nothing else.
    /// @{

    void fillOrderParam(QString code, int key, ttservice::CCodeOrderParam& param, double price) const;
    void loadFromOrderParam(const ttservice::CCodeOrderParam& param, bool, std::string);
    std::string getAlgParamsStr(std::vector<ttservice::CCodeOrderParam> params);
    std::string getAlgParamsStr(ttservice::CCodeOrderParam param);
    std::string getAlgoStrategyType();
    std::string getAlgoStrategyTypeName();
    void loadOpParam(const ttservice::COrderSetting* setting, double);
    void saveOpParam(QString code, ttservice::COrderSetting* setting) const;
    void resetOrderParamSetting();
    QString doGetSingleNvAlgoUiParam(ttservice::EOrderType type) const;
    void doSetSingleNvAlgoUiParam(ttservice::EOrderType type, const QString& param);
    QString getAlgoPriceTypeName() const;
    bool changePriceType(ttservice::EPriceType& priceType);
    bool checkPriceLimit(QString& message);
    bool hasUpStopPrice();
    void getPriceLimit(double& low, double& high);
    void handleWheel();
    void hideAmountUsed();
    void onPriceTypeChange();
    void reSetPriceTypeEnable();
    void resetCurrentPriceType();
    void resetMarketPriceType();
    void resetStrategyType(ttservice::EOrderType type, QString strategy);
    void setAlgirithmBtnVisible(ttservice::EOrderType type);
    void setTableEnabled(ttservice::EOrderType type, bool enable);
    void setTableUIByParams(ttservice::ETradePlatform platform);
    void updateIntervalUnit();
    void updatePriceLimit();
    void updateRandomVolume();
    void updateUnit();

    /// @}

Q_SIGNALS:
    /// Named like the user configuration's; nothing emits it.
    void sigShouldHintAlgorithm(int orderType, bool hint);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    void createUi();
    bool isComposeFuture();
    bool isComposeStock();

    /// Whether a module may be used: always, this table's own checks ask the module control service.
    bool isAuthorityLegal(std::string module);

    /// Recomputes which cells are shown, and the strip; tables 10 and 35 are set to order type 1 here.
    void resetCellVisibilities();

    /// Lays the strip and the scroll area out for @p size.
    void resetLayout(QSize size);

    void resetBtnType();
    void setAlgoBtnVisible();
    bool showAlgo();
    bool showAlgoHelpButton();

    /// Appends the price types that @p flags and the market family select; with @p apply loads the lists into the cell.
    /// @p current is ignored.
    void doResetPriceType(QStringList& labels, QVector<QVariant>& values, int flags, int market, bool apply,
                          QString current);

    /// Rebuilds the price-type cell where the table's identity or the securities-lending sell asks for it.
    void resetPriceType();
    void updateCurrentPriceTypeName();

    /// Shows the tail-volume cell exactly for the remaining target volume.
    void onVolumeTypeChange(ttservice::EVolumeType type);
    ttservice::EVolumeType getRealVolumeType(ttservice::EVolumeType type) const;

    /// Stores a quoted price unless the price type is the specified one, and sends 1062 with a pointer to it.
    void setPriceImpl(double price, QString text);

    /// Sends 1062 or 1063 with the colour key of the price display and forgets the original price, for market and
    /// after-hours price types.
    void resetShowFixPrice();
    void resetSuperPrice();
    void resetSuperPriceShow() const;

    /// Keeps the super price within twice the fluctuation range when both have the same unit.
    void fixSuperPrice();
    double changeSuperPrice(double value);
    double fixPriceInRange(double value) const;
    void resetTableByPriceType();

protected Q_SLOTS:
    /// Marks the help button, and remembers the mark for that order type.
    void slotShouldHintAlgorithm(int orderType, bool hint);

private:
    OrderState state() const;
    void createModeStrip();
    void addModeButton(ttservice::EOrderType type, const QString& text);
    void createCells();
    void applyPanelSize();
    void fitTableHeight();
    void showCellArea(bool visible);
    void showStrip();
    void checkModeButton();
    quint32 hideCellsByRules();
    void hideAlgorithmCells(bool hidden);
    quint32* visibleWord();
    void setPriceTypeFromCell(const QString& text, ttservice::EPriceType priceType);

    /// Places the strip for that width and answers its height; 0 when it is not placed.
    int placeStrip(int width, bool isPlaced);
    void placeScrollArea(QSize size, int top);

    /// @name Steps that may end the table: they answer whether it still lives
    /// @{
    bool send(int event, int a, int b, const QString& text, void* payload = nullptr);
    bool saveAndStayAlive();
    bool reloadAndStayAlive();
    bool announceChange(const QString& text);
    bool recolourPriceDisplay();
    bool showParameterSet(ttservice::EOrderType type);
    bool enterPlainMode(ttservice::EOrderType type);
    bool enterParameterSetMode(ttservice::EOrderType type);
    bool reloadParameterSet();
    bool announceMode(const QString& text);
    bool announceWithoutOperation(const QString& text);
    /// @}

    bool onButtonClicked(int buttonId, const QString& text);
    void onCellChanged(int cellId, const QString& text, const void* payload);
    void onNumberChanged(int cellId, const QString& text);
    void onTextChanged();
    void onFilterApplied();
    void onFilterReset();
    void onPriceTypeFromOutside(const QString& text, const void* payload);
    void limitCellsBy(int cellId);
    void updateHelp(bool plain);
    bool isParameterSetMode() const;
    bool isInMode(ttservice::EOrderType type) const;

    // The members stand in the order that derived tables of clients rely on.
protected:
    int m_paramIndex = -1;                               ///< index of the parameter set in use; negative for none
    WQ::CMultiParamsTable* m_table = nullptr;            ///< the cell table
    WQ::CScrollArea* m_scrollArea = nullptr;             ///< holds the cell table
    WQ::CWidgetList* m_btnList = nullptr;                ///< the strip that carries the button group
    WQ::CDropDownButtonGroup* m_btnGroup = nullptr;      ///< the order-mode buttons
    QMap<int, bool> m_hintMap;                           ///< by order type: the help button is marked
    bool m_mapReady = true;                              ///< never read
    QMap<int, ttservice::COrderSetting> m_orderSettings; ///< settings records by the host's key
    bool m_forceHideHelp = false;                        ///< stored for the host
    EOpParamWidgetID m_id;
    ttservice::EOrderType m_orderType = ttservice::ORDER_TYPE_NORMAL;
    ttservice::EOperationType m_operationType = ttservice::OPT_NONE;
    ttservice::ENVBrokerType m_brokerType;
    OperationCellFlags m_flags = OperationCellFlags(kDefaultCellFlags); ///< the cells that the host allows
    QString m_stockCode;
    bool m_ready = false;                                            ///< false while the table is being built
    ttservice::EPriceType m_paramPriceType = ttservice::PRTP_MARKET; ///< price type while m_paramIndex is not negative
    int m_pendingPriceType = 0;                                      ///< price type last passed to setPriceType()
    bool m_expand = false;
    std::array<quint32, 4> m_visibleFlags = {}; ///< the user's visible cells, a word for order types 0 to 3
    bool m_showModeButtons;
    bool m_tableFontScale;
    ttservice::ENvTraderType m_traderType;
    bool m_lastFlag; ///< the automatic order-book price type may be offered
    QString m_priceTypeName = QString::fromLatin1("");
    ttservice::EPriceType m_priceType = ttservice::PRTP_NONE;
    double m_originalPrice = 0.0; ///< the price that the host passed for the specified price type
};

} // namespace TC
