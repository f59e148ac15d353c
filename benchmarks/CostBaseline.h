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

/// What the comparison of measured costs with a baseline says. Wrong is what fails: a cost more than the tolerance
/// above its baseline, anything where there was nothing, and a name that only one side has. A cost more than the
/// tolerance below is told, so that the baseline can be renewed.
struct Comparison
{
    QStringList wrong;
    QStringList better;
};

Comparison compareCosts(const Costs& baseline, const Costs& measured, double tolerance);

} // namespace bench
