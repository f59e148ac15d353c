#include "reference/toolkit/editors/PersonEdits.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/CellInteraction.h"
#include "reference/toolkit/editors/PersonCommits.h"

#include <algorithm>

namespace WQ {

namespace {

bool isHiddenByHost(const CMultiParamsTable& table)
{
    return table.isHidden() && table.testAttribute(Qt::WA_WState_ExplicitShowHide);
}

bool isWithinReach(const CMultiParamsTable& table, const CellModel& model, const CellItem& cell)
{
    return model.isShown(cell) && model.isEditable(cell) && table.isEnabled() && !isHiddenByHost(table);
}

int unitIndex(const CellItem& cell, const QString& text)
{
    if (cell.kind() != CellKind::Number && cell.kind() != CellKind::CheckNumber)
        return -1;
    const QVector<NumberUnit>& units = static_cast<const NumberCell&>(cell).units();
    const auto place =
        std::find_if(units.begin(), units.end(), [&text](const NumberUnit& unit) { return unit.text == text; });
    return place == units.end() ? -1 : static_cast<int>(place - units.begin());
}

/// The values that an edit names; each needs a cell of its kind.
struct EditValue
{
    bool isGiven;
    bool isPossible;
    Draft draft;
};

EditValue valueOf(const CellItem& cell, const PersonEdit& edit)
{
    const bool isRange = cell.kind() == CellKind::Range;
    const bool isPeriod = cell.kind() == CellKind::TimePeriod;
    const EditValue given[] = {
        {edit.text.has_value(), !isRange && !isPeriod, {{edit.text.value_or(QString())}}},
        {edit.index.has_value(), cell.kind() == CellKind::Combo, {}},
        {edit.range.has_value(), isRange, edit.range ? Draft{{edit.range->first, edit.range->second}} : Draft()},
        {edit.time.has_value(), isPeriod,
         edit.time ? Draft{{edit.time->first, edit.time->second}, TimeRangeClock} : Draft()},
        {edit.duration.has_value(), isPeriod, {{edit.duration.value_or(QString())}, TimeRangeDuration}},
    };
    EditValue value{false, true, {}};
    for (const EditValue& row : given) {
        if (row.isGiven)
            value = {true, row.isPossible && !value.isGiven, row.draft};
    }
    return value;
}

int entryOf(const ComboCell& cell, const PersonEdit& edit)
{
    if (edit.index)
        return *edit.index;
    for (int i = 0; i < cell.count(); ++i) {
        if (cell.entryText(i) == *edit.text)
            return i;
    }
    return -1;
}

EditOutcome commitValue(CMultiParamsTable& table, CellItem& cell, const EditValue& value, const PersonEdit& edit)
{
    if (!value.isGiven)
        return EditOutcome::Done;
    if (cell.kind() == CellKind::Combo) {
        auto& combo = static_cast<ComboCell&>(cell);
        commits::entry(table, combo, entryOf(combo, edit));
        return EditOutcome::Done;
    }
    if (!judgeDraft(cell, value.draft).ok)
        return EditOutcome::Wrong;
    commits::draft(table, cell, value.draft);
    return EditOutcome::Done;
}

bool isPossible(const CellItem& cell, const EditValue& value, const PersonEdit& edit)
{
    if (!value.isPossible || (edit.unit && unitIndex(cell, *edit.unit) < 0))
        return false;
    if (edit.checked && cell.kind() != CellKind::CheckNumber)
        return false;
    if (!value.isGiven || cell.kind() != CellKind::Combo)
        return true;
    const auto& combo = static_cast<const ComboCell&>(cell);
    const int entry = entryOf(combo, edit);
    return entry >= 0 && entry < combo.count();
}

CMultiParamsTablePrivate* filterWithinReach(CMultiParamsTable& table)
{
    CMultiParamsTablePrivate* inner = CMultiParamsTablePrivate::of(&table);
    if (!inner->isFilterEnabled() || isHiddenByHost(table))
        return nullptr;
    if (CellInteraction* interaction = inner->interactionIfAny())
        interaction->commitEditor();
    return inner;
}

} // namespace

EditOutcome applyPersonEdit(CMultiParamsTable& table, int cell, const PersonEdit& edit)
{
    CMultiParamsTablePrivate* inner = CMultiParamsTablePrivate::of(&table);
    if (CellInteraction* interaction = inner->interactionIfAny())
        interaction->commitEditor();
    CellItem* item = inner->model().cell(cell);
    if (!item || !isWithinReach(table, inner->model(), *item))
        return EditOutcome::Impossible;
    const EditValue value = valueOf(*item, edit);
    if (!isPossible(*item, value, edit))
        return EditOutcome::Impossible;
    if (edit.unit)
        commits::unit(table, static_cast<NumberCell&>(*item), unitIndex(*item, *edit.unit));
    if (edit.checked)
        commits::check(table, *item, *edit.checked);
    return commitValue(table, *item, value, edit);
}

bool applyPersonFilter(CMultiParamsTable& table, const QSet<int>& cells)
{
    CMultiParamsTablePrivate* inner = filterWithinReach(table);
    if (!inner || cells.isEmpty())
        return false;
    QSet<int> offered;
    for (const CellItem* cell : inner->model().filterCells())
        offered.insert(cell->id());
    if (!offered.contains(cells))
        return false;
    commits::filter(table, cells);
    return true;
}

bool resetPersonFilter(CMultiParamsTable& table)
{
    if (!filterWithinReach(table))
        return false;
    commits::filterReset(table);
    return true;
}

} // namespace WQ
