#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <OrderParamTable_mini/frame/CellCatalogue.h>
#include <OrderParamTable_mini/frame/Services.h>
#include <OrderParamTable_mini/semantics/IdentitySets.h>
#include <OrderParamTable_mini/semantics/OrderModes.h>
#include <OrderParamTable_mini/semantics/OrderState.h>
#include <OrderParamTable_mini/semantics/PriceTypes.h>

#include <TC/CUserConfig.h>
#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CPushButton.h>
#include <WQ/CScrollArea.h>
#include <WQ/CWidgetList.h>

namespace TC {

using namespace ttservice;

namespace {

constexpr int kStripHeight = 28;
constexpr int kStripSpacing = 2;
constexpr int kButtonRoom = 10;

QString groundColourKey()
{
    return QStringLiteral("clr_order_operation_background");
}

const WQ::CButtonColor& modeButtonColours()
{
    static const QString algorithmKey = QStringLiteral("clr_btn_algorithm_normal");
    static const WQ::CButtonColor colours{groundColourKey(), groundColourKey(), algorithmKey, algorithmKey};
    return colours;
}

constexpr char kInactiveTextKey[] = "clr_param_table_order_mode_inactive";
constexpr char kActiveTextKey[] = "clr_param_table_order_mode_active";

} // namespace

COrderParamBaseTable::COrderParamBaseTable(EOpParamWidgetID id, ENVBrokerType brokerType, bool showModeButtons,
                                           QWidget* parent, bool tableFontScale, ENvTraderType traderType,
                                           bool lastFlag)
    : WQ::CBaseWidget(QStringLiteral("vtmq_pelorin_orderparambasetable"), false, parent)
    , m_id(id)
    , m_brokerType(brokerType)
    , m_showModeButtons(showModeButtons)
    , m_tableFontScale(tableFontScale)
    , m_traderType(traderType)
    , m_lastFlag(lastFlag)
{
    createUi();
    if (m_table)
        m_table->setFocusPolicy(Qt::StrongFocus);
    applyPanelSize();
    m_ready = true;
    if (const CUserConfig* const config = getUserConfig()) {
        connect(config, &CUserConfig::sigShouldHintAlgorithm, this, &COrderParamBaseTable::slotShouldHintAlgorithm);
    }
}

void COrderParamBaseTable::createUi()
{
    createModeStrip();
    m_table = new WQ::CMultiParamsTable(this, m_tableFontScale);
    m_scrollArea = new WQ::CScrollArea(this);
    m_scrollArea->setWidget(m_table);
    m_scrollArea->setBackgroundColorKey(groundColourKey());
    if (!m_tableFontScale)
        m_table->setFontScale(false);
    createCells();
}

void COrderParamBaseTable::createModeStrip()
{
    m_btnList = new WQ::CWidgetList(Qt::Horizontal, this);
    m_btnList->setMargin(0, 0, 0, 0);
    m_btnList->setSpacing(kStripSpacing);
    m_btnGroup = new WQ::CDropDownButtonGroup(Qt::Horizontal, m_btnList);
    if (!kTablesWithHelpOfTheirOwn.contains(m_id))
        m_btnGroup->setHelpButtonVisible(false);
    if (m_showModeButtons)
        addModeButton(ORDER_TYPE_NORMAL, QStringLiteral("普通交易"));
    // The third algorithm has its button even on tables without a strip; its text comes later.
    if (isModuleOn(FeatureModule::ThirdAlgorithm))
        addModeButton(ORDER_TYPE_ALGORITHM_3, QString());
    m_btnList->addStretchWidget(m_btnGroup, 1, WQ::AnchorFill, false);
    m_btnList->setFixedHeight(m_showModeButtons ? kStripHeight : 0);
}

void COrderParamBaseTable::addModeButton(EOrderType type, const QString& text)
{
    auto* const button = new WQ::CPushButton(modeButtonColours(), modeButton(type), m_btnGroup);
    button->setTextColorKey(kInactiveTextKey, kInactiveTextKey, kActiveTextKey, kInactiveTextKey);
    button->setButtonDownStyle(WQ::DownStyleUnderline);
    if (!text.isEmpty()) {
        button->setChecked(true);
        button->setText(text);
        button->setFixedWidth(button->getMinWidth() + kButtonRoom);
    }
    m_btnGroup->addButton(button, WQ::AnchorStart);
}

void COrderParamBaseTable::createCells()
{
    ComboEntries priceTypes = initialPriceTypes(state(), isModuleOn);
    addCells(*m_table, state(), priceTypes, isModuleOn);
    if (!priceTypes.values.isEmpty())
        m_priceType = EPriceType(priceTypes.values.first().toInt());
}

void COrderParamBaseTable::applyPanelSize()
{
    const int width = resourceSize(QStringLiteral("tc_siz_operation_panel_param_table_width"));
    const int height = resourceSize(QStringLiteral("tc_siz_code_quotes_height"))
        + resourceSize(QStringLiteral("tc_siz_operation_panel_top_height"));
    resize(width, height);
    setFixedWidth(width);
}

} // namespace TC
