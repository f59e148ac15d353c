// What writing and reading the two parameter strings costs beside the same job with Qt's strings and lists.

#include "benchmarks/Allocations.h"
#include "benchmarks/ParameterStringPeers.h"
#include "benchmarks/Rounds.h"
#include "benchmarks/Stopwatch.h"

#include <OrderParamTable_mini/credit/CreditParameterString.h>
#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr int kBatch = 200;
constexpr int kRounds = 200;
constexpr int kOperation = 22;

// Read by the optimiser as something that may be looked at.
volatile int g_sink = 0;

/// Seconds that @p job takes once, measured over a batch.
template <class Job>
double timeBatch(const Job& job)
{
    const bench::Stopwatch watch;
    for (int i = 0; i < kBatch; ++i)
        job(i);
    return watch.seconds() / kBatch;
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

struct Way
{
    const char* name;
    std::function<double()> once; ///< seconds
};

void compare(const char* job, const std::vector<Way>& ways)
{
    const auto run = [ways](benchmark::State& state) {
        bench::Interleaved contenders;
        for (const Way& way : ways)
            contenders.add(way.name, way.once);
        bench::playRounds(state, contenders);
    };
    benchmark::RegisterBenchmark(job, run)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(kRounds);
}

template <class Write>
auto writing(const Write& write)
{
    return [write] { return timeBatch([&write](int) { g_sink = g_sink + write().size(); }); };
}

void compareSettings()
{
    const ttservice::COrderSetting setting = usualSetting();
    const auto byArg = [setting](bench::RealText real) {
        return writing([setting, real = std::move(real)] { return bench::settingByArg(setting, real); });
    };
    const auto byNumber = [setting](bench::RealText real) {
        return writing([setting, real = std::move(real)] { return bench::settingByNumber(setting, real); });
    };
    compare("setting",
            {{"arg_toolkit", byArg(bench::realByToolkit)},
             {"arg", byArg(bench::realByArg)},
             {"number", byNumber(bench::realByNumber)},
             {"to_chars", writing([setting] { return bench::settingByChars(setting); })},
             {"ours", writing([setting] { return TC::COrderParamBaseTable::orderSetting2Param(setting); })}});
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

// Entries without a value are looked at and skipped: the same text costs its scan alone.
QString withoutValues(QString text)
{
    return text.replace(QLatin1Char('='), QLatin1Char(':'));
}

void compareCreditReading(const QString& text)
{
    compare("credit_read",
            {{"split", reading(text, {}, bench::readCreditBySplit)},
             {"ours", reading(text, {}, TC::readCreditParameters)}});
    compare("credit_read_over",
            {{"split", reading(text, text, bench::readCreditBySplit)},
             {"ours", reading(text, text, TC::readCreditParameters)}});
    const auto splitting = [text] {
        return timeBatch([&text](int) { g_sink = g_sink + bench::scanCreditBySplit(text); });
    };
    compare("credit_scan",
            {{"split", splitting}, {"ours", reading(withoutValues(text), {}, TC::readCreditParameters)}});
}

/// Blocks asked for by a scan that stores nothing.
void countScanAllocations(benchmark::State& state, const QString& text)
{
    const QString scanned = withoutValues(text);
    bench::CreditValues values;
    int operation = 0;
    TC::readCreditParameters(scanned, operation, values);
    const long before = bench::allocations();
    TC::readCreditParameters(scanned, operation, values);
    state.counters["ours"] = double(bench::allocations() - before);
    while (state.KeepRunning())
        state.SetIterationTime(0);
}

void compareCreditWriting()
{
    static const bench::CreditValues values = usualValues();
    compare("credit_write",
            {{"join", writing([] { return bench::writeCreditByJoin(kOperation, values); })},
             {"ours", writing([] { return TC::writeCreditParameters(kOperation, values); })}});
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
    benchmark::Initialize(&argc, argv);
    const QString text = TC::writeCreditParameters(kOperation, usualValues());
    if (!doTheSame(text)) {
        std::fprintf(stderr, "bench_parameter_strings: the contenders give different results\n");
        return EXIT_FAILURE;
    }
    compareSettings();
    compareCreditReading(text);
    compareCreditWriting();
    benchmark::RegisterBenchmark("credit_scan_allocations", countScanAllocations, text)->UseManualTime()->Iterations(1);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
