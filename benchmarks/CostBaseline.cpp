#include "benchmarks/CostBaseline.h"

#include <algorithm>

namespace bench {

namespace {

QString line(const QString& name, double before, double now)
{
    return QStringLiteral("%1: %2, the baseline says %3")
        .arg(name, QString::number(now, 'f', 0), QString::number(before, 'f', 0));
}

double allowedDifference(const QString& name, double before, const Tolerance& tolerance)
{
    const double floor = name.endsWith(QLatin1String(" instructions")) ? tolerance.instructions : 0;
    return std::max(before * tolerance.share, floor);
}

} // namespace

Costs readCosts(const QString& text, QStringList& problems)
{
    Costs costs;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& raw : lines) {
        const QString entry = raw.trimmed();
        if (entry.isEmpty() || entry.startsWith(QLatin1Char('#')))
            continue;
        const int sign = entry.lastIndexOf(QLatin1Char('='));
        bool isNumber = false;
        const double count = entry.mid(sign + 1).trimmed().toDouble(&isNumber);
        const QString name = entry.left(sign).trimmed();
        if (sign < 1 || !isNumber || costs.contains(name))
            problems.append(entry);
        else
            costs.insert(name, count);
    }
    return costs;
}

QString writeCosts(const Costs& costs)
{
    QString text;
    for (auto cost = costs.cbegin(); cost != costs.cend(); ++cost)
        text += QStringLiteral("%1 = %2\n").arg(cost.key(), QString::number(cost.value(), 'f', 0));
    return text;
}

Comparison compareCosts(const Costs& baseline, const Costs& measured, const Tolerance& tolerance)
{
    Comparison result;
    for (auto cost = measured.cbegin(); cost != measured.cend(); ++cost) {
        if (!baseline.contains(cost.key())) {
            result.wrong.append(QStringLiteral("%1: not in the baseline").arg(cost.key()));
            continue;
        }
        const double before = baseline.value(cost.key());
        const double allowed = allowedDifference(cost.key(), before, tolerance);
        if (cost.value() > before + allowed)
            result.wrong.append(line(cost.key(), before, cost.value()));
        else if (cost.value() < before - allowed)
            result.better.append(line(cost.key(), before, cost.value()));
    }
    for (auto cost = baseline.cbegin(); cost != baseline.cend(); ++cost) {
        if (!measured.contains(cost.key()))
            result.wrong.append(QStringLiteral("%1: not measured").arg(cost.key()));
    }
    return result;
}

} // namespace bench
