// What an order panel costs beside the same panel made otherwise. QT_SCALE_FACTOR sets the pixel ratio, --style-sheet
// puts one on the application.

#include "benchmarks/CountJobs.h"
#include "benchmarks/Heap.h"
#include "benchmarks/OwnPeers.h"
#include "benchmarks/PanelJobs.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    bench::keepPixelsOutOfHeap();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    if (application.arguments().contains(QStringLiteral("--style-sheet")))
        application.setStyleSheet(bench::applicationStyleSheet());
    bench::switchOnPanelModules();
    const QString differences = bench::differencesOfContenders();
    if (!differences.isEmpty()) {
        std::fprintf(stderr, "bench_panel: ERROR OCCURRED: %s\n", qPrintable(differences));
        return 1;
    }
    bench::registerPanelJobs();
    bench::registerCountJobs();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
