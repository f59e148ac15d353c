#include "semantics/RuleText.h"
#include "semantics/SettingText.h"

#include <OrderParamTable_mini/semantics/ParameterString.h>

#include <QTest>

#include <cmath>
#include <limits>
#include <random>

using ttservice::COrderSetting;

namespace {

constexpr double kLargest = 1.7976931348623157e308;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
const double kNotANumber = std::numeric_limits<double>::quiet_NaN();
const QString kInvalid = QStringLiteral("非法值");

/// Three decimals, and the invalid text for what cannot be shown.
QString threeDecimals(double value)
{
    return std::isfinite(value) && value != kLargest ? QString::number(value, 'f', 3) : kInvalid;
}

/// Every digit, for round trips.
QString allDigits(double value)
{
    return std::isfinite(value) ? QString::number(value, 'g', 17).replace(QLatin1String("e+"), QLatin1String("e"))
                                : kInvalid;
}

QVector<double> g_formatted;

QString writtenDown(double value)
{
    g_formatted << value;
    return QStringLiteral("f%1").arg(g_formatted.size());
}

QStringList g_texts;

QString nextText(double)
{
    return g_texts.takeFirst();
}

/// What is written with every real's text put in its place afterwards.
QString replaced(const COrderSetting& setting, const QStringList& texts)
{
    g_formatted.clear();
    QStringList items = TC::parameterString(setting, writtenDown).split(QLatin1Char('+'));
    for (QString& item : items) {
        if (item.startsWith(QLatin1Char('f')))
            item = texts.at(item.mid(1).toInt() - 1);
    }
    return items.join(QLatin1Char('+'));
}

double real(const QString& item)
{
    return item == kInvalid ? kNotANumber : item.toDouble();
}

/// Reads the 41 items by the item table: item 24 repeats field 14, and the last three are words 5, 3 and 4.
COrderSetting parsed(const QString& text)
{
    const QStringList items = text.split(QLatin1Char('+'));
    COrderSetting s;
    if (items.size() != 41)
        return s;
    const auto item = [&items](int number) { return items.at(number - 1); };
    const auto whole = [&item](int number) { return item(number).toInt(); };
    s.orderType = ttservice::EOrderType(whole(1));
    s.intField2 = whole(2), s.intField3 = whole(3);
    s.realField4 = real(item(4)), s.realField5 = real(item(5));
    s.intField6 = whole(6), s.intField7 = whole(7);
    s.realField8 = real(item(8)), s.realField9 = real(item(9));
    s.intField10 = whole(10);
    s.realField11 = real(item(11)), s.realField12 = real(item(12));
    s.intField13 = whole(13);
    s.realField14 = real(item(14));
    s.intField15 = whole(15), s.intField16 = whole(16), s.intField17 = whole(17), s.intField18 = whole(18);
    s.validTimeStart = whole(19), s.validTimeEnd = whole(20);
    s.intField21 = whole(21), s.intField22 = whole(22), s.intField23 = whole(23);
    s.intField25 = whole(25);
    s.realField26 = real(item(26)), s.realField27 = real(item(27));
    s.intField28 = whole(28), s.intField29 = whole(29);
    s.realField30 = real(item(30));
    s.intField31 = whole(31);
    s.realField32 = real(item(32)), s.realField33 = real(item(33)), s.realField34 = real(item(34));
    s.flag35 = item(35) == QLatin1String("1"), s.flag36 = item(36) == QLatin1String("1");
    s.cellWord1 = whole(37), s.cellWord2 = whole(38);
    s.cellWord5 = whole(39), s.cellWord3 = whole(40), s.cellWord4 = whole(41);
    return s;
}

/// Every field holds its own number, so that an item tells where it comes from.
COrderSetting numbered()
{
    COrderSetting s;
    s.orderType = ttservice::EOrderType(1);
    s.intField2 = 2, s.intField3 = 3, s.realField4 = 4, s.realField5 = 5, s.intField6 = 6, s.intField7 = 7;
    s.realField8 = 8, s.realField9 = 9, s.intField10 = 10, s.realField11 = 11, s.realField12 = 12, s.intField13 = 13;
    s.realField14 = 14, s.intField15 = 15, s.intField16 = 16, s.intField17 = 17, s.intField18 = 18;
    s.validTimeStart = 19, s.validTimeEnd = 20, s.intField21 = 21, s.intField22 = 22, s.intField23 = 23;
    s.realField24 = 24, s.intField25 = 25, s.realField26 = 26, s.realField27 = 27, s.intField28 = 28;
    s.intField29 = 29, s.realField30 = 30, s.intField31 = 31, s.realField32 = 32, s.realField33 = 33;
    s.realField34 = 34, s.flag35 = true, s.flag36 = false, s.cellWord1 = 37, s.cellWord2 = 38, s.cellWord3 = 39;
    s.cellWord4 = 40, s.cellWord5 = 41;
    return s;
}

int randomInteger(std::mt19937& random)
{
    static const int kSpecial[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, 9, 10, 99, 100, INT_MAX - 1, INT_MAX};
    const auto pick = random();
    if (pick % 4 == 0)
        return kSpecial[random() % std::size(kSpecial)];
    return pick % 4 == 1 ? int(random() % 1000) : int(random());
}

double randomReal(std::mt19937& random)
{
    static const double kSpecial[] = {kNotANumber, kInfinity, -kInfinity, 0.0, 1e-300, -1e300, 0.0625, 1e6};
    if (random() % 4 == 0)
        return kSpecial[random() % std::size(kSpecial)];
    return std::ldexp(double(random()) - 2147483648.0, int(random() % 64) - 48);
}

COrderSetting randomRecord(std::mt19937& random)
{
    COrderSetting s;
    s.orderType = ttservice::EOrderType(randomInteger(random));
    for (int COrderSetting::*field :
         {&COrderSetting::intField2,  &COrderSetting::intField3,      &COrderSetting::intField6,
          &COrderSetting::intField7,  &COrderSetting::intField10,     &COrderSetting::intField13,
          &COrderSetting::intField15, &COrderSetting::intField16,     &COrderSetting::intField17,
          &COrderSetting::intField18, &COrderSetting::validTimeStart, &COrderSetting::validTimeEnd,
          &COrderSetting::intField21, &COrderSetting::intField22,     &COrderSetting::intField23,
          &COrderSetting::intField25, &COrderSetting::intField28,     &COrderSetting::intField29,
          &COrderSetting::intField31, &COrderSetting::cellWord1,      &COrderSetting::cellWord2,
          &COrderSetting::cellWord3,  &COrderSetting::cellWord4,      &COrderSetting::cellWord5})
        s.*field = randomInteger(random);
    for (double COrderSetting::*field :
         {&COrderSetting::realField4, &COrderSetting::realField5, &COrderSetting::realField8,
          &COrderSetting::realField9, &COrderSetting::realField11, &COrderSetting::realField12,
          &COrderSetting::realField14, &COrderSetting::realField26, &COrderSetting::realField27,
          &COrderSetting::realField30, &COrderSetting::realField32, &COrderSetting::realField33,
          &COrderSetting::realField34})
        s.*field = randomReal(random);
    s.flag35 = random() % 2 != 0;
    s.flag36 = random() % 2 != 0;
    return s;
}

/// What a reader of the text can know: field 24 is never written, and what cannot be shown reads as not-a-number.
QStringList knowable(COrderSetting s)
{
    s.realField24 = 0.0;
    QStringList fields = settingtext::fields(s);
    fields.replaceInStrings(QStringLiteral("-inf"), QStringLiteral("nan"));
    fields.replaceInStrings(QStringLiteral("inf"), QStringLiteral("nan"));
    return fields;
}

} // namespace

class tst_ParameterString : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itemsStandInTheirOrder();
    void item24RepeatsField14();
    void lastThreeItemsAreTheCellWordsFiveThreeAndFour();
    void realFieldsGoThroughTheFormatterInItemOrder();
    void theFormatterSettlesTheTextWhateverItIs();
    void textsOfAnyLengthAreKeptWhole();
    void aFreshRecord();
    void integersAtTheirEnds();
    void valuesThatCannotBeShown();
    void randomRecordsComeBack();
};

void tst_ParameterString::itemsStandInTheirOrder()
{
    QCOMPARE(TC::parameterString(numbered(), threeDecimals),
             QStringLiteral("1+2+3+4.000+5.000+6+7+8.000+9.000+10+11.000+12.000+13+14.000+15+16+17+18+19+20+21+22+23+"
                            "14.000+25+26.000+27.000+28+29+30.000+31+32.000+33.000+34.000+1+0+37+38+41+39+40"));
}

void tst_ParameterString::item24RepeatsField14()
{
    COrderSetting s;
    s.realField14 = 0.2;
    s.realField24 = 0.1;
    const QStringList items = TC::parameterString(s, threeDecimals).split(QLatin1Char('+'));
    QCOMPARE(items.size(), 41);
    QCOMPARE(items.at(13), QStringLiteral("0.200"));
    QCOMPARE(items.at(23), QStringLiteral("0.200"));
    QVERIFY(!items.contains(QStringLiteral("0.100")));
}

void tst_ParameterString::lastThreeItemsAreTheCellWordsFiveThreeAndFour()
{
    COrderSetting s;
    s.cellWord3 = 3;
    s.cellWord4 = 4;
    s.cellWord5 = 5;
    QVERIFY(TC::parameterString(s, threeDecimals).endsWith(QStringLiteral("+5+3+4")));
}

void tst_ParameterString::realFieldsGoThroughTheFormatterInItemOrder()
{
    g_formatted.clear();
    const QStringList items = TC::parameterString(numbered(), writtenDown).split(QLatin1Char('+'));
    QCOMPARE(g_formatted, (QVector<double>{4, 5, 8, 9, 11, 12, 14, 14, 26, 27, 30, 32, 33, 34}));
    QCOMPARE(items.at(3), QStringLiteral("f1"));
    QCOMPARE(items.at(33), QStringLiteral("f14"));
}

void tst_ParameterString::theFormatterSettlesTheTextWhateverItIs()
{
    const QString empty = TC::parameterString({}, [](double) { return QString(); });
    QCOMPARE(empty, QStringLiteral("0+0+0+++0+0+++0+++0++0+0+0+0+0+0+0+0+0++0+++0+0++0++++0+0+0+0+0+0+0"));
    const QString longText = TC::parameterString({}, [](double) { return QString(5000, QChar(0x975E)); });
    QCOMPARE(longText.count(QChar(0x975E)), 14 * 5000);
    QCOMPARE(longText.count(QLatin1Char('+')), 40);
    QCOMPARE(longText.size(), 14 * 5000 + 40 + 27);
}

void tst_ParameterString::textsOfAnyLengthAreKeptWhole()
{
    constexpr int kReals = 14;
    std::mt19937 random(42);
    for (int i = 0; i < 3000; ++i) {
        COrderSetting s = randomRecord(random);
        if (i % 3 == 0) // every plain item as long as it can be
            s.intField2 = s.intField3 = s.intField31 = s.cellWord1 = s.cellWord3 = s.cellWord4 = INT_MIN;
        QStringList texts;
        while (texts.size() < kReals)
            texts << QString(int(random() % (1U << random() % 12)), QChar(ushort('a' + texts.size())));
        g_texts = texts;
        QCOMPARE(TC::parameterString(s, nextText), replaced(s, texts));
        QVERIFY(g_texts.isEmpty());
    }
}

void tst_ParameterString::aFreshRecord()
{
    QCOMPARE(TC::parameterString({}, threeDecimals),
             QStringLiteral("0+0+0+0.000+0.000+0+0+0.000+0.000+0+0.000+0.000+0+0.000+0+0+0+0+0+0+0+0+0+0.000+0+0.000+"
                            "0.000+0+0+0.000+0+0.000+0.000+0.000+0+0+0+0+0+0+0"));
}

void tst_ParameterString::integersAtTheirEnds()
{
    COrderSetting s;
    s.orderType = ttservice::EOrderType(INT_MIN);
    s.intField2 = INT_MAX;
    s.intField25 = -1;
    s.cellWord4 = INT_MIN;
    const QStringList items = TC::parameterString(s, threeDecimals).split(QLatin1Char('+'));
    QCOMPARE(items.at(0), QStringLiteral("-2147483648"));
    QCOMPARE(items.at(1), QStringLiteral("2147483647"));
    QCOMPARE(items.at(24), QStringLiteral("-1"));
    QCOMPARE(items.at(40), QStringLiteral("-2147483648"));
}

void tst_ParameterString::valuesThatCannotBeShown()
{
    COrderSetting s;
    s.realField4 = kNotANumber;
    s.realField5 = kInfinity;
    s.realField8 = -kInfinity;
    s.realField9 = kLargest;
    s.realField14 = kNotANumber;
    const QStringList items = TC::parameterString(s, threeDecimals).split(QLatin1Char('+'));
    for (const int item : {4, 5, 8, 9, 14, 24})
        QCOMPARE(items.at(item - 1), kInvalid);
    QCOMPARE(items.size(), 41);
}

void tst_ParameterString::randomRecordsComeBack()
{
    std::mt19937 random(41);
    for (int i = 0; i < 5000; ++i) {
        const COrderSetting s = randomRecord(random);
        const QString text = TC::parameterString(s, allDigits);
        QCOMPARE(text.split(QLatin1Char('+')).size(), 41);
        QCOMPARE(knowable(parsed(text)), knowable(s));
        QCOMPARE(text.split(QLatin1Char('+')).at(23), text.split(QLatin1Char('+')).at(13));
    }
}

QTEST_APPLESS_MAIN(tst_ParameterString)
#include "tst_ParameterString.moc"
