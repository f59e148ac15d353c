#include "workbench/TableSetup.h"

#include "workbench/Vocabulary.h"

#include <OrderParamTable_mini/tables/CCodeOrderParamTable.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <OrderParamTable_mini/tables/CStopLossOrderParamTable.h>
#include <WQ/CDropDownButtonGroup.h>

#include <QPointer>

namespace workbench {

namespace {

/// How much wider than its minimum an order-mode button is.
constexpr int kModeButtonSlack = 10;

/// The strip's buttons look alike, whoever added them.
WQ::CButtonColor modeButtonColor()
{
    return {QStringLiteral("clr_order_operation_background"), QStringLiteral("clr_order_operation_background"),
            QStringLiteral("clr_btn_algorithm_normal"), QStringLiteral("clr_btn_algorithm_normal")};
}

void addModeButton(WQ::CDropDownButtonGroup& group, int id, const QString& text)
{
    static constexpr auto kInactive = "clr_param_table_order_mode_inactive";
    static constexpr auto kActive = "clr_param_table_order_mode_active";
    auto* button = new WQ::CPushButton(modeButtonColor(), id, &group);
    button->setTextColorKey(kInactive, kInactive, kActive, kInactive);
    button->setButtonDownStyle(WQ::DownStyleUnderline);
    button->setText(text);
    button->setFixedWidth(button->getMinWidth() + kModeButtonSlack);
    group.addButton(button, WQ::AnchorStart);
}

/// The library makes the button of the third algorithm without a text and leaves the naming to the host.
void nameModeButton(WQ::CDropDownButtonGroup& group, int id, const QString& text)
{
    for (auto* button : group.findChildren<WQ::CPushButton*>()) {
        if (button->id() != id || !button->text().isEmpty())
            continue;
        button->setText(text);
        button->setFixedWidth(button->getMinWidth() + kModeButtonSlack);
    }
}

void addHostButtons(TC::COrderParamBaseTable& table)
{
    auto* group = table.findChild<WQ::CDropDownButtonGroup*>();
    if (!group || !group->getButtonList().contains(TC::kModeButtonBase))
        return;
    const int algorithmWithModule = TC::kModeButtonBase + ttservice::ORDER_TYPE_ALGORITHM_3;
    for (const LabelledValue& row : modeButtons()) {
        const QString text = row.label.toString();
        if (row.value == algorithmWithModule)
            nameModeButton(*group, row.value, text);
        else if (row.value != TC::kModeButtonBase)
            addModeButton(*group, row.value, text);
    }
    group->resetLayout();
}

TC::COrderParamBaseTable* constructTable(const TableSetup& setup, QWidget* parent)
{
    const auto id = TC::EOpParamWidgetID(setup.identity);
    const auto broker = ttservice::ENVBrokerType(setup.brokerType);
    const auto trader = ttservice::ENvTraderType(setup.traderType);
    switch (setup.tableClass) {
    case TableClass::Global:
        return new TC::CGlobalOrderParamTable(id, broker, setup.modeButtons, parent, setup.fontScale, trader,
                                              setup.autoBook);
    case TableClass::Code:
        return new TC::CCodeOrderParamTable(id, broker, parent, setup.fontScale, trader, setup.modeButtons);
    case TableClass::StopLoss:
        return new TC::CStopLossOrderParamTable(id, broker, parent);
    }
    return nullptr;
}

} // namespace

TC::COrderParamBaseTable* makeTable(const TableSetup& setup, QWidget* parent)
{
    auto* table = constructTable(setup, parent);
    addHostButtons(*table);
    table->updateCmdLog();
    return table;
}

void driveTable(TC::COrderParamBaseTable& table, const TableDrive& drive)
{
    // A listener may delete the table in any event that these calls send.
    const QPointer<TC::COrderParamBaseTable> alive(&table);
    if (!drive.code.isEmpty())
        table.setStockCode(drive.code);
    if (alive && drive.operationType)
        table.setOperationType(ttservice::EOperationType(*drive.operationType));
    if (alive && drive.orderType)
        table.setOrderType(ttservice::EOrderType(*drive.orderType));
    if (alive && drive.flags)
        table.setFlag(TC::OperationCellFlags(*drive.flags));
    // Collapsing also fits the height of a table that nothing was called on yet.
    if (alive)
        table.setExpandItemsHidden(!drive.expanded);
    if (alive)
        table.setAllItemEnable(drive.enabled);
}

} // namespace workbench
