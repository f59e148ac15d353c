#pragma once

#include "benchmarks/Goals.h"

namespace bench {

/// A picture (SVG) of the verdicts: bars of the measured figures over their goals, by topic, the goal being a line.
/// A viewer who prefers dark pages gets dark colours where the reader of the file knows of such wishes.
QString goalChart(const QVector<Verdict>& verdicts);

} // namespace bench
