#pragma once

#include "workbench/TableSetup.h"

#include "replay/Json.h"

#include <QStringList>

namespace workbench {

/// A table to compare: what it is made of, what is done to it, and the feature modules that are on meanwhile.
struct CompareSetup
{
    TableSetup table;
    int orderType = 0;
    int operationType = -1;
    bool isExpanded = true;
    QStringList modules; ///< "group/module"
};

/// The state of such a table, as a replay prints it. Modules belong to the whole process, so the table lives and dies
/// under its own; afterwards the modules are on that were on before. No recorder hears of it.
replay::Json captureTable(const CompareSetup& setup);

} // namespace workbench
