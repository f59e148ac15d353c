#include "reference/services/ServiceControl.h"

#include "reference/services/AccountFile.h"
#include "reference/services/ConfigurationFile.h"
#include "reference/services/FileReport.h"
#include "reference/services/FileWatch.h"
#include "reference/services/ServicePrivates.h"
#include "reference/services/TaskFile.h"

#include <boost/make_shared.hpp>

#include <QCoreApplication>
#include <QDir>
#include <QPointer>

namespace reference {

namespace {

/// The configuration file in use. The watch belongs to the application object: it needs its event loop.
struct ConfigurationSource
{
    QString path;
    std::optional<QByteArray> bytes;      ///< as last read: most calls of the watch are about other files of the folder
    std::optional<QByteArray> unfinished; ///< what may still be written
    QPointer<FileWatch> watch;
};

ConfigurationSource& source()
{
    static ConfigurationSource theSource;
    return theSource;
}

std::function<void()>& listener()
{
    static std::function<void()> theListener;
    return theListener;
}

LoadReport apply(const QByteArray& bytes)
{
    Configuration configuration;
    const LoadReport report = readConfiguration(source().path, bytes, configuration);
    if (report.isGood()) {
        TC::CUserConfigPrivate::state().clientMode = configuration.clientMode;
        luawrapper::LuaModuleCtrlPrivate::state().on = configuration.modules;
    }
    return report;
}

// A writer that is not through leaves a file without its last line end: empty, or with half a value. Such a file is
// taken when it has stayed so.
bool isStillWritten(const QByteArray& bytes)
{
    const bool isNew = source().unfinished != bytes;
    source().unfinished = bytes;
    return isNew && !bytes.endsWith('\n');
}

void readAgain()
{
    LoadReport report;
    const QByteArray bytes = readWhole(source().path, report);
    if (!report.isGood()) {
        source().bytes.reset();
        source().unfinished.reset();
    } else if (source().bytes == bytes) {
        source().unfinished.reset();
        return;
    } else if (isStillWritten(bytes)) {
        source().watch->lookAgain();
        return;
    } else {
        source().bytes = bytes;
        report = apply(bytes);
    }
    sayReport(source().path, report);
    if (report.isGood() && listener())
        listener()();
}

} // namespace

void resetServices()
{
    delete source().watch;
    source() = {};
    setConfigurationListener({});
    setClientMode(0);
    setModules({});
    freezeClock(std::nullopt);
    clearAccounts();
    forgetReports();
}

void setConfigurationListener(std::function<void()> changed)
{
    listener() = std::move(changed);
}

void setClientMode(int mode)
{
    TC::CUserConfigPrivate::state().clientMode = mode;
}

void setModules(const QSet<QString>& on)
{
    auto& names = luawrapper::LuaModuleCtrlPrivate::state().on;
    names.clear();
    for (const QString& name : on)
        names.insert(name.toStdString());
}

void setModule(const QString& module, bool on)
{
    auto& names = luawrapper::LuaModuleCtrlPrivate::state().on;
    if (on)
        names.insert(module.toStdString());
    else
        names.erase(module.toStdString());
}

QSet<QString> modules()
{
    QSet<QString> on;
    for (const std::string& name : luawrapper::LuaModuleCtrlPrivate::state().on)
        on.insert(QString::fromStdString(name));
    return on;
}

void emitAlgorithmHint(int orderType, bool hint)
{
    Q_EMIT TC::getUserConfig()->sigShouldHintAlgorithm(orderType, hint);
}

void freezeClock(std::optional<qint64> seconds)
{
    TC::CTimeServicePrivate::state().frozen = seconds;
}

std::optional<qint64> frozenClock()
{
    return TC::CTimeServicePrivate::state().frozen;
}

void addAccount(const std::string& key, const ttservice::CAccountInfoV2& account)
{
    TC::DataCenterPrivate::state().accounts[key] = boost::make_shared<ttservice::CAccountInfoV2>(account);
}

void clearAccounts()
{
    TC::DataCenterPrivate::state().accounts.clear();
}

std::vector<std::string> accountKeys()
{
    std::vector<std::string> keys;
    for (const auto& account : TC::DataCenterPrivate::state().accounts)
        keys.push_back(account.first);
    return keys;
}

QString dataFolder()
{
    const QDir programFolder(QCoreApplication::applicationDirPath());
    const QString installed = QDir::cleanPath(programFolder.filePath(QStringLiteral("../share/orderparam")));
    return QDir(installed).exists() ? installed : QStringLiteral(ORDERPARAM_SOURCE_DATA);
}

LoadReport loadConfiguration(const QString& path)
{
    LoadReport report;
    delete source().watch;
    source() = {};
    source().path = path;
    const QByteArray bytes = readWhole(path, report);
    if (report.isGood()) {
        source().bytes = bytes;
        report = apply(bytes);
    }
    if (!path.isEmpty() && QCoreApplication::instance())
        source().watch = new FileWatch(path, readAgain, QCoreApplication::instance());
    sayReport(path, report);
    return report;
}

LoadReport loadAccounts(const QString& path)
{
    const LoadReport report = readAccounts(path, TC::DataCenterPrivate::state().accounts);
    sayReport(path, report);
    return report;
}

LoadReport loadTasks(const QString& path, std::vector<ttservice::CCodeOrderParam>& tasks)
{
    const LoadReport report = readTasks(path, tasks);
    sayReport(path, report);
    return report;
}

} // namespace reference
