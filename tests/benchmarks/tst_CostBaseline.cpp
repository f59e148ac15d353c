#include "benchmarks/CostBaseline.h"

#include <QtTest>

using bench::Costs;

namespace {

const QString kPaints = QStringLiteral("switch panel paints");
const QString kInstructions = QStringLiteral("switch panel instructions");
constexpr bench::Tolerance kTolerance{0.05, 1000};

bench::Comparison compared(double before, double now, const QString& name = kPaints)
{
    return bench::compareCosts({{name, before}}, {{name, now}}, kTolerance);
}

} // namespace

class tst_CostBaseline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRiseAboveTheToleranceIsWrong()
    {
        QCOMPARE(compared(100, 106).wrong,
                 QStringList(QStringLiteral("switch panel paints: 106, the baseline says 100")));
    }

    void aRiseWithinTheToleranceIsNone()
    {
        QVERIFY(compared(100, 105).wrong.isEmpty());
        QVERIFY(compared(100, 105).better.isEmpty());
    }

    void aFallBelowTheToleranceIsToldAndNotWrong()
    {
        QVERIFY(compared(100, 94).wrong.isEmpty());
        QCOMPARE(compared(100, 94).better.size(), 1);
    }

    void anythingIsWrongWhereThereWasNothing()
    {
        QCOMPARE(compared(0, 1).wrong.size(), 1);
        QVERIFY(compared(0, 0).wrong.isEmpty());
    }

    void fewInstructionsMayDifferByMoreThanTheShare()
    {
        QVERIFY(compared(3000, 4000, kInstructions).wrong.isEmpty());
        QCOMPARE(compared(3000, 4001, kInstructions).wrong.size(), 1);
        QVERIFY(compared(3000, 2000, kInstructions).better.isEmpty());
        QCOMPARE(compared(3000, 1999, kInstructions).better.size(), 1);
    }

    void manyInstructionsMayDifferByTheShareAlone()
    {
        QVERIFY(compared(100000, 105000, kInstructions).wrong.isEmpty());
        QCOMPARE(compared(100000, 105001, kInstructions).wrong.size(), 1);
    }

    void aCountThatIsNoInstructionsHasNoFloor()
    {
        QCOMPARE(compared(10, 11).wrong.size(), 1);
        QCOMPARE(compared(10, 9).better.size(), 1);
    }

    void aCostThatOnlyOneSideHasIsWrong()
    {
        QCOMPARE(bench::compareCosts({}, {{kPaints, 1}}, kTolerance).wrong,
                 QStringList(QStringLiteral("switch panel paints: not in the baseline")));
        QCOMPARE(bench::compareCosts({{kPaints, 1}}, {}, kTolerance).wrong,
                 QStringList(QStringLiteral("switch panel paints: not measured")));
    }

    void whatIsWrittenIsRead()
    {
        const Costs costs{{QStringLiteral("a b allocations"), 12345678}, {kPaints, 0}};
        QStringList problems;
        QCOMPARE(bench::readCosts(bench::writeCosts(costs), problems), costs);
        QVERIFY(problems.isEmpty());
    }

    void commentsAndEmptyLinesSayNothing()
    {
        QStringList problems;
        QCOMPARE(bench::readCosts(QStringLiteral("# a = 1\n\n  b = 2  \n"), problems),
                 Costs({{QStringLiteral("b"), 2}}));
        QVERIFY(problems.isEmpty());
    }

    void whatIsNoCostIsNamed_data()
    {
        QTest::addColumn<QString>("line");
        QTest::newRow("no sign") << QStringLiteral("paints 3");
        QTest::newRow("no number") << QStringLiteral("paints = three");
        QTest::newRow("no name") << QStringLiteral("= 3");
        QTest::newRow("nothing after the sign") << QStringLiteral("paints =");
    }

    void whatIsNoCostIsNamed()
    {
        QFETCH(QString, line);
        QStringList problems;
        QVERIFY(bench::readCosts(line, problems).isEmpty());
        QCOMPARE(problems, QStringList(line));
    }

    void aNameThatStandsTwiceIsNamed()
    {
        QStringList problems;
        QCOMPARE(bench::readCosts(QStringLiteral("a = 1\na = 2"), problems), Costs({{QStringLiteral("a"), 1}}));
        QCOMPARE(problems, QStringList(QStringLiteral("a = 2")));
    }
};

QTEST_APPLESS_MAIN(tst_CostBaseline)
#include "tst_CostBaseline.moc"
