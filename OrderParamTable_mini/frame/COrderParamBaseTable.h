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
/// show, relabel, re-range or refill them. Which cells there are follows from the broker type (futures are counted in
/// lots and priced in points, stock in shares and yuan, Hong Kong in shares and Hong Kong dollars) and from
/// the place of the host that the table serves.
///
/// The host learns of changes through toolkit events, sent up the parent widgets; an operation sends the events that
/// its comment names and no other. After any event, and after save() and reloadParam(), the table may have been deleted
/// by its host and touches nothing of itself then. What a host throws from an event, save() or reloadParam() reaches
/// the caller when the operation is through, of several exceptions the first.
///
/// No operation fails loudly: a missing cell, button or cell table makes the step that needs it do nothing, and unknown
/// enumeration values take the general branch. Everything runs on the GUI thread.
class ORDERPARAMTABLE_EXPORT COrderParamBaseTable : public WQ::CBaseWidget
{
    Q_OBJECT
public:
    /// Builds the strip, the cells with their initial values, and the price types of the broker type, and takes the
    /// panel's size. The table is in order type 0 without an operation, collapsed, and allows kDefaultCellFlags. It
    /// listens to the user configuration's algorithm hints. Sends no event.
    /// @param id which place of the host the table serves; any integer; unknown ones take the general branch
    /// @param brokerType the account's broker type; decides which cells exist, with which units and ranges
    /// @param showModeButtons whether the strip has its button for plain orders and its height of 28 pixels, else 0;
    ///        the button of order type 3 is there whenever the module mdl_order/mdl_order_algorithm3 is on
    /// @param parent the owner; null for a window of its own, which the caller owns
    /// @param tableFontScale whether the cell table follows the UI scale; without it rows stay at scale 1
    /// @param traderType the kind of trading desk; it decides about the previous close and random volumes
    /// @param lastFlag whether the automatic order-book price type may be offered
    COrderParamBaseTable(EOpParamWidgetID id, ttservice::ENVBrokerType brokerType, bool showModeButtons,
                         QWidget* parent, bool tableFontScale, ttservice::ENvTraderType traderType, bool lastFlag);
    ~COrderParamBaseTable() override;

    /// @name What hosts and derived tables supply
    /// @{

    /// Stores the instrument code and rebuilds the price types, which a composite table offers by its state.
    /// @param code the code as the host writes it; not checked, empty for none
    virtual void setStockCode(QString code);

    /// Clears the table's settings; nothing here.
    virtual void clear();

    /// Reads the table's state from a text. What is malformed in it must neither crash nor be reported.
    /// @param text in the derived table's own form
    virtual void setParam(const QString& text) = 0;

    /// The table's state as a text, for the host to keep.
    /// @return in the derived table's own form
    virtual QString param() const = 0;

    /// Stores what the cells hold; called before the table announces a change. It may delete the table. It must not
    /// call what saves itself (getOrderSettings(), selectPrice(), setFixedPrice(), resetTriggerPriceSetting()): that
    /// would never end.
    virtual void save() = 0;

protected:
    /// Loads the cells for the order type that was just chosen. It may delete the table.
    virtual void reloadParam() = 0;

public:
    /// @}
    /// @name State
    /// @{

    /// Which place of the host the table serves.
    /// @return the constructor's argument; it is the first number of most events
    EOpParamWidgetID getId() const;

    /// The cell table, for hosts that add or refill cells of their own.
    /// @return owned by this table; null only when the toolkit could not make one
    WQ::CMultiParamsTable* getMultiParamsTable();

    /// The order type, 0 after construction.
    /// @return 0 for plain orders, else an algorithm; on the tables 10 and 35 always 1, as soon as the visibility rules
    /// have run
    ttservice::EOrderType orderType() const;

    /// The operation type that setOperationType() was given last.
    /// @return -1 while none was
    ttservice::EOperationType getOperationType() const;

    /// The chosen price type.
    /// @return -1 without a price-type cell (broker types 1 and 5); 12, or what event 1213 has set, in a mode with a
    ///         parameter set that a button has chosen; 0 when a composite table has been left nothing to offer
    ttservice::EPriceType priceType() const;

    /// The instrument code that setStockCode() was given last.
    /// @return empty while none was
    QString getStockCode() const;

    /// Whether the table serves the order service, by its identity.
    /// @return true for 15, 17 to 22, 25 to 30 and 40
    bool isOrderService() const;

    /// Whether the table belongs to the close settings, by its identity.
    /// @return true for 36, 37, 38, 42, 43, 48, 49 and 51
    bool isCloseSetting() const;

    /// Whether the order type is beyond the modes with cells.
    /// @return true when it is none of -1, 0, 1, 2 and 3
    bool isTrdParamTable() const;

    /// Lets a person edit the cells, or not. Programs may change them either way.
    /// @param enable false to show the cells disabled, as the task dialogs do
    void setAllItemEnable(bool enable);

    /// Stores the cells that the host allows, re-runs the visibility rules and re-limits the super price. Flags other
    /// than the default let super prices be negative.
    /// @param flags an OR of cell IDs; bits that no cell has are kept and mean nothing
    void setFlag(OperationCellFlags flags);

    /// Takes the instrument's details and keeps nothing of them.
    /// @param detail may be null
    void setInstrument(std::shared_ptr<ttservice::CInstrumentDetail> detail);

    /// @}
    /// @name Visibility
    /// @{

    /// Collapsed the table shows what the user chose to see, expanded all that the rules allow. In order type 1
    /// expanding shows the algorithm's six cells whatever the flags say; collapsing hides five of them unless chosen.
    /// @param hidden true collapses, false expands
    void setExpandItemsHidden(bool hidden);

    /// Whether the table is expanded.
    /// @return false after construction
    bool isExpand();

    /// While collapsed, applies the user's visible-cell word of the current order type; order types outside 0 to 3 and
    /// an empty word show no choice.
    void loadVisibleFlag();

    /// Records the user's visible cells into the word of the current order type (0 to 3). An empty choice never
    /// overwrites a word. Nothing keeps the words beyond the table's life: that is the host's.
    /// @param skip true to record nothing; callers pass whether the table is expanded, which shows no choice
    void saveVisibleFlag(bool skip);

    /// Hides the algorithm buttons 608 and 611, which reduced editions do without.
    void hideAlgTable();

    /// Shows or hides an order-mode button.
    /// @param buttonId 600 plus the order type; an unknown one changes nothing
    /// @param visible whether the button can be seen
    void setVisibleByID(int buttonId, bool visible);

    /// Shows or hides button 613, the one mode that hosts switch on and off as a whole.
    /// @param type 13; any other changes nothing
    /// @param visible whether the button can be seen
    void setVisibleByOrderType(ttservice::EOrderType type, bool visible);

    /// @}
    /// @name Layout
    /// @{

    /// Takes the sizes of the current UI scale; nothing when the cell table does not follow it. Only the host calls it,
    /// so that rows and the table's fixed height change together.
    void handleScaleChanged();

    /// Repaints.
    void themeChanged() override;

    /// @}
    /// @name Events and order-mode buttons
    /// @{

    /// Receives the events of the cell table and the buttons; a host may call it as well. Clicks on mode buttons
    /// (5, ID 600 and up) switch the order type, edits (73, 87, 101, 102, 118) are saved and announced, 124 and 248
    /// keep and forget the user's choice of cells, 1071 lays the panel out. Sends 129, 130, 1061, 1062, 1063, 1064,
    /// 1206 and 1244, in the order that docs/events.md gives.
    /// @param event the event's number
    /// @param a the button or the cell
    /// @param b not looked at
    /// @param text handed on with what is sent
    /// @param payload a QVariant with 73, an int with 1213; without it neither changes a price type. Others ignore it
    /// @return true for clicks on mode buttons and for 97, 248, 249 and 1213; false for the others it acts on; what the
    ///         toolkit base answers for any other
    bool handleEvent(int event, int a, int b, QString text, void* payload) override;

    /// Makes sure that the button of the setting's order type can be seen: when the group has buttons but not that one,
    /// asks it to bring it in.
    /// @param setting read during the call only; null changes nothing
    void showOrderParamBtn(const ttservice::COrderSetting* setting);

    /// Shows or hides the button that reads "隔时交易" (trading at intervals); nothing when there is none.
    /// @param visible whether the button can be seen
    void setShowTimeAlgorith(bool visible);

    /// Makes a mode button visible and brings it out of the drop-down into the strip.
    /// @param buttonId 600 plus the order type; an unknown one changes nothing
    void showSelectButton(int buttonId);

    /// The checked order-mode button.
    /// @return its ID; -1 when none is checked
    int getSelectedButton();

    /// The first button with a text.
    /// @param name the text as shown
    /// @return its ID; negative when none has it
    int getBtnIDByName(QString name);

    /// The text of a button.
    /// @param buttonId 600 plus the order type
    /// @return the text as shown; empty when there is none
    QString getBtnNameByID(int buttonId);

    /// Stores that the help button is to stay hidden; nothing acts on it in this edition.
    /// @param hide kept in m_forceHideHelp
    void forceHideHelpBtn(bool hide);

    /// @}
    /// @name Price types
    /// @{

    /// Appends the levels of the order book from the fifth ask over the latest price to the fifth bid; options are
    /// quoted at the best levels alone (best ask, latest, best bid).
    /// @param[in,out] labels gains the labels, "卖⑤价" to "买⑤价"
    /// @param[in,out] values gains the EPriceType of each label, as ints
    void genPriceTypeBySubType(QStringList& labels, QVector<QVariant>& values);

    /// Selects a price type in the price-type cell, reads type and name back, and shows the super-price cells again.
    /// @param priceType one that the cell offers; another one keeps the choice
    void setPriceType(ttservice::EPriceType priceType);

    /// Selects a price type as price type and as initial quote, saves, sends 129 and re-runs the visibility rules.
    /// @param priceType any; it becomes priceType() even where neither cell offers it
    void selectPrice(ttservice::EPriceType priceType);

    /// The label of the price type.
    /// @return the stored one; while that is empty it is read again: the label of the cell's choice, or nothing in a
    ///         mode with a parameter set
    QString getCurrentPriceTypeName();

    /// @}
    /// @name Operation and order type
    /// @{

    /// Applies an operation type. For the broker types 2, 3, 7, 10 and 11, and on the tables 7 and 22, the base volumes
    /// are refilled (without ask levels once an operation is chosen) and fall back to the target volume, and a tail
    /// volume in shares is cut to lots of 100. A new operation rebuilds the price types as well. Sends 1062 or 1063
    /// when the price type calls for another colour (forgetting the original price), then 1244 in client modes 100/101.
    /// @param operationType any; 21 may restrict the price types to the specified one, all others are treated alike
    ///        but -1, which means none
    void setOperationType(ttservice::EOperationType operationType);

    /// Applies an order type: checks its button, shows or hides the cell area, the help button, cells and super price.
    /// Types from 4 on are algorithms with a parameter set of their own and show no cells. Sends 1062 or 1063 for those
    /// when the price type calls for another colour (and forgets the original price then), and 1244 in the client modes
    /// 100 and 101. Going back below 4 keeps the index of the parameter set until a mode button is clicked: number and
    /// unit edits stay unheard and the price type 12 until then. Price types are rebuilt by the type that is left.
    /// @param type any; one without a button keeps the checked one
    void setOrderType(ttservice::EOrderType type);

    /// The chosen volume type, by which the volume of one order is measured.
    /// @return an EVolumeType, 0 to 12; -1 without a volume-type cell (broker types 6, 7, 10 and 11)
    int singleVolType() const;

    /// Whether the algorithms may randomise volumes: stock of trader type 1, on the tables 5, 15, 31, 33 and 36.
    /// @return true when also the module mdl_alg/mdl_alg_randvolume is on
    bool isRandVolume() const;

    /// Whether an order type is an algorithm with a help page.
    /// @param type any
    /// @return true for 1, 2, 5 and 13
    bool bShowHelp(const ttservice::EOrderType& type);

    /// @}
    /// @name Price adjustment
    /// @{

    /// Switches the price-type cell to the specified price, which keeps its choice where it does not offer that, sends
    /// 1061, stores the price, saves and sends 129. Nothing at all in order type 5.
    /// @param price in the account's money or points; stored as it is, not-a-number and the no-price value included
    void setFixedPrice(double price);

    /// Stores the price that a person typed, while the price type is the specified price; otherwise nothing.
    /// @param price in the account's money or points; stored as it is
    void setOriginalPrice(double price);

    /// Whether the super price is hidden.
    /// @return false in this edition
    bool bSuperPriceHide() const;

    /// Whether the start count of the super price is hidden: a plain order has no later orders to count.
    /// @return true while the table is collapsed or the order type is 0
    bool bSuperPriceStartHide() const;

    /// The price for amount calculations, in the account's money or points.
    /// @param operationType -1 for none: order type 1 has no price then, but for the specified and the after-hours one
    /// @param zeroIfUnset whether an original price that is kNoPrice counts as 0.0
    /// @return with the specified price the original price, with after-hours trading the limit price, in order type 1
    ///         with any other the original price again; kNoPrice where there is none
    double getModifiedPriceByOptTypeForCalc(ttservice::EOperationType operationType, bool zeroIfUnset) const;

    /// The price to place an order at.
    /// @param operationType not looked at
    /// @return kNoPrice in this edition
    double getModifiedPriceByOptTypeForOrder(ttservice::EOperationType operationType) const;

    /// Fits the cell table's height and shows the super-price cells again. Call it after adding cells.
    void modPriceCell();

    /// Unchecks the trigger price, where a host has added that cell, sets it to 0.0 and saves.
    void resetTriggerPriceSetting();

    /// @}
    /// @name Settings records and parameter string
    /// @{

    /// A default record, valid today from 09:30 to 15:00 local time, the stock exchanges' hours.
    /// @return order type 0; times in whole seconds since the epoch
    ttservice::COrderSetting getDefault();

    /// The default record of a trader type.
    /// @param operationType not looked at
    /// @param traderType 1, 2 and 4 have values of their own; for others only the order type and the cell words are set
    /// @param type the record's order type
    /// @return a record without times
    static ttservice::COrderSetting getDefaultOrderSetting(ttservice::EOperationType operationType,
                                                           ttservice::ENvTraderType traderType,
                                                           ttservice::EOrderType type);

    /// Saves, then answers a stored record.
    /// @param key the host's
    /// @return a copy; a default-constructed record when there is none under the key, or save() has deleted the table
    ttservice::COrderSetting getOrderSettings(int key);

    /// Stores a copy of a record. Saves nothing.
    /// @param key the host's; what was stored under it is replaced
    /// @param setting read during the call only
    void setOrderSettings(int key, ttservice::COrderSetting& setting);

    /// The record as 41 items joined by "+": ints in decimal, flags as 0 or 1, doubles with three decimals, and
    /// "非法值" for a double that is no finite price. Item 24 repeats item 14, and the last five are the cell words 1,
    /// 2, 5, 3 and 4: hosts read it so. docs/parameter-strings.md has every item and an example.
    /// @param setting any; no value is bounded
    /// @return a text without a separator at its ends
    static QString orderSetting2Param(ttservice::COrderSetting setting);

    /// The visible order-mode buttons, for the host to keep.
    /// @return their IDs in order, as the button group writes them; empty without a button group
    QString loadCheckParam();

    /// Shows the order-mode buttons that a text names.
    /// @param text as loadCheckParam() answers it; the group ignores what names none of its buttons
    void setCheckParam(QString text);

    /// @}
    /// @name Command log
    /// @{

    /// Adds the remark cell where the module mdl_order/mdl_order_command_remark is on and the table is neither of the
    /// order service nor of the close settings. A cell that is there already stays. The host calls it once a table.
    void updateCmdLog();

    /// The remark that a person typed.
    /// @return UTF-8; empty without a remark cell
    std::string getCmdLog() const;

    /// @}
    /// @name Inert in this edition
    /// They do nothing, answer true where they answer a bool, and nothing but an empty text elsewhere;
    /// resetOrderParamSetting() calls save() and nothing else. Arguments are neither read nor written.
    /// @{

    /// Would write the cells into an order record.
    /// @param code the instrument
    /// @param key the settings record
    /// @param[in,out] param stays as it is
    /// @param price the order's
    void fillOrderParam(QString code, int key, ttservice::CCodeOrderParam& param, double price) const;

    /// Would show an order record in the cells.
    /// @param param the record
    void loadFromOrderParam(const ttservice::CCodeOrderParam& param, bool, std::string);

    /// Would write the algorithm parameters of a basket.
    /// @param params its orders
    /// @return empty
    std::string getAlgParamsStr(std::vector<ttservice::CCodeOrderParam> params);

    /// Would write the algorithm parameters of an order.
    /// @param param the order
    /// @return what the form for baskets answers
    std::string getAlgParamsStr(ttservice::CCodeOrderParam param);

    /// Would name the strategy of an algorithm.
    /// @return empty
    std::string getAlgoStrategyType();

    /// Would name the strategy of an algorithm as shown.
    /// @return empty
    std::string getAlgoStrategyTypeName();

    /// Would show a settings record in the cells.
    /// @param setting the record; may be null
    void loadOpParam(const ttservice::COrderSetting* setting, double);

    /// Would write the cells into a settings record.
    /// @param code the instrument
    /// @param setting stays as it is; may be null
    void saveOpParam(QString code, ttservice::COrderSetting* setting) const;

    /// Calls save() and nothing else.
    void resetOrderParamSetting();

    /// Would write the parameters of a single-order algorithm.
    /// @param type the algorithm
    /// @return empty
    QString doGetSingleNvAlgoUiParam(ttservice::EOrderType type) const;

    /// Would take the parameters of a single-order algorithm.
    /// @param type the algorithm
    /// @param param its parameters
    void doSetSingleNvAlgoUiParam(ttservice::EOrderType type, const QString& param);

    /// Would name the price type of an algorithm.
    /// @return empty
    QString getAlgoPriceTypeName() const;

    /// Would replace a price type that cannot be placed.
    /// @param[in,out] priceType stays as it is
    /// @return true
    bool changePriceType(ttservice::EPriceType& priceType);

    /// Would compare the price with the day's limits.
    /// @param[in,out] message stays as it is
    /// @return true
    bool checkPriceLimit(QString& message);

    /// Would ask whether the instrument has a limit for the day.
    /// @return true
    bool hasUpStopPrice();

    /// Would answer the day's limits.
    /// @param[in,out] low stays as it is
    /// @param[in,out] high stays as it is
    void getPriceLimit(double& low, double& high);

    void handleWheel();           ///< Nothing.
    void hideAmountUsed();        ///< Nothing.
    void onPriceTypeChange();     ///< Nothing.
    void reSetPriceTypeEnable();  ///< Nothing.
    void resetCurrentPriceType(); ///< Nothing.
    void resetMarketPriceType();  ///< Nothing.

    /// Would change the strategy of an algorithm.
    /// @param type the algorithm
    /// @param strategy its new strategy
    void resetStrategyType(ttservice::EOrderType type, QString strategy);

    /// Would show the buttons of an algorithm.
    /// @param type the algorithm
    void setAlgirithmBtnVisible(ttservice::EOrderType type);

    /// Would let a person edit the cells of an order type.
    /// @param type the order type
    /// @param enable whether they may be edited
    void setTableEnabled(ttservice::EOrderType type, bool enable);

    /// Would fit the table to a trading platform.
    /// @param platform the platform
    void setTableUIByParams(ttservice::ETradePlatform platform);

    void updateIntervalUnit(); ///< Nothing.
    void updatePriceLimit();   ///< Nothing.
    void updateRandomVolume(); ///< Nothing.
    void updateUnit();         ///< Nothing.

    /// @}

Q_SIGNALS:
    /// Named like the user configuration's; nothing emits it.
    /// @param orderType the algorithm's order type
    /// @param hint whether it should be hinted at
    void sigShouldHintAlgorithm(int orderType, bool hint);

protected:
    /// Fills the ground with the panel's colour.
    /// @param event Qt's
    void paintEvent(QPaintEvent* event) override;

    /// Lays the strip and the scroll area out.
    /// @param event Qt's
    void resizeEvent(QResizeEvent* event) override;

    /// Builds the strip, the scroll area and the cells; the constructor calls it once.
    void createUi();

    /// Whether the table composes futures, by its identity.
    /// @return true for 8, 10 and 23
    bool isComposeFuture();

    /// Whether the table composes stock, by its identity.
    /// @return true for 7, 9, 22 and 24
    bool isComposeStock();

    /// Whether a module may be used; this table's own checks ask the module control service.
    /// @param module not looked at
    /// @return true
    bool isAuthorityLegal(std::string module);

    /// Recomputes which cells are shown, and the strip; tables 10 and 35 are set to order type 1 here. A cell is shown
    /// when the host's flags and the order type allow it; the super-price cells follow rules of their own, and the tail
    /// volume, the remark, trigger price, stop profit and stop loss ask for more.
    void resetCellVisibilities();

    /// Lays the strip and the scroll area out; a table higher than its room gets narrower by the scroll bar.
    /// @param size the panel's, in pixels
    void resetLayout(QSize size);

    /// Takes the first mode button when the checked one is not that of the order type.
    void resetBtnType();

    /// Sends 1244 in the client modes 100 and 101, which show algorithm buttons of their own.
    void setAlgoBtnVisible();

    /// Whether the table shows algorithms, by identity and broker type.
    /// @return false for the identities 36 to 39, 43, 45, 48, 49 and 51, and for the broker types 4, 6 and 10
    bool showAlgo();

    /// Whether the help button follows the order type.
    /// @return false for the identities 15 to 30, 36 to 40, 43, 45, 48, 49 and 51, whose help button is their own
    bool showAlgoHelpButton();

    /// Appends the price types that the flags and the market family select.
    /// @param[in,out] labels gains the labels
    /// @param[in,out] values gains the EPriceType of each label, as ints
    /// @param flags 1 automatic order book, 4 own-side queue and counter-party price, 8 previous close, 16 book levels,
    ///        else 32 ask levels, else 64 bid levels; other bits select nothing
    /// @param market 1 to 5, the family of the market orders; any other has none
    /// @param apply whether the price-type cell takes the lists; never empty ones, nor a restricted operation 21's
    /// @param current not looked at
    void doResetPriceType(QStringList& labels, QVector<QVariant>& values, int flags, int market, bool apply,
                          QString current);

    /// Rebuilds the price-type cell where the table's identity or the securities-lending sell asks for it. A composite
    /// table's choice survives when it is still offered.
    void resetPriceType();

    /// Reads price type and name from the cell; in a mode with a parameter set the type is that set's and the name
    /// empty.
    void updateCurrentPriceTypeName();

    /// Shows the tail-volume cell exactly for the remaining target volume, which may end in less than a lot.
    /// @param type the chosen volume type
    void onVolumeTypeChange(ttservice::EVolumeType type);

    /// The volume type that another one stands for.
    /// @param type any
    /// @return the same
    ttservice::EVolumeType getRealVolumeType(ttservice::EVolumeType type) const;

    /// Stores a quoted price unless the price type is the specified one (a typed price is never overwritten), and sends
    /// 1062 with a pointer to it.
    /// @param price in the account's money or points; stored as it is
    /// @param text the event's text
    void setPriceImpl(double price, QString text);

    /// Sends 1062 or 1063 with the colour key of the price display and forgets the original price, for market and
    /// after-hours price types, which have none.
    void resetShowFixPrice();

    /// Re-limits the super price in percent and money: from 0 while the flags are the default, else from the negative
    /// limit, up to 100 percent and 1,000,000. The unit that a person has chosen stays.
    void resetSuperPrice();

    /// Shows the super price, and its start count where that is not hidden.
    void resetSuperPriceShow() const;

    /// Keeps the super price within twice the fluctuation range when both have the same unit.
    void fixSuperPrice();

    /// A super price as the flags allow it.
    /// @param value in any unit
    /// @return not below 0 while the flags are the default
    double changeSuperPrice(double value);

    /// A price for display.
    /// @param value any
    /// @return 0.0 for the no-price value, within 1e-5; else the value
    double fixPriceInRange(double value) const;

    /// In the order types 0 and 1 shows the limit price and hides the trigger price.
    void resetTableByPriceType();

protected Q_SLOTS:
    /// Marks the help button, and remembers the mark for that order type.
    /// @param orderType the algorithm's order type; any integer is remembered
    /// @param hint whether it should be hinted at
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
    EOpParamWidgetID m_id;                               ///< which place of the host the table serves
    ttservice::EOrderType m_orderType = ttservice::ORDER_TYPE_NORMAL;   ///< plain order or algorithm
    ttservice::EOperationType m_operationType = ttservice::OPT_NONE;    ///< what the order does
    ttservice::ENVBrokerType m_brokerType;                              ///< what the account trades through
    OperationCellFlags m_flags = OperationCellFlags(kDefaultCellFlags); ///< the cells that the host allows
    QString m_stockCode;                                                ///< instrument code
    bool m_ready = false;                                               ///< false while the table is being built
    ttservice::EPriceType m_paramPriceType = ttservice::PRTP_MARKET; ///< price type while m_paramIndex is not negative
    int m_pendingPriceType = 0;                                      ///< price type last passed to setPriceType()
    bool m_expand = false;                                           ///< shows all that the rules allow
    std::array<quint32, 4> m_visibleFlags = {};        ///< the user's visible cells, a word for order types 0 to 3
    bool m_showModeButtons;                            ///< the strip has a button for plain orders
    bool m_tableFontScale;                             ///< the cell table follows the UI scale
    ttservice::ENvTraderType m_traderType;             ///< the kind of trading desk
    bool m_lastFlag;                                   ///< the automatic order-book price type may be offered
    QString m_priceTypeName = QString::fromLatin1(""); ///< label of the price type
    ttservice::EPriceType m_priceType = ttservice::PRTP_NONE; ///< the chosen price type
    double m_originalPrice = 0.0; ///< the price that the host passed for the specified price type
};

} // namespace TC
