#include "contract/RecordedCredit.h"
#include "contract/RecordedPanel.h"

#include <QtTest>

using contract::emptiedRows;
using contract::lines;
using contract::noCodeEvent;
using contract::RecordedCredit;

/// What laying out the credit rows and entering a code or a contract call, in order.
class tst_ContractCreditRefresh : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void rowsAreLaidOutInOrder_data();
    void rowsAreLaidOutInOrder();
    void withoutSavedValuesTheRowsAreEmptiedFirst();
    void otherOperationsOnlySend_data();
    void otherOperationsOnlySend();
    void rememberedEntryWithoutACodeEmptiesAndAsksNoNumber();
    void sentAccountIsTheChosenOne();
    void readingAParameterTextLaysTheRowsOut();
    void shortParameterTextCallsNothing();
};

void tst_ContractCreditRefresh::init()
{
    recorder::reset();
}

void tst_ContractCreditRefresh::rowsAreLaidOutInOrder_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<QString>("calls");
    QTest::newRow("22") << 22 << QStringLiteral(R"(
        table.setItemName(728, "未还合约数量")
        table.setItemName(730, "可还券资金")
        table.setItemName(731, "当日可还数量")
        table.setItemUnit(728, "股", 0.0, 0.0, 0.0, true)
        table.setItemUnit(729, "股", 0.0, 0.0, 0.0, true)
        table.setItemUnit(730, "元", 0.0, 0.0, 0.0, true)
        table.setItemUnit(731, "股", 0.0, 0.0, 0.0, true)
        table.setItemText(728, "~28")
        table.setItemText(730, "~30.50")
        table.setItemText(731, "~31")
        table.setItemText(729, "~29")
        table.setItemHidden(729, false)
        table.setItemHidden(731, true))");
    QTest::newRow("23") << 23 << QStringLiteral(R"(
        table.setItemName(728, "未还合约数量")
        table.setItemName(730, "可用持仓数量")
        table.setItemName(731, "当日可还数量")
        table.setItemUnit(728, "股", 0.0, 0.0, 0.0, true)
        table.setItemUnit(730, "股", 0.0, 0.0, 0.0, true)
        table.setItemText(728, "~28")
        table.setItemText(729, "~29")
        table.setItemText(730, "~0")
        table.setItemText(731, "~31")
        table.setItemHidden(729, false)
        table.setItemHidden(731, true))");
    QTest::newRow("24") << 24 << QStringLiteral(R"(
        table.setItemName(728, "负债金额")
        table.setItemName(730, "可卖持仓数量")
        table.setItemUnit(728, "元", 0.0, 0.0, 0.0, true)
        table.setItemUnit(730, "股", 0.0, 0.0, 0.0, true)
        table.setItemText(728, "~28.00")
        table.setItemText(730, "~0")
        table.setItemHidden(731, true)
        table.setItemHidden(729, true))");
    QTest::newRow("25") << 25 << QStringLiteral(R"(
        table.setItemName(728, "负债金额")
        table.setItemName(730, "可还款资金")
        table.setItemUnit(728, "元", 0.0, 0.0, 0.0, true)
        table.setItemUnit(730, "元", 0.0, 0.0, 0.0, true)
        table.setItemText(728, "~28.00")
        table.setItemText(730, "~30.50")
        table.setItemHidden(731, true)
        table.setItemHidden(729, true))");
    QTest::newRow("1021") << 1021 << QStringLiteral(R"(
        table.setItemName(728, "未还融券合约息费")
        table.setItemName(730, "可还款资金")
        table.setItemUnit(728, "元", 0.0, 0.0, 0.0, true)
        table.setItemUnit(730, "元", 0.0, 0.0, 0.0, true)
        table.setItemText(728, "~28.00")
        table.setItemText(730, "~30.50")
        table.setItemHidden(731, true)
        table.setItemHidden(729, true))");
}

void tst_ContractCreditRefresh::rowsAreLaidOutInOrder()
{
    QFETCH(int, operation);
    QFETCH(QString, calls);
    RecordedCredit credit(operation);
    // "30.5" is no int: as a quantity it reads as 0.
    credit.table.m_savedValues[operation] = {{727, QStringLiteral("X1")},
                                             {728, QStringLiteral("28")},
                                             {729, QStringLiteral("29")},
                                             {730, QStringLiteral("30.5")},
                                             {731, QStringLiteral("31")}};

    credit.table.refreshUIData();

    QCOMPARE(recorder::calls(), lines(calls.toUtf8().constData()) + lines(R"(deliver(73, 725, 0, "", none))"));
    QCOMPARE(recorder::calls(recorder::Ask), lines("table.itemData(726)")); // the code is not asked for
}

void tst_ContractCreditRefresh::withoutSavedValuesTheRowsAreEmptiedFirst()
{
    RecordedCredit credit(24);

    credit.table.refreshUIData();

    QCOMPARE(recorder::calls(recorder::kActs | recorder::Ask), emptiedRows() + noCodeEvent() + lines(R"(
        table.setItemName(728, "负债金额")
        table.setItemName(730, "可卖持仓数量")
        table.setItemUnit(728, "元", 0.0, 0.0, 0.0, true)
        table.setItemUnit(730, "股", 0.0, 0.0, 0.0, true)
        table.setItemText(728, "~0.00")
        table.setItemText(730, "~0")
        table.setItemHidden(731, true)
        table.setItemHidden(729, true)
        table.itemData(726)
        deliver(73, 725, 0, "", none)
        table.itemText(727)
    )"));
}

void tst_ContractCreditRefresh::otherOperationsOnlySend_data()
{
    QTest::addColumn<int>("operation");
    for (const int operation : {-2, -1, 0, 1, 21, 26, 1020, 1022})
        QTest::addRow("operation %d", operation) << operation;
}

void tst_ContractCreditRefresh::otherOperationsOnlySend()
{
    QFETCH(int, operation);
    RecordedCredit credit(operation);

    credit.table.refreshUIData();

    QCOMPARE(recorder::calls(recorder::kEverything), emptiedRows() + noCodeEvent() + lines(R"(
        table.itemData(726)
        deliver(73, 725, 0, "", none)
        table.itemText(727)
    )"));
}

void tst_ContractCreditRefresh::rememberedEntryWithoutACodeEmptiesAndAsksNoNumber()
{
    RecordedCredit credit(-1);
    credit.table.m_savedValues[-1] = {{728, QStringLiteral("28")}};

    credit.table.refreshUIData();

    QCOMPARE(recorder::calls(recorder::kEverything), emptiedRows() + noCodeEvent() + lines(R"(
        table.itemData(726)
        deliver(73, 725, 0, "", none)
    )"));
}

void tst_ContractCreditRefresh::sentAccountIsTheChosenOne()
{
    RecordedCredit credit(-1);
    credit.offerAccount(QStringLiteral("A1"));

    credit.table.refreshUIData();

    QCOMPARE(recorder::calls(recorder::Send), noCodeEvent() + lines(R"(deliver(73, 725, 0, "", "A1"))"));
}

void tst_ContractCreditRefresh::readingAParameterTextLaysTheRowsOut()
{
    RecordedCredit credit;

    credit.table.setParam(QStringLiteral("25+25-726=A-727=B-728=1.5-730=2"));

    QCOMPARE(recorder::calls(), lines(R"(
        table.setItemName(728, "负债金额")
        table.setItemName(730, "可还款资金")
        table.setItemUnit(728, "元", 0.0, 0.0, 0.0, true)
        table.setItemUnit(730, "元", 0.0, 0.0, 0.0, true)
        table.setItemText(728, "~1.50")
        table.setItemText(730, "~2.00")
        table.setItemHidden(731, true)
        table.setItemHidden(729, true)
        deliver(73, 725, 0, "", none)
    )"));
    QCOMPARE(recorder::calls(recorder::Format), lines(R"(
        formatDoubleNumber(1.5, 2, 0, false, "非法值")
        formatDoubleNumber(2.0, 2, 0, false, "非法值")
    )"));
}

void tst_ContractCreditRefresh::shortParameterTextCallsNothing()
{
    RecordedCredit credit(22);
    for (const char* text : {"", "-1", "24", "22-727=A"}) {
        credit.table.setParam(QString::fromLatin1(text));
        QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
    }
}

QTEST_MAIN(tst_ContractCreditRefresh)
#include "tst_ContractCreditRefresh.moc"
