#include "workbench/EventDecoder.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace workbench;

namespace {

constexpr double kNoPriceValue = 1.7976931348623157e308;

QString decoded(const EventRecord& record)
{
    return QStringList{eventName(record), eventSource(record), eventValue(record), record.text, record.data}.join(
        QStringLiteral(" | "));
}

} // namespace

class tst_EventDecoder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void eventsAreDecodedByTheirNumber_data();
    void eventsAreDecodedByTheirNumber();
    void theDataOfAnEntryIsItsVariant_data();
    void theDataOfAnEntryIsItsVariant();
    void theDataOfAPriceDisplayIsADouble_data();
    void theDataOfAPriceDisplayIsADouble();
    void theDataOfAPriceTypeFromOutsideIsAnInt();
    void aMissingDataPointerIsNothing_data();
    void aMissingDataPointerIsNothing();
    void dataOfOtherEventsIsNotRead();
    void aMegabyteOfTextIsShortened();
};

void tst_EventDecoder::eventsAreDecodedByTheirNumber_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<int>("a");
    QTest::addColumn<int>("b");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    const auto row = [](int event, int a, int b, const QString& text, const QString& expected) {
        QTest::addRow("%d from %d with %d", event, a, b) << event << a << b << text << expected;
    };
    // clang-format off
    row(   5, 600, 0,  QStringLiteral("普通交易"), QStringLiteral("5 button clicked | 600 普通交易 |  | 普通交易 | "));
    row(   5, 0,   0,  QString(),                  QStringLiteral("5 button clicked | 0 |  |  | "));
    row(  73, 0x1, 3,  QStringLiteral("最新价"),   QStringLiteral("73 entry chosen | 0x1 报价方式 | index 3 | 最新价 | "));
    row(  73, 725, 0,  QString(),                  QStringLiteral("73 entry chosen | 725 credit table | index 0 |  | "));
    row(  73, 726, 1,  QString(),                  QStringLiteral("73 entry chosen | 726 资金账号 | index 1 |  | "));
    row(  87, 0x200, 0, QStringLiteral("500"),     QStringLiteral("87 number committed | 0x200 单笔最小量 |  | 500 | "));
    row(  97, 0x40, 0, QStringLiteral("100"),      QStringLiteral("97 cell double-clicked | 0x40 尾单最小量 |  | 100 | "));
    row( 101, 0x800, 0, QStringLiteral("09:30:00-15:00:00"), QStringLiteral("101 period committed | 0x800 有效时间 |  | 09:30:00-15:00:00 | "));
    row( 102, 0x4000000, 0, QStringLiteral("备"),  QStringLiteral("102 line committed | 0x4000000 投资备注 |  | 备 | "));
    row( 118, 0x8, 1,  QStringLiteral("单向"),     QStringLiteral("118 unit or check changed | 0x8 波动区间 | 1 | 单向 | "));
    row( 124, 0,   0,  QString(),                  QStringLiteral("124 filter applied |  |  |  | "));
    row( 129, 31,  0,  QString(),                  QStringLiteral("129 parameters changed | table 31 |  |  | "));
    row( 130, 5,   0,  QStringLiteral("x"),        QStringLiteral("130 parameter double-clicked | table 5 |  | x | "));
    row( 248, 0,   0,  QString(),                  QStringLiteral("248 filter reset |  |  |  | "));
    row(1061, 5,   11, QString(),                  QStringLiteral("1061 price type applied | table 5 | 11 指定价 |  | "));
    row(1061, 5,   99, QString(),                  QStringLiteral("1061 price type applied | table 5 | 99 |  | "));
    row(1062, 5,   1,  QStringLiteral("clr_global_text"), QStringLiteral("1062 price display | table 5 | 1 | clr_global_text | "));
    row(1063, 5,   1,  QString(),                  QStringLiteral("1063 price display, after hours | table 5 | 1 |  | "));
    row(1064, 5,   13, QString(),                  QStringLiteral("1064 order type chosen | table 5 | 13  parameter set 13 |  | "));
    row(1083, 725, 0,  QString(),                  QStringLiteral("1083 contract code emptied | 725 credit table |  |  | "));
    row(1206, 0,   0,  QString(),                  QStringLiteral("1206 operation still to be chosen |  |  |  | "));
    row(1213, 0,   0,  QStringLiteral("最新价"),   QStringLiteral("1213 price type from outside |  |  | 最新价 | "));
    row(1244, 1,   0,  QString(),                  QStringLiteral("1244 algorithm buttons | 1  algorithm |  |  | "));
    row(4711, 8,   9,  QString(),                  QStringLiteral("4711 | 8 | 9 |  | "));
    row(  87, std::numeric_limits<int>::min(), 0, QString(), QStringLiteral("87 number committed | -2147483648 |  |  | "));
    row(  87, 3,   0,  QString(),                  QStringLiteral("87 number committed | 3 |  |  | "));
    // clang-format on
}

void tst_EventDecoder::eventsAreDecodedByTheirNumber()
{
    QFETCH(int, event);
    QFETCH(int, a);
    QFETCH(int, b);
    QFETCH(QString, text);
    QTEST(decoded(capture(event, a, b, text, nullptr)), "expected");
}

void tst_EventDecoder::theDataOfAnEntryIsItsVariant_data()
{
    QTest::addColumn<QVariant>("variant");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a number") << QVariant(5) << QStringLiteral("int 5");
    QTest::newRow("a text") << QVariant(QStringLiteral("88005678")) << QStringLiteral("QString 88005678");
    QTest::newRow("none chosen") << QVariant() << QStringLiteral("QVariant()");
}

void tst_EventDecoder::theDataOfAnEntryIsItsVariant()
{
    QFETCH(QVariant, variant);
    QTEST(capture(73, 1, 0, QString(), &variant).data, "expected");
}

void tst_EventDecoder::theDataOfAPriceDisplayIsADouble_data()
{
    QTest::addColumn<double>("price");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a price") << 10.23 << QStringLiteral("double 10.23");
    QTest::newRow("zero") << 0.0 << QStringLiteral("double 0");
    QTest::newRow("no price") << kNoPriceValue << QStringLiteral("double 1.7976931348623157e+308");
    QTest::newRow("not a number") << std::nan("") << QStringLiteral("double nan");
    QTest::newRow("infinite") << -std::numeric_limits<double>::infinity() << QStringLiteral("double -inf");
}

void tst_EventDecoder::theDataOfAPriceDisplayIsADouble()
{
    QFETCH(double, price);
    QTEST(capture(1062, 5, 0, QString(), &price).data, "expected");
}

void tst_EventDecoder::theDataOfAPriceTypeFromOutsideIsAnInt()
{
    const int priceType = 14;
    QCOMPARE(capture(1213, 0, 0, QString(), &priceType).data, QStringLiteral("int 14"));
}

void tst_EventDecoder::aMissingDataPointerIsNothing_data()
{
    QTest::addColumn<int>("event");
    for (const int event : {73, 1062, 1206, 1213})
        QTest::addRow("%d", event) << event;
}

void tst_EventDecoder::aMissingDataPointerIsNothing()
{
    QFETCH(int, event);
    QCOMPARE(capture(event, 0, 0, QString(), nullptr).data, QString());
}

void tst_EventDecoder::dataOfOtherEventsIsNotRead()
{
    const void* nowhere = reinterpret_cast<const void*>(1);
    for (const int event : {5, 87, 97, 101, 102, 118, 129, 130, 1061, 1064, 1083, 1244, 4711})
        QCOMPARE(capture(event, 0, 0, QString(), nowhere).data, QString());
}

void tst_EventDecoder::aMegabyteOfTextIsShortened()
{
    const QString megabyte(1 << 20, QLatin1Char('x'));
    const QVariant variant(megabyte);
    const EventRecord record = capture(73, 1, 0, megabyte, &variant);
    QCOMPARE(record.text, QString(kLongestKeptText, QLatin1Char('x')) + QChar(0x2026));
    QCOMPARE(record.data.size(), int(qstrlen("QString ")) + kLongestKeptText + 1);
}

QTEST_APPLESS_MAIN(tst_EventDecoder)
#include "tst_EventDecoder.moc"
