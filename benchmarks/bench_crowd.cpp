// What a panel costs where there are a thousand of it. Each contender runs in a process of its own, which this program
// starts with itself: memory that another one has left would be taken again.

#include "benchmarks/Heap.h"
#include "benchmarks/Median.h"
#include "benchmarks/OwnPeers.h"
#include "benchmarks/Stage.h"
#include "benchmarks/Stopwatch.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QProcess>

#include <cstdio>
#include <map>

namespace {

constexpr int kFew = 10;
constexpr int kMany = 1000;
constexpr int kWarmUp = 12;
constexpr int kRounds = 3;

struct Crowd
{
    double resident = 0;   ///< bytes a panel of many
    double heapGrowth = 0; ///< bytes a panel of many over those of few
    double timeGrowth = 0; ///< time a panel of many over that of few
};

std::unique_ptr<bench::Peer> makeOne(bench::Stage& stage, const bench::Contender& contender, std::vector<double>& times)
{
    const bench::Stopwatch watch;
    auto peer = contender.make(&stage.window());
    peer->widget().setGeometry(bench::Stage::place());
    peer->widget().show();
    bench::Stage::deliver();
    peer->settle();
    times.push_back(watch.seconds());
    bench::Stage::run();
    peer->widget().hide();
    return peer;
}

Crowd gather(const bench::Contender& contender)
{
    bench::Stage stage;
    std::vector<double> times;
    std::vector<std::unique_ptr<bench::Peer>> peers;
    // They stay: what they would leave in the allocator's caches counts as in use and would be taken first.
    for (int i = 0; i < kWarmUp; ++i)
        peers.push_back(makeOne(stage, contender, times));
    times.clear();
    const double resident = bench::residentBytes();
    const double heap = bench::heapBytes();
    for (int i = 0; i < kFew; ++i)
        peers.push_back(makeOne(stage, contender, times));
    const double heapOfFew = (bench::heapBytes() - heap) / kFew;
    const double timeOfFew = bench::medianOf(times);
    for (int i = kFew; i < kMany; ++i)
        peers.push_back(makeOne(stage, contender, times));
    return {(bench::residentBytes() - resident) / kMany, (bench::heapBytes() - heap) / kMany / heapOfFew,
            bench::medianOf(times) / timeOfFew};
}

Crowd gatherElsewhere(const char* contender)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--gather"), QLatin1String(contender)});
    process.waitForFinished(-1);
    const QList<QByteArray> figures = process.readAllStandardOutput().trimmed().split(' ');
    if (process.exitCode() != 0 || figures.size() != 3)
        qFatal("bench_crowd: %s cannot be gathered", contender);
    return {figures.at(0).toDouble(), figures.at(1).toDouble(), figures.at(2).toDouble()};
}

void crowds(benchmark::State& state, double Crowd::*figure)
{
    static std::map<std::string, std::vector<Crowd>> gathered;
    for (const bench::Contender& contender : bench::contenders()) {
        std::vector<double> figures;
        auto& rounds = gathered[contender.name];
        while (rounds.size() < kRounds)
            rounds.push_back(gatherElsewhere(contender.name));
        for (const Crowd& crowd : rounds)
            figures.push_back(crowd.*figure);
        state.counters[contender.name] = bench::medianOf(figures);
    }
    while (state.KeepRunning())
        state.SetIterationTime(0);
}

int gatherHere(const QString& name)
{
    for (const bench::Contender& contender : bench::contenders()) {
        if (name != QLatin1String(contender.name))
            continue;
        const Crowd crowd = gather(contender);
        std::printf("%.0f %.4f %.4f\n", crowd.resident, crowd.heapGrowth, crowd.timeGrowth);
        return 0;
    }
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    bench::keepPixelsOutOfHeap();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    bench::switchOnPanelModules();
    const QStringList arguments = application.arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String("--gather"))
        return gatherHere(arguments.at(2));
    benchmark::RegisterBenchmark("resident", crowds, &Crowd::resident)->UseManualTime()->Iterations(1);
    benchmark::RegisterBenchmark("heap_growth", crowds, &Crowd::heapGrowth)->UseManualTime()->Iterations(1);
    benchmark::RegisterBenchmark("time_growth", crowds, &Crowd::timeGrowth)->UseManualTime()->Iterations(1);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
