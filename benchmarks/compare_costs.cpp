// Compares costs with their baseline, both as CostBaseline.h reads them.
//
//   compare_costs BASELINE MEASURED
//
// Exit status 1 tells of a cost that has risen, is new or is gone, 2 of a file that cannot be read.

#include "benchmarks/CostBaseline.h"

#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace {

// In twenty runs beside builds the instructions of an operation varied by at most 1.6 %, those of the smallest ones by
// none; an allocation that leaves the allocator's fast path is 300 more, which is a third of the smallest.
constexpr bench::Tolerance kTolerance{0.05, 500};

void print(const char* title, const QStringList& lines)
{
    for (const QString& line : lines)
        std::printf("%s: %s\n", title, qPrintable(line));
}

bench::Costs readFile(const char* path)
{
    QFile file(QString::fromLocal8Bit(path));
    QStringList problems;
    bench::Costs costs;
    if (file.open(QIODevice::ReadOnly))
        costs = bench::readCosts(QString::fromUtf8(file.readAll()), problems);
    print("not a cost", problems);
    if (!costs.isEmpty() && problems.isEmpty())
        return costs;
    std::fprintf(stderr, "compare_costs: no costs can be read from %s\n", path);
    std::exit(2);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: compare_costs BASELINE MEASURED\n");
        return 2;
    }
    const bench::Costs baseline = readFile(argv[1]);
    const bench::Costs measured = readFile(argv[2]);
    const bench::Comparison comparison = bench::compareCosts(baseline, measured, kTolerance);
    print("worse", comparison.wrong);
    print("better (benchmarks/update-baseline.sh keeps it)", comparison.better);
    std::printf("%d costs compared, %d worse, %d better\n", measured.size(), comparison.wrong.size(),
                comparison.better.size());
    return comparison.wrong.isEmpty() ? 0 : 1;
}
