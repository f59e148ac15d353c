#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>

#include <OrderParamTable_mini/frame/Services.h>
#include <OrderParamTable_mini/semantics/OrderModes.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <OrderParamTable_mini/tables/TaskFacts.h>
#include <OrderParamTable_mini/tables/TaskTables.h>

#include <WQ/CPushButton.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace TC {

using namespace ttservice;

namespace {

constexpr int kButtonHeight = 22;

QString expandImage()
{
    return QStringLiteral("tc_img_operation_expand_btn");
}

QString contractImage()
{
    return QStringLiteral("tc_img_operation_contract_btn");
}

/// Stands in the table's place for accounts that have none.
QWidget* createNotice(QWidget* parent)
{
    auto* const notice = new QLabel(QStringLiteral("该账户类型没有可显示的参数"), parent);
    notice->setAlignment(Qt::AlignCenter);
    notice->setWordWrap(true);
    notice->setFixedSize(taskTableWidth(), kTaskTableHeight);
    QPalette palette = notice->palette();
    palette.setColor(QPalette::WindowText, resourceColor(QStringLiteral("clr_global_text")));
    notice->setPalette(palette);
    return notice;
}

} // namespace

CBaseTaskParamWidget::CBaseTaskParamWidget(CCodeOrderParam& param, QString tradeParam, QWidget* parent, bool flag,
                                           ENvTraderType traderType, bool tableFlag, std::string extra)
    : WQ::CFloatWidget(true, parent)
    , m_flag(flag)
    , m_traderType(traderType)
    , m_tableFlag(tableFlag)
{
    CCodeOrderParam shown = param;
    shown.orderType = shownOrderType(param.orderType);
    createUi(shown, tradeParam, extra);
    setAttribute(Qt::WA_DeleteOnClose);
}

CBaseTaskParamWidget::~CBaseTaskParamWidget() = default;

void CBaseTaskParamWidget::createUi(const CCodeOrderParam& param, QString tradeParam, std::string extra)
{
    auto* const root = new QHBoxLayout;
    root->setContentsMargins(15, 36, 15, 13);
    auto* const column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    m_table = createTaskTable(param, {m_traderType, false, m_tableFlag}, tradeParam, extra, this);
    column->addWidget(m_table ? m_table : createNotice(this), 1);
    createExpandButton(param.orderType, column);
    root->addLayout(column);
    if (m_traderType != TRADER_TYPE_4)
        createFacts(param, root);
    setLayout(root);
}

void CBaseTaskParamWidget::createExpandButton(EOrderType orderType, QBoxLayout* column)
{
    m_expandButton = new WQ::CPushButton(QStringLiteral("tc_img_operation_showhide_btn"), 0, 4, 25, 3, 17, this);
    m_expandButton->setIcon(expandImage(), WQ::IconAlignCenter, 0);
    m_expandButton->setFixedHeight(kButtonHeight);
    column->addWidget(m_expandButton, 0);
    if (orderType == ORDER_TYPE_NORMAL || !m_table)
        m_expandButton->hide();
}

void CBaseTaskParamWidget::createFacts(const CCodeOrderParam& param, QBoxLayout* root)
{
    auto* const line = new QFrame(this);
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Raised);
    root->addWidget(line, 2);
    auto* const box = new QVBoxLayout;
    box->setContentsMargins(5, 8, 5, 5);
    box->addWidget(createTaskFacts(param, this));
    root->addLayout(box);
}

bool CBaseTaskParamWidget::handleEvent(int event, int a, int b, QString text, void* payload)
{
    if (event != 5)
        return WQ::CBaseDialog::handleEvent(event, a, b, text, payload);
    m_expanded = !m_expanded;
    m_expandButton->setIcon(m_expanded ? contractImage() : expandImage(), WQ::IconAlignCenter, 0);
    if (m_table)
        m_table->setExpandItemsHidden(!m_expanded);
    return true;
}

} // namespace TC
