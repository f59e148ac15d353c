#pragma once

class QPoint;
class QWidget;

namespace WQ {

/// Opens a list at @p position (in @p window's coordinates) from which the value of the single cell there, or labels
/// and values of all cells of the window as tab-separated lines, go to the clipboard. Does nothing in a window without
/// such cells.
void openCellCopyMenu(QWidget* window, const QPoint& position);

} // namespace WQ
