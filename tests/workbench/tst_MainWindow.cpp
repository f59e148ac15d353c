#include "workbench/Appearance.h"
#include "workbench/CreditPanel.h"
#include "workbench/EventLogModel.h"
#include "workbench/EventPanel.h"
#include "workbench/HostCalls.h"
#include "workbench/HostForm.h"
#include "workbench/Language.h"
#include "workbench/MainWindow.h"
#include "workbench/NumberCombo.h"
#include "workbench/SetupForm.h"
#include "workbench/StateFile.h"
#include "workbench/TableBench.h"
#include "workbench/TaskPanel.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/Resources.h"

#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>

#include <TC/CTimeService.h>
#include <TC/CUserConfig.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QTableView>
#include <QtTest>

#include <algorithm>

using namespace workbench;

class tst_MainWindow : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void itStartsWithATable();
    void aChangeOfTheFormRebuildsTheTable();
    void aModuleIsSwitchedOnByItsTick();
    void eventsOfEveryPanelArrive();
    void themeScaleAndLanguageChangeAtOnce();
    void choicesAreBackAfterARestart();
    void partsStandWhereTheyWerePutAfterARestart();
    void aBrokenStateFileIsNoObstacle();
    void aCommitIsOnDiskInTheNextPass();
    void anotherTableAndBackIsAsItWasLeft();
    void clientModeAndClockAreLive();
    void everyPartIsReachedByTheKeysInTheMenu();
    void aTaskOpensItsDialog();
    void aDoubleClickOnATaskOpensItsDialog();
    void aBasketOpensOnTheSelectedTasks();
    void twoHundredTasksOpenedAndClosedLeaveNothing();
    void anAccountIsSelectedInTheCreditTable();
    void itIsUsableAtASmallSize();
    void noTwoPartsShareAnAccessKey_data();
    void noTwoPartsShareAnAccessKey();

private:
    QTemporaryDir m_settings;
};

void tst_MainWindow::initTestCase()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    dressApplication();
}

void tst_MainWindow::init()
{
    QFile::remove(m_settings.filePath(QStringLiteral("orderparam/workbench.json")));
    reference::resetServices();
    setTheme(QStringLiteral("dark"));
    setScale(1.0);
    setLanguage(QStringLiteral("en"));
}

void tst_MainWindow::itStartsWithATable()
{
    MainWindow window({});
    QVERIFY(window.bench()->table());
    QCOMPARE(int(window.bench()->table()->getId()), 5);
}

void tst_MainWindow::aChangeOfTheFormRebuildsTheTable()
{
    MainWindow window({});
    const QPointer<TC::COrderParamBaseTable> old = window.bench()->table();
    TableSetup setup;
    setup.identity = 31;
    setup.brokerType = 6;
    window.form()->setSetup(setup);
    QVERIFY(old);
    for (auto* check : window.form()->findChildren<QCheckBox*>())
        if (check->isEnabled())
            check->click();
    QVERIFY(!old);
    QCOMPARE(int(window.bench()->table()->getId()), 31);
}

void tst_MainWindow::aModuleIsSwitchedOnByItsTick()
{
    MainWindow window({});
    QVERIFY(reference::modules().isEmpty());
    const QPointer<TC::COrderParamBaseTable> old = window.bench()->table();
    window.form()->findChild<QListWidget*>()->item(0)->setCheckState(Qt::Checked);
    QCOMPARE(reference::modules(), QSet<QString>{QStringLiteral("mdl_order/mdl_order_algorithm3")});
    QVERIFY(!old);
}

void tst_MainWindow::eventsOfEveryPanelArrive()
{
    MainWindow window({});
    EventLogModel* log = window.events()->model();
    log->clear();
    hostCall(*window.bench()->table(), calls::kSetFixedPrice, 10.0);
    const int fromTable = log->rowCount();
    QVERIFY(fromTable > 0);
    window.credit()->setOperation(24);
    QVERIFY(log->rowCount() > fromTable);
}

void tst_MainWindow::themeScaleAndLanguageChangeAtOnce()
{
    MainWindow window({});
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const int width = window.bench()->table()->width();
    const QColor ground = qApp->palette().color(QPalette::Window);
    window.chooseScale(2.0);
    QCOMPARE(window.bench()->table()->width(), 2 * width);
    QCOMPARE(window.credit()->table()->width(), 2 * width);
    window.chooseTheme(QStringLiteral("light"));
    QVERIFY(qApp->palette().color(QPalette::Window) != ground);
    window.chooseLanguage(QStringLiteral("zh_CN"));
    QTRY_COMPARE(window.windowTitle(), QStringLiteral("下单参数工作台"));
    QCOMPARE(window.menuBar()->actions().first()->text(), QStringLiteral("表(&T)"));
}

void tst_MainWindow::choicesAreBackAfterARestart()
{
    TableSetup chosen;
    chosen.identity = 43;
    chosen.brokerType = 6;
    chosen.tableClass = TableClass::Code;
    {
        MainWindow window({});
        window.loadState();
        window.form()->setSetup(chosen);
        window.chooseTheme(QStringLiteral("light"));
        window.chooseScale(1.25);
        window.chooseLanguage(QStringLiteral("zh_CN"));
        window.close();
    }
    QCOMPARE(savedLook().theme, QStringLiteral("light"));
    QCOMPARE(savedLook().scale, 1.25);
    QCOMPARE(savedLook().language, QStringLiteral("zh_CN"));
    MainWindow window({});
    window.loadState();
    QCOMPARE(int(window.bench()->table()->getId()), 43);
    QCOMPARE(window.form()->setup().brokerType, 6);
    QVERIFY(window.form()->setup().tableClass == TableClass::Code);
}

void tst_MainWindow::partsStandWhereTheyWerePutAfterARestart()
{
    const auto part = [](const MainWindow& window, const char* name) {
        return window.findChild<QDockWidget*>(QLatin1String(name));
    };
    QSize size;
    {
        MainWindow window({});
        window.loadState();
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.resize(1240, 790);
        window.addDockWidget(Qt::RightDockWidgetArea, part(window, "quoteDock"));
        part(window, "ticketDock")->setFloating(true);
        part(window, "tasksDock")->close();
        QCoreApplication::processEvents();
        size = window.size();
        window.close();
    }
    MainWindow window({});
    QVERIFY(window.size() != size);
    window.loadState();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.size(), size);
    QCOMPARE(window.dockWidgetArea(part(window, "quoteDock")), Qt::RightDockWidgetArea);
    QCOMPARE(window.dockWidgetArea(part(window, "setupDock")), Qt::LeftDockWidgetArea);
    QVERIFY(part(window, "ticketDock")->isFloating());
    QVERIFY(part(window, "tasksDock")->isHidden());
    QVERIFY(!part(window, "eventsDock")->isHidden());
}

void tst_MainWindow::aBrokenStateFileIsNoObstacle()
{
    QVERIFY(QDir(m_settings.path()).mkpath(QStringLiteral("orderparam")));
    QFile file(m_settings.filePath(QStringLiteral("orderparam/workbench.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"version":1,"setup":{"class":99,"identity":"abc","brokerType":6},"tables":[1],"services":7,)"
               R"("window":{"layout":"xyz","geometry":3},"look":{"scale":"nan"},"drive":null,"credit":{}})");
    file.close();
    MainWindow window({});
    window.loadState();
    QCOMPARE(int(window.bench()->table()->getId()), 5);
    QCOMPARE(window.form()->setup().brokerType, 6);
}

void tst_MainWindow::aCommitIsOnDiskInTheNextPass()
{
    MainWindow window({});
    window.loadState();
    QCoreApplication::processEvents();
    window.chooseTheme(QStringLiteral("light"));
    QCoreApplication::processEvents();
    QCOMPARE(savedLook().theme, QStringLiteral("light"));
}

void tst_MainWindow::anotherTableAndBackIsAsItWasLeft()
{
    MainWindow window({});
    window.loadState();
    const auto cells = [&window] { return window.bench()->table()->getMultiParamsTable(); };
    const QString initial = cells()->itemText(TC::OCF_SuperPrice);
    hostCall(*window.bench()->table(), calls::kSetOrderType, ttservice::ORDER_TYPE_ALGORITHM);
    cells()->setItemText(TC::OCF_SuperPrice, QStringLiteral("0.12"));
    QVERIFY(initial != QStringLiteral("0.12"));
    auto* identity = window.form()->findChild<NumberCombo*>();
    identity->setEditText(QStringLiteral("31"));
    Q_EMIT identity->lineEdit()->editingFinished();
    QTRY_COMPARE(int(window.bench()->table()->getId()), 31);
    QCOMPARE(cells()->itemText(TC::OCF_SuperPrice), initial);
    identity->setEditText(QStringLiteral("5"));
    Q_EMIT identity->lineEdit()->editingFinished();
    QTRY_COMPARE(int(window.bench()->table()->getId()), 5);
    QCOMPARE(cells()->itemText(TC::OCF_SuperPrice), QStringLiteral("0.12"));
    QCOMPARE(int(window.bench()->table()->orderType()), 1);
    window.rebuildTable();
    QCOMPARE(cells()->itemText(TC::OCF_SuperPrice), initial);
}

void tst_MainWindow::clientModeAndClockAreLive()
{
    MainWindow window({});
    auto* host = window.findChild<HostForm*>();
    Q_EMIT host->clientModeChosen(101);
    QCOMPARE(TC::getUserConfig()->clientMode(), 101);
    host->findChild<QCheckBox*>()->click();
    auto* time = host->findChild<QDateTimeEdit*>();
    time->setDateTime(QDateTime::fromSecsSinceEpoch(1716168600));
    QCOMPARE(TC::getTimeService()->currentTime(), qint64(1716168600));
    host->findChild<QPushButton*>()->click();
    QCOMPARE(TC::getTimeService()->currentTime(), qint64(1716168660));
    host->findChild<QCheckBox*>()->click();
    QVERIFY(TC::getTimeService()->currentTime() > 1716168660);
}

void tst_MainWindow::everyPartIsReachedByTheKeysInTheMenu()
{
    MainWindow window({});
    window.resize(1024, 700);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QAction* view = window.menuBar()->actions().at(1);
    const auto docks = window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(docks.size() >= 8);
    for (QDockWidget* dock : docks) {
        const auto actions = view->menu()->actions();
        const auto go = std::find_if(actions.begin(), actions.end(), [dock](const QAction* action) {
            return action->text() == dock->windowTitle() && !action->shortcut().isEmpty();
        });
        QVERIFY2(go != actions.end(), qPrintable(dock->windowTitle()));
        dock->hide();
        window.bench()->focusTable();
        const int key = (*go)->shortcut()[0];
        QTest::keyClick(&window, Qt::Key(key & ~int(Qt::KeyboardModifierMask)),
                        Qt::KeyboardModifiers(key & int(Qt::KeyboardModifierMask)));
        QTRY_VERIFY2(dock->isVisible(), qPrintable(dock->windowTitle()));
        QVERIFY2(dock->isAncestorOf(QApplication::focusWidget()), qPrintable(dock->windowTitle()));
    }
}

void tst_MainWindow::aTaskOpensItsDialog()
{
    HostData data;
    data.tasks.resize(1);
    data.tasks.front().code = "600000";
    MainWindow window(data);
    auto* tasks = window.findChild<TaskPanel*>();
    tasks->openTask(0);
    const auto dialogs = tasks->findChildren<TC::CBaseTaskParamWidget*>();
    QCOMPARE(dialogs.size(), 1);
    const QPointer<QWidget> dialog = dialogs.first();
    QTest::keyClick(dialog.data(), Qt::Key_Escape);
    QTRY_VERIFY(!dialog);
    tasks->openTask(99);
    QVERIFY(tasks->findChildren<TC::CBaseTaskParamWidget*>().isEmpty());
}

void tst_MainWindow::aDoubleClickOnATaskOpensItsDialog()
{
    HostData data;
    data.tasks.resize(2);
    MainWindow window(data);
    window.show();
    auto* tasks = window.findChild<TaskPanel*>();
    auto* view = tasks->findChild<QTableView*>();
    tasks->parentWidget()->raise();
    QTRY_VERIFY(view->isVisible());
    const QPoint place = view->visualRect(view->model()->index(1, 1)).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QVERIFY(tasks->findChildren<TC::CBaseTaskParamWidget*>().isEmpty());
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(tasks->findChildren<TC::CBaseTaskParamWidget*>().size(), 1);
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(tasks->findChildren<TC::CBaseTaskParamWidget*>().size(), 2);
}

void tst_MainWindow::aBasketOpensOnTheSelectedTasks()
{
    HostData data;
    data.tasks.resize(3);
    MainWindow window(data);
    auto* tasks = window.findChild<TaskPanel*>();
    tasks->openBasket();
    const auto baskets = tasks->findChildren<TC::CHpfBasketTaskParamWidget*>();
    QCOMPARE(baskets.size(), 1);
    const QPointer<QWidget> basket = baskets.first();
    basket->close();
    QTRY_VERIFY(!basket);
}

void tst_MainWindow::twoHundredTasksOpenedAndClosedLeaveNothing()
{
    HostData data;
    data.tasks.resize(1);
    data.tasks.front().account.reset(new ttservice::CAccountInfoV2{ttservice::BROKER_TYPE_STOCK, "1", "n"});
    data.tasks.front().orderType = ttservice::ORDER_TYPE_ALGORITHM;
    MainWindow window(data);
    auto* tasks = window.findChild<TaskPanel*>();
    const int before = QApplication::allWidgets().size();
    for (int i = 0; i < 200; ++i) {
        tasks->openTask(0);
        const auto dialogs = tasks->findChildren<TC::CBaseTaskParamWidget*>();
        QCOMPARE(dialogs.size(), 1);
        dialogs.first()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QTRY_COMPARE(QApplication::allWidgets().size(), before);
}

void tst_MainWindow::anAccountIsSelectedInTheCreditTable()
{
    reference::addAccount("a", {ttservice::BROKER_TYPE_CREDIT, "88001234", "n"});
    reference::addAccount("b", {ttservice::BROKER_TYPE_CREDIT, "88005678", "n"});
    MainWindow window({});
    auto* cells = window.credit()->table()->findChild<WQ::CMultiParamsTable*>();
    cells->setComboData(726, QStringLiteral("88005678"));
    const auto buttons = window.credit()->findChildren<QPushButton*>();
    const auto select = std::find_if(buttons.begin(), buttons.end(), [](const QPushButton* button) {
        return button->text() == QStringLiteral("Select");
    });
    QVERIFY(select != buttons.end());
    (*select)->click();
    QCOMPARE(window.credit()->table()->getSelectAccount(), QStringLiteral("88001234"));
}

void tst_MainWindow::itIsUsableAtASmallSize()
{
    MainWindow window({});
    window.resize(1024, 700);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.size(), QSize(1024, 700));
    const QRect panel(window.bench()->mapTo(&window, QPoint()), window.bench()->size());
    QVERIFY(window.rect().contains(panel));
}

void tst_MainWindow::noTwoPartsShareAnAccessKey_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& name : languages())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_MainWindow::noTwoPartsShareAnAccessKey()
{
    QFETCH(QString, language);
    setLanguage(language);
    MainWindow window({});
    QStringList texts;
    for (const QAction* action : window.menuBar()->actions())
        texts << action->text();
    for (const auto* label : window.findChildren<QLabel*>())
        texts << label->text();
    for (const auto* button : window.findChildren<QAbstractButton*>())
        texts << button->text();
    QHash<QString, QString> owners;
    for (const QString& text : qAsConst(texts)) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (key.isEmpty())
            continue;
        QVERIFY2(!owners.contains(key), qPrintable(key + QStringLiteral(": ") + text + owners.value(key)));
        owners.insert(key, text);
    }
    QVERIFY(owners.size() > 15);
}

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
