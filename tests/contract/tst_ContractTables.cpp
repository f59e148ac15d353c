#include "contract/RecordedPanel.h"
#include "contract/Sequences.h"

#include <OrderParamTable_mini/tables/CCodeOrderParamTable.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <OrderParamTable_mini/tables/CStopLossOrderParamTable.h>

#include <QtTest>

using contract::lines;

namespace {

/// A global table with its records within reach.
class GlobalTable : public TC::CGlobalOrderParamTable
{
public:
    GlobalTable()
        : TC::CGlobalOrderParamTable(TC::EOpParamWidgetID(31), ttservice::ENVBrokerType(2), true, nullptr, true,
                                     ttservice::ENvTraderType(1), false)
    {
        recorder::clear();
    }

    using TC::CGlobalOrderParamTable::reloadParam;
};

/// A code table with the base's members within reach.
class CodeTable : public TC::CCodeOrderParamTable
{
public:
    CodeTable(int id, bool a, bool b)
        : TC::CCodeOrderParamTable(TC::EOpParamWidgetID(id), ttservice::ENVBrokerType(2), nullptr, a,
                                   ttservice::ENvTraderType(1), b)
    {
    }
};

} // namespace

/// What the derived tables ask of the platform besides what their base asks.
class tst_ContractTables : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void globalTableOperationsThatCallNothing_data();
    void globalTableOperationsThatCallNothing();
    void codeTablePassesItsFlagsInAnotherOrder_data();
    void codeTablePassesItsFlagsInAnotherOrder();
    void codeTableNeverOffersTheAutomaticBook();
    void codeTableOperationsThatCallNothing();
    void codeTableSavesItsVisibleCellsWhileCollapsed();
    void stopLossTableIsBuiltExpanded();
    void stopLossTextsCallNothing();
};

void tst_ContractTables::init()
{
    recorder::reset();
}

void tst_ContractTables::globalTableOperationsThatCallNothing_data()
{
    using Operation = void (*)(GlobalTable&);
    QTest::addColumn<void*>("operation");
    const auto row = [](const char* name, Operation operation) {
        QTest::newRow(name) << reinterpret_cast<void*>(operation);
    };
    row("setStockCode", [](GlobalTable& table) { table.setStockCode(QStringLiteral("600000")); });
    row("getStockCode", [](GlobalTable& table) { table.getStockCode(); });
    row("clear", [](GlobalTable& table) { table.clear(); });
    row("setParam(text)", [](GlobalTable& table) { table.setParam(QStringLiteral("a^b^c=d^e=f=g^h")); });
    row("setParam(record)", [](GlobalTable& table) {
        ttservice::COrderSetting setting;
        table.setParam(setting);
    });
    row("param", [](GlobalTable& table) { table.param(); });
    row("save", [](GlobalTable& table) { table.save(); });
    row("saveParam", [](GlobalTable& table) { table.saveParam(); });
    row("reloadParam", [](GlobalTable& table) { table.reloadParam(); });
    row("getOrderSettingParam", [](GlobalTable& table) { table.getOrderSettingParam(); });
    row("getSingleNvAlgoUiParam", [](GlobalTable& table) {
        for (const int type : {3, 4, 104, 105})
            table.getSingleNvAlgoUiParam(ttservice::EOrderType(type));
    });
    row("setSingleNvAlgoParam", [](GlobalTable& table) {
        for (const int type : {3, 4, 104, 105})
            table.setSingleNvAlgoParam(ttservice::EOrderType(type), QStringLiteral("p"));
    });
    row("getUiParamByTrdTradeParam",
        [](GlobalTable& table) { table.getUiParamByTrdTradeParam(ttservice::EOrderType(4), QStringLiteral("p")); });
    row("resetStrategyType",
        [](GlobalTable& table) { table.resetStrategyType(ttservice::EOrderType(4), QStringLiteral("s")); });
    row("setNvAlgoHideAmountUsed", [](GlobalTable& table) { table.setNvAlgoHideAmountUsed(true, 4); });
}

void tst_ContractTables::globalTableOperationsThatCallNothing()
{
    QFETCH(void*, operation);
    GlobalTable table;

    reinterpret_cast<void (*)(GlobalTable&)>(operation)(table);

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractTables::codeTablePassesItsFlagsInAnotherOrder_data()
{
    QTest::addColumn<bool>("a");
    QTest::addColumn<bool>("b");
    for (const bool a : {false, true}) {
        for (const bool b : {false, true})
            QTest::addRow("%d, %d", int(a), int(b)) << a << b;
    }
}

void tst_ContractTables::codeTablePassesItsFlagsInAnotherOrder()
{
    QFETCH(bool, a);
    QFETCH(bool, b);

    const CodeTable table(5, a, b);

    const QStringList calls = recorder::calls();
    QVERIFY(calls.contains(QStringLiteral("new CMultiParamsTable(panel, %1)").arg(recorder::written(a))));
    QCOMPARE(calls.contains(QStringLiteral("table.setFontScale(false)")), !a);
    QVERIFY(calls.contains(QStringLiteral("strip.setFixedHeight(%1)").arg(b ? 28 : 0)));
    QCOMPARE(calls.filter(QStringLiteral("new CPushButton")).size(), b ? 1 : 0);
}

void tst_ContractTables::codeTableNeverOffersTheAutomaticBook()
{
    const CodeTable table(5, true, true);

    QVERIFY(recorder::callsOf({QStringLiteral("table.addComboBox")}).first().contains(QStringLiteral("\"对手价\"")));
    QVERIFY(recorder::calls().filter(QStringLiteral("自动盘口")).isEmpty());
}

void tst_ContractTables::codeTableOperationsThatCallNothing()
{
    CodeTable table(5, true, true);
    ttservice::COrderSetting setting;
    recorder::clear();

    table.setOrderParam(QStringLiteral("600000"), setting);
    table.setSell(true);
    table.setParam(QStringLiteral("text"));
    table.param();
    table.save();
    table.getDefaultParam();
    table.clear();

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractTables::codeTableSavesItsVisibleCellsWhileCollapsed()
{
    CodeTable table(5, true, true);
    recorder::clear();
    table.saveParamFlag();
    QCOMPARE(recorder::calls(recorder::kEverything), lines("table.getVisibleItemIdSet()"));

    table.setExpandItemsHidden(false);
    recorder::clear();
    table.saveParamFlag();
    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractTables::stopLossTableIsBuiltExpanded()
{
    const TC::CStopLossOrderParamTable table(TC::EOpParamWidgetID(5), ttservice::ENVBrokerType(2), nullptr);

    const QStringList calls = recorder::calls().filter(QRegularExpression(QStringLiteral("^(?!table.setFixedWidth)")));
    const QStringList expected = contract::expansion({0, true, 0, 0});
    QCOMPARE(calls.mid(calls.size() - expected.size()), expected);
    QVERIFY(calls.contains(QStringLiteral("new CMultiParamsTable(panel, true)")));
    QVERIFY(calls.contains(QStringLiteral("strip.setFixedHeight(28)")));
    // Trader type 1 on table 5 may be offered the previous close.
    QVERIFY(recorder::callsOf({QStringLiteral("table.addComboBox")}).first().contains(QStringLiteral("昨收价")));
}

void tst_ContractTables::stopLossTextsCallNothing()
{
    TC::CStopLossOrderParamTable table(TC::EOpParamWidgetID(5), ttservice::ENVBrokerType(2), nullptr);
    recorder::clear();

    table.setStopLoss(QStringLiteral("1"), QStringLiteral("2"));
    table.setParam(QStringLiteral("text"));
    table.param();
    table.save();

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

QTEST_MAIN(tst_ContractTables)
#include "tst_ContractTables.moc"
