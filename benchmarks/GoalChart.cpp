#include "benchmarks/GoalChart.h"

#include <algorithm>

namespace bench {

namespace {

constexpr int kWidth = 900;
constexpr int kMargin = 20;
constexpr int kHead = 114;
constexpr int kLine = 22;
constexpr int kTopicLine = 34;
constexpr int kFoot = 18;
constexpr int kBarHeight = 12;
constexpr int kBarLeft = 350;
constexpr double kGoalWidth = 180;
constexpr double kScaleEnd = 1.5; ///< of the goal; what is more is cut off
constexpr int kMeasuredRight = 710;
constexpr int kGoalRight = 775;
constexpr int kMarkLeft = 795;
constexpr int kVerdictLeft = 812;

// Attributes hold the light colours: not every reader of pictures knows style sheets.
constexpr char kHeader[] = R"(<svg xmlns="http://www.w3.org/2000/svg" width="%1" height="%2" viewBox="0 0 %1 %2"
     font-family="DejaVu Sans, Verdana, Helvetica, Arial, sans-serif" font-size="12" role="img">
<title>Measured cost of each operation as a share of its goal</title>
<style>
@media (prefers-color-scheme: dark) {
  .page { fill: #16191d; stroke: #3a4149 }
  .text { fill: #e4e7ea }
  .dim { fill: #a5adb5 }
  .track { fill: #262b31 }
  .met { fill: #5fa8d8 }
  .missed { fill: #f0a35c }
  .goal, .spread { stroke: #f2f4f6 }
  .cut { stroke: #16191d }
  .markmet { stroke: #5fa8d8 }
  .markmissed { stroke: #f0a35c }
}
</style>
<rect class="page" x="0.5" y="0.5" width="%3" height="%4" rx="6" fill="#fbfbfa" stroke="#c9cdd2"/>
)";

QString text(double x, double baseline, const QString& content, const char* look)
{
    return QStringLiteral("<text x=\"%1\" y=\"%2\" %3>%4</text>\n")
        .arg(QString::number(x), QString::number(baseline), QString::fromLatin1(look), content.toHtmlEscaped());
}

QString rectangle(double x, double y, double width, double height, const char* look)
{
    return QStringLiteral("<rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" %5/>\n")
        .arg(QString::number(x), QString::number(y), QString::number(width, 'f', 1), QString::number(height),
             QString::fromLatin1(look));
}

QString stroke(const QString& path, const char* look)
{
    return QStringLiteral("<path d=\"%1\" fill=\"none\" %2/>\n").arg(path, QString::fromLatin1(look));
}

constexpr char kText[] = R"(class="text" fill="#1d2329")";
constexpr char kTextRight[] = R"(class="text" fill="#1d2329" text-anchor="end")";
constexpr char kTitle[] = R"(class="text" fill="#1d2329" font-size="17" font-weight="bold")";
constexpr char kTopic[] = R"(class="text" fill="#1d2329" font-weight="bold")";
constexpr char kDim[] = R"(class="dim" fill="#59636d")";
constexpr char kDimRight[] = R"(class="dim" fill="#59636d" text-anchor="end")";
constexpr char kDimMiddle[] = R"(class="dim" fill="#59636d" text-anchor="middle")";
constexpr char kTrack[] = R"(class="track" fill="#e9ebed")";
constexpr char kMetBar[] = R"(class="met" fill="#2f7cb0")";
constexpr char kMissedBar[] = R"(class="missed" fill="#c2570c")";
constexpr char kGoalLine[] = R"(class="goal" stroke="#1d2329" stroke-width="1.5")";
constexpr char kSpread[] = R"(class="spread" stroke="#1d2329" stroke-width="1.5")";
constexpr char kTick[] = R"(class="markmet" stroke="#2f7cb0" stroke-width="2")";
constexpr char kCross[] = R"(class="markmissed" stroke="#c2570c" stroke-width="2")";
constexpr char kCut[] = R"(class="cut" stroke="#fbfbfa" stroke-width="3")";

QString figure(double value)
{
    return QString::number(value, 'g', 3);
}

/// Where a figure's bar ends. Nothing is allowed where the goal is nothing: anything fills the scale.
double endOf(double measured, const GoalRow& goal)
{
    if (goal.atMost > 0)
        return std::min(measured / goal.atMost, kScaleEnd) * kGoalWidth;
    return measured > 0 ? kScaleEnd * kGoalWidth : 0;
}

bool isCut(const Verdict& verdict)
{
    return verdict.measured() > kScaleEnd * verdict.goal->atMost;
}

QString bar(const Verdict& verdict, double top)
{
    const double end = kBarLeft + endOf(verdict.measured(), *verdict.goal);
    QString drawn = rectangle(kBarLeft, top, end - kBarLeft, kBarHeight, verdict.isMet() ? kMetBar : kMissedBar);
    if (isCut(verdict))
        drawn += stroke(QStringLiteral("M%1 %2 l-4 18 M%3 %2 l-4 18").arg(end - 14).arg(top - 3).arg(end - 7), kCut);
    return drawn;
}

/// From the least to the most of the runs.
QString spread(const Verdict& verdict, double top)
{
    if (verdict.figures.size() < 2)
        return QString();
    const auto ends = std::minmax_element(verdict.figures.begin(), verdict.figures.end());
    const double from = kBarLeft + endOf(*ends.first, *verdict.goal);
    const double to = kBarLeft + endOf(*ends.second, *verdict.goal);
    const double middle = top + kBarHeight / 2.0;
    return stroke(QStringLiteral("M%1 %2 v6 M%1 %3 H%4 M%4 %2 v6").arg(from).arg(middle - 3).arg(middle).arg(to),
                  kSpread);
}

QString mark(const Verdict& verdict, double top)
{
    const QString path =
        verdict.isMet() ? QStringLiteral("M%1 %2 l3.5 4 l6 -8") : QStringLiteral("M%1 %2 m0 -5 l9 9 m0 -9 l-9 9");
    return stroke(path.arg(kMarkLeft).arg(top + 7), verdict.isMet() ? kTick : kCross)
        + text(kVerdictLeft, top + 10, verdict.isMet() ? QStringLiteral("met") : QStringLiteral("not met"), kText);
}

QString goalLine(const Verdict& verdict, double top)
{
    QString line = text(kMargin, top + 10, QString::fromLatin1(verdict.goal->title), kText)
        + rectangle(kBarLeft, top, kScaleEnd * kGoalWidth, kBarHeight, kTrack)
        + text(kGoalRight, top + 10, figure(verdict.goal->atMost), kDimRight);
    if (!verdict.isMeasured())
        return line + text(kVerdictLeft, top + 10, QStringLiteral("not measured"), kDim);
    return line + bar(verdict, top) + spread(verdict, top) + mark(verdict, top)
        + text(kMeasuredRight, top + 10, figure(verdict.measured()), kTextRight);
}

QString scale(double baseline)
{
    QString names;
    for (const double share : {0.0, 0.5, kScaleEnd})
        names += text(kBarLeft + share * kGoalWidth, baseline, QStringLiteral("%1 %").arg(share * 100), kDimMiddle);
    return names + text(kBarLeft + kGoalWidth, baseline, QStringLiteral("goal"), kDimMiddle)
        + text(kMeasuredRight, baseline, QStringLiteral("measured"), kDimRight)
        + text(kGoalRight, baseline, QStringLiteral("goal"), kDimRight);
}

QString head(const QVector<Verdict>& verdicts)
{
    const auto met = std::count_if(verdicts.begin(), verdicts.end(), [](const Verdict& one) { return one.isMet(); });
    std::size_t runs = 0;
    for (const Verdict& verdict : verdicts)
        runs = std::max(runs, verdict.figures.size());
    const QString often =
        runs > 1 ? QStringLiteral(" Medians of %1 runs; the thin line spans them.").arg(runs) : QString();
    return text(kMargin, 30, QStringLiteral("What a panel costs, as a share of its goal"), kTitle)
        + text(kMargin, 51,
               QStringLiteral("%1 of %2 goals met. Shorter is better; bars are cut at %3 % of the goal.%4")
                   .arg(met)
                   .arg(verdicts.size())
                   .arg(kScaleEnd * 100)
                   .arg(often),
               kDim)
        + text(kMargin, 69,
               QStringLiteral("Times and memory over those of the same content in Qt's own widgets or strings, counts "
                              "and milliseconds as they are."),
               kDim)
        + scale(kHead - 10);
}

} // namespace

QString goalChart(const QVector<Verdict>& verdicts)
{
    QString lines;
    double top = kHead;
    const char* topic = nullptr;
    for (const Verdict& verdict : verdicts) {
        if (verdict.goal->topic != topic) {
            topic = verdict.goal->topic;
            lines += text(kMargin, top + kTopicLine - 14, QString::fromLatin1(topic), kTopic);
            top += kTopicLine - 6;
        }
        lines += goalLine(verdict, top);
        top += kLine;
    }
    const double goal = kBarLeft + kGoalWidth;
    lines += stroke(QStringLiteral("M%1 %2 V%3").arg(goal).arg(kHead - 4).arg(top), kGoalLine);
    const double height = top + kFoot;
    return QString::fromLatin1(kHeader).arg(kWidth).arg(height).arg(kWidth - 1).arg(height - 1) + head(verdicts) + lines
        + QStringLiteral("</svg>\n");
}

} // namespace bench
