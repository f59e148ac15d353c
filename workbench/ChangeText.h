#pragma once

#include "workbench/CompareRows.h"

namespace workbench {

/// How many facts of a table differ, and the first of them by name: what a person has just made of it.
QString changeText(const std::vector<CompareRow>& rows);

} // namespace workbench
