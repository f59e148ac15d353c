#pragma once

#include "reference/toolkit/editors/EditRules.h"

#include <WQ/WqExport.h>

#include <QString>

namespace WQ {

class CellModel;

/// What goes to the clipboard from cells, and what a text from there means to one. No widgets.

/// More than a person types, less than what makes a line slow.
constexpr int kLongestTyped = 32767;

/// Tabs and line breaks become blanks, so that a text stays in its column; without blanks around it.
WQ_EXPORT QString columnText(const QString& text);

/// The value as it can be pasted again: plain digits without a unit, of a duration its length.
WQ_EXPORT QString copiedValue(const CellItem& cell);

/// Label and value, a tab between them.
WQ_EXPORT QString copiedCell(const CellItem& cell);

/// Label, value and unit of every cell that is shown, one line a cell.
WQ_EXPORT QString copiedCells(const CellModel& model);

/// What stands in the fields of the editor of @p cell when @p text is typed into them: two numbers or times have a
/// dash, a tilde or the cell's own separator between them. A single time is a duration.
WQ_EXPORT Draft pastedDraft(const CellItem& cell, const QString& text);

/// The entry of a combo whose text is exactly @p text, -1 without one.
WQ_EXPORT int pastedEntry(const CellItem& cell, const QString& text);

/// Whether a person's @p text may be pasted; what an editor refuses is refused with the editor's own words. A line
/// break at the very end, which spreadsheets add, is none of the text.
WQ_EXPORT Judgement judgePasted(const CellItem& cell, const QString& text);

} // namespace WQ
