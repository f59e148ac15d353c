#include "reference/toolkit/cells/NumberCell.h"
#include "reference/toolkit/cells/ValueCells.h"
#include "reference/toolkit/editors/EditRules.h"
#include "reference/toolkit/editors/TimeTexts.h"

#include <QtTest>

#include <limits>

using namespace WQ;

namespace {

NumberUnit shares()
{
    NumberUnit unit;
    unit.text = QStringLiteral("股");
    unit.type = 2;
    unit.min = 100;
    unit.max = 1000000;
    unit.step = 100;
    return unit;
}

PeriodCell tradingDay()
{
    return PeriodCell(6, QStringLiteral("有效时间"), QTime(9, 30), QTime(15, 0));
}

} // namespace

class tst_EditorRules : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void timesAreReadAsTyped_data();
    void timesAreReadAsTyped();
    void aWholeDayIsALengthAndNoTimeOfDay();
    void anEditorStartsWithoutGroupingAndUnit();
    void aRangeStartsWithBothNumbers();
    void aWrongNumberNamesLabelAndRange();
    void aWrongDraftStoresNothing();
    void aDraftOfAnotherShapeIsWrong();
    void storingTheSameAnswersThatNothingChanged();
    void aNumberStepsInItsStepAndStopsAtItsEnds();
    void aStepFromATextThatIsNoNumberStartsFromTheValue();
    void aTimeStepsInTheSectionOfTheCursorAndGoesRound();
    void aDurationStopsAtItsEnds();
    void aClockRangeBecomesADurationOfItsLength();
    void aDurationBecomesTheClockRangeThatTheCellHolds();
    void aComboHasNoFields();
};

void tst_EditorRules::timesAreReadAsTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("seconds"); // -1: no time
    QTest::newRow("hours and minutes") << QStringLiteral("9:30") << 34200;
    QTest::newRow("with seconds") << QStringLiteral("09:30:15") << 34215;
    QTest::newRow("four digits") << QStringLiteral("0930") << 34200;
    QTest::newRow("six digits") << QStringLiteral("093015") << 34215;
    QTest::newRow("full-width") << QStringLiteral("０９：３０") << 34200;
    QTest::newRow("blanks around") << QStringLiteral(" 15:00 ") << 54000;
    QTest::newRow("a whole day") << QStringLiteral("24:00:00") << 86400;
    QTest::newRow("more than a day") << QStringLiteral("24:00:01") << -1;
    QTest::newRow("sixty minutes") << QStringLiteral("9:60") << -1;
    QTest::newRow("sixty seconds") << QStringLiteral("9:30:60") << -1;
    QTest::newRow("empty") << QString() << -1;
    QTest::newRow("three digits") << QStringLiteral("930") << -1;
    QTest::newRow("a sign") << QStringLiteral("-9:30") << -1;
    QTest::newRow("four parts") << QStringLiteral("1:2:3:4") << -1;
    QTest::newRow("letters") << QStringLiteral("ab:cd") << -1;
    QTest::newRow("very long") << QString(1 << 20, QLatin1Char('1')) << -1;
}

void tst_EditorRules::timesAreReadAsTyped()
{
    QFETCH(QString, typed);
    QFETCH(int, seconds);
    QCOMPARE(times::typedSeconds(typed).value_or(-1), seconds);
}

void tst_EditorRules::aWholeDayIsALengthAndNoTimeOfDay()
{
    QVERIFY(times::typedSeconds(QStringLiteral("24:00:00")));
    QVERIFY(!times::typedTime(QStringLiteral("24:00:00")));
    QCOMPARE(times::typedTime(QStringLiteral("23:59:59")).value_or(QTime()), QTime(23, 59, 59));
}

void tst_EditorRules::anEditorStartsWithoutGroupingAndUnit()
{
    const NumberCell cell(3, QStringLiteral("单笔最小量"), {shares()}, 10000);
    QCOMPARE(cell.displayText(), QStringLiteral("10,000"));
    QCOMPARE(draftOf(cell).texts, QStringList{QStringLiteral("10000")});
}

void tst_EditorRules::aRangeStartsWithBothNumbers()
{
    const RangeCell cell(5, QStringLiteral("单笔量区间"), shares(), 200, 30000, QStringLiteral(" - "));
    QCOMPARE(draftOf(cell).texts, (QStringList{QStringLiteral("200"), QStringLiteral("30000")}));
}

void tst_EditorRules::aWrongNumberNamesLabelAndRange()
{
    const NumberCell cell(3, QStringLiteral("单笔最小量"), {shares()}, 10000);
    const Judgement judgement = judgeDraft(cell, {{QStringLiteral("99")}});
    QVERIFY(!judgement.ok);
    QVERIFY2(judgement.message.contains(QStringLiteral("单笔最小量")), qPrintable(judgement.message));
    QVERIFY2(judgement.message.contains(QStringLiteral("100 – 1,000,000 股")), qPrintable(judgement.message));
}

void tst_EditorRules::aWrongDraftStoresNothing()
{
    NumberCell cell(3, QStringLiteral("单笔最小量"), {shares()}, 10000);
    for (const char* typed : {"", "abc", "1e3", "99", "1000001", "100.5", "nan", "inf"}) {
        QVERIFY2(!storeDraft(cell, {{QLatin1String(typed)}}), typed);
        QCOMPARE(cell.number(), 10000.0);
    }
}

void tst_EditorRules::aDraftOfAnotherShapeIsWrong()
{
    NumberCell number(3, QStringLiteral("单笔最小量"), {shares()}, 10000);
    RangeCell range(5, QStringLiteral("单笔量区间"), shares(), 200, 30000, QStringLiteral(" - "));
    PeriodCell period(6, QStringLiteral("有效时间"), QTime(9, 30), QTime(15, 0));
    QVERIFY(!storeDraft(number, {}));
    QVERIFY(!storeDraft(range, {{QStringLiteral("300")}}));
    QVERIFY(!storeDraft(period, {{QStringLiteral("10:00")}, TimeRangeClock}));
    QVERIFY(!storeDraft(period, {{QStringLiteral("1:00"), QStringLiteral("2:00")}, TimeRangeDuration}));
    QVERIFY(!stepField(range, {{QStringLiteral("300")}}, 1, 0, 1));
    QCOMPARE(period.start(), QTime(9, 30));
}

void tst_EditorRules::storingTheSameAnswersThatNothingChanged()
{
    NumberCell cell(3, QStringLiteral("单笔最小量"), {shares()}, 10000);
    QVERIFY(!storeDraft(cell, {{QStringLiteral("10,000")}}));
    QVERIFY(storeDraft(cell, {{QStringLiteral("１２０００")}}));
    QCOMPARE(cell.number(), 12000.0);
}

void tst_EditorRules::aNumberStepsInItsStepAndStopsAtItsEnds()
{
    const NumberCell cell(3, QStringLiteral("单笔最小量"), {shares()}, 10000);
    QCOMPARE(stepField(cell, {{QStringLiteral("300")}}, 0, 0, 1)->text, QStringLiteral("400"));
    QCOMPARE(stepField(cell, {{QStringLiteral("300")}}, 0, 0, -10)->text, QStringLiteral("100"));
    QCOMPARE(stepField(cell, {{QStringLiteral("999950")}}, 0, 0, 1)->text, QStringLiteral("1000000"));
}

void tst_EditorRules::aStepFromATextThatIsNoNumberStartsFromTheValue()
{
    const NumberCell cell(3, QStringLiteral("单笔最小量"), {shares()}, 10000);
    QCOMPARE(stepField(cell, {{QStringLiteral("abc")}}, 0, 0, 1)->text, QStringLiteral("10100"));
}

void tst_EditorRules::aTimeStepsInTheSectionOfTheCursorAndGoesRound()
{
    const PeriodCell cell(6, QStringLiteral("有效时间"), QTime(9, 30), QTime(23, 59, 59));
    const Draft draft = draftOf(cell);
    QCOMPARE(stepField(cell, draft, 0, 0, 1)->text, QStringLiteral("10:30:00"));
    QCOMPARE(stepField(cell, draft, 0, 4, 1)->text, QStringLiteral("09:31:00"));
    QCOMPARE(stepField(cell, draft, 0, 8, -1)->text, QStringLiteral("09:29:59"));
    QCOMPARE(stepField(cell, draft, 1, 8, 1)->text, QStringLiteral("00:00:00"));
    QCOMPARE(stepField(cell, draft, 0, 4, 1)->selectionStart, 3);
    QCOMPARE(stepField(cell, draft, 0, 4, 1)->selectionLength, 2);
}

void tst_EditorRules::aDurationStopsAtItsEnds()
{
    const PeriodCell cell = tradingDay();
    QCOMPARE(stepField(cell, {{QStringLiteral("23:30:00")}, TimeRangeDuration}, 0, 0, 1)->text,
             QStringLiteral("24:00:00"));
    QCOMPARE(stepField(cell, {{QStringLiteral("00:30:00")}, TimeRangeDuration}, 0, 0, -1)->text,
             QStringLiteral("00:00:00"));
}

void tst_EditorRules::aClockRangeBecomesADurationOfItsLength()
{
    const PeriodCell cell = tradingDay();
    const Draft draft = switchedPeriod(cell, draftOf(cell));
    QCOMPARE(draft.period, TimeRangeDuration);
    QCOMPARE(draft.texts, QStringList{QStringLiteral("05:30:00")});
    const Draft overnight{{QStringLiteral("23:00:00"), QStringLiteral("01:00:00")}, TimeRangeClock};
    QCOMPARE(switchedPeriod(cell, overnight).texts, QStringList{QStringLiteral("02:00:00")});
}

void tst_EditorRules::aDurationBecomesTheClockRangeThatTheCellHolds()
{
    PeriodCell cell(6, QStringLiteral("有效时间"), QTime(9, 30), QTime(15, 0));
    QVERIFY(storeDraft(cell, {{QStringLiteral("1:00")}, TimeRangeDuration}));
    QCOMPARE(cell.rangeType(), TimeRangeDuration);
    QCOMPARE(cell.elapse(), 3600);
    const Draft draft = switchedPeriod(cell, draftOf(cell));
    QCOMPARE(draft.period, TimeRangeClock);
    QCOMPARE(draft.texts, (QStringList{QStringLiteral("09:30:00"), QStringLiteral("15:00:00")}));
}

void tst_EditorRules::aComboHasNoFields()
{
    QVERIFY(!hasFields(CellKind::Combo));
    for (const CellKind kind : {CellKind::Number, CellKind::CheckNumber, CellKind::Range, CellKind::TimePeriod,
                                CellKind::Line, CellKind::Text})
        QVERIFY(hasFields(kind));
}

QTEST_APPLESS_MAIN(tst_EditorRules)
#include "tst_EditorRules.moc"
