#include "workbench/MainWindow.h"

#include "workbench/Appearance.h"
#include "workbench/ChangeText.h"
#include "workbench/CreditPanel.h"
#include "workbench/EventPanel.h"
#include "workbench/HostCalls.h"
#include "workbench/HostForm.h"
#include "workbench/Language.h"
#include "workbench/LanguageTexts.h"
#include "workbench/LookForm.h"
#include "workbench/OrderControls.h"
#include "workbench/OrderHeader.h"
#include "workbench/QuoteLadder.h"
#include "workbench/QuoteModel.h"
#include "workbench/QuotePanel.h"
#include "workbench/Recorder.h"
#include "workbench/RecorderPanel.h"
#include "workbench/SetupForm.h"
#include "workbench/StateKeeper.h"
#include "workbench/TableBench.h"
#include "workbench/TaskPanel.h"
#include "workbench/TicketPanel.h"
#include "workbench/Vocabulary.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/Resources.h"
#include "replay/State.h"

#include <ttservice/Enumerations.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QStatusBar>
#include <QVBoxLayout>

namespace workbench {

namespace {

constexpr QSize kFirstSize(1180, 760);

/// The IDs of the credit accounts: the table knows none, its host fills the combo.
QStringList creditAccounts()
{
    QStringList ids;
    for (const HostAccount& account : hostAccounts())
        if (account.brokerType == ttservice::BROKER_TYPE_CREDIT)
            ids << account.id;
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
    , m_host(new HostForm)
    , m_controls(new OrderControls)
    , m_header(new OrderHeader)
    , m_changes(new QLabel)
    , m_events(new EventPanel)
    , m_tasks(new TaskPanel)
    , m_credit(new CreditPanel(m_recorder))
    , m_quotes(new QuotePanel)
    , m_ticket(new TicketPanel)
    , m_recorderPanel(new RecorderPanel(*m_recorder))
    , m_keeper(new StateKeeper(
          StateFile::usualPath(), [this] { return collectState(); }, this))
{
    m_bench->setRecorder(m_recorder);
    m_tasks->setRecorder(m_recorder);
    setObjectName(QStringLiteral("workbench"));
    setDockNestingEnabled(true);
    createCentre();
    createDocks();
    createMenus();
    connectHost();
    for (PanelHost* host :
         {static_cast<PanelHost*>(m_bench), static_cast<PanelHost*>(m_tasks), static_cast<PanelHost*>(m_credit)})
        listenTo(host);
    m_changes->setObjectName(QStringLiteral("changes"));
    m_changes->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(m_changes, 1);
    m_texts->keep([this] { setWindowTitle(translated(QT_TRANSLATE_NOOP("workbench", "Order parameter workbench"))); });

    m_header->setInstruments(instrumentsOf(hostData.tasks));
    m_header->setAccounts(hostAccounts());
    m_tasks->setTasks(std::move(hostData.tasks));
    m_credit->setAccounts(creditAccounts());
    m_form->setModules(reference::modules().values());
    rebuildTable();
    m_bench->focusTable();
    resize(kFirstSize * WQ::resources::scale());
    for (const QString& problem : qAsConst(hostData.problems))
        showProblem(problem);
}

MainWindow::~MainWindow()
{
    reference::setConfigurationListener({});
}

void MainWindow::createCentre()
{
    auto* centre = new QWidget;
    auto* layout = new QHBoxLayout(centre);
    layout->setContentsMargins(16, 12, 16, 12);
    auto* panel = new QVBoxLayout;
    panel->setSpacing(0);
    panel->addWidget(m_header);
    panel->addWidget(m_bench, 1);
    layout->addStretch(1);
    layout->addLayout(panel);
    layout->addStretch(1);
    setCentralWidget(centre);
    connectHeader();
    connect(m_form, &SetupForm::setupChanged, this, &MainWindow::showTable);
    connect(m_bench, &TableBench::rebuilt, m_controls, &OrderControls::setTable);
    connectLadder();
}

QWidget* MainWindow::createSetup()
{
    auto* both = new QWidget;
    auto* layout = new QVBoxLayout(both);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_form);
    layout->addWidget(m_host);
    layout->addWidget(m_look);
    layout->addStretch(1);
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
    connect(ladder(), &QuoteLadder::priceTypeChosen, this, [this](int priceType) {
        if (m_bench->table())
            hostCall(*m_bench->table(), calls::kSelectPrice, ttservice::EPriceType(priceType));
        readTable();
    });
    connect(ladder(), &QuoteLadder::priceChosen, this, [this](double price) {
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
    const QString code = m_controls->drive().code;
    if (m_quotes->instrument().code != code) {
        m_header->showInstrument(code);
        m_quotes->showInstrument(m_header->instrument());
    }
    m_header->showBroker(m_bench->setup().brokerType);
    if (m_bench->table())
        m_header->showOperation(m_bench->table()->getOperationType());
    ladder()->quotes()->setChosen(m_bench->table() ? int(m_bench->table()->priceType()) : -1);
    m_keeper->commit();
}

void MainWindow::rebuildTable()
{
    m_memory.forget(m_form->setup());
    m_bench->rebuild(m_form->setup(), m_controls->drive());
    m_keeper->commit();
}

/// Makes the order panel of the form as it was left, and says what that has made of it.
void MainWindow::showTable()
{
    const replay::Json before = m_bench->table() ? replay::stateOf(m_bench->table()) : replay::Json();
    if (m_isKept && m_bench->table())
        m_memory.remember(m_bench->setup(), *m_bench->table());
    const TableSetup setup = m_form->setup();
    m_bench->rebuild(setup, m_controls->drive());
    if (m_isKept && m_bench->table())
        m_memory.recall(setup, *m_bench->table(), m_controls->drive().enabled);
    readTable();
    if (m_bench->table() && before.is_object())
        sayChanges(changeText(compareTables(before, replay::stateOf(m_bench->table()))));
}

/// It takes the place of a problem, which stays in the tooltip.
void MainWindow::sayChanges(const QString& text)
{
    statusBar()->clearMessage();
    m_changes->setText(text);
    m_changes->setToolTip(text);
}

void MainWindow::chooseTheme(const QString& name)
{
    setTheme(name);
    tickChoices();
    m_keeper->commit();
}

void MainWindow::chooseScale(double scale)
{
    setScale(scale);
    m_bench->scaleTable();
    m_credit->scaleTable();
    scaleTitles();
    tickChoices();
    m_keeper->commit();
}

void MainWindow::chooseLanguage(const QString& language)
{
    setLanguage(language);
    tickChoices();
    m_keeper->commit();
}

void MainWindow::showProblem(const QString& problem)
{
    m_problems << problem;
    statusBar()->showMessage(m_problems.join(QStringLiteral("; ")));
    statusBar()->setToolTip(m_problems.join(QLatin1Char('\n')));
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
    return m_quotes->ladder();
}

QuotePanel* MainWindow::quotePanel() const
{
    return m_quotes;
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
