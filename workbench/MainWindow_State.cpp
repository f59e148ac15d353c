#include "workbench/MainWindow.h"

#include "workbench/CreditPanel.h"
#include "workbench/HostForm.h"
#include "workbench/Language.h"
#include "workbench/OrderControls.h"
#include "workbench/OrderHeader.h"
#include "workbench/QuoteFeed.h"
#include "workbench/QuotePanel.h"
#include "workbench/SetupForm.h"
#include "workbench/StateKeeper.h"
#include "workbench/TableBench.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/Resources.h"
#include "replay/Values.h"

#include <OrderParamTable_mini/credit/CCreditParamTable.h>
#include <TC/CUserConfig.h>

#include <QAction>
#include <QCloseEvent>
#include <QDockWidget>
#include <QSet>
#include <QSignalBlocker>

#include <algorithm>

namespace workbench {

namespace {

/// Docks of another version of the window are not restored.
constexpr int kLayoutVersion = 2;

Json bytesJson(const QByteArray& bytes)
{
    return bytes.toBase64().toStdString();
}

QByteArray bytesIn(const Json& object, const char* key)
{
    return QByteArray::fromBase64(textIn(object, key).toLatin1());
}

Json setupJson(const TableSetup& setup)
{
    return {{"class", static_cast<int>(setup.tableClass)},
            {"identity", setup.identity},
            {"brokerType", setup.brokerType},
            {"traderType", setup.traderType},
            {"modeButtons", setup.modeButtons},
            {"fontScale", setup.fontScale},
            {"autoBook", setup.autoBook}};
}

TableSetup savedSetup(const Json& json)
{
    TableSetup setup;
    const int tableClass = intIn(json, "class", 0);
    if (tableClass >= static_cast<int>(TableClass::Global) && tableClass <= static_cast<int>(TableClass::StopLoss))
        setup.tableClass = static_cast<TableClass>(tableClass);
    setup.identity = intIn(json, "identity", setup.identity);
    setup.brokerType = intIn(json, "brokerType", setup.brokerType);
    setup.traderType = intIn(json, "traderType", setup.traderType);
    setup.modeButtons = boolIn(json, "modeButtons", setup.modeButtons);
    setup.fontScale = boolIn(json, "fontScale", setup.fontScale);
    setup.autoBook = boolIn(json, "autoBook", setup.autoBook);
    return setup;
}

/// Order type, operation and expansion are kept for each table.
Json driveJson(const TableDrive& drive)
{
    return {{"code", replay::written(drive.code)}, {"flags", replay::written(drive.flags)}, {"enabled", drive.enabled}};
}

TableDrive savedDrive(const Json& json)
{
    TableDrive drive;
    drive.code = textIn(json, "code");
    drive.enabled = boolIn(json, "enabled", drive.enabled);
    constexpr int kNone = -1;
    const int flags = intIn(json, "flags", kNone);
    if (flags != kNone)
        drive.flags = flags;
    return drive;
}

} // namespace

void MainWindow::connectHost()
{
    connect(m_keeper, &StateKeeper::told, this, &MainWindow::showProblem);
    connect(m_form, &SetupForm::modulesChanged, this, [this](const QStringList& modules) {
        reference::setModules(QSet<QString>(modules.begin(), modules.end()));
        keepService("modules", replay::written(modules));
        showTable();
    });
    connect(m_host, &HostForm::clientModeChosen, this, [this](int mode) {
        reference::setClientMode(mode);
        keepService("clientMode", mode);
        readTable();
    });
    connect(m_host, &HostForm::clockChosen, this, [this] {
        reference::freezeClock(m_host->clock());
        keepService("clock", m_host->clock() ? Json(*m_host->clock()) : Json());
        readTable();
    });
    connect(m_quotes, &QuotePanel::feedChosen, this, [this] {
        keepService("feed", {{"running", m_quotes->feed()->isRunning()}, {"rate", m_quotes->feed()->rate()}});
    });
    reference::setConfigurationListener([this] { followConfiguration(); });
    const TC::CUserConfig* configuration = TC::getUserConfig();
    m_host->setClientMode(configuration ? configuration->clientMode() : 0);
}

/// Somebody has changed the file while the window is open: that is newer than what was chosen in the window.
void MainWindow::followConfiguration()
{
    const TC::CUserConfig* configuration = TC::getUserConfig();
    m_host->setClientMode(configuration ? configuration->clientMode() : 0);
    m_form->setModules(reference::modules().values());
    m_services.erase("modules");
    m_services.erase("clientMode");
    showTable();
}

void MainWindow::keepService(const char* name, Json value)
{
    m_services[name] = std::move(value);
    m_keeper->commit();
}

void MainWindow::takeServices(const Json& services)
{
    if (services.contains("modules")) {
        const QStringList modules = textsIn(services, "modules");
        reference::setModules(QSet<QString>(modules.begin(), modules.end()));
        m_form->setModules(modules);
    }
    if (services.contains("clientMode")) {
        const int mode = intIn(services, "clientMode", 0);
        reference::setClientMode(mode);
        m_host->setClientMode(mode);
    }
    // The last second of the year 9999: what a person can enter.
    constexpr double kLastSecond = 253402300799.0;
    const double clock = numberIn(services, "clock", -1.0);
    if (clock >= 0.0 && clock <= kLastSecond) {
        m_host->setClock(static_cast<qint64>(clock));
        reference::freezeClock(m_host->clock());
    }
}

void MainWindow::loadState(Services services)
{
    const Json state = m_keeper->load();
    m_isKept = true;
    const Json window = objectIn(state, "window");
    restoreGeometry(bytesIn(window, "geometry"));
    restoreState(bytesIn(window, "layout"), kLayoutVersion);
    m_services = objectIn(state, "services");
    if (services == Services::Kept)
        takeServices(m_services);
    const Json feed = objectIn(m_services, "feed");
    m_quotes->setFeed(boolIn(feed, "running", false), intIn(feed, "rate", m_quotes->feed()->rate()));
    m_memory.setJson(objectIn(state, "tables"));
    m_form->setSetup(savedSetup(objectIn(state, "setup")));
    m_controls->setDrive(savedDrive(objectIn(state, "drive")));
    m_bench->rebuild(m_form->setup(), m_controls->drive());
    if (m_bench->table())
        m_memory.recall(m_form->setup(), *m_bench->table(), m_controls->drive().enabled);
    const QString credit = textIn(state, "credit");
    if (!credit.isEmpty() && credit != m_credit->table()->param())
        m_credit->loadParam(credit);
    m_header->showAccount(textIn(state, "account"));
    const bool isAlone =
        std::all_of(m_docks.begin(), m_docks.end(), [](QDockWidget* part) { return part->isHidden(); });
    const QSignalBlocker quiet(m_alone);
    m_alone->setChecked(isAlone);
    readTable();
    installEventFilter(m_keeper);
    for (QDockWidget* part : qAsConst(m_docks))
        part->installEventFilter(m_keeper);
}

Json MainWindow::collectState()
{
    if (m_bench->table())
        m_memory.remember(m_bench->setup(), *m_bench->table());
    Json state = Json::object();
    state["look"] = {{"theme", WQ::resources::theme().toStdString()},
                     {"scale", WQ::resources::scale()},
                     {"language", language().toStdString()}};
    state["window"] = {{"geometry", bytesJson(saveGeometry())}, {"layout", bytesJson(saveState(kLayoutVersion))}};
    state["setup"] = setupJson(m_form->setup());
    state["drive"] = driveJson(m_controls->drive());
    state["account"] = replay::written(m_header->account());
    state["services"] = m_services;
    state["tables"] = m_memory.json();
    state["credit"] = m_credit->table()->param().toStdString();
    return state;
}

SavedLook savedLook()
{
    const QByteArray bytes = stateBytes(StateFile::usualPath()).value_or(QByteArray());
    const Json look = objectIn(readState(bytes).state, "look");
    return {textIn(look, "theme"), numberIn(look, "scale", 1.0), textIn(look, "language")};
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    m_keeper->store();
    QMainWindow::closeEvent(event);
}

} // namespace workbench
