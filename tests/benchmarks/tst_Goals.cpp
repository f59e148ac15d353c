#include "benchmarks/Goals.h"

#include <QJsonDocument>
#include <QtTest>

using bench::Figures;
using bench::Measurement;
using bench::Run;

namespace {

bench::Verdict verdictOf(const char* title, const QVector<Measurement>& measurements)
{
    for (const bench::Verdict& verdict : bench::judge(measurements)) {
        if (qstrcmp(verdict.goal->title, title) == 0)
            return verdict;
    }
    qFatal("no such goal");
}

Measurement heapOf(double table, double form)
{
    const Figures figures{
        {QStringLiteral("heap"), {{QStringLiteral("cell_table"), table}, {QStringLiteral("native_form"), form}}}};
    return {{Run::Plain, figures}};
}

QString lineOf(const QString& table, const QString& beginning)
{
    const QStringList lines = table.split(QLatin1Char('\n'));
    const QStringList found = lines.filter(QRegularExpression(QLatin1Char('^') + beginning));
    return found.size() == 1 ? found.first().simplified() : QString();
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
        QVERIFY(verdictOf("cell table: heap", {heapOf(20, 100)}).isMet());
    }

    void aRatioAboveTheGoalIsNotMet()
    {
        const bench::Verdict verdict = verdictOf("cell table: heap", {heapOf(21, 100)});
        QVERIFY(!verdict.isMet());
        QCOMPARE(verdict.measured(), 0.21);
    }

    void whatWasNotMeasuredIsNotMet()
    {
        QVERIFY(!verdictOf("cell table: heap", {}).isMet());
        QVERIFY(!verdictOf("cell table: heap", {heapOf(1, 0)}).isMet());
        QVERIFY(!verdictOf("same flag: layouts and paints", {}).isMet());
    }

    void aFigureWithoutBaseIsComparedItself()
    {
        const auto runWith = [](double count) {
            const Figures figures{{QStringLiteral("unchanged"), {{QStringLiteral("flag"), count}}}};
            return QVector<Measurement>{{{Run::Plain, figures}}};
        };
        QVERIFY(verdictOf("same flag: layouts and paints", runWith(0)).isMet());
        QVERIFY(!verdictOf("same flag: layouts and paints", runWith(1)).isMet());
    }

    void theTableCountsWhatIsMet()
    {
        const QString table = bench::verdictTable(bench::judge({heapOf(20, 100)}));
        QVERIFY(table.contains(QStringLiteral("1 of %1 goals met").arg(bench::goals().size())));
        QCOMPARE(lineOf(table, QStringLiteral("panel: heap")), QStringLiteral("panel: heap 0.3 - not measured"));
        QCOMPARE(lineOf(table, QStringLiteral("cell table: heap")), QStringLiteral("cell table: heap 0.2 0.2 met"));
    }

    void ofSeveralRunsTheMedianIsJudged()
    {
        QVERIFY(verdictOf("cell table: heap", {heapOf(90, 100), heapOf(19, 100), heapOf(20, 100)}).isMet());
        QVERIFY(!verdictOf("cell table: heap", {heapOf(1, 100), heapOf(21, 100), heapOf(22, 100)}).isMet());
    }

    void theRatioIsTakenWithinEachRun()
    {
        QCOMPARE(verdictOf("cell table: heap", {heapOf(10, 100), heapOf(40, 200), heapOf(90, 300)}).measured(), 0.2);
    }

    void whatOneRunLacksIsNotMeasured()
    {
        QVERIFY(!verdictOf("cell table: heap", {heapOf(20, 100), Measurement()}).isMeasured());
        QVERIFY(!verdictOf("cell table: heap", {}).isMeasured());
    }

    void ofSeveralRunsEachFigureStandsBesideTheMedian()
    {
        const QString table = bench::verdictTable(bench::judge({heapOf(10, 100), heapOf(40, 100), heapOf(30, 100)}));
        QCOMPARE(lineOf(table, QStringLiteral("goal")),
                 QStringLiteral("goal at most run 1 run 2 run 3 median verdict"));
        QCOMPARE(lineOf(table, QStringLiteral("cell table: heap")),
                 QStringLiteral("cell table: heap 0.2 0.1 0.4 0.3 0.3 NOT MET"));
        QCOMPARE(lineOf(table, QStringLiteral("panel: heap")), QStringLiteral("panel: heap 0.3 - - - - not measured"));
    }

    void theResultHoldsEachRunAndTheMedian()
    {
        const QJsonArray all = bench::verdictJson(bench::judge({heapOf(10, 100), heapOf(40, 100), heapOf(30, 100)}));
        QJsonObject heap;
        for (const QJsonValue& one : all) {
            if (one.toObject().value(QLatin1String("goal")) == QLatin1String("cell table: heap"))
                heap = one.toObject();
        }
        QCOMPARE(heap.value(QLatin1String("runs")).toArray(), QJsonArray({0.1, 0.4, 0.3}));
        QCOMPARE(heap.value(QLatin1String("measured")).toDouble(), 0.3);
        QCOMPARE(heap.value(QLatin1String("met")), QJsonValue(false));
    }

    void goalsOfATopicStandTogether()
    {
        QStringList topics;
        for (const bench::GoalRow& goal : bench::goals()) {
            if (topics.isEmpty() || topics.last() != QLatin1String(goal.topic))
                topics.append(QLatin1String(goal.topic));
        }
        QCOMPARE(topics.removeDuplicates(), 0);
    }
};

QTEST_APPLESS_MAIN(tst_Goals)
#include "tst_Goals.moc"
