#include "reference/toolkit/ThemeReader.h"

#include <QtTest>

class ThemeReaderTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void coloursAreReadByKey();
    void metricsAreReadByKey();
    void whatIsWrongIsSaidWithItsLine_data();
    void whatIsWrongIsSaidWithItsLine();
    void wrongMetricsAreSaidWithTheirLine_data();
    void wrongMetricsAreSaidWithTheirLine();
    void aMegabyteOfJunkIsRefused();
    void theLineOfAKeyCountsFromOne();
};

void ThemeReaderTest::coloursAreReadByKey()
{
    QString error;
    const auto colors = WQ::readThemeColors(R"({"colors": {"clr_a": "#12151a", "clr_b": "#FFFFFF"}})", error);
    QVERIFY2(colors, qPrintable(error));
    QCOMPARE(colors->size(), 2);
    QCOMPARE(colors->value(QStringLiteral("clr_a")), QColor(0x12, 0x15, 0x1a));
    QCOMPARE(colors->value(QStringLiteral("clr_b")), QColor(0xff, 0xff, 0xff));
}

void ThemeReaderTest::metricsAreReadByKey()
{
    QString error;
    const auto metrics = WQ::readThemeMetrics(R"({"sizes": {"siz_a": 26}, "families": ["One", "Two"],
        "fonts": {"fnt_a": {"size": 13, "weight": "half-bold"}}, "images": {"img_a": "check"}})",
                                              error);
    QVERIFY2(metrics, qPrintable(error));
    QCOMPARE(metrics->sizes.value(QStringLiteral("siz_a")), 26.0);
    QCOMPARE(metrics->families, (QStringList{QStringLiteral("One"), QStringLiteral("Two")}));
    QCOMPARE(metrics->fonts.value(QStringLiteral("fnt_a")).size, 13.0);
    QCOMPARE(metrics->fonts.value(QStringLiteral("fnt_a")).weight, QFont::DemiBold);
    QCOMPARE(metrics->images.value(QStringLiteral("img_a")), QStringLiteral("check"));
}

void ThemeReaderTest::whatIsWrongIsSaidWithItsLine_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("error");

    QTest::newRow("a comma is missing") << QByteArray(
        "{\"colors\": {\n\"clr_a\": \"#12151a\"\n\"clr_b\": \"#ffffff\"}}")
                                        << QStringLiteral("3: ");
    QTest::newRow("a colour has no number sign")
        << QByteArray("{\"colors\": {\n\"clr_a\": \"#12151a\",\n\"clr_b\": \"ffffff\"}}")
        << QStringLiteral("3: \"clr_b\"");
    QTest::newRow("a colour has five digits")
        << QByteArray("{\"colors\": {\n\"clr_a\": \"#12151\"}}") << QStringLiteral("2: \"clr_a\"");
    QTest::newRow("a colour is a number")
        << QByteArray("{\"colors\":\n\n{\"clr_a\": 7}}") << QStringLiteral("3: \"clr_a\"");
    QTest::newRow("no colours") << QByteArray("{}") << QStringLiteral("1: \"colors\"");
    QTest::newRow("colours are a list") << QByteArray("{\n\"colors\": []}") << QStringLiteral("2: \"colors\"");
    QTest::newRow("a list") << QByteArray("[]") << QStringLiteral("1: ");
    QTest::newRow("nothing") << QByteArray() << QStringLiteral("1: ");
}

void ThemeReaderTest::whatIsWrongIsSaidWithItsLine()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, error);
    QString said;
    QVERIFY(!WQ::readThemeColors(file, said));
    QVERIFY2(said.startsWith(error), qPrintable(said));
}

void ThemeReaderTest::wrongMetricsAreSaidWithTheirLine_data()
{
    QTest::addColumn<QByteArray>("sizes");
    QTest::addColumn<QByteArray>("fonts");
    QTest::addColumn<QString>("error");

    const QByteArray size("\"siz_a\": 1");
    const QByteArray font("\"fnt_a\": {\"size\": 12, \"weight\": \"normal\"}");
    QTest::newRow("a size below zero") << QByteArray("\"siz_a\": -1") << font << QStringLiteral("2: \"siz_a\"");
    QTest::newRow("a size as text") << QByteArray("\"siz_a\": \"1\"") << font << QStringLiteral("2: \"siz_a\"");
    QTest::newRow("a size for giants") << QByteArray("\"siz_a\": 1e9") << font << QStringLiteral("2: \"siz_a\"");
    QTest::newRow("a font without size") << size << QByteArray("\"fnt_a\": {\"weight\": \"normal\"}")
                                         << QStringLiteral("4: \"fnt_a\"");
    QTest::newRow("a font of no size") << size << QByteArray("\"fnt_a\": {\"size\": 0, \"weight\": \"normal\"}")
                                       << QStringLiteral("4: \"fnt_a\"");
    QTest::newRow("an unknown weight") << size << QByteArray("\"fnt_a\": {\"size\": 12, \"weight\": \"fat\"}")
                                       << QStringLiteral("4: \"fnt_a\"");
}

void ThemeReaderTest::wrongMetricsAreSaidWithTheirLine()
{
    QFETCH(QByteArray, sizes);
    QFETCH(QByteArray, fonts);
    QFETCH(QString, error);
    QString said;
    QVERIFY(
        !WQ::readThemeMetrics("{\"sizes\": {\n" + sizes + "},\n\"fonts\": {\n" + fonts + "},\n\"images\": {}}", said));
    QVERIFY2(said.startsWith(error), qPrintable(said));
}

void ThemeReaderTest::aMegabyteOfJunkIsRefused()
{
    QString said;
    QVERIFY(!WQ::readThemeColors(QByteArray(1 << 20, '['), said));
    QVERIFY(!said.isEmpty());
}

void ThemeReaderTest::theLineOfAKeyCountsFromOne()
{
    QCOMPARE(WQ::lineOfKey("{\"a\":\n{\"b\": 1,\n\"c\": 2}}", QStringLiteral("a")), 1);
    QCOMPARE(WQ::lineOfKey("{\"a\":\n{\"b\": 1,\n\"c\": 2}}", QStringLiteral("c")), 3);
    QCOMPARE(WQ::lineOfKey("{\"a\":\n{\"b\": 1,\n\"c\": 2}}", QStringLiteral("d")), 1);
}

QTEST_APPLESS_MAIN(ThemeReaderTest)
#include "tst_ThemeReader.moc"
