#pragma once

#include <benchmark/benchmark.h>

namespace bench {

/// What opening the editor of a number costs beside a QSpinBox that is made and shown in the same place: "first" in a
/// panel that was never edited, and "again", which is what a person at a panel gets from then on.
void openEditor(benchmark::State& state);

} // namespace bench
