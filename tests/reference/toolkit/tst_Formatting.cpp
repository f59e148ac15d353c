#include <WQ/Formatting.h>

#include <QLocale>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace {

const QString kInvalid = QStringLiteral("非法值");
constexpr double kNoPrice = 1.7976931348623157e308;

QString format(long double value, int decimals)
{
    return WQ::formatDoubleNumber(value, decimals, WQ::FormatPlain, false, kInvalid);
}

/// The definition: the digits of QString::number, without the sign of what rounds to zero.
QString defined(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    const auto isNonZero = [](QChar character) {
        return character > QLatin1Char('0') && character <= QLatin1Char('9');
    };
    if (text.startsWith(QLatin1Char('-')) && std::none_of(text.begin(), text.end(), isNonZero))
        text.remove(0, 1);
    return text;
}

/// How many random numbers a test takes: for a night ORDERPARAM_FORMATTED_NUMBERS asks for more.
int numbersWanted(int usual)
{
    bool isNumber = false;
    const int asked = qEnvironmentVariable("ORDERPARAM_FORMATTED_NUMBERS").toInt(&isNumber);
    return isNumber ? asked : usual;
}

double fromBits(quint64 bits)
{
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

} // namespace

class tst_Formatting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNumberIsWrittenWithItsDecimals_data();
    void aNumberIsWrittenWithItsDecimals();
    void whatIsNoPriceIsTheInvalidText_data();
    void whatIsNoPriceIsTheInvalidText();
    void theLocaleChangesNothing();
    void theDecimalsStopAtTheirEnds();
    void randomBitPatternsAreWrittenAsDefined();
    void randomPricesAreWrittenAsDefined();
    void everyTieOfThreeDecimalsGoesAwayFromZero();
    void tiesAtAnyDecimalGoAwayFromZero();
    void neighboursOfTiesGoTheirOwnWay();
    void numbersTooLargeForOneWordAreWrittenAsDefined();
    void whatVanishesIsZeroWithoutASign_data();
    void whatVanishesIsZeroWithoutASign();
    void integersArePaddedToTheirWidth();
    void recordTextsAreUtf8();
    void secondsAndDateTimesAgree();
    void momentsOutsideOf32BitsStopAtTheEnds();
};

void tst_Formatting::aNumberIsWrittenWithItsDecimals_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, double value, int decimals, const char* text) {
        QTest::newRow(name) << value << decimals << QString::fromLatin1(text);
    };
    row("zero", 0.0, 2, "0.00");
    row("minus zero", -0.0, 2, "0.00");
    row("no decimals, no point", 7.0, 0, "7");
    row("trailing zeros are kept", 1.5, 4, "1.5000");
    row("no grouping", 1234567.891, 2, "1234567.89");
    row("tie upwards where the even digit is below", 0.0625, 3, "0.063");
    row("tie upwards where the even digit is above", 0.1875, 3, "0.188");
    row("negative tie away from zero", -0.0625, 3, "-0.063");
    row("tie to a whole number", 0.5, 0, "1");
    row("tie from two and a half", 2.5, 0, "3");
    row("below a tie in binary", 0.285, 2, "0.28");
    row("above a tie in binary", 0.165, 2, "0.17");
    row("carry through nines", 9.996, 2, "10.00");
    row("rounds to zero, no sign", -0.004, 2, "0.00");
    row("just not zero", -0.005001, 2, "-0.01");
    row("two to the 53rd", 9007199254740992.0, 1, "9007199254740992.0");
    row("1e22", 1e22, 0, "10000000000000000000000");
    row("smallest double", 4.9406564584124654e-324, 20, "0.00000000000000000000");
    row("20 decimals of a tenth", 0.1, 20, "0.10000000000000000555");
    row("20 decimals of a large number", 123456789.0, 20, "123456789.00000000000000000000");
}

void tst_Formatting::aNumberIsWrittenWithItsDecimals()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(QString, text);
    QCOMPARE(format(value, decimals), text);
}

void tst_Formatting::whatIsNoPriceIsTheInvalidText_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("negative not a number") << -std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity();
    QTest::newRow("minus infinity") << -std::numeric_limits<double>::infinity();
    QTest::newRow("no price") << kNoPrice;
}

void tst_Formatting::whatIsNoPriceIsTheInvalidText()
{
    QFETCH(double, value);
    QCOMPARE(format(value, 2), kInvalid);
    QCOMPARE(WQ::formatDoubleNumber(value, 2, WQ::FormatPlain, true, {}), QString());
}

void tst_Formatting::theLocaleChangesNothing()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const QString text = format(1234.5, 2);
    QLocale::setDefault(before);
    QCOMPARE(text, QStringLiteral("1234.50"));
}

void tst_Formatting::theDecimalsStopAtTheirEnds()
{
    QCOMPARE(format(1.25, -3), QStringLiteral("1"));
    QCOMPARE(format(0.5, INT_MAX), QStringLiteral("0.50000000000000000000"));
    QCOMPARE(format(1e300, INT_MIN).size(), 301);
}

void tst_Formatting::randomBitPatternsAreWrittenAsDefined()
{
    std::mt19937_64 random(20240520);
    for (int i = 0, count = numbersWanted(60000); i < count; ++i) {
        quint64 bits = random();
        if (i % 2 == 0) { // amounts that a panel sees, from 2^-70 to 2^69
            const quint64 exponent = 1023 - 70 + random() % 140;
            bits = (bits & ~(quint64(0x7FF) << 52)) | (exponent << 52);
        }
        const double value = fromBits(bits);
        const int decimals = static_cast<int>(random() % 21);
        if (std::isfinite(value))
            QCOMPARE(format(value, decimals), defined(value, decimals));
    }
}

void tst_Formatting::randomPricesAreWrittenAsDefined()
{
    std::mt19937_64 random(7);
    for (int i = 0, count = numbersWanted(100000); i < count; ++i) {
        const double value = (static_cast<double>(random() % 2000001) - 1000000) / 1000.0;
        const int decimals = static_cast<int>(random() % 5);
        QCOMPARE(format(value, decimals), defined(value, decimals));
    }
}

void tst_Formatting::everyTieOfThreeDecimalsGoesAwayFromZero()
{
    // n/16 for odd n has four decimals and ends in 5: a tie at three decimals, exact in binary.
    for (int n = 1; n < 4000; n += 2) {
        const int tenThousandths = n * 625;
        const int rounded = (tenThousandths + 5) / 10;
        const QString text = QStringLiteral("%1.%2").arg(rounded / 1000).arg(rounded % 1000, 3, 10, QLatin1Char('0'));
        QCOMPARE(format(n / 16.0, 3), text);
        QCOMPARE(format(-n / 16.0, 3), QLatin1Char('-') + text);
    }
}

namespace {

/// A tie at @p decimals: an odd number of halves of the last decimal that is exact in binary.
struct Tie
{
    Tie(quint64 random, int decimals)
        : odd((random >> 34) * 2 + 1)
        , value(std::ldexp(static_cast<double>(odd), -decimals - 1))
    {
    }

    quint64 odd; ///< below 2^31
    double value;
};

/// odd / 2^(decimals + 1) rounded away from zero, in integers: odd * 5^decimals halves of the last decimal.
QString roundedAway(quint64 odd, int decimals)
{
    quint64 halves = odd;
    quint64 unit = 1;
    for (int i = 0; i < decimals; ++i) {
        halves *= 5;
        unit *= 10;
    }
    const quint64 last = (halves + 1) / 2;
    if (decimals == 0)
        return QString::number(last);
    return QString::number(last / unit) + QLatin1Char('.')
        + QString::number(last % unit).rightJustified(decimals, QLatin1Char('0'));
}

} // namespace

void tst_Formatting::tiesAtAnyDecimalGoAwayFromZero()
{
    std::mt19937_64 random(11);
    for (int i = 0, count = numbersWanted(40000); i < count; ++i) {
        const int decimals = static_cast<int>(random() % 13);
        const Tie tie(random(), decimals);
        const QString text = roundedAway(tie.odd, decimals);
        QCOMPARE(format(tie.value, decimals), text);
        QCOMPARE(format(-tie.value, decimals), QLatin1Char('-') + text);
    }
}

void tst_Formatting::neighboursOfTiesGoTheirOwnWay()
{
    std::mt19937_64 random(12);
    for (int i = 0, count = numbersWanted(40000); i < count; ++i) {
        const int decimals = static_cast<int>(random() % 5); // more are finer than the numbers' own steps
        const Tie tie(random(), decimals);
        const double below = std::nextafter(tie.value, 0.0);
        const double above = std::nextafter(tie.value, 1e300);
        QCOMPARE(format(above, decimals), roundedAway(tie.odd, decimals));
        QCOMPARE(format(-above, decimals), defined(-above, decimals));
        QCOMPARE(format(below, decimals), defined(below, decimals));
        QVERIFY(format(below, decimals) != format(tie.value, decimals));
    }
}

void tst_Formatting::numbersTooLargeForOneWordAreWrittenAsDefined()
{
    std::mt19937_64 random(13);
    for (int i = 0, count = numbersWanted(40000); i < count; ++i) {
        const int decimals = static_cast<int>(random() % 21);
        // 64 bits of scaled digits end near 1.8e19, the integers that a double holds exactly near 9e15.
        const double edge = i % 2 == 0 ? 18446744073709551616.0 / std::pow(10, decimals) : 9007199254740992.0;
        const double value = edge * (1 + (static_cast<double>(random() % 2001) - 1000) * 1e-9);
        QCOMPARE(format(value, decimals), defined(value, decimals));
        QCOMPARE(format(-value, decimals), defined(-value, decimals));
        const double large = static_cast<double>(random()) * std::ldexp(1.0, static_cast<int>(random() % 40) - 20);
        QCOMPARE(format(large, decimals), defined(large, decimals));
    }
}

void tst_Formatting::whatVanishesIsZeroWithoutASign_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");
    QTest::newRow("no decimals") << 0 << QStringLiteral("0");
    QTest::newRow("one decimal") << 1 << QStringLiteral("0.0");
    QTest::newRow("three decimals") << 3 << QStringLiteral("0.000");
    QTest::newRow("twenty decimals") << 20 << QStringLiteral("0.00000000000000000000");
}

void tst_Formatting::whatVanishesIsZeroWithoutASign()
{
    QFETCH(int, decimals);
    QFETCH(QString, text);
    constexpr double kSmallest = std::numeric_limits<double>::denorm_min();
    constexpr double kSmallestNormal = std::numeric_limits<double>::min();
    for (const double amount : {0.0, kSmallest, 7 * kSmallest, kSmallestNormal - kSmallest, kSmallestNormal, 4.9e-21}) {
        QCOMPARE(format(amount, decimals), text);
        QCOMPARE(format(-amount, decimals), text);
    }
}

void tst_Formatting::integersArePaddedToTheirWidth()
{
    QCOMPARE(WQ::formatIntNumber(42, 0, WQ::FormatPlain), QStringLiteral("42"));
    QCOMPARE(WQ::formatIntNumber(42, 5, WQ::FormatPlain), QStringLiteral("   42"));
    QCOMPARE(WQ::formatIntNumber(-42, 2, WQ::FormatPlain), QStringLiteral("-42"));
    QCOMPARE(WQ::formatIntNumber(INT_MIN, -7, WQ::FormatPlain), QStringLiteral("-2147483648"));
    QVERIFY(WQ::formatIntNumber(1, INT_MAX, WQ::FormatPlain).size() < 10000);
}

void tst_Formatting::recordTextsAreUtf8()
{
    QCOMPARE(WQ::sToQs("\xE9\x99\x90\xE4\xBB\xB7"), QStringLiteral("限价"));
    QCOMPARE(WQ::sToQs({}), QString());
    QCOMPARE(WQ::sToQs(std::string("a\0b", 3)).size(), 3);
    QCOMPARE(WQ::sToQs("\xFF\xFE").size(), 2); // not UTF-8: a mark for each byte
    QCOMPARE(WQ::sToQs(std::string(1000000, 'x')).size(), 1000000);
}

void tst_Formatting::secondsAndDateTimesAgree()
{
    const QDateTime noon(QDate(2024, 5, 20), QTime(12, 0, 1));
    QCOMPARE(WQ::secondToQDateTime(WQ::qDateTimeToSecond(noon)), noon);
    QCOMPARE(WQ::secondToQDateTime(0).timeSpec(), Qt::LocalTime);
    QCOMPARE(WQ::secondToQDateTime(1).toUTC(), QDateTime(QDate(1970, 1, 1), QTime(0, 0, 1), Qt::UTC));
    QCOMPARE(WQ::qDateTimeToSecond(QDateTime(QDate(1970, 1, 2), QTime(0, 0), Qt::UTC)), 86400);
    QCOMPARE(WQ::qDateTimeToSecond(QDateTime()), 0);
}

void tst_Formatting::momentsOutsideOf32BitsStopAtTheEnds()
{
    const QTime midnight(0, 0);
    QCOMPARE(WQ::qDateTimeToSecond(QDateTime(QDate(2100, 1, 1), midnight, Qt::UTC)), INT_MAX);
    QCOMPARE(WQ::qDateTimeToSecond(QDateTime(QDate(1900, 1, 1), midnight, Qt::UTC)), INT_MIN);
    for (const int seconds : {INT_MIN, -1, 0, INT_MAX})
        QCOMPARE(WQ::qDateTimeToSecond(WQ::secondToQDateTime(seconds)), seconds);
}

QTEST_APPLESS_MAIN(tst_Formatting)
#include "tst_Formatting.moc"
