#pragma once

#include <WQ/WqExport.h>

#include <QPair>
#include <QSet>
#include <QString>

#include <optional>

namespace WQ {

class CMultiParamsTable;

/// What a person does in the editor of one cell, without the editor: texts stand as typed. One edit names one value at
/// most, beside unit and check; they are committed one after another: unit, check, then the value.
struct PersonEdit
{
    std::optional<QString> unit;                  ///< choose the unit of that text
    std::optional<bool> checked;                  ///< tick or clear the check box
    std::optional<QString> text;                  ///< type a number, a line or a text; choose a combo's entry
    std::optional<int> index;                     ///< choose a combo's entry by its place
    std::optional<QPair<QString, QString>> range; ///< type both numbers of a range
    std::optional<QPair<QString, QString>> time;  ///< type both times of a period, which makes it a clock range
    std::optional<QString> duration;              ///< type the length of a period, which makes it a duration
};

enum class EditOutcome {
    Done,       ///< committed; an edit that changes nothing is done too
    Wrong,      ///< marked as wrong by the editor; the cell keeps its value (a unit or check before it stays committed)
    Impossible, ///< no person could: the cell is not shown, disabled or read-only, or has nothing of the kind
};

/// Commits @p edit by the editors' own rules and events. What stands in an open editor of the table is committed first.
WQ_EXPORT EditOutcome applyPersonEdit(CMultiParamsTable& table, int cell, const PersonEdit& edit);

/// Ticks exactly @p cells in the filter and applies it; false, and nothing done, when a person could not: none given,
/// one of them not offered, the filter not enabled or not shown.
WQ_EXPORT bool applyPersonFilter(CMultiParamsTable& table, const QSet<int>& cells);

/// Resets the filter; false when a person could not.
WQ_EXPORT bool resetPersonFilter(CMultiParamsTable& table);

} // namespace WQ
