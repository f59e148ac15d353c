#include "benchmarks/Contest.h"

#include <QtTest>

using bench::Figures;
using bench::Measurement;
using bench::Run;

namespace {

Figures job(const char* name, const QMap<QString, double>& counters)
{
    return {{QLatin1String(name), counters}};
}

Measurement construction(double view, double form, Run run = Run::Plain)
{
    return {{run, job("construct", {{QStringLiteral("lean_view"), view}, {QStringLiteral("native_form"), form}})}};
}

QStringList linesOf(const QString& table, const char* beginning)
{
    QStringList found;
    const QStringList lines = table.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (line.startsWith(QLatin1String(beginning)))
            found.append(line.simplified());
    }
    return found;
}

} // namespace

class tst_Contest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyContenderStandsOverTheNativeFormOfItsRun()
    {
        const Measurement both{{Run::Plain, construction(50, 200).value(Run::Plain)},
                               {Run::StyleSheet, construction(50, 500).value(Run::Plain)}};
        QCOMPARE(linesOf(bench::ratioTable({both}), "lean QTableView"),
                 QStringList({QStringLiteral("lean QTableView 0.25 - - - - - -"),
                              QStringLiteral("lean QTableView - - - - - - -"),
                              QStringLiteral("lean QTableView 0.1 - - - - - -")}));
    }

    void theNativeFormShowsWhatItCosts()
    {
        QCOMPARE(linesOf(bench::ratioTable({construction(50, 200)}), "native form, us").first(),
                 QStringLiteral("native form, us and bytes 200.0 - - - - - -"));
    }

    void ofSeveralRunsTheMedianRatioIsTold()
    {
        const QString table = bench::ratioTable({construction(1, 10), construction(9, 10), construction(80, 400)});
        QCOMPARE(linesOf(table, "lean QTableView").first(), QStringLiteral("lean QTableView 0.2 - - - - - -"));
    }

    void whatOneRunLacksIsNotTold()
    {
        const QString table = bench::ratioTable({construction(1, 10), Measurement()});
        QCOMPARE(linesOf(table, "lean QTableView").first(), QStringLiteral("lean QTableView - - - - - - -"));
    }

    void theWaysOfATextStandOverTheFirst()
    {
        const Measurement texts{
            {Run::Texts, job("setting", {{QStringLiteral("arg_toolkit"), 8}, {QStringLiteral("to_chars"), 2}})}};
        const QString table = bench::textTable({texts});
        QCOMPARE(linesOf(table, "record: arg + join, platform's"),
                 QStringList(QStringLiteral("record: arg + join, platform's formatter, us 8")));
        QCOMPARE(linesOf(table, "record: std::to_chars"),
                 QStringList(QStringLiteral("record: std::to_chars, ties to even 0.25")));
        QCOMPARE(linesOf(table, "record: ours"), QStringList(QStringLiteral("record: ours -")));
    }

    void countsAreEventsLayoutsWithResizesAndPaints()
    {
        Figures figures = job("counts_switch",
                              {{QStringLiteral("panel.events"), 9},
                               {QStringLiteral("panel.layouts"), 1},
                               {QStringLiteral("panel.resizes"), 2},
                               {QStringLiteral("panel.paints"), 4}});
        figures.insert(QStringLiteral("widgets"), {{QStringLiteral("panel"), 31}});
        QCOMPARE(linesOf(bench::countTable({{{Run::Plain, figures}}}), "our whole panel"),
                 QStringList(QStringLiteral("our whole panel 31 - 9 / 3 / 4 - -")));
    }

    void withoutMeasurementsNothingIsTold()
    {
        QCOMPARE(linesOf(bench::ratioTable({}), "our whole panel").first(),
                 QStringLiteral("our whole panel - - - - - - -"));
        QVERIFY(linesOf(bench::countTable({}), "our whole panel").isEmpty());
    }

    void theRatiosAreFoundByRunContenderAndJob()
    {
        const QJsonObject ratios = bench::ratioJson({construction(30, 100, Run::DoubleRatio)});
        const auto view = [&ratios](const char* run) {
            return ratios.value(QLatin1String(run)).toObject().value(QLatin1String("lean_view")).toObject();
        };
        QCOMPARE(view("ratio_2"), QJsonObject({{QStringLiteral("construct"), 0.3}}));
        QCOMPARE(view("ratio_1"), QJsonObject());
    }
};

QTEST_APPLESS_MAIN(tst_Contest)
#include "tst_Contest.moc"
