#pragma once

#include <ttservice/CCodeOrderParam.h>

#include <QStringList>

#include <vector>

namespace workbench {

/// What the host starts from: configuration and accounts go to the services, the task records stay here.
struct HostData
{
    std::vector<ttservice::CCodeOrderParam> tasks;
    QStringList problems; ///< "file:line: what is wrong", one a file that was not taken
};

/// Loads the files of @p folder, or of the default folder when it is empty.
HostData loadHostData(const QString& folder);

} // namespace workbench
