// Prints what our cell table and panel cost without a clock: allocations, events, layouts and paints of each operation.
// Under callgrind it leaves the instructions of each in a file (benchmarks/instructions.sh).

#include "benchmarks/Allocations.h"
#include "benchmarks/CostJobs.h"
#include "reference/services/ServiceControl.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    reference::setModules(
        {QStringLiteral("mdl_alg/mdl_alg_randvolume"), QStringLiteral("mdl_order/mdl_order_command_remark")});
    std::printf("%s", qPrintable(bench::writeCosts(bench::countCosts(bench::allocations))));
    return 0;
}
