#pragma once

#include "reference/toolkit/cells/CellItem.h"
#include "reference/toolkit/cells/NumberRules.h"

#include <WQ/ToolkitTypes.h>
#include <WQ/WqExport.h>

#include <QStringList>

#include <optional>

/// How a cell is edited as text: what its editor starts with, what of it is wrong, what it stores. No widgets.
namespace WQ {

/// What stands in the fields of an editor.
struct Draft
{
    QStringList texts;                        ///< one a field, as typed
    EWqTimeRangeType period = TimeRangeClock; ///< of a time period: how the texts are meant

    friend bool operator==(const Draft& a, const Draft& b)
    {
        return a.texts == b.texts && a.period == b.period;
    }
};

/// Whether a cell of this kind is edited in text fields; a combo is not.
WQ_EXPORT bool hasFields(CellKind kind);

/// What the editor of @p cell starts with. Digits are not grouped.
WQ_EXPORT Draft draftOf(const CellItem& cell);

/// What the editor shows when a person makes @p draft of a time period the other kind of period. What the texts say is
/// kept where it can be: the length of a clock range becomes the duration.
WQ_EXPORT Draft switchedPeriod(const CellItem& cell, const Draft& draft);

/// Whether @p draft may be stored; the message of a wrong one names label and range.
WQ_EXPORT Judgement judgeDraft(const CellItem& cell, const Draft& draft);

/// Stores a draft and answers whether the cell holds something else now. A wrong one changes nothing.
WQ_EXPORT bool storeDraft(CellItem& cell, const Draft& draft);

/// A field after a key or a wheel notch has stepped it.
struct SteppedField
{
    QString text;
    int selectionStart = 0;
    int selectionLength = 0;
};

/// Field @p field of @p draft, @p steps steps up; the cursor says which part of a time is meant. A text that is no
/// value starts from the cell's own. Nothing for a field that has no steps.
WQ_EXPORT std::optional<SteppedField> stepField(const CellItem& cell, const Draft& draft, int field, int cursor,
                                                int steps);

} // namespace WQ
