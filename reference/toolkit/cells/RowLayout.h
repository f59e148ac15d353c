#pragma once

#include <WQ/WqExport.h>

#include <QFont>
#include <QRect>
#include <QString>

namespace WQ {

class CellItem;

namespace texts {
class Face;
}

/// The sizes of a row at one scale, read once from the resources.
struct WQ_EXPORT RowMetrics
{
    explicit RowMetrics(double scale);

    double scale;
    QFont font;
    const texts::Face* face; ///< of the font
    int rowHeight;
    int footerHeight;
    int padding;
    int gap;      ///< between value, unit, chevron and between label and value
    int chevron;  ///< square
    int checkBox; ///< square
    int bar;      ///< at the left of a value off its grid
};

/// Where the parts of a row stand, in the coordinates of the row's rectangle. A part that the cell lacks is empty.
struct RowLayout
{
    QRect label;
    QRect check; ///< box and its text
    QRect value; ///< from where the label ends up to unit, chevron or padding: where an editor stands
    QRect unit;
    QRect chevron;
    QString labelText; ///< elided where it does not fit
    QString checkText;
    QString valueText;
    QString unitText;
    bool elided = false;  ///< whether any text is
    bool offGrid = false; ///< whether the value is marked as off its grid

    /// Unit and chevron together: what a click opens the list of units on.
    QRect unitArea() const
    {
        return unit.united(chevron);
    }
};

/// Lays out @p cell in @p row. Unit, chevron and check stand at the right; label and value share the rest, each using
/// what the other leaves. Where both are too long, the label gets @p labelColumn pixels, counted from the row's left.
WQ_EXPORT RowLayout layoutRow(const CellItem& cell, const QRect& row, const RowMetrics& metrics, int labelColumn);

} // namespace WQ
