#include "reference/toolkit/editors/PersonCommits.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/PersonEvents.h"
#include "reference/toolkit/editors/CellFlash.h"
#include "reference/toolkit/editors/InitialValue.h"

#include <WQ/EventNumbers.h>

namespace WQ::commits {

namespace {

struct DraftEvent
{
    CellKind kind;
    int event;
};

// clang-format off
constexpr DraftEvent kDraftEvents[] = {
    {CellKind::Number,      events::kNumberCommitted},
    {CellKind::CheckNumber, events::kNumberCommitted},
    {CellKind::Range,       events::kNumberCommitted},
    {CellKind::TimePeriod,  events::kPeriodCommitted},
    {CellKind::Line,        events::kLineCommitted},
    {CellKind::Text,        events::kNumberCommitted}, // hosts add it as a numeric cell and listen to it as one
};
// clang-format on

CellModel& modelOf(CMultiParamsTable& table)
{
    return CMultiParamsTablePrivate::of(&table)->model();
}

void post(CMultiParamsTable& table, int event, int cell, int b, const QString& text)
{
    postPersonEvent(&table, table, event, cell, b, text);
}

void postValue(CMultiParamsTable& table, CellItem& cell)
{
    modelOf(table).touch(&cell);
    for (const DraftEvent& row : kDraftEvents) {
        if (row.kind == cell.kind())
            post(table, row.event, cell.id(), 0, cell.text());
    }
}

bool hasUnits(const CellItem& cell)
{
    return cell.kind() == CellKind::Number || cell.kind() == CellKind::CheckNumber;
}

} // namespace

void draft(CMultiParamsTable& table, CellItem& cell, const Draft& draft)
{
    if (storeDraft(cell, draft))
        postValue(table, cell);
}

void entry(CMultiParamsTable& table, ComboCell& cell, int index)
{
    if (index < 0 || index >= cell.count() || !cell.setCurrentIndex(index))
        return;
    modelOf(table).touch(&cell);
    postPersonEvent(&table, table, events::kEntryChosen, cell.id(), index, cell.text(), cell.data(), true);
}

void unit(CMultiParamsTable& table, NumberCell& cell, int index)
{
    const UnitSwitch change(*CMultiParamsTablePrivate::of(&table), cell);
    if (!cell.setCurrentUnit(index))
        return;
    modelOf(table).touch(&cell);
    change.tell();
    post(table, events::kUnitOrCheckChanged, cell.id(), 0, cell.unit());
}

void check(CMultiParamsTable& table, CellItem& cell, bool checked)
{
    if (!cell.setChecked(checked))
        return;
    modelOf(table).touch(&cell);
    post(table, events::kUnitOrCheckChanged, cell.id(), checked ? 1 : 0, cell.checkText());
}

// The number that the unit leaves on the way is nobody's, so nothing is said of it.
void initial(CMultiParamsTable& table, CellItem& cell)
{
    const InitialValue initial = initialOf(cell);
    if (hasUnits(cell) && static_cast<NumberCell&>(cell).setCurrentUnit(0)) {
        modelOf(table).touch(&cell);
        post(table, events::kUnitOrCheckChanged, cell.id(), 0, cell.unit());
    }
    check(table, cell, initial.checked);
    if (cell.kind() == CellKind::Combo) {
        auto& combo = static_cast<ComboCell&>(cell);
        entry(table, combo, combo.indexOfData(initial.value));
    } else if (storeInitial(cell)) {
        postValue(table, cell);
    }
}

void doubleClick(CMultiParamsTable& table, const CellItem& cell)
{
    post(table, events::kDoubleClicked, cell.id(), 0, cell.text());
}

void filter(CMultiParamsTable& table, const QSet<int>& ticked)
{
    CellModel& model = modelOf(table);
    for (const int id : ticked) {
        CellItem* cell = model.cell(id);
        if (cell && cell->setHidden(false))
            model.touchRows();
    }
    model.setVisibleSet(ticked);
    post(table, events::kFilterApplied, 0, 0, QString());
}

void filterReset(CMultiParamsTable& table)
{
    modelOf(table).setVisibleSet(QSet<int>());
    post(table, events::kFilterReset, 0, 0, QString());
}

} // namespace WQ::commits
