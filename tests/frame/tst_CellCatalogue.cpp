#include "frame/CellListings.h"
#include "support/BaseTableProbe.h"
#include "support/CellText.h"
#include "support/ModuleGuard.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CWidgetList.h>

#include <QtTest>

using namespace support;

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

bool hasCell(const BaseTableProbe& table, int id)
{
    return table.m_table->getItem(id) != nullptr;
}

QString entries(const TableSetup& setup, int id)
{
    BaseTableProbe table(setup);
    return comboEntries(*table.getMultiParamsTable(), id);
}

/// Identities whose price-type list names the specified price, and those that name the model price.
const QSet<int> kSpecifiedPriceTables = {-5, -4, -3, -2, -1, 0, 1, 2, 3, 4, 5, 6, 11, 12, 13, 16, 31, 32, 33, 34};
const QSet<int> kModelPriceTables = {15, 17, 22, 30, 40};

} // namespace

/// Which cells a table is built with, in which order, with which entries, units, ranges and initial values.
class tst_CellCatalogue : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyCellOfABrokerType_data();
    void everyCellOfABrokerType();
    void fixedPriceEntryFollowsTheIdentity_data();
    void fixedPriceEntryFollowsTheIdentity();
    void automaticOrderBookIsOfferedWhereAllowed();
    void futureTablesHaveNoPriceTypeCellAndNoPriceType_data();
    void futureTablesHaveNoPriceTypeCellAndNoPriceType();
    void priceTypeStartsAsTheFirstEntry();
    void optionTableOfIdentity43OffersNoMarketOrders();
    void hongKongTablesHaveNoSuperPriceAndNoBaseVolume_data();
    void hongKongTablesHaveNoSuperPriceAndNoBaseVolume();
    void baseVolumeOfFuturesLacksTheTargetOnIdentity14_data();
    void baseVolumeOfFuturesLacksTheTargetOnIdentity14();
    void fluctuationRangeStartsAt5OnIdentity7Alone();
    void limitPriceIsOwnedByFourIdentitiesAndHidden();
    void unfinishedOrdersAtThePreviousClose();
    void randomVolumeRangeFollowsModuleAndIdentity();
    void remarkCellFollowsTheModule();
    void stripIsFlatWithoutModeButtonsAndKeepsButton603();
    void modeButtonsWithTheStrip();
};

void tst_CellCatalogue::everyCellOfABrokerType_data()
{
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<QStringList>("rows");
    for (const CellListing& listing : kCellListings)
        QTest::addRow("broker type %d", listing.brokerType)
            << listing.brokerType << text(listing.rows).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void tst_CellCatalogue::everyCellOfABrokerType()
{
    QFETCH(int, brokerType);
    QFETCH(QStringList, rows);
    const ModuleGuard on({modules::kCommandRemark, modules::kRandomVolume});
    TableSetup setup;
    setup.brokerType = brokerType;
    setup.traderType = 1;
    setup.autoBook = true;
    BaseTableProbe table(setup);

    const QStringList actual = cellRows(*table.getMultiParamsTable());

    for (int i = 0; i < qMin(actual.size(), rows.size()); ++i)
        QCOMPARE(actual.at(i), rows.at(i));
    QCOMPARE(actual.size(), rows.size());
}

void tst_CellCatalogue::fixedPriceEntryFollowsTheIdentity_data()
{
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<QString>("specified");
    for (const int brokerType : {2, 3, 4, 6, 7, 8, 10, 11, 99, 1001, 1002})
        QTest::addRow("broker type %d", brokerType)
            << brokerType << (brokerType == 6 ? text("限价=11") : text("指定价=11"));
}

void tst_CellCatalogue::fixedPriceEntryFollowsTheIdentity()
{
    QFETCH(int, brokerType);
    QFETCH(QString, specified);
    for (int id = -5; id <= 60; ++id) {
        TableSetup setup;
        setup.id = id;
        setup.brokerType = brokerType;
        const QString expected = kSpecifiedPriceTables.contains(id) ? specified
            : kModelPriceTables.contains(id)                        ? text("模型价=11")
                                                                    : QString();

        const QStringList offered = entries(setup, TC::OCF_PriceType).remove(QLatin1Char('*')).split(QLatin1Char(' '));

        const QStringList fixed = offered.filter(QStringLiteral("=11"));
        QVERIFY2(fixed.join(QLatin1Char(' ')) == expected,
                 qPrintable(QStringLiteral("identity %1 offers %2").arg(id).arg(fixed.join(QLatin1Char(' ')))));
    }
}

void tst_CellCatalogue::automaticOrderBookIsOfferedWhereAllowed()
{
    TableSetup setup;
    QVERIFY(!entries(setup, TC::OCF_PriceType).contains(text("自动盘口")));
    setup.autoBook = true;
    QVERIFY(entries(setup, TC::OCF_PriceType).contains(text("自动盘口=15")));
    setup.brokerType = 1001;
    QVERIFY(!entries(setup, TC::OCF_PriceType).contains(text("自动盘口")));
}

void tst_CellCatalogue::futureTablesHaveNoPriceTypeCellAndNoPriceType_data()
{
    QTest::addColumn<int>("brokerType");
    QTest::newRow("broker type 1") << 1;
    QTest::newRow("broker type 5") << 5;
}

void tst_CellCatalogue::futureTablesHaveNoPriceTypeCellAndNoPriceType()
{
    QFETCH(int, brokerType);
    for (int id = 0; id <= 60; ++id) {
        TableSetup setup;
        setup.id = id;
        setup.brokerType = brokerType;
        BaseTableProbe table(setup);
        QVERIFY(!hasCell(table, TC::OCF_PriceType));
        QCOMPARE(int(table.priceType()), -1);
    }
}

void tst_CellCatalogue::priceTypeStartsAsTheFirstEntry()
{
    const QMap<int, int> first = {{2, 11}, {3, 11}, {4, 11}, {6, 5}, {7, 5}, {8, 11}, {10, 5}, {1001, 5}, {99, 11}};
    for (auto row = first.begin(); row != first.end(); ++row) {
        TableSetup setup;
        setup.brokerType = row.key();
        BaseTableProbe table(setup);
        QCOMPARE(int(table.priceType()), row.value());
    }
    TableSetup withoutFixedPrice;
    withoutFixedPrice.id = 36;
    BaseTableProbe table(withoutFixedPrice);
    QCOMPARE(int(table.priceType()), 13);
}

void tst_CellCatalogue::optionTableOfIdentity43OffersNoMarketOrders()
{
    TableSetup setup;
    setup.id = 43;
    setup.brokerType = 6;
    QCOMPARE(entries(setup, TC::OCF_PriceType), text("*最新价=5 对手价=14 限价即全成否则撤=26 卖①价=4 买①价=6"));
    QCOMPARE(entries(setup, TC::OCF_UnfinishedOrderHandling),
             text("*不处理=-1 按限价即全成否则撤委托=26 按卖①价委托=4 按最新价委托=5 按买①价委托=6 按对手价委托=14"));
}

void tst_CellCatalogue::hongKongTablesHaveNoSuperPriceAndNoBaseVolume_data()
{
    QTest::addColumn<int>("brokerType");
    QTest::newRow("broker type 7") << 7;
    QTest::newRow("broker type 11") << 11;
}

void tst_CellCatalogue::hongKongTablesHaveNoSuperPriceAndNoBaseVolume()
{
    QFETCH(int, brokerType);
    for (int id = 0; id <= 60; ++id) {
        TableSetup setup;
        setup.id = id;
        setup.brokerType = brokerType;
        BaseTableProbe table(setup);
        QVERIFY(!hasCell(table, TC::OCF_SuperPrice));
        QVERIFY(!hasCell(table, TC::OCF_SuperPriceStartCount));
        QVERIFY(!hasCell(table, TC::OCF_BaseVolume));
        QVERIFY(cellRow(*table.getMultiParamsTable(), TC::OCF_FluctuationCheck).contains(text("港币")));
    }
}

void tst_CellCatalogue::baseVolumeOfFuturesLacksTheTargetOnIdentity14_data()
{
    QTest::addColumn<int>("brokerType");
    for (const int brokerType : {1, 4, 5})
        QTest::addRow("broker type %d", brokerType) << brokerType;
}

void tst_CellCatalogue::baseVolumeOfFuturesLacksTheTargetOnIdentity14()
{
    QFETCH(int, brokerType);
    for (int id = 0; id <= 60; ++id) {
        TableSetup setup;
        setup.id = id;
        setup.brokerType = brokerType;
        QCOMPARE(entries(setup, TC::OCF_BaseVolume),
                 id == 14 ? text("*卖①量=4 买①量=5 持仓数量=12")
                          : text("*卖①量=4 买①量=5 目标量=10 目标剩余量=11 持仓数量=12"));
    }
}

void tst_CellCatalogue::fluctuationRangeStartsAt5OnIdentity7Alone()
{
    for (int id = -5; id <= 60; ++id) {
        TableSetup setup;
        setup.id = id;
        BaseTableProbe table(setup);
        QCOMPARE(table.getMultiParamsTable()->itemDouble(TC::OCF_FluctuationCheck), id == 7 ? 5.0 : 3.0);
    }
}

void tst_CellCatalogue::limitPriceIsOwnedByFourIdentitiesAndHidden()
{
    const QSet<int> owners = {5, 11, 12, 13};
    for (const int brokerType : {1, 2, 6, 7}) {
        for (int id = -5; id <= 60; ++id) {
            TableSetup setup;
            setup.id = id;
            setup.brokerType = brokerType;
            BaseTableProbe table(setup);
            QCOMPARE(hasCell(table, TC::OCF_LimitPrice), owners.contains(id));
            QVERIFY(!shownCells(*table.getMultiParamsTable()).contains(TC::OCF_LimitPrice));
        }
    }
}

void tst_CellCatalogue::unfinishedOrdersAtThePreviousClose()
{
    const QSet<int> identities = {5, 7, 15, 22, 36};
    for (const int brokerType : {2, 3, 8}) {
        for (const int traderType : {1, 2, 4, 4096}) {
            for (int id = 0; id <= 60; ++id) {
                TableSetup setup;
                setup.id = id;
                setup.brokerType = brokerType;
                setup.traderType = traderType;
                const bool expected =
                    brokerType == 2 && (traderType == 1 || traderType == 4) && identities.contains(id);
                QCOMPARE(entries(setup, TC::OCF_UnfinishedOrderHandling).endsWith(text(" 按昨收价委托=16")), expected);
            }
        }
    }
}

void tst_CellCatalogue::randomVolumeRangeFollowsModuleAndIdentity()
{
    TableSetup setup;
    setup.traderType = 1;
    QVERIFY(!hasCell(BaseTableProbe(setup), TC::OCF_SingleVolumeRange));
    const ModuleGuard on({modules::kRandomVolume});
    const QSet<int> identities = {5, 15, 31, 33, 36};
    for (setup.id = 0; setup.id <= 60; ++setup.id)
        QCOMPARE(hasCell(BaseTableProbe(setup), TC::OCF_SingleVolumeRange), identities.contains(setup.id));
    setup.id = 5;
    setup.brokerType = 3;
    QVERIFY(!hasCell(BaseTableProbe(setup), TC::OCF_SingleVolumeRange));
    setup.brokerType = 2;
    setup.traderType = 4;
    QVERIFY(!hasCell(BaseTableProbe(setup), TC::OCF_SingleVolumeRange));
}

void tst_CellCatalogue::remarkCellFollowsTheModule()
{
    QVERIFY(!hasCell(BaseTableProbe(), TC::OCF_InvestRemark));
    const ModuleGuard on({modules::kCommandRemark});
    QVERIFY(hasCell(BaseTableProbe(), TC::OCF_InvestRemark));
    TableSetup setup;
    setup.id = 49;
    QVERIFY(hasCell(BaseTableProbe(setup), TC::OCF_InvestRemark));
}

void tst_CellCatalogue::stripIsFlatWithoutModeButtonsAndKeepsButton603()
{
    TableSetup setup;
    setup.modeButtons = false;
    {
        BaseTableProbe table(setup);
        QCOMPARE(table.m_btnList->height(), 0);
        QCOMPARE(table.m_btnGroup->getButtonList(), QList<int>());
    }
    const ModuleGuard on({modules::kAlgorithm3});
    BaseTableProbe table(setup);
    QCOMPARE(table.m_btnList->height(), 0);
    QCOMPARE(table.m_btnGroup->getButtonList(), QList<int>({603}));
    QCOMPARE(table.getBtnNameByID(603), QString());
}

void tst_CellCatalogue::modeButtonsWithTheStrip()
{
    {
        BaseTableProbe table;
        QCOMPARE(table.m_btnGroup->getButtonList(), QList<int>({600}));
        QCOMPARE(table.getBtnNameByID(600), text("普通交易"));
        QCOMPARE(table.getSelectedButton(), 600);
    }
    const ModuleGuard on({modules::kAlgorithm3});
    BaseTableProbe table;
    QCOMPARE(table.m_btnGroup->getButtonList(), QList<int>({600, 603}));
    QCOMPARE(table.getSelectedButton(), 600);
}

QTEST_MAIN(tst_CellCatalogue)
#include "tst_CellCatalogue.moc"
