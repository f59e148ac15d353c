#pragma once

#include "reference/toolkit/editors/EditRules.h"

#include <QSet>

namespace WQ {

class CMultiParamsTable;
class ComboCell;
class NumberCell;

/// What a person's edit does once it is judged right: the cell takes it first, then its event is queued, when the cell
/// holds something else than before. Nothing here runs foreign code.
namespace commits {

/// @p draft is right, else nothing happens.
void draft(CMultiParamsTable& table, CellItem& cell, const Draft& draft);

/// An index outside the list is ignored.
void entry(CMultiParamsTable& table, ComboCell& cell, int index);
void unit(CMultiParamsTable& table, NumberCell& cell, int index);

void check(CMultiParamsTable& table, CellItem& cell, bool checked);

/// Unit, check and value that the cell was added with, each with the event of its own when it is another.
/// That value is judged right.
void initial(CMultiParamsTable& table, CellItem& cell);

void doubleClick(CMultiParamsTable& table, const CellItem& cell);

/// Stores what the person wants to see and shows it at once, be it hidden by program.
void filter(CMultiParamsTable& table, const QSet<int>& ticked);
void filterReset(CMultiParamsTable& table);

} // namespace commits

} // namespace WQ
