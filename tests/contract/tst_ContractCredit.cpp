#include "contract/RecordedCredit.h"
#include "contract/RecordedPanel.h"

#include <QResizeEvent>
#include <QtTest>

using contract::lines;
using contract::RecordedCredit;

/// What the credit table calls while it is built, sized, and asked for accounts and figures.
class tst_ContractCredit : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void constructionCallsInOrder();
    void sizesAreReadBeforeTheRowsAreMade();
    void constructionAsksNoService();
    void scaleChangeCallsInOrder();
    void scaleChangeWithoutFontScaleCallsNothing();
    void scaleIsReadForTheLongestTitleAlone_data();
    void scaleIsReadForTheLongestTitleAlone();
    void resizingFitsTheRows();
    void everyEventReachesTheBase_data();
    void everyEventReachesTheBase();
    void operationsThatCallNothing();
};

void tst_ContractCredit::init()
{
    recorder::reset();
}

void tst_ContractCredit::constructionCallsInOrder()
{
    const support::CreditProbe table;

    QCOMPARE(recorder::calls(), lines(R"(
        new CBaseWidget("credit_param_table", false, null)
        new CMultiParamsTable(panel, true)
        table.setCustomWidgetVisible(false)
        table.setColumnWidth(0, 120)
        table.addComboBox(726, "资金账号", [], [], -1, false, right|vcenter, right|vcenter)
        table.addLineEdit(727, "指定还券", "(^$)|[a-zA-Z0-9-\s&\*]+$", true, "")
        table.addParamCell(728, "未还合约数量", 10, 0.0, 0.0, 0.0, "股", 0.0, 4)
        table.addParamCell(729, "当日可还数量", 10, 0.0, 0.0, 0.0, "股", 0.0, 4)
        table.addParamCell(730, "可还券资金", 10, 0.0, 0.0, 0.0, "元", 0.0, 4)
        table.addParamCell(731, "可还券数量", 10, 0.0, 0.0, 0.0, "股", 0.0, 4)
        table.setItemEditable(728, false)
        table.setItemEditable(729, false)
        table.setItemEditable(730, false)
        table.setItemEditable(731, false)
        table.setItemHidden(727, true)
    )"));
}

void tst_ContractCredit::sizesAreReadBeforeTheRowsAreMade()
{
    recorder::state().sizes = {{QStringLiteral("tc_siz_operation_panel_param_table_width"), 231},
                               {QStringLiteral("tc_siz_code_quotes_height"), 400},
                               {QStringLiteral("tc_siz_operation_panel_top_height"), 17}};

    const support::CreditProbe table;

    QCOMPARE(recorder::calls(recorder::Do | recorder::Resource).mid(0, 5), lines(R"(
        new CBaseWidget("credit_param_table", false, null)
        resources.getSize("tc_siz_code_quotes_height")
        resources.getSize("tc_siz_operation_panel_top_height")
        resources.getSize("tc_siz_operation_panel_param_table_width")
        new CMultiParamsTable(panel, true)
    )"));
    QCOMPARE(recorder::calls(recorder::Resource).size(), 3);
    QCOMPARE(table.size(), QSize(231, 417));
}

void tst_ContractCredit::constructionAsksNoService()
{
    const support::CreditProbe table;

    QCOMPARE(recorder::calls(recorder::Service | recorder::Send | recorder::Format), QStringList());
}

void tst_ContractCredit::scaleChangeCallsInOrder()
{
    RecordedCredit credit(1021);
    recorder::state().scale = 1.25;

    credit.table.handleScaleChanged();

    QCOMPARE(recorder::calls(recorder::kActs | recorder::Ask | recorder::Resource), lines(R"(
        table.scaleChanged()
        table.realHeight()
        table.setFixedHeight(realHeight)
        resources.getSize("tc_siz_code_quotes_height")
        resources.getSize("tc_siz_operation_panel_top_height")
        resources.getSize("tc_siz_operation_panel_param_table_width")
        resources.getUIScale()
        table.setColumnWidth(0, 155)
    )"));
}

void tst_ContractCredit::scaleChangeWithoutFontScaleCallsNothing()
{
    RecordedCredit credit;
    credit.table.setIsFontScale(false);

    credit.table.handleScaleChanged();

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractCredit::scaleIsReadForTheLongestTitleAlone_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("width");
    for (const int operation : {-1, 0, 22, 23, 24, 25, 1020, 1022})
        QTest::addRow("operation %d", operation) << operation << 1.25 << 120;
    QTest::newRow("operation 1021 at scale 1") << 1021 << 1.0 << 120;
    QTest::newRow("operation 1021 at nearly 1") << 1021 << 1.000009 << 120;
    QTest::newRow("operation 1021 a little above") << 1021 << 1.00002 << 155;
    QTest::newRow("operation 1021 at scale 2") << 1021 << 2.0 << 155;
}

void tst_ContractCredit::scaleIsReadForTheLongestTitleAlone()
{
    QFETCH(int, operation);
    QFETCH(double, scale);
    QFETCH(int, width);
    RecordedCredit credit(operation);
    recorder::state().scale = scale;
    credit.table.m_table->setColumnWidth(0, 77);
    recorder::clear();

    credit.table.resetColumnWidth();

    QCOMPARE(recorder::calls(recorder::Resource), operation == 1021 ? lines("resources.getUIScale()") : QStringList());
    QCOMPARE(recorder::calls(), QStringList{QStringLiteral("table.setColumnWidth(0, %1)").arg(width)});
}

void tst_ContractCredit::resizingFitsTheRows()
{
    RecordedCredit credit;
    QResizeEvent event(QSize(310, 90), QSize());

    credit.table.resizeEvent(&event);

    QCOMPARE(recorder::calls(recorder::kActs | recorder::Ask), lines("table.realHeight()"));
    QCOMPARE(credit.table.m_table->size(), QSize(310, recorder::state().height));
}

void tst_ContractCredit::everyEventReachesTheBase_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<int>("row");
    QTest::newRow("the account") << 73 << 726;
    QTest::newRow("another row") << 73 << 727;
    QTest::newRow("another event of the account") << 87 << 726;
    QTest::newRow("a click") << 5 << 600;
}

void tst_ContractCredit::everyEventReachesTheBase()
{
    QFETCH(int, event);
    QFETCH(int, row);
    RecordedCredit credit;

    QVERIFY(credit.table.handleEvent(event, row, 2, QStringLiteral("text"), nullptr));

    QCOMPARE(recorder::calls(recorder::kActs),
             QStringList{QStringLiteral("CBaseWidget::handleEvent(%1, %2, 2, \"text\", null)").arg(event).arg(row)});
    const bool isAccount = event == 73 && row == 726;
    QCOMPARE(recorder::calls(recorder::Ask), isAccount ? lines("table.itemText(727)") : QStringList());
    QCOMPARE(recorder::calls(recorder::Service), QStringList());
}

void tst_ContractCredit::operationsThatCallNothing()
{
    RecordedCredit credit(22);
    QStringList names;
    QVector<QVariant> values;

    credit.table.doStockUnitChange();
    credit.table.getComBoDisplayAccounts(names, values);
    credit.table.saveUIDataToMap();
    credit.table.setOperationType(ttservice::EOperationType(24), true);
    credit.table.setOptBuySecuRepayNum("a", "b", "c");
    credit.table.setCompactBrushSourceType(ttservice::ENVCompactBrushSource(49));
    credit.table.setIsFontScale(true);
    credit.table.getCurrentNumUnit();
    credit.table.getCurrentCompactType(ttservice::EOperationType(22));
    credit.table.getCompatctByCode({}, {}, {});
    QVERIFY(credit.table.refreshAvailableNum(QStringLiteral("c"), true, "k"));
    credit.table.param();
    credit.table.setParam(QStringLiteral("22"));
    credit.table.fixCodeChanged(QStringLiteral("600000"));

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

QTEST_MAIN(tst_ContractCredit)
#include "tst_ContractCredit.moc"
