#include "replay/CommandRun.h"
#include "replay/Session.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/Resources.h"

#include <QCoreApplication>

#include <algorithm>

namespace replay {

Json reset(const Run& run)
{
    run.session.reset();
    return nullptr;
}

Json setModules(const Run& run)
{
    const auto names = run.value<QStringList>("on");
    const bool areModules =
        std::all_of(names.begin(), names.end(), [](const QString& name) { return name.count(QLatin1Char('/')) == 1; });
    if (!areModules)
        throw WrongCommand("modules are named \"group/module\"");
    reference::setModules(QSet<QString>(names.begin(), names.end()));
    return nullptr;
}

Json setClientMode(const Run& run)
{
    reference::setClientMode(run.value<int>("value"));
    return nullptr;
}

Json setClock(const Run& run)
{
    const Json& epoch = run.command["epoch"];
    if (!epoch.is_null() && !epoch.is_number_integer())
        throw WrongCommand("\"epoch\" is whole seconds since 1970, or null");
    reference::freezeClock(epoch.is_null() ? std::nullopt : std::make_optional(epoch.get<qint64>()));
    return nullptr;
}

Json setScale(const Run& run)
{
    WQ::resources::setScale(run.value<double>("value"));
    QCoreApplication::processEvents();
    return nullptr;
}

Json setTheme(const Run& run)
{
    const QString name = run.value<QString>("name");
    if (!WQ::resources::setTheme(name))
        throw WrongCommand("no theme " + name.toStdString() + "; there are "
                           + WQ::resources::themes().join(QStringLiteral(", ")).toStdString());
    QCoreApplication::processEvents();
    return nullptr;
}

Json addAccount(const Run& run)
{
    ttservice::CAccountInfoV2 account;
    account.brokerType = run.value<ttservice::ENVBrokerType>("brokerType");
    account.accountId = run.text("id");
    account.accountName = run.text("name");
    reference::addAccount(run.text("key"), account);
    return nullptr;
}

Json emitHint(const Run& run)
{
    const auto orderType = run.value<int>("orderType");
    reference::emitAlgorithmHint(orderType, run.value<bool>("hint"));
    return nullptr;
}

} // namespace replay
