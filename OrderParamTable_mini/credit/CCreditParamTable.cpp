#include <OrderParamTable_mini/credit/CCreditParamTable.h>

#include <OrderParamTable_mini/credit/CreditFormat.h>
#include <OrderParamTable_mini/credit/CreditLayout.h>
#include <OrderParamTable_mini/frame/Services.h>

#include <WQ/CMultiParamsTable.h>
#include <WQ/CUiResource.h>
#include <WQ/EventNumbers.h>

#include <QResizeEvent>

namespace TC {

namespace {

constexpr int kTextValue = 10;
constexpr int kParamCellConstant = 4;

struct FigureRow
{
    CreditRow row;
    const char16_t* title;
    const char16_t* unit;
};

// clang-format off
constexpr FigureRow kFigures[] = {
    {CR_Unrepaid,       u"未还合约数量", u"股"},
    {CR_RepayableToday, u"当日可还数量", u"股"},
    {CR_Funds,          u"可还券资金",   u"元"},
    {CR_Repayable,      u"可还券数量",   u"股"},
};
// clang-format on

void addFigures(WQ::CMultiParamsTable& table)
{
    for (const FigureRow& figure : kFigures) {
        table.addParamCell(figure.row, QString::fromUtf16(figure.title), kTextValue, 0.0, 0.0, 0.0,
                           QString::fromUtf16(figure.unit), 0.0, kParamCellConstant);
    }
    for (const FigureRow& figure : kFigures)
        table.setItemEditable(figure.row, false);
}

} // namespace

CCreditParamTable::CCreditParamTable(QWidget* parent)
    : WQ::CBaseWidget(QStringLiteral("credit_param_table"), false, parent)
{
    resizeTable();
    createUi();
}

CCreditParamTable::~CCreditParamTable() = default;

void CCreditParamTable::createUi()
{
    QStringList names;
    QVector<QVariant> accounts;
    const Qt::Alignment alignment = Qt::AlignRight | Qt::AlignVCenter;
    m_table = new WQ::CMultiParamsTable(this, true);
    m_table->setCustomWidgetVisible(false);
    m_table->setColumnWidth(0, kTitleColumnWidth);
    m_table->addComboBox(CR_Account, QStringLiteral("资金账号"), names, accounts, names.isEmpty() ? -1 : 0, false,
                         alignment, alignment);
    m_table->addLineEdit(CR_Contract, QStringLiteral("指定还券"), QStringLiteral("(^$)|[a-zA-Z0-9-\\s&\\*]+$"), true,
                         noText());
    addFigures(*m_table);
    m_table->setItemHidden(CR_Contract, true);
}

void CCreditParamTable::resizeTable()
{
    const int quotes = resourceSize(QStringLiteral("tc_siz_code_quotes_height"));
    const int top = resourceSize(QStringLiteral("tc_siz_operation_panel_top_height"));
    const int width = resourceSize(QStringLiteral("tc_siz_operation_panel_param_table_width"));
    resize(width, quotes + top);
}

void CCreditParamTable::resetColumnWidth()
{
    if (!m_table)
        return;
    // No other title depends on the scale.
    const bool isScaled = m_operationType == ttservice::OPT_REPAY_LENDING_FEES;
    const WQ::CUiResource* const resources = isScaled ? WQ::CUiResource::instance() : nullptr;
    const double scale = resources ? resources->getUIScale() : 1.0;
    m_table->setColumnWidth(0, titleColumnWidth(m_operationType, scale));
}

void CCreditParamTable::resizeEvent(QResizeEvent* event)
{
    WQ::CBaseWidget::resizeEvent(event);
    if (m_table)
        m_table->resize(event->size().width(), m_table->realHeight());
}

int CCreditParamTable::realHeight()
{
    return m_table->realHeight();
}

void CCreditParamTable::handleScaleChanged()
{
    if (!m_isFontScale)
        return;
    if (m_table) {
        m_table->scaleChanged();
        m_table->setFixedHeight(m_table->realHeight());
    }
    resizeTable();
    resetColumnWidth();
}

void CCreditParamTable::setIsFontScale(bool isFontScale)
{
    m_isFontScale = isFontScale;
}

void CCreditParamTable::setCompactBrushSourceType(ttservice::ENVCompactBrushSource source)
{
    m_compactBrushSource = source;
}

bool CCreditParamTable::handleEvent(int event, int id, int value, QString text, void* payload)
{
    if (event == WQ::events::kEntryChosen && id == CR_Account) {
        m_useAllCompacts = true;
        refreshAvailableNum(getCurrentCode(), true, std::string());
    }
    return WQ::CBaseWidget::handleEvent(event, id, value, text, payload);
}

} // namespace TC
