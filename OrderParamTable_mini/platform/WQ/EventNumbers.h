#pragma once

/// @file
/// The toolkit's events by what they say. `a` is the ID of the cell or button, `b` and the text as each line says; both
/// are 0 and empty for the filter.

namespace WQ::events {

constexpr int kButtonClicked = 5;          ///< text: the button's
constexpr int kEntryChosen = 73;           ///< b: the entry's index; text: the entry; data: QVariant*, its value
constexpr int kNumberCommitted = 87;       ///< text: the value; ranges and texts beside units send it, too
constexpr int kDoubleClicked = 97;         ///< on a cell; text: its value
constexpr int kPeriodCommitted = 101;      ///< text: HH:MM:SS-HH:MM:SS
constexpr int kLineCommitted = 102;        ///< text: the line
constexpr int kUnitOrCheckChanged = 118;   ///< text: the unit; of a check b is 0 or 1 and the text that of its box
constexpr int kFilterApplied = 124;        ///< the visible set is another one
constexpr int kFilterReset = 248;          ///< the visible set is empty
constexpr int kNeededHeightChanged = 1071; ///< from a platform whose rows grow

} // namespace WQ::events
