#pragma once

#include "reference/services/LoadReport.h"

#include <ttservice/CCodeOrderParam.h>

#include <vector>

namespace reference {

/// Reads a JSON list of task records, their accounts taken from the data center; after an error @p tasks is as it was.
LoadReport readTasks(const QString& path, std::vector<ttservice::CCodeOrderParam>& tasks);

} // namespace reference
