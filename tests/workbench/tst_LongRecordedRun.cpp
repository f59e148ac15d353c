#include "RunWitness.h"
#include "WindowPerson.h"
#include "WindowWalk.h"

#include "workbench/Appearance.h"
#include "workbench/HostData.h"
#include "workbench/MainWindow.h"
#include "workbench/Recorder.h"
#include "workbench/RecorderPanel.h"

#include "reference/services/ServiceControl.h"
#include "replay/Script.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <memory>

using namespace workbench;
using person::RunWitness;
using person::WindowWalk;
using replay::Json;

namespace {

constexpr int kFewestSteps = 60;
constexpr int kActs = 150;

QByteArray lineOf(const Json& command)
{
    return QByteArray::fromStdString(replay::writtenLine(command)) + '\n';
}

/// Windows show and size what stands in them by themselves; everything else is somebody's deed.
bool isDeed(const RecordedStep& step)
{
    return step.command["do"] != "show" && step.command["do"] != "resize";
}

int deedsOf(const Recording& recording)
{
    const auto begin = recording.steps.begin() + std::ptrdiff_t(recording.preparation);
    return int(std::count_if(begin, recording.steps.end(), [](const auto& step) { return isDeed(*step); }));
}

/// The step of that kind that was recorded last; none of them before the recording began.
std::ptrdiff_t lastOf(const Recording& recording, const std::string& command)
{
    for (auto i = std::ptrdiff_t(recording.steps.size()); i-- > std::ptrdiff_t(recording.preparation);)
        if (recording.steps[std::size_t(i)]->command["do"] == command)
            return i;
    return -1;
}

/// What the program answers to scripts, in a process of its own.
std::vector<Json> replayed(const QStringList& scripts)
{
    QProcess program;
    program.start(QStringLiteral(REPLAY_PROGRAM), scripts);
    if (!program.waitForFinished())
        return {};
    std::vector<Json> answers;
    while (program.canReadLine())
        answers.push_back(Json::parse(program.readLine().toStdString()));
    return answers;
}

void writeLines(const QString& path, const std::vector<Json>& commands)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    for (const Json& command : commands)
        file.write(lineOf(command));
}

} // namespace

/// A person records, works through all parts of the window by mouse and keys, and saves; the program that replays the
/// script has to hear and to end up with the same.
class tst_LongRecordedRun : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void theWalkReplaysToTheSame();
    void allKindsOfStepsAreRecorded_data();
    void allKindsOfStepsAreRecorded();
    void aStepThatIsLeftOutIsNoticed_data();
    void aStepThatIsLeftOutIsNoticed();
    void wanderingReplaysToTheSame_data();
    void wanderingReplaysToTheSame();

private:
    void record(const std::function<void(WindowWalk&)>& work);
    void compare(const QString& script);
    std::vector<std::string> differencesWithout(std::ptrdiff_t left) const;

    QTemporaryDir m_folder;
    QString m_script;
    QString m_questions;
    Recording m_recording;
    std::unique_ptr<RunWitness> m_witness;
};

void tst_LongRecordedRun::initTestCase()
{
    dressApplication();
    m_script = m_folder.filePath(QStringLiteral("run.jsonl"));
    m_questions = m_folder.filePath(QStringLiteral("questions.jsonl"));
}

void tst_LongRecordedRun::init()
{
    reference::resetServices();
    setTheme(QStringLiteral("dark"));
    setScale(1.0);
}

void tst_LongRecordedRun::record(const std::function<void(WindowWalk&)>& work)
{
    const auto window = person::open(loadHostData(QString()));
    WindowWalk walk(*window);
    walk.record();
    m_witness = std::make_unique<RunWitness>(*window);
    work(walk);
    walk.stop();
    m_recording = window->recorder()->recording();
    m_witness->lookAround(m_recording);
    writeLines(m_questions, m_witness->questions());
    QVERIFY(window->recorderPanel()->save(m_script));
    qInfo("%d steps and %d events after %d that led there", int(m_recording.steps.size() - m_recording.preparation),
          m_witness->heard(), int(m_recording.preparation));
    QVERIFY(deedsOf(m_recording) >= kFewestSteps);
    QVERIFY(m_witness->heard() > 0);
}

void tst_LongRecordedRun::compare(const QString& script)
{
    const std::vector<Json> answers = replayed({script, m_questions});
    for (const std::string& difference : m_witness->differences(m_recording, answers))
        QFAIL(difference.c_str());
    for (const Json& answer : answers)
        QVERIFY(answer["ok"].get<bool>());
}

std::vector<std::string> tst_LongRecordedRun::differencesWithout(std::ptrdiff_t left) const
{
    Recording shorter = m_recording;
    shorter.steps.erase(shorter.steps.begin() + left);
    std::vector<Json> commands;
    for (const auto& step : shorter.steps)
        commands.push_back(step->command);
    const QString script = m_folder.filePath(QStringLiteral("shorter.jsonl"));
    writeLines(script, commands);
    return m_witness->differences(shorter, replayed({script, m_questions}));
}

void tst_LongRecordedRun::theWalkReplaysToTheSame()
{
    record([](WindowWalk& walk) { walk.walk(); });
    compare(m_script);
}

void tst_LongRecordedRun::allKindsOfStepsAreRecorded_data()
{
    QTest::addColumn<QString>("command");
    for (const char* command : {"new", "delete", "call", "addButton", "event", "edit", "click", "filter", "filterReset",
                                "modules", "clientMode", "clock", "scale", "theme", "show", "resize"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

void tst_LongRecordedRun::allKindsOfStepsAreRecorded()
{
    QFETCH(QString, command);
    QVERIFY(lastOf(m_recording, command.toStdString()) >= 0);
}

/// Not those that nothing shows of: a theme, a client mode that no cell asks for, and sizes that are set once more.
void tst_LongRecordedRun::aStepThatIsLeftOutIsNoticed_data()
{
    QTest::addColumn<QString>("command");
    for (const char* command :
         {"new", "delete", "addButton", "event", "edit", "click", "filter", "filterReset", "modules", "clock", "scale"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

void tst_LongRecordedRun::aStepThatIsLeftOutIsNoticed()
{
    QFETCH(QString, command);
    const std::ptrdiff_t left = lastOf(m_recording, command.toStdString());
    QVERIFY(left >= 0);
    QVERIFY(!differencesWithout(left).empty());
}

void tst_LongRecordedRun::wanderingReplaysToTheSame_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 5; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_LongRecordedRun::wanderingReplaysToTheSame()
{
    QFETCH(quint32, seed);
    record([seed](WindowWalk& walk) { walk.wander(seed, kActs); });
    compare(m_script);
}

QTEST_MAIN(tst_LongRecordedRun)
#include "tst_LongRecordedRun.moc"
