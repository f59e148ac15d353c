#include "workbench/MainWindow.h"

#include "workbench/ComparePanel.h"
#include "workbench/CreditPanel.h"
#include "workbench/EventPanel.h"
#include "workbench/FormScroll.h"
#include "workbench/LanguageTexts.h"
#include "workbench/OrderControls.h"
#include "workbench/QuotePanel.h"
#include "workbench/RecorderPanel.h"
#include "workbench/TableBench.h"
#include "workbench/TaskPanel.h"
#include "workbench/TicketPanel.h"
#include "workbench/Vocabulary.h"
#include "workbench/WhyPanel.h"

#include "reference/toolkit/Resources.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QDockWidget>
#include <QLayout>

namespace workbench {

namespace {

constexpr int kSetupWidth = 280;
constexpr int kControlsWidth = 380;
constexpr int kEventsHeight = 240;
constexpr int kQuoteHeight = 300;

QWidget* scrolled(QWidget* form)
{
    return new FormScroll(form);
}

/// The first part of @p content that takes the keyboard by Tab, in the order of Tab.
QWidget* firstField(QWidget* content)
{
    QWidget* step = content;
    do {
        if (content->isAncestorOf(step) && step->isEnabled() && (step->focusPolicy() & Qt::TabFocus)
            && step->isVisibleTo(content))
            return step;
        step = step->nextInFocusChain();
    } while (step != content);
    return content;
}

/// Whether the part that @p widget belongs to is on the screen, and not under another one's tab.
bool isInFront(const QWidget& widget)
{
    for (const QWidget* at = &widget; at; at = at->parentWidget())
        if (qobject_cast<const QDockWidget*>(at))
            return !at->visibleRegion().isEmpty();
    return true;
}

} // namespace

/// Rows stand in the order of the View menu. A part lies beside those of its area, or under the tab of another one.
const std::vector<MainWindow::DockRow>& MainWindow::dockRows()
{
    constexpr auto kLeft = Qt::LeftDockWidgetArea;
    constexpr auto kRight = Qt::RightDockWidgetArea;
    constexpr auto kBottom = Qt::BottomDockWidgetArea;
    // clang-format off
    static const std::vector<DockRow> kRows = {
        {"setupDock",    QT_TRANSLATE_NOOP("workbench", "Modules and host"), "Ctrl+1", kLeft,   "",             [](MainWindow& w) { return scrolled(w.createSetup()); }},
        {"quoteDock",    QT_TRANSLATE_NOOP("workbench", "Quote"),      "Ctrl+2", kLeft,   "",             [](MainWindow& w) { return static_cast<QWidget*>(w.m_quotes); }},
        {"controlsDock", QT_TRANSLATE_NOOP("workbench", "Host calls"), "Ctrl+3", kRight,  "",             [](MainWindow& w) { return scrolled(w.m_controls); }},
        {"tasksDock",    QT_TRANSLATE_NOOP("workbench", "Tasks"),      "Ctrl+4", kRight,  "controlsDock", [](MainWindow& w) { return static_cast<QWidget*>(w.m_tasks); }},
        {"creditDock",   QT_TRANSLATE_NOOP("workbench", "Credit"),     "Ctrl+5", kRight,  "controlsDock", [](MainWindow& w) { return scrolled(w.m_credit); }},
        {"ticketDock",   QT_TRANSLATE_NOOP("workbench", "Ticket"),     "Ctrl+6", kRight,  "controlsDock", [](MainWindow& w) { return static_cast<QWidget*>(w.m_ticket); }},
        {"eventsDock",   QT_TRANSLATE_NOOP("workbench", "Events"),     "Ctrl+7", kBottom, "",             [](MainWindow& w) { return static_cast<QWidget*>(w.m_events); }},
        {"recorderDock", QT_TRANSLATE_NOOP("workbench", "Recorder"),   "Ctrl+8", kBottom, "eventsDock",   [](MainWindow& w) { return static_cast<QWidget*>(w.m_recorderPanel); }},
        {"whyDock",      QT_TRANSLATE_NOOP("workbench", "Why?"),       "Ctrl+9", kBottom, "eventsDock",   [](MainWindow& w) { return w.createWhy(); }},
        {"compareDock",  QT_TRANSLATE_NOOP("workbench", "Compare"),    "Ctrl+D", kBottom, "eventsDock",   [](MainWindow& w) { return w.createCompare(); }},
    };
    // clang-format on
    return kRows;
}

/// What a host calls is not always followed by an event.
QWidget* MainWindow::createWhy()
{
    m_why = new WhyPanel(*m_bench);
    connect(m_controls, &OrderControls::tableDriven, m_why, &WhyPanel::refresh);
    return m_why;
}

QWidget* MainWindow::createCompare()
{
    return m_compare = new ComparePanel(*m_bench);
}

void MainWindow::createDocks()
{
    for (const DockRow& row : dockRows())
        addDock(row);
    arrangeParts();
}

/// Each part in its place, as in the first run.
void MainWindow::arrangeParts()
{
    for (const DockRow& row : dockRows()) {
        QDockWidget* const part = dock(row.name);
        part->setFloating(false);
        addDockWidget(row.area, part);
        if (QDockWidget* neighbour = dock(row.tabbedWith))
            tabifyDockWidget(neighbour, part);
        part->show();
    }
    m_partsBefore.clear();
    if (m_alone)
        m_alone->setChecked(false);
    for (const char* name : {"eventsDock", "controlsDock"})
        dock(name)->raise();
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    const double scale = WQ::resources::scale();
    resizeDocks({dock("setupDock"), dock("controlsDock")},
                {qRound(kSetupWidth * scale), qRound(kControlsWidth * scale)}, Qt::Horizontal);
    resizeDocks({dock("eventsDock")}, {qRound(kEventsHeight * scale)}, Qt::Vertical);
    resizeDocks({dock("quoteDock")}, {qRound(kQuoteHeight * scale)}, Qt::Vertical);
}

/// Qt measures the title of a part and its buttons once.
void MainWindow::scaleTitles()
{
    for (QDockWidget* part : qAsConst(m_docks)) {
        for (auto* button : part->findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)) {
            QEvent restyled(QEvent::StyleChange);
            QCoreApplication::sendEvent(button, &restyled);
        }
        part->layout()->invalidate();
        part->layout()->activate();
    }
}

void MainWindow::addDock(const DockRow& row)
{
    auto* dock = new QDockWidget(this);
    dock->setObjectName(QLatin1String(row.name));
    dock->setWidget(row.content(*this));
    m_docks << dock;
    m_texts->keep([dock, title = row.title] { dock->setWindowTitle(translated(title)); });
}

QDockWidget* MainWindow::dock(const char* name) const
{
    return findChild<QDockWidget*>(QLatin1String(name), Qt::FindDirectChildrenOnly);
}

void MainWindow::goTo(QDockWidget* dock)
{
    dock->show();
    dock->raise();
    dock->activateWindow();
    QWidget* const content = dock->widget();
    QWidget* const first = content->focusProxy() ? content->focusProxy() : firstField(content);
    first->setFocus(Qt::ShortcutFocusReason);
}

bool MainWindow::focusNextPrevChild(bool next)
{
    const QWidget* hidden = nullptr;
    while (QMainWindow::focusNextPrevChild(next)) {
        const QWidget* const now = focusWidget();
        if (!now || now == hidden || isInFront(*now))
            return true;
        hidden = hidden ? hidden : now;
    }
    return false;
}

} // namespace workbench
