// Prints what our cell table and panel cost without a clock: allocations, events, layouts and paints of each operation.
// Under callgrind it leaves the instructions of each in a file (benchmarks/instructions.sh).

#include "benchmarks/Allocations.h"
#include "benchmarks/CostJobs.h"
#include "benchmarks/OwnPeers.h"

#include <QApplication>
#include <QHash>

#include <cstdio>

int main(int argc, char** argv)
{
    // The order of hashed things, and the loop of GLib, would cost a little more or less at each run.
    qSetGlobalQHashSeed(0);
    qputenv("QT_NO_GLIB", "1");
    QApplication application(argc, argv);
    bench::switchOnPanelModules();
    std::printf("%s", qPrintable(bench::writeCosts(bench::countCosts(bench::allocations))));
    return 0;
}
