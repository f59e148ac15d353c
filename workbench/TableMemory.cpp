#include "workbench/TableMemory.h"

#include "workbench/CellMemory.h"
#include "workbench/HostCalls.h"
#include "workbench/Vocabulary.h"

#include "replay/WrongCommand.h"

#include <cmath>

namespace workbench {

namespace {

using TC::COrderParamBaseTable;
using Table = QPointer<COrderParamBaseTable>;

/// The order types that keep a choice of visible cells.
constexpr int kTypesWithChoice = 4;

std::string keyOf(const TableSetup& setup)
{
    return QStringLiteral("%1/%2/%3/%4")
        .arg(static_cast<int>(setup.tableClass))
        .arg(setup.identity)
        .arg(setup.brokerType)
        .arg(setup.traderType)
        .toStdString();
}

Json records(COrderParamBaseTable& table)
{
    Json all = Json::object();
    for (const LabelledValue& button : modeButtons()) {
        const int type = button.value - TC::kModeButtonBase;
        all[std::to_string(type)] = replay::written(table.getOrderSettings(type));
    }
    return all;
}

void recallRecords(const Table& table, const Json& all)
{
    for (const auto& [key, json] : all.items()) {
        ttservice::COrderSetting record;
        try {
            replay::read(json, record);
        } catch (const replay::WrongCommand&) {
            continue;
        }
        if (table)
            hostCall(*table, calls::kSetOrderSettings, QString::fromStdString(key).toInt(), record);
    }
}

/// Only a collapsed table shows the choice of its order type; the others keep what is known of them.
void noteChoice(Json& choices, COrderParamBaseTable& table, WQ::CMultiParamsTable& cells)
{
    const int type = table.orderType();
    if (!table.isExpand() && type >= 0 && type < kTypesWithChoice)
        choices[std::to_string(type)] = replay::written(cells.getVisibleItemIdSet());
}

void recallChoices(const Table& table, const Json& choices)
{
    for (int type = 0; type < kTypesWithChoice && table; ++type) {
        QSet<int> chosen;
        const std::string key = std::to_string(type);
        if (choices.contains(key) && choices[key].is_array())
            for (const Json& cell : choices[key])
                chosen.insert(cell.is_number_integer() ? cell.get<int>() : 0);
        chosen.remove(0);
        if (chosen.isEmpty())
            continue;
        hostCall(*table, calls::kSetOrderType, ttservice::EOrderType(type));
        if (table)
            hostCall(*table->getMultiParamsTable(), calls::kSetVisibleItemSet, chosen);
        if (table)
            hostCall(*table, calls::kSaveVisibleFlag, false);
    }
}

/// A specified price of 0 is none.
double specifiedPrice(const COrderParamBaseTable& table)
{
    const double price = table.getModifiedPriceByOptTypeForCalc(table.getOperationType(), true);
    const bool isSpecified = table.priceType() == ttservice::PRTP_FIX && std::isfinite(price) && price < 1e12;
    return isSpecified ? price : 0.0;
}

} // namespace

Json TableMemory::json() const
{
    return m_tables;
}

void TableMemory::setJson(const Json& json)
{
    m_tables = json.is_object() ? json : Json::object();
}

void TableMemory::remember(const TableSetup& setup, COrderParamBaseTable& table)
{
    WQ::CMultiParamsTable* cells = table.getMultiParamsTable();
    if (!cells)
        return;
    Json& entry = m_tables[keyOf(setup)];
    Json choices = objectIn(entry, "visible");
    noteChoice(choices, table, *cells);
    entry = Json::object();
    entry["orderType"] = int(table.orderType());
    entry["operation"] = int(table.getOperationType());
    entry["expanded"] = table.isExpand();
    entry["price"] = specifiedPrice(table);
    entry["cells"] = rememberedCells(*cells);
    entry["records"] = records(table);
    entry["visible"] = std::move(choices);
}

void TableMemory::recall(const TableSetup& setup, COrderParamBaseTable& made, bool isEnabled) const
{
    const Json entry = objectIn(m_tables, keyOf(setup).c_str());
    if (entry.empty() || !made.getMultiParamsTable())
        return;
    const Table table(&made);
    const int operation = intIn(entry, "operation", made.getOperationType());
    if (operation != made.getOperationType())
        hostCall(made, calls::kSetOperationType, ttservice::EOperationType(operation));
    // Only the algorithm's cells are all within a person's reach, and only in an expanded, enabled table.
    if (table)
        hostCall(*table, calls::kSetOrderType, ttservice::ORDER_TYPE_ALGORITHM);
    if (table)
        hostCall(*table, calls::kSetExpandItemsHidden, false);
    if (table && !isEnabled)
        hostCall(*table, calls::kSetAllItemEnable, true);
    if (table)
        recallCells(*table->getMultiParamsTable(), objectIn(entry, "cells"));
    if (table && !isEnabled)
        hostCall(*table, calls::kSetAllItemEnable, false);
    const double price = numberIn(entry, "price", 0.0);
    if (table && price > 0.0)
        hostCall(*table, calls::kSetFixedPrice, price);
    recallChoices(table, objectIn(entry, "visible"));
    if (table)
        hostCall(*table, calls::kSetOrderType, ttservice::EOrderType(intIn(entry, "orderType", 0)));
    if (table)
        hostCall(*table, calls::kSetExpandItemsHidden, !boolIn(entry, "expanded", false));
    recallRecords(table, objectIn(entry, "records"));
}

void TableMemory::forget(const TableSetup& setup)
{
    m_tables.erase(keyOf(setup));
}

} // namespace workbench
