#pragma once

#include "workbench/HostData.h"
#include "workbench/TourStops.h"

#include <memory>

class QWidget;

namespace workbench {

/// What a picture is taken of.
struct Stage
{
    std::unique_ptr<QWidget> host; ///< above the window, which goes first; null for a window without one
    std::unique_ptr<QWidget> window;
    qreal pixelRatio = 1.0;
};

/// Each makes the stop's window, shows it and brings it into the state of its picture.
Stage stagePanel(const PanelStop& stop);
Stage stageTask(const TaskStop& stop);
Stage stageBasket();
Stage stageCredit(const CreditStop& stop);
Stage stageWindow(const WindowStop& stop, const HostData& data);

} // namespace workbench
