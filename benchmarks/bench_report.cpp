// Tells which goals the benchmarks met.
//
//   bench_report [--chart CHART.svg] RESULT.json FOLDER...
//
// A folder holds what the programs wrote in one go; of several the medians are judged. Exit status 3 tells of goals
// that are not met.

#include "benchmarks/Contest.h"
#include "benchmarks/GoalChart.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>

#include <algorithm>
#include <cstdio>

namespace {

struct RunFile
{
    bench::Run run;
    const char* file;
};

constexpr RunFile kRunFiles[] = {
    {bench::Run::Plain, "panel.json"},
    {bench::Run::DoubleRatio, "panel-ratio-2.json"},
    {bench::Run::StyleSheet, "panel-style-sheet.json"},
    {bench::Run::Crowd, "crowd.json"},
    {bench::Run::Texts, "texts.json"},
    {bench::Run::Dialogs, "dialogs.json"},
};

QJsonObject readObject(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

bool write(const QString& path, const QByteArray& text)
{
    QFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    if (!written)
        std::fprintf(stderr, "bench_report: cannot write %s\n", qPrintable(path));
    return written;
}

bench::Measurement readMeasurement(const QString& folder)
{
    bench::Measurement measurement;
    for (const RunFile& one : kRunFiles)
        measurement[one.run] = bench::figuresOf(readObject(folder + QLatin1Char('/') + QLatin1String(one.file)));
    return measurement;
}

QJsonObject allFigures(const bench::Measurement& measurement)
{
    QJsonObject all;
    for (const RunFile& one : kRunFiles) {
        QJsonObject jobs;
        const bench::Figures figures = measurement.value(one.run);
        for (auto job = figures.cbegin(); job != figures.cend(); ++job) {
            QJsonObject contenders;
            for (auto figure = job->cbegin(); figure != job->cend(); ++figure)
                contenders.insert(figure.key(), figure.value());
            jobs.insert(job.key(), contenders);
        }
        all.insert(QString::fromLatin1(one.file).section(QLatin1Char('.'), 0, 0), jobs);
    }
    return all;
}

QByteArray resultOf(const QVector<bench::Measurement>& measurements, const QVector<bench::Verdict>& verdicts)
{
    QJsonArray figures;
    for (const bench::Measurement& one : measurements)
        figures.append(allFigures(one));
    const QJsonObject result{{QStringLiteral("goals"), bench::verdictJson(verdicts)},
                             {QStringLiteral("ratios"), bench::ratioJson(measurements)},
                             {QStringLiteral("figures"), figures}};
    return QJsonDocument(result).toJson();
}

void print(const QString& table)
{
    std::printf("%s\n", qPrintable(table));
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCommandLineParser options;
    const QCommandLineOption chart(QStringLiteral("chart"), QString(), QStringLiteral("file"));
    options.addOption(chart);
    options.process(application);
    QStringList paths = options.positionalArguments();
    if (paths.size() < 2) {
        std::fprintf(stderr, "usage: bench_report [--chart CHART.svg] RESULT.json FOLDER...\n");
        return 2;
    }
    const QString result = paths.takeFirst();
    QVector<bench::Measurement> measurements;
    for (const QString& folder : qAsConst(paths))
        measurements.append(readMeasurement(folder));
    const auto verdicts = bench::judge(measurements);
    for (const auto table : {bench::ratioTable, bench::countTable, bench::textTable})
        print(table(measurements));
    print(bench::verdictTable(verdicts));
    if (!write(result, resultOf(measurements, verdicts)))
        return 2;
    if (options.isSet(chart) && !write(options.value(chart), bench::goalChart(verdicts).toUtf8()))
        return 2;
    const bool allMet = std::all_of(verdicts.begin(), verdicts.end(), [](const auto& one) { return one.isMet(); });
    return allMet ? 0 : 3;
}
