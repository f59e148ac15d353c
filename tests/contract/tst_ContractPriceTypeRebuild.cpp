#include "contract/RecordedPanel.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using contract::lines;
using contract::RecordedPanel;
using contract::setupOf;
using support::TableSetup;

namespace {

const char kSloSell[] = "mdl_order/mdl_order_credit_opt_slosell_only_fixed_price";
const char kCompose[] = "mdl_order/mdl_order_compose_full_pricetype";

const char kAsksMarketPrices[] = R"(modules.isOn("mdl_order", "mdl_order_stock_multi_market_price"))";
const char kAsksCompose[] = R"(modules.isOn("mdl_order", "mdl_order_compose_full_pricetype"))";

QStringList moduleQuestions()
{
    return recorder::callsOf({QStringLiteral("modules.isOn")});
}

} // namespace

/// When the price-type cell is refilled, with what, and which modules are asked for it.
class tst_ContractPriceTypeRebuild : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void rebuildWithTheSpecifiedPriceAlone();
    void rebuildWithBookLevels_data();
    void rebuildWithBookLevels();
    void composeRebuildKeepsTheChoice();
    void composeRebuildWithItsModule_data();
    void composeRebuildWithItsModule();
    void composeRebuildOfOtherOrderTypesIsEmpty();
    void otherTablesAreNotRebuilt_data();
    void otherTablesAreNotRebuilt();
    void stockCodeRebuildsAndSendsNothing();
};

void tst_ContractPriceTypeRebuild::init()
{
    recorder::reset();
}

void tst_ContractPriceTypeRebuild::rebuildWithTheSpecifiedPriceAlone()
{
    for (const int id : {5, 7, 22, 36, 43}) {
        RecordedPanel panel(setupOf(id));
        panel.table.m_operationType = ttservice::EOperationType(21);
        recorder::state().modulesOn = {QLatin1String(kSloSell)};
        recorder::clear();

        panel.table.resetPriceType();

        QCOMPARE(recorder::calls(), lines(R"(table.resetComboData(0x1, ["指定价"], [11], 0))"));
    }
}

void tst_ContractPriceTypeRebuild::rebuildWithBookLevels_data()
{
    QTest::addColumn<int>("id");
    for (const int id : {36, 38, 39})
        QTest::addRow("table %d", id) << id;
}

void tst_ContractPriceTypeRebuild::rebuildWithBookLevels()
{
    QFETCH(int, id);
    RecordedPanel panel(setupOf(id, 3));

    panel.table.resetPriceType();

    QCOMPARE(
        recorder::calls(),
        lines(
            R"(table.resetComboData(0x1, ["挂单价", "对手价", "卖⑤价", "卖④价", "卖③价", "卖②价", "卖①价", "最新价", "买①价", "买②价", "买③价", "买④价", "买⑤价"], [13, 14, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10], 0))"));
    QCOMPARE(moduleQuestions(), QStringList{QLatin1String(kAsksMarketPrices)});
}

void tst_ContractPriceTypeRebuild::composeRebuildKeepsTheChoice()
{
    for (const int id : {7, 9, 22, 24}) {
        RecordedPanel panel(setupOf(id));
        panel.table.m_table->setComboData(0x1, 8);
        recorder::clear();

        panel.table.resetPriceType();

        QCOMPARE(recorder::calls(recorder::kActs | recorder::Ask), lines(R"(
            table.itemData(0x1)
            table.resetComboData(0x1, [], [], 0)
            table.setComboData(0x1, 8)
        )"));
        QCOMPARE(moduleQuestions(), QStringList{QLatin1String(kAsksCompose)});
    }
}

void tst_ContractPriceTypeRebuild::composeRebuildWithItsModule_data()
{
    const QString levels = QStringLiteral(R"("卖⑤价", "卖④价", "卖③价", "卖②价", "卖①价", "最新价", "买①价", )"
                                          R"("买②价", "买③价", "买④价", "买⑤价")");
    const QString values = QStringLiteral("0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10");
    const QString usual =
        QStringLiteral("[\"挂单价\", \"对手价\", ") + levels + QStringLiteral("], [13, 14, ") + values;
    const QString preClose =
        QStringLiteral("[\"挂单价\", \"对手价\", \"昨收价\", ") + levels + QStringLiteral("], [13, 14, 16, ") + values;
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<int>("traderType");
    QTest::addColumn<int>("orderType");
    QTest::addColumn<QString>("entries");
    QTest::newRow("table 9") << 9 << 2 << 4 << 0 << usual;
    QTest::newRow("table 7 of trader type 4") << 7 << 2 << 4 << 0 << preClose;
    QTest::newRow("table 7 of trader type 4, first algorithm") << 7 << 2 << 4 << 1 << preClose;
    QTest::newRow("table 7 of trader type 2") << 7 << 2 << 2 << 0 << usual;
    QTest::newRow("table 7 of broker type 3") << 7 << 3 << 4 << 0 << usual;
}

void tst_ContractPriceTypeRebuild::composeRebuildWithItsModule()
{
    QFETCH(int, id);
    QFETCH(int, brokerType);
    QFETCH(int, traderType);
    QFETCH(int, orderType);
    QFETCH(QString, entries);
    recorder::state().modulesOn = {QLatin1String(kCompose)};
    RecordedPanel panel(setupOf(id, brokerType, traderType));
    panel.table.m_orderType = ttservice::EOrderType(orderType);

    panel.table.resetPriceType();

    QCOMPARE(recorder::callsOf({QStringLiteral("table.resetComboData")}),
             QStringList{QStringLiteral("table.resetComboData(0x1, ") + entries + QStringLiteral("], 0)")});
    QCOMPARE(moduleQuestions(), QStringList({QLatin1String(kAsksCompose), QLatin1String(kAsksMarketPrices)}));
}

void tst_ContractPriceTypeRebuild::composeRebuildOfOtherOrderTypesIsEmpty()
{
    recorder::state().modulesOn = {QLatin1String(kCompose)};
    for (const int type : {-1, 2, 3, 4, 5}) {
        RecordedPanel panel(setupOf(7));
        panel.table.m_orderType = ttservice::EOrderType(type);

        panel.table.resetPriceType();

        QCOMPARE(recorder::callsOf({QStringLiteral("table.resetComboData")}),
                 lines("table.resetComboData(0x1, [], [], 0)"));
    }
}

void tst_ContractPriceTypeRebuild::otherTablesAreNotRebuilt_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("brokerType");
    for (const int id : {0, 5, 6, 8, 10, 21, 23, 25, 31, 35, 37, 40, 43, 52})
        QTest::addRow("table %d", id) << id << 2;
    for (const int broker : {7, 11}) {
        for (const int id : {7, 9, 22, 24})
            QTest::addRow("table %d of broker type %d", id, broker) << id << broker;
    }
}

void tst_ContractPriceTypeRebuild::otherTablesAreNotRebuilt()
{
    QFETCH(int, id);
    QFETCH(int, brokerType);
    RecordedPanel panel(setupOf(id, brokerType));

    panel.table.resetPriceType();

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractPriceTypeRebuild::stockCodeRebuildsAndSendsNothing()
{
    RecordedPanel panel(setupOf(9));

    panel.table.setStockCode(QStringLiteral("600000"));

    QCOMPARE(recorder::calls(), lines(R"(
        table.resetComboData(0x1, [], [], 0)
        table.setComboData(0x1, 13)
    )"));
}

QTEST_MAIN(tst_ContractPriceTypeRebuild)
#include "tst_ContractPriceTypeRebuild.moc"
