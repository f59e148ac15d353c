#include "contract/RecordedDialog.h"
#include "contract/RecordedPanel.h"

#include <QBoxLayout>
#include <QtTest>

using contract::BasketDialog;
using contract::embeddedTable;
using contract::EmbeddedTable;
using contract::flagCalls;
using contract::lines;
using contract::recordedFlagCalls;
using contract::taskOf;

/// What the basket dialog, its table factory and the swap of its views call.
class tst_ContractBasketDialog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void dialogOpensEmpty();
    void clickWithoutContentCallsNothing();
    void otherEventsReachTheDialogsBase();
    void flagsFollowBrokerAndOrder_data();
    void flagsFollowBrokerAndOrder();
    void embeddedTableIsBuiltAndSizedLikeATasks_data();
    void embeddedTableIsBuiltAndSizedLikeATasks();
    void traderTypesAreFixed_data();
    void traderTypesAreFixed();
    void unknownBrokerTypesGetNoTable();
    void orderTypeMappingCallsNothing();
    void swapTitlesTheShownView();
};

void tst_ContractBasketDialog::init()
{
    recorder::reset();
}

void tst_ContractBasketDialog::dialogOpensEmpty()
{
    const BasketDialog dialog({taskOf(2, 1), taskOf(1, 0)});

    QCOMPARE(recorder::calls(recorder::kEverything), lines("new CFloatWidget(true, null)"));
    QVERIFY(dialog.children().isEmpty());
}

void tst_ContractBasketDialog::clickWithoutContentCallsNothing()
{
    BasketDialog dialog;
    recorder::clear();

    QVERIFY(dialog.handleEvent(5, 1, 0, {}, nullptr));

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractBasketDialog::otherEventsReachTheDialogsBase()
{
    BasketDialog dialog;
    recorder::clear();

    QVERIFY(!dialog.handleEvent(73, 3, 7, QStringLiteral("text"), nullptr));

    QCOMPARE(recorder::calls(recorder::kEverything), lines(R"(CBaseDialog::handleEvent(73, 3, 7, "text", null))"));
}

void tst_ContractBasketDialog::flagsFollowBrokerAndOrder_data()
{
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<int>("orderType");
    QTest::addColumn<int>("flags");
    for (const EmbeddedTable& row : contract::kEmbeddedTables) {
        const auto add = [&row](int orderType, int flags) {
            QTest::addRow("broker type %d, order type %d", row.brokerType, orderType)
                << row.brokerType << orderType << flags;
        };
        add(0, 0x7100003);
        add(1, row.basketAlgorithmFlags);
        add(2, row.randomFlags);
        for (const int unmapped : {3, 5, 6, 7})
            add(unmapped, 0);
    }
}

void tst_ContractBasketDialog::flagsFollowBrokerAndOrder()
{
    QFETCH(int, brokerType);
    QFETCH(int, orderType);
    QFETCH(int, flags);
    contract::switchCellModulesOn();
    BasketDialog dialog;

    dialog.creatTable(taskOf(brokerType, orderType), {}, {});

    QCOMPARE(recordedFlagCalls(), flags == 0 ? QStringList() : flagCalls(brokerType, flags));
}

void tst_ContractBasketDialog::embeddedTableIsBuiltAndSizedLikeATasks_data()
{
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<bool>("isWide");
    for (const EmbeddedTable& row : contract::kEmbeddedTables) {
        QTest::addRow("broker type %d", row.brokerType) << row.brokerType << false;
        QTest::addRow("broker type %d, wide", row.brokerType) << row.brokerType << true;
    }
}

void tst_ContractBasketDialog::embeddedTableIsBuiltAndSizedLikeATasks()
{
    QFETCH(int, brokerType);
    QFETCH(bool, isWide);
    if (isWide)
        recorder::state().modulesOn = {QStringLiteral("mdl_order/mdl_order_multi_market_price")};
    recorder::state().clientMode = 101;
    BasketDialog dialog;
    recorder::clear();

    const TC::CGlobalOrderParamTable* const table = dialog.creatTable(taskOf(brokerType, 1), {}, {});

    QCOMPARE(table->getId(), TC::EOpParamWidgetID(embeddedTable(brokerType).identity));
    QCOMPARE(table->parentWidget(), static_cast<QWidget*>(&dialog));
    const QStringList calls = recorder::calls(recorder::kActs | recorder::Service);
    QVERIFY(calls.contains(QStringLiteral("new CMultiParamsTable(panel, false)")));
    QVERIFY(calls.contains(QStringLiteral("strip.setFixedHeight(28)")));
    QCOMPARE(calls.filter(QStringLiteral("deliver(1244, ")).size(), embeddedTable(brokerType).appliesOperation ? 1 : 0);
    QStringList last = lines(R"(
        table.setAllItemEnable(false)
        modules.isOn("mdl_order", "mdl_order_multi_market_price")
        panel.setFixedWidth(WIDTH)
        panel.setFixedHeight(310)
    )");
    last.replaceInStrings(QStringLiteral("WIDTH"), isWide ? QStringLiteral("240") : QStringLiteral("220"));
    QCOMPARE(calls.mid(calls.size() - last.size()), last);
}

void tst_ContractBasketDialog::traderTypesAreFixed_data()
{
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<bool>("preClose");
    // On table 31 trader type 4 offers the previous close to stock and credit accounts, trader type 1 to stock alone.
    QTest::newRow("credit is of trader type 4") << 3 << true;
    QTest::newRow("stock is of trader type 4") << 2 << true;
}

void tst_ContractBasketDialog::traderTypesAreFixed()
{
    QFETCH(int, brokerType);
    QFETCH(bool, preClose);
    BasketDialog dialog;

    dialog.creatTable(taskOf(brokerType, 1), {}, {});

    QCOMPARE(recorder::callsOf({QStringLiteral("table.addComboBox")}).first().contains(QStringLiteral("昨收价")),
             preClose);
    QVERIFY(recorder::calls().filter(QStringLiteral("自动盘口")).isEmpty());
}

void tst_ContractBasketDialog::unknownBrokerTypesGetNoTable()
{
    BasketDialog dialog;
    recorder::clear();
    for (const int broker : {-1, 0, 8, 9, 12, 1000, 1003}) {
        QVERIFY(!dialog.creatTable(taskOf(broker, 1), {}, {}));
        QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
    }
}

void tst_ContractBasketDialog::orderTypeMappingCallsNothing()
{
    BasketDialog dialog;
    recorder::clear();
    ttservice::CCodeOrderParam task = taskOf(2, 6);

    dialog.changeOrderType(task);

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractBasketDialog::swapTitlesTheShownView()
{
    BasketDialog dialog;
    auto* const root = new QHBoxLayout;
    auto* const column = new QVBoxLayout;
    root->addLayout(column);
    dialog.m_rootLayout = root;
    dialog.m_columnLayout = column;
    dialog.m_firstView = new QWidget(&dialog);
    dialog.m_secondView = new QWidget(&dialog);
    dialog.m_swapButton = new QWidget(&dialog);
    dialog.m_firstTitle = QStringLiteral("first");
    dialog.m_secondTitle = QStringLiteral("second");
    for (const bool second : {false, true, false, true}) {
        recorder::clear();

        QVERIFY(dialog.handleEvent(5, 1, 0, {}, nullptr));

        QCOMPARE(recorder::calls(),
                 QStringList{second ? QStringLiteral("dialog.setTitle(\"second\")")
                                    : QStringLiteral("dialog.setTitle(\"first\")")});
        QCOMPARE(column->count(), 2);
        QCOMPARE(column->itemAt(0)->widget(), second ? dialog.m_secondView : dialog.m_firstView);
        QCOMPARE(column->itemAt(1)->widget(), dialog.m_swapButton);
        QCOMPARE(column->stretch(0), 0);
        QCOMPARE(column->stretch(1), 0);
        QCOMPARE(dialog.layout(), static_cast<QLayout*>(root));
    }
}

QTEST_MAIN(tst_ContractBasketDialog)
#include "tst_ContractBasketDialog.moc"
