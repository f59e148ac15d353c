#pragma once

#include <QImage>

class QWidget;

namespace workbench {

/// A picture of @p window with the popups, lists and notices that stand open beside it, @p pixelRatio device pixels a
/// pixel. Nothing of the desktop shows.
QImage snapshot(QWidget& window, qreal pixelRatio);

/// Lets layouts, posted events and repaints happen.
void settle();

} // namespace workbench
