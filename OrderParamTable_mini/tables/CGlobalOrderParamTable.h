#pragma once

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

namespace TC {

/// The table that keeps one settings record for each order type. The task dialogs embed it.
///
/// In this edition no cell value reaches a record: the operations that would convert are inert, the bookkeeping of
/// records and the time ranges are live.
class ORDERPARAMTABLE_EXPORT CGlobalOrderParamTable : public COrderParamBaseTable
{
public:
    /// As the base table's constructor.
    CGlobalOrderParamTable(EOpParamWidgetID id, ttservice::ENVBrokerType brokerType, bool showModeButtons,
                           QWidget* parent, bool tableFontScale, ttservice::ENvTraderType traderType, bool lastFlag);
    ~CGlobalOrderParamTable() override;

    /// Ignores its argument: the table has no code of its own, and the base table's is not touched.
    void setStockCode(QString code) override;

    /// Always empty in this edition.
    QString getStockCode() const;

    /// Replaces the record of the current order type by a default one.
    void clear() override;

    /// Reads fields joined by "^". The current order type gains a record when it has none; keys and values have no
    /// effect in this edition.
    void setParam(const QString& text) override;

    /// Loads a record (inert) and saves.
    void setParam(ttservice::COrderSetting& setting);

    /// Always empty in this edition.
    QString param() const override;

    /// Marks the record of the current order type with that type, adding it when there is none.
    void save() override;

    /// Calls save().
    void saveParam();

    /// Always empty in this edition.
    QString getOrderSettingParam() const;

    /// The parameters of a single-order algorithm (order types 4 to 104): always empty in this edition.
    QString getSingleNvAlgoUiParam(ttservice::EOrderType type) const;

    /// Hands the parameters of a single-order algorithm (order types 4 to 104) on; without effect in this edition.
    void setSingleNvAlgoParam(ttservice::EOrderType type, const QString& param);

    /// Always empty in this edition.
    QString getUiParamByTrdTradeParam(ttservice::EOrderType type, const QString& tradeParam);

    /// Inert.
    void resetStrategyType(ttservice::EOrderType type, QString strategy);
    void setNvAlgoHideAmountUsed(bool hide, int type);

    /// Moves the valid-time range of the current order type's record onto today, keeping its start's time of day and
    /// its length in seconds; nothing for order types 0 and 6.
    void fixTimeRange();

    /// Writes the valid-time cell into @p param: from now on for a duration, today at the cell's times for a clock
    /// range; nothing for order types 0 and 6, and for null.
    void transferTimePeriod(ttservice::CCodeOrderParam* param);

protected:
    /// Adds a record for the current order type when there is none, and loads it.
    void reloadParam() override;

    QString m_storedCode;                                      ///< never written in this edition
    ttservice::COrderSetting m_workingSetting;                 ///< what a new record starts as
    QMap<int, ttservice::COrderSetting> m_settingsByOrderType; ///< only ever grows
};

} // namespace TC
