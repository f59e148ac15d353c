#include "reference/toolkit/SingleValue.h"

#include <QtTest>

#include <limits>

using namespace WQ;

namespace {

const double kNan = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();
const double kLargest = std::numeric_limits<double>::max();

TypingRule numbers(double min, double max, double step)
{
    return {true, QString(), min, max, step};
}

} // namespace

class SingleValueTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void numbersShowTheDecimalsOfTheStep_data();
    void numbersShowTheDecimalsOfTheStep();
    void typingIsJudged_data();
    void typingIsJudged();
    void anyTextMayBeTypedWithoutARule();
    void stepsStayInTheLimits_data();
    void stepsStayInTheLimits();
    void limitsAreSaid_data();
    void limitsAreSaid();
};

void SingleValueTest::numbersShowTheDecimalsOfTheStep_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("three decimals") << 0.001 << 10.23 << QStringLiteral("10.230");
    QTest::newRow("four decimals") << 0.0001 << 10.23 << QStringLiteral("10.2300");
    QTest::newRow("whole step") << 1.0 << 10.0 << QStringLiteral("10");
    QTest::newRow("two without a step") << 0.0 << 10.0 << QStringLiteral("10.00");
    QTest::newRow("more when the value has them") << 0.01 << 1.2345 << QStringLiteral("1.2345");
    QTest::newRow("six at most") << 0.01 << 1.23456789 << QStringLiteral("1.234568");
    QTest::newRow("no grouping") << 0.01 << 1234567.0 << QStringLiteral("1234567.00");
    QTest::newRow("no number") << 0.01 << kNan << QStringLiteral("--");
    QTest::newRow("endless") << 0.01 << -kInf << QStringLiteral("--");
    QTest::newRow("a step that is no number") << kNan << 10.0 << QStringLiteral("10.00");
    QTest::newRow("an endless step") << kInf << 10.0 << QStringLiteral("10.00");
    QTest::newRow("a step below zero") << -1.0 << 10.0 << QStringLiteral("10.00");
}

void SingleValueTest::numbersShowTheDecimalsOfTheStep()
{
    QFETCH(double, step);
    QFETCH(double, value);
    QFETCH(QString, text);
    QCOMPARE(singleValueText(numbers(0, 100, step), value), text);
}

void SingleValueTest::typingIsJudged_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("step");
    QTest::addColumn<bool>("allowed");

    QTest::newRow("a number") << QStringLiteral("12.5") << 0.001 << true;
    QTest::newRow("the least") << QStringLiteral("-5") << 0.001 << true;
    QTest::newRow("the most") << QStringLiteral("1000") << 0.001 << true;
    QTest::newRow("grouped") << QStringLiteral("1,000") << 0.001 << true;
    QTest::newRow("wide digits") << QStringLiteral("１２。５") << 0.001 << true;
    QTest::newRow("too large") << QStringLiteral("1000.001") << 0.001 << false;
    QTest::newRow("too small") << QStringLiteral("-5.1") << 0.001 << false;
    QTest::newRow("no number") << QStringLiteral("12a") << 0.001 << false;
    QTest::newRow("nothing") << QString() << 0.001 << false;
    QTest::newRow("not-a-number in words") << QStringLiteral("nan") << 0.001 << false;
    QTest::newRow("a fraction where all is whole") << QStringLiteral("12.5") << 1.0 << false;
    QTest::newRow("a whole number where all is whole") << QStringLiteral("12") << 1.0 << true;
    QTest::newRow("a megabyte") << QString(1 << 20, QLatin1Char('1')) << 0.001 << false;
}

void SingleValueTest::typingIsJudged()
{
    QFETCH(QString, typed);
    QFETCH(double, step);
    QFETCH(bool, allowed);
    QCOMPARE(isAllowed(numbers(-5, 1000, step), typed), allowed);
}

void SingleValueTest::anyTextMayBeTypedWithoutARule()
{
    QVERIFY(isAllowed(TypingRule(), QStringLiteral("季度调仓")));
    QVERIFY(isAllowed(TypingRule(), QString()));
}

void SingleValueTest::stepsStayInTheLimits_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("steps");
    QTest::addColumn<double>("moved");
    QTest::newRow("up") << 1.0 << 1 << 1.5;
    QTest::newRow("ten down") << 8.0 << -10 << 3.0;
    QTest::newRow("not beyond the most") << 9.9 << 1 << 10.0;
    QTest::newRow("not below the least") << 0.1 << -1 << 0.0;
}

void SingleValueTest::stepsStayInTheLimits()
{
    QFETCH(double, value);
    QFETCH(int, steps);
    QFETCH(double, moved);
    QCOMPARE(stepped(numbers(0, 10, 0.5), value, steps), moved);
}

void SingleValueTest::limitsAreSaid_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QString>("said");
    QTest::newRow("both") << 0.0 << 1e6 << QStringLiteral("请输入 0 – 1,000,000");
    QTest::newRow("fractions") << 0.5 << 1.25 << QStringLiteral("请输入 0.5 – 1.25");
    QTest::newRow("no upper end") << 0.0 << kLargest << QStringLiteral("请输入不小于 0 的数");
    QTest::newRow("no lower end") << -kInf << 10.0 << QStringLiteral("请输入不大于 10 的数");
    QTest::newRow("no end") << -kLargest << kInf << QStringLiteral("请输入数字");
    QTest::newRow("no numbers") << kNan << kNan << QStringLiteral("请输入数字");
}

void SingleValueTest::limitsAreSaid()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(QString, said);
    QCOMPARE(limitsMessage(min, max), said);
}

QTEST_APPLESS_MAIN(SingleValueTest)
#include "tst_SingleValue.moc"
