#pragma once

#include "reference/toolkit/cells/CellItem.h"
#include "reference/toolkit/cells/NumberRules.h"

#include <WQ/WqExport.h>

#include <QVariant>

namespace WQ {

/// What a cell was added with, so that a person can go back to it. Its unit is the first of its units. No widgets.
struct InitialValue
{
    QVariant value;  ///< a combo's data, a line's text, a number; of a period the start, in seconds
    double high = 0; ///< of a range the higher number, of a period the end
    bool checked = false;
};

/// A text cell begins empty.
WQ_EXPORT InitialValue initialOf(const CellItem& cell);

/// Whether value, unit and check are what the cell was added with. A combo without a choice at first has no way back.
WQ_EXPORT bool holdsInitial(const CellItem& cell);

/// Whether the cell can hold it still: limits and entries may be others by now.
WQ_EXPORT Judgement judgeInitial(const CellItem& cell);

/// Takes the value and answers whether the cell holds something else now; unit, check and a combo's choice are the
/// caller's.
WQ_EXPORT bool storeInitial(CellItem& cell);

} // namespace WQ
