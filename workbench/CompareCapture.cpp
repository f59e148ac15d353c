#include "workbench/CompareCapture.h"

#include "workbench/PanelHost.h"

#include "replay/State.h"

#include "reference/services/ServiceControl.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <QScopeGuard>
#include <QSet>

namespace workbench {

replay::Json captureTable(const CompareSetup& setup)
{
    const auto restore = qScopeGuard([before = reference::modules()] { reference::setModules(before); });
    reference::setModules(QSet<QString>(setup.modules.begin(), setup.modules.end()));
    PanelHost host;
    TC::COrderParamBaseTable* const table = makeTable(setup.table, host);
    TableDrive drive;
    drive.orderType = setup.orderType;
    // A panel whose host has chosen no operation was never told of one.
    if (setup.operationType != ttservice::OPT_NONE)
        drive.operationType = setup.operationType;
    drive.expanded = setup.isExpanded;
    driveTable(*table, drive);
    return replay::stateOf(table);
}

} // namespace workbench
