#pragma once

#include "reference/services/LoadReport.h"

#include <QByteArray>

#include <set>
#include <string>

namespace reference {

/// What the configuration file says.
struct Configuration
{
    int clientMode = 0;
    std::set<std::string> modules; ///< those that are on, "group/module", UTF-8
};

/// Reads the bytes of the INI file at @p path; after an error @p configuration is as it was.
LoadReport readConfiguration(const QString& path, const QByteArray& bytes, Configuration& configuration);

} // namespace reference
