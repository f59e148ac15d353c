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
/// types and the swap of its two views are complete. It deletes itself when closed.
class ORDERPARAMTABLE_EXPORT CHpfBasketTaskParamWidget : public WQ::CFloatWidget
{
public:
    /// @p params is neither read nor kept, the texts are not used.
    CHpfBasketTaskParamWidget(std::vector<ttservice::CCodeOrderParam>& params, QString tradeParam, QWidget* parent,
                              std::string);
    ~CHpfBasketTaskParamWidget() override;

protected:
    /// Inert.
    void createUi(std::vector<ttservice::CCodeOrderParam>& params, QString tradeParam, std::string);

    /// A read-only table for one task, a child of the dialog; null for a broker type without one and for a task without
    /// an account.
    CGlobalOrderParamTable* creatTable(ttservice::CCodeOrderParam param, QString tradeParam, std::string);

    /// The order types that only tasks record, 6 and 7, become the 0 and 1 that they stand for.
    void changeOrderType(ttservice::CCodeOrderParam& param);

    /// Shows the second view or the first one, with its title; nothing while a view, the button or the layout is
    /// missing.
    void reloadWidget(bool second);

    /// A click on any button (event 5) swaps the views and answers true; other events go to the base.
    bool handleEvent(int event, int a, int b, QString text, void* payload) override;

    QWidget* m_swapButton = nullptr;
    QWidget* m_secondView = nullptr;
    QWidget* m_firstView = nullptr;
    bool m_flag = false; ///< which view the next click shows
    QLayout* m_rootLayout = nullptr;
    QBoxLayout* m_columnLayout = nullptr;
    QString m_secondTitle;
    QString m_firstTitle;
};

} // namespace TC
