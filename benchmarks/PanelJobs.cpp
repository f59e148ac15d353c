#include "benchmarks/PanelJobs.h"

#include "benchmarks/EditorJob.h"
#include "benchmarks/Heap.h"
#include "benchmarks/OwnPeers.h"
#include "benchmarks/OwnTable.h"
#include "benchmarks/Rounds.h"
#include "benchmarks/Stage.h"
#include "benchmarks/Stopwatch.h"

#include <QCoreApplication>
#include <QEvent>

namespace bench {

namespace {

constexpr int kRounds = 100;
constexpr int kBatch = 10; // even; what is short alone is measured by the clock and by what others left in the caches
constexpr int kHeapPanels = 50;

/// What paints is caught up with: a held back request is asked for again.
void paintNow(Stage& stage)
{
    QCoreApplication::postEvent(&stage.window(), new QEvent(QEvent::UpdateRequest));
    Stage::run();
}

double timeConstruction(Stage& stage, const Contender& contender)
{
    double seconds = 0;
    {
        const PaintHold hold;
        const Stopwatch watch;
        stage.put(contender);
        seconds = watch.seconds();
    }
    stage.clear();
    Stage::run();
    return seconds;
}

double timeDestruction(Stage& stage, const Contender& contender)
{
    stage.put(contender);
    Stage::run();
    const Stopwatch watch;
    stage.clear();
    const double seconds = watch.seconds();
    Stage::run();
    return seconds;
}

/// One switch of a batch there and back.
double timeSwitchWithoutPaint(Stage& stage)
{
    double seconds = 0;
    {
        const PaintHold hold;
        const Stopwatch watch;
        for (int i = 1; i <= kBatch; ++i) {
            stage.peer().switchTo(modes()[std::size_t(i % 2)]);
            stage.settle();
        }
        seconds = watch.seconds();
    }
    paintNow(stage);
    return seconds / kBatch;
}

double timeSwitch(Stage& stage, const Mode& mode)
{
    const Stopwatch watch;
    stage.peer().switchTo(mode);
    Stage::run();
    return watch.seconds();
}

double timeRepaint(Stage& stage)
{
    const Stopwatch watch;
    stage.paintWhole();
    return watch.seconds();
}

/// One change of a batch.
double timeValue(Stage& stage, int batch)
{
    const Stopwatch watch;
    for (int i = 0; i < kBatch; ++i) {
        stage.peer().changeNumber(changedNumber(batch * kBatch + i));
        Stage::deliver();
    }
    return watch.seconds() / kBatch;
}

double heapOfOne(const Contender& contender)
{
    Stage stage;
    std::vector<std::unique_ptr<Peer>> peers;
    const auto addOne = [&] {
        peers.push_back(contender.make(&stage.window()));
        peers.back()->widget().setGeometry(Stage::place());
        peers.back()->widget().show();
        Stage::run();
        peers.back()->widget().hide();
    };
    addOne();
    const double before = heapBytes();
    for (int i = 0; i < kHeapPanels; ++i)
        addOne();
    return (heapBytes() - before) / kHeapPanels;
}

/// A stage for each contender.
std::vector<std::unique_ptr<Stage>> emptyStages()
{
    std::vector<std::unique_ptr<Stage>> stages;
    for (std::size_t i = 0; i < contenders().size(); ++i)
        stages.push_back(std::make_unique<Stage>());
    return stages;
}

/// A stage for each contender, which stands on it and is painted.
std::vector<std::unique_ptr<Stage>> fullStages()
{
    auto stages = emptyStages();
    for (std::size_t i = 0; i < stages.size(); ++i) {
        stages[i]->put(contenders()[i]);
        stages[i]->peer().switchTo(modes()[0]);
        Stage::run();
    }
    return stages;
}

template <class Job>
void playOnEmptyStages(benchmark::State& state, const Job& job)
{
    auto stages = emptyStages();
    Interleaved rounds;
    for (std::size_t i = 0; i < stages.size(); ++i)
        rounds.add(contenders()[i].name,
                   [&stage = *stages[i], &one = contenders()[i], &job] { return job(stage, one); });
    playRounds(state, rounds);
}

/// @p job gets how often its contender has been at it.
template <class Job>
void playOnFullStages(benchmark::State& state, const Job& job)
{
    auto stages = fullStages();
    Interleaved rounds;
    for (std::size_t i = 0; i < stages.size(); ++i) {
        rounds.add(contenders()[i].name,
                   [&stage = *stages[i], &job, step = 0]() mutable { return job(stage, ++step); });
    }
    playRounds(state, rounds);
}

void construct(benchmark::State& state)
{
    playOnEmptyStages(state, timeConstruction);
}

void destroy(benchmark::State& state)
{
    playOnEmptyStages(state, timeDestruction);
}

void switchWithoutPaint(benchmark::State& state)
{
    playOnFullStages(state, [](Stage& stage, int) { return timeSwitchWithoutPaint(stage); });
}

void switchWithPaint(benchmark::State& state)
{
    playOnFullStages(state, [](Stage& stage, int step) { return timeSwitch(stage, modes()[std::size_t(step % 2)]); });
}

void repaint(benchmark::State& state)
{
    playOnFullStages(state, [](Stage& stage, int) { return timeRepaint(stage); });
}

void changeValue(benchmark::State& state)
{
    playOnFullStages(state, [](Stage& stage, int step) { return timeValue(stage, step); });
}

void heap(benchmark::State& state)
{
    for (const Contender& contender : contenders())
        state.counters[contender.name] = heapOfOne(contender);
    while (state.KeepRunning())
        state.SetIterationTime(0);
}

QString idText(const QSet<int>& ids)
{
    QStringList texts;
    for (const Row& row : rows()) {
        if (ids.contains(row.id))
            texts.append(QStringLiteral("0x%1").arg(QString::number(row.id, 16)));
    }
    return texts.join(QLatin1Char(' '));
}

void compareShownRows(QStringList& differences, const Contender& contender)
{
    Stage stage;
    Peer& peer = stage.put(contender);
    for (const Mode& mode : {modes()[0], modes()[1], modes()[0]}) {
        peer.switchTo(mode);
        stage.settle();
        if (peer.shownRows() != mode.shown)
            differences.append(QStringLiteral("%1 shows %2 instead of %3")
                                   .arg(QLatin1String(contender.name), idText(peer.shownRows()), idText(mode.shown)));
    }
}

} // namespace

QString differencesOfContenders()
{
    QStringList differences;
    for (const Contender& contender : contenders())
        compareShownRows(differences, contender);
    Stage stage;
    for (const ContenderIndex own : {CellTableIndex, PanelIndex}) {
        auto& peer = dynamic_cast<OwnPeer&>(stage.put(contenders()[own]));
        if (rowNamesOf(peer.table()) != rowNames())
            differences.append(QStringLiteral("%1 has other rows").arg(QLatin1String(contenders()[own].name)));
    }
    return differences.join(QLatin1Char('\n'));
}

QString applicationStyleSheet()
{
    return QStringLiteral("QWidget { font-size: 12px; }"
                          "QLabel { color: #202020; padding: 1px; }"
                          "QPushButton { border: 1px solid #808080; border-radius: 2px; padding: 2px 6px; }"
                          "QAbstractSpinBox, QLineEdit, QComboBox { border: 1px solid #808080; padding: 1px 2px; }"
                          "QAbstractSpinBox:focus, QLineEdit:focus { border: 1px solid #3060c0; }"
                          "QTableView, QScrollArea { border: 1px solid #808080; background: #f4f4f4; }");
}

void registerPanelJobs()
{
    registerRounds("construct", construct, kRounds);
    registerRounds("switch_layout", switchWithoutPaint, kRounds);
    registerRounds("switch_paint", switchWithPaint, kRounds);
    registerRounds("repaint", repaint, kRounds);
    registerRounds("value", changeValue, kRounds);
    registerRounds("destroy", destroy, kRounds);
    registerRounds("heap", heap, 1);
    registerRounds("editor", openEditor, kRounds);
}

} // namespace bench
