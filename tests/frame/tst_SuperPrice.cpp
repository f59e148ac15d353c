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

} // namespace

/// How the super price is limited, shown and corrected.
class tst_SuperPrice : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void superPriceRangesByFlags_data();
    void superPriceRangesByFlags();
    void superPriceIsBoundedWithTheDefaultFlags();
    void superPriceUnitIsNotSwitched();
    void superPriceCellsAreShownAgain();
    void superPriceStaysWithinTwiceTheFluctuation_data();
    void superPriceStaysWithinTwiceTheFluctuation();
    void superPriceOfAnotherUnitIsLeftAlone();
    void superPriceClampByFlags();
    void hidingOfSuperPriceAndStartCount();
};

void tst_SuperPrice::superPriceRangesByFlags_data()
{
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<QString>("money");
    for (const int brokerType : {1, 4, 5, 1001, 1002})
        QTest::addRow("broker type %d", brokerType) << brokerType << text("点");
    for (const int brokerType : {2, 3, 6, 8, 10, 99})
        QTest::addRow("broker type %d", brokerType) << brokerType << text("元");
}

void tst_SuperPrice::superPriceRangesByFlags()
{
    QFETCH(int, brokerType);
    QFETCH(QString, money);
    Panel panel({5, brokerType});
    const QString row = QStringLiteral("0x2 units 单笔超价: 0.5 in *% (double %1..100) %2 (double %3..1000000)");
    panel.table->resetSuperPrice();
    QCOMPARE(cellRow(panel.cells(), 2), row.arg(QStringLiteral("0"), money, QStringLiteral("0")));
    for (const int flags : {0x7103FFE, 0x7103FFF | 0x10000, 0, -1}) {
        panel.table->setFlag(TC::OperationCellFlags(flags));
        QCOMPARE(cellRow(panel.cells(), 2), row.arg(QStringLiteral("-100"), money, QStringLiteral("-1000000")));
    }
    panel.table->setFlag(TC::OperationCellFlags(0x7103FFF));
    QCOMPARE(cellRow(panel.cells(), 2), row.arg(QStringLiteral("0"), money, QStringLiteral("0")));
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_SuperPrice::superPriceIsBoundedWithTheDefaultFlags()
{
    Panel panel;
    panel.cells().setItemDouble(TC::OCF_SuperPrice, -7.0);
    QCOMPARE(panel.cells().itemDouble(TC::OCF_SuperPrice), -7.0);
    panel.table->setFlag(TC::OperationCellFlags(0x1));
    QCOMPARE(panel.cells().itemDouble(TC::OCF_SuperPrice), -7.0);
    panel.table->setFlag(TC::OperationCellFlags(TC::kDefaultCellFlags));
    QCOMPARE(panel.cells().itemDouble(TC::OCF_SuperPrice), 0.0);
}

void tst_SuperPrice::superPriceUnitIsNotSwitched()
{
    Panel panel;
    panel.cells().setItemUnit(TC::OCF_SuperPrice, text("元"));
    panel.cells().setItemDouble(TC::OCF_SuperPrice, 5000.0);
    panel.table->setFlag(TC::OperationCellFlags(0x3));
    QCOMPARE(panel.cells().itemUnit(TC::OCF_SuperPrice), text("元"));
    QCOMPARE(panel.cells().itemDouble(TC::OCF_SuperPrice), 5000.0);
}

void tst_SuperPrice::superPriceCellsAreShownAgain()
{
    for (const bool expanded : {false, true}) {
        for (const int type : {0, 1, 2, 5}) {
            Panel panel;
            panel.table->setExpandItemsHidden(!expanded);
            panel.table->m_orderType = orderType(type);
            panel.cells().setItemHidden(TC::OCF_SuperPrice, true);
            panel.cells().setItemHidden(TC::OCF_SuperPriceStartCount, expanded);
            panel.cells().setAllItemSet({});
            panel.table->resetSuperPriceShow();
            QVERIFY(!isHidden(panel.cells(), TC::OCF_SuperPrice));
            QCOMPARE(isHidden(panel.cells(), TC::OCF_SuperPriceStartCount), !expanded || type == 0);
            QCOMPARE(idText(allItems(panel.cells())), type == 0 ? text("0x2") : text("0x2 0x4"));
        }
    }
}

void tst_SuperPrice::superPriceStaysWithinTwiceTheFluctuation_data()
{
    QTest::addColumn<double>("superPrice");
    QTest::addColumn<double>("fluctuation");
    QTest::addColumn<double>("withDefaultFlags");
    QTest::addColumn<double>("withCustomFlags");
    QTest::newRow("too low") << -7.0 << 3.0 << 0.0 << -6.0;
    QTest::newRow("too high") << 7.0 << 3.0 << 6.0 << 6.0;
    QTest::newRow("twice the range") << 6.0 << 3.0 << 6.0 << 6.0;
    QTest::newRow("minus twice the range") << -6.0 << 3.0 << -6.0 << -6.0;
    QTest::newRow("within") << 5.99 << 3.0 << 5.99 << 5.99;
    QTest::newRow("zero") << 0.0 << 3.0 << 0.0 << 0.0;
    QTest::newRow("no fluctuation") << 4.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("no fluctuation, below") << -4.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("nothing at all") << 0.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("fraction") << 1.0 << 0.25 << 0.5 << 0.5;
}

void tst_SuperPrice::superPriceStaysWithinTwiceTheFluctuation()
{
    QFETCH(double, superPrice);
    QFETCH(double, fluctuation);
    QFETCH(double, withDefaultFlags);
    QFETCH(double, withCustomFlags);
    for (const bool custom : {false, true}) {
        // The cell of a fresh table takes negative prices; only setFlag() narrows it.
        Panel panel;
        if (custom)
            panel.table->setFlag(TC::OperationCellFlags(0x7103FFE));
        panel.cells().setItemDouble(TC::OCF_SuperPrice, superPrice);
        panel.cells().setItemDouble(TC::OCF_FluctuationCheck, fluctuation);
        panel.table->fixSuperPrice();
        QCOMPARE(panel.cells().itemDouble(TC::OCF_SuperPrice), custom ? withCustomFlags : withDefaultFlags);
        QCOMPARE(panel.host.take(), QStringList());
    }
}

void tst_SuperPrice::superPriceOfAnotherUnitIsLeftAlone()
{
    Panel panel;
    panel.cells().setItemDouble(TC::OCF_SuperPrice, -7.0);
    panel.cells().setItemUnit(TC::OCF_FluctuationCheck, text("元"));
    panel.table->fixSuperPrice();
    QCOMPARE(panel.cells().itemDouble(TC::OCF_SuperPrice), -7.0);
    panel.cells().setItemUnit(TC::OCF_SuperPrice, text("元"));
    panel.table->fixSuperPrice();
    QCOMPARE(panel.cells().itemDouble(TC::OCF_SuperPrice), 0.0);

    Panel hongKong({5, 7});
    const QStringList before = cellRows(hongKong.cells());
    hongKong.table->fixSuperPrice();
    hongKong.table->resetSuperPrice();
    QCOMPARE(cellRows(hongKong.cells()), before);
}

void tst_SuperPrice::superPriceClampByFlags()
{
    BaseTableProbe table;
    QCOMPARE(table.changeSuperPrice(-1.5), 0.0);
    QCOMPARE(table.changeSuperPrice(0.0), 0.0);
    QCOMPARE(table.changeSuperPrice(2.5), 2.5);
    for (const int flags : {0, 1, 0x7103FFE, -1}) {
        table.setFlag(TC::OperationCellFlags(flags));
        QCOMPARE(table.changeSuperPrice(-1.5), -1.5);
        QCOMPARE(table.changeSuperPrice(2.5), 2.5);
    }
}

void tst_SuperPrice::hidingOfSuperPriceAndStartCount()
{
    for (const bool expanded : {false, true}) {
        for (const int type : {-1, 0, 1, 2, 3, 4, 5, 13}) {
            BaseTableProbe table;
            table.setExpandItemsHidden(!expanded);
            table.m_orderType = orderType(type);
            QVERIFY(!table.bSuperPriceHide());
            QCOMPARE(table.bSuperPriceStartHide(), !expanded || type == 0);
        }
    }
}

QTEST_MAIN(tst_SuperPrice)
#include "tst_SuperPrice.moc"
