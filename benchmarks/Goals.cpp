#include "benchmarks/Goals.h"

#include "benchmarks/Median.h"

#include <algorithm>

namespace bench {

namespace {

constexpr char kTable[] = "cell_table";
constexpr char kPanel[] = "panel";
constexpr char kForm[] = "native_form";

constexpr char kBuilding[] = "Building and destroying a panel";
constexpr char kSwitch[] = "Switching its mode";
constexpr char kPainting[] = "Painting";
constexpr char kEditor[] = "Opening an editor";
constexpr char kMemory[] = "Memory of a panel";
constexpr char kCrowd[] = "A thousand of them";
constexpr char kUnchanged[] = "Calls that change nothing";
constexpr char kTexts[] = "Parameter strings";
constexpr char kDialogs[] = "Task dialogs and baskets";

// clang-format off
constexpr GoalRow kGoals[] = {
    {kBuilding,  "cell table: construct, show, layout",             Run::Plain,       "construct",               kTable,           kForm,         .14},
    {kBuilding,  "panel: construct, show, layout",                  Run::Plain,       "construct",               kPanel,           kForm,         .25},
    {kBuilding,  "cell table: destruction",                         Run::Plain,       "destroy",                 kTable,           kForm,         .25},
    {kBuilding,  "panel: destruction",                              Run::Plain,       "destroy",                 kPanel,           kForm,         .40},
    {kSwitch,    "cell table: mode switch, layout",                 Run::Plain,       "switch_layout",           kTable,           kForm,         .015},
    {kSwitch,    "panel: mode switch, layout",                      Run::Plain,       "switch_layout",           kPanel,           kForm,         .03},
    {kSwitch,    "cell table: mode switch with paint",              Run::Plain,       "switch_paint",            kTable,           kForm,         .10},
    {kSwitch,    "panel: mode switch with paint",                   Run::Plain,       "switch_paint",            kPanel,           kForm,         .15},
    {kPainting,  "cell table: full repaint, ratio 1",               Run::Plain,       "repaint",                 kTable,           kForm,         .15},
    {kPainting,  "cell table: full repaint, ratio 2",               Run::DoubleRatio, "repaint",                 kTable,           kForm,         .22},
    {kPainting,  "cell table: value changed and painted",           Run::Plain,       "value",                   kTable,           kForm,         .30},
    {kEditor,    "editor opened, first in a panel",                 Run::Plain,       "editor",                  "panel_first",    "spin_box",    2.0},
    {kEditor,    "editor opened again",                             Run::Plain,       "editor",                  "panel_again",    "spin_box",    2.0},
    {kMemory,    "cell table: heap",                                Run::Plain,       "heap",                    kTable,           kForm,         .20},
    {kMemory,    "panel: heap",                                     Run::Plain,       "heap",                    kPanel,           kForm,         .30},
    {kCrowd,     "1,000 cell tables: resident memory",              Run::Crowd,       "resident",                kTable,           kForm,         .25},
    {kCrowd,     "1,000 panels: resident memory",                   Run::Crowd,       "resident",                kPanel,           kForm,         .30},
    {kCrowd,     "1,000 cell tables: time of one, over that of 10", Run::Crowd,       "time_growth",             kTable,           nullptr,       1.25},
    {kCrowd,     "1,000 cell tables: heap of one, over that of 10", Run::Crowd,       "heap_growth",             kTable,           nullptr,       1.05},
    {kCrowd,     "1,000 panels: time of one, over that of 10",      Run::Crowd,       "time_growth",             kPanel,           nullptr,       1.25},
    {kCrowd,     "1,000 panels: heap of one, over that of 10",      Run::Crowd,       "heap_growth",             kPanel,           nullptr,       1.05},
    {kUnchanged, "same order type: layouts and paints",             Run::Plain,       "unchanged",               "order_type",     nullptr,       0},
    {kUnchanged, "same operation type: layouts and paints",         Run::Plain,       "unchanged",               "operation_type", nullptr,       0},
    {kUnchanged, "same flag: layouts and paints",                   Run::Plain,       "unchanged",               "flag",           nullptr,       0},
    {kUnchanged, "same expansion: layouts and paints",              Run::Plain,       "unchanged",               "expansion",      nullptr,       0},
    {kTexts,     "parameter string of a record",                    Run::Texts,       "setting",                 "ours",           "arg_toolkit", .20},
    {kTexts,     "credit string: scan",                             Run::Texts,       "credit_scan",             "ours",           "split",       1 / 15.0},
    {kTexts,     "credit string: scan, allocations",                Run::Texts,       "credit_scan_allocations", "ours",           nullptr,       0},
    {kTexts,     "credit string: read into an empty table",         Run::Texts,       "credit_read",             "ours",           "split",       1 / 3.0},
    {kDialogs,   "task dialog opened",                              Run::Dialogs,     "task_dialog",             "ours",           "native",      .25},
    {kDialogs,   "basket of 10,000: longest stall, ms",             Run::Dialogs,     "basket_stall",            "list",           nullptr,       16},
    {kDialogs,   "basket dialog of 10,000: opened, ms",             Run::Dialogs,     "basket_stall",            "dialog",         nullptr,       16},
};
// clang-format on

constexpr int kTitleWidth = 48;
constexpr int kFigureWidth = 9;

QString cell(double value)
{
    return QStringLiteral(" %1").arg(QString::number(value, 'g', 3), kFigureWidth);
}

QString cell(const QString& text)
{
    return QStringLiteral(" %1").arg(text, kFigureWidth);
}

QString state(const Verdict& verdict)
{
    if (!verdict.isMeasured())
        return QStringLiteral("not measured");
    return verdict.isMet() ? QStringLiteral("met") : QStringLiteral("NOT MET");
}

Verdict judgeGoal(const GoalRow& goal, const QVector<Measurement>& measurements)
{
    Verdict verdict{&goal, {}};
    for (const Measurement& one : measurements) {
        const double figure = ratioIn(one.value(goal.run), goal.job, goal.contender, goal.base);
        if (figure < 0)
            return {&goal, {}};
        verdict.figures.push_back(figure);
    }
    return verdict;
}

/// How many figures stand beside the median.
std::size_t repeatsOf(const QVector<Verdict>& verdicts)
{
    std::size_t most = 1;
    for (const Verdict& verdict : verdicts)
        most = std::max(most, verdict.figures.size());
    return most > 1 ? most : 0;
}

QString headLine(std::size_t repeats)
{
    QString line = QStringLiteral("goal").leftJustified(kTitleWidth) + cell(QStringLiteral("at most"));
    for (std::size_t i = 0; i < repeats; ++i)
        line += cell(QStringLiteral("run %1").arg(i + 1));
    return line + cell(repeats > 0 ? QStringLiteral("median") : QStringLiteral("measured"))
        + QLatin1String("  verdict\n");
}

QString verdictLine(const Verdict& verdict, std::size_t repeats)
{
    QString line = QString::fromLatin1(verdict.goal->title).leftJustified(kTitleWidth) + cell(verdict.goal->atMost);
    for (std::size_t i = 0; i < repeats; ++i)
        line += i < verdict.figures.size() ? cell(verdict.figures[i]) : cell(QStringLiteral("-"));
    line += verdict.isMeasured() ? cell(verdict.measured()) : cell(QStringLiteral("-"));
    return line + QLatin1String("  ") + state(verdict) + QLatin1Char('\n');
}

} // namespace

double Verdict::measured() const
{
    return medianOf(figures);
}

bool Verdict::isMet() const
{
    return isMeasured() && measured() <= goal->atMost;
}

Figures figuresOf(const QJsonObject& output)
{
    Figures figures;
    const QJsonArray jobs = output.value(QLatin1String("benchmarks")).toArray();
    for (const QJsonValue& value : jobs) {
        const QJsonObject job = value.toObject();
        const QString name = job.value(QLatin1String("name")).toString().section(QLatin1Char('/'), 0, 0);
        for (auto counter = job.begin(); counter != job.end(); ++counter) {
            if (counter->isDouble())
                figures[name][counter.key()] = counter->toDouble();
        }
    }
    return figures;
}

double ratioIn(const Figures& figures, const char* job, const char* contender, const char* base)
{
    const QMap<QString, double> counters = figures.value(QLatin1String(job));
    const double own = counters.value(QLatin1String(contender), -1);
    const double over = base ? counters.value(QLatin1String(base), -1) : 1;
    return own >= 0 && over > 0 ? own / over : -1;
}

const QVector<GoalRow>& goals()
{
    static const QVector<GoalRow> all(std::begin(kGoals), std::end(kGoals));
    return all;
}

QVector<Verdict> judge(const QVector<Measurement>& measurements)
{
    QVector<Verdict> verdicts;
    for (const GoalRow& goal : goals())
        verdicts.append(judgeGoal(goal, measurements));
    return verdicts;
}

QString verdictTable(const QVector<Verdict>& verdicts)
{
    const std::size_t repeats = repeatsOf(verdicts);
    QString table = headLine(repeats);
    int met = 0;
    for (const Verdict& verdict : verdicts) {
        table += verdictLine(verdict, repeats);
        met += verdict.isMet() ? 1 : 0;
    }
    return table + QStringLiteral("%1 of %2 goals met\n").arg(met).arg(verdicts.size());
}

QJsonArray verdictJson(const QVector<Verdict>& verdicts)
{
    QJsonArray array;
    for (const Verdict& verdict : verdicts) {
        QJsonObject row{{QStringLiteral("goal"), QLatin1String(verdict.goal->title)},
                        {QStringLiteral("at_most"), verdict.goal->atMost},
                        {QStringLiteral("met"), verdict.isMet()}};
        if (verdict.isMeasured()) {
            QJsonArray runs;
            for (const double figure : verdict.figures)
                runs.append(figure);
            row.insert(QStringLiteral("measured"), verdict.measured());
            row.insert(QStringLiteral("runs"), runs);
        }
        array.append(row);
    }
    return array;
}

} // namespace bench
