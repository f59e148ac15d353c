// Tells which goals the benchmarks met.
//
//   bench_report FOLDER RESULT.json [CHART.svg]
//
// FOLDER holds what the programs wrote, one file a run. Exit status 3 tells of goals that are not met.

#include "benchmarks/Goals.h"

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

QJsonObject allFigures(const QMap<bench::Run, bench::Figures>& runs)
{
    QJsonObject all;
    for (const RunFile& one : kRunFiles) {
        QJsonObject jobs;
        const bench::Figures figures = runs.value(one.run);
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

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 3) {
        std::fprintf(stderr, "usage: bench_report FOLDER RESULT.json [CHART.svg]\n");
        return 2;
    }
    QMap<bench::Run, bench::Figures> runs;
    for (const RunFile& one : kRunFiles)
        runs[one.run] = bench::figuresOf(readObject(arguments.at(1) + QLatin1Char('/') + QLatin1String(one.file)));
    const auto verdicts = bench::judge(runs);
    std::printf("%s", qPrintable(bench::verdictTable(verdicts)));
    const QJsonObject result{{QStringLiteral("goals"), bench::verdictJson(verdicts)},
                             {QStringLiteral("figures"), allFigures(runs)}};
    if (!write(arguments.at(2), QJsonDocument(result).toJson()))
        return 2;
    if (arguments.size() > 3 && !write(arguments.at(3), bench::verdictChart(verdicts).toUtf8()))
        return 2;
    const bool allMet = std::all_of(verdicts.begin(), verdicts.end(), [](const auto& one) { return one.isMet(); });
    return allMet ? 0 : 3;
}
