#include "reference/toolkit/editors/PersonCommits.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/PersonEvents.h"

namespace WQ::commits {

namespace {

enum CellEvent : int {
    ComboChanged = 73,
    NumberCommitted = 87,
    DoubleClicked = 97,
    PeriodCommitted = 101,
    LineCommitted = 102,
    UnitOrCheckChanged = 118,
    FilterApplied = 124,
    FilterReset = 248,
};

struct DraftEvent
{
    CellKind kind;
    CellEvent event;
};

// clang-format off
constexpr DraftEvent kDraftEvents[] = {
    {CellKind::Number,      NumberCommitted},
    {CellKind::CheckNumber, NumberCommitted},
    {CellKind::Range,       NumberCommitted},
    {CellKind::TimePeriod,  PeriodCommitted},
    {CellKind::Line,        LineCommitted},
    {CellKind::Text,        NumberCommitted}, // hosts add it as a numeric cell and listen to it as one
};
// clang-format on

CellModel& modelOf(CMultiParamsTable& table)
{
    return CMultiParamsTablePrivate::of(&table)->model();
}

void post(CMultiParamsTable& table, CellEvent event, int cell, int b, const QString& text)
{
    postPersonEvent(&table, table, event, cell, b, text);
}

} // namespace

void draft(CMultiParamsTable& table, CellItem& cell, const Draft& draft)
{
    if (!storeDraft(cell, draft))
        return;
    modelOf(table).touch(&cell);
    for (const DraftEvent& row : kDraftEvents) {
        if (row.kind == cell.kind())
            post(table, row.event, cell.id(), 0, cell.text());
    }
}

void entry(CMultiParamsTable& table, ComboCell& cell, int index)
{
    if (index < 0 || index >= cell.count() || !cell.setCurrentIndex(index))
        return;
    modelOf(table).touch(&cell);
    postPersonEvent(&table, table, ComboChanged, cell.id(), index, cell.text(), cell.data(), true);
}

void unit(CMultiParamsTable& table, NumberCell& cell, int index)
{
    if (!cell.setCurrentUnit(index))
        return;
    modelOf(table).touch(&cell);
    post(table, UnitOrCheckChanged, cell.id(), 0, cell.unit());
}

void check(CMultiParamsTable& table, CellItem& cell, bool checked)
{
    if (!cell.setChecked(checked))
        return;
    modelOf(table).touch(&cell);
    post(table, UnitOrCheckChanged, cell.id(), checked ? 1 : 0, cell.checkText());
}

void doubleClick(CMultiParamsTable& table, const CellItem& cell)
{
    post(table, DoubleClicked, cell.id(), 0, cell.text());
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
    post(table, FilterApplied, 0, 0, QString());
}

void filterReset(CMultiParamsTable& table)
{
    modelOf(table).setVisibleSet(QSet<int>());
    post(table, FilterReset, 0, 0, QString());
}

} // namespace WQ::commits
