#pragma once

#include <OrderParamTable_mini/OrderParamTableExport.h>

#include <WQ/CFloatWidget.h>
#include <ttservice/CCodeOrderParam.h>

#include <string>

class QBoxLayout;

namespace WQ {
class CPushButton;
}

namespace TC {

class CGlobalOrderParamTable;

/// The floating dialog that shows one task: the parameter table of its account's broker type, disabled, and a column of
/// facts. It hands nothing back and deletes itself when closed.
class ORDERPARAMTABLE_EXPORT CBaseTaskParamWidget : public WQ::CFloatWidget
{
public:
    /// @param param the task; never written
    /// @param tradeParam the task's trade-parameter text
    /// @param parent the owner; may be null
    /// @param flag kept for the host
    /// @param traderType the kind of trading desk; type 4 has no fact column
    /// @param tableFlag whether a stock table may offer the automatic order-book price type
    CBaseTaskParamWidget(ttservice::CCodeOrderParam& param, QString tradeParam, QWidget* parent, bool flag,
                         ttservice::ENvTraderType traderType, bool tableFlag, std::string);
    ~CBaseTaskParamWidget() override;

protected:
    void createUi(const ttservice::CCodeOrderParam& param, QString tradeParam, std::string);

    /// A click on any button (event 5) expands or collapses the table and answers true; other events go to the base.
    bool handleEvent(int event, int a, int b, QString text, void* payload) override;

private:
    void createTable(const ttservice::CCodeOrderParam& param, const QString& tradeParam, const std::string& extra,
                     QBoxLayout* column);
    void createExpandButton(ttservice::EOrderType orderType, QBoxLayout* column);
    void createFacts(const ttservice::CCodeOrderParam& param, QBoxLayout* root);

protected:
    WQ::CPushButton* m_expandButton = nullptr;
    CGlobalOrderParamTable* m_table = nullptr;
    bool m_expanded = false;
    bool m_flag; ///< kept for the host
    ttservice::ENvTraderType m_traderType;
    bool m_tableFlag;
};

} // namespace TC
