#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>

#include <OrderParamTable_mini/semantics/OrderModes.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <OrderParamTable_mini/tables/TaskFacts.h>
#include <OrderParamTable_mini/tables/TaskNotice.h>
#include <OrderParamTable_mini/tables/TaskTables.h>

#include <WQ/CPushButton.h>
#include <WQ/EventNumbers.h>

#include <QFrame>
#include <QHBoxLayout>
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

// The children go after this; they have nothing to report then.
CBaseTaskParamWidget::~CBaseTaskParamWidget()
{
    if (m_table)
        m_table->disconnect(this);
    if (m_expandButton)
        m_expandButton->disconnect(this);
}

void CBaseTaskParamWidget::createUi(const CCodeOrderParam& param, QString tradeParam, std::string extra)
{
    // The table first: what a host throws when it hears of it would leave layouts that nobody owns.
    m_table = createTaskTable(param, {m_traderType, false, m_tableFlag}, tradeParam, extra, this);
    auto* const root = new QHBoxLayout;
    root->setContentsMargins(15, 36, 15, 13);
    auto* const column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    QWidget* const shown = m_table ? static_cast<QWidget*>(m_table) : new TaskNotice(this);
    column->addWidget(shown, 1);
    if (m_table)
        connect(m_table, &QObject::destroyed, this, [this] { m_table = nullptr; });
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
    connect(m_expandButton, &QObject::destroyed, this, [this] { m_expandButton = nullptr; });
    column->addWidget(m_expandButton, 0);
    if (orderType == ORDER_TYPE_NORMAL || !m_table)
        m_expandButton->hide();
}

void CBaseTaskParamWidget::createFacts(const CCodeOrderParam& param, QBoxLayout* root)
{
    root->addWidget(createTaskLine(this), 2);
    auto* const box = new QVBoxLayout;
    box->setContentsMargins(5, 8, 5, 5);
    box->addWidget(createTaskFacts(param, this));
    root->addLayout(box);
}

bool CBaseTaskParamWidget::handleEvent(int event, int a, int b, QString text, void* payload)
{
    if (event != WQ::events::kButtonClicked)
        return WQ::CBaseDialog::handleEvent(event, a, b, text, payload);
    m_expanded = !m_expanded;
    if (m_expandButton)
        m_expandButton->setIcon(m_expanded ? contractImage() : expandImage(), WQ::IconAlignCenter, 0);
    if (m_table)
        m_table->setExpandItemsHidden(!m_expanded);
    return true;
}

} // namespace TC
