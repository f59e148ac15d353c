#include "WindowPerson.h"

#include "workbench/Appearance.h"
#include "workbench/CreditPanel.h"
#include "workbench/FlagsEditor.h"
#include "workbench/HostCalls.h"
#include "workbench/MainWindow.h"
#include "workbench/NumberCombo.h"
#include "workbench/OrderControls.h"
#include "workbench/QuoteLadder.h"
#include "workbench/QuoteModel.h"
#include "workbench/Recorder.h"
#include "workbench/SetupForm.h"
#include "workbench/Snapshot.h"
#include "workbench/TableBench.h"
#include "workbench/TaskPanel.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/editors/PersonEdits.h"
#include "replay/Expectation.h"
#include "replay/Script.h"
#include "replay/Session.h"
#include "replay/State.h"

#include <QCheckBox>
#include <QListWidget>
#include <QProcess>
#include <QtTest>

#include <map>

using namespace workbench;
using replay::Json;

namespace {

QByteArray written(const Json& json)
{
    return QByteArray::fromStdString(replay::writtenLine(json));
}

/// What is the same in a replay: the states of the objects that live, by name.
using States = std::map<std::string, Json>;

States statesOf(const MainWindow& window)
{
    States states;
    states["panel"] = replay::stateOf(window.bench()->table());
    states["credit"] = replay::stateOf(window.credit()->table());
    // The first dialog was closed.
    const auto dialogs = window.findChildren<WQ::CFloatWidget*>();
    states["task2"] = replay::stateOf(dialogs.value(0));
    states["basket3"] = replay::stateOf(dialogs.value(1));
    return states;
}

Json dumpCommand(const std::string& name)
{
    return {{"do", "dump"}, {"on", name}};
}

void compareStates(replay::Session& session, const States& states)
{
    for (const auto& [name, state] : states) {
        QVERIFY(state.is_object());
        const Json answer = session.run(dumpCommand(name));
        for (const std::string& difference : replay::differences(state, answer["result"]))
            QFAIL((name + ": " + difference).c_str());
        QCOMPARE(written(answer["result"]), written(state));
    }
}

void compareAnswers(replay::Session& session, const Recording& recording)
{
    for (const auto& step : recording.steps) {
        const Json answer = session.run(step->command);
        for (const std::string& difference : replay::differences(step->answer, answer))
            QFAIL((replay::writtenLine(step->command) + ": " + difference).c_str());
        QVERIFY(answer["ok"].get<bool>());
    }
}

void toggle(QListWidget& list, int row)
{
    QListWidgetItem* item = list.item(row);
    item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    settle();
}

/// Operation, modes, expansion, every cell by command and one by keys, the filter.
void workInThePanel(MainWindow& window)
{
    auto* controls = window.findChild<OrderControls*>();
    Q_EMIT controls->findChildren<NumberCombo*>().at(1)->valueChanged(18);
    for (const int button : {601, 602, 605, 613, 600, 601})
        person::clickButton(*window.bench(), button);
    const auto checks = controls->findChildren<QCheckBox*>();
    for (auto* check : checks)
        check->click();
    for (auto* check : checks)
        if (!check->isChecked())
            check->click();
    person::editAllCells(*window.bench());
    auto* cells = window.bench()->findChild<WQ::CMultiParamsTable*>();
    person::typeInto(*cells, TC::OCF_SuperPrice, QStringLiteral("0.37"));
    hostCall(*window.bench()->table(), calls::kSetExpandItemsHidden, true);
    QVERIFY(WQ::applyPersonFilter(*cells, {1, 4}));
    settle();
    QVERIFY(WQ::resetPersonFilter(*cells));
    settle();
}

void workInFlagsAndQuotes(MainWindow& window)
{
    auto* flags = window.findChild<FlagsEditor*>();
    for (const int row : {3, 4, 3})
        toggle(*flags, row);
    for (const int row : {4, 6, 5})
        Q_EMIT window.ladder()->priceTypeChosen(window.ladder()->quotes()->priceTypeOf(row));
    Q_EMIT window.ladder()->priceChosen(10.37);
}

void workInCredit(MainWindow& window)
{
    for (const int operation : {23, 24, 1021, 22})
        Q_EMIT window.credit()->findChild<NumberCombo*>()->valueChanged(operation);
    for (const char* button : {"Select", "Choose a contract", "Enter", "Load"})
        person::clickText(*window.credit(), QLatin1String(button));
    person::editAllCells(*window.credit());
}

/// One dialog edited and closed, one edited and left open, a basket.
void workInTasks(MainWindow& window)
{
    auto* tasks = window.findChild<TaskPanel*>();
    for (const int task : {1, 9}) {
        tasks->openTask(task);
        settle();
        auto* dialog = tasks->findChild<WQ::CFloatWidget*>();
        person::clickButton(*dialog, 0);
        person::editAllCells(*dialog);
        if (task == 1)
            dialog->close();
        settle();
    }
    tasks->openBasket();
    settle();
}

/// Scale, theme, and a module that gives the new table a button for this host to name.
void workInSetup(MainWindow& window)
{
    window.chooseScale(1.5);
    window.chooseTheme(QStringLiteral("light"));
    settle();
    toggle(*window.form()->findChild<QListWidget*>(), 0);
    for (const int button : {603, 601})
        person::clickButton(*window.bench(), button);
    person::editAllCells(*window.bench());
    settle();
}

} // namespace

/// A person works through all parts of the window; the recording of that is replayed in every way there is.
class tst_RecordedRun : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void allKindsOfStepsAreRecorded_data();
    void allKindsOfStepsAreRecorded();
    void whatIsTypedIsRecorded();
    void aReplayAnswersAndEndsTheSame();
    void theProgramAnswersAndEndsTheSame();

private:
    Recording m_recording;
    States m_states;
};

void tst_RecordedRun::initTestCase()
{
    reference::resetServices();
    dressApplication();
    const auto window = person::open(loadHostData(QString()));
    window->recorder()->start();
    workInThePanel(*window);
    workInFlagsAndQuotes(*window);
    workInCredit(*window);
    workInTasks(*window);
    workInSetup(*window);
    window->recorder()->stop();
    m_recording = window->recorder()->recording();
    m_states = statesOf(*window);
    const auto own = int(m_recording.steps.size() - m_recording.preparation);
    qInfo("%d steps recorded, %d lead to them", own, int(m_recording.preparation));
    QVERIFY(own >= 60);
}

void tst_RecordedRun::allKindsOfStepsAreRecorded_data()
{
    QTest::addColumn<QString>("command");
    for (const char* command : {"new", "delete", "call", "addButton", "edit", "click", "filter", "filterReset", "show",
                                "resize", "modules", "scale", "theme"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

void tst_RecordedRun::allKindsOfStepsAreRecorded()
{
    QFETCH(QString, command);
    const auto isOfKind = [&command](const auto& step) { return step->command["do"] == command.toStdString(); };
    const auto begin = m_recording.steps.begin() + std::ptrdiff_t(m_recording.preparation);
    QVERIFY(std::any_of(begin, m_recording.steps.end(), isOfKind));
}

void tst_RecordedRun::whatIsTypedIsRecorded()
{
    const std::string script = scriptText(m_recording);
    QVERIFY(script.find(R"({"do":"edit","on":"panel","cell":2,"value":0.37})") != std::string::npos);
    QVERIFY(script.find(R"({"do":"addButton","on":"panel","id":603,"text":"算法三"})") != std::string::npos);
    QVERIFY(script.find(R"({"do":"click","on":"panel","button":603})") != std::string::npos);
}

void tst_RecordedRun::aReplayAnswersAndEndsTheSame()
{
    replay::Session session;
    compareAnswers(session, m_recording);
    compareStates(session, m_states);
}

void tst_RecordedRun::theProgramAnswersAndEndsTheSame()
{
    QByteArray script = QByteArray::fromStdString(scriptText(m_recording));
    for (const auto& state : m_states)
        script += written(dumpCommand(state.first)) + '\n';
    QProcess program;
    program.start(QStringLiteral(REPLAY_PROGRAM), {});
    program.write(script);
    program.closeWriteChannel();
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
    for (const auto& step : m_recording.steps) {
        const Json answer = Json::parse(program.readLine().toStdString());
        for (const std::string& difference : replay::differences(step->answer, answer))
            QFAIL((replay::writtenLine(step->command) + ": " + difference).c_str());
    }
    for (const auto& state : m_states)
        QCOMPARE(written(Json::parse(program.readLine().toStdString())["result"]), written(state.second));
    QVERIFY(program.atEnd());
}

QTEST_MAIN(tst_RecordedRun)
#include "tst_RecordedRun.moc"
