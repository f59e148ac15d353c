#include "UsabilityWays.h"

#include "workbench/CreditPanel.h"
#include "workbench/EventLogModel.h"
#include "workbench/EventPanel.h"
#include "workbench/MainWindow.h"
#include "workbench/Recorder.h"
#include "workbench/RecorderPanel.h"
#include "workbench/TicketPanel.h"
#include "workbench/WhyPanel.h"

#include "reference/services/ServiceControl.h"

#include <OrderParamTable_mini/credit/CCreditParamTable.h>
#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>
#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>
#include <WQ/CMultiParamsTable.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QTableView>
#include <QtTest>

namespace person {

using namespace workbench;

namespace {

QString clipboard()
{
    return QApplication::clipboard()->text();
}

template <class Dialog>
QList<Dialog*> dialogs(Scene& s)
{
    return s.part("tasksDock").findChildren<Dialog*>();
}

void changeSomething(Scene& s)
{
    s.hands().clickValue(TC::OCF_MinSingleVolume);
    s.hands().type(QStringLiteral("700"));
    s.hands().press(Qt::Key_Return);
}

void record(Scene& s)
{
    s.hands().press(Qt::Key_R, Qt::ControlModifier);
    changeSomething(s);
    s.hands().press(Qt::Key_Period, Qt::ControlModifier);
}

void saveReport(Scene& s)
{
    QDir::setCurrent(s.folder.path());
    record(s);
    s.window().recorderPanel()->save(s.folder.filePath(QStringLiteral("report.jsonl")));
}

bool isReplayed(Scene& s)
{
    return QTest::qWaitFor([&s] {
        const QString message = s.window().recorderPanel()->message();
        return message.startsWith(QLatin1String("Replay")) && message.contains(QLatin1String("0 steps answered"));
    });
}

/// The dialog holds up whoever opened it until it is answered.
void answerNextDialog(Scene& s, const QString& text)
{
    auto* const wait = new QTimer(&s.window());
    QObject::connect(wait, &QTimer::timeout, wait, [&s, text, wait] {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        wait->stop();
        QApplication::setActiveWindow(dialog);
        s.hands().type(text);
        s.hands().press(Qt::Key_Return);
        if (dialog->isVisible())
            dialog->close();
    });
    wait->start(1);
}

EventPanel& events(Scene& s)
{
    return *s.window().events();
}

} // namespace

const std::vector<Way>& waysInTheParts()
{
    // clang-format off
    static const std::vector<Way> kWays = {
        {"Open a task dialog", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_4, Qt::ControlModifier); s.hands().press(Qt::Key_Return); },
         [](Scene& s) { return dialogs<TC::CBaseTaskParamWidget>(s).size() == 1; }},
        {"Close a task dialog", [](Scene& s) { s.hands().clickTab(QStringLiteral("Tasks")); s.hands().doubleClickRow(s.in<QTableView>("tasksDock"), 1); },
         [](Scene& s) { s.hands().press(Qt::Key_Escape); },
         [](Scene& s) { return QTest::qWaitFor([&s] { return dialogs<TC::CBaseTaskParamWidget>(s).isEmpty(); }); }},
        {"Open a basket of all tasks", nullptr,
         [](Scene& s) { s.hands().clickTab(QStringLiteral("Tasks")); s.hands().clickButton(s.part("tasksDock"), QStringLiteral("Open basket")); },
         [](Scene& s) { return dialogs<TC::CHpfBasketTaskParamWidget>(s).size() == 1; }},
        {"Open a basket of three tasks", nullptr,
         [](Scene& s) {
             auto& tasks = s.in<QTableView>("tasksDock");
             s.hands().clickTab(QStringLiteral("Tasks"));
             s.hands().clickRow(tasks, 1);
             s.hands().clickRow(tasks, 3, Qt::ShiftModifier);
             s.hands().clickButton(s.part("tasksDock"), QStringLiteral("Open basket"));
         },
         [](Scene& s) { return dialogs<TC::CHpfBasketTaskParamWidget>(s).size() == 1 && s.in<QTableView>("tasksDock").selectionModel()->selectedRows().size() == 3; }},
        {"Choose a credit operation", nullptr,
         [](Scene& s) { s.hands().clickTab(QStringLiteral("Credit")); s.hands().clickArrow(s.in<QComboBox>("creditDock")); s.hands().clickEntry(QStringLiteral("24")); },
         [](Scene& s) { return s.window().credit()->table()->param().startsWith(QLatin1String("24")); }},
        {"Load a credit parameter string", nullptr,
         [](Scene& s) { s.hands().clickTab(QStringLiteral("Credit")); s.hands().clickButton(s.part("creditDock"), QStringLiteral("Load")); },
         [](Scene& s) { return s.window().credit()->table()->param().contains(QLatin1String("728=3000")); }},
        {"See what was sent last", changeSomething,
         [](Scene&) {},
         [](Scene& s) {
             auto& list = s.in<QTableView>("eventsDock");
             const QModelIndex last = list.model()->index(list.model()->rowCount() - 1, EventLogModel::Text);
             return list.isVisible() && last.data().toString() == QLatin1String("700") && list.viewport()->rect().contains(list.visualRect(last));
         }},
        {"Find an event by number", changeSomething,
         [](Scene& s) { s.hands().press(Qt::Key_F, Qt::ControlModifier); s.hands().type(QStringLiteral("87")); },
         [](Scene& s) { return s.in<QTableView>("eventsDock").model()->rowCount() == 1; }},
        {"Pause the events", nullptr,
         [](Scene& s) { s.hands().clickButton(s.part("eventsDock"), QStringLiteral("Pause")); s.remembered = QString::number(events(s).model()->arrived()); },
         [](Scene& s) { changeSomething(s); return s.remembered == QString::number(events(s).model()->arrived()); }},
        {"Clear the events", changeSomething,
         [](Scene& s) { s.hands().press(Qt::Key_L, Qt::ControlModifier); },
         [](Scene& s) { return events(s).model()->rowCount() == 0; }},
        {"Copy the events", changeSomething,
         [](Scene& s) { s.hands().clickButton(s.part("eventsDock"), QStringLiteral("Copy")); },
         [](Scene&) { return clipboard().contains(QLatin1String("\t700")); }},
        {"See the parameter string", nullptr,
         [](Scene& s) { s.hands().clickTab(QStringLiteral("Ticket")); },
         [](Scene& s) { return s.window().ticket()->isVisible() && s.window().ticket()->parameterString().count(QLatin1Char('+')) == 40; }},
        {"Copy the parameter string", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_P, Qt::ControlModifier); },
         [](Scene& s) { return clipboard() == s.window().ticket()->parameterString() && s.cells().hasFocus(); }},
        {"Copy the settings record", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier); },
         [](Scene&) { return clipboard().count(QLatin1Char('\n')) == 40 && clipboard().startsWith(QLatin1String("1 orderType\t1")); }},
        {"Copy what changed last", changeSomething,
         [](Scene& s) { s.hands().press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier); },
         [](Scene&) { return clipboard() == QStringLiteral("0x200 单笔最小量\t700 股"); }},
        {"Go to the cell of an event", [](Scene& s) { changeSomething(s); s.cells().setCurrentIndex(s.cells().model()->index(0, 0)); },
         [](Scene& s) { auto& list = s.in<QTableView>("eventsDock"); s.hands().doubleClickRow(list, list.model()->rowCount() - 1); },
         [](Scene& s) { return s.cells().hasFocus() && s.cells().currentIndex().siblingAtColumn(0).data().toString() == QStringLiteral("单笔最小量"); }},
        {"See why a cell is shown", nullptr,
         [](Scene& s) { s.hands().clickLabel(TC::OCF_MaxOrderCount); s.hands().press(Qt::Key_F1, Qt::ShiftModifier); },
         [](Scene& s) { return s.in<WhyPanel>("whyDock").isVisible() && s.in<WhyPanel>("whyDock").cell() == TC::OCF_MaxOrderCount && s.cells().hasFocus(); }},
        {"See why a cell is shown, by its menu", nullptr,
         [](Scene& s) { s.hands().clickLabel(TC::OCF_MaxOrderCount, Qt::RightButton); s.hands().clickEntry(QStringLiteral("Why?")); },
         [](Scene& s) { return s.in<WhyPanel>("whyDock").isVisible() && s.in<WhyPanel>("whyDock").cell() == TC::OCF_MaxOrderCount; }},
        {"Find why a cell is gone", nullptr,
         [](Scene& s) { s.hands().clickTab(QStringLiteral("Why?")); s.hands().clickArrow(s.in<QComboBox>("whyDock")); s.hands().clickEntry(QStringLiteral("0x40 ")); },
         [](Scene& s) { return s.in<WhyPanel>("whyDock").text().contains(QStringLiteral("尾单最小量")); }},
        {"Copy an explanation", [](Scene& s) { s.hands().clickLabel(TC::OCF_MaxOrderCount); },
         [](Scene& s) { s.hands().clickTab(QStringLiteral("Why?")); s.hands().clickButton(s.part("whyDock"), QStringLiteral("Copy")); },
         [](Scene& s) { return clipboard() == s.in<WhyPanel>("whyDock").text() && clipboard().contains(QStringLiteral("最大委托次数")); }},
        {"Record a run", nullptr,
         [](Scene& s) { s.hands().press(Qt::Key_R, Qt::ControlModifier); s.hands().press(Qt::Key_Period, Qt::ControlModifier); },
         [](Scene& s) { return !s.window().recorder()->isRecording() && !s.window().recorder()->recording().isEmpty(); }},
        {"Replay a recording", record,
         [](Scene& s) { s.hands().press(Qt::Key_F9); },
         isReplayed},
        {"Copy a recording as a test", record,
         [](Scene& s) { s.hands().press(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier); },
         [](Scene&) { return clipboard().contains(QLatin1String("recording.jsonl")); }},
        {"Reproduce a report from its file", saveReport,
         [](Scene& s) {
             answerNextDialog(s, QStringLiteral("report.jsonl"));
             s.hands().press(Qt::Key_O, Qt::ControlModifier);
             s.hands().press(Qt::Key_F9);
         },
         isReplayed},
    };
    // clang-format on
    return kWays;
}

} // namespace person
