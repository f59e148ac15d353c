#include "credit/CreditPanel.h"

#include <TC/CAccountData.h>

#include <QTest>

#include <climits>

namespace {

constexpr int kOperations[] = {22, 23, 24, 25, 1021, -1, -2, 0, 21, 26, 99, 1020, 1022, INT_MIN, INT_MAX};

const QString kZero = QStringLiteral("0");

/// The figure of no contracts at all, with an account chosen.
QString unrepaidOf(int operation)
{
    return operation == 24 || operation == 25 || operation == 1021 ? QStringLiteral("0.00") : kZero;
}

} // namespace

class tst_CreditGetters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void compactTypeByOperation();
    void withoutAccountTheFiguresAreZero();
    void withAnAccountTheUnrepaidFigureIsMoneyOrAQuantity();
    void anAccountWithoutDataCountsAsNone();
    void defaultUnrepaidFigureIsAlwaysZero();
    void unrepaidNumber();
    void fixedAnswersOfThisEdition();
    void availableNumbersLeaveBothTextsAsTheyAre();
    void theChosenAccountIsTheEntrysData();
    void theCodeIsTheTextOfItsRow();
    void gettersSendNothing();
};

void tst_CreditGetters::compactTypeByOperation()
{
    const CreditPanel panel;
    for (int operation = -200; operation <= 1200; ++operation) {
        int expected = ' ';
        if (operation == 22 || operation == 23 || operation == 1021)
            expected = '1';
        if (operation == 24 || operation == 25)
            expected = '0';
        QCOMPARE(int(panel.table->getCurrentCompactType(ttservice::EOperationType(operation))), expected);
    }
    for (const int operation : {INT_MIN, INT_MAX})
        QCOMPARE(int(panel.table->getCurrentCompactType(ttservice::EOperationType(operation))), 32);
}

void tst_CreditGetters::withoutAccountTheFiguresAreZero()
{
    CreditPanel panel;
    for (const int operation : kOperations) {
        chooseOperation(panel, operation);
        QCOMPARE(panel.table->getAllUnrepayValue(QStringLiteral("600000")), kZero);
        QCOMPARE(panel.table->getTodayAvailableNum(QStringLiteral("600000")), kZero);
        QCOMPARE(panel.table->getSelectAccount(), QString());
    }
}

void tst_CreditGetters::withAnAccountTheUnrepaidFigureIsMoneyOrAQuantity()
{
    CreditPanel panel;
    panel.offerAccounts({QStringLiteral("A1"), QStringLiteral("A2")}, 1);
    for (const int operation : kOperations) {
        chooseOperation(panel, operation);
        for (const QString& code : {QString(), QStringLiteral("600000")}) {
            QCOMPARE(panel.table->getAllUnrepayValue(code), unrepaidOf(operation));
            QCOMPARE(panel.table->getTodayAvailableNum(code), kZero);
        }
    }
}

void tst_CreditGetters::anAccountWithoutDataCountsAsNone()
{
    CreditPanel panel;
    panel.offerAccounts({QString()});
    chooseOperation(panel, 24);
    QCOMPARE(panel.table->getAllUnrepayValue(QString()), kZero);
    panel.offerAccounts({QStringLiteral("A1")}, -1);
    QCOMPARE(panel.table->getAllUnrepayValue(QString()), kZero);
}

void tst_CreditGetters::defaultUnrepaidFigureIsAlwaysZero()
{
    CreditPanel panel;
    for (const QString& account : {QString(), QStringLiteral("A1")}) {
        panel.offerAccounts({account});
        for (const int operation : kOperations) {
            chooseOperation(panel, operation);
            QCOMPARE(panel.table->getDefaultUnrepayValue(QString()), kZero);
            QCOMPARE(panel.table->getDefaultUnrepayValue(QStringLiteral("600000")), kZero);
        }
    }
}

void tst_CreditGetters::unrepaidNumber()
{
    CreditPanel panel;
    for (const QString& account : {QString(), QStringLiteral("A1")}) {
        panel.offerAccounts({account});
        for (const int operation : kOperations) {
            chooseOperation(panel, operation);
            QCOMPARE(panel.table->getUnRepayNum("K1"), 0.0);
            QCOMPARE(panel.table->getUnRepayNum(std::string()),
                     panel.table->getAllUnrepayValue(panel.table->getCurrentCode()).toDouble());
        }
    }
}

void tst_CreditGetters::fixedAnswersOfThisEdition()
{
    CreditPanel panel;
    for (const QString& account : {QString(), QStringLiteral("A1")}) {
        panel.offerAccounts({account});
        QCOMPARE(panel.table->getCurrentNumUnit(), 1.0);
        QVERIFY(!panel.table->getDefaultCompact(QStringLiteral("600000")));
        QVERIFY(!panel.table->getDefaultCompact(QString()));
        QVERIFY(!panel.table->getCompatctByCode(QStringLiteral("600000"), {}, "K1"));
        QVERIFY(!panel.table->getCompatctByCode(QString(), boost::shared_ptr<TC::CAccountData>(new TC::CAccountData),
                                                std::string()));
        const QStringList before = panel.codeAndFigures();
        QVERIFY(panel.table->refreshAvailableNum(QStringLiteral("600000"), true, "K1"));
        QVERIFY(panel.table->refreshAvailableNum(QString(), false, std::string()));
        QCOMPARE(panel.codeAndFigures(), before);
    }
}

void tst_CreditGetters::availableNumbersLeaveBothTextsAsTheyAre()
{
    const CreditPanel panel;
    QString first = QStringLiteral("one");
    QString second = QStringLiteral("two");
    const boost::shared_ptr<ttservice::CStkCompactsV2> compact(new ttservice::CStkCompactsV2);
    panel.table->getAvailableNum(first, second, "A1", "x", "y", compact, "z");
    panel.table->getAvailableNum(first, second, std::string(), "x", "y", {}, "z");
    QCOMPARE(first, QStringLiteral("one"));
    QCOMPARE(second, QStringLiteral("two"));
}

void tst_CreditGetters::theChosenAccountIsTheEntrysData()
{
    CreditPanel panel;
    QCOMPARE(panel.table->getSelectAccount(), QString());
    panel.offerAccounts({QStringLiteral("A1"), QStringLiteral("A2")}, 1);
    QCOMPARE(panel.table->getSelectAccount(), QStringLiteral("A2"));
    panel.cells().resetComboData(726, {QStringLiteral("seven")}, {7}, 0);
    QCOMPARE(panel.table->getSelectAccount(), QStringLiteral("7"));
}

void tst_CreditGetters::theCodeIsTheTextOfItsRow()
{
    const CreditPanel panel;
    QCOMPARE(panel.table->getCurrentCode(), QString());
    panel.cells().setItemText(727, QStringLiteral("X1"));
    QCOMPARE(panel.table->getCurrentCode(), QStringLiteral("X1"));
}

void tst_CreditGetters::gettersSendNothing()
{
    CreditPanel panel;
    panel.offerAccounts({QStringLiteral("A1")});
    chooseOperation(panel, 22);
    panel.table->getAllUnrepayValue(QString());
    panel.table->getDefaultUnrepayValue(QString());
    panel.table->getTodayAvailableNum(QString());
    panel.table->getUnRepayNum(std::string());
    panel.table->getSelectAccount();
    panel.table->getCurrentCode();
    panel.table->param();
    panel.table->realHeight();
    QCOMPARE(panel.host.take(), QStringList());
}

QTEST_MAIN(tst_CreditGetters)
#include "tst_CreditGetters.moc"
