#pragma once

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

namespace TC {

/// The table of a stop-loss order; it starts expanded. In this edition it keeps no parameters. Events: those of the
/// base table.
class ORDERPARAMTABLE_EXPORT CStopLossOrderParamTable : public COrderParamBaseTable
{
public:
    /// A table with mode buttons that follows the UI scale, for trader type 1, without the automatic order-book price
    /// type.
    /// @param id which place of the host the table serves
    /// @param brokerType the account's broker type
    /// @param parent the owner; may be null
    CStopLossOrderParamTable(EOpParamWidgetID id, ttservice::ENVBrokerType brokerType, QWidget* parent);
    ~CStopLossOrderParamTable() override;

    /// Stores the two stop-loss texts; nothing reads them in this edition.
    /// @param first the stop-loss price
    /// @param second the second stop-loss
    void setStopLoss(QString first, QString second);

    /// @name Inert in this edition
    /// @{

    /// Would read the table's parameters.
    /// @param text not looked at
    void setParam(const QString& text) override;

    /// Would write the table's parameters.
    /// @return empty
    QString param() const override;

    /// Would store what the cells hold.
    void save() override;

protected:
    /// Would load the cells.
    void reloadParam() override;
    /// @}

    QString m_stopLossPrice;  ///< the first text of setStopLoss()
    QString m_secondStopLoss; ///< the second text of setStopLoss()
};

} // namespace TC
