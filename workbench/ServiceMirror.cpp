#include "workbench/ServiceMirror.h"

#include "workbench/StepMaking.h"

#include "replay/Values.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/Resources.h"

#include <TC/CUserConfig.h>
#include <TC/DataCenter.h>

namespace workbench {

namespace {

using replay::Json;

QStringList modulesOn()
{
    QStringList modules = reference::modules().values();
    modules.sort();
    return modules;
}

Json accountCommand(const std::string& key, const ttservice::CAccountInfoV2& account)
{
    Json command = {{"do", "account"}, {"key", key}};
    command["brokerType"] = replay::written(account.brokerType);
    command["id"] = replay::written(account.accountId);
    command["name"] = replay::written(account.accountName);
    return command;
}

/// Takes @p now over into @p known; @returns whether it is another one.
template <class T>
bool take(T& known, const T& now)
{
    const bool isOther = !(known == now);
    known = now;
    return isOther;
}

} // namespace

std::vector<Json> ServiceMirror::pendingCommands()
{
    std::vector<Json> commands = accountCommands();
    if (take(m_modules, modulesOn()))
        commands.push_back({{"do", "modules"}, {"on", replay::written(m_modules)}});
    const TC::CUserConfig* configuration = TC::getUserConfig();
    if (take(m_clientMode, configuration ? configuration->clientMode() : 0))
        commands.push_back({{"do", "clientMode"}, {"value", m_clientMode}});
    // A replay's clock never goes by itself: where the live one goes on, it stands at that moment.
    if (take(m_clock, reference::frozenClock()))
        commands.push_back(clockCommand());
    if (take(m_scale, WQ::resources::scale()))
        commands.push_back({{"do", "scale"}, {"value", m_scale}});
    if (take(m_theme, WQ::resources::theme()))
        commands.push_back({{"do", "theme"}, {"name", replay::written(m_theme)}});
    return commands;
}

std::vector<Json> ServiceMirror::accountCommands()
{
    std::vector<Json> commands;
    for (const std::string& key : reference::accountKeys()) {
        const auto account = TC::DataCenter::instance()->getAccountInfo(key);
        if (!account)
            continue;
        const Json command = accountCommand(key, *account);
        if (take(m_accounts[key], command))
            commands.push_back(command);
    }
    return commands;
}

} // namespace workbench
