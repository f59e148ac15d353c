// What writing and reading the two parameter strings costs beside the same job with Qt's strings and lists.

#include "benchmarks/Interleaved.h"
#include "benchmarks/ParameterStringPeers.h"

#include <OrderParamTable_mini/credit/CreditParameterString.h>
#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

constexpr int kBatch = 200;
constexpr int kWarmUpRounds = 20;
constexpr int kOperation = 22;

// Read by the optimiser as something that may be looked at.
volatile int g_sink = 0;

/// Seconds that @p job takes once, measured over a batch.
template <class Job>
double timeBatch(const Job& job)
{
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < kBatch; ++i)
        job(i);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    return taken.count() / kBatch;
}

ttservice::COrderSetting usualSetting()
{
    ttservice::COrderSetting setting = TC::COrderParamBaseTable::getDefaultOrderSetting(
        ttservice::EOperationType(23), ttservice::TRADER_TYPE_1, ttservice::ORDER_TYPE_ALGORITHM);
    setting.validTimeStart = 1716168600;
    setting.validTimeEnd = 1716188400;
    setting.realField8 = 12.345;
    setting.realField26 = 0.0625;
    setting.realField27 = 123456.789;
    setting.realField30 = -7.5;
    setting.realField33 = 1e6;
    return setting;
}

/// Five operations with six rows each.
bench::CreditValues usualValues()
{
    bench::CreditValues values;
    for (const int operation : {22, 23, 24, 25, 1021}) {
        values[operation] = {{726, QStringLiteral("0301000123456789")},
                             {727, QStringLiteral("600000")},
                             {728, QStringLiteral("1200")},
                             {729, QStringLiteral("300")},
                             {730, QStringLiteral("123456.78")},
                             {731, QStringLiteral("45600")}};
    }
    return values;
}

/// A goal as "our time over the peer's, at most".
void report(const char* job, const bench::Interleaved& contenders, double goal)
{
    const double ratio = contenders.ratio(1);
    std::printf("%-52s %8.3f us %8.3f us  ratio %.3f (%.1f times as fast)", job, contenders.median(1) * 1e6,
                contenders.median(0) * 1e6, ratio, ratio > 0 ? 1 / ratio : 0);
    if (goal > 0)
        std::printf("  goal %.3f: %s", goal, ratio <= goal ? "met" : "not met");
    std::printf("\n");
}

template <class Peer, class Ours>
void compare(const char* job, int rounds, double goal, const Peer& peer, const Ours& ours)
{
    bench::Interleaved contenders;
    contenders.add("peer", peer);
    contenders.add("ours", ours);
    contenders.warmUp(kWarmUpRounds);
    for (int i = 0; i < rounds; ++i)
        contenders.round();
    report(job, contenders, goal);
}

template <class Write>
auto writing(const Write& write)
{
    return [write] { return timeBatch([&write](int) { g_sink = g_sink + write().size(); }); };
}

void compareSettings(int rounds)
{
    const ttservice::COrderSetting setting = usualSetting();
    const auto ours = writing([setting] { return TC::COrderParamBaseTable::orderSetting2Param(setting); });
    const auto byArg = [setting](bench::RealText real) {
        return writing([setting, real = std::move(real)] { return bench::settingByArg(setting, real); });
    };
    const auto byNumber = [setting](bench::RealText real) {
        return writing([setting, real = std::move(real)] { return bench::settingByNumber(setting, real); });
    };
    compare("41 items, beside arg for each item and join", rounds, 0.2, byArg(bench::realByArg), ours);
    compare("41 items, beside arg, reals by the toolkit", rounds, 0, byArg(bench::realByToolkit), ours);
    compare("41 items, beside QString::number and join", rounds, 0, byNumber(bench::realByNumber), ours);
    compare("41 items, beside number, reals by the toolkit", rounds, 0, byNumber(bench::realByToolkit), ours);
}

/// Reads a batch of texts, each into values of its own. Those are made (by reading @p before), with texts that nobody
/// shares, and destroyed outside the measured time.
template <class Read>
auto reading(const QString& text, const QString& before, const Read& read)
{
    return [text, before, read] {
        std::vector<bench::CreditValues> values(kBatch);
        int operation = 0;
        for (bench::CreditValues& one : values)
            bench::readCreditBySplit(before, operation, one);
        return timeBatch([&](int i) {
            read(text, operation, values[std::size_t(i)]);
            g_sink = g_sink + operation;
        });
    };
}

void compareCreditReading(int rounds, const QString& text)
{
    compare("credit, reading into an empty table", rounds, 1 / 2.5, reading(text, {}, bench::readCreditBySplit),
            reading(text, {}, TC::readCreditParameters));
    compare("credit, reading over remembered values", rounds, 1 / 3.5, reading(text, text, bench::readCreditBySplit),
            reading(text, text, TC::readCreditParameters));

    // Entries without a value are looked at and skipped: the same text costs its scan alone.
    QString withoutValues = text;
    withoutValues.replace(QLatin1Char('='), QLatin1Char(':'));
    const auto splitting = [text] {
        return timeBatch([&text](int) { g_sink = g_sink + bench::scanCreditBySplit(text); });
    };
    compare("credit, the scan alone", rounds, 1 / 10.0, splitting,
            reading(withoutValues, {}, TC::readCreditParameters));
}

void compareCreditWriting(int rounds)
{
    const bench::CreditValues values = usualValues();
    compare("credit, writing", rounds, 1 / 4.0,
            writing([&values] { return bench::writeCreditByJoin(kOperation, values); }),
            writing([&values] { return TC::writeCreditParameters(kOperation, values); }));
}

/// The contenders do the same job, or their times say nothing.
bool doTheSame(const QString& text)
{
    const ttservice::COrderSetting setting = usualSetting();
    const QString ours = TC::COrderParamBaseTable::orderSetting2Param(setting);
    int operation = 0;
    int peerOperation = 0;
    bench::CreditValues values;
    bench::CreditValues peerValues;
    return ours == bench::settingByArg(setting, bench::realByArg)
        && ours == bench::settingByNumber(setting, bench::realByToolkit)
        && TC::readCreditParameters(text, operation, values)
        && bench::readCreditBySplit(text, peerOperation, peerValues) && operation == peerOperation
        && values == peerValues && values == usualValues() && bench::writeCreditByJoin(kOperation, values) == text;
}

} // namespace

int main(int argc, char** argv)
{
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 300;
    const QString text = TC::writeCreditParameters(kOperation, usualValues());
    if (!doTheSame(text)) {
        std::fprintf(stderr, "bench_parameter_strings: the contenders give different results\n");
        return EXIT_FAILURE;
    }
    std::printf("medians of %d rounds: the library, its peer\n", rounds);
    compareSettings(rounds);
    compareCreditReading(rounds, text);
    compareCreditWriting(rounds);
    return EXIT_SUCCESS;
}
