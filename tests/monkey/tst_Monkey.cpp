#include "monkey/Monkey.h"

#include "replay/Expectation.h"
#include "replay/Script.h"

#include <QApplication>
#include <QFile>
#include <QtTest>

#include <cstdio>
#include <fstream>
#include <sstream>

using monkey::Json;
using monkey::RunReport;
using monkey::RunSetup;
using monkey::Stage;

namespace {

constexpr quint64 kSeed = 20260101;

// At most one script in so many may lead elsewhere: what a person is typing while the host calls is committed inside
// the call, and no script can say that.
constexpr int kFewest = 10;

/// So many actions leave no kind of event out; the short runs under sanitizers may.
constexpr long long kActionsThatCauseAll = 50000;
constexpr long long kMostGrowth = 16 << 20;

long long numberFrom(const char* variable, long long otherwise)
{
    bool isNumber = false;
    const long long asked = qEnvironmentVariable(variable).toLongLong(&isNumber);
    return isNumber ? asked : otherwise;
}

RunSetup setup(long long actions)
{
    RunSetup run;
    run.seed = static_cast<quint64>(numberFrom("ORDERPARAM_SEED", kSeed));
    run.actions = actions;
    run.scriptFolder = QStringLiteral(MONKEY_SCRIPT_FOLDER);
    return run;
}

RunSetup failingAt(long long action, quint64 seed)
{
    RunSetup run = setup(action + 1);
    run.seed = seed;
    run.alsoCheck = [action](Stage&, long long done) {
        return done == action ? QStringLiteral("as arranged") : QString();
    };
    return run;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray said(const RunReport& report)
{
    return QStringLiteral("%1; the script that leads there: %2").arg(report.failure, report.script).toUtf8();
}

} // namespace

class tst_Monkey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void nothingGoesWrongWhateverIsPressedAndCalled();
    void theSameSeedDoesTheSame();
    void aFailureIsSavedAsAScriptThatLeadsToTheSameState_data();
    void aFailureIsSavedAsAScriptThatLeadsToTheSameState();
    void aWarningOfQtIsAFailure();
    void whatIsDoneStandsInTheScriptAtOnce();
};

void tst_Monkey::initTestCase()
{
    QApplication::setCursorFlashTime(0);
}

void tst_Monkey::nothingGoesWrongWhateverIsPressedAndCalled()
{
    const RunSetup run = setup(numberFrom("ORDERPARAM_MONKEY_ACTIONS", MONKEY_ACTIONS));
    const RunReport report = monkey::run(run);
    std::printf("monkey: %lld actions, %d warnings, seed %llu\n", report.actions, report.warnings, run.seed);
    std::printf("monkey: %d scripts replayed, %d to another end, %lld bytes grown, committed:", report.replayed,
                report.replayedApart, report.grown);
    for (const auto& [event, count] : report.deeds)
        std::printf(" %d: %lld", event, count);
    std::printf("\n");
    QVERIFY2(report.failure.isEmpty(), said(report).constData());
    QCOMPARE(report.actions, run.actions);
    for (const int event : {5, 73, 87, 101, 102, 118, 124, 248}) {
        const bool isCaused = report.deeds.count(event) > 0 || report.actions < kActionsThatCauseAll;
        QVERIFY2(isCaused, QByteArray::number(event) + " was never caused");
    }
    QVERIFY2(report.replayedApart * kFewest <= report.replayed, "the scripts hardly lead to the same states");
    QVERIFY2(report.grown < kMostGrowth, QByteArray::number(report.grown).constData());
}

void tst_Monkey::theSameSeedDoesTheSame()
{
    const RunSetup run = failingAt(300, 7);
    const QByteArray first = contentOf(monkey::run(run).script);
    const QByteArray second = contentOf(monkey::run(run).script);
    QVERIFY(first.count('\n') > 300);
    QCOMPARE(first, second);
    QVERIFY(contentOf(monkey::run(failingAt(300, 8)).script) != first);
}

void tst_Monkey::aFailureIsSavedAsAScriptThatLeadsToTheSameState_data()
{
    QTest::addColumn<quint64>("seed");
    QTest::addColumn<long long>("action");
    QTest::newRow("in the first episode") << quint64(1) << 437LL;
    QTest::newRow("in a later one") << quint64(2) << 1290LL;
    QTest::newRow("at once") << quint64(3) << 1LL;
}

void tst_Monkey::aFailureIsSavedAsAScriptThatLeadsToTheSameState()
{
    QFETCH(quint64, seed);
    QFETCH(long long, action);
    const RunReport report = monkey::run(failingAt(action, seed));
    QCOMPARE(report.failure, QStringLiteral("as arranged"));
    QCOMPARE(report.actions, action);
    replay::Session session;
    std::ifstream script(report.script.toStdString());
    std::ostringstream answers;
    replay::runScript(session, script, answers);
    for (const Stage::Slot& slot : Stage::slotRows()) {
        const Json state = session.run({{"do", "dump"}, {"on", slot.name}})["result"];
        QVERIFY2(state.is_object(), slot.name);
        for (const std::string& difference : replay::differences(report.states[slot.name], state))
            QFAIL(qPrintable(QLatin1String(slot.name) + QStringLiteral(": ") + QString::fromStdString(difference)));
    }
    QFile::remove(report.script);
}

void tst_Monkey::aWarningOfQtIsAFailure()
{
    RunSetup run = setup(500);
    run.seed = 4;
    run.alsoCheck = [](Stage&, long long action) {
        if (action == 20)
            qWarning("said on purpose");
        return QString();
    };
    const RunReport report = monkey::run(run);
    QCOMPARE(report.failure, QStringLiteral("warning: said on purpose"));
    QCOMPARE(report.warnings, 1);
    QCOMPARE(report.actions, 21LL);
    QFile::remove(report.script);
}

void tst_Monkey::whatIsDoneStandsInTheScriptAtOnce()
{
    RunSetup run = setup(100);
    run.seed = 5;
    int seen = 0;
    run.alsoCheck = [&seen](Stage& stage, long long) {
        const Json command = {{"do", "clientMode"}, {"value", 7000 + seen}};
        stage.run(command);
        const bool isThere = contentOf(stage.script().path()).contains(command.dump().c_str());
        seen += isThere ? 1 : 0;
        return QString();
    };
    QCOMPARE(monkey::run(run).failure, QString());
    QCOMPARE(seen, 100);
}

QTEST_MAIN(tst_Monkey)
#include "tst_Monkey.moc"
