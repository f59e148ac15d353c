#include "WindowPerson.h"

#include "workbench/Appearance.h"
#include "workbench/HostCalls.h"
#include "workbench/MainWindow.h"
#include "workbench/Recorder.h"
#include "workbench/Snapshot.h"
#include "workbench/TableBench.h"
#include "workbench/TaskPanel.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/PersonEdits.h"
#include "replay/Script.h"

#include <QtTest>

using namespace workbench;
using replay::Json;

namespace {

Json doesOf(const Recording& recording, std::size_t from)
{
    Json names = Json::array();
    for (std::size_t i = from; i < recording.steps.size(); ++i)
        names.push_back(recording.steps[i]->command["do"]);
    return names;
}

int countOf(const Recording& recording, const char* name)
{
    const Json names = doesOf(recording, recording.preparation);
    return static_cast<int>(std::count(names.begin(), names.end(), name));
}

/// The last step that a person or a host did; sizes that follow it are not meant.
const RecordedStep& lastStep(const Recording& recording)
{
    for (auto step = recording.steps.rbegin(); step != recording.steps.rend(); ++step)
        if ((*step)->command["do"] != "resize" && (*step)->command["do"] != "show")
            return **step;
    return *recording.steps.front();
}

QByteArray written(const Json& json)
{
    return QByteArray::fromStdString(replay::writtenLine(json));
}

} // namespace

class tst_Recorder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void aRecordingBeginsWithTheWayToThePresent();
    void anObjectThatIsGoneIsNotOnTheWay();
    void aServiceThatIsSetTwiceIsOnTheWayOnce();
    void whatAPersonDoesIsACommand_data();
    void whatAPersonDoesIsACommand();
    void aDoubleClickIsHandedToTheTable();
    void eventsBelongToTheCommandThatCausedThem();
    void whatWasCommittedComesBeforeTheNextCall();
    void whatOthersDoToTheServicesIsNoticed();
    void aClockThatIsFrozenAndGoesOnIsRecorded();
    void aClockThatWentOnBeforeStandsAtTheStart();
    void twoWindowsRecordWhatIsTheirs();
    void aCallPastTheRecorderIsWarnedOf();
    void aDialogClosedByAPersonIsDeleted();
    void nothingIsTakenDownAfterStop();
};

void tst_Recorder::initTestCase()
{
    dressApplication();
}

void tst_Recorder::init()
{
    reference::resetServices();
    setTheme(QStringLiteral("dark"));
    setScale(1.0);
}

void tst_Recorder::aRecordingBeginsWithTheWayToThePresent()
{
    reference::addAccount("a", {ttservice::BROKER_TYPE_CREDIT, "88001234", "n"});
    const auto window = person::open();
    person::clickButton(*window->bench(), 601);
    window->recorder()->start();
    const Recording recording = window->recorder()->recording();
    QCOMPARE(recording.preparation, recording.steps.size());
    QCOMPARE(written(recording.steps[0]->command), QByteArray(R"({"do":"reset"})"));
    QCOMPARE(recording.steps[1]->command["do"].get<std::string>(), std::string("clock"));
    QCOMPARE(written(recording.steps[2]->command),
             QByteArray(R"({"do":"account","key":"a","brokerType":3,"id":"88001234","name":"n"})"));
    QVERIFY(scriptText(recording).find(R"({"do":"new","class":"CGlobalOrderParamTable","name":"panel",)"
                                       R"("args":[5,2,true,true,1,false]})")
            != std::string::npos);
    // The host keeps the record of the order type that was chosen.
    QCOMPARE(lastStep(recording).command["op"].get<std::string>(), std::string("setOrderSettings"));
    QVERIFY(scriptText(recording).find(R"({"do":"click","on":"panel","button":601})") != std::string::npos);
}

void tst_Recorder::anObjectThatIsGoneIsNotOnTheWay()
{
    const auto window = person::open();
    person::clickButton(*window->bench(), 601);
    window->rebuildTable();
    window->recorder()->start();
    const Json names = doesOf(window->recorder()->recording(), 0);
    QCOMPARE(std::count(names.begin(), names.end(), "click"), 0);
    QCOMPARE(std::count(names.begin(), names.end(), "delete"), 0);
    QCOMPARE(std::count(names.begin(), names.end(), "new"), 2);
}

void tst_Recorder::aServiceThatIsSetTwiceIsOnTheWayOnce()
{
    const auto window = person::open();
    Recorder& recorder = *window->recorder();
    recorder.start();
    recorder.stop();
    for (const char* theme : {"light", "dark", "light"}) {
        setTheme(QLatin1String(theme));
        recorder.start();
        recorder.stop();
    }
    recorder.start();
    const Json names = doesOf(recorder.recording(), 0);
    QCOMPARE(std::count(names.begin(), names.end(), "theme"), 1);
    QVERIFY(scriptText(recorder.recording()).find(R"({"do":"theme","name":"light"})") != std::string::npos);
}

void tst_Recorder::whatAPersonDoesIsACommand_data()
{
    QTest::addColumn<int>("cell");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QByteArray>("command");
    // Cells of a stock table in order type 1: 1 price type, 2 super price, 0x800 valid time.
    QTest::newRow("an entry") << 1 << "index 3" << QByteArray(R"({"do":"edit","on":"panel","cell":1,"index":3})");
    QTest::newRow("a number") << 2 << "text 0.25" << QByteArray(R"({"do":"edit","on":"panel","cell":2,"value":0.25})");
    QTest::newRow("a period") << 0x800 << "time 10:00:00 11:00:00"
                              << QByteArray(R"({"do":"edit","on":"panel","cell":2048,"time":["10:00:00","11:00:00"]})");
    QTest::newRow("a duration") << 0x800 << "duration 00:10:00"
                                << QByteArray(R"({"do":"edit","on":"panel","cell":2048,"elapse":600})");
}

void tst_Recorder::whatAPersonDoesIsACommand()
{
    QFETCH(int, cell);
    QFETCH(QString, edit);
    const auto window = person::open();
    auto& table = *window->bench()->table();
    hostCall(table, calls::kSetOrderType, ttservice::ORDER_TYPE_ALGORITHM);
    hostCall(table, calls::kSetExpandItemsHidden, false);
    window->recorder()->start();
    const QStringList words = edit.split(QLatin1Char(' '));
    WQ::PersonEdit done;
    if (words[0] == QLatin1String("index"))
        done.index = words[1].toInt();
    else if (words[0] == QLatin1String("text"))
        done.text = words[1];
    else if (words[0] == QLatin1String("time"))
        done.time = qMakePair(words[1], words[2]);
    else
        done.duration = words[1];
    QVERIFY(WQ::applyPersonEdit(*table.findChild<WQ::CMultiParamsTable*>(), cell, done) == WQ::EditOutcome::Done);
    settle();
    const Recording& recording = window->recorder()->recording();
    QCOMPARE(countOf(recording, "edit"), 1);
    const auto& step = **std::find_if(recording.steps.begin(), recording.steps.end(),
                                      [](const auto& each) { return each->command["do"] == "edit"; });
    QTEST(written(step.command), "command");
    QVERIFY(step.answer["result"].get<bool>());
}

void tst_Recorder::aDoubleClickIsHandedToTheTable()
{
    const auto window = person::open();
    auto* cells = window->bench()->findChild<WQ::CMultiParamsTable*>();
    window->recorder()->start();
    const QRect row = WQ::CMultiParamsTablePrivate::of(cells)->rowRect(0);
    QTest::mouseDClick(cells->viewport(), Qt::LeftButton, Qt::NoModifier, row.topLeft() + QPoint(10, 5));
    settle();
    const RecordedStep& step = lastStep(window->recorder()->recording());
    QCOMPARE(step.command["do"].get<std::string>(), std::string("event"));
    QCOMPARE(step.command["args"][0].get<int>(), 97);
    // 130: a parameter was double-clicked.
    QCOMPARE(step.answer["events"].size(), std::size_t(1));
    QCOMPARE(step.answer["events"][0][0].get<int>(), 130);
}

void tst_Recorder::eventsBelongToTheCommandThatCausedThem()
{
    const auto window = person::open();
    window->recorder()->start();
    hostCall(*window->bench()->table(), calls::kSetFixedPrice, 10.5);
    // A specified price announces the price type first, then the change.
    const Json& first = lastStep(window->recorder()->recording()).answer["events"];
    QCOMPARE(first.size(), std::size_t(2));
    QCOMPARE(first[0][0].get<int>(), 1061);
    QCOMPARE(first[1][0].get<int>(), 129);
    hostCall(*window->bench()->table(), calls::kSetStockCode, QStringLiteral("600000"));
    const RecordedStep& second = lastStep(window->recorder()->recording());
    QCOMPARE(written(second.command),
             QByteArray(R"({"do":"call","on":"panel","op":"setStockCode","args":["600000"]})"));
    QCOMPARE(written(second.answer["events"]), QByteArray("[]"));
}

void tst_Recorder::whatWasCommittedComesBeforeTheNextCall()
{
    const auto window = person::open();
    auto& table = *window->bench()->table();
    window->recorder()->start();
    WQ::PersonEdit edit;
    edit.index = 2;
    WQ::applyPersonEdit(*table.findChild<WQ::CMultiParamsTable*>(), 1, edit);
    hostCall(table, calls::kSetStockCode, QStringLiteral("1"));
    const Recording& recording = window->recorder()->recording();
    const Json names = doesOf(recording, recording.preparation);
    const auto edited = std::find(names.begin(), names.end(), "edit");
    QVERIFY(edited != names.end());
    QVERIFY(std::find(names.begin(), edited, "call") == edited);
    QVERIFY(std::find(edited, names.end(), "call") != names.end());
}

void tst_Recorder::whatOthersDoToTheServicesIsNoticed()
{
    const auto window = person::open();
    window->recorder()->start();
    reference::setClientMode(100);
    reference::setModules({QStringLiteral("mdl_a/b")});
    hostCall(*window->bench()->table(), calls::kSetStockCode, QStringLiteral("1"));
    const std::string script = scriptText(window->recorder()->recording());
    const auto mode = script.find(R"({"do":"clientMode","value":100})");
    QVERIFY(mode != std::string::npos);
    QVERIFY(script.find(R"({"do":"modules","on":["mdl_a/b"]})") != std::string::npos);
    QVERIFY(script.find(R"("args":["1"])") > mode);
}

void tst_Recorder::aClockThatIsFrozenAndGoesOnIsRecorded()
{
    const auto window = person::open();
    auto& table = *window->bench()->table();
    window->recorder()->start();
    reference::freezeClock(1716168600);
    hostCall(table, calls::kSetStockCode, QStringLiteral("1"));
    reference::freezeClock(1716168660);
    hostCall(table, calls::kSetStockCode, QStringLiteral("2"));
    hostCall(table, calls::kSetStockCode, QStringLiteral("3"));
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    reference::freezeClock(std::nullopt);
    window->recorder()->stop();
    std::vector<qint64> clocks;
    const Recording& recording = window->recorder()->recording();
    for (std::size_t i = recording.preparation; i < recording.steps.size(); ++i)
        if (recording.steps[i]->command["do"] == "clock")
            clocks.push_back(recording.steps[i]->command["epoch"].get<qint64>());
    QCOMPARE(clocks.size(), std::size_t(3));
    QCOMPARE(clocks[0], qint64(1716168600));
    QCOMPARE(clocks[1], qint64(1716168660));
    QVERIFY(clocks[2] >= before);
}

void tst_Recorder::aClockThatWentOnBeforeStandsAtTheStart()
{
    const auto window = person::open();
    auto& table = *window->bench()->table();
    reference::freezeClock(1716168600);
    hostCall(table, calls::kSetStockCode, QStringLiteral("1"));
    reference::freezeClock(std::nullopt);
    hostCall(table, calls::kSetStockCode, QStringLiteral("2"));
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    window->recorder()->start();
    const Recording& recording = window->recorder()->recording();
    QCOMPARE(recording.steps.size(), recording.preparation);
    QCOMPARE(recording.steps.back()->command["do"].get<std::string>(), std::string("clock"));
    QVERIFY(recording.steps.back()->command["epoch"].get<qint64>() >= before);
}

void tst_Recorder::twoWindowsRecordWhatIsTheirs()
{
    const auto one = person::open();
    auto other = person::open();
    one->recorder()->start();
    other->recorder()->start();
    person::clickButton(*one->bench(), 601);
    QCOMPARE(countOf(one->recorder()->recording(), "click"), 1);
    QCOMPARE(countOf(other->recorder()->recording(), "click"), 0);
    other.reset();
    person::clickButton(*one->bench(), 602);
    QCOMPARE(countOf(one->recorder()->recording(), "click"), 2);
}

void tst_Recorder::aCallPastTheRecorderIsWarnedOf()
{
    const auto window = person::open();
    const char* warning = "The recorder heard event 1061 outside all commands: a call was made past it";
    const char* another = "The recorder heard event 129 outside all commands: a call was made past it";
    QTest::ignoreMessage(QtWarningMsg, warning);
    QTest::ignoreMessage(QtWarningMsg, another);
    window->bench()->table()->setFixedPrice(10.0);
}

void tst_Recorder::aDialogClosedByAPersonIsDeleted()
{
    HostData data;
    data.tasks.resize(2);
    const auto window = person::open(data);
    auto* tasks = window->findChild<TaskPanel*>();
    window->recorder()->start();
    tasks->openTask(0);
    tasks->openBasket();
    settle();
    const auto dialogs = tasks->findChildren<WQ::CFloatWidget*>();
    QCOMPARE(dialogs.size(), 2);
    QTest::keyClick(dialogs.first(), Qt::Key_Escape);
    settle();
    QCOMPARE(tasks->findChildren<WQ::CFloatWidget*>().size(), 1);
    QCOMPARE(written(lastStep(window->recorder()->recording()).command), QByteArray(R"({"do":"delete","on":"task1"})"));
}

void tst_Recorder::nothingIsTakenDownAfterStop()
{
    const auto window = person::open();
    Recorder& recorder = *window->recorder();
    recorder.start();
    person::clickButton(*window->bench(), 601);
    QVERIFY(recorder.isRecording());
    recorder.stop();
    QVERIFY(!recorder.isRecording());
    const std::string script = scriptText(recorder.recording());
    person::clickButton(*window->bench(), 602);
    QCOMPARE(scriptText(recorder.recording()), script);
    QVERIFY(recorder.recording().hasAnswers());
}

QTEST_MAIN(tst_Recorder)
#include "tst_Recorder.moc"
