#pragma once

#include "benchmarks/Goals.h"

namespace bench {

/// What each contender costs over the native form, at pixel ratio 1 and 2 and under a style sheet of the application;
/// of several measurements the medians.
QString ratioTable(const QVector<Measurement>& measurements);

/// What each way of writing and reading the parameter strings costs over the plainest one.
QString textTable(const QVector<Measurement>& measurements);

/// Widgets of each contender, and the events, layouts and paints that its jobs cause. The last measurement's: counts do
/// not vary.
QString countTable(const QVector<Measurement>& measurements);

/// The ratios of ratioTable() by run, contender and job.
QJsonObject ratioJson(const QVector<Measurement>& measurements);

} // namespace bench
