#include "workbench/MainWindow.h"

#include "workbench/EventPanel.h"
#include "workbench/Language.h"
#include "workbench/LanguageTexts.h"
#include "workbench/LookForm.h"
#include "workbench/OrderHeader.h"
#include "workbench/RecorderPanel.h"
#include "workbench/TableBench.h"
#include "workbench/TicketPanel.h"
#include "workbench/Vocabulary.h"

#include "reference/toolkit/Resources.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QDockWidget>
#include <QMenuBar>
#include <QMessageBox>

namespace workbench {

namespace {

constexpr double kScaleStep = 0.25;

} // namespace

QMenu* MainWindow::addMenu(const char* title)
{
    QMenu* menu = menuBar()->addMenu(QString());
    m_texts->keep([menu, title] { menu->setTitle(translated(title)); });
    return menu;
}

QAction* MainWindow::addAction(QMenu* menu, const char* title, const QKeySequence& keys)
{
    QAction* action = menu->addAction(QString());
    action->setShortcut(keys);
    m_texts->keep([action, title] { action->setText(translated(title)); });
    return action;
}

void MainWindow::createMenus()
{
    createTableMenu();
    createViewMenu();
    createEventMenu();
    createRecordingMenu();
    createHelpMenu();
    tickChoices();
}

void MainWindow::createTableMenu()
{
    QMenu* menu = addMenu(QT_TRANSLATE_NOOP("workbench", "&Table"));
    QAction* rebuild = addAction(menu, QT_TRANSLATE_NOOP("workbench", "&Rebuild"), Qt::Key_F5);
    QAction* focus = addAction(menu, QT_TRANSLATE_NOOP("workbench", "Go to the order &panel"), Qt::Key_F6);
    menu->addSeparator();
    createPanelActions(menu);
    menu->addSeparator();
    QAction* quit = addAction(menu, QT_TRANSLATE_NOOP("workbench", "&Quit"), QKeySequence(int(Qt::CTRL) + Qt::Key_Q));
    connect(rebuild, &QAction::triggered, this, &MainWindow::rebuildTable);
    connect(focus, &QAction::triggered, m_bench, &TableBench::focusTable);
    connect(quit, &QAction::triggered, this, &QWidget::close);
}

void MainWindow::createPanelActions(QMenu* menu)
{
    QAction* instrument = addAction(menu, QT_TRANSLATE_NOOP("workbench", "Choose an instrument"),
                                    QKeySequence(int(Qt::CTRL) + Qt::Key_I));
    QAction* why = addAction(menu, QT_TRANSLATE_NOOP("workbench", "Why is this cell shown?"),
                             QKeySequence(int(Qt::SHIFT) + Qt::Key_F1));
    QAction* compare = addAction(menu, QT_TRANSLATE_NOOP("workbench", "Compare with another broker"),
                                 QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_D));
    connect(instrument, &QAction::triggered, m_header, &OrderHeader::focusCode);
    connect(why, &QAction::triggered, this, &MainWindow::explainCell);
    connect(compare, &QAction::triggered, this, &MainWindow::compareWithPanel);
    menu->addSeparator();
    for (QAction* action : m_ticket->actions())
        menu->addAction(action);
}

void MainWindow::createViewMenu()
{
    QMenu* menu = addMenu(QT_TRANSLATE_NOOP("workbench", "&View"));
    for (const DockRow& row : dockRows()) {
        QDockWidget* part = dock(row.name);
        QAction* go = addAction(menu, row.title, QKeySequence(QLatin1String(row.keys)));
        connect(go, &QAction::triggered, part, [part] { goTo(part); });
    }
    menu->addSeparator();
    createPartsMenu(menu);
    menu->addSeparator();
    createThemeMenu(menu);
    createScaleActions(menu);
    createLanguageMenu(menu);
}

void MainWindow::createPartsMenu(QMenu* view)
{
    QMenu* menu = view->addMenu(QString());
    m_texts->keep([menu] { menu->setTitle(translated(QT_TRANSLATE_NOOP("workbench", "Show &parts"))); });
    for (const QDockWidget* part : qAsConst(m_docks))
        menu->addAction(part->toggleViewAction());
    QAction* reset = addAction(view, QT_TRANSLATE_NOOP("workbench", "Parts back to their places"),
                               QKeySequence(Qt::SHIFT + Qt::Key_F11));
    m_alone = addAction(view, QT_TRANSLATE_NOOP("workbench", "Order panel alone"), Qt::Key_F11);
    m_alone->setCheckable(true);
    connect(reset, &QAction::triggered, this, &MainWindow::arrangeParts);
    connect(m_alone, &QAction::toggled, this, &MainWindow::showPanelAlone);
}

void MainWindow::createThemeMenu(QMenu* view)
{
    QMenu* menu = view->addMenu(QString());
    m_texts->keep([menu] { menu->setTitle(translated(QT_TRANSLATE_NOOP("workbench", "&Theme"))); });
    auto* group = new QActionGroup(menu);
    const QStringList themes = WQ::resources::themes();
    for (const QString& theme : themes) {
        QAction* action = menu->addAction(QString());
        action->setCheckable(true);
        action->setActionGroup(group);
        action->setProperty("theme", theme);
        m_texts->keep([action, theme] { action->setText(themeName(theme)); });
        connect(action, &QAction::triggered, this, [this, theme] { chooseTheme(theme); });
        m_choiceActions << action;
    }
    QAction* next = addAction(view, QT_TRANSLATE_NOOP("workbench", "Next theme"), Qt::Key_F8);
    connect(next, &QAction::triggered, this, &MainWindow::chooseNextTheme);
}

void MainWindow::createScaleActions(QMenu* view)
{
    QAction* larger = addAction(view, QT_TRANSLATE_NOOP("workbench", "&Larger"), QKeySequence::ZoomIn);
    QAction* smaller = addAction(view, QT_TRANSLATE_NOOP("workbench", "&Smaller"), QKeySequence::ZoomOut);
    QAction* normal =
        addAction(view, QT_TRANSLATE_NOOP("workbench", "&Normal size"), QKeySequence(int(Qt::CTRL) + Qt::Key_0));
    connect(larger, &QAction::triggered, this, [this] { chooseScale(WQ::resources::scale() + kScaleStep); });
    connect(smaller, &QAction::triggered, this, [this] { chooseScale(WQ::resources::scale() - kScaleStep); });
    connect(normal, &QAction::triggered, this, [this] { chooseScale(1.0); });
}

void MainWindow::createLanguageMenu(QMenu* view)
{
    QMenu* menu = view->addMenu(QString());
    m_texts->keep([menu] { menu->setTitle(translated(QT_TRANSLATE_NOOP("workbench", "Lan&guage"))); });
    auto* group = new QActionGroup(menu);
    const QStringList all = languages();
    for (const QString& name : all) {
        QAction* action = menu->addAction(languageName(name));
        action->setCheckable(true);
        action->setActionGroup(group);
        action->setProperty("language", name);
        connect(action, &QAction::triggered, this, [this, name] { chooseLanguage(name); });
        m_choiceActions << action;
    }
    QAction* next = addAction(view, QT_TRANSLATE_NOOP("workbench", "Next language"), Qt::Key_F7);
    connect(next, &QAction::triggered, this, &MainWindow::chooseNextLanguage);
}

void MainWindow::createEventMenu()
{
    QMenu* menu = addMenu(QT_TRANSLATE_NOOP("workbench", "&Events"));
    QAction* filter = addAction(menu, QT_TRANSLATE_NOOP("workbench", "&Filter"), QKeySequence::Find);
    QAction* copy = addAction(menu, QT_TRANSLATE_NOOP("workbench", "&Copy"),
                              QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_C));
    QAction* clear = addAction(menu, QT_TRANSLATE_NOOP("workbench", "C&lear"), QKeySequence(int(Qt::CTRL) + Qt::Key_L));
    connect(filter, &QAction::triggered, m_events, &EventPanel::focusFilter);
    connect(copy, &QAction::triggered, m_events, &EventPanel::copy);
    connect(clear, &QAction::triggered, m_events, &EventPanel::clear);
}

void MainWindow::createRecordingMenu()
{
    QMenu* menu = addMenu(QT_TRANSLATE_NOOP("workbench", "Recordin&g"));
    for (QAction* action : m_recorderPanel->actions())
        menu->addAction(action);
}

void MainWindow::createHelpMenu()
{
    QMenu* menu = addMenu(QT_TRANSLATE_NOOP("workbench", "&Help"));
    QAction* finder = addAction(menu, QT_TRANSLATE_NOOP("workbench", "Find a command or a cell…"),
                                QKeySequence(int(Qt::CTRL) + Qt::Key_G));
    connect(finder, &QAction::triggered, this, &MainWindow::find);
    QAction* about = addAction(menu, QT_TRANSLATE_NOOP("workbench", "&About"), Qt::Key_F1);
    connect(about, &QAction::triggered, this, [this] {
        const QString version = QCoreApplication::applicationVersion();
        QMessageBox::about(
            this, windowTitle(),
            translated(
                QT_TRANSLATE_NOOP("workbench",
                                  "Order parameter workbench %1\n\nA host for every table and dialog of the library."))
                .arg(version));
    });
}

void MainWindow::tickChoices()
{
    m_look->refresh();
    for (QAction* action : qAsConst(m_choiceActions)) {
        const QString theme = action->property("theme").toString();
        const QString name = action->property("language").toString();
        action->setChecked(theme.isEmpty() ? name == language() : theme == WQ::resources::theme());
    }
}

} // namespace workbench
