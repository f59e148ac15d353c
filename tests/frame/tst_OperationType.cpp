#include "support/CellText.h"
#include "support/ModuleGuard.h"
#include "support/Panel.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using namespace support;

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QString volumeTypes(BaseTableProbe& table)
{
    return comboEntries(*table.m_table, TC::OCF_BaseVolume);
}

QString priceTypes(BaseTableProbe& table)
{
    return comboEntries(*table.m_table, TC::OCF_PriceType);
}

void setOperation(BaseTableProbe& table, int operation)
{
    table.setOperationType(ttservice::EOperationType(operation));
}

const char kThirteen[] = "卖①+②+③+④+⑤量=0 卖①+②+③+④量=1 卖①+②+③量=2 卖①+②量=3 卖①量=4 *目标量=10 买①量=5 "
                         "买①+②量=6 买①+②+③量=7 买①+②+③+④量=8 买①+②+③+④+⑤量=9 目标剩余量=11 持仓数量=12";
const char kEight[] = "买①量=5 买①+②量=6 买①+②+③量=7 买①+②+③+④量=8 买①+②+③+④+⑤量=9 *目标量=10 目标剩余量=11 "
                      "持仓数量=12";

} // namespace

/// What another operation changes: volume types, the lot of the tail volume, price types, and what the host hears.
class tst_OperationType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void volumeTypesAreRebuilt_data();
    void volumeTypesAreRebuilt();
    void volumeTypesAreLeftAlone_data();
    void volumeTypesAreLeftAlone();
    void everyOperationButNoneOffersTheBidSide();
    void choiceFallsBackToTheTargetVolumeEachTime();
    void sameOperationRebuildsNoPriceTypes();
    void tailVolumeIsRoundedToLots_data();
    void tailVolumeIsRoundedToLots();
    void tailVolumeInPercentStays();
    void tailVolumeStepIsTheLot();
    void priceTypesFollowAnotherOperation();
    void securitiesLendingSellOffersTheSpecifiedPriceAlone();
    void displayIsColouredWhetherOrNotTheOperationChanged();
    void algorithmButtonsAreAnnouncedInTwoClientModes();
    void eventsStandInOrder();
};

void tst_OperationType::volumeTypesAreRebuilt_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<QString>("none");
    QTest::addColumn<QString>("any");
    for (const int brokerType : {2, 3})
        QTest::addRow("broker type %d", brokerType) << 5 << brokerType << text(kThirteen) << text(kEight);
    for (const int id : {7, 22}) {
        for (const int brokerType : {1, 8, 99, 1001})
            QTest::addRow("identity %d, broker type %d", id, brokerType)
                << id << brokerType << text(kThirteen) << text(kEight);
    }
    for (const int brokerType : {6, 7, 10, 11})
        QTest::addRow("no cell for broker type %d", brokerType) << 7 << brokerType << text("none") << text("none");
}

void tst_OperationType::volumeTypesAreRebuilt()
{
    QFETCH(int, id);
    QFETCH(int, brokerType);
    QFETCH(QString, none);
    QFETCH(QString, any);
    BaseTableProbe table({id, brokerType});
    setOperation(table, -1);
    QCOMPARE(volumeTypes(table), none);
    setOperation(table, 0);
    QCOMPARE(volumeTypes(table), any);
    setOperation(table, -1);
    QCOMPARE(volumeTypes(table), none);
}

void tst_OperationType::volumeTypesAreLeftAlone_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("brokerType");
    for (const int brokerType : {1, 4, 5, 6, 8, 99, 1001, 1002})
        QTest::addRow("identity 5, broker type %d", brokerType) << 5 << brokerType;
}

void tst_OperationType::volumeTypesAreLeftAlone()
{
    QFETCH(int, id);
    QFETCH(int, brokerType);
    BaseTableProbe table({id, brokerType});
    table.m_table->setItemUnit(TC::OCF_TailMinVolume, QStringLiteral("股"));
    table.m_table->setItemInt(TC::OCF_TailMinVolume, 1999);
    const QString volumes = volumeTypes(table);
    const QString tail = cellRow(*table.m_table, TC::OCF_TailMinVolume);
    setOperation(table, 0);
    QCOMPARE(int(table.getOperationType()), 0);
    QCOMPARE(volumeTypes(table), volumes);
    QCOMPARE(cellRow(*table.m_table, TC::OCF_TailMinVolume), tail);
}

void tst_OperationType::everyOperationButNoneOffersTheBidSide()
{
    BaseTableProbe table;
    for (const int operation : {-1000, -2, 0, 1, 2, 20, 21, 22, 40, 1021, 1089, 100000}) {
        setOperation(table, operation);
        QCOMPARE(volumeTypes(table), text(kEight));
        QCOMPARE(int(table.getOperationType()), operation);
    }
}

void tst_OperationType::choiceFallsBackToTheTargetVolumeEachTime()
{
    BaseTableProbe table;
    for (int round = 0; round < 3; ++round) {
        table.m_table->setComboData(TC::OCF_BaseVolume, 7);
        setOperation(table, 1);
        QCOMPARE(int(table.singleVolType()), 10);
    }
}

void tst_OperationType::sameOperationRebuildsNoPriceTypes()
{
    BaseTableProbe table({36});
    setOperation(table, 1);
    table.m_table->setComboData(TC::OCF_PriceType, 9);
    table.m_table->setComboData(TC::OCF_BaseVolume, 12);
    setOperation(table, 1);
    QCOMPARE(table.m_table->itemData(TC::OCF_PriceType), QVariant(9));
    QCOMPARE(table.m_table->itemData(TC::OCF_BaseVolume), QVariant(10));
    QCOMPARE(int(table.priceType()), 13);
    setOperation(table, 2);
    QCOMPARE(table.m_table->itemData(TC::OCF_PriceType), QVariant(13));
}

void tst_OperationType::tailVolumeIsRoundedToLots_data()
{
    QTest::addColumn<int>("volume");
    QTest::addColumn<int>("lots");
    for (const auto& row : {std::pair(100, 100), std::pair(199, 100), std::pair(200, 200), std::pair(250, 200),
                            std::pair(1999, 1900), std::pair(1000000, 1000000), std::pair(999999, 999900)})
        QTest::addRow("%d", row.first) << row.first << row.second;
}

void tst_OperationType::tailVolumeIsRoundedToLots()
{
    QFETCH(int, volume);
    QFETCH(int, lots);
    for (const int brokerType : {2, 3, 7, 10, 11}) {
        BaseTableProbe table({5, brokerType});
        table.m_table->setItemUnit(TC::OCF_TailMinVolume, QStringLiteral("股"));
        table.m_table->setItemInt(TC::OCF_TailMinVolume, volume);
        setOperation(table, 1);
        QCOMPARE(table.m_table->itemInt(TC::OCF_TailMinVolume), lots);
        QCOMPARE(table.m_table->itemUnit(TC::OCF_TailMinVolume), QStringLiteral("股"));
    }
}

void tst_OperationType::tailVolumeInPercentStays()
{
    BaseTableProbe percent;
    percent.m_table->setItemInt(TC::OCF_TailMinVolume, 55);
    setOperation(percent, 1);
    QCOMPARE(percent.m_table->itemInt(TC::OCF_TailMinVolume), 55);

    BaseTableProbe lots({7, 1});
    lots.m_table->setItemUnit(TC::OCF_TailMinVolume, QStringLiteral("手"));
    lots.m_table->setItemInt(TC::OCF_TailMinVolume, 1999);
    setOperation(lots, 1);
    QCOMPARE(lots.m_table->itemInt(TC::OCF_TailMinVolume), 1999);
}

void tst_OperationType::tailVolumeStepIsTheLot()
{
    BaseTableProbe table;
    setOperation(table, 1);
    QCOMPARE(cellRow(*table.m_table, TC::OCF_TailMinVolume),
             text("0x40 units 尾单最小量: 100 in *% (int 1..100) 股 (int 100..1000000 step 100)"));
}

void tst_OperationType::priceTypesFollowAnotherOperation()
{
    BaseTableProbe table({36});
    table.m_table->setComboData(TC::OCF_PriceType, 9);
    table.updateCurrentPriceTypeName();
    QCOMPARE(int(table.priceType()), 9);
    setOperation(table, 1);
    QCOMPARE(int(table.priceType()), 13);
    QCOMPARE(table.getCurrentPriceTypeName(), text("挂单价"));
}

void tst_OperationType::securitiesLendingSellOffersTheSpecifiedPriceAlone()
{
    const ModuleGuard on({modules::kSloSellFixedPrice});
    BaseTableProbe table({36, 3});
    setOperation(table, 21);
    QCOMPARE(priceTypes(table), text("*指定价=11"));
    QCOMPARE(int(table.priceType()), 11);
    setOperation(table, 1);
    QVERIFY(priceTypes(table).startsWith(text("*挂单价=13 对手价=14 卖⑤价=0 ")));
    QCOMPARE(int(table.priceType()), 13);
}

void tst_OperationType::displayIsColouredWhetherOrNotTheOperationChanged()
{
    Panel panel;
    offerPriceType(*panel.table, 45);
    panel.table->updateCurrentPriceTypeName();
    const QString coloured = eventLine(1062, 5, 1, QStringLiteral("clr_global_text"));
    setOperation(*panel.table, 1);
    QCOMPARE(panel.host.take(), QStringList({coloured}));
    panel.table->m_originalPrice = 3.0;
    setOperation(*panel.table, 1);
    QCOMPARE(panel.host.take(), QStringList({coloured}));
    QCOMPARE(panel.table->m_originalPrice, TC::kNoPrice);
}

void tst_OperationType::algorithmButtonsAreAnnouncedInTwoClientModes()
{
    Panel panel;
    panel.table->m_orderType = ttservice::EOrderType(2);
    for (const int mode : {0, 99, 100, 101, 102}) {
        const ClientModeGuard client(mode);
        setOperation(*panel.table, 1);
        QCOMPARE(panel.host.take(), mode == 100 || mode == 101 ? QStringList({eventLine(1244, 2, 0)}) : QStringList());
    }
}

void tst_OperationType::eventsStandInOrder()
{
    const ClientModeGuard client(101);
    Panel panel;
    offerPriceType(*panel.table, 49);
    setOperation(*panel.table, 3);
    QCOMPARE(panel.host.take(),
             QStringList({eventLine(1063, 5, 1, QStringLiteral("clr_disabled_widget_text")), eventLine(1244, 0, 0)}));
}

QTEST_MAIN(tst_OperationType)
#include "tst_OperationType.moc"
