#include "workbench/TicketReading.h"

#include "workbench/HostCalls.h"
#include "workbench/Vocabulary.h"

#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

#include <QCoreApplication>

#include <array>

namespace workbench {

namespace {

/// The record's fields in the order of the parameter string; item 24 repeats field 14, and the cell words stand as the
/// string has them.
constexpr std::array kItems = {
    "orderType",  "intField2",   "intField3",   "realField4",  "realField5",     "intField6",    "intField7",
    "realField8", "realField9",  "intField10",  "realField11", "realField12",    "intField13",   "realField14",
    "intField15", "intField16",  "intField17",  "intField18",  "validTimeStart", "validTimeEnd", "intField21",
    "intField22", "intField23",  "realField14", "intField25",  "realField26",    "realField27",  "intField28",
    "intField29", "realField30", "intField31",  "realField32", "realField33",    "realField34",  "flag35",
    "flag36",     "cellWord1",   "cellWord2",   "cellWord5",   "cellWord3",      "cellWord4",
};
static_assert(kItems.size() == 41);

void appendState(std::vector<TicketModel::Entry>& entries, TC::COrderParamBaseTable& table)
{
    const auto add = [&entries](const char* name, const QString& value) {
        entries.push_back({translated(name), value, false});
    };
    add(QT_TRANSLATE_NOOP("workbench", "order type"), valueWithName(orderTypes(), table.orderType()));
    add(QT_TRANSLATE_NOOP("workbench", "operation"), valueWithName(operationTypes(), table.getOperationType()));
    add(QT_TRANSLATE_NOOP("workbench", "price type"),
        QStringLiteral("%1  %2").arg(table.priceType()).arg(labelOf(priceTypes(), table.priceType())));
    add(QT_TRANSLATE_NOOP("workbench", "volume type"), QString::number(table.singleVolType()));
    add(QT_TRANSLATE_NOOP("workbench", "price for amounts"),
        QString::number(table.getModifiedPriceByOptTypeForCalc(table.getOperationType(), true)));
}

void appendRecord(std::vector<TicketModel::Entry>& entries, TC::COrderParamBaseTable& table)
{
    const QStringList items = recordText(table).split(QLatin1Char('+'));
    for (std::size_t i = 0; i < kItems.size(); ++i) {
        const int number = static_cast<int>(i);
        entries.push_back(
            {QStringLiteral("%1 %2").arg(number + 1, 2).arg(QLatin1String(kItems[i])), items.value(number), true});
    }
}

void appendCells(std::vector<TicketModel::Entry>& entries, WQ::CMultiParamsTable& grid)
{
    for (const LabelledValue& cell : cells()) {
        if (grid.getItem(cell.value))
            entries.push_back({QStringLiteral("0x%1 %2").arg(cell.value, 0, 16).arg(cell.label.toString()),
                               QStringLiteral("%1 %2").arg(grid.itemText(cell.value), grid.itemUnit(cell.value)),
                               false});
    }
}

} // namespace

void storeDefaultRecords(TC::COrderParamBaseTable& table, int traderType)
{
    for (const LabelledValue& button : modeButtons()) {
        const auto type = ttservice::EOrderType(button.value - TC::kModeButtonBase);
        ttservice::COrderSetting record = TC::COrderParamBaseTable::getDefaultOrderSetting(
            table.getOperationType(), ttservice::ENvTraderType(traderType), type);
        hostCall(table, calls::kSetOrderSettings, int(type), record);
    }
}

void updateRecord(TC::COrderParamBaseTable& table)
{
    auto* const global = dynamic_cast<TC::CGlobalOrderParamTable*>(&table);
    if (!global)
        return;
    ttservice::COrderSetting record = table.getOrderSettings(table.orderType());
    const QString before = TC::COrderParamBaseTable::orderSetting2Param(record);
    ttservice::CCodeOrderParam task;
    task.orderType = table.orderType();
    task.validTimeStart = record.validTimeStart;
    task.validTimeEnd = record.validTimeEnd;
    global->transferTimePeriod(&task);
    record.orderType = table.orderType();
    record.validTimeStart = task.validTimeStart;
    record.validTimeEnd = task.validTimeEnd;
    // It is read after each event, and most change nothing of it.
    if (TC::COrderParamBaseTable::orderSetting2Param(record) != before)
        hostCall(table, calls::kSetOrderSettings, int(table.orderType()), record);
}

QString recordText(TC::COrderParamBaseTable& table)
{
    return TC::COrderParamBaseTable::orderSetting2Param(table.getOrderSettings(table.orderType()));
}

std::vector<TicketModel::Entry> readTicket(TC::COrderParamBaseTable& table)
{
    std::vector<TicketModel::Entry> entries;
    appendState(entries, table);
    appendRecord(entries, table);
    if (WQ::CMultiParamsTable* const grid = table.getMultiParamsTable())
        appendCells(entries, *grid);
    return entries;
}

} // namespace workbench
