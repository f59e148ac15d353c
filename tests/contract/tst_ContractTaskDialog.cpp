#include "contract/RecordedDialog.h"
#include "contract/RecordedPanel.h"
#include "contract/Sequences.h"

#include <WQ/CPushButton.h>

#include <QBoxLayout>
#include <QFrame>
#include <QtTest>

using contract::embeddedTable;
using contract::EmbeddedTable;
using contract::flagCalls;
using contract::lines;
using contract::recordedFlagCalls;
using contract::TaskDialog;
using contract::taskOf;

namespace {

int flagsOf(const EmbeddedTable& table, int orderType, int traderType)
{
    switch (orderType) {
    case 0:
    case 6:
        return traderType == 4 ? 0x7100003 : table.plainFlags;
    case 1:
    case 7:
        return traderType == 4 ? table.algorithmFlagsTrader4 : table.algorithmFlags;
    case 2:
        return table.randomFlags;
    default:
        return 0;
    }
}

} // namespace

/// What the task dialog calls while it is built and when its button is clicked.
class tst_ContractTaskDialog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void flagsFollowBrokerOrderAndTrader_data();
    void flagsFollowBrokerOrderAndTrader();
    void embeddedTableIsBuiltByTheBrokerType_data();
    void embeddedTableIsBuiltByTheBrokerType();
    void operationIsAppliedBeforeTheFlags_data();
    void operationIsAppliedBeforeTheFlags();
    void stockTableAloneTakesTheTableFlag();
    void cellsAreDisabledAndSizedThenTheButtonIsMade();
    void buttonIsHiddenForPlainOrdersAlone_data();
    void buttonIsHiddenForPlainOrdersAlone();
    void layoutsAsTheyStand();
    void clickSwapsIconThenExpands();
    void otherEventsReachTheDialogsBase();
};

void tst_ContractTaskDialog::init()
{
    recorder::reset();
}

void tst_ContractTaskDialog::flagsFollowBrokerOrderAndTrader_data()
{
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<int>("orderType");
    QTest::addColumn<int>("traderType");
    for (const EmbeddedTable& row : contract::kEmbeddedTables) {
        for (const int orderType : {0, 1, 2, 3, 5, 6, 7}) {
            for (const int traderType : {1, 4})
                QTest::addRow("broker type %d, order type %d, trader type %d", row.brokerType, orderType, traderType)
                    << row.brokerType << orderType << traderType;
        }
    }
}

void tst_ContractTaskDialog::flagsFollowBrokerOrderAndTrader()
{
    QFETCH(int, brokerType);
    QFETCH(int, orderType);
    QFETCH(int, traderType);
    contract::switchCellModulesOn();

    const TaskDialog dialog(taskOf(brokerType, orderType), traderType);

    const int flags = flagsOf(embeddedTable(brokerType), orderType, traderType);
    QCOMPARE(recordedFlagCalls(), flags == 0 ? QStringList() : flagCalls(brokerType, flags));
}

void tst_ContractTaskDialog::embeddedTableIsBuiltByTheBrokerType_data()
{
    QTest::addColumn<int>("brokerType");
    for (const EmbeddedTable& row : contract::kEmbeddedTables)
        QTest::addRow("broker type %d", row.brokerType) << row.brokerType;
}

void tst_ContractTaskDialog::embeddedTableIsBuiltByTheBrokerType()
{
    QFETCH(int, brokerType);

    const TaskDialog dialog(taskOf(brokerType, 1));

    QCOMPARE(dialog.m_table->getId(), TC::EOpParamWidgetID(embeddedTable(brokerType).identity));
    const QStringList calls = recorder::calls();
    QCOMPARE(calls.first(), QStringLiteral("new CFloatWidget(true, null)"));
    QVERIFY(calls.contains(QStringLiteral("new CBaseWidget(\"vtmq_pelorin_orderparambasetable\", false, dialog)")));
    QVERIFY(calls.contains(QStringLiteral("strip.setFixedHeight(28)")));
    QVERIFY(calls.contains(QStringLiteral("new CMultiParamsTable(panel, false)")));
    QVERIFY(calls.contains(QStringLiteral("table.setFontScale(false)")));
}

void tst_ContractTaskDialog::operationIsAppliedBeforeTheFlags_data()
{
    embeddedTableIsBuiltByTheBrokerType_data();
}

void tst_ContractTaskDialog::operationIsAppliedBeforeTheFlags()
{
    QFETCH(int, brokerType);
    recorder::state().clientMode = 100; // an applied operation is announced

    const TaskDialog dialog(taskOf(brokerType, 1, 23));

    const QStringList calls = recorder::calls();
    const int applied = calls.indexOf(QStringLiteral("deliver(1244, 0, 0, \"\", null)"));
    QCOMPARE(applied >= 0, embeddedTable(brokerType).appliesOperation);
    QVERIFY(applied < calls.indexOf(QStringLiteral("table.clearVisibleItem()")));
    QCOMPARE(int(dialog.m_table->getOperationType()), embeddedTable(brokerType).appliesOperation ? 23 : -1);
}

void tst_ContractTaskDialog::stockTableAloneTakesTheTableFlag()
{
    for (const EmbeddedTable& row : contract::kEmbeddedTables) {
        recorder::clear();
        const TaskDialog dialog(taskOf(row.brokerType, 1), 1, true);
        const QStringList offers = recorder::callsOf({QStringLiteral("table.addComboBox")});
        QCOMPARE(offers.filter(QStringLiteral("\"自动盘口\"")).size(), row.brokerType == 2 ? 1 : 0);
    }
}

void tst_ContractTaskDialog::cellsAreDisabledAndSizedThenTheButtonIsMade()
{
    for (const bool isWide : {false, true}) {
        recorder::reset();
        if (isWide)
            recorder::state().modulesOn = {QStringLiteral("mdl_order/mdl_order_multi_market_price")};

        const TaskDialog dialog(taskOf(3, 1), 4);

        QStringList calls = recorder::calls(recorder::kActs | recorder::Service);
        calls = calls.mid(calls.indexOf(QStringLiteral("table.setAllItemEnable(false)")));
        QStringList expected = lines(R"(
            table.setAllItemEnable(false)
            modules.isOn("mdl_order", "mdl_order_multi_market_price")
            panel.setFixedWidth(WIDTH)
            panel.setFixedHeight(310)
            new CPushButton("tc_img_operation_showhide_btn", 0, 4, 25, 3, 17, dialog)
            button0.setIcon("tc_img_operation_expand_btn", 0, 0)
            button0.setFixedHeight(22)
        )");
        expected.replaceInStrings(QStringLiteral("WIDTH"), isWide ? QStringLiteral("240") : QStringLiteral("220"));
        QCOMPARE(calls, expected);
    }
}

void tst_ContractTaskDialog::buttonIsHiddenForPlainOrdersAlone_data()
{
    QTest::addColumn<int>("orderType");
    QTest::addColumn<bool>("hidden");
    for (const int type : {0, 6})
        QTest::addRow("order type %d", type) << type << true;
    for (const int type : {1, 2, 3, 5, 7, 11, 12})
        QTest::addRow("order type %d", type) << type << false;
}

void tst_ContractTaskDialog::buttonIsHiddenForPlainOrdersAlone()
{
    QFETCH(int, orderType);
    QFETCH(bool, hidden);

    const TaskDialog dialog(taskOf(2, orderType));

    QCOMPARE(recorder::calls().contains(QStringLiteral("button0.setVisible(false)")), hidden);
    QCOMPARE(dialog.m_expandButton->isHidden(), hidden);
}

void tst_ContractTaskDialog::layoutsAsTheyStand()
{
    const TaskDialog dialog(taskOf(2, 1));

    const auto* const root = qobject_cast<QBoxLayout*>(dialog.layout());
    QVERIFY(root);
    QCOMPARE(root->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(root->contentsMargins(), QMargins(15, 36, 15, 13));
    QCOMPARE(root->count(), 3);
    const auto* const column = qobject_cast<QBoxLayout*>(root->itemAt(0)->layout());
    QCOMPARE(column->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(column->itemAt(0)->widget(), static_cast<QWidget*>(dialog.m_table));
    QCOMPARE(column->stretch(0), 1);
    QCOMPARE(column->itemAt(1)->widget(), static_cast<QWidget*>(dialog.m_expandButton));
    QCOMPARE(column->stretch(1), 0);
    const auto* const line = qobject_cast<QFrame*>(root->itemAt(1)->widget());
    QCOMPARE(line->frameShape(), QFrame::VLine);
    QCOMPARE(line->frameShadow(), QFrame::Raised);
    QCOMPARE(root->stretch(1), 2);
    QCOMPARE(root->itemAt(2)->layout()->contentsMargins(), QMargins(5, 8, 5, 5));
    QVERIFY(dialog.testAttribute(Qt::WA_DeleteOnClose));
}

void tst_ContractTaskDialog::clickSwapsIconThenExpands()
{
    TaskDialog dialog(taskOf(2, 1), 4);
    for (const bool expanded : {true, false}) {
        recorder::clear();

        QVERIFY(dialog.handleEvent(5, 1234, 0, {}, nullptr));

        const QString icon =
            expanded ? QStringLiteral("tc_img_operation_contract_btn") : QStringLiteral("tc_img_operation_expand_btn");
        QStringList expected{QStringLiteral("button0.setIcon(\"%1\", 0, 0)").arg(icon)};
        expected << contract::expansion({0, expanded, 0, 0});
        // The first layout is what narrows the cells.
        const QRegularExpression allElse(QStringLiteral("^(?!table.setFixedWidth)"));
        QCOMPARE(recorder::calls(recorder::kActs).filter(allElse), expected);
    }
}

void tst_ContractTaskDialog::otherEventsReachTheDialogsBase()
{
    TaskDialog dialog(taskOf(2, 1), 4);
    for (const int event : {0, 4, 6, 73, 129, 1206}) {
        recorder::clear();

        QVERIFY(!dialog.handleEvent(event, 3, 7, QStringLiteral("text"), nullptr));

        QCOMPARE(recorder::calls(recorder::kEverything),
                 QStringList{QStringLiteral("CBaseDialog::handleEvent(%1, 3, 7, \"text\", null)").arg(event)});
    }
}

QTEST_MAIN(tst_ContractTaskDialog)
#include "tst_ContractTaskDialog.moc"
