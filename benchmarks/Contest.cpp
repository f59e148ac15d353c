#include "benchmarks/Contest.h"

#include "benchmarks/Median.h"

#include <optional>

namespace bench {

namespace {

constexpr char kForm[] = "native_form";

struct Named
{
    const char* name;
    const char* title;
};

struct Surroundings
{
    Run run;
    const char* name;
    const char* title;
};

struct TextRow
{
    const char* title;
    const char* job;
    const char* way;
    const char* base; ///< null: the time itself is told
};

// clang-format off
constexpr Surroundings kSurroundings[] = {
    {Run::Plain,       "ratio_1",     "pixel ratio 1"},
    {Run::DoubleRatio, "ratio_2",     "pixel ratio 2"},
    {Run::StyleSheet,  "style_sheet", "pixel ratio 1, application style sheet"},
};

constexpr Named kContenders[] = {
    {"native_form_strip", "native form with a strip"},
    {"cell_widgets",      "QTableWidget, cell widgets"},
    {"lean_view",         "lean QTableView"},
    {"painted",           "hand-painted floor"},
    {"cell_table",        "our cell table"},
    {"panel",             "our whole panel"},
};

constexpr Named kJobs[] = {
    {"construct",     "construct"},
    {"switch_layout", "switch"},
    {"switch_paint",  "and paint"},
    {"repaint",       "repaint"},
    {"value",         "value"},
    {"destroy",       "destroy"},
    {"heap",          "heap"},
};

constexpr TextRow kTexts[] = {
    {"record: arg + join, platform's formatter, us", "setting", "arg_toolkit", nullptr},
    {"record: arg + join",                           "setting", "arg",         "arg_toolkit"},
    {"record: QString::number + join",               "setting", "number",      "arg_toolkit"},
    {"record: std::to_chars, ties to even",          "setting", "to_chars",    "arg_toolkit"},
    {"record: ours",                                 "setting", "ours",        "arg_toolkit"},
    {"credit string scanned: split, us",             "credit_scan", "split", nullptr},
    {"credit string scanned: ours",                  "credit_scan", "ours",  "split"},
    {"credit string read: split, us",                "credit_read", "split", nullptr},
    {"credit string read: ours",                     "credit_read", "ours",  "split"},
    {"credit string read over values: split, us",    "credit_read_over", "split", nullptr},
    {"credit string read over values: ours",         "credit_read_over", "ours",  "split"},
    {"credit string written: join, us",              "credit_write", "join", nullptr},
    {"credit string written: ours",                  "credit_write", "ours", "join"},
};

constexpr Named kCounted[] = {
    {"counts_construct", "construct"},
    {"counts_switch",    "switch"},
    {"counts_repaint",   "repaint"},
    {"counts_value",     "value"},
};
// clang-format on

constexpr int kTitleWidth = 48;
constexpr int kNameWidth = 28;
constexpr int kFigureWidth = 10;
constexpr int kCountWidth = 16;

/// The median over the measurements; nothing when one of them lacks it.
std::optional<double> medianRatio(const QVector<Measurement>& measurements, Run run, const char* job,
                                  const char* contender, const char* base)
{
    std::vector<double> ratios;
    for (const Measurement& one : measurements) {
        const double ratio = ratioIn(one.value(run), job, contender, base);
        if (ratio < 0)
            return std::nullopt;
        ratios.push_back(ratio);
    }
    return ratios.empty() ? std::nullopt : std::make_optional(medianOf(ratios));
}

QString title(const char* text, int width)
{
    return QString::fromLatin1(text).leftJustified(width);
}

QString cell(const QString& text, int width = kFigureWidth)
{
    return QLatin1Char(' ') + text.rightJustified(width);
}

QString cell(std::optional<double> value)
{
    return cell(value ? QString::number(*value, 'g', 3) : QStringLiteral("-"));
}

QString ratioLine(const QVector<Measurement>& measurements, Run run, const Named& contender)
{
    QString line = title(contender.title, kNameWidth);
    for (const Named& job : kJobs)
        line += cell(medianRatio(measurements, run, job.name, contender.name, kForm));
    return line + QLatin1Char('\n');
}

QString formLine(const QVector<Measurement>& measurements, Run run)
{
    QString line = title("native form, us and bytes", kNameWidth);
    for (const Named& job : kJobs) {
        const auto figure = medianRatio(measurements, run, job.name, kForm, nullptr);
        line += cell(figure ? QString::number(*figure, 'f', *figure < 1000 ? 1 : 0) : QStringLiteral("-"));
    }
    return line + QLatin1Char('\n');
}

QString countsOf(const Figures& figures, const Named& job, const char* contender)
{
    if (!figures.contains(QLatin1String(job.name)))
        return QStringLiteral("-");
    const auto count = [&figures, &job, contender](const char* what) {
        const QString counter = QLatin1String(contender) + QLatin1Char('.') + QLatin1String(what);
        return int(figures.value(QLatin1String(job.name)).value(counter));
    };
    return QStringLiteral("%1 / %2 / %3")
        .arg(count("events"))
        .arg(count("layouts") + count("resizes"))
        .arg(count("paints"));
}

QString countLine(const Figures& figures, const Named& contender)
{
    const double widgets = figures.value(QStringLiteral("widgets")).value(QLatin1String(contender.name));
    QString line = title(contender.title, kNameWidth) + cell(QString::number(widgets));
    for (const Named& job : kCounted)
        line += cell(countsOf(figures, job, contender.name), kCountWidth);
    return line + QLatin1Char('\n');
}

} // namespace

QString ratioTable(const QVector<Measurement>& measurements)
{
    QString table = title("over the native form", kNameWidth);
    for (const Named& job : kJobs)
        table += cell(QString::fromLatin1(job.title));
    table += QLatin1Char('\n');
    for (const Surroundings& one : kSurroundings) {
        table += QLatin1String(one.title) + QLatin1String("\n") + formLine(measurements, one.run);
        for (const Named& contender : kContenders)
            table += ratioLine(measurements, one.run, contender);
    }
    return table;
}

QString textTable(const QVector<Measurement>& measurements)
{
    QString table = title("texts, over the first way", kTitleWidth) + QLatin1Char('\n');
    for (const TextRow& row : kTexts)
        table += title(row.title, kTitleWidth) + cell(medianRatio(measurements, Run::Texts, row.job, row.way, row.base))
            + QLatin1Char('\n');
    return table;
}

QString countTable(const QVector<Measurement>& measurements)
{
    QString table = title("events / layouts / paints", kNameWidth) + cell(QStringLiteral("widgets"));
    for (const Named& job : kCounted)
        table += cell(QString::fromLatin1(job.title), kCountWidth);
    table += QLatin1Char('\n');
    if (measurements.isEmpty())
        return table;
    const Figures figures = measurements.last().value(Run::Plain);
    table += countLine(figures, {kForm, "native form"});
    for (const Named& contender : kContenders)
        table += countLine(figures, contender);
    return table;
}

QJsonObject ratioJson(const QVector<Measurement>& measurements)
{
    QJsonObject all;
    for (const Surroundings& one : kSurroundings) {
        QJsonObject contenders;
        for (const Named& contender : kContenders) {
            QJsonObject jobs;
            for (const Named& job : kJobs) {
                if (const auto ratio = medianRatio(measurements, one.run, job.name, contender.name, kForm))
                    jobs.insert(QLatin1String(job.name), *ratio);
            }
            contenders.insert(QLatin1String(contender.name), jobs);
        }
        all.insert(QLatin1String(one.name), contenders);
    }
    return all;
}

} // namespace bench
