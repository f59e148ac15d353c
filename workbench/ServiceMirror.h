#pragma once

#include "replay/Json.h"

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// What the services and the look are like in a replay so far. They belong to the whole program, and a configuration
/// file that is read again changes them without a call of this host: so they are compared, not listened to.
class ServiceMirror
{
public:
    /// Commands that bring a replay's services and look to where they stand here; they count as carried out.
    std::vector<replay::Json> pendingCommands();

private:
    std::vector<replay::Json> accountCommands();

    // As after "reset".
    QStringList m_modules;
    int m_clientMode = 0;
    std::optional<qint64> m_clock; ///< where it was frozen
    double m_scale = 1.0;
    QString m_theme = QStringLiteral("dark");
    std::map<std::string, replay::Json> m_accounts;
};

} // namespace workbench
