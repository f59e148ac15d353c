#pragma once

#include "benchmarks/Interleaved.h"

#include <benchmark/benchmark.h>

namespace bench {

/// Plays the rounds of a benchmark, one an iteration. Each contender's median goes into the counters in microseconds;
/// the iteration's own time is all contenders' together.
void playRounds(benchmark::State& state, Interleaved& contenders);

/// Registers a job for that many rounds.
void registerRounds(const char* job, void (*run)(benchmark::State&), int rounds);

} // namespace bench
