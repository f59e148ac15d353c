#include "UsabilityWays.h"

#include "WindowPerson.h"

#include "workbench/CompareModel.h"
#include "workbench/ComparePanel.h"
#include "workbench/HostData.h"
#include "workbench/HostForm.h"
#include "workbench/Language.h"
#include "workbench/MainWindow.h"
#include "workbench/NumberCombo.h"
#include "workbench/OrderHeader.h"
#include "workbench/Playback.h"
#include "workbench/RecorderPanel.h"
#include "workbench/SetupForm.h"
#include "workbench/Snapshot.h"
#include "workbench/TableBench.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/Resources.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>
#include <TC/CUserConfig.h>
#include <WQ/CMultiParamsTable.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QStatusBar>
#include <QTableView>
#include <QtTest>

namespace person {

using namespace workbench;

namespace {

int partsShown(Scene& s)
{
    int shown = 0;
    for (const auto* dock : s.window().findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
        shown += !dock->isHidden();
    return shown;
}

bool isChosen(Scene& s, const QString& code)
{
    const Instrument instrument = s.in<OrderHeader>().instrument();
    return instrument.code == code && !instrument.name.isEmpty() && s.cells().hasFocus();
}

void tickModule(Scene& s, int row)
{
    auto& list = s.in<QListWidget>("setupDock");
    const QRect item = list.visualItemRect(list.item(row));
    s.hands().click(*list.viewport(), QPoint(item.left() + 9, item.center().y()));
}

void moveParts(Scene& s)
{
    qobject_cast<QDockWidget*>(&s.part("quoteDock"))->setFloating(true);
    s.window().addDockWidget(Qt::RightDockWidgetArea, qobject_cast<QDockWidget*>(&s.part("eventsDock")));
    s.part("tasksDock").hide();
    settle();
}

} // namespace

Scene::Scene()
{
    open();
    m_hands->clickMode(601);
    m_hands->clickButton(part("controlsDock"), QStringLiteral("Expanded"));
    m_hands->press(Qt::Key_F6);
}

Scene::~Scene() = default;

void Scene::open()
{
    m_window.reset();
    m_window = person::open(loadHostData(QString()));
    m_window->loadState();
    m_window->recorderPanel()->playback()->setProgram(QStringLiteral(REPLAY_PROGRAM));
    m_window->resize(1180, 760);
    settle();
    if (m_hands)
        m_hands->sitDownAt(*m_window);
    else
        m_hands = std::make_unique<CountingHands>(*m_window);
}

void Scene::restart()
{
    open();
}

MainWindow& Scene::window() const
{
    return *m_window;
}

CountingHands& Scene::hands()
{
    return *m_hands;
}

TC::COrderParamBaseTable& Scene::table() const
{
    return *m_window->bench()->table();
}

WQ::CMultiParamsTable& Scene::cells() const
{
    return *table().getMultiParamsTable();
}

const QWidget& Scene::anywhere() const
{
    return *m_window;
}

QWidget& Scene::part(const char* name) const
{
    return *m_window->findChild<QWidget*>(QLatin1String(name));
}

const std::vector<Way>& waysOfTheWindow()
{
    // clang-format off
    static const std::vector<Way> kWays = {
        {"Choose an instrument by its code", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_I, Qt::ControlModifier); s.hands().type(QStringLiteral("105")); s.hands().press(Qt::Key_Return); },
         [](Scene& s) { return isChosen(s, QStringLiteral("900105")); }},
        {"Choose an instrument by its name", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_I, Qt::ControlModifier); s.hands().type(QStringLiteral("电力")); s.hands().press(Qt::Key_Return); },
         [](Scene& s) { return isChosen(s, QStringLiteral("900110")); }},
        {"Choose the account", nullptr,
         [](Scene& s) { auto& account = *s.in<OrderHeader>().findChild<QComboBox*>(); s.hands().clickArrow(account); s.hands().clickEntry(account.itemText(0)); },
         [](Scene& s) { return s.in<OrderHeader>().account() == QLatin1String("credit-1") && s.window().bench()->setup().brokerType == 3; }},
        {"Choose the operation", nullptr,
         [](Scene& s) { s.hands().clickArrow(s.in<QComboBox>("controlsDock", 1)); s.hands().clickEntry(QStringLiteral("18")); },
         [](Scene& s) { return int(s.table().getOperationType()) == 18; }},
        {"Choose the broker type", nullptr,
         [](Scene& s) { s.hands().clickArrow(s.in<NumberCombo>("setupDock", 1)); s.hands().clickEntry(QStringLiteral("6")); },
         [](Scene& s) { return s.window().bench()->setup().brokerType == 6; }},
        {"Switch a module", nullptr,
         [](Scene& s) { tickModule(s, 8); },
         [](Scene&) { return !reference::modules().contains(QStringLiteral("mdl_alg/mdl_alg_randvolume")); }},
        {"See what a module changes", nullptr,
         [](Scene& s) { tickModule(s, 0); },
         [](Scene& s) { return s.window().statusBar()->findChild<QLabel*>(QStringLiteral("changes"))->text() == QStringLiteral("1 difference · Table: mode buttons"); }},
        {"Choose the client mode", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_J, Qt::AltModifier); s.hands().type(QStringLiteral("101")); s.hands().press(Qt::Key_Return); },
         [](Scene&) { return TC::getUserConfig()->clientMode() == 101; }},
        {"Freeze the clock", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_Z, Qt::AltModifier); },
         [](Scene& s) { return s.in<HostForm>("setupDock").clock().has_value(); }},
        {"Compare two brokers", nullptr,
         [](Scene& s) { s.hands().clickTab(QStringLiteral("Compare")); },
         [](Scene& s) { return s.in<ComparePanel>("compareDock").isVisible() && s.in<QTableView>("compareDock").model()->rowCount() > 0; }},
        {"Compare the panel with another broker", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier); s.hands().type(QStringLiteral("6")); s.hands().press(Qt::Key_Return); },
         [](Scene& s) { return s.in<ComparePanel>("compareDock").model()->differences() > 0 && s.in<QTableView>("compareDock").model()->rowCount() == s.in<ComparePanel>("compareDock").model()->differences(); }},
        {"Change the theme", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_F8); },
         [](Scene&) { return WQ::resources::theme() == QLatin1String("high-contrast"); }},
        {"Change the language", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_F7); },
         [](Scene&) { return language() == QLatin1String("zh_CN"); }},
        {"Make everything larger", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_Plus, Qt::ControlModifier); },
         [](Scene&) { return WQ::resources::scale() == 1.25; }},
        {"Show the order panel alone", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_F11); },
         [](Scene& s) { return partsShown(s) == 0 && s.window().bench()->isVisible(); }},
        {"Get all parts back", [](Scene& s) { s.hands().press(Qt::Key_F11); },
         [](Scene& s) { s.hands().press(Qt::Key_F11); },
         [](Scene& s) { return partsShown(s) == 10; }},
        {"Put the parts back in their places", moveParts,
         [](Scene& s) { s.hands().press(Qt::Key_F11, Qt::ShiftModifier); },
         [](Scene& s) {
             auto* quote = qobject_cast<QDockWidget*>(&s.part("quoteDock"));
             auto* events = qobject_cast<QDockWidget*>(&s.part("eventsDock"));
             return partsShown(s) == 10 && !quote->isFloating() && s.window().dockWidgetArea(events) == Qt::BottomDockWidgetArea;
         }},
        {"Do what one has forgotten the keys of", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_G, Qt::ControlModifier); s.hands().type(QStringLiteral("alone")); s.hands().press(Qt::Key_Return); },
         [](Scene& s) { return partsShown(s) == 0; }},
        {"Go to a cell", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_G, Qt::ControlModifier); s.hands().type(QStringLiteral("0x200")); s.hands().press(Qt::Key_Return); },
         [](Scene& s) { return s.cells().hasFocus() && s.cells().currentIndex().siblingAtColumn(0).data().toString() == QStringLiteral("单笔最小量"); }},
        {"Go to a part", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_8, Qt::ControlModifier); },
         [](Scene& s) { return s.part("recorderDock").isAncestorOf(QApplication::focusWidget()); }},
        {"Close a part", nullptr,
         [](Scene& s) { s.hands().clickClose(QStringLiteral("Quote")); },
         [](Scene& s) { return s.part("quoteDock").isHidden(); }},
        {"Go back to the order panel", [](Scene& s) { s.hands().press(Qt::Key_8, Qt::ControlModifier); },
         [](Scene& s) { s.hands().press(Qt::Key_F6); },
         [](Scene& s) { return s.cells().hasFocus(); }},
        {"Make the panel as constructed", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_F5); },
         [](Scene& s) { return int(s.table().orderType()) == 0; }},
        {"Go on after a restart", [](Scene& s) { s.hands().clickValue(TC::OCF_MinSingleVolume); s.hands().type(QStringLiteral("700")); s.hands().press(Qt::Key_Return); },
         [](Scene& s) { s.hands().press(Qt::Key_Q, Qt::ControlModifier); s.remembered = s.window().isVisible() ? QString() : QStringLiteral("closed"); s.restart(); },
         [](Scene& s) { return s.remembered == QLatin1String("closed") && s.cells().itemInt(TC::OCF_MinSingleVolume) == 700; }},
    };
    // clang-format on
    return kWays;
}

} // namespace person
