#include "support/CellText.h"
#include "support/Panel.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using namespace support;

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

ttservice::EOrderType orderType(int type)
{
    return ttservice::EOrderType(type);
}

void setPriceTypeAlone(BaseTableProbe& table, int type)
{
    table.m_priceType = ttservice::EPriceType(type);
}

void addTriggerPrice(BaseTableProbe& table)
{
    WQ::CParamCellUnitInfo unit;
    unit.text = QStringLiteral("元");
    unit.type = 6;
    unit.min = 0.0;
    unit.max = 1000.0;
    table.m_table->addCheckParamUnitCell(TC::OCF_TriggerPrice, QStringLiteral("触价"), QStringLiteral("启用"), true,
                                         {unit}, 12.5, -1.0);
}

const QSet<int> kMarketTypes = {12, 18, 19, 20, 21, 22, 23, 24, 42, 43, 44, 45, 46, 47, 48};

} // namespace

/// The fixed, quoted and calculated price, the limit price and the trigger price.
class tst_PriceAdjustmentCells : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fixedPriceSwitchesToTheSpecifiedPrice();
    void fixedPriceInOrderType5ChangesNothing();
    void fixedPriceIsStoredWhereTheSpecifiedPriceIsNotOffered();
    void originalPriceIsTakenForTheSpecifiedPriceAlone();
    void quotedPriceNeverOverwritesATypedOne();
    void displayByPriceType_data();
    void displayByPriceType();
    void forgottenPriceCountsAsZeroOnceThePriceIsTyped();
    void noPriceIsMappedToZero();
    void priceForCalculation_data();
    void priceForCalculation();
    void limitPriceForCalculation();
    void priceForTheOrderIsNeverSet();
    void cellAreaFitsItsCellsAgain();
    void triggerPriceIsHiddenAndLimitPriceShown();
    void tableByPriceTypeIgnoresOtherOrderTypes();
    void triggerPriceIsCleared();
};

void tst_PriceAdjustmentCells::fixedPriceSwitchesToTheSpecifiedPrice()
{
    for (const int type : {0, 1, 2, 3}) {
        Panel panel;
        panel.table->setOrderType(orderType(type));
        panel.table->setPriceType(ttservice::PRTP_LATEST);
        panel.table->setFixedPrice(12.345);
        QCOMPARE(panel.host.take(),
                 QStringList({eventLine(1061, 5, 11), QStringLiteral("save"), eventLine(129, 5, 0)}));
        QCOMPARE(panel.cells().itemData(TC::OCF_PriceType), QVariant(11));
        QCOMPARE(int(panel.table->priceType()), 11);
        QCOMPARE(panel.table->getCurrentPriceTypeName(), text("指定价"));
        QCOMPARE(panel.table->m_originalPrice, 12.345);
        QCOMPARE(panel.table->getModifiedPriceByOptTypeForCalc(ttservice::EOperationType(1), false), 12.345);
        QCOMPARE(filterBlacklist(panel.cells()).contains(TC::OCF_TriggerPrice), type < 2);
    }
}

void tst_PriceAdjustmentCells::fixedPriceInOrderType5ChangesNothing()
{
    Panel panel;
    panel.table->setOriginalPrice(1.5);
    panel.table->setPriceType(ttservice::PRTP_LATEST);
    panel.table->setOrderType(orderType(5));
    const QStringList before = cellRows(panel.cells());
    panel.host.take();
    panel.table->setFixedPrice(12.345);
    QCOMPARE(panel.host.take(), QStringList());
    QCOMPARE(panel.table->m_originalPrice, 1.5);
    QCOMPARE(int(panel.table->priceType()), 5);
    QCOMPARE(cellRows(panel.cells()), before);
}

void tst_PriceAdjustmentCells::fixedPriceIsStoredWhereTheSpecifiedPriceIsNotOffered()
{
    Panel panel({36});
    panel.table->setFixedPrice(7.0);
    QCOMPARE(panel.host.take(), QStringList({eventLine(1061, 36, 11), QStringLiteral("save"), eventLine(129, 36, 0)}));
    QCOMPARE(int(panel.table->priceType()), 13);
    QCOMPARE(panel.table->m_originalPrice, 7.0);
}

void tst_PriceAdjustmentCells::originalPriceIsTakenForTheSpecifiedPriceAlone()
{
    Panel panel;
    panel.table->setOriginalPrice(9.9);
    QCOMPARE(panel.table->m_originalPrice, 9.9);
    for (const int type : {-1, 0, 5, 10, 12, 13, 49}) {
        setPriceTypeAlone(*panel.table, type);
        panel.table->setOriginalPrice(1.0);
        QCOMPARE(panel.table->m_originalPrice, 9.9);
    }
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_PriceAdjustmentCells::quotedPriceNeverOverwritesATypedOne()
{
    Panel panel;
    panel.table->setOriginalPrice(9.9);
    panel.table->setPriceImpl(3.25, QStringLiteral("quoted"));
    QCOMPARE(panel.host.take(), QStringList());
    QCOMPARE(panel.table->m_originalPrice, 9.9);

    panel.table->setPriceType(ttservice::PRTP_LATEST);
    panel.table->setPriceImpl(3.25, QStringLiteral("quoted"));
    QCOMPARE(panel.host.take(), QStringList({eventLine(1062, 5, 0, QStringLiteral("quoted"), QStringLiteral("3.25"))}));
    QCOMPARE(panel.table->m_originalPrice, 3.25);
    QCOMPARE(panel.host.lastData, static_cast<void*>(&panel.table->m_originalPrice));
}

void tst_PriceAdjustmentCells::displayByPriceType_data()
{
    QTest::addColumn<int>("type");
    for (int type = -2; type <= 60; ++type)
        QTest::addRow("price type %d", type) << type;
}

void tst_PriceAdjustmentCells::displayByPriceType()
{
    QFETCH(int, type);
    Panel panel;
    panel.table->m_originalPrice = 4.5;
    setPriceTypeAlone(*panel.table, type);
    panel.table->resetShowFixPrice();
    QStringList expected;
    if (kMarketTypes.contains(type))
        expected << eventLine(1062, 5, 1, QStringLiteral("clr_global_text"));
    if (type == 49)
        expected << eventLine(1063, 5, 1, QStringLiteral("clr_disabled_widget_text"));
    QCOMPARE(panel.host.take(), expected);
    QCOMPARE(panel.table->m_originalPrice, expected.isEmpty() ? 4.5 : TC::kNoPrice);
}

void tst_PriceAdjustmentCells::forgottenPriceCountsAsZeroOnceThePriceIsTyped()
{
    Panel panel;
    panel.table->setOriginalPrice(4.5);
    setPriceTypeAlone(*panel.table, 14);
    panel.table->resetShowFixPrice();
    setPriceTypeAlone(*panel.table, 11);
    QCOMPARE(panel.table->getModifiedPriceByOptTypeForCalc(ttservice::EOperationType(1), true), 4.5);
    setPriceTypeAlone(*panel.table, 45);
    panel.table->resetShowFixPrice();
    QCOMPARE(panel.table->m_originalPrice, TC::kNoPrice);
    setPriceTypeAlone(*panel.table, 11);
    QCOMPARE(panel.table->getModifiedPriceByOptTypeForCalc(ttservice::EOperationType(1), true), 0.0);
    QCOMPARE(panel.table->getModifiedPriceByOptTypeForCalc(ttservice::EOperationType(1), false), TC::kNoPrice);
}

void tst_PriceAdjustmentCells::noPriceIsMappedToZero()
{
    BaseTableProbe table;
    QCOMPARE(table.fixPriceInRange(1.7976931348623157e308), 0.0);
    for (const double price : {0.0, -1.0, 12.5, 1.7976931348623155e308, -1.7976931348623157e308})
        QCOMPARE(table.fixPriceInRange(price), price);
}

void tst_PriceAdjustmentCells::priceForCalculation_data()
{
    QTest::addColumn<int>("priceType");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("operation");
    QTest::addColumn<bool>("original");
    for (const int type : {0, 1, 2, 5}) {
        for (const int operation : {-1, 0, 21}) {
            QTest::addRow("specified price, order type %d, operation %d", type, operation)
                << 11 << type << operation << true;
            for (const int priceType : {-1, 5, 12, 45})
                QTest::addRow("price type %d, order type %d, operation %d", priceType, type, operation)
                    << priceType << type << operation << (type == 1 && operation != -1);
        }
    }
}

void tst_PriceAdjustmentCells::priceForCalculation()
{
    QFETCH(int, priceType);
    QFETCH(int, type);
    QFETCH(int, operation);
    QFETCH(bool, original);
    const auto op = ttservice::EOperationType(operation);
    BaseTableProbe table;
    setPriceTypeAlone(table, priceType);
    table.m_orderType = orderType(type);
    table.m_originalPrice = 8.75;
    QCOMPARE(table.getModifiedPriceByOptTypeForCalc(op, false), original ? 8.75 : TC::kNoPrice);
    QCOMPARE(table.getModifiedPriceByOptTypeForCalc(op, true), original ? 8.75 : TC::kNoPrice);
    table.m_originalPrice = TC::kNoPrice;
    QCOMPARE(table.getModifiedPriceByOptTypeForCalc(op, false), TC::kNoPrice);
    QCOMPARE(table.getModifiedPriceByOptTypeForCalc(op, true), original ? 0.0 : TC::kNoPrice);
}

void tst_PriceAdjustmentCells::limitPriceForCalculation()
{
    for (const int type : {0, 1, 2, 5}) {
        BaseTableProbe table;
        setPriceTypeAlone(table, 49);
        table.m_orderType = orderType(type);
        table.m_originalPrice = 8.75;
        table.m_table->setItemDouble(TC::OCF_LimitPrice, 33.5);
        QCOMPARE(table.getModifiedPriceByOptTypeForCalc(ttservice::EOperationType(-1), true), 33.5);
        BaseTableProbe without({31});
        setPriceTypeAlone(without, 49);
        QCOMPARE(without.getModifiedPriceByOptTypeForCalc(ttservice::EOperationType(1), true), 0.0);
    }
}

void tst_PriceAdjustmentCells::priceForTheOrderIsNeverSet()
{
    Panel panel;
    panel.table->setOriginalPrice(1.0);
    for (const int priceType : {-1, 5, 11, 12, 45, 49}) {
        setPriceTypeAlone(*panel.table, priceType);
        for (const int operation : {-1, 0, 21})
            QCOMPARE(panel.table->getModifiedPriceByOptTypeForOrder(ttservice::EOperationType(operation)),
                     1.7976931348623157e308);
    }
}

void tst_PriceAdjustmentCells::cellAreaFitsItsCellsAgain()
{
    Panel panel;
    panel.cells().setItemHidden(TC::OCF_SuperPrice, true);
    panel.cells().setItemHidden(TC::OCF_ValidTime, true);
    panel.cells().setFixedHeight(1);
    panel.table->modPriceCell();
    QVERIFY(!isHidden(panel.cells(), TC::OCF_SuperPrice));
    QVERIFY(isHidden(panel.cells(), TC::OCF_SuperPriceStartCount));
    QVERIFY(panel.cells().height() > 1);
    panel.table->modPriceCell();
    QCOMPARE(panel.cells().height(), panel.cells().realHeight());
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_PriceAdjustmentCells::triggerPriceIsHiddenAndLimitPriceShown()
{
    for (const int type : {0, 1}) {
        Panel panel;
        addTriggerPrice(*panel.table);
        panel.table->m_orderType = orderType(type);
        panel.cells().setItemFilterBlacklist(TC::OCF_LimitPrice, true);
        panel.cells().setVisibleItemSet({TC::OCF_PriceType, TC::OCF_LimitPrice});
        panel.table->resetTableByPriceType();
        QVERIFY(isHidden(panel.cells(), TC::OCF_TriggerPrice));
        QVERIFY(!isHidden(panel.cells(), TC::OCF_LimitPrice));
        QCOMPARE(idText(filterBlacklist(panel.cells())), text("0x100000"));
        QCOMPARE(idText(panel.cells().getVisibleItemIdSet()), text("0x1"));
        QVERIFY(isHidden(panel.cells(), TC::OCF_SuperPriceStartCount));
    }
}

void tst_PriceAdjustmentCells::tableByPriceTypeIgnoresOtherOrderTypes()
{
    for (const int type : {-1, 2, 3, 4, 5, 12, 13}) {
        Panel panel;
        addTriggerPrice(*panel.table);
        panel.table->m_orderType = orderType(type);
        panel.cells().setItemHidden(TC::OCF_SuperPrice, true);
        const QStringList before = cellRows(panel.cells());
        panel.table->resetTableByPriceType();
        QCOMPARE(cellRows(panel.cells()), before);
        QCOMPARE(filterBlacklist(panel.cells()), QSet<int>());
    }
}

void tst_PriceAdjustmentCells::triggerPriceIsCleared()
{
    Panel panel;
    addTriggerPrice(*panel.table);
    QCOMPARE(cellRow(panel.cells(), TC::OCF_TriggerPrice),
             text("0x100000 check 触价: [x] 启用 12.5 in *元 (double 0..1000)"));
    panel.table->resetTriggerPriceSetting();
    QCOMPARE(cellRow(panel.cells(), TC::OCF_TriggerPrice),
             text("0x100000 check 触价: [ ] 启用 0 in *元 (double 0..1000)"));
    QCOMPARE(panel.host.take(), QStringList({QStringLiteral("save")}));
    Panel without;
    without.table->resetTriggerPriceSetting();
    QCOMPARE(without.host.take(), QStringList({QStringLiteral("save")}));
}

QTEST_MAIN(tst_PriceAdjustmentCells)
#include "tst_PriceAdjustmentCells.moc"
