#pragma once

#include <ttservice/CCodeOrderParam.h>

class QFrame;
class QWidget;

namespace TC {

/// The column of facts about a task, each a disabled cell of its own; a new child of @p parent.
QWidget* createTaskFacts(const ttservice::CCodeOrderParam& task, QWidget* parent);

/// The raised line between a task's table and its facts; a new child of @p parent.
QFrame* createTaskLine(QWidget* parent);

} // namespace TC
