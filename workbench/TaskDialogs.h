#pragma once

#include <ttservice/CCodeOrderParam.h>

#include <string>
#include <vector>

class QWidget;

namespace workbench {

class PanelHost;

/// The dialog of one task, titled by its code, or "Task" without one; not shown yet. It deletes itself when closed.
/// @p name is what a recording calls it.
QWidget* makeTaskDialog(PanelHost& host, const std::string& name, ttservice::CCodeOrderParam task, int traderType,
                        bool autoBook);

/// The dialog of a basket, not shown yet. It opens empty, so the host gives it title and size.
QWidget* makeBasketDialog(PanelHost& host, const std::string& name, std::vector<ttservice::CCodeOrderParam> tasks);

} // namespace workbench
