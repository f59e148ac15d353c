// A table that lacks one of its widgets, or cells that its neighbours have, does what the others allow.

#include "support/ModuleGuard.h"
#include "support/Panel.h"

#include <WQ/CMultiParamsTable.h>
#include <WQ/CScrollArea.h>

#include <QtTest>

using namespace support;

class tst_SomeWidgetsMissing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theScrollAreaAlone();
    void theCellTableAlone();
    void remarksNeedACellTable();
    void aPriceAfterHoursNeedsACellTable();
    void superPricesWithoutTheCellsOfTheirRange();
    void aStripWithoutButtons();
};

void tst_SomeWidgetsMissing::theScrollAreaAlone()
{
    Panel panel;
    const QRect cells = panel.cells().geometry();
    panel.table->m_scrollArea = nullptr;
    panel.table->resetLayout(QSize(100, 100));
    QCOMPARE(panel.cells().geometry(), cells);
}

void tst_SomeWidgetsMissing::theCellTableAlone()
{
    Panel panel;
    const QRect area = panel.table->m_scrollArea->geometry();
    panel.table->m_table = nullptr;
    panel.table->resetLayout(QSize(100, 100));
    QCOMPARE(panel.table->m_scrollArea->geometry(), area);
}

void tst_SomeWidgetsMissing::remarksNeedACellTable()
{
    Panel panel;
    const ModuleGuard modules{modules::kCommandRemark};
    panel.table->m_table = nullptr;
    panel.table->updateCmdLog();
    QCOMPARE(panel.table->getCmdLog(), std::string());
}

void tst_SomeWidgetsMissing::aPriceAfterHoursNeedsACellTable()
{
    Panel panel;
    panel.cells().setItemDouble(0x2000000, 12.5);
    panel.table->m_priceType = ttservice::EPriceType(49);
    QCOMPARE(panel.table->getModifiedPriceByOptTypeForCalc(ttservice::EOperationType(1), true), 12.5);
    panel.table->m_table = nullptr;
    QCOMPARE(panel.table->getModifiedPriceByOptTypeForCalc(ttservice::EOperationType(1), true), 0.0);
}

void tst_SomeWidgetsMissing::superPricesWithoutTheCellsOfTheirRange()
{
    TableSetup hongKong;
    hongKong.brokerType = 7;
    Panel withoutPrice(hongKong);
    QVERIFY(!withoutPrice.cells().getItem(0x2));
    withoutPrice.cells().setItemDouble(0x8, 4.0);
    withoutPrice.table->fixSuperPrice();
    QCOMPARE(withoutPrice.cells().itemDouble(0x8), 4.0);

    Panel withoutRange;
    WQ::CMultiParamsTable cells(nullptr, true);
    cells.addParamCell(0x2, QStringLiteral("单笔超价"), 6, -100.0, 100.0, 0.01, QStringLiteral("%"), 50.0, 4);
    withoutRange.table->m_table = &cells;
    withoutRange.table->fixSuperPrice();
    QCOMPARE(cells.itemDouble(0x2), 50.0);
}

void tst_SomeWidgetsMissing::aStripWithoutButtons()
{
    TableSetup setup;
    setup.modeButtons = false;
    Panel panel(setup);
    QCOMPARE(panel.table->getSelectedButton(), -1);
    ttservice::COrderSetting setting;
    setting.orderType = ttservice::EOrderType(1);
    panel.table->showOrderParamBtn(&setting);
    panel.table->showOrderParamBtn(nullptr);
    panel.table->resetBtnType();
    QCOMPARE(panel.table->getSelectedButton(), -1);
    QCOMPARE(int(panel.table->orderType()), 0);
    QCOMPARE(panel.host.take(), QStringList());
}

QTEST_MAIN(tst_SomeWidgetsMissing)
#include "tst_SomeWidgetsMissing.moc"
