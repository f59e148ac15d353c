#include "benchmarks/Rounds.h"

namespace bench {

namespace {

constexpr int kWarmUpRounds = 5;
constexpr double kMicroseconds = 1e6;

} // namespace

void playRounds(benchmark::State& state, Interleaved& contenders)
{
    contenders.warmUp(kWarmUpRounds);
    while (state.KeepRunning()) {
        contenders.round();
        double together = 0;
        for (int i = 0; i < contenders.contenders(); ++i)
            together += contenders.last(i);
        state.SetIterationTime(together);
    }
    for (int i = 0; i < contenders.contenders(); ++i)
        state.counters[contenders.name(i)] = contenders.median(i) * kMicroseconds;
}

void registerRounds(const char* job, void (*run)(benchmark::State&), int rounds)
{
    benchmark::RegisterBenchmark(job, run)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(rounds);
}

} // namespace bench
