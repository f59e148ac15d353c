#include "workbench/CellMemory.h"

#include "workbench/HostCalls.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/PersonEvents.h"
#include "reference/toolkit/editors/PersonEdits.h"

#include <QPointer>

#include <algorithm>

namespace workbench {

namespace {

using WQ::CellKind;
using WQ::PersonEdit;

const QString kTime = QStringLiteral("HH:mm:ss");

Json periodEntry(const WQ::PeriodCell& cell)
{
    if (cell.rangeType() == WQ::TimeRangeDuration)
        return {{"duration", QTime(0, 0).addSecs(cell.elapse()).toString(kTime).toStdString()}};
    return {{"start", cell.start().toString(kTime).toStdString()}, {"end", cell.end().toString(kTime).toStdString()}};
}

/// A cell of several numbers or times is entered in two fields, any other as its text.
Json entryOf(const WQ::CellItem& cell)
{
    switch (cell.kind()) {
    case CellKind::Range: {
        const auto& range = static_cast<const WQ::RangeCell&>(cell);
        return {{"low", QString::number(range.low(), 'g', 17).toStdString()},
                {"high", QString::number(range.high(), 'g', 17).toStdString()}};
    }
    case CellKind::TimePeriod:
        return periodEntry(static_cast<const WQ::PeriodCell&>(cell));
    case CellKind::CheckNumber:
        return {{"unit", cell.unit().toStdString()},
                {"checked", static_cast<const WQ::NumberCell&>(cell).isChecked()},
                {"text", cell.text().toStdString()}};
    case CellKind::Number:
        return {{"unit", cell.unit().toStdString()}, {"text", cell.text().toStdString()}};
    case CellKind::Combo:
    case CellKind::Line:
    case CellKind::Text:
        return {{"text", cell.text().toStdString()}};
    }
    return Json::object();
}

std::optional<QString> given(const Json& entry, const char* key)
{
    const bool isGiven = entry.contains(key) && entry[key].is_string();
    return isGiven ? std::optional<QString>(textIn(entry, key)) : std::nullopt;
}

PersonEdit editOf(const Json& entry)
{
    PersonEdit edit;
    edit.unit = given(entry, "unit");
    if (edit.unit && edit.unit->isEmpty())
        edit.unit.reset();
    if (entry.contains("checked"))
        edit.checked = boolIn(entry, "checked", false);
    edit.text = given(entry, "text");
    edit.duration = given(entry, "duration");
    if (entry.contains("low"))
        edit.range = qMakePair(textIn(entry, "low"), textIn(entry, "high"));
    if (entry.contains("start"))
        edit.time = qMakePair(textIn(entry, "start"), textIn(entry, "end"));
    return edit;
}

void recallCell(WQ::CMultiParamsTable& cells, const WQ::CellItem& cell, const Json& entry)
{
    if (entryOf(cell) == entry)
        return;
    const QPointer<WQ::CMultiParamsTable> alive(&cells);
    const int id = cell.id();
    if (cell.isHidden())
        hostCall(cells, calls::kSetItemHidden, id, false);
    WQ::applyPersonEdit(cells, id, editOf(entry));
    // Before the next one, and while the cell is out of hiding: a recording has them in this order.
    if (alive)
        WQ::deliverPostedPersonEvents();
}

} // namespace

Json rememberedCells(const WQ::CMultiParamsTable& cells)
{
    const WQ::CellModel& model = WQ::CMultiParamsTablePrivate::of(&cells)->model();
    Json remembered = Json::object();
    for (int i = 0; i < model.cellCount(); ++i) {
        const WQ::CellItem& cell = *model.itemAt(i)->cell();
        remembered[std::to_string(cell.id())] = entryOf(cell);
    }
    return remembered;
}

void recallCells(WQ::CMultiParamsTable& cells, const Json& remembered)
{
    const QPointer<WQ::CMultiParamsTable> alive(&cells);
    // Entries first: they decide which units and limits the numbers have.
    for (const bool isForCombos : {true, false}) {
        for (const auto& [key, entry] : remembered.items()) {
            const WQ::CellItem* cell = alive
                ? WQ::CMultiParamsTablePrivate::of(alive)->model().cell(QString::fromStdString(key).toInt())
                : nullptr;
            if (cell && entry.is_object() && (cell->kind() == CellKind::Combo) == isForCombos)
                recallCell(cells, *cell, entry);
        }
    }
}

} // namespace workbench
