#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QVector>

namespace bench {

/// Which run of the programs a figure comes from.
enum class Run { Plain, DoubleRatio, StyleSheet, Crowd, Texts, Dialogs };

/// The counters of one run: job, contender, figure.
using Figures = QMap<QString, QMap<QString, double>>;

/// Reads what Google Benchmark wrote as JSON.
Figures figuresOf(const QJsonObject& output);

struct GoalRow
{
    const char* title;
    Run run;
    const char* job;
    const char* contender;
    const char* base; ///< null: the figure itself is what counts
    double atMost;
};

/// The goals, in the order in which they are told.
const QVector<GoalRow>& goals();

struct Verdict
{
    const GoalRow* goal;
    bool isMeasured;
    double measured;

    bool isMet() const
    {
        return isMeasured && measured <= goal->atMost;
    }
};

QVector<Verdict> judge(const QMap<Run, Figures>& runs);

QString verdictTable(const QVector<Verdict>& verdicts);
QJsonArray verdictJson(const QVector<Verdict>& verdicts);

/// Bars of the measured figures over their goals, the goal being a line at 1.
QString verdictChart(const QVector<Verdict>& verdicts);

} // namespace bench
