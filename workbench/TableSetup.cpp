#include "workbench/TableSetup.h"

#include "workbench/HostCalls.h"
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

/// Adds or names a button; the answer is its place in the group.
replay::Json placeModeButton(WQ::CDropDownButtonGroup& group, int id, const QString& text)
{
    if (group.getButtonList().contains(id))
        nameModeButton(group, id, text);
    else
        addModeButton(group, id, text);
    group.resetLayout();
    return group.getButtonList().indexOf(id);
}

/// The button of the third algorithm is the library's, where the feature module has it; the others are this host's.
bool isOffered(WQ::CDropDownButtonGroup& group, int id)
{
    constexpr int kAlgorithmWithModule = TC::kModeButtonBase + ttservice::ORDER_TYPE_ALGORITHM_3;
    return id != TC::kModeButtonBase && (id != kAlgorithmWithModule || group.getButtonList().contains(id));
}

void addHostButtons(TC::COrderParamBaseTable& table)
{
    auto* group = table.findChild<WQ::CDropDownButtonGroup*>();
    if (!group || !group->getButtonList().contains(TC::kModeButtonBase))
        return;
    for (const LabelledValue& row : modeButtons()) {
        if (!isOffered(*group, row.value))
            continue;
        const QString text = row.label.toString();
        replay::Json command = {{"do", "addButton"}, {"on", ""}, {"id", row.value}, {"text", text.toStdString()}};
        carryOutAsHost(table, std::move(command), [&] { return placeModeButton(*group, row.value, text); });
    }
}

/// The constructor's arguments in their order, the parent left out.
replay::Json constructorArguments(const TableSetup& setup)
{
    using replay::Json;
    switch (setup.tableClass) {
    case TableClass::Global:
        return Json::array(
            {setup.identity, setup.brokerType, setup.modeButtons, setup.fontScale, setup.traderType, setup.autoBook});
    case TableClass::Code:
        return Json::array({setup.identity, setup.brokerType, setup.fontScale, setup.traderType, setup.modeButtons});
    case TableClass::StopLoss:
        return Json::array({setup.identity, setup.brokerType});
    }
    return Json::array();
}

const char* classNameOf(TableClass tableClass)
{
    switch (tableClass) {
    case TableClass::Global:
        return "CGlobalOrderParamTable";
    case TableClass::Code:
        return "CCodeOrderParamTable";
    case TableClass::StopLoss:
        return "CStopLossOrderParamTable";
    }
    return "";
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

TC::COrderParamBaseTable* makeTable(const TableSetup& setup, PanelHost& host)
{
    auto* table =
        host.make<TC::COrderParamBaseTable>({classNameOf(setup.tableClass), "panel", constructorArguments(setup)},
                                            [&setup](QWidget* parent) { return constructTable(setup, parent); });
    addHostButtons(*table);
    hostCall(*table, calls::kUpdateCmdLog);
    return table;
}

void driveTable(TC::COrderParamBaseTable& table, const TableDrive& drive)
{
    // A listener may delete the table in any event that these calls send.
    const QPointer<TC::COrderParamBaseTable> alive(&table);
    if (!drive.code.isEmpty())
        hostCall(table, calls::kSetStockCode, drive.code);
    if (alive && drive.operationType)
        hostCall(table, calls::kSetOperationType, ttservice::EOperationType(*drive.operationType));
    if (alive && drive.orderType)
        hostCall(table, calls::kSetOrderType, ttservice::EOrderType(*drive.orderType));
    if (alive && drive.flags)
        hostCall(table, calls::kSetFlag, TC::OperationCellFlags(*drive.flags));
    // Collapsing also fits the height of a table that nothing was called on yet.
    if (alive)
        hostCall(table, calls::kSetExpandItemsHidden, !drive.expanded);
    if (alive)
        hostCall(table, calls::kSetAllItemEnable, drive.enabled);
}

} // namespace workbench
