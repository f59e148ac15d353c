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
/// facts. It is for viewing: it hands nothing back, and it deletes itself when closed (Qt::WA_DeleteOnClose), so that a
/// host keeps a QPointer to it at most.
///
/// A task without an account, or with one of a broker type that has no table, shows a notice in the table's place. The
/// table applies the task's operation while the dialog is being made: in the client modes 100 and 101 the parent hears
/// 1244 then.
class ORDERPARAMTABLE_EXPORT CBaseTaskParamWidget : public WQ::CFloatWidget
{
public:
    /// @param param the task, read during the call only and never written; the order types 6 and 7, which only tasks
    ///        record, are shown as the 0 and 1 that they stand for
    /// @param tradeParam the task's trade-parameter text; without effect in this edition
    /// @param parent the owner, and the first to hear events; may be null
    /// @param flag kept for the host in m_flag
    /// @param traderType the kind of trading desk; type 4 has no fact column
    /// @param tableFlag whether a stock table may offer the automatic order-book price type
    CBaseTaskParamWidget(ttservice::CCodeOrderParam& param, QString tradeParam, QWidget* parent, bool flag,
                         ttservice::ENvTraderType traderType, bool tableFlag, std::string);
    ~CBaseTaskParamWidget() override;

protected:
    /// Builds the dialog; the constructor calls it once.
    /// @param param the task as shown
    /// @param tradeParam the task's trade-parameter text
    void createUi(const ttservice::CCodeOrderParam& param, QString tradeParam, std::string);

    /// A click on any button (event 5) expands or collapses the table; other events go to the base.
    /// @param event the event's number
    /// @param a not looked at
    /// @param b not looked at
    /// @param text not looked at
    /// @param payload not looked at
    /// @return true for 5, else what the toolkit's dialog answers
    bool handleEvent(int event, int a, int b, QString text, void* payload) override;

private:
    void createTable(const ttservice::CCodeOrderParam& param, const QString& tradeParam, const std::string& extra,
                     QBoxLayout* column);
    void createExpandButton(ttservice::EOrderType orderType, QBoxLayout* column);
    void createFacts(const ttservice::CCodeOrderParam& param, QBoxLayout* root);

protected:
    WQ::CPushButton* m_expandButton = nullptr; ///< under the table; null when the host has deleted it
    CGlobalOrderParamTable* m_table = nullptr; ///< null for a task without one, or when the host has deleted it
    bool m_expanded = false;                   ///< the table shows its optional cells
    bool m_flag;                               ///< kept for the host
    ttservice::ENvTraderType m_traderType;     ///< the kind of trading desk
    bool m_tableFlag;                          ///< a stock table may offer the automatic order-book price type
};

} // namespace TC
