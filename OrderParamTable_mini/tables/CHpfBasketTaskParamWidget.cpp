#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>

#include <OrderParamTable_mini/semantics/OrderModes.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <OrderParamTable_mini/tables/TaskTables.h>

#include <WQ/EventNumbers.h>

#include <QBoxLayout>

namespace TC {

using namespace ttservice;

CHpfBasketTaskParamWidget::CHpfBasketTaskParamWidget(std::vector<CCodeOrderParam>& params, QString tradeParam,
                                                     QWidget* parent, std::string extra)
    : WQ::CFloatWidget(true, parent)
{
    createUi(params, tradeParam, extra);
    setAttribute(Qt::WA_DeleteOnClose);
}

CHpfBasketTaskParamWidget::~CHpfBasketTaskParamWidget() = default;

void CHpfBasketTaskParamWidget::createUi(std::vector<CCodeOrderParam>&, QString, std::string)
{
}

CGlobalOrderParamTable* CHpfBasketTaskParamWidget::creatTable(CCodeOrderParam param, QString tradeParam,
                                                              std::string extra)
{
    TaskTableChoice choice;
    choice.isBasket = true;
    return createTaskTable(param, choice, tradeParam, extra, this);
}

void CHpfBasketTaskParamWidget::changeOrderType(CCodeOrderParam& param)
{
    param.orderType = shownOrderType(param.orderType);
}

void CHpfBasketTaskParamWidget::reloadWidget(bool second)
{
    if (!m_columnLayout || !m_firstView || !m_secondView || !m_swapButton)
        return;
    for (QWidget* const widget : {m_firstView, m_secondView, m_swapButton})
        m_columnLayout->removeWidget(widget);
    m_firstView->setVisible(!second);
    m_secondView->setVisible(second);
    m_columnLayout->addWidget(second ? m_secondView : m_firstView, 0);
    setTitle(second ? m_secondTitle : m_firstTitle);
    m_columnLayout->addWidget(m_swapButton, 0);
    if (m_rootLayout)
        setLayout(m_rootLayout);
}

bool CHpfBasketTaskParamWidget::handleEvent(int event, int a, int b, QString text, void* payload)
{
    if (event != WQ::events::kButtonClicked)
        return WQ::CBaseDialog::handleEvent(event, a, b, text, payload);
    reloadWidget(m_flag);
    m_flag = !m_flag;
    return true;
}

} // namespace TC
