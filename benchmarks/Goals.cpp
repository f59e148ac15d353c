#include "benchmarks/Goals.h"

#include <algorithm>

namespace bench {

namespace {

constexpr char kTable[] = "cell_table";
constexpr char kPanel[] = "panel";
constexpr char kForm[] = "native_form";

// clang-format off
constexpr GoalRow kGoals[] = {
    {"cell table: construct, show, layout",      Run::Plain, "construct",     kTable, kForm, .14},
    {"panel: construct, show, layout",           Run::Plain, "construct",     kPanel, kForm, .25},
    {"cell table: mode switch, layout",          Run::Plain, "switch_layout", kTable, kForm, .015},
    {"panel: mode switch, layout",               Run::Plain, "switch_layout", kPanel, kForm, .03},
    {"cell table: mode switch with paint",       Run::Plain, "switch_paint",  kTable, kForm, .10},
    {"panel: mode switch with paint",            Run::Plain, "switch_paint",  kPanel, kForm, .15},
    {"cell table: full repaint, ratio 1",        Run::Plain, "repaint",       kTable, kForm, .15},
    {"cell table: full repaint, ratio 2",        Run::DoubleRatio, "repaint", kTable, kForm, .22},
    {"cell table: value changed and painted",    Run::Plain, "value",         kTable, kForm, .30},
    {"cell table: heap",                         Run::Plain, "heap",          kTable, kForm, .20},
    {"panel: heap",                              Run::Plain, "heap",          kPanel, kForm, .30},
    {"cell table: destruction",                  Run::Plain, "destroy",       kTable, kForm, .25},
    {"panel: destruction",                       Run::Plain, "destroy",       kPanel, kForm, .40},
    {"editor opened, first in a panel",          Run::Plain, "editor", "panel_first", "spin_box", 2.0},
    {"editor opened again",                      Run::Plain, "editor", "panel_again", "spin_box", 2.0},
    {"1,000 cell tables: resident memory",       Run::Crowd, "resident", kTable, kForm, .25},
    {"1,000 panels: resident memory",            Run::Crowd, "resident", kPanel, kForm, .30},
    {"1,000 cell tables: time of one, over that of 10", Run::Crowd, "time_growth", kTable, nullptr, 1.25},
    {"1,000 cell tables: heap of one, over that of 10", Run::Crowd, "heap_growth", kTable, nullptr, 1.05},
    {"1,000 panels: time of one, over that of 10",  Run::Crowd, "time_growth", kPanel, nullptr, 1.25},
    {"1,000 panels: heap of one, over that of 10",  Run::Crowd, "heap_growth", kPanel, nullptr, 1.05},
    {"same order type: layouts and paints",      Run::Plain, "unchanged", "order_type", nullptr, 0},
    {"same operation type: layouts and paints",  Run::Plain, "unchanged", "operation_type", nullptr, 0},
    {"same flag: layouts and paints",            Run::Plain, "unchanged", "flag", nullptr, 0},
    {"same expansion: layouts and paints",       Run::Plain, "unchanged", "expansion", nullptr, 0},
    {"parameter string of a record",             Run::Texts, "setting", "ours", "arg_toolkit", .20},
    {"credit string: scan",                      Run::Texts, "credit_scan", "ours", "split", 1 / 15.0},
    {"credit string: scan, allocations",         Run::Texts, "credit_scan_allocations", "ours", nullptr, 0},
    {"credit string: read into an empty table",  Run::Texts, "credit_read", "ours", "split", 1 / 3.0},
    {"task dialog opened",                       Run::Dialogs, "task_dialog", "ours", "native", .25},
    {"basket of 10,000: longest stall, ms",      Run::Dialogs, "basket_stall", "list", nullptr, 16},
    {"basket dialog of 10,000: opened, ms",      Run::Dialogs, "basket_stall", "dialog", nullptr, 16},
};
// clang-format on

QString figure(double value)
{
    return QString::number(value, 'g', 3);
}

QString state(const Verdict& verdict)
{
    if (!verdict.isMeasured)
        return QStringLiteral("not measured");
    return verdict.isMet() ? QStringLiteral("met") : QStringLiteral("NOT MET");
}

Verdict judgeGoal(const GoalRow& goal, const Figures& figures)
{
    const QMap<QString, double> job = figures.value(QLatin1String(goal.job));
    const double own = job.value(QLatin1String(goal.contender), -1);
    const double base = goal.base ? job.value(QLatin1String(goal.base), -1) : 1;
    const bool isMeasured = own >= 0 && base > 0;
    return {&goal, isMeasured, isMeasured ? own / base : 0};
}

QString bar(const Verdict& verdict, int top)
{
    constexpr double kGoalWidth = 200;
    constexpr double kMost = 3;
    const double over = verdict.goal->atMost > 0 ? verdict.measured / verdict.goal->atMost : 1 + verdict.measured;
    const double width = std::min(over, kMost) * kGoalWidth;
    return QStringLiteral("<text x=\"300\" y=\"%1\" text-anchor=\"end\">%2</text>"
                          "<rect x=\"310\" y=\"%3\" width=\"%4\" height=\"12\" fill=\"%5\"/>"
                          "<text x=\"%6\" y=\"%1\">%7 (goal %8)</text>\n")
        .arg(top + 11)
        .arg(QString::fromLatin1(verdict.goal->title).toHtmlEscaped())
        .arg(top)
        .arg(width, 0, 'f', 1)
        .arg(verdict.isMet() ? QStringLiteral("#4a8f5c") : QStringLiteral("#c0603a"))
        .arg(316 + width, 0, 'f', 1)
        .arg(figure(verdict.measured), figure(verdict.goal->atMost));
}

} // namespace

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

const QVector<GoalRow>& goals()
{
    static const QVector<GoalRow> all(std::begin(kGoals), std::end(kGoals));
    return all;
}

QVector<Verdict> judge(const QMap<Run, Figures>& runs)
{
    QVector<Verdict> verdicts;
    for (const GoalRow& goal : goals())
        verdicts.append(judgeGoal(goal, runs.value(goal.run)));
    return verdicts;
}

QString verdictTable(const QVector<Verdict>& verdicts)
{
    QString table = QStringLiteral("%1 %2 %3  %4\n")
                        .arg(QStringLiteral("goal"), -48)
                        .arg(QStringLiteral("at most"), 9)
                        .arg(QStringLiteral("measured"), 9)
                        .arg(QStringLiteral("verdict"));
    int met = 0;
    for (const Verdict& verdict : verdicts) {
        const QString measured = verdict.isMeasured ? figure(verdict.measured) : QStringLiteral("-");
        table += QStringLiteral("%1 %2 %3  %4\n")
                     .arg(QLatin1String(verdict.goal->title), -48)
                     .arg(figure(verdict.goal->atMost), 9)
                     .arg(measured, 9)
                     .arg(state(verdict));
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
        if (verdict.isMeasured)
            row.insert(QStringLiteral("measured"), verdict.measured);
        array.append(row);
    }
    return array;
}

QString verdictChart(const QVector<Verdict>& verdicts)
{
    constexpr int kLine = 18;
    const int height = (int(verdicts.size()) + 2) * kLine;
    QString chart = QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1060\" height=\"%1\" "
                                   "font-family=\"sans-serif\" font-size=\"11\">\n"
                                   "<rect width=\"1060\" height=\"%1\" fill=\"#ffffff\"/>\n"
                                   "<text x=\"510\" y=\"12\" text-anchor=\"middle\">goal</text>\n")
                        .arg(height);
    int top = kLine;
    for (const Verdict& verdict : verdicts) {
        if (verdict.isMeasured)
            chart += bar(verdict, top);
        top += kLine;
    }
    return chart
        + QStringLiteral("<line x1=\"510\" y1=\"16\" x2=\"510\" y2=\"%1\" stroke=\"#202020\"/>\n</svg>\n").arg(top);
}

} // namespace bench
