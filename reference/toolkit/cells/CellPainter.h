#pragma once

#include "reference/toolkit/cells/DeviceGrid.h"
#include "reference/toolkit/cells/RowLayout.h"
#include "reference/toolkit/cells/TextCache.h"

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
    bool flash = false;     ///< its number has just been bounded
    bool unitMouse = false; ///< the mouse is over the unit of an enabled cell with several
};

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

/// Paints what a table shows, opaque, while one paint event lasts. What lies outside of @p dirty may be left out.
class WQ_EXPORT CellPainter
{
public:
    CellPainter(QPainter& painter, const RowMetrics& metrics, const QRect& dirty);

    /// A row, the separator in its last device pixel.
    void paintRow(const QRect& row, const CellItem& cell, const RowLayout& layout, const RowState& state);

    /// The filter's footer.
    void paintFooter(const QRect& footer, const FooterState& state);

    /// The ground below the last row.
    void paintGround(const QRect& rect);

private:
    void paintTexts(const RowLayout& layout, const RowState& state, const QColor& ground);
    void paintCheck(const CellItem& cell, const RowLayout& layout, bool enabled, const QColor& ground);
    void paintMarks(const QRect& row, bool offGrid, const RowState& state);
    void drawText(const QRect& area, const QString& text, const QColor& color, const QColor& ground,
                  bool right = false);
    void drawImage(const QString& key, const QColor& tint, const QRect& rect);

    QPainter& m_painter;
    const RowMetrics& m_metrics;
    const QRect m_dirty;
    const DeviceGrid m_grid;
    texts::Pen m_pen;
};

} // namespace WQ
