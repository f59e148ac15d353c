#pragma once

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

namespace TC {

/// The table that keeps one settings record for each order type. The task dialogs embed it.
///
/// In this edition no cell value reaches a record: the operations that would convert are inert, the bookkeeping of
/// records and the time ranges are live. Events: those of the base table.
class ORDERPARAMTABLE_EXPORT CGlobalOrderParamTable : public COrderParamBaseTable
{
public:
    /// As the base table's constructor. No order type has a record yet.
    /// @param id which place of the host the table serves
    /// @param brokerType the account's broker type
    /// @param showModeButtons whether the strip of order-mode buttons is built
    /// @param parent the owner; may be null
    /// @param tableFontScale whether the cell table follows the UI scale
    /// @param traderType the kind of trading desk
    /// @param lastFlag whether the automatic order-book price type may be offered
    CGlobalOrderParamTable(EOpParamWidgetID id, ttservice::ENVBrokerType brokerType, bool showModeButtons,
                           QWidget* parent, bool tableFontScale, ttservice::ENvTraderType traderType, bool lastFlag);
    ~CGlobalOrderParamTable() override;

    /// Ignores its argument: the records belong to order types, not to codes, and the base table's is not touched.
    /// @param code not looked at
    void setStockCode(QString code) override;

    /// The table's own code; it hides the base table's.
    /// @return empty in this edition
    QString getStockCode() const;

    /// Replaces the record of the current order type by a default one.
    void clear() override;

    /// Reads fields joined by "^", from the third on a key and a value joined by "=". This frame is the table's own,
    /// not the text of orderSetting2Param(). The current order type gains a record when it has none; nothing else has
    /// an effect in this edition.
    /// @param text any, an empty one too
    void setParam(const QString& text) override;

    /// Loads a record (inert) and saves.
    /// @param setting stays as it is
    void setParam(ttservice::COrderSetting& setting);

    /// The table's state as a text.
    /// @return empty in this edition
    QString param() const override;

    /// Marks the record of the current order type with that type, adding it when there is none.
    void save() override;

    /// Calls save().
    void saveParam();

    /// The records as a text.
    /// @return empty in this edition
    QString getOrderSettingParam() const;

    /// The parameters of a single-order algorithm.
    /// @param type the algorithm, 4 to 104; others have none
    /// @return empty in this edition
    QString getSingleNvAlgoUiParam(ttservice::EOrderType type) const;

    /// Hands the parameters of a single-order algorithm on; without effect in this edition.
    /// @param type the algorithm, 4 to 104; for others nothing is handed on
    /// @param param its parameters
    void setSingleNvAlgoParam(ttservice::EOrderType type, const QString& param);

    /// What a task's trade parameter says about the cells.
    /// @param type the task's order type
    /// @param tradeParam the task's text
    /// @return empty in this edition
    QString getUiParamByTrdTradeParam(ttservice::EOrderType type, const QString& tradeParam);

    /// Inert.
    /// @param type the algorithm
    /// @param strategy its new strategy
    void resetStrategyType(ttservice::EOrderType type, QString strategy);

    /// Inert.
    /// @param hide whether to hide the amount used
    /// @param type the algorithm
    void setNvAlgoHideAmountUsed(bool hide, int type);

    /// Moves the valid-time range of the current order type's record onto the time service's today, keeping its start's
    /// time of day and its length in seconds: an algorithm set up yesterday is to run today. Nothing for records of
    /// order types 0 and 6, plain orders, which have no range. An order type without a record gains one.
    void fixTimeRange();

    /// Writes the valid-time cell into @p param: from now on for a duration, today at the cell's times for a clock
    /// range; nothing for order types 0 and 6.
    /// @param[in,out] param gains start and end, whole seconds since the epoch; null changes nothing
    void transferTimePeriod(ttservice::CCodeOrderParam* param);

protected:
    /// Adds a record for the current order type when there is none, and loads it.
    void reloadParam() override;

    QString m_storedCode;                                      ///< never written in this edition
    ttservice::COrderSetting m_workingSetting;                 ///< what a new record starts as
    QMap<int, ttservice::COrderSetting> m_settingsByOrderType; ///< only ever grows
};

} // namespace TC
