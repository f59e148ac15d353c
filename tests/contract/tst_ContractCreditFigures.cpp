#include "contract/RecordedCredit.h"
#include "contract/RecordedPanel.h"

#include <QtTest>

using contract::lines;
using contract::RecordedCredit;

/// What the accounts and figures of the credit table ask of the cells, the services and the formatter.
class tst_ContractCreditFigures : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void accountListIsRebuiltEmptyAndSendsNothing();
    void selectingAnAccountCallsInOrder();
    void accountAndCodeAreReadFromTheirRows();
    void availableNumberAsksForTheAccountAndDropsIt();
    void unrepaidNumberReadsThenAsksForTheAccount_data();
    void unrepaidNumberReadsThenAsksForTheAccount();
    void unrepaidValueIsFormattedByTheOperation_data();
    void unrepaidValueIsFormattedByTheOperation();
    void withoutAnAccountNothingIsFormatted();
    void defaultContractReadsTheAccountAlone();
    void todaysNumberIsFormattedAsAQuantity();
    void unrepaidValueIsShown_data();
    void unrepaidValueIsShown();
};

void tst_ContractCreditFigures::init()
{
    recorder::reset();
}

void tst_ContractCreditFigures::accountListIsRebuiltEmptyAndSendsNothing()
{
    RecordedCredit credit(22);
    credit.table.m_savedValues[22][726] = QStringLiteral("A1");

    credit.table.refreshAccounts();

    QCOMPARE(recorder::calls(recorder::kEverything),
             lines("table.resetComboData(726, [], [], -1)\n table.itemText(727)"));
}

void tst_ContractCreditFigures::selectingAnAccountCallsInOrder()
{
    RecordedCredit credit;

    credit.table.setSelectAccount("A1");

    QCOMPARE(recorder::calls(recorder::kEverything), lines(R"(
        sToQs("A1")
        table.setComboData(726, "A1")
        deliver(73, 725, 0, "", "A1")
        table.itemText(727)
    )"));
}

void tst_ContractCreditFigures::accountAndCodeAreReadFromTheirRows()
{
    RecordedCredit credit;
    credit.offerAccount(QStringLiteral("A1"));

    QCOMPARE(credit.table.getSelectAccount(), QStringLiteral("A1"));
    QCOMPARE(credit.table.getCurrentCode(), QString());

    QCOMPARE(recorder::calls(recorder::kEverything), lines("table.itemData(726)\n table.itemText(727)"));
}

void tst_ContractCreditFigures::availableNumberAsksForTheAccountAndDropsIt()
{
    RecordedCredit credit;
    QString first = QStringLiteral("1");
    QString second = QStringLiteral("2");

    credit.table.getAvailableNum(first, second, "A7", "b", "c", {}, "d");

    QCOMPARE(recorder::calls(recorder::kEverything), lines(R"(dataCenter.getAccountInfo("A7"))"));
    QCOMPARE(first + second, QStringLiteral("12"));
}

void tst_ContractCreditFigures::unrepaidNumberReadsThenAsksForTheAccount_data()
{
    QTest::addColumn<QString>("compactId");
    QTest::newRow("all contracts") << QString();
    QTest::newRow("one contract") << QStringLiteral("K1");
}

void tst_ContractCreditFigures::unrepaidNumberReadsThenAsksForTheAccount()
{
    QFETCH(QString, compactId);
    RecordedCredit credit(24);
    credit.offerAccount(QStringLiteral("A1"));

    credit.table.getUnRepayNum(compactId.toStdString());

    QStringList expected = lines(R"(
        table.itemText(727)
        table.itemData(726)
        dataCenter.getAccountInfo("A1")
    )");
    if (compactId.isEmpty())
        expected << lines(R"(table.itemData(726)
                             formatDoubleNumber(0.0, 2, 0, false, "非法值"))");
    QCOMPARE(recorder::calls(recorder::kEverything), expected);
}

void tst_ContractCreditFigures::unrepaidValueIsFormattedByTheOperation_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("text");
    for (const int operation : {24, 25, 1021})
        QTest::addRow("operation %d", operation)
            << operation << QStringLiteral("formatDoubleNumber(0.0, 2, 0, false, \"非法值\")")
            << QStringLiteral("~0.00");
    for (const int operation : {22, 23})
        QTest::addRow("operation %d", operation)
            << operation << QStringLiteral("formatIntNumber(0, 0, 0)") << QStringLiteral("~0");
    for (const int operation : {-1, 0, 21, 26})
        QTest::addRow("operation %d", operation) << operation << QString() << QStringLiteral("0");
}

void tst_ContractCreditFigures::unrepaidValueIsFormattedByTheOperation()
{
    QFETCH(int, operation);
    QFETCH(QString, format);
    QFETCH(QString, text);
    RecordedCredit credit(operation);
    credit.offerAccount(QStringLiteral("A1"));

    QCOMPARE(credit.table.getAllUnrepayValue(QStringLiteral("600000")), text);

    QCOMPARE(recorder::calls(recorder::Format), format.isEmpty() ? QStringList() : QStringList{format});
    QCOMPARE(recorder::calls(recorder::Service), QStringList());
}

void tst_ContractCreditFigures::withoutAnAccountNothingIsFormatted()
{
    for (const int operation : {22, 23, 24, 25, 1021, -1}) {
        RecordedCredit credit(operation);

        QCOMPARE(credit.table.getAllUnrepayValue({}), QStringLiteral("0"));
        QCOMPARE(credit.table.getTodayAvailableNum({}), QStringLiteral("0"));

        QCOMPARE(recorder::calls(recorder::kEverything), lines("table.itemData(726)\n table.itemData(726)"));
    }
}

void tst_ContractCreditFigures::defaultContractReadsTheAccountAlone()
{
    RecordedCredit credit(22);
    credit.offerAccount(QStringLiteral("A1"));

    QVERIFY(!credit.table.getDefaultCompact(QStringLiteral("600000")));
    QCOMPARE(credit.table.getDefaultUnrepayValue(QStringLiteral("600000")), QStringLiteral("0"));

    QCOMPARE(recorder::calls(recorder::kEverything), lines("table.itemData(726)\n table.itemData(726)"));
}

void tst_ContractCreditFigures::todaysNumberIsFormattedAsAQuantity()
{
    RecordedCredit credit(24);
    credit.offerAccount(QStringLiteral("A1"));

    QCOMPARE(credit.table.getTodayAvailableNum(QStringLiteral("600000")), QStringLiteral("~0"));

    QCOMPARE(recorder::calls(recorder::Format), lines("formatIntNumber(0, 0, 0)"));
}

void tst_ContractCreditFigures::unrepaidValueIsShown_data()
{
    QTest::addColumn<int>("operation");
    for (const int operation : {-1, 22, 25, 1021})
        QTest::addRow("operation %d", operation) << operation;
}

void tst_ContractCreditFigures::unrepaidValueIsShown()
{
    QFETCH(int, operation);
    RecordedCredit credit(operation);

    credit.table.refreshUnrepayValue(QStringLiteral("12"));

    QCOMPARE(recorder::calls(recorder::kEverything), lines(R"(table.setItemText(728, "12"))"));
}

QTEST_MAIN(tst_ContractCreditFigures)
#include "tst_ContractCreditFigures.moc"
