#include "benchmarks/Goals.h"

#include <QJsonDocument>
#include <QtTest>

using bench::Figures;
using bench::Run;

namespace {

bench::Verdict verdictOf(const char* title, const QMap<Run, Figures>& runs)
{
    for (const bench::Verdict& verdict : bench::judge(runs)) {
        if (qstrcmp(verdict.goal->title, title) == 0)
            return verdict;
    }
    qFatal("no such goal");
}

QMap<Run, Figures> heapOf(double table, double form)
{
    const Figures figures{
        {QStringLiteral("heap"), {{QStringLiteral("cell_table"), table}, {QStringLiteral("native_form"), form}}}};
    return {{Run::Plain, figures}};
}

} // namespace

class tst_Goals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void figuresAreFoundByJobAndContender()
    {
        const QByteArray output = R"({"benchmarks": [{"name": "heap/iterations:1/manual_time", "panel": 70.5}]})";
        const Figures figures = bench::figuresOf(QJsonDocument::fromJson(output).object());
        QCOMPARE(figures.value(QStringLiteral("heap")).value(QStringLiteral("panel")), 70.5);
    }

    void aRatioAtTheGoalIsMet()
    {
        QVERIFY(verdictOf("cell table: heap", heapOf(20, 100)).isMet());
    }

    void aRatioAboveTheGoalIsNotMet()
    {
        const bench::Verdict verdict = verdictOf("cell table: heap", heapOf(21, 100));
        QVERIFY(!verdict.isMet());
        QCOMPARE(verdict.measured, 0.21);
    }

    void whatWasNotMeasuredIsNotMet()
    {
        QVERIFY(!verdictOf("cell table: heap", {}).isMet());
        QVERIFY(!verdictOf("cell table: heap", heapOf(1, 0)).isMet());
        QVERIFY(!verdictOf("same flag: layouts and paints", {}).isMet());
    }

    void aFigureWithoutBaseIsComparedItself()
    {
        const auto runWith = [](double count) {
            const Figures figures{{QStringLiteral("unchanged"), {{QStringLiteral("flag"), count}}}};
            return QMap<Run, Figures>{{Run::Plain, figures}};
        };
        QVERIFY(verdictOf("same flag: layouts and paints", runWith(0)).isMet());
        QVERIFY(!verdictOf("same flag: layouts and paints", runWith(1)).isMet());
    }

    void theTableCountsWhatIsMet()
    {
        const QString table = bench::verdictTable(bench::judge(heapOf(20, 100)));
        QVERIFY(table.contains(QStringLiteral("1 of %1 goals met").arg(bench::goals().size())));
        QVERIFY(table.contains(QStringLiteral("not measured")));
    }
};

QTEST_APPLESS_MAIN(tst_Goals)
#include "tst_Goals.moc"
