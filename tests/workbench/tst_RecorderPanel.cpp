#include "workbench/Appearance.h"
#include "workbench/HostCalls.h"
#include "workbench/Language.h"
#include "workbench/MainWindow.h"
#include "workbench/Playback.h"
#include "workbench/Recorder.h"
#include "workbench/RecorderPanel.h"
#include "workbench/ReplayView.h"
#include "workbench/StepModel.h"
#include "workbench/TableBench.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/Resources.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QProcess>
#include <QPushButton>
#include <QtTest>

using namespace workbench;

namespace {

/// A window with a short recording, stopped.
struct Recorded
{
    Recorded()
        : window(HostData{})
        , panel(*window.recorderPanel())
    {
        panel.playback()->setProgram(QStringLiteral(REPLAY_PROGRAM));
        panel.record();
        hostCall(*window.bench()->table(), calls::kSetStockCode, QStringLiteral("600000"));
        hostCall(*window.bench()->table(), calls::kSetFixedPrice, 10.5);
        panel.stop();
    }

    MainWindow window;
    RecorderPanel& panel;
};

QStringList enabledButtons(const RecorderPanel& panel)
{
    QStringList texts;
    for (const QPushButton* button : panel.findChildren<QPushButton*>())
        if (button->isEnabled())
            texts << button->text();
    return texts;
}

} // namespace

class tst_RecorderPanel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void buttonsAreEnabledWhereTheyMakeSense();
    void eachActionHasAShortcutOfItsOwn();
    void theButtonsSayTheirShortcuts();
    void replayedAtOnceNothingDiffers();
    void aReplayLeavesTheLiveTablesAndServicesAlone();
    void steppingShowsWhatTheObjectLooksLike();
    void differencesAreShown();
    void stopTakesTheMarksAway();
    void savedAndLoadedItReplays();
    void aMalformedFileIsSaidWithItsLine();
    void theTestRunsThroughTheProgram();
    void theScriptIsCopied();
    void itSpeaksBothLanguages();

private:
    QTemporaryDir m_folder;
};

void tst_RecorderPanel::initTestCase()
{
    dressApplication();
}

void tst_RecorderPanel::init()
{
    reference::resetServices();
    setTheme(QStringLiteral("dark"));
    setScale(1.0);
    setLanguage(QStringLiteral("en"));
}

void tst_RecorderPanel::buttonsAreEnabledWhereTheyMakeSense()
{
    MainWindow window({});
    RecorderPanel& panel = *window.recorderPanel();
    panel.playback()->setProgram(QStringLiteral(REPLAY_PROGRAM));
    QCOMPARE(enabledButtons(panel), (QStringList{QStringLiteral("Record"), QStringLiteral("Load…")}));
    panel.record();
    QCOMPARE(enabledButtons(panel), QStringList{QStringLiteral("Stop")});
    panel.stop();
    const QStringList stopped = {QStringLiteral("Record"),      QStringLiteral("Step"),
                                 QStringLiteral("Replay"),      QStringLiteral("Save…"),
                                 QStringLiteral("Load…"),       QStringLiteral("Copy as replay script"),
                                 QStringLiteral("Copy as test")};
    QCOMPARE(enabledButtons(panel), stopped);
    panel.step();
    QVERIFY(enabledButtons(panel).contains(QStringLiteral("Stop")));
    QVERIFY(!enabledButtons(panel).contains(QStringLiteral("Step")));
    QVERIFY(!enabledButtons(panel).contains(QStringLiteral("Record")));
    QTRY_VERIFY(enabledButtons(panel).contains(QStringLiteral("Step")));
    panel.stop();
    QCOMPARE(enabledButtons(panel), stopped);
}

void tst_RecorderPanel::eachActionHasAShortcutOfItsOwn()
{
    MainWindow window({});
    QSet<QString> keys;
    int count = 0;
    for (const QAction* action : window.findChildren<QAction*>()) {
        if (action->shortcut().isEmpty())
            continue;
        ++count;
        keys << action->shortcut().toString();
    }
    QCOMPARE(keys.size(), count);
    for (const QAction* action : window.recorderPanel()->actions())
        QVERIFY2(!action->shortcut().isEmpty(), qPrintable(action->text()));
}

void tst_RecorderPanel::theButtonsSayTheirShortcuts()
{
    MainWindow window({});
    const auto buttons = window.recorderPanel()->findChildren<QPushButton*>();
    QCOMPARE(buttons.size(), 8);
    for (const QPushButton* button : buttons)
        QVERIFY2(button->toolTip().endsWith(QLatin1Char(')')), qPrintable(button->text()));
    QCOMPARE(buttons.at(2)->toolTip(), QStringLiteral("Replay the next step, beside the live panels (F10)"));
}

void tst_RecorderPanel::replayedAtOnceNothingDiffers()
{
    Recorded recorded;
    recorded.panel.replay();
    QTRY_VERIFY(!recorded.panel.playback()->isRunning());
    const int count = recorded.panel.model()->rowCount();
    QVERIFY(count > 5);
    QCOMPARE(recorded.panel.model()->currentStep(), count - 1);
    QCOMPARE(recorded.panel.model()->differingSteps(), 0);
    QCOMPARE(recorded.panel.message(),
             QStringLiteral("Replay: step %1 of %1 · 0 steps answered otherwise.").arg(count));
}

void tst_RecorderPanel::aReplayLeavesTheLiveTablesAndServicesAlone()
{
    reference::setModules({QStringLiteral("mdl_a/b")});
    Recorded recorded;
    reference::setModules({QStringLiteral("mdl_c/d")});
    setTheme(QStringLiteral("light"));
    const auto* table = recorded.window.bench()->table();
    recorded.panel.replay();
    QTRY_VERIFY(!recorded.panel.playback()->isRunning());
    QCOMPARE(recorded.window.bench()->table(), table);
    QCOMPARE(reference::modules(), QSet<QString>{QStringLiteral("mdl_c/d")});
    QCOMPARE(WQ::resources::theme(), QStringLiteral("light"));
}

void tst_RecorderPanel::steppingShowsWhatTheObjectLooksLike()
{
    Recorded recorded;
    auto* view = recorded.panel.findChild<ReplayView*>();
    QVERIFY(!view->isVisible());
    for (int step = 0; !view->isVisible() && step < recorded.panel.model()->rowCount(); ++step) {
        recorded.panel.step();
        QTRY_VERIFY(!recorded.panel.playback()->isBusy());
    }
    QVERIFY(view->isVisible());
    QCOMPARE(view->windowTitle(),
             QStringLiteral("Replay: step %1 of %2")
                 .arg(recorded.panel.model()->currentStep() + 1)
                 .arg(recorded.panel.model()->rowCount()));
    recorded.panel.stop();
    QVERIFY(!view->isVisible());
}

void tst_RecorderPanel::differencesAreShown()
{
    Recorded recorded;
    const QString path = m_folder.filePath(QStringLiteral("other.jsonl"));
    QVERIFY(recorded.panel.save(path));
    Recording recording;
    QVERIFY(loadRecording(path, recording).isGood());
    recording.steps.front()->answer["ok"] = false;
    QVERIFY(saveRecording(recording, path).isGood());
    QVERIFY(recorded.panel.load(path));
    recorded.panel.replay();
    QTRY_VERIFY(!recorded.panel.playback()->isRunning());
    QCOMPARE(recorded.panel.model()->differingSteps(), 1);
    QCOMPARE(recorded.panel.model()->index(0, StepModel::Replay).data().toString(),
             QStringLiteral("differs: ok: expected false, got true"));
    QVERIFY(recorded.panel.message().endsWith(QStringLiteral("1 step answered otherwise.")));
}

void tst_RecorderPanel::stopTakesTheMarksAway()
{
    Recorded recorded;
    recorded.panel.step();
    QTRY_COMPARE(recorded.panel.model()->currentStep(), 0);
    recorded.panel.stop();
    QVERIFY(!recorded.panel.playback()->isRunning());
    QCOMPARE(recorded.panel.model()->currentStep(), -1);
}

void tst_RecorderPanel::savedAndLoadedItReplays()
{
    const QString path = m_folder.filePath(QStringLiteral("saved.jsonl"));
    {
        Recorded recorded;
        QVERIFY(recorded.panel.save(path));
    }
    MainWindow window({});
    RecorderPanel& panel = *window.recorderPanel();
    panel.playback()->setProgram(QStringLiteral(REPLAY_PROGRAM));
    QVERIFY(panel.load(path));
    panel.replay();
    QTRY_VERIFY(!panel.playback()->isRunning());
    QCOMPARE(panel.model()->currentStep(), panel.model()->rowCount() - 1);
    QCOMPARE(panel.model()->differingSteps(), 0);
}

void tst_RecorderPanel::aMalformedFileIsSaidWithItsLine()
{
    Recorded recorded;
    const int count = recorded.panel.model()->rowCount();
    const QString path = m_folder.filePath(QStringLiteral("malformed.jsonl"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"do\":\"reset\"}\n{\"do\":\n");
    file.close();
    QVERIFY(!recorded.panel.load(path));
    QVERIFY2(recorded.panel.message().startsWith(path + QStringLiteral(": line 2: is no JSON")),
             qPrintable(recorded.panel.message()));
    QCOMPARE(recorded.panel.model()->rowCount(), count);
    QVERIFY(!recorded.panel.load(m_folder.filePath(QStringLiteral("missing.jsonl"))));
    QVERIFY(recorded.panel.message().contains(QStringLiteral("cannot be read")));
    QVERIFY(!recorded.panel.save(QStringLiteral("/dev/null/a.jsonl")));
    QVERIFY(recorded.panel.message().contains(QStringLiteral("cannot be written")));
    recorded.panel.step();
    QTRY_COMPARE(recorded.panel.model()->currentStep(), 0);
    QVERIFY(recorded.panel.message().startsWith(QStringLiteral("Replay: step 1")));
}

void tst_RecorderPanel::theTestRunsThroughTheProgram()
{
    Recorded recorded;
    recorded.panel.copyTest();
    QProcess shell;
    shell.setWorkingDirectory(m_folder.path());
    shell.start(QStringLiteral("/bin/sh"), {});
    shell.write(QApplication::clipboard()->text().toUtf8());
    shell.closeWriteChannel();
    QVERIFY(shell.waitForFinished());
    QProcess replay;
    replay.setWorkingDirectory(m_folder.path());
    replay.start(
        QStringLiteral(REPLAY_PROGRAM),
        {QStringLiteral("--expect"), QStringLiteral("recording.expected.jsonl"), QStringLiteral("recording.jsonl")});
    QVERIFY(replay.waitForFinished());
    QCOMPARE(replay.readAllStandardOutput(), QByteArray());
    QCOMPARE(replay.exitCode(), 0);
}

void tst_RecorderPanel::theScriptIsCopied()
{
    Recorded recorded;
    recorded.panel.copyScript();
    const QString script = QApplication::clipboard()->text();
    QVERIFY(script.startsWith(QStringLiteral("{\"do\":\"reset\"}\n{\"do\":\"clock\",")));
    QVERIFY(script.contains(QStringLiteral("# Recorded from here on.\n")));
    QVERIFY(script.contains(
        QStringLiteral("{\"do\":\"call\",\"on\":\"panel\",\"op\":\"setFixedPrice\",\"args\":[10.5]}\n")));
}

void tst_RecorderPanel::itSpeaksBothLanguages()
{
    Recorded recorded;
    recorded.window.chooseLanguage(QStringLiteral("zh_CN"));
    QTRY_COMPARE(enabledButtons(recorded.panel).first(), QStringLiteral("录制"));
    QCOMPARE(recorded.panel.model()->headerData(StepModel::Command, Qt::Horizontal, Qt::DisplayRole).toString(),
             QStringLiteral("命令"));
}

QTEST_MAIN(tst_RecorderPanel)
#include "tst_RecorderPanel.moc"
