#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace bench {

/// What operations cost, as counts by name: "switch panel paints" is 1.
using Costs = QMap<QString, double>;

/// Reads lines "name = count"; empty lines and those that begin with # say nothing. A line that is neither, and a name
/// that stands twice, is named in @p problems.
Costs readCosts(const QString& text, QStringList& problems);

QString writeCosts(const Costs& costs);

/// How far a cost may be from its baseline: by this share of it, and a cost in instructions by so many in any case.
/// From run to run an operation may or may not meet work that is not its own, such as a wake-up of the event loop.
struct Tolerance
{
    double share;
    double instructions;
};

/// What the comparison of measured costs with a baseline says. Wrong is what fails: a cost farther above its baseline
/// than the tolerance lets it, and a name that only one side has. A cost as far below is told, so that the baseline can
/// be renewed.
struct Comparison
{
    QStringList wrong;
    QStringList better;
};

Comparison compareCosts(const Costs& baseline, const Costs& measured, const Tolerance& tolerance);

} // namespace bench
