#include "credit/CreditPanel.h"

#include "support/CellText.h"

#include <QTest>

#include <climits>

namespace {

using Values = QMap<int, QString>;

const QString kCode = QStringLiteral("1083(725, 0, \"\")");
const QString kAccount = QStringLiteral("73(725, 0, \"\")");

/// The rows 727 to 731 of an operation, "%1" to "%4" being the texts of 728 to 731.
struct Look
{
    int operation;
    const char16_t* rows[5];
};

// clang-format off
const Look kLooks[] = {
    {22,   {u"指定还券: \"%0\", hidden", u"未还合约数量: \"%1\" 股, fixed", u"当日可还数量: \"%2\" 股, fixed",
            u"可还券资金: \"%3\" 元, fixed", u"当日可还数量: \"%4\" 股, hidden, fixed"}},
    {23,   {u"指定还券: \"%0\", hidden", u"未还合约数量: \"%1\" 股, fixed", u"当日可还数量: \"%2\" 股, fixed",
            u"可用持仓数量: \"%3\" 股, fixed", u"当日可还数量: \"%4\" 股, hidden, fixed"}},
    {24,   {u"指定还券: \"%0\", hidden", u"负债金额: \"%1\" 元, fixed", u"当日可还数量: \"%2\" 股, hidden, fixed",
            u"可卖持仓数量: \"%3\" 股, fixed", u"可还券数量: \"%4\" 股, hidden, fixed"}},
    {25,   {u"指定还券: \"%0\", hidden", u"负债金额: \"%1\" 元, fixed", u"当日可还数量: \"%2\" 股, hidden, fixed",
            u"可还款资金: \"%3\" 元, fixed", u"可还券数量: \"%4\" 股, hidden, fixed"}},
    {1021, {u"指定还券: \"%0\", hidden", u"未还融券合约息费: \"%1\" 元, fixed", u"当日可还数量: \"%2\" 股, hidden, fixed",
            u"可还款资金: \"%3\" 元, fixed", u"可还券数量: \"%4\" 股, hidden, fixed"}},
    {-1,   {u"指定还券: \"%0\", hidden", u"未还合约数量: \"%1\" 股, fixed", u"当日可还数量: \"%2\" 股, fixed",
            u"可还券资金: \"%3\" 元, fixed", u"可还券数量: \"%4\" 股, fixed"}},
    {99,   {u"指定还券: \"%0\", hidden", u"未还合约数量: \"%1\" 股, fixed", u"当日可还数量: \"%2\" 股, fixed",
            u"可还券资金: \"%3\" 元, fixed", u"可还券数量: \"%4\" 股, fixed"}},
};
// clang-format on

QStringList rowsOf(int operation, const QStringList& texts)
{
    QStringList rows;
    for (const Look& look : kLooks) {
        if (look.operation != operation)
            continue;
        for (int i = 0; i < 5; ++i)
            rows << QString::fromUtf16(look.rows[i]).replace(QStringLiteral("%%1").arg(i), texts.at(i));
    }
    return rows;
}

QStringList texts(const char16_t* code, const char16_t* r728, const char16_t* r729, const char16_t* r730,
                  const char16_t* r731)
{
    return {QString::fromUtf16(code), QString::fromUtf16(r728), QString::fromUtf16(r729), QString::fromUtf16(r730),
            QString::fromUtf16(r731)};
}

void show(CreditPanel& panel, int operation)
{
    panel.table->m_operationType = operation;
    panel.table->refreshUIData();
}

} // namespace

class tst_CreditLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutRememberedValues_data();
    void withoutRememberedValues();
    void withRememberedValues_data();
    void withRememberedValues();
    void valuesThatDoNotConvert_data();
    void valuesThatDoNotConvert();
    void missingRowsOfARememberedOperationReadAsZero();
    void operation24EmptiesTheRowsFirstAndSends1083Before73();
    void operation22WithARememberedCodeKeepsTheCodeRow();
    void operationMinusOneOnlySendsAndSetsTheColumn();
    void aRememberedCodeAloneDecidesOnTheContractEvent();
    void valuesOfOtherOperationsAreNotShown();
    void withoutRememberedValuesTheFigureStandsForAllContracts();
    void theAccountEventCarriesTheChosenAccount();
    void anOperationKeepsWhatTheLastOneLeft();
    void unknownOperationsLeaveTheLayout();
    void rowsOnTheScreen();
};

void tst_CreditLayout::withoutRememberedValues_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("22") << 22 << texts(u"", u"0", u"0", u"0.00", u"0");
    QTest::newRow("23") << 23 << texts(u"", u"0", u"0", u"0", u"0");
    QTest::newRow("24") << 24 << texts(u"", u"0.00", u"", u"0", u"");
    QTest::newRow("25") << 25 << texts(u"", u"0.00", u"", u"0.00", u"");
    QTest::newRow("1021") << 1021 << texts(u"", u"0.00", u"", u"0.00", u"");
    QTest::newRow("-1") << -1 << texts(u"", u"", u"", u"", u"");
    QTest::newRow("99") << 99 << texts(u"", u"", u"", u"", u"");
}

void tst_CreditLayout::withoutRememberedValues()
{
    QFETCH(int, operation);
    QFETCH(QStringList, expected);
    CreditPanel panel;
    for (int row = 727; row <= 731; ++row)
        panel.cells().setItemText(row, QStringLiteral("old"));
    show(panel, operation);
    QCOMPARE(panel.codeAndFigures(), rowsOf(operation, expected));
    QCOMPARE(panel.host.take(), (QStringList{kCode, kAccount}));
}

void tst_CreditLayout::withRememberedValues_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("22") << 22 << texts(u"old", u"1200", u"300", u"4567.89", u"50");
    QTest::newRow("23") << 23 << texts(u"old", u"1200", u"300", u"0", u"50");
    QTest::newRow("24") << 24 << texts(u"old", u"1200.00", u"old", u"0", u"old");
    QTest::newRow("25") << 25 << texts(u"old", u"1200.00", u"old", u"4567.89", u"old");
    QTest::newRow("1021") << 1021 << texts(u"old", u"1200.00", u"old", u"4567.89", u"old");
    QTest::newRow("-1") << -1 << texts(u"old", u"old", u"old", u"old", u"old");
    QTest::newRow("99") << 99 << texts(u"old", u"old", u"old", u"old", u"old");
}

void tst_CreditLayout::withRememberedValues()
{
    QFETCH(int, operation);
    QFETCH(QStringList, expected);
    CreditPanel panel;
    for (int row = 727; row <= 731; ++row)
        panel.cells().setItemText(row, QStringLiteral("old"));
    remember(*panel.table, operation,
             {{726, QStringLiteral("A1")},
              {727, QStringLiteral("X1")},
              {728, QStringLiteral("1200")},
              {729, QStringLiteral("300")},
              {730, QStringLiteral("4567.89")},
              {731, QStringLiteral("50")}});
    show(panel, operation);
    QCOMPARE(panel.codeAndFigures(), rowsOf(operation, expected));
    QCOMPARE(panel.host.take(), QStringList{kAccount});
}

void tst_CreditLayout::valuesThatDoNotConvert_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("quantity");
    QTest::addColumn<QString>("money");
    const auto row = [](const char* name, const char16_t* value, const char16_t* quantity, const char16_t* money) {
        QTest::newRow(name) << QString::fromUtf16(value) << QString::fromUtf16(quantity) << QString::fromUtf16(money);
    };
    row("empty", u"", u"0", u"0.00");
    row("letters", u"abc", u"0", u"0.00");
    row("number and letters", u"12abc", u"0", u"0.00");
    row("fraction", u"1.5", u"0", u"1.50");
    row("blanks around", u" 12 ", u"12", u"12.00");
    row("negative", u"-5", u"-5", u"-5.00");
    row("exponent", u"1e3", u"0", u"1000.00");
    row("grouped", u"1,000", u"0", u"0.00");
    row("not a number", u"nan", u"0", u"非法值");
    row("infinite", u"inf", u"0", u"非法值");
    row("minus infinite", u"-inf", u"0", u"非法值");
    row("overflowing double", u"1e400", u"0", u"非法值");
    row("vanishing double", u"1e-400", u"0", u"0.00");
    row("no price", u"1.7976931348623157e308", u"0", u"非法值");
    row("largest int", u"2147483647", u"2147483647", u"2147483647.00");
    row("beyond int, low 32 bits", u"3000000000", u"-1294967296", u"3000000000.00");
    row("beyond 64 bits", u"99999999999999999999", u"0", u"100000000000000000000.00");
    row("rounds to zero", u"-0.004", u"0", u"0.00");
    row("full-width digits", u"１２", u"0", u"0.00");
    row("hexadecimal", u"0x10", u"0", u"0.00");
}

void tst_CreditLayout::valuesThatDoNotConvert()
{
    QFETCH(QString, value);
    QFETCH(QString, quantity);
    QFETCH(QString, money);
    const Values values{{727, QStringLiteral("X1")}, {728, value}, {729, value}, {730, value}, {731, value}};
    const struct
    {
        int operation;
        QStringList texts;
    } expectations[] = {
        {22, {quantity, quantity, money, quantity}},   {23, {quantity, quantity, quantity, quantity}},
        {24, {money, QString(), quantity, QString()}}, {25, {money, QString(), money, QString()}},
        {1021, {money, QString(), money, QString()}},
    };
    for (const auto& expected : expectations) {
        CreditPanel panel;
        remember(*panel.table, expected.operation, values);
        show(panel, expected.operation);
        QCOMPARE(panel.texts().mid(1), expected.texts);
    }
}

void tst_CreditLayout::missingRowsOfARememberedOperationReadAsZero()
{
    CreditPanel panel;
    remember(*panel.table, 22, {{727, QStringLiteral("X1")}});
    show(panel, 22);
    QCOMPARE(panel.codeAndFigures(), rowsOf(22, texts(u"", u"0", u"0", u"0.00", u"0")));
}

void tst_CreditLayout::operation24EmptiesTheRowsFirstAndSends1083Before73()
{
    CreditPanel panel;
    for (int row = 727; row <= 731; ++row)
        panel.cells().setItemText(row, QStringLiteral("old"));
    QStringList textsAt1083;
    QString titleAt1083;
    panel.host.onEvent = [&](int event) {
        if (event == 1083) {
            textsAt1083 = panel.texts();
            titleAt1083 = panel.row(728);
        }
    };
    show(panel, 24);
    QCOMPARE(textsAt1083, texts(u"", u"", u"", u"", u""));
    QCOMPARE(titleAt1083, QStringLiteral("未还合约数量: \"\" 股, fixed"));
    QCOMPARE(panel.row(728), QStringLiteral("负债金额: \"0.00\" 元, fixed"));
    QCOMPARE(panel.row(730), QStringLiteral("可卖持仓数量: \"0\" 股, fixed"));
    QVERIFY(support::isHidden(panel.cells(), 729));
    QVERIFY(support::isHidden(panel.cells(), 731));
    QCOMPARE(panel.host.take(), (QStringList{kCode, kAccount}));
}

void tst_CreditLayout::operation22WithARememberedCodeKeepsTheCodeRow()
{
    CreditPanel panel;
    panel.cells().setItemText(727, QStringLiteral("typed"));
    panel.table->m_useAllCompacts = false;
    remember(*panel.table, 22, {{727, QStringLiteral("X1")}});
    show(panel, 22);
    QCOMPARE(panel.host.take(), QStringList{kAccount});
    QCOMPARE(panel.cells().itemText(727), QStringLiteral("typed"));
    QVERIFY(!support::isHidden(panel.cells(), 729));
    QVERIFY(support::isHidden(panel.cells(), 731));
    QVERIFY(!panel.table->m_useAllCompacts);
}

void tst_CreditLayout::operationMinusOneOnlySendsAndSetsTheColumn()
{
    CreditPanel panel;
    const QStringList before = panel.codeAndFigures();
    panel.cells().setColumnWidth(0, 77);
    panel.table->m_useAllCompacts = false;
    show(panel, -1);
    QCOMPARE(panel.codeAndFigures(), before);
    QCOMPARE(panel.host.take(), (QStringList{kCode, kAccount}));
    QCOMPARE(panel.cells().columnWidth(0), 120);
    QVERIFY(panel.table->m_useAllCompacts);
}

void tst_CreditLayout::aRememberedCodeAloneDecidesOnTheContractEvent()
{
    CreditPanel panel;
    remember(*panel.table, 22, {{726, QStringLiteral("A1")}, {727, QString()}, {728, QStringLiteral("9")}});
    panel.table->m_useAllCompacts = false;
    show(panel, 22);
    QCOMPARE(panel.host.take(), (QStringList{kCode, kAccount}));
    QCOMPARE(panel.texts(), texts(u"", u"9", u"0", u"0.00", u"0"));
    QVERIFY(!panel.table->m_useAllCompacts);
}

void tst_CreditLayout::valuesOfOtherOperationsAreNotShown()
{
    CreditPanel panel;
    remember(*panel.table, 23, {{727, QStringLiteral("X1")}, {728, QStringLiteral("9")}});
    show(panel, 22);
    QCOMPARE(panel.texts(), texts(u"", u"0", u"0", u"0.00", u"0"));
    QCOMPARE(panel.host.take(), (QStringList{kCode, kAccount}));
}

void tst_CreditLayout::withoutRememberedValuesTheFigureStandsForAllContracts()
{
    for (const int operation : {22, 23, 24, 25, 1021, -1, 99}) {
        CreditPanel panel;
        panel.table->m_useAllCompacts = false;
        show(panel, operation);
        QVERIFY(panel.table->m_useAllCompacts);
    }
}

void tst_CreditLayout::theAccountEventCarriesTheChosenAccount()
{
    CreditPanel panel;
    panel.offerAccounts({QStringLiteral("A1"), QStringLiteral("A2")}, 1);
    for (const int operation : {22, 23, 24, 25, 1021, -1, 99}) {
        show(panel, operation);
        QCOMPARE(panel.host.take(), (QStringList{kCode, QStringLiteral("73(725, 0, \"\", A2)")}));
        QVERIFY(panel.host.lastData);
    }
}

void tst_CreditLayout::anOperationKeepsWhatTheLastOneLeft()
{
    CreditPanel panel;
    show(panel, 22);
    show(panel, 24);
    QCOMPARE(panel.row(731), QStringLiteral("当日可还数量: \"\" 股, hidden, fixed"));
    show(panel, 23);
    QCOMPARE(panel.row(730), QStringLiteral("可用持仓数量: \"0\" 股, fixed"));
    QCOMPARE(panel.row(728), QStringLiteral("未还合约数量: \"0\" 股, fixed"));
    QCOMPARE(panel.row(729), QStringLiteral("当日可还数量: \"0\" 股, fixed"));
    show(panel, 1021);
    show(panel, 22);
    QCOMPARE(panel.codeAndFigures(), rowsOf(22, texts(u"", u"0", u"0", u"0.00", u"0")));
}

void tst_CreditLayout::unknownOperationsLeaveTheLayout()
{
    for (const int operation : {-1, 0, 21, 26, 99, 1020, 1022, INT_MIN, INT_MAX}) {
        CreditPanel panel;
        show(panel, 25);
        remember(*panel.table, operation, {{727, QStringLiteral("X1")}, {728, QStringLiteral("9")}});
        const QStringList before = panel.codeAndFigures();
        show(panel, operation);
        QCOMPARE(panel.codeAndFigures(), before);
    }
}

void tst_CreditLayout::rowsOnTheScreen()
{
    CreditPanel panel;
    show(panel, 22);
    QCOMPARE(support::shownCells(panel.cells()), (QSet<int>{726, 728, 729, 730}));
    show(panel, 24);
    QCOMPARE(support::shownCells(panel.cells()), (QSet<int>{726, 728, 730}));
    show(panel, -1);
    QCOMPARE(support::shownCells(panel.cells()), (QSet<int>{726, 728, 730}));
    show(panel, 23);
    QCOMPARE(support::shownCells(panel.cells()), (QSet<int>{726, 728, 729, 730}));
}

QTEST_MAIN(tst_CreditLayout)
#include "tst_CreditLayout.moc"
