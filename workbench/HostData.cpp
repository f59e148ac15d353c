#include "workbench/HostData.h"

#include "reference/services/ServiceControl.h"

#include <QDir>

namespace workbench {

HostData loadHostData(const QString& folder)
{
    const QDir directory(folder.isEmpty() ? reference::dataFolder() : folder);
    HostData data;
    const auto note = [&data](const reference::LoadReport& report) {
        if (!report.isGood())
            data.problems << report.error;
    };
    note(reference::loadConfiguration(directory.filePath(QStringLiteral("orderparam.ini"))));
    note(reference::loadAccounts(directory.filePath(QStringLiteral("accounts.json"))));
    note(reference::loadTasks(directory.filePath(QStringLiteral("tasks.json")), data.tasks));
    return data;
}

} // namespace workbench
