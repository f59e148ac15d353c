#include "reference/toolkit/cells/ComboCell.h"
#include "reference/toolkit/cells/NumberCell.h"
#include "reference/toolkit/cells/ValueCells.h"

#include <QDateTime>
#include <QtTest>

#include <limits>

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

WQ::NumberUnit unit(const QString& text, int type, double min, double max, double step)
{
    WQ::CParamCellUnitInfo info;
    info.text = text;
    info.type = type;
    info.min = min;
    info.max = max;
    info.step = step;
    return WQ::numberUnit(info);
}

WQ::NumberCell superPrice()
{
    return {2,
            QStringLiteral("单笔超价"),
            {unit(QStringLiteral("%"), 6, -100, 100, 0.01), unit(QStringLiteral("元"), 6, -1000000, 1000000, 0.0001)},
            0.5};
}

WQ::NumberCell tailVolume()
{
    return {64,
            QStringLiteral("尾单最小量"),
            {unit(QStringLiteral("%"), 2, 1, 100, 0), unit(QStringLiteral("股"), 2, 100, 1000000, 100)},
            100};
}

WQ::ComboCell prices()
{
    return {1,
            QStringLiteral("报价方式"),
            {QStringLiteral("最新价"), QStringLiteral("对手价"), QStringLiteral("多余")},
            {5, QStringLiteral("14")},
            0};
}

QTime at(int hour, int minute, int second = 0)
{
    return QTime(hour, minute, second);
}

} // namespace

class tst_CellValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstUnitIsCurrentAtFirst();
    void switchingTheUnitKeepsTheNumberAndBoundsIt();
    void unitThatTheCellLacksRenamesTheCurrentOne();
    void limitsOfAnotherUnitTouchNoValue();
    void limitsOfTheCurrentUnitBoundTheValue();
    void sixArgumentsMakeTheUnitCurrentOnlyWhenAsked();
    void unknownUnitReplacesTheCurrentOneOnlyWhenMadeCurrent();
    void stepOfZeroKeepsTheStep();
    void tickSetsTheStepOfThatUnitAndTouchesNoValue();
    void notANumberLeavesTheValue();
    void infinityStopsAtTheLimit();
    void intCellDropsTheFraction();
    void textOfANumberHasNoGroupingAndNoUnit();
    void textThatIsNoNumberIsIgnored();
    void checkMark();
    void comboTakesTheShorterList();
    void comboKeepsItsChoiceForAnUnknownValue_data();
    void comboKeepsItsChoiceForAnUnknownValue();
    void emptyComboHasNothing();
    void comboIndexOutsideTheListIsNone();
    void comboTakesTheTextOfAnEntry();
    void rangeHoldsTheLowerFirst();
    void rangeTakesItsOwnText();
    void rangeIsBounded();
    void rangeJudgesBothTexts();
    void periodText();
    void periodLength_data();
    void periodLength();
    void durationIsBoundedToADay();
    void periodInEpochSeconds();
    void endBeforeItsStartIsOnTheNextDay();
    void epochRangeOfAWildClock();
    void periodTakesItsOwnText_data();
    void periodTakesItsOwnText();
    void linePattern();
    void textCell();
    void quantityIsGroupedButACodeIsNot();
    void textsOfAMegabyte();
};

void tst_CellValues::firstUnitIsCurrentAtFirst()
{
    const WQ::NumberCell cell = superPrice();
    QCOMPARE(cell.unit(), QStringLiteral("%"));
    QCOMPARE(cell.number(), 0.5);
    QCOMPARE(cell.maximum(), 100.0);
    QVERIFY(cell.hasChevron());
}

void tst_CellValues::switchingTheUnitKeepsTheNumberAndBoundsIt()
{
    WQ::NumberCell cell = tailVolume();
    QCOMPARE(cell.number(), 100.0);
    cell.setNumber(7);
    QVERIFY(cell.setUnit(QStringLiteral("股")));
    QCOMPARE(cell.number(), 100.0);
    cell.setNumber(5000);
    cell.setUnit(QStringLiteral("%"));
    QCOMPARE(cell.number(), 100.0);
    QVERIFY2(!cell.setUnit(QStringLiteral("%")), "nothing changes");
}

void tst_CellValues::unitThatTheCellLacksRenamesTheCurrentOne()
{
    WQ::NumberCell cell = superPrice();
    QVERIFY(cell.setUnit(QStringLiteral("点")));
    QCOMPARE(cell.unit(), QStringLiteral("点"));
    QCOMPARE(cell.units().size(), 2);
    QCOMPARE(cell.units().at(1).text, QStringLiteral("元"));
    QCOMPARE(cell.maximum(), 100.0);
}

void tst_CellValues::limitsOfAnotherUnitTouchNoValue()
{
    WQ::NumberCell cell = superPrice();
    cell.setUnit(QStringLiteral("元"), 0, 0.1, 0, false);
    QCOMPARE(cell.unit(), QStringLiteral("%"));
    QCOMPARE(cell.number(), 0.5);
    QCOMPARE(cell.units().at(1).max, 0.1);
    cell.setUnit(QStringLiteral("元"));
    QCOMPARE(cell.number(), 0.1);
}

void tst_CellValues::limitsOfTheCurrentUnitBoundTheValue()
{
    WQ::NumberCell cell = superPrice();
    QVERIFY(cell.setLimits(1, 2));
    QCOMPARE(cell.number(), 1.0);
    cell.setLimits(5, 3);
    QCOMPARE(cell.minimum(), 5.0);
    QCOMPARE(cell.maximum(), 5.0);
    QCOMPARE(cell.number(), 5.0);
    QVERIFY2(!cell.setLimits(-7, 7), "the value stays, nothing to be seen changes");
    QCOMPARE(cell.minimum(), -7.0);
}

void tst_CellValues::sixArgumentsMakeTheUnitCurrentOnlyWhenAsked()
{
    WQ::NumberCell cell = superPrice();
    QVERIFY2(!cell.setUnit(QStringLiteral("元"), -10, 10, 0, false), "limits of another unit are not seen");
    QCOMPARE(cell.unit(), QStringLiteral("%"));
    QVERIFY2(!cell.setUnit(QStringLiteral("%"), -50, 50, 0, true), "limits are not seen");
    QVERIFY2(cell.setUnit(QStringLiteral("%"), -0.25, 0.25, 0, false), "the value is bounded");
    QVERIFY2(cell.setUnit(QStringLiteral("%"), -50, 50, 0.125, false), "the step has other decimals");
    QVERIFY(cell.setUnit(QStringLiteral("元"), -20, 20, 0, true));
    QCOMPARE(cell.unit(), QStringLiteral("元"));
    QCOMPARE(cell.minimum(), -20.0);
}

void tst_CellValues::unknownUnitReplacesTheCurrentOneOnlyWhenMadeCurrent()
{
    WQ::NumberCell cell = superPrice();
    QVERIFY(!cell.setUnit(QStringLiteral("港币"), 0, 1, 1, false));
    QCOMPARE(cell.unit(), QStringLiteral("%"));
    QCOMPARE(cell.maximum(), 100.0);
    QVERIFY(cell.setUnit(QStringLiteral("港币"), 0, 0.25, 0.5, true));
    QCOMPARE(cell.unit(), QStringLiteral("港币"));
    QCOMPARE(cell.number(), 0.25);
    QCOMPARE(cell.currentUnit().step, 0.5);
    QCOMPARE(cell.units().size(), 2);
}

void tst_CellValues::stepOfZeroKeepsTheStep()
{
    WQ::NumberCell cell = superPrice();
    cell.setUnit(QStringLiteral("%"), -100, 100, 0, false);
    QCOMPARE(cell.currentUnit().step, 0.01);
    cell.setUnit(QStringLiteral("%"), -100, 100, 0.5, false);
    QCOMPARE(cell.currentUnit().step, 0.5);
}

void tst_CellValues::tickSetsTheStepOfThatUnitAndTouchesNoValue()
{
    WQ::NumberCell cell = superPrice();
    QVERIFY2(!cell.setTick(QStringLiteral("元"), 0.002), "the step of another unit is not seen");
    QCOMPARE(cell.units().at(1).step, 0.002);
    QCOMPARE(cell.currentUnit().step, 0.01);
    QVERIFY(cell.setTick(QStringLiteral("%"), 0.3));
    QCOMPARE(cell.number(), 0.5);
    QVERIFY2(!cell.offGridText().isEmpty(), "the value stays where it is and is marked");
    QVERIFY2(!cell.setTick(QStringLiteral("%"), 0.3), "nothing changes");
    QVERIFY(!cell.setTick(QStringLiteral("点"), 1));
}

void tst_CellValues::notANumberLeavesTheValue()
{
    WQ::NumberCell cell = superPrice();
    QVERIFY(!cell.setNumber(kNan));
    QCOMPARE(cell.number(), 0.5);
    QCOMPARE(WQ::NumberCell(1, QString(), {unit(QString(), 6, -1, 1, 0)}, kNan).number(), 0.0);
}

void tst_CellValues::infinityStopsAtTheLimit()
{
    WQ::NumberCell cell = superPrice();
    cell.setNumber(kInfinity);
    QCOMPARE(cell.number(), 100.0);
    cell.setNumber(-kInfinity);
    QCOMPARE(cell.number(), -100.0);
}

void tst_CellValues::intCellDropsTheFraction()
{
    WQ::NumberCell cell(512, QString(), {unit(QStringLiteral("股"), 2, 100, 1000000, 100)}, 10000);
    cell.setNumber(1250.9);
    QCOMPARE(cell.number(), 1250.0);
    QCOMPARE(cell.data(), QVariant(1250));
    WQ::NumberCell wide(1, QString(), {unit(QString(), 2, -1e18, 1e18, 1)}, 0);
    wide.setNumber(1e17);
    QCOMPARE(wide.number(), 2147483647.0);
}

void tst_CellValues::textOfANumberHasNoGroupingAndNoUnit()
{
    WQ::NumberCell cell(512, QString(), {unit(QStringLiteral("股"), 2, 100, 1000000, 100)}, 10000);
    QCOMPARE(cell.text(), QStringLiteral("10000"));
    QCOMPARE(cell.displayText(), QStringLiteral("10,000"));
    QCOMPARE(superPrice().text(), QStringLiteral("0.50"));
    WQ::NumberCell fine = superPrice();
    fine.setUnit(QStringLiteral("元"));
    QCOMPARE(fine.text(), QStringLiteral("0.5000"));
}

void tst_CellValues::textThatIsNoNumberIsIgnored()
{
    WQ::NumberCell cell = superPrice();
    QVERIFY(!cell.setText(QStringLiteral("abc")));
    QVERIFY(!cell.setText(QString()));
    QCOMPARE(cell.number(), 0.5);
    QVERIFY(cell.setText(QStringLiteral("1.25")));
    QCOMPARE(cell.number(), 1.25);
    QVERIFY(cell.setText(QStringLiteral("1000")));
    QCOMPARE(cell.number(), 100.0);
}

void tst_CellValues::checkMark()
{
    WQ::NumberCell cell(8, QStringLiteral("波动区间"), QStringLiteral("单向"), false,
                        {unit(QStringLiteral("%"), 6, 0, 100, 0.01)}, 3);
    QCOMPARE(cell.kind(), WQ::CellKind::CheckNumber);
    QCOMPARE(cell.checkText(), QStringLiteral("单向"));
    QVERIFY(cell.setChecked(true));
    QVERIFY(!cell.setChecked(true));
    QVERIFY(cell.isChecked());
    WQ::NumberCell plain = superPrice();
    QVERIFY2(!plain.setChecked(true), "a cell without a check box takes none");
}

void tst_CellValues::comboTakesTheShorterList()
{
    const WQ::ComboCell cell = prices();
    QCOMPARE(cell.count(), 2);
    QCOMPARE(cell.entryText(2), QString());
    QCOMPARE(cell.entryText(-1), QString());
    QVERIFY(!cell.entryData(2).isValid());
}

void tst_CellValues::comboKeepsItsChoiceForAnUnknownValue_data()
{
    QTest::addColumn<QVariant>("asked");
    QTest::addColumn<int>("index");
    QTest::newRow("the text of the second") << QVariant(QStringLiteral("14")) << 1;
    QTest::newRow("the number of the first") << QVariant(5) << 0;
    QTest::newRow("a number of another type") << QVariant(5.0) << 0;
    QTest::newRow("a text is no number") << QVariant(QStringLiteral("5")) << 1;
    QTest::newRow("a number is no text") << QVariant(14) << 1;
    QTest::newRow("unknown") << QVariant(99) << 1;
    QTest::newRow("invalid") << QVariant() << 1;
}

void tst_CellValues::comboKeepsItsChoiceForAnUnknownValue()
{
    QFETCH(QVariant, asked);
    WQ::ComboCell cell = prices();
    cell.setCurrentIndex(1);
    cell.setData(asked);
    QTEST(cell.currentIndex(), "index");
}

void tst_CellValues::emptyComboHasNothing()
{
    WQ::ComboCell cell = prices();
    QVERIFY(cell.setEntries({}, {}, 0));
    QCOMPARE(cell.currentIndex(), -1);
    QVERIFY(!cell.data().isValid());
    QCOMPARE(cell.text(), QString());
    QCOMPARE(cell.number(), 0.0);
}

void tst_CellValues::comboIndexOutsideTheListIsNone()
{
    WQ::ComboCell cell = prices();
    cell.setEntries({QStringLiteral("a"), QStringLiteral("b")}, {1, 2}, 7);
    QCOMPARE(cell.currentIndex(), -1);
    cell.setCurrentIndex(1);
    cell.setEntries({QStringLiteral("a"), QStringLiteral("b")}, {1, 2}, -3);
    QCOMPARE(cell.currentIndex(), -1);
}

void tst_CellValues::comboTakesTheTextOfAnEntry()
{
    WQ::ComboCell cell = prices();
    QVERIFY(cell.setText(QStringLiteral("对手价")));
    QCOMPARE(cell.data(), QVariant(QStringLiteral("14")));
    QVERIFY(!cell.setText(QStringLiteral("多余")));
    QCOMPARE(cell.currentIndex(), 1);
}

static WQ::RangeCell volumeRange()
{
    return {0x800000, QStringLiteral("单笔量区间"), unit(QStringLiteral("股"), 2, 1, 1000000, 1), 1,
            1000000,  QStringLiteral(" - ")};
}

void tst_CellValues::rangeHoldsTheLowerFirst()
{
    WQ::RangeCell cell = volumeRange();
    QCOMPARE(cell.text(), QStringLiteral("1 - 1000000"));
    QCOMPARE(cell.displayText(), QStringLiteral("1 - 1,000,000"));
    QCOMPARE(cell.unit(), QStringLiteral("股"));
    cell.setRange(500, 300);
    QCOMPARE(cell.low(), 500.0);
    QCOMPARE(cell.high(), 500.0);
    QVERIFY(!cell.setRange(kNan, kNan));
}

void tst_CellValues::rangeTakesItsOwnText()
{
    WQ::RangeCell cell = volumeRange();
    QVERIFY(cell.setText(QStringLiteral("100 - 2000")));
    QCOMPARE(cell.low(), 100.0);
    QCOMPARE(cell.high(), 2000.0);
    QVERIFY(!cell.setText(QStringLiteral("100 to 300")));
    QVERIFY(!cell.setText(QStringLiteral(" - ")));
    QCOMPARE(cell.text(), QStringLiteral("100 - 2000"));
}

void tst_CellValues::rangeIsBounded()
{
    WQ::RangeCell cell = volumeRange();
    QVERIFY(cell.setLimits(100, 5000));
    QCOMPARE(cell.low(), 100.0);
    QCOMPARE(cell.high(), 5000.0);
    cell.setRange(0, kInfinity);
    QCOMPARE(cell.text(), QStringLiteral("100 - 5000"));
}

void tst_CellValues::rangeJudgesBothTexts()
{
    const WQ::RangeCell cell = volumeRange();
    QVERIFY(cell.judge(QStringLiteral("1"), QStringLiteral("２")).ok);
    QVERIFY(!cell.judge(QStringLiteral("a"), QStringLiteral("2")).ok);
    QVERIFY(!cell.judge(QStringLiteral("1"), QStringLiteral("2000000")).ok);
    const WQ::Judgement crossed = cell.judge(QStringLiteral("5"), QStringLiteral("4"));
    QVERIFY(!crossed.ok);
    QCOMPARE(crossed.message, QStringLiteral("单笔量区间 上限不能小于下限（1 – 1,000,000 股）"));
}

void tst_CellValues::periodText()
{
    WQ::PeriodCell cell(0x800, QStringLiteral("有效时间"), at(9, 30), at(15, 0));
    QCOMPARE(cell.text(), QStringLiteral("09:30:00-15:00:00"));
    QCOMPARE(cell.displayText(), QStringLiteral("09:30 – 15:00"));
    cell.setClock(at(9, 30, 5), at(15, 0));
    QCOMPARE(cell.displayText(), QStringLiteral("09:30:05 – 15:00"));
    cell.setDuration(3725);
    QCOMPARE(cell.displayText(), QStringLiteral("01:02:05"));
    QCOMPARE(WQ::PeriodCell(1, QString(), QTime(), QTime()).text(), QStringLiteral("00:00:00-00:00:00"));
}

void tst_CellValues::periodLength_data()
{
    QTest::addColumn<QTime>("start");
    QTest::addColumn<QTime>("end");
    QTest::addColumn<int>("seconds");
    QTest::newRow("on one day") << at(9, 30) << at(15, 0) << 19800;
    QTest::newRow("over midnight") << at(21, 0) << at(2, 30) << 19800;
    QTest::newRow("nothing") << at(9, 30) << at(9, 30) << 0;
}

void tst_CellValues::periodLength()
{
    QFETCH(QTime, start);
    QFETCH(QTime, end);
    const WQ::PeriodCell cell(1, QString(), start, end);
    QCOMPARE(cell.rangeType(), WQ::TimeRangeClock);
    QTEST(cell.elapse(), "seconds");
}

void tst_CellValues::durationIsBoundedToADay()
{
    WQ::PeriodCell cell(1, QString(), at(9, 30), at(15, 0));
    QVERIFY(cell.setDuration(600));
    QCOMPARE(cell.rangeType(), WQ::TimeRangeDuration);
    QCOMPARE(cell.elapse(), 600);
    cell.setDuration(-5);
    QCOMPARE(cell.elapse(), 0);
    cell.setDuration(std::numeric_limits<int>::max());
    QCOMPARE(cell.elapse(), 86400);
    QVERIFY(cell.setClock(at(9, 30), at(15, 0)));
    QCOMPARE(cell.elapse(), 19800);
    QVERIFY(!cell.setClock(QTime(), at(15, 0)));
}

void tst_CellValues::periodInEpochSeconds()
{
    // 2024-03-15 in Shanghai begins at 1710432000; the clock shows 14:00.
    const WQ::PeriodCell cell(1, QString(), at(9, 30), at(15, 0));
    const QPair<int, int> expected(1710432000 + 34200, 1710432000 + 54000);
    QCOMPARE(cell.epochRange(1710432000 + 50400), expected);
    QCOMPARE(cell.epochRange(1710432000), expected);
    QCOMPARE(cell.epochRange(1710432000 + 86399), expected);
}

void tst_CellValues::endBeforeItsStartIsOnTheNextDay()
{
    const WQ::PeriodCell cell(1, QString(), at(21, 0), at(2, 30));
    const QPair<int, int> expected(1710432000 + 75600, 1710432000 + 86400 + 9000);
    QCOMPARE(cell.epochRange(1710432000 + 50400), expected);
}

void tst_CellValues::epochRangeOfAWildClock()
{
    const WQ::PeriodCell cell(1, QString(), at(9, 30), at(15, 0));
    QCOMPARE(cell.epochRange(std::numeric_limits<qint64>::max()).first, std::numeric_limits<int>::max());
    QCOMPARE(cell.epochRange(std::numeric_limits<qint64>::min()).second, std::numeric_limits<int>::min());
}

void tst_CellValues::periodTakesItsOwnText_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("text");
    QTest::newRow("its own form") << QStringLiteral("10:00:01-11:30:59") << QStringLiteral("10:00:01-11:30:59");
    QTest::newRow("no time") << QStringLiteral("25:00:00-26:00:00") << QStringLiteral("09:30:00-15:00:00");
    QTest::newRow("one time") << QStringLiteral("10:00:00") << QStringLiteral("09:30:00-15:00:00");
    QTest::newRow("empty") << QString() << QStringLiteral("09:30:00-15:00:00");
}

void tst_CellValues::periodTakesItsOwnText()
{
    QFETCH(QString, given);
    WQ::PeriodCell cell(1, QString(), at(9, 30), at(15, 0));
    cell.setText(given);
    QTEST(cell.text(), "text");
}

void tst_CellValues::linePattern()
{
    const WQ::LineCell cell(727, QString(), QString(), QStringLiteral("(^$)|[a-zA-Z0-9-\\s&\\*]+$"), QString());
    QVERIFY(cell.accepts(QString()));
    QVERIFY(cell.accepts(QStringLiteral("600000-A &*")));
    QVERIFY(!cell.accepts(QStringLiteral("600000;")));
    QVERIFY(!cell.accepts(QStringLiteral("量600000")));
    QVERIFY(WQ::LineCell(1, QString(), QString(), QStringLiteral("(["), QString()).accepts(QStringLiteral("x")));
    QVERIFY(WQ::LineCell(1, QString(), QString(), QString(), QString()).accepts(QStringLiteral("x")));
}

void tst_CellValues::textCell()
{
    WQ::TextCell cell(728, QStringLiteral("未还合约数量"), QStringLiteral("股"));
    QCOMPARE(cell.text(), QString());
    QCOMPARE(cell.number(), 0.0);
    cell.setText(QStringLiteral("3000.5"));
    QCOMPARE(cell.number(), 3000.5);
    QCOMPARE(cell.text(), QStringLiteral("3000.5"));
    QVERIFY(!cell.setLimits(0, 1));
    cell.setText(QStringLiteral("three"));
    QCOMPARE(cell.number(), 0.0);
    QVERIFY(cell.setUnit(QStringLiteral("元"), 0, 0, 0, true));
    QCOMPARE(cell.unit(), QStringLiteral("元"));
    QVERIFY(!cell.setUnit(QStringLiteral("手"), 0, 0, 0, false));
    QCOMPARE(cell.unit(), QStringLiteral("元"));
    QVERIFY(cell.setUnit(QStringLiteral("股")));
    QCOMPARE(cell.unit(), QStringLiteral("股"));
}

void tst_CellValues::quantityIsGroupedButACodeIsNot()
{
    WQ::TextCell quantity(728, QString(), QStringLiteral("股"));
    quantity.setText(QStringLiteral("250000.00"));
    QCOMPARE(quantity.displayText(), QStringLiteral("250,000.00"));
    WQ::TextCell code(729, QString(), QString());
    code.setText(QStringLiteral("600000"));
    QCOMPARE(code.displayText(), QStringLiteral("600000"));
}

void tst_CellValues::textsOfAMegabyte()
{
    const QString text(1 << 20, QLatin1Char('9'));
    WQ::LineCell line(1, text, text, QString(), text);
    QCOMPARE(line.text().size(), text.size());
    WQ::TextCell cell(2, text, text);
    cell.setText(text);
    QCOMPARE(cell.number(), 0.0);
    WQ::NumberCell number = superPrice();
    QVERIFY(!number.setText(text));
    WQ::PeriodCell period(3, QString(), at(9, 30), at(15, 0));
    QVERIFY(!period.setText(text));
    WQ::RangeCell range = volumeRange();
    QVERIFY(!range.setText(text + QStringLiteral(" - ") + text));
}

QTEST_APPLESS_MAIN(tst_CellValues)
#include "tst_CellValues.moc"
