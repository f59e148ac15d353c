#include "workbench/Playback.h"
#include "workbench/StepModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace workbench;
using replay::Json;

namespace {

Recording recordingOf(const char* script, const char* answers = nullptr)
{
    Recording recording;
    if (!readScript(script, recording).isGood() || (answers && !readExpectations(answers, recording).isGood()))
        return {};
    return recording;
}

const char* const kScript = R"({"do":"reset"}
{"do":"new","class":"CGlobalOrderParamTable","name":"t","args":[5,2,true,true,1,false]}
{"do":"call","on":"t","op":"setFixedPrice","args":[10.5]}
{"do":"call","on":"t","op":"getId","args":[]}
)";

/// A playback with the answers that it got.
struct Run
{
    Run()
    {
        playback.setProgram(QStringLiteral(REPLAY_PROGRAM));
        QObject::connect(&playback, &Playback::answered, &playback, [this](int step, const Json& answer) {
            steps << step;
            answers.push_back(answer);
        });
        QObject::connect(&playback, &Playback::failed, &playback, [this](const QString& why) { failure = why; });
        QObject::connect(&playback, &Playback::pictured, &playback, [this](const QImage& image) { picture = image; });
    }

    Playback playback;
    QList<int> steps;
    std::vector<Json> answers;
    QString failure;
    QImage picture;
};

QString shownText(const StepModel& model, int row, StepModel::Column column)
{
    return model.index(row, column).data().toString();
}

} // namespace

class tst_Playback : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void atOnceAllStepsAreAnswered();
    void steppingAnswersOneByOne();
    void aRunBeginsAnewAfterItsEnd();
    void whatTheObjectLooksLikeIsShown();
    void endingStopsARun();
    void aWrongCommandIsAnAnswer();
    void aProgramThatEndsIsSaid();
    void aProgramThatIsNotThereIsSaid();
    void aProgramThatTalksNonsenseIsSaid();
    void nothingIsReplayedWithoutSteps();
    void theModelShowsStepsAndDifferences();
    void theModelMarksTheCurrentStep();
};

void tst_Playback::atOnceAllStepsAreAnswered()
{
    Run run;
    run.playback.setRecording(recordingOf(kScript));
    run.playback.runToEnd();
    QVERIFY(run.playback.isBusy());
    QTRY_VERIFY(!run.playback.isRunning());
    QCOMPARE(run.steps, (QList<int>{0, 1, 2, 3}));
    QCOMPARE(run.failure, QString());
    QCOMPARE(run.answers[3]["result"].get<int>(), 5);
}

void tst_Playback::steppingAnswersOneByOne()
{
    Run run;
    run.playback.setRecording(recordingOf(kScript));
    run.playback.step();
    QTRY_COMPARE(run.steps, QList<int>{0});
    QTRY_VERIFY(!run.playback.isBusy());
    QVERIFY(run.playback.isRunning());
    QCOMPARE(run.playback.answeredSteps(), 1);
    run.playback.step();
    QTRY_VERIFY(!run.playback.isBusy());
    QCOMPARE(run.steps, (QList<int>{0, 1}));
    run.playback.runToEnd();
    QTRY_VERIFY(!run.playback.isRunning());
    QCOMPARE(run.steps, (QList<int>{0, 1, 2, 3}));
}

void tst_Playback::aRunBeginsAnewAfterItsEnd()
{
    Run run;
    QSignalSpy begun(&run.playback, &Playback::begun);
    run.playback.setRecording(recordingOf(kScript));
    for (int round = 1; round <= 2; ++round) {
        run.playback.runToEnd();
        QTRY_VERIFY(!run.playback.isRunning());
        QCOMPARE(begun.count(), round);
        QCOMPARE(run.steps.size(), 4 * round);
    }
}

void tst_Playback::whatTheObjectLooksLikeIsShown()
{
    Run run;
    run.playback.setRecording(recordingOf(kScript));
    run.playback.step();
    QTRY_VERIFY(!run.playback.isBusy());
    QVERIFY(run.picture.isNull());
    run.playback.step();
    QTRY_VERIFY(!run.playback.isBusy());
    // A panel is 240 wide.
    QCOMPARE(run.picture.width(), 240);
}

void tst_Playback::endingStopsARun()
{
    Run run;
    run.playback.setRecording(recordingOf(kScript));
    run.playback.step();
    run.playback.end();
    QVERIFY(!run.playback.isRunning());
    QVERIFY(!run.playback.isBusy());
    QCOMPARE(run.failure, QString());
    run.playback.setRecording(recordingOf("{\"do\":\"reset\"}\n"));
    run.playback.runToEnd();
    QTRY_COMPARE(run.steps, QList<int>{0});
}

void tst_Playback::aWrongCommandIsAnAnswer()
{
    Run run;
    run.playback.setRecording(recordingOf("{\"do\":\"dance\"}\n{\"do\":\"reset\"}\n"));
    run.playback.runToEnd();
    QTRY_VERIFY(!run.playback.isRunning());
    QCOMPARE(run.steps, (QList<int>{0, 1}));
    QVERIFY(!run.answers[0]["ok"].get<bool>());
    QVERIFY(run.answers[1]["ok"].get<bool>());
}

void tst_Playback::aProgramThatEndsIsSaid()
{
    Run run;
    run.playback.setProgram(QStringLiteral("/bin/false"));
    run.playback.setRecording(recordingOf(kScript));
    run.playback.runToEnd();
    QTRY_VERIFY(!run.playback.isRunning());
    QVERIFY2(run.failure.startsWith(QStringLiteral("The replay program ended at step 1.")), qPrintable(run.failure));
}

void tst_Playback::aProgramThatIsNotThereIsSaid()
{
    Run run;
    run.playback.setProgram(QStringLiteral("/nowhere/orderparam-replay"));
    run.playback.setRecording(recordingOf(kScript));
    run.playback.step();
    QTRY_COMPARE(run.failure, QStringLiteral("The replay program /nowhere/orderparam-replay cannot be started."));
    QVERIFY(!run.playback.isRunning());
}

void tst_Playback::aProgramThatTalksNonsenseIsSaid()
{
    Run run;
    run.playback.setProgram(QStringLiteral("/bin/cat"));
    run.playback.setRecording(recordingOf("{\"do\":\"reset\"}\n"));
    run.playback.runToEnd(); // an echo is an object, and so an answer without "ok"
    QTRY_VERIFY(!run.playback.isRunning());
    QCOMPARE(run.failure, QString());
    run.playback.setProgram(QStringLiteral("/bin/date"));
    run.playback.runToEnd();
    QTRY_VERIFY(!run.playback.isRunning());
    QVERIFY(!run.failure.isEmpty());
}

void tst_Playback::nothingIsReplayedWithoutSteps()
{
    Run run;
    run.playback.step();
    run.playback.runToEnd();
    QVERIFY(!run.playback.isRunning());
}

void tst_Playback::theModelShowsStepsAndDifferences()
{
    StepModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setRecording(recordingOf(kScript,
                                   "{\"ok\":true}\n{\"ok\":true}\n"
                                   "{\"ok\":true,\"events\":[[1061,5,0,\"\",null],[129,5,0,\"\",null]]}\n"
                                   "{\"result\":5}\n"));
    QCOMPARE(model.rowCount(), 4);
    QCOMPARE(shownText(model, 1, StepModel::Command), QStringLiteral("new"));
    QCOMPARE(shownText(model, 1, StepModel::Object), QStringLiteral("t"));
    QCOMPARE(shownText(model, 2, StepModel::Arguments), QStringLiteral("setFixedPrice [10.5]"));
    QCOMPARE(shownText(model, 2, StepModel::Events), QStringLiteral("1061 129"));
    QCOMPARE(shownText(model, 2, StepModel::Replay), QString());
    model.setReplayed(0, {{"ok", true}, {"result", nullptr}});
    model.setReplayed(1, {{"ok", false}, {"error", "no class"}});
    model.setReplayed(3, {{"ok", true}, {"result", 6}});
    QCOMPARE(shownText(model, 0, StepModel::Replay), QStringLiteral("same"));
    QCOMPARE(shownText(model, 1, StepModel::Replay), QStringLiteral("error: no class"));
    QCOMPARE(shownText(model, 3, StepModel::Replay), QStringLiteral("differs: result: expected 5, got 6"));
    QCOMPARE(model.differingSteps(), 2);
    model.clearReplay();
    QCOMPARE(model.differingSteps(), 0);
    QCOMPARE(shownText(model, 3, StepModel::Replay), QString());
}

void tst_Playback::theModelMarksTheCurrentStep()
{
    StepModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setRecording(recordingOf(kScript));
    QCOMPARE(model.currentStep(), -1);
    QCOMPARE(shownText(model, 1, StepModel::Number), QStringLiteral("2"));
    QSignalSpy changes(&model, &StepModel::dataChanged);
    model.setReplayed(1, {{"ok", true}});
    QCOMPARE(changes.count(), 1);
    QCOMPARE(model.currentStep(), 1);
    QCOMPARE(shownText(model, 1, StepModel::Number), QStringLiteral("▶ 2"));
    QCOMPARE(shownText(model, 1, StepModel::Replay), QStringLiteral("done"));
    model.setReplayed(99, {{"ok", true}});
    QCOMPARE(model.currentStep(), 1);
    model.append(std::make_shared<RecordedStep>(RecordedStep{{}, {{"do", "reset"}}, nullptr}));
    QCOMPARE(model.rowCount(), 5);
}

QTEST_MAIN(tst_Playback)
#include "tst_Playback.moc"
