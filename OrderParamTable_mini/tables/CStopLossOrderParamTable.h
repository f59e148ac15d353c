#pragma once

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

namespace TC {

/// The table of a stop-loss order; it starts expanded.
class ORDERPARAMTABLE_EXPORT CStopLossOrderParamTable : public COrderParamBaseTable
{
public:
    /// A table with mode buttons that follows the UI scale, for trader type 1.
    CStopLossOrderParamTable(EOpParamWidgetID id, ttservice::ENVBrokerType brokerType, QWidget* parent);
    ~CStopLossOrderParamTable() override;

    /// Stores the two stop-loss texts; nothing reads them in this edition.
    void setStopLoss(QString first, QString second);

    /// @name Inert in this edition
    /// @{
    void setParam(const QString& text) override;
    QString param() const override;
    void save() override;

protected:
    void reloadParam() override;
    /// @}

    QString m_stopLossPrice;
    QString m_secondStopLoss;
};

} // namespace TC
