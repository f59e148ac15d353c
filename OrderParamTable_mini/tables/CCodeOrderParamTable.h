#pragma once

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <boost/shared_ptr.hpp>

#include <ttservice/IData.h>

namespace TC {

/// The table for the parameters of one instrument code: the base table with the code it is given. In this edition it
/// keeps no parameters of its own. Events: those of the base table.
class ORDERPARAMTABLE_EXPORT CCodeOrderParamTable : public COrderParamBaseTable
{
public:
    /// Hands its arguments to the base table in another order; the automatic order-book price type is never offered.
    /// @param id which place of the host the table serves
    /// @param brokerType the account's broker type
    /// @param parent the owner; may be null
    /// @param a whether the cell table follows the UI scale
    /// @param traderType the kind of trading desk
    /// @param b whether the strip of order-mode buttons is built
    CCodeOrderParamTable(EOpParamWidgetID id, ttservice::ENVBrokerType brokerType, QWidget* parent, bool a,
                         ttservice::ENvTraderType traderType, bool b);
    ~CCodeOrderParamTable() override;

    /// As the base table's.
    /// @param code the code as the host writes it; empty for none
    void setStockCode(QString code) override;

    /// The record that a code without parameters has.
    /// @return a default-constructed record
    ttservice::COrderSetting getDefaultParam();

    /// Records the user's visible cells unless the table is expanded, and saves.
    void saveParamFlag();

    /// @name Inert in this edition
    /// @{

    /// Would store the parameters of a code.
    /// @param code the instrument
    /// @param setting its parameters; stays as it is
    void setOrderParam(QString code, ttservice::COrderSetting& setting);

    /// Would turn the table to selling.
    /// @param sell whether the order sells
    void setSell(bool sell);

    /// Would read the parameters of all codes.
    /// @param text not looked at
    void setParam(const QString& text) override;

    /// Would write the parameters of all codes.
    /// @return empty
    QString param() const override;

    /// Would store what the cells hold.
    void save() override;

protected:
    /// Would load the cells.
    void reloadParam() override;
    /// @}

    bool m_changed = false;                                            ///< not used in this edition
    QMap<QString, boost::shared_ptr<ttservice::IData>> m_paramsByCode; ///< by instrument code; stays empty
    ttservice::COrderSetting m_defaultSetting;                         ///< what getDefaultParam() answers
    QMap<QString, boost::shared_ptr<ttservice::IData>> m_secondMap;    ///< not used in this edition
};

} // namespace TC
