#include "replay/Numbers.h"

#include <QtTest>

#include <cmath>
#include <limits>

using replay::Json;
using replay::numberJson;
using replay::numberOf;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kNoPrice = std::numeric_limits<double>::max();

} // namespace

class tst_Numbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatJsonCannotWriteIsAText_data();
    void whatJsonCannotWriteIsAText();
    void readingBackGivesTheSameDouble_data();
    void readingBackGivesTheSameDouble();
    void anIntegerIsANumberToo();
    void otherValuesAreNoNumbers_data();
    void otherValuesAreNoNumbers();
};

void tst_Numbers::whatJsonCannotWriteIsAText_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QByteArray>("written");

    QTest::newRow("not a number") << kNotANumber << QByteArray("\"nan\"");
    QTest::newRow("infinity") << kInfinity << QByteArray("\"inf\"");
    QTest::newRow("minus infinity") << -kInfinity << QByteArray("\"-inf\"");
}

void tst_Numbers::whatJsonCannotWriteIsAText()
{
    QFETCH(double, value);
    QFETCH(QByteArray, written);

    QCOMPARE(QByteArray::fromStdString(numberJson(value).dump()), written);
    const auto back = numberOf(Json::parse(written.toStdString()));
    QVERIFY(back.has_value());
    QCOMPARE(std::isnan(*back), std::isnan(value));
    QVERIFY(std::isnan(value) || *back == value);
}

void tst_Numbers::readingBackGivesTheSameDouble_data()
{
    QTest::addColumn<double>("value");

    QTest::newRow("0.1") << 0.1;
    QTest::newRow("a third") << 1.0 / 3.0;
    QTest::newRow("100") << 100.0;
    QTest::newRow("the no-price value") << kNoPrice;
    QTest::newRow("the smallest there is") << std::numeric_limits<double>::denorm_min();
    QTest::newRow("minus zero") << -0.0;
    QTest::newRow("beyond 53 bits") << 9007199254740993.0 * 3;
}

void tst_Numbers::readingBackGivesTheSameDouble()
{
    QFETCH(double, value);

    const auto back = numberOf(Json::parse(numberJson(value).dump()));
    QVERIFY(back.has_value());
    QVERIFY(*back == value);
    QCOMPARE(std::signbit(*back), std::signbit(value));
}

void tst_Numbers::anIntegerIsANumberToo()
{
    QVERIFY(numberOf(Json::parse("100")) == 100.0);
    QVERIFY(numberOf(Json::parse("-7")) == -7.0);
    QVERIFY(numberOf(Json::parse("18446744073709551615")) == 18446744073709551615.0);
    QVERIFY(numberOf(Json::parse("1.7976931348623157e308")) == kNoPrice);
}

void tst_Numbers::otherValuesAreNoNumbers_data()
{
    QTest::addColumn<QByteArray>("written");

    for (const char* text : {"null", "true", "[]", "{}", "\"\"", "\"1\"", "\"NaN\"", "\"+inf\"", "\"infinity\""})
        QTest::newRow(text) << QByteArray(text);
}

void tst_Numbers::otherValuesAreNoNumbers()
{
    QFETCH(QByteArray, written);
    QVERIFY(!numberOf(Json::parse(written.toStdString())).has_value());
}

QTEST_APPLESS_MAIN(tst_Numbers)
#include "tst_Numbers.moc"
