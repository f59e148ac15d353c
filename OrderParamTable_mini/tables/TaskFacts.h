#pragma once

#include <ttservice/CCodeOrderParam.h>

class QWidget;

namespace TC {

/// The column of facts about a task, each a disabled cell of its own; a new child of @p parent.
QWidget* createTaskFacts(const ttservice::CCodeOrderParam& task, QWidget* parent);

} // namespace TC
