#pragma once

#include "reference/toolkit/cells/RowLayout.h"

class QPainter;

namespace WQ {

class CellItem;

/// What a row shows beside its cell.
struct RowState
{
    bool enabled = true;
    bool focus = false;     ///< the table has the focus and this is the current row
    bool mouse = false;     ///< the mouse is over it
    bool wrong = false;     ///< what stands in its editor is wrong
    bool editing = false;   ///< an editor stands over the value, which is not painted
    bool unitMouse = false; ///< the mouse is over the unit of an enabled cell with several
};

/// Paints a row whole, opaque, the separator in its last device pixel.
WQ_EXPORT void paintRow(QPainter& painter, const QRect& row, const CellItem& cell, const RowLayout& layout,
                        const RowMetrics& metrics, const RowState& state);

/// Paints a check box, wherever one stands: in a row, in the filter's list.
WQ_EXPORT void paintCheckBox(QPainter& painter, const QRect& box, bool checked, bool enabled);

/// What the filter's footer shows.
struct FooterState
{
    bool enabled = true;
    bool focus = false;
    bool mouse = false;
    bool active = false; ///< some cells are filtered out
};

/// Paints the filter's footer, opaque.
WQ_EXPORT void paintFooter(QPainter& painter, const QRect& footer, const RowMetrics& metrics, const FooterState& state);

/// Paints the ground below the last row, opaque.
WQ_EXPORT void paintGround(QPainter& painter, const QRect& rect);

} // namespace WQ
