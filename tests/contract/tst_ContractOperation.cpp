#include "contract/RecordedPanel.h"
#include "contract/Sequences.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using contract::lines;
using contract::RecordedPanel;
using contract::setupOf;
using contract::superPriceShow;
using contract::tableByPriceType;
using support::TableSetup;

namespace {

const char kTick[] = R"(table.setItemTick(0x40, "股", 100.0))";
const char kSelectTarget[] = "table.setComboData(0x10, 10)";
const char kUndecided[] =
    R"(table.resetComboData(0x10, ["卖①+②+③+④+⑤量", "卖①+②+③+④量", "卖①+②+③量", "卖①+②量", "卖①量", "目标量", )"
    R"("买①量", "买①+②量", "买①+②+③量", "买①+②+③+④量", "买①+②+③+④+⑤量", "目标剩余量", "持仓数量"], )"
    R"([0, 1, 2, 3, 4, 10, 5, 6, 7, 8, 9, 11, 12], 0))";
const char kDecided[] =
    R"(table.resetComboData(0x10, ["买①量", "买①+②量", "买①+②+③量", "买①+②+③+④量", "买①+②+③+④+⑤量", "目标量", )"
    R"("目标剩余量", "持仓数量"], [5, 6, 7, 8, 9, 10, 11, 12], 0))";
const char kHongKong[] = R"(table.resetComboData(0x10, ["目标量", "目标剩余量"], [10, 11], 0))";

QString utf8(const char* text)
{
    return QString::fromUtf8(text);
}

QStringList rebuild(const char* entries)
{
    return {utf8(kTick), utf8(entries), utf8(kSelectTarget)};
}

} // namespace

/// What a new operation type calls, in order.
class tst_ContractOperation : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void volumeTypesFollowTheOperation_data();
    void volumeTypesFollowTheOperation();
    void operationSwitchCallsInOrder();
    void sameOperationRebuildsTheVolumeTypesAlone();
    void operationIsAnnouncedWithTheOrderType();
    void tailVolumeIsRoundedToLotsInShares_data();
    void tailVolumeIsRoundedToLotsInShares();
    void tailVolumeInPercentIsNotRounded();
};

void tst_ContractOperation::init()
{
    recorder::reset();
}

void tst_ContractOperation::volumeTypesFollowTheOperation_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<int>("operation");
    QTest::addColumn<QStringList>("calls");
    for (const int broker : {2, 3, 7, 10, 11})
        QTest::addRow("broker type %d, none chosen", broker) << 6 << broker << -1 << rebuild(kUndecided);
    for (const int broker : {2, 3, 10}) {
        for (const int operation : {-2, 0, 1, 21, 1021})
            QTest::addRow("broker type %d, operation %d", broker, operation)
                << 6 << broker << operation << rebuild(kDecided);
    }
    for (const int broker : {7, 11})
        QTest::addRow("broker type %d, an operation", broker) << 6 << broker << 1 << rebuild(kHongKong);
    for (const int id : {7, 22}) {
        QTest::addRow("table %d, none chosen", id) << id << 1 << -1 << rebuild(kUndecided);
        QTest::addRow("table %d, an operation", id) << id << 1 << 1 << rebuild(kDecided);
    }
    for (const int broker : {1, 4, 5, 6, 8, 1001, 1002, 99})
        QTest::addRow("broker type %d, elsewhere", broker) << 6 << broker << 1 << QStringList();
}

void tst_ContractOperation::volumeTypesFollowTheOperation()
{
    QFETCH(int, id);
    QFETCH(int, brokerType);
    QFETCH(int, operation);
    QFETCH(QStringList, calls);
    RecordedPanel panel(setupOf(id, brokerType));
    panel.table.m_operationType = ttservice::EOperationType(operation); // the same: nothing but the volume types

    panel.table.setOperationType(ttservice::EOperationType(operation));

    QCOMPARE(recorder::calls(), calls);
}

void tst_ContractOperation::operationSwitchCallsInOrder()
{
    RecordedPanel panel(setupOf(9));
    panel.table.m_priceType = ttservice::EPriceType(-1);
    recorder::state().clientMode = 100;

    panel.table.setOperationType(ttservice::EOperationType(1));

    QCOMPARE(recorder::calls(),
             rebuild(kDecided) + lines(R"(
        table.resetComboData(0x1, [], [], 0)
        table.setComboData(0x1, 13)
    )") + superPriceShow({})
                 + tableByPriceType({}) + lines(R"(deliver(1244, 0, 0, "", null))"));
}

void tst_ContractOperation::sameOperationRebuildsTheVolumeTypesAlone()
{
    RecordedPanel panel(setupOf(9));
    panel.table.setOperationType(ttservice::EOperationType(1));
    recorder::clear();

    panel.table.setOperationType(ttservice::EOperationType(1));

    QCOMPARE(recorder::calls(), rebuild(kDecided));
}

void tst_ContractOperation::operationIsAnnouncedWithTheOrderType()
{
    RecordedPanel panel(setupOf(6, 6));
    panel.table.m_orderType = ttservice::EOrderType(3);
    panel.table.m_operationType = ttservice::EOperationType(1);
    panel.table.m_priceType = ttservice::EPriceType(45);
    recorder::state().clientMode = 101;

    panel.table.setOperationType(ttservice::EOperationType(1));

    QCOMPARE(recorder::calls(), lines(R"(
        deliver(1062, 6, 1, "clr_global_text", null)
        deliver(1244, 3, 0, "", null)
    )"));
}

void tst_ContractOperation::tailVolumeIsRoundedToLotsInShares_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("rounded");
    QTest::newRow("250") << 250 << 200;
    QTest::newRow("-250") << -250 << -200;
    QTest::newRow("1999") << 1999 << 1900;
    QTest::newRow("99") << 99 << 0;
    QTest::newRow("2147483647") << 2147483647 << 2147483600;
}

void tst_ContractOperation::tailVolumeIsRoundedToLotsInShares()
{
    QFETCH(int, value);
    QFETCH(int, rounded);
    RecordedPanel panel;
    panel.table.m_operationType = ttservice::EOperationType(1);
    panel.table.m_table->setItemUnit(0x40, QStringLiteral("股"));
    panel.table.m_table->setItemInt(0x40, value);
    recorder::clear();

    panel.table.setOperationType(ttservice::EOperationType(1));

    QCOMPARE(recorder::calls().mid(0, 2),
             QStringList({utf8(kTick), QStringLiteral("table.setItemInt(0x40, %1)").arg(rounded)}));
}

void tst_ContractOperation::tailVolumeInPercentIsNotRounded()
{
    RecordedPanel panel;
    panel.table.m_table->setItemInt(0x40, 99);
    recorder::clear();

    panel.table.setOperationType(ttservice::EOperationType(1));

    QCOMPARE(recorder::callsOf({QStringLiteral("table.setItemInt"), QStringLiteral("table.setItemDouble")}),
             QStringList());
}

QTEST_MAIN(tst_ContractOperation)
#include "tst_ContractOperation.moc"
