#include "benchmarks/GoalChart.h"

#include <QXmlStreamReader>
#include <QtTest>

namespace {

/// The chart of these figures for the first goal, one a run.
QString chartOf(const std::vector<double>& figures)
{
    return bench::goalChart({{&bench::goals().first(), figures}});
}

/// The shares of the goal, in per cent, to which bars of a class reach.
QVector<int> barsOf(const QString& chart, const char* look)
{
    QVector<int> bars;
    QXmlStreamReader reader(chart);
    double whole = 0;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != QLatin1String("rect"))
            continue;
        const QString drawn = reader.attributes().value(QLatin1String("class")).toString();
        const double width = reader.attributes().value(QLatin1String("width")).toDouble();
        if (drawn == QLatin1String("track"))
            whole = width;
        if (drawn == QLatin1String(look))
            bars.append(qRound(width / whole * 150));
    }
    return bars;
}

QString textsOf(const QString& chart)
{
    QStringList texts;
    QXmlStreamReader reader(chart);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("text"))
            texts.append(reader.readElementText());
    }
    return reader.hasError() ? reader.errorString() : texts.join(QLatin1Char('|'));
}

double goalOfTheFirst()
{
    return bench::goals().first().atMost;
}

} // namespace

class tst_GoalChart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBarIsAsLongAsItsShareOfTheGoal()
    {
        QCOMPARE(barsOf(chartOf({goalOfTheFirst() / 2}), "met"), QVector<int>{50});
        QCOMPARE(barsOf(chartOf({goalOfTheFirst() * 1.2}), "missed"), QVector<int>{120});
    }

    void aBarBeyondTheScaleIsCut()
    {
        const QString cut = QStringLiteral("stroke-width=\"3\"");
        QCOMPARE(barsOf(chartOf({goalOfTheFirst() * 7}), "missed"), QVector<int>{150});
        QVERIFY(chartOf({goalOfTheFirst() * 7}).contains(cut));
        QVERIFY(!chartOf({goalOfTheFirst() * 1.4}).contains(cut));
    }

    void whatIsMetIsToldInWords()
    {
        QVERIFY(textsOf(chartOf({goalOfTheFirst()})).endsWith(QLatin1String("|met|0.14")));
        QVERIFY(textsOf(chartOf({goalOfTheFirst() * 2})).endsWith(QLatin1String("|not met|0.28")));
    }

    void whatWasNotMeasuredHasNoBar()
    {
        const QString chart = chartOf({});
        QVERIFY(barsOf(chart, "met").isEmpty() && barsOf(chart, "missed").isEmpty());
        QVERIFY(textsOf(chart).endsWith(QLatin1String("|not measured")));
    }

    void aGoalOfNothingIsMissedByAnything()
    {
        const bench::GoalRow nothing{"Topic", "title", bench::Run::Plain, "job", "panel", nullptr, 0};
        QCOMPARE(barsOf(bench::goalChart({{&nothing, {1}}}), "missed"), QVector<int>{150});
        QCOMPARE(barsOf(bench::goalChart({{&nothing, {0}}}), "met"), QVector<int>{0});
    }

    void titlesAreEscaped()
    {
        const bench::GoalRow goal{"A & B", "a < b", bench::Run::Plain, "job", "panel", nullptr, 1};
        const QString texts = textsOf(bench::goalChart({{&goal, {1}}}));
        QVERIFY2(texts.contains(QLatin1String("|A & B|a < b|")), qPrintable(texts));
    }
};

QTEST_APPLESS_MAIN(tst_GoalChart)
#include "tst_GoalChart.moc"
