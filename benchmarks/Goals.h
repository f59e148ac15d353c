#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QVector>

#include <vector>

namespace bench {

/// Which run of the programs a figure comes from.
enum class Run { Plain, DoubleRatio, StyleSheet, Crowd, Texts, Dialogs };

/// The counters of one run: job, contender, figure.
using Figures = QMap<QString, QMap<QString, double>>;

/// Reads what Google Benchmark wrote as JSON.
Figures figuresOf(const QJsonObject& output);

/// Everything that was measured in one go.
using Measurement = QMap<Run, Figures>;

/// A counter over another contender's, or itself where @p base is null; less than 0 when it was not measured.
double ratioIn(const Figures& figures, const char* job, const char* contender, const char* base);

struct GoalRow
{
    const char* topic;
    const char* title;
    Run run;
    const char* job;
    const char* contender;
    const char* base; ///< null: the figure itself is what counts
    double atMost;
};

/// The goals, in the order in which they are told; those of a topic stand together.
const QVector<GoalRow>& goals();

struct Verdict
{
    const GoalRow* goal;
    std::vector<double> figures; ///< one a measurement; empty when one of them lacks it

    bool isMeasured() const
    {
        return !figures.empty();
    }

    /// The median of the measurements is what is judged.
    double measured() const;
    bool isMet() const;
};

QVector<Verdict> judge(const QVector<Measurement>& measurements);

/// One line a goal; of several measurements each figure, and the median.
QString verdictTable(const QVector<Verdict>& verdicts);
QJsonArray verdictJson(const QVector<Verdict>& verdicts);

} // namespace bench
