// Which account a rebuilt list chooses. In this edition the list stays empty, so the rule is tested by itself.

#include <OrderParamTable_mini/credit/CreditLayout.h>

#include <QtTest>

class tst_CreditAccountChoice : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theRememberedAccountIsChosen_data();
    void theRememberedAccountIsChosen();
};

void tst_CreditAccountChoice::theRememberedAccountIsChosen_data()
{
    QTest::addColumn<QVector<QVariant>>("accounts");
    QTest::addColumn<QString>("remembered");
    QTest::addColumn<int>("index");
    const QVariant a = QStringLiteral("A1");
    const QVariant b = QStringLiteral("B2");
    QTest::newRow("an empty list chooses none") << QVector<QVariant>() << QStringLiteral("A1") << -1;
    QTest::newRow("no match chooses the first") << QVector<QVariant>{a, b} << QStringLiteral("C3") << 0;
    QTest::newRow("nothing remembered chooses the first") << QVector<QVariant>{a, b} << QString() << 0;
    QTest::newRow("a match is chosen") << QVector<QVariant>{a, b} << QStringLiteral("B2") << 1;
    QTest::newRow("the first match wins") << QVector<QVariant>{a, b, b} << QStringLiteral("B2") << 1;
    QTest::newRow("values are compared as texts") << QVector<QVariant>{7, 8} << QStringLiteral("8") << 1;
}

void tst_CreditAccountChoice::theRememberedAccountIsChosen()
{
    QFETCH(QVector<QVariant>, accounts);
    QFETCH(QString, remembered);
    QFETCH(int, index);
    QCOMPARE(TC::indexOfAccount(accounts, remembered), index);
}

QTEST_APPLESS_MAIN(tst_CreditAccountChoice)
#include "tst_CreditAccountChoice.moc"
