#include "Stations.h"
#include "Walker.h"

#include "workbench/Playback.h"
#include "workbench/RecorderPanel.h"

#include <OrderParamTable_mini/semantics/OrderVocabulary.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDockWidget>
#include <QFile>
#include <QtTest>

namespace walk {

namespace {

QDockWidget& recorder(Walker& w)
{
    return w.part(w.say("Recorder", "录制"));
}

QString contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void aRunIsRecorded(Walker& w)
{
    w.window().recorderPanel()->playback()->setProgram(QStringLiteral(REPLAY_PROGRAM));
    QDockWidget& part = w.goTo("Recorder", "录制");
    w.hands().clickButton(part, w.say("Record", "录制"));
    const int before = Walker::rows(part).size();
    w.hands().clickValue(TC::OCF_SuperPrice);
    w.hands().type(QStringLiteral("0.81"));
    w.hands().press(Qt::Key_Return);
    w.picture("recording");
    QVERIFY(Walker::rows(part).size() > before);
    QVERIFY2(Walker::rows(part).join(QLatin1Char('\n')).contains(QStringLiteral("0.81")),
             qPrintable(Walker::rows(part).constLast()));
    w.hands().press(Qt::Key_Period, Qt::ControlModifier);
    QVERIFY(w.labels(part).join(QLatin1Char('\n')).contains(w.say("steps.", "步。")));
}

void aStepIsReplayed(Walker& w)
{
    w.hands().press(Qt::Key_F10);
    QTRY_VERIFY(!w.window().recorderPanel()->playback()->isBusy());
    const QString said = w.labels(recorder(w)).join(QLatin1Char('\n'));
    QVERIFY2(said.contains(w.say("Replay: step 1 of ", "回放：第 1 步，共 ")), qPrintable(said));
}

void theRestIsReplayed(Walker& w)
{
    w.hands().clickButton(recorder(w), w.say("Replay", "回放"));
    QTRY_VERIFY(!w.window().recorderPanel()->playback()->isRunning());
    const QString said = w.labels(recorder(w)).join(QLatin1Char('\n'));
    QVERIFY2(said.contains(w.say("0 steps answered otherwise.", "0 步应答不同。")), qPrintable(said));
    w.picture("replayed");
    w.hands().press(Qt::Key_Period, Qt::ControlModifier);
}

void theRunIsSavedAndLoaded(Walker& w)
{
    const QString path = w.scratchFile(QStringLiteral("run.jsonl"));
    w.giveFile([&w] { w.hands().press(Qt::Key_S, Qt::ControlModifier); }, path);
    QVERIFY2(contents(path).contains(QStringLiteral("0.81")), qPrintable(path));
    const QStringList rows = Walker::rows(recorder(w));
    w.giveFile([&w] { w.hands().press(Qt::Key_O, Qt::ControlModifier); }, path);
    QCOMPARE(Walker::rows(recorder(w)), rows);
}

void theRunIsCopied(Walker& w)
{
    w.hands().clickButton(recorder(w), w.say("Copy as replay script", "复制为回放脚本"));
    const QString script = QApplication::clipboard()->text();
    QVERIFY2(script.contains(QStringLiteral(R"({"do":"edit","on":"panel","cell":2,"value":0.81})")),
             qPrintable(script));
    w.hands().clickButton(recorder(w), w.say("Copy as test", "复制为测试"));
    const QString test = QApplication::clipboard()->text();
    QVERIFY2(test.startsWith(QStringLiteral("cat > run.jsonl")) && test.contains(QStringLiteral("0.81")),
             qPrintable(test));
}

/// The collapsed algorithm keeps its volumes to itself.
void whyIsAsked(Walker& w)
{
    QDockWidget& why = w.goTo("Why?", "为什么？");
    QComboBox& cell = *why.findChild<QComboBox*>();
    w.hands().clickArrow(cell);
    w.picture("why-cells");
    w.hands().clickEntry(QStringLiteral("0x200  "));
    const QString said = w.labels(why).join(QLatin1Char('\n'));
    QVERIFY2(said.contains(w.say("0x200  单笔最小量: hidden.", "0x200  单笔最小量：隐藏。")), qPrintable(said));
    w.hands().clickLabel(TC::OCF_BaseVolume);
    const QString followed = w.labels(why).join(QLatin1Char('\n'));
    QVERIFY2(followed.contains(w.say("0x10  单笔基准量: shown.", "0x10  单笔基准量：显示。")), qPrintable(followed));
}

/// Hong Kong accounts have no super price, no start count and no base volume.
void twoTablesAreCompared(Walker& w)
{
    QDockWidget& compare = w.goTo("Compare", "比较");
    auto* const broker = w.named<QComboBox>(compare, w.say("Right: Broker type", "右: 账号类型"));
    QVERIFY(broker);
    w.hands().click(*broker, QPoint(10, broker->height() / 2));
    w.hands().press(Qt::Key_A, Qt::ControlModifier);
    w.hands().type(QStringLiteral("7"));
    w.hands().press(Qt::Key_Return);
    w.hands().clickButton(compare, w.say("Differences only", "仅显示差异"));
    const QString rows = Walker::rows(compare).join(QLatin1Char('\n'));
    QVERIFY2(rows.contains(QStringLiteral("单笔基准量")), qPrintable(rows));
    const QString path = w.scratchFile(QStringLiteral("compare.csv"));
    w.giveFile([&] { w.hands().clickButton(compare, w.say("Export…", "导出…")); }, path);
    QCOMPARE(contents(path).count(QLatin1Char('\n')), Walker::rows(compare).size() + 1);
}

} // namespace

Stations recorderStations()
{
    return {
        {"recorded", aRunIsRecorded},      {"step", aStepIsReplayed},  {"replay", theRestIsReplayed},
        {"saved", theRunIsSavedAndLoaded}, {"copied", theRunIsCopied}, {"why", whyIsAsked},
        {"compare", twoTablesAreCompared},
    };
}

} // namespace walk
