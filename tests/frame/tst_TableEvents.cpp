#include "support/CellText.h"
#include "support/Panel.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using namespace support;

namespace {

const QString kClick = QStringLiteral("clicked");
const QString kSave = QStringLiteral("save");

} // namespace

/// What the table does on the events of its cells, which events it sends then, with which arguments and in which order.
class tst_TableEvents : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cellChangeIsStoredSavedAndAnnounced();
    void priceTypeChangeInAParameterSetMode();
    void baseVolumeChangeShowsTheTailVolume();
    void cellChangeWithoutDataChangesNoPriceType();
    void cellChangeBeforeTheEndOfConstructionIsIgnored();
    void minimumAndMaximumKeepTheirOrder_data();
    void minimumAndMaximumKeepTheirOrder();
    void limitedCellFollowsTheLimitingOne();
    void numbersAreLeftAloneInAParameterSetMode();
    void superPriceIsCorrectedOnNumbers();
    void periodAndLineAreSavedWithoutText();
    void doubleClickIsAnnounced();
    void filterIsStoredAndSaved();
    void filterResetEmptiesTheWord();
    void priceTypeFromOutside();
    void eventsThatChangeNothing();
};

void tst_TableEvents::cellChangeIsStoredSavedAndAnnounced()
{
    Panel panel;
    QVERIFY(!panel.table->sendCellChanged(TC::OCF_PriceType, QStringLiteral("对手价"), 14));
    QCOMPARE(panel.host.take(), QStringList({kSave, eventLine(129, 5, 0, QStringLiteral("对手价"))}));
    QCOMPARE(int(panel.table->priceType()), 14);
    QCOMPARE(panel.table->getCurrentPriceTypeName(), QStringLiteral("对手价"));
    QCOMPARE(int(panel.table->m_paramPriceType), 12);

    QVERIFY(!panel.table->sendCellChanged(TC::OCF_InitialQuote, QStringLiteral("卖①价"), 4));
    QCOMPARE(panel.host.take(), QStringList({kSave, eventLine(129, 5, 0, QStringLiteral("卖①价"))}));
    QCOMPARE(int(panel.table->priceType()), 14);
}

void tst_TableEvents::priceTypeChangeInAParameterSetMode()
{
    Panel panel;
    panel.table->sendEvent(5, 605);
    panel.host.take();
    QVERIFY(!panel.table->sendCellChanged(TC::OCF_PriceType, QStringLiteral("最新价"), 5));
    QCOMPARE(panel.host.take(), QStringList({kSave, eventLine(129, 5, 0, QStringLiteral("最新价"))}));
    QCOMPARE(int(panel.table->priceType()), 5);
    QCOMPARE(int(panel.table->m_paramPriceType), 5);
    panel.table->sendEvent(5, 606);
    QVERIFY(panel.host.take().contains(eventLine(1061, 5, 5)));
}

void tst_TableEvents::baseVolumeChangeShowsTheTailVolume()
{
    Panel panel;
    for (int volume = 0; volume <= 13; ++volume) {
        panel.table->m_table->setItemHidden(TC::OCF_TailMinVolume, volume == 11);
        panel.table->sendCellChanged(TC::OCF_BaseVolume, QString(), volume);
        QCOMPARE(isHidden(*panel.table->m_table, TC::OCF_TailMinVolume), volume != 11);
        QCOMPARE(panel.table->m_table->height(), panel.table->m_table->realHeight());
    }
}

void tst_TableEvents::cellChangeWithoutDataChangesNoPriceType()
{
    Panel panel;
    QVERIFY(!panel.table->sendEvent(73, TC::OCF_PriceType, QStringLiteral("x")));
    QCOMPARE(int(panel.table->priceType()), 11);
    for (const bool hidden : {false, true}) {
        panel.table->m_table->setItemHidden(TC::OCF_TailMinVolume, hidden);
        QVERIFY(!panel.table->sendEvent(73, TC::OCF_BaseVolume, QStringLiteral("x")));
        QCOMPARE(isHidden(*panel.table->m_table, TC::OCF_TailMinVolume), hidden);
    }
    QVERIFY(panel.table->sendEvent(1213, 0, QStringLiteral("x")));
    QCOMPARE(int(panel.table->priceType()), 11);
}

void tst_TableEvents::cellChangeBeforeTheEndOfConstructionIsIgnored()
{
    Panel panel;
    panel.table->m_ready = false;
    QVERIFY(!panel.table->sendCellChanged(TC::OCF_PriceType, QStringLiteral("对手价"), 14));
    QCOMPARE(int(panel.table->priceType()), 11);
    QCOMPARE(panel.table->m_priceTypeName, QString());
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_TableEvents::minimumAndMaximumKeepTheirOrder_data()
{
    QTest::addColumn<int>("event");
    QTest::newRow("number committed") << 87;
    QTest::newRow("unit switched") << 118;
}

void tst_TableEvents::minimumAndMaximumKeepTheirOrder()
{
    QFETCH(int, event);
    Panel panel;
    WQ::CMultiParamsTable& cells = *panel.table->m_table;
    cells.setItemInt(TC::OCF_MinSingleVolume, 20000);
    QVERIFY(!panel.table->sendEvent(event, TC::OCF_MinSingleVolume, QStringLiteral("20000")));
    QCOMPARE(panel.host.take(), QStringList({kSave, eventLine(129, 5, 0, QStringLiteral("20000"))}));
    QCOMPARE(cells.cellRange(TC::OCF_MaxSingleVolume), qMakePair(20000.0, 1000000.0));
    QCOMPARE(cells.itemInt(TC::OCF_MaxSingleVolume), 20000);

    cells.setItemInt(TC::OCF_MaxSingleVolume, 30000);
    QVERIFY(!panel.table->sendEvent(event, TC::OCF_MaxSingleVolume));
    QCOMPARE(cells.cellRange(TC::OCF_MinSingleVolume), qMakePair(100.0, 30000.0));
    QCOMPARE(cells.itemInt(TC::OCF_MinSingleVolume), 20000);

    cells.setItemInt(TC::OCF_MinSingleVolume, 500);
    panel.table->sendEvent(event, TC::OCF_MinSingleVolume);
    cells.setItemInt(TC::OCF_MaxSingleVolume, 300);
    QCOMPARE(cells.itemInt(TC::OCF_MaxSingleVolume), 500);
}

void tst_TableEvents::limitedCellFollowsTheLimitingOne()
{
    Panel panel;
    WQ::CMultiParamsTable& cells = *panel.table->m_table;
    cells.addParamCell(0x4000, QStringLiteral("limiting"), 6, 0, 100, 0.1, QStringLiteral("%"), 7.5, 4);
    panel.table->sendEvent(87, 0x4000);
    cells.addParamCell(0x8000, QStringLiteral("limited"), 6, 0, 1000, 0.1, QStringLiteral("%"), 50, 4);
    panel.table->sendEvent(87, 0x4000);
    QCOMPARE(cells.cellRange(0x8000), qMakePair(0.5, 7.5));
    QCOMPARE(cells.itemDouble(0x8000), 7.5);
}

void tst_TableEvents::numbersAreLeftAloneInAParameterSetMode()
{
    Panel panel;
    panel.table->m_paramIndex = 0;
    const QStringList before = cellRows(*panel.table->m_table);
    for (const int event : {87, 118}) {
        for (const int cell : {0x2, 0x8, 0x200, 0x400})
            QVERIFY(!panel.table->sendEvent(event, cell));
    }
    QCOMPARE(panel.host.take(), QStringList());
    QCOMPARE(cellRows(*panel.table->m_table), before);

    panel.table->m_paramIndex = -1;
    panel.table->m_ready = false;
    panel.table->m_table->setItemInt(TC::OCF_MinSingleVolume, 20000);
    panel.table->sendEvent(87, TC::OCF_MinSingleVolume);
    QCOMPARE(panel.host.take(), QStringList());
    QCOMPARE(panel.table->m_table->itemInt(TC::OCF_MaxSingleVolume), 20000);
}

void tst_TableEvents::superPriceIsCorrectedOnNumbers()
{
    for (const int event : {87, 118}) {
        Panel panel;
        panel.table->m_table->setItemDouble(TC::OCF_SuperPrice, 50);
        panel.table->sendEvent(event, TC::OCF_SuperPrice);
        QCOMPARE(panel.table->m_table->itemDouble(TC::OCF_SuperPrice), 6.0);
    }
}

void tst_TableEvents::periodAndLineAreSavedWithoutText()
{
    Panel panel;
    for (const int event : {101, 102}) {
        QVERIFY(!panel.table->sendEvent(event, TC::OCF_ValidTime, kClick));
        QCOMPARE(panel.host.take(), QStringList({kSave, eventLine(129, 5, 0)}));
    }
}

void tst_TableEvents::doubleClickIsAnnounced()
{
    Panel panel;
    QVERIFY(panel.table->sendEvent(97, TC::OCF_ValidTime, kClick));
    QCOMPARE(panel.host.take(), QStringList({eventLine(130, 5, 0, kClick)}));
}

void tst_TableEvents::filterIsStoredAndSaved()
{
    Panel panel;
    panel.table->m_table->setVisibleItemSet({0x2, 0x4000000});
    QVERIFY(!panel.table->sendEvent(124, 0));
    QCOMPARE(panel.host.take(), QStringList({kSave}));
    QCOMPARE(panel.table->m_visibleFlags[0], 0x4000002u);
    QCOMPARE(panel.table->m_table->height(), panel.table->m_table->realHeight());
    panel.table->setExpandItemsHidden(false);
    panel.table->m_table->setVisibleItemSet({0x1});
    panel.table->sendEvent(124, 0);
    QCOMPARE(panel.table->m_visibleFlags[0], 0x4000002u);
}

void tst_TableEvents::filterResetEmptiesTheWord()
{
    Panel panel;
    panel.table->m_visibleFlags = {0x1, 0x2, 0x4, 0x8};
    panel.table->setOrderType(ttservice::EOrderType(2));
    panel.host.take();
    QVERIFY(panel.table->sendEvent(248, 0));
    QCOMPARE(panel.table->m_visibleFlags, (std::array<quint32, 4>{0x1, 0x2, 0x0, 0x8}));
    QCOMPARE(panel.table->m_table->getVisibleItemIdSet(), QSet<int>());
    panel.table->setOrderType(ttservice::EOrderType(5));
    QVERIFY(panel.table->sendEvent(248, 0));
    QCOMPARE(panel.table->m_visibleFlags, (std::array<quint32, 4>{0x1, 0x2, 0x0, 0x8}));
    QVERIFY(!panel.host.take().contains(kSave));
}

void tst_TableEvents::priceTypeFromOutside()
{
    Panel panel;
    QVERIFY(panel.table->sendPriceTypeFromOutside(QStringLiteral("outside"), 45));
    QCOMPARE(int(panel.table->priceType()), 45);
    QCOMPARE(panel.table->getCurrentPriceTypeName(), QStringLiteral("outside"));
    QCOMPARE(int(panel.table->m_paramPriceType), 12);
    panel.table->m_paramIndex = 1;
    QVERIFY(panel.table->sendPriceTypeFromOutside(QStringLiteral("again"), 46));
    QCOMPARE(int(panel.table->m_paramPriceType), 46);
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_TableEvents::eventsThatChangeNothing()
{
    Panel panel;
    const QStringList before = cellRows(*panel.table->m_table);
    QVERIFY(panel.table->sendEvent(249, 0));
    QVERIFY(!panel.table->sendEvent(1071, 0));
    for (const int event : {-1, 0, 1, 72, 129, 130, 1061, 1062, 1064, 1206, 1244, 5000})
        QVERIFY(!panel.table->sendEvent(event, TC::OCF_PriceType, kClick));
    QCOMPARE(panel.host.take(), QStringList());
    QCOMPARE(cellRows(*panel.table->m_table), before);
}

QTEST_MAIN(tst_TableEvents)
#include "tst_TableEvents.moc"
