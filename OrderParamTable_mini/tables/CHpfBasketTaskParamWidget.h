#pragma once

#include <OrderParamTable_mini/OrderParamTableExport.h>

#include <WQ/CFloatWidget.h>
#include <ttservice/CCodeOrderParam.h>

#include <string>
#include <vector>

class QBoxLayout;
class QLayout;

namespace TC {

class CGlobalOrderParamTable;

/// The floating dialog of a basket of tasks. In this edition it opens empty; its table factory, the mapping of order
/// types and the swap of its two views are complete, for dialogs derived from it. It deletes itself when closed
/// (Qt::WA_DeleteOnClose). It sends no event but what a table that creatTable() makes sends.
class ORDERPARAMTABLE_EXPORT CHpfBasketTaskParamWidget : public WQ::CFloatWidget
{
public:
    /// Opens empty.
    /// @param params the tasks; neither read nor kept
    /// @param tradeParam not looked at
    /// @param parent the owner; may be null
    CHpfBasketTaskParamWidget(std::vector<ttservice::CCodeOrderParam>& params, QString tradeParam, QWidget* parent,
                              std::string);
    ~CHpfBasketTaskParamWidget() override;

protected:
    /// Inert.
    /// @param params the tasks
    /// @param tradeParam their trade-parameter text
    void createUi(std::vector<ttservice::CCodeOrderParam>& params, QString tradeParam, std::string);

    /// A read-only table for one task. It applies the task's operation, which sends 1244 in the client modes 100 and
    /// 101.
    /// @param param the task; its order type is taken as it is, without changeOrderType()
    /// @param tradeParam the task's trade-parameter text; without effect in this edition
    /// @return a child of the dialog, which owns it; null for a broker type
    ///         without a table, for a task without an account, and when the
    ///         host deletes the table on hearing of its operation
    CGlobalOrderParamTable* creatTable(ttservice::CCodeOrderParam param, QString tradeParam, std::string);

    /// The order types that only tasks record, 6 and 7, become the 0 and 1 that they stand for.
    /// @param[in,out] param any other order type stays
    void changeOrderType(ttservice::CCodeOrderParam& param);

    /// Shows the second view or the first one, with its title; nothing while a view, the button or the layout is
    /// missing.
    /// @param second which of the views
    void reloadWidget(bool second);

    /// A click on any button (event 5) swaps the views; other events go to the base.
    /// @param event the event's number
    /// @param a not looked at
    /// @param b not looked at
    /// @param text not looked at
    /// @param payload not looked at
    /// @return true for 5, else what the toolkit's dialog answers
    bool handleEvent(int event, int a, int b, QString text, void* payload) override;

    QWidget* m_swapButton = nullptr;      ///< under the views
    QWidget* m_secondView = nullptr;      ///< shown while the flag is true
    QWidget* m_firstView = nullptr;       ///< shown while the flag is false
    bool m_flag = false;                  ///< which view the next click shows
    QLayout* m_rootLayout = nullptr;      ///< set on the dialog with each swap
    QBoxLayout* m_columnLayout = nullptr; ///< holds a view and the button
    QString m_secondTitle;                ///< title of the second view
    QString m_firstTitle;                 ///< title of the first view
};

} // namespace TC
