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

struct InertOperation
{
    const char* name;
    void (*run)(GlobalTable&);
};

const ttservice::EOrderType kTypesAroundTheAlgorithms[] = {ttservice::EOrderType(3), ttservice::EOrderType(4),
                                                           ttservice::EOrderType(104), ttservice::EOrderType(105)};

void askAlgorithms(GlobalTable& table)
{
    for (const ttservice::EOrderType type : kTypesAroundTheAlgorithms)
        table.getSingleNvAlgoUiParam(type);
}

void setAlgorithms(GlobalTable& table)
{
    for (const ttservice::EOrderType type : kTypesAroundTheAlgorithms)
        table.setSingleNvAlgoParam(type, QStringLiteral("p"));
}

void takeRecord(GlobalTable& table)
{
    ttservice::COrderSetting setting;
    table.setParam(setting);
}

// clang-format off
constexpr InertOperation kInertOperations[] = {
    {"setStockCode",              [](GlobalTable& t) { t.setStockCode(QStringLiteral("600000")); }},
    {"getStockCode",              [](GlobalTable& t) { t.getStockCode(); }},
    {"clear",                     [](GlobalTable& t) { t.clear(); }},
    {"setParam with a text",      [](GlobalTable& t) { t.setParam(QStringLiteral("a^b^c=d^e=f=g^h")); }},
    {"setParam with a record",    takeRecord},
    {"param",                     [](GlobalTable& t) { t.param(); }},
    {"save",                      [](GlobalTable& t) { t.save(); }},
    {"saveParam",                 [](GlobalTable& t) { t.saveParam(); }},
    {"reloadParam",               [](GlobalTable& t) { t.reloadParam(); }},
    {"getOrderSettingParam",      [](GlobalTable& t) { t.getOrderSettingParam(); }},
    {"getSingleNvAlgoUiParam",    askAlgorithms},
    {"setSingleNvAlgoParam",      setAlgorithms},
    {"getUiParamByTrdTradeParam", [](GlobalTable& t) { t.getUiParamByTrdTradeParam(ttservice::EOrderType(4), QStringLiteral("p")); }},
    {"resetStrategyType",         [](GlobalTable& t) { t.resetStrategyType(ttservice::EOrderType(4), QStringLiteral("s")); }},
    {"setNvAlgoHideAmountUsed",   [](GlobalTable& t) { t.setNvAlgoHideAmountUsed(true, 4); }},
};
// clang-format on

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
    void codeOfACodeTableRebuildsThePriceTypes();
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
    QTest::addColumn<int>("row");
    for (int i = 0; i < int(std::size(kInertOperations)); ++i)
        QTest::newRow(kInertOperations[i].name) << i;
}

void tst_ContractTables::globalTableOperationsThatCallNothing()
{
    QFETCH(int, row);
    GlobalTable table;

    kInertOperations[row].run(table);

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

void tst_ContractTables::codeOfACodeTableRebuildsThePriceTypes()
{
    CodeTable table(9, true, true);
    recorder::clear();

    table.setStockCode(QStringLiteral("600000"));

    QCOMPARE(recorder::calls(), lines("table.resetComboData(0x1, [], [], 0)\n table.setComboData(0x1, 13)"));
    QCOMPARE(table.getStockCode(), QStringLiteral("600000"));
}

QTEST_MAIN(tst_ContractTables)
#include "tst_ContractTables.moc"
