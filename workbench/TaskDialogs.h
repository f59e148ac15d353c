#pragma once

#include <ttservice/CCodeOrderParam.h>

#include <vector>

class QWidget;

namespace workbench {

/// The dialog of one task, titled by its code, or "Task" without one; not shown yet. It deletes itself when closed.
QWidget* makeTaskDialog(ttservice::CCodeOrderParam task, int traderType, bool autoBook, QWidget* parent);

/// The dialog of a basket, not shown yet. It opens empty, so the host gives it title and size.
QWidget* makeBasketDialog(std::vector<ttservice::CCodeOrderParam> tasks, QWidget* parent);

} // namespace workbench
