#pragma once

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <boost/shared_ptr.hpp>

#include <ttservice/IData.h>

namespace TC {

/// The table for the parameters of one instrument code.
class ORDERPARAMTABLE_EXPORT CCodeOrderParamTable : public COrderParamBaseTable
{
public:
    /// Hands its arguments to the base table in another order: @p b becomes the mode-button flag, @p a the font scale,
    /// and the automatic order-book price type is never offered.
    CCodeOrderParamTable(EOpParamWidgetID id, ttservice::ENVBrokerType brokerType, QWidget* parent, bool a,
                         ttservice::ENvTraderType traderType, bool b);
    ~CCodeOrderParamTable() override;

    void setStockCode(QString code) override;

    /// A default-constructed record.
    ttservice::COrderSetting getDefaultParam();

    /// Records the user's visible cells unless the table is expanded, and saves.
    void saveParamFlag();

    /// @name Inert in this edition
    /// @{
    void setOrderParam(QString code, ttservice::COrderSetting& setting);
    void setSell(bool sell);
    void setParam(const QString& text) override;
    QString param() const override;
    void save() override;

protected:
    void reloadParam() override;
    /// @}

    bool m_changed = false;
    QMap<QString, boost::shared_ptr<ttservice::IData>> m_paramsByCode;
    ttservice::COrderSetting m_defaultSetting;
    QMap<QString, boost::shared_ptr<ttservice::IData>> m_secondMap;
};

} // namespace TC
