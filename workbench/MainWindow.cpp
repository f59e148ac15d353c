#include "workbench/MainWindow.h"

#include "workbench/Appearance.h"
#include "workbench/CreditPanel.h"
#include "workbench/EventPanel.h"
#include "workbench/HostCalls.h"
#include "workbench/Language.h"
#include "workbench/LanguageTexts.h"
#include "workbench/LookForm.h"
#include "workbench/OrderControls.h"
#include "workbench/QuoteLadder.h"
#include "workbench/QuoteModel.h"
#include "workbench/Recorder.h"
#include "workbench/RecorderPanel.h"
#include "workbench/SetupForm.h"
#include "workbench/TableBench.h"
#include "workbench/TaskPanel.h"
#include "workbench/TicketPanel.h"
#include "workbench/Vocabulary.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/Resources.h"

#include <TC/DataCenter.h>
#include <WQ/Formatting.h>
#include <ttservice/CAccountInfoV2.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QSet>
#include <QStatusBar>
#include <QVBoxLayout>

namespace workbench {

namespace {

constexpr QSize kFirstSize(1180, 760);

/// The IDs of the credit accounts: the table knows none, its host fills the combo.
QStringList creditAccounts()
{
    QStringList ids;
    for (const std::string& key : reference::accountKeys()) {
        const auto account = TC::DataCenter::instance()->getAccountInfo(key);
        if (account && account->brokerType == ttservice::BROKER_TYPE_CREDIT)
            ids << WQ::sToQs(account->accountId);
    }
    return ids;
}

} // namespace

MainWindow::MainWindow(HostData hostData, QWidget* parent)
    : QMainWindow(parent)
    , m_texts(new LanguageTexts(this))
    , m_recorder(new Recorder(this))
    , m_bench(new TableBench)
    , m_form(new SetupForm)
    , m_look(new LookForm)
    , m_controls(new OrderControls)
    , m_events(new EventPanel)
    , m_tasks(new TaskPanel)
    , m_credit(new CreditPanel(m_recorder))
    , m_ladder(new QuoteLadder)
    , m_ticket(new TicketPanel)
    , m_recorderPanel(new RecorderPanel(*m_recorder))
{
    m_bench->setRecorder(m_recorder);
    m_tasks->setRecorder(m_recorder);
    setObjectName(QStringLiteral("workbench"));
    setDockNestingEnabled(true);
    createCentre();
    createDocks();
    createMenus();
    for (PanelHost* host :
         {static_cast<PanelHost*>(m_bench), static_cast<PanelHost*>(m_tasks), static_cast<PanelHost*>(m_credit)})
        listenTo(host);
    m_texts->keep([this] { setWindowTitle(translated(QT_TRANSLATE_NOOP("workbench", "Order parameter workbench"))); });

    m_tasks->setTasks(std::move(hostData.tasks));
    m_credit->setAccounts(creditAccounts());
    m_form->setModules(reference::modules().values());
    rebuildTable();
    m_bench->focusTable();
    resize(kFirstSize * WQ::resources::scale());
    showProblems(hostData.problems);
}

MainWindow::~MainWindow() = default;

void MainWindow::createCentre()
{
    auto* centre = new QWidget;
    auto* layout = new QHBoxLayout(centre);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addStretch(1);
    layout->addWidget(m_bench);
    layout->addStretch(1);
    setCentralWidget(centre);
    connect(m_form, &SetupForm::setupChanged, this, &MainWindow::rebuildTable);
    connect(m_form, &SetupForm::modulesChanged, this, [this](const QStringList& modules) {
        reference::setModules(QSet<QString>(modules.begin(), modules.end()));
        rebuildTable();
    });
    connect(m_bench, &TableBench::rebuilt, m_controls, &OrderControls::setTable);
    connectLadder();
}

QWidget* MainWindow::createSetup()
{
    auto* both = new QWidget;
    auto* layout = new QVBoxLayout(both);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_look);
    layout->addWidget(m_form, 1);
    connect(m_look, &LookForm::themeChosen, this, &MainWindow::chooseTheme);
    connect(m_look, &LookForm::scaleChosen, this, &MainWindow::chooseScale);
    connect(m_look, &LookForm::languageChosen, this, &MainWindow::chooseLanguage);
    return both;
}

void MainWindow::listenTo(PanelHost* host)
{
    connect(host, &PanelHost::eventArrived, this, &MainWindow::onEvent);
}

void MainWindow::onEvent(int event, int a, int b, const QString& text, void* payload)
{
    m_events->add(event, a, b, text, payload);
    readTable();
}

void MainWindow::connectLadder()
{
    connect(m_bench, &TableBench::rebuilt, this, [this](TC::COrderParamBaseTable* table) {
        m_ticket->setTable(table, m_bench->setup().traderType);
        readTable();
    });
    connect(m_ladder, &QuoteLadder::priceTypeChosen, this, [this](int priceType) {
        if (m_bench->table())
            hostCall(*m_bench->table(), calls::kSelectPrice, ttservice::EPriceType(priceType));
        readTable();
    });
    connect(m_ladder, &QuoteLadder::priceChosen, this, [this](double price) {
        if (m_bench->table())
            hostCall(*m_bench->table(), calls::kSetFixedPrice, price);
        readTable();
    });
    connect(m_controls, &OrderControls::tableDriven, this, &MainWindow::readTable);
}

/// Reads what a host reads of its table; from inside the table's events as well, since nothing of it sends any.
void MainWindow::readTable()
{
    m_controls->refresh();
    m_ticket->refresh();
    m_ladder->quotes()->setChosen(m_bench->table() ? int(m_bench->table()->priceType()) : -1);
}

void MainWindow::rebuildTable()
{
    m_bench->rebuild(m_form->setup(), m_controls->drive());
}

void MainWindow::chooseTheme(const QString& name)
{
    setTheme(name);
    tickChoices();
}

void MainWindow::chooseScale(double scale)
{
    setScale(scale);
    m_bench->scaleTable();
    m_credit->scaleTable();
    tickChoices();
}

void MainWindow::chooseLanguage(const QString& language)
{
    setLanguage(language);
    tickChoices();
}

void MainWindow::showProblems(const QStringList& problems)
{
    if (!problems.isEmpty())
        statusBar()->showMessage(problems.join(QStringLiteral("; ")));
}

TableBench* MainWindow::bench() const
{
    return m_bench;
}

EventPanel* MainWindow::events() const
{
    return m_events;
}

SetupForm* MainWindow::form() const
{
    return m_form;
}

CreditPanel* MainWindow::credit() const
{
    return m_credit;
}

QuoteLadder* MainWindow::ladder() const
{
    return m_ladder;
}

TicketPanel* MainWindow::ticket() const
{
    return m_ticket;
}

Recorder* MainWindow::recorder() const
{
    return m_recorder;
}

RecorderPanel* MainWindow::recorderPanel() const
{
    return m_recorderPanel;
}

} // namespace workbench
