#include "support/CellText.h"
#include "support/HelpButton.h"
#include "support/ModuleGuard.h"
#include "support/Panel.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CScrollArea.h>

#include <QtTest>

using namespace support;

namespace {

void setOrderType(BaseTableProbe& table, int type)
{
    table.setOrderType(ttservice::EOrderType(type));
}

QString priceTypes(BaseTableProbe& table)
{
    return comboEntries(*table.m_table, TC::OCF_PriceType);
}

} // namespace

/// What setOrderType() does, and the volume type.
class tst_OrderType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void orderTypeIsStoredAndItsButtonChecked();
    void storedOrderTypeRebuildsNoPriceTypes();
    void priceTypesAreRebuiltForThePreviousOrderType();
    void cellAreaIsShownBelow4AndHiddenFrom4On();
    void parameterIndexStaysAfterAnAlgorithm();
    void nameAndPriceTypeOfAlgorithmsAfterTheNextUpdate();
    void helpButtonByOrderType_data();
    void helpButtonByOrderType();
    void helpButtonIsLeftAloneOnSomeIdentities();
    void helpMarkComesFromTheHints();
    void superPriceIsCorrected();
    void displayIsColouredFromOrderType4On();
    void eventsStandInOrder();
    void volumeTypeIsReadFromItsCell();
    void tailVolumeIsShownForTheRemainingTargetVolume();
    void randomVolume_data();
    void randomVolume();
};

void tst_OrderType::orderTypeIsStoredAndItsButtonChecked()
{
    Panel panel;
    for (const int type : {1, 2, 3, 5, 13})
        addModeButton(*panel.table->m_btnGroup, 600 + type, "mode");
    for (const int type : {1, 5, 0, 13, 3, 2}) {
        panel.table->setVisibleByID(600 + type, false);
        setOrderType(*panel.table, type);
        QCOMPARE(int(panel.table->orderType()), type);
        QCOMPARE(panel.table->getSelectedButton(), 600 + type);
        QVERIFY(panel.table->loadCheckParam().contains(QString::number(600 + type)));
    }
    setOrderType(*panel.table, 12);
    QCOMPARE(int(panel.table->orderType()), 12);
    QCOMPARE(panel.table->getSelectedButton(), 602);
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_OrderType::storedOrderTypeRebuildsNoPriceTypes()
{
    Panel panel({36});
    panel.cells().setComboData(TC::OCF_PriceType, 9);
    panel.cells().setItemDouble(TC::OCF_SuperPrice, 50);
    panel.cells().setItemHidden(TC::OCF_PriceType, true);
    setOrderType(*panel.table, 0);
    QCOMPARE(panel.cells().itemData(TC::OCF_PriceType), QVariant(9));
    QVERIFY(!isHidden(panel.cells(), TC::OCF_PriceType));
    QCOMPARE(panel.cells().itemDouble(TC::OCF_SuperPrice), 6.0);
    setOrderType(*panel.table, 1);
    QCOMPARE(panel.cells().itemData(TC::OCF_PriceType), QVariant(13));
}

void tst_OrderType::priceTypesAreRebuiltForThePreviousOrderType()
{
    const ModuleGuard on({modules::kComposeFullPriceType});
    Panel panel({7});
    setOrderType(*panel.table, 2);
    QVERIFY(priceTypes(*panel.table).contains(QStringLiteral("挂单价=13")));
    setOrderType(*panel.table, 3);
    QCOMPARE(priceTypes(*panel.table), QString());
    setOrderType(*panel.table, 0);
    QCOMPARE(priceTypes(*panel.table), QString());
    setOrderType(*panel.table, 1);
    QVERIFY(priceTypes(*panel.table).contains(QStringLiteral("挂单价=13")));
    // A click on a mode button stores first: the rebuild sees the new order type.
    panel.table->sendEvent(5, 602);
    QCOMPARE(priceTypes(*panel.table), QString());
    panel.table->sendEvent(5, 600);
    QVERIFY(priceTypes(*panel.table).contains(QStringLiteral("挂单价=13")));
    panel.table->sendEvent(5, 605);
    QCOMPARE(priceTypes(*panel.table), QString());
}

void tst_OrderType::cellAreaIsShownBelow4AndHiddenFrom4On()
{
    Panel panel;
    panel.host.show();
    for (const int type : {4, 3, 5, -1, 13, 0, 12, 2, 1000, 1, 4, -1000}) {
        setOrderType(*panel.table, type);
        QCOMPARE(panel.cells().isVisible(), type < 4);
        QCOMPARE(panel.table->m_scrollArea->isVisible(), type < 4);
    }
}

void tst_OrderType::parameterIndexStaysAfterAnAlgorithm()
{
    Panel panel;
    setOrderType(*panel.table, 3);
    QCOMPARE(panel.table->m_paramIndex, -1);
    setOrderType(*panel.table, 5);
    QCOMPARE(panel.table->m_paramIndex, 1);
    setOrderType(*panel.table, 0);
    QCOMPARE(panel.table->m_paramIndex, 1);
    panel.table->m_btnGroup->clearAllCheck();
    panel.table->resetBtnType();
    QCOMPARE(panel.table->m_paramIndex, -4);
}

void tst_OrderType::nameAndPriceTypeOfAlgorithmsAfterTheNextUpdate()
{
    Panel panel;
    setOrderType(*panel.table, 4);
    QCOMPARE(int(panel.table->priceType()), 11);
    QCOMPARE(panel.table->getCurrentPriceTypeName(), QString());
    QCOMPARE(int(panel.table->priceType()), 12);
}

void tst_OrderType::helpButtonByOrderType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("offered");
    for (const int type : {1, 2, 5, 13})
        QTest::addRow("order type %d has a help page", type) << type << true;
    for (const int type : {-1, 0, 3, 4, 6, 12, 14})
        QTest::addRow("order type %d has none", type) << type << false;
}

void tst_OrderType::helpButtonByOrderType()
{
    QFETCH(int, type);
    QFETCH(bool, offered);
    for (const bool before : {false, true}) {
        Panel panel;
        panel.table->m_btnGroup->setHelpButtonVisible(before);
        setOrderType(*panel.table, type);
        QCOMPARE(isHelpButtonOffered(*panel.table->m_btnGroup), offered);
    }
}

void tst_OrderType::helpButtonIsLeftAloneOnSomeIdentities()
{
    for (int id = 10; id <= 55; ++id) {
        const bool leftAlone =
            (id >= 15 && id <= 30) || QSet<int>({36, 37, 38, 39, 40, 43, 45, 48, 49, 51}).contains(id);
        for (const bool before : {false, true}) {
            Panel panel({id});
            panel.table->m_btnGroup->setHelpButtonVisible(before);
            for (const int type : {0, 1, 5, 13, 12}) {
                setOrderType(*panel.table, type);
                const bool offered = leftAlone ? before : QSet<int>({1, 5, 13}).contains(type);
                QCOMPARE(isHelpButtonOffered(*panel.table->m_btnGroup), offered);
            }
        }
    }
}

void tst_OrderType::helpMarkComesFromTheHints()
{
    for (const int id : {5, 20}) {
        Panel panel({id});
        WQ::CDropDownButtonGroup& group = *panel.table->m_btnGroup;
        panel.table->m_hintMap = {{1, true}, {5, true}, {12, true}, {0, true}};
        for (const int type : {1, 2, 5, 13}) {
            group.setHelpButtonCritical(type == 2 || type == 13);
            setOrderType(*panel.table, type);
            QCOMPARE(isHelpButtonCritical(group), type == 1 || type == 5);
        }
        for (const int type : {0, 3, 4, 12}) {
            group.setHelpButtonCritical(false);
            setOrderType(*panel.table, type);
            QVERIFY(!isHelpButtonCritical(group));
        }
    }
}

void tst_OrderType::superPriceIsCorrected()
{
    Panel panel;
    panel.cells().setItemDouble(TC::OCF_SuperPrice, 50);
    setOrderType(*panel.table, 1);
    QCOMPARE(panel.cells().itemDouble(TC::OCF_SuperPrice), 6.0);
}

void tst_OrderType::displayIsColouredFromOrderType4On()
{
    Panel panel;
    offerPriceType(*panel.table, 45);
    panel.table->updateCurrentPriceTypeName();
    panel.table->m_originalPrice = 8.5;
    for (const int type : {1, 0, 3})
        setOrderType(*panel.table, type);
    QCOMPARE(panel.host.take(), QStringList());
    QCOMPARE(panel.table->m_originalPrice, 8.5);
    setOrderType(*panel.table, 4);
    QCOMPARE(panel.host.take(), QStringList({eventLine(1062, 5, 1, QStringLiteral("clr_global_text"))}));
    QCOMPARE(panel.table->m_originalPrice, TC::kNoPrice);
}

void tst_OrderType::eventsStandInOrder()
{
    for (const int mode : {100, 101}) {
        const ClientModeGuard client(mode);
        Panel panel;
        setOrderType(*panel.table, 2);
        QCOMPARE(panel.host.take(), QStringList({eventLine(1244, 2, 0)}));
        offerPriceType(*panel.table, 49);
        panel.table->updateCurrentPriceTypeName();
        setOrderType(*panel.table, 5);
        QCOMPARE(
            panel.host.take(),
            QStringList({eventLine(1063, 5, 1, QStringLiteral("clr_disabled_widget_text")), eventLine(1244, 5, 0)}));
        setOrderType(*panel.table, 5);
        QCOMPARE(panel.host.take().size(), 2);
    }
    const ClientModeGuard other(102);
    Panel panel({10});
    setOrderType(*panel.table, 2);
    QCOMPARE(panel.host.take(), QStringList());
    const ClientModeGuard client(100);
    setOrderType(*panel.table, 2);
    QCOMPARE(panel.host.take(), QStringList({eventLine(1244, 1, 0)}));
}

void tst_OrderType::volumeTypeIsReadFromItsCell()
{
    BaseTableProbe stock;
    for (int type = 0; type <= 12; ++type) {
        stock.m_table->setComboData(TC::OCF_BaseVolume, type);
        QCOMPARE(stock.singleVolType(), type);
    }
    for (const int brokerType : {6, 7, 10, 11})
        QCOMPARE(BaseTableProbe({5, brokerType}).singleVolType(), -1);
}

void tst_OrderType::tailVolumeIsShownForTheRemainingTargetVolume()
{
    BaseTableProbe table;
    for (int type = -1; type <= 13; ++type) {
        table.m_table->setItemHidden(TC::OCF_TailMinVolume, type == 11);
        table.onVolumeTypeChange(ttservice::EVolumeType(type));
        QCOMPARE(isHidden(*table.m_table, TC::OCF_TailMinVolume), type != 11);
    }
}

void tst_OrderType::randomVolume_data()
{
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<int>("traderType");
    QTest::addColumn<bool>("module");
    QTest::addColumn<bool>("possible");
    QTest::newRow("stock, trader type 1") << 2 << 1 << true << true;
    QTest::newRow("without the module") << 2 << 1 << false << false;
    for (const int brokerType : {1, 3, 6, 8, 99})
        QTest::addRow("broker type %d", brokerType) << brokerType << 1 << true << false;
    for (const int traderType : {0, 2, 4, 4096})
        QTest::addRow("trader type %d", traderType) << 2 << traderType << true << false;
}

void tst_OrderType::randomVolume()
{
    QFETCH(int, brokerType);
    QFETCH(int, traderType);
    QFETCH(bool, module);
    QFETCH(bool, possible);
    const ModuleGuard on({module ? modules::kRandomVolume : ""});
    const QSet<int> identities = {5, 15, 31, 33, 36};
    for (int id = -5; id <= 70; ++id)
        QCOMPARE(BaseTableProbe({id, brokerType, traderType}).isRandVolume(), possible && identities.contains(id));
}

QTEST_MAIN(tst_OrderType)
#include "tst_OrderType.moc"
