#include "reference/toolkit/cells/NumberRules.h"

#include <QtTest>

#include <cmath>
#include <limits>

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

WQ::NumberUnit unit(int type, double min, double max, double step, const QString& text = QString())
{
    WQ::CParamCellUnitInfo info;
    info.text = text;
    info.type = type;
    info.min = min;
    info.max = max;
    if (step >= 0)
        info.step = step;
    return WQ::numberUnit(info);
}

constexpr double kNoStep = -1;

} // namespace

class tst_NumberRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unitOfADescription();
    void unitWithoutLimitsTakesAnyNumber();
    void maximumBelowMinimumFollowsIt();
    void notANumberLeavesALimit();
    void stepThatIsNoStepIsIgnored();
    void stepOfAKey();
    void wholeNumberStopsAtTheEndsOf32Bits_data();
    void wholeNumberStopsAtTheEndsOf32Bits();
    void boundedNumber_data();
    void boundedNumber();
    void decimalsAreThoseOfTheStep_data();
    void decimalsAreThoseOfTheStep();
    void numberText_data();
    void numberText();
    void whatIsShownIsNeverAnotherNumber();
    void groupedDigits_data();
    void groupedDigits();
    void typedNumber_data();
    void typedNumber();
    void numberOfAHostMayHaveAnExponent();
    void megabyteTextIsNoNumber();
    void offGrid_data();
    void offGrid();
    void rangeOfAUnit_data();
    void rangeOfAUnit();
    void noTextNamesALimitThatIsNone();
    void aSwitchThatBoundsSaysBothNumbers();
    void judgement_data();
    void judgement();
};

void tst_NumberRules::unitOfADescription()
{
    WQ::CParamCellUnitInfo info;
    info.text = QStringLiteral("%");
    info.type = 6;
    info.min = 0;
    info.max = 100.5;
    const WQ::NumberUnit made = WQ::numberUnit(info);
    QCOMPARE(made.text, QStringLiteral("%"));
    QCOMPARE(made.min, 0.0);
    QCOMPARE(made.max, 100.5);
    QVERIFY(!made.hasStep);
    QVERIFY(!WQ::unitInfo(made).step.isValid());

    info.step = 0.0;
    QVERIFY2(WQ::unitInfo(WQ::numberUnit(info)).step.isValid(), "a step of 0 that was given stays one that was given");
    QCOMPARE(WQ::unitInfo(WQ::numberUnit(info)).max, QVariant(100.5));
}

void tst_NumberRules::unitWithoutLimitsTakesAnyNumber()
{
    WQ::CParamCellUnitInfo info;
    info.type = 6;
    info.max = QStringLiteral("no number");
    const WQ::NumberUnit made = WQ::numberUnit(info);
    QCOMPARE(WQ::boundedNumber(made, -1e300), -1e300);
    QCOMPARE(WQ::boundedNumber(made, 1e300), 1e300);
}

void tst_NumberRules::maximumBelowMinimumFollowsIt()
{
    WQ::NumberUnit limited = unit(6, 0, 100, kNoStep);
    WQ::setLimits(limited, 50, 20);
    QCOMPARE(limited.min, 50.0);
    QCOMPARE(limited.max, 50.0);
    QCOMPARE(unit(6, 10, 5, kNoStep).max, 10.0);
}

void tst_NumberRules::notANumberLeavesALimit()
{
    WQ::NumberUnit limited = unit(6, 1, 100, kNoStep);
    WQ::setLimits(limited, kNan, 50);
    QCOMPARE(limited.min, 1.0);
    QCOMPARE(limited.max, 50.0);
    WQ::setLimits(limited, 2, kNan);
    QCOMPARE(limited.min, 2.0);
    QCOMPARE(limited.max, 50.0);
}

void tst_NumberRules::stepThatIsNoStepIsIgnored()
{
    WQ::NumberUnit stepped = unit(6, 0, 100, 0.01);
    for (const double step : {kNan, kInfinity, -1.0})
        WQ::setStep(stepped, step);
    QCOMPARE(stepped.step, 0.01);
}

void tst_NumberRules::stepOfAKey()
{
    QCOMPARE(WQ::stepOf(unit(2, 0, 100, 100)), 100.0);
    QCOMPARE(WQ::stepOf(unit(2, 0, 100, 0)), 1.0);
    QCOMPARE(WQ::stepOf(unit(6, 0, 100, kNoStep)), 0.01);
}

void tst_NumberRules::wholeNumberStopsAtTheEndsOf32Bits_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("whole");
    QTest::newRow("a fraction is dropped") << 2.9 << 2;
    QTest::newRow("a fraction below zero is dropped") << -2.9 << -2;
    QTest::newRow("above 32 bits") << 1e12 << 2147483647;
    QTest::newRow("below 32 bits") << -1e12 << (-2147483647 - 1);
    QTest::newRow("infinity") << kInfinity << 2147483647;
    QTest::newRow("minus infinity") << -kInfinity << (-2147483647 - 1);
    QTest::newRow("not-a-number") << kNan << 0;
}

void tst_NumberRules::wholeNumberStopsAtTheEndsOf32Bits()
{
    QFETCH(double, value);
    QTEST(WQ::wholeNumber(value), "whole");
}

void tst_NumberRules::boundedNumber_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("bounded");
    QTest::newRow("inside") << 6 << 0.0 << 100.0 << 12.34 << 12.34;
    QTest::newRow("above") << 6 << 0.0 << 100.0 << 100.01 << 100.0;
    QTest::newRow("below") << 6 << -5.0 << 100.0 << -5.01 << -5.0;
    QTest::newRow("infinity") << 6 << 0.0 << 100.0 << kInfinity << 100.0;
    QTest::newRow("minus infinity") << 6 << 0.0 << 100.0 << -kInfinity << 0.0;
    QTest::newRow("a whole unit drops the fraction") << 2 << 0.0 << 100.0 << 99.9 << 99.0;
    QTest::newRow("a whole unit between fractional limits") << 2 << 0.5 << 9.5 << 0.7 << 1.0;
    QTest::newRow("a whole unit stops at 32 bits") << 2 << -1e15 << 1e15 << 1e14 << 2147483647.0;
    QTest::newRow("an unknown value type is a fraction") << 77 << 0.0 << 100.0 << 0.5 << 0.5;
}

void tst_NumberRules::boundedNumber()
{
    QFETCH(int, type);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, value);
    QTEST(WQ::boundedNumber(unit(type, min, max, kNoStep), value), "bounded");
}

void tst_NumberRules::decimalsAreThoseOfTheStep_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("step");
    QTest::addColumn<int>("decimals");
    QTest::newRow("an int cell has none") << 2 << 0.5 << 0;
    QTest::newRow("without a step two") << 6 << kNoStep << 2;
    QTest::newRow("a step of 0 is no step") << 6 << 0.0 << 2;
    QTest::newRow("0.01") << 6 << 0.01 << 2;
    QTest::newRow("0.0001") << 6 << 0.0001 << 4;
    QTest::newRow("0.2") << 6 << 0.2 << 1;
    QTest::newRow("0.005") << 6 << 0.005 << 3;
    QTest::newRow("1") << 6 << 1.0 << 0;
    QTest::newRow("100") << 6 << 100.0 << 0;
    QTest::newRow("no more than six") << 6 << 1e-9 << 6;
}

void tst_NumberRules::decimalsAreThoseOfTheStep()
{
    QFETCH(int, type);
    QFETCH(double, step);
    QTEST(WQ::decimalsOf(unit(type, 0, 100, step)), "decimals");
}

void tst_NumberRules::numberText_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");
    QTest::newRow("the decimals of the step") << 0.5 << 2 << QStringLiteral("0.50");
    QTest::newRow("no decimals") << 1000.0 << 0 << QStringLiteral("1000");
    QTest::newRow("more when the value has them") << 0.505 << 2 << QStringLiteral("0.505");
    QTest::newRow("a fraction where none is usual") << 1.25 << 0 << QStringLiteral("1.25");
    QTest::newRow("six at most") << 0.12345678 << 2 << QStringLiteral("0.123457");
    QTest::newRow("the error of a sum is not shown") << 0.1 + 0.2 << 2 << QStringLiteral("0.30");
    QTest::newRow("no sign on zero") << -0.0 << 2 << QStringLiteral("0.00");
    QTest::newRow("no sign on what rounds to zero") << -0.0000001 << 2 << QStringLiteral("0.00");
    QTest::newRow("a sign elsewhere") << -3.5 << 2 << QStringLiteral("-3.50");
    QTest::newRow("zeros of a whole number stay") << 1200.0 << 0 << QStringLiteral("1200");
    QTest::newRow("large, no exponent") << 1e15 << 0 << QStringLiteral("1000000000000000");
}

void tst_NumberRules::numberText()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QTEST(WQ::numberText(value, decimals), "text");
}

void tst_NumberRules::whatIsShownIsNeverAnotherNumber()
{
    for (int millionths = -2500000; millionths <= 2500000; millionths += 1237) {
        const double value = millionths / 1e6;
        for (const int decimals : {0, 2, 4})
            QCOMPARE(WQ::numberText(value, decimals).toDouble(), value);
    }
}

void tst_NumberRules::groupedDigits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("grouped");
    QTest::newRow("three digits") << QStringLiteral("500") << QStringLiteral("500");
    QTest::newRow("five digits") << QStringLiteral("10000") << QStringLiteral("10,000");
    QTest::newRow("seven digits") << QStringLiteral("1000000") << QStringLiteral("1,000,000");
    QTest::newRow("decimals stay") << QStringLiteral("250000.12345") << QStringLiteral("250,000.12345");
    QTest::newRow("a sign") << QStringLiteral("-1000") << QStringLiteral("-1,000");
    QTest::newRow("no number") << QStringLiteral("8800 1234") << QStringLiteral("8800 1234");
    QTest::newRow("letters") << QStringLiteral("a12345") << QStringLiteral("a12345");
    QTest::newRow("infinity") << QStringLiteral("-inf") << QStringLiteral("-inf");
    QTest::newRow("empty") << QString() << QString();
}

void tst_NumberRules::groupedDigits()
{
    QFETCH(QString, text);
    QTEST(WQ::groupedDigits(text), "grouped");
}

void tst_NumberRules::typedNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<double>("value");
    const auto number = [](const char* name, const QString& text, double value) {
        QTest::newRow(name) << text << true << value;
    };
    const auto none = [](const char* name, const QString& text) { QTest::newRow(name) << text << false << 0.0; };
    number("plain", QStringLiteral("12.5"), 12.5);
    number("full-width digits", QStringLiteral("１２３"), 123);
    number("a Chinese stop for the point", QStringLiteral("1。5"), 1.5);
    number("a full-width point", QStringLiteral("１．５"), 1.5);
    number("a full-width minus", QStringLiteral("－３"), -3);
    number("blanks around", QStringLiteral("  7\u3000"), 7);
    number("no digit before the point", QStringLiteral(".5"), 0.5);
    number("no digit after the point", QStringLiteral("5."), 5);
    number("plus", QStringLiteral("+5"), 5);
    number("thousands", QStringLiteral("1,000,000.5"), 1000000.5);
    number("full-width thousands", QStringLiteral("１０，０００"), 10000);
    none("empty", QString());
    none("a sign alone", QStringLiteral("-"));
    none("a point alone", QStringLiteral("."));
    none("letters", QStringLiteral("abc"));
    none("a letter behind", QStringLiteral("12a"));
    none("two points", QStringLiteral("1.2.3"));
    none("two signs", QStringLiteral("--1"));
    none("a blank inside", QStringLiteral("1 000"));
    none("a comma that groups nothing", QStringLiteral("1,5"));
    none("a group of four", QStringLiteral("1,0000"));
    none("a group behind the point", QStringLiteral("1.000,000"));
    none("a comma first", QStringLiteral(",100"));
    none("an exponent", QStringLiteral("1e3"));
    none("nan", QStringLiteral("nan"));
    none("inf", QStringLiteral("inf"));
    none("hexadecimal", QStringLiteral("0x10"));
}

void tst_NumberRules::typedNumber()
{
    QFETCH(QString, text);
    QFETCH(bool, isNumber);
    const std::optional<double> number = WQ::typedNumber(text);
    QCOMPARE(number.has_value(), isNumber);
    if (number)
        QTEST(*number, "value");
}

void tst_NumberRules::numberOfAHostMayHaveAnExponent()
{
    QCOMPARE(WQ::numberOf(QStringLiteral("1e+06")).value_or(-1), 1000000.0);
    QCOMPARE(WQ::numberOf(QStringLiteral("10,000")).value_or(-1), 10000.0);
    QVERIFY(!WQ::numberOf(QStringLiteral("inf")));
    QVERIFY(!WQ::numberOf(QStringLiteral("nan")));
    QVERIFY(!WQ::numberOf(QStringLiteral("1e999")));
}

void tst_NumberRules::megabyteTextIsNoNumber()
{
    const QString digits(1 << 20, QLatin1Char('9'));
    QVERIFY(!WQ::typedNumber(digits));
    QVERIFY(!WQ::numberOf(digits));
}

void tst_NumberRules::offGrid_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("a multiple") << 100.0 << 1200.0 << QString();
    QTest::newRow("between two multiples") << 100.0 << 1250.0 << QStringLiteral("不是 100 的整数倍：1,200 或 1,300");
    QTest::newRow("a fraction on its grid") << 0.01 << 0.29 << QString();
    QTest::newRow("a sum on its grid") << 0.1 << 0.1 + 0.2 << QString();
    QTest::newRow("a fraction between") << 0.01 << 0.505 << QStringLiteral("不是 0.01 的整数倍：0.50 或 0.51");
    QTest::newRow("below zero") << 1.0 << -1.5 << QStringLiteral("不是 1 的整数倍：-2 或 -1");
    QTest::newRow("bounded at the end of the range")
        << 3000.0 << 9999.0 << QStringLiteral("不是 3,000 的整数倍：9,000 或 10,000");
    QTest::newRow("without a step") << kNoStep << 0.505 << QString();
    QTest::newRow("a step of 0") << 0.0 << 0.505 << QString();
    QTest::newRow("not-a-number") << 1.0 << kNan << QString();
    QTest::newRow("infinity") << 1.0 << kInfinity << QString();
    QTest::newRow("beyond exact numbers") << 0.01 << 1e20 << QString();
}

void tst_NumberRules::offGrid()
{
    QFETCH(double, step);
    QFETCH(double, value);
    QTEST(WQ::offGridText(unit(6, -100, 10000, step), value), "text");
}

void tst_NumberRules::rangeOfAUnit_data()
{
    constexpr double kNone = std::numeric_limits<double>::max();
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QString>("text");
    QTest::newRow("two limits") << 100.0 << 1000000.0 << QStringLiteral("100 – 1,000,000 股");
    QTest::newRow("one value") << 100.0 << 100.0 << QStringLiteral("100 – 100 股");
    QTest::newRow("no maximum") << 100.0 << kNone << QStringLiteral("不小于 100 股");
    QTest::newRow("no minimum") << -kNone << -100.0 << QStringLiteral("不大于 -100 股");
    QTest::newRow("no limits") << -kNone << kNone << QString();
    QTest::newRow("infinite limits") << -kInfinity << kInfinity << QString();
    QTest::newRow("limits nobody reaches") << -1e300 << 1e16 << QString();
}

void tst_NumberRules::rangeOfAUnit()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QTEST(WQ::rangeText(unit(2, min, max, 100, QStringLiteral("股"))), "text");
}

void tst_NumberRules::noTextNamesALimitThatIsNone()
{
    WQ::CParamCellUnitInfo info;
    info.type = 6;
    info.text = QStringLiteral("元");
    const QString label = QStringLiteral("单笔超价");
    QCOMPARE(WQ::judgeNumber(WQ::numberUnit(info), label, QStringLiteral("abc")).message,
             QStringLiteral("单笔超价 不是数字"));
    info.type = 2;
    QCOMPARE(WQ::judgeNumber(WQ::numberUnit(info), label, QStringLiteral("3000000000")).message,
             QStringLiteral("单笔超价 超出范围（-2,147,483,648 – 2,147,483,647 元）"));
}

void tst_NumberRules::aSwitchThatBoundsSaysBothNumbers()
{
    const WQ::NumberUnit percent = unit(6, 0, 1000, 0.01, QStringLiteral("%"));
    const WQ::NumberUnit money = unit(6, 0, 100, 0.001, QStringLiteral("元"));
    QCOMPARE(WQ::boundedText(percent, 500, money, 100),
             QStringLiteral("500.00 % 已调整为 100.000 元（0.000 – 100.000 元）"));
}

void tst_NumberRules::judgement_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("message");
    QTest::newRow("inside") << 2 << QStringLiteral("500") << true << 500.0 << QString();
    QTest::newRow("full-width digits") << 2 << QStringLiteral("５００") << true << 500.0 << QString();
    QTest::newRow("at the minimum") << 2 << QStringLiteral("100") << true << 100.0 << QString();
    QTest::newRow("off the grid is accepted and said")
        << 2 << QStringLiteral("1250") << true << 1250.0 << QStringLiteral("不是 100 的整数倍：1,200 或 1,300");
    QTest::newRow("no number") << 2 << QStringLiteral("abc") << false << 0.0
                               << QStringLiteral("单笔最小量 不是数字（100 – 1,000,000 股）");
    QTest::newRow("empty") << 2 << QString() << false << 0.0
                           << QStringLiteral("单笔最小量 不是数字（100 – 1,000,000 股）");
    QTest::newRow("below") << 2 << QStringLiteral("99") << false << 0.0
                           << QStringLiteral("单笔最小量 超出范围（100 – 1,000,000 股）");
    QTest::newRow("above") << 2 << QStringLiteral("1000001") << false << 0.0
                           << QStringLiteral("单笔最小量 超出范围（100 – 1,000,000 股）");
    QTest::newRow("a fraction where numbers are whole")
        << 2 << QStringLiteral("100.5") << false << 0.0 << QStringLiteral("单笔最小量 须为整数（100 – 1,000,000 股）");
    QTest::newRow("a fraction elsewhere") << 6 << QStringLiteral("200.00") << true << 200.0 << QString();
}

void tst_NumberRules::judgement()
{
    QFETCH(int, type);
    QFETCH(QString, typed);
    const WQ::Judgement judgement =
        WQ::judgeNumber(unit(type, 100, 1000000, 100, QStringLiteral("股")), QStringLiteral("单笔最小量"), typed);
    QTEST(judgement.ok, "ok");
    QTEST(judgement.value, "value");
    QTEST(judgement.message, "message");
}

QTEST_APPLESS_MAIN(tst_NumberRules)
#include "tst_NumberRules.moc"
