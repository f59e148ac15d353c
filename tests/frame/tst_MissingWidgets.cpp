#include "support/Panel.h"

#include <QtTest>

using namespace support;

namespace {

/// A table whose toolkit could make nothing: the widgets stay the host's children, the table knows none of them.
struct BarePanel : Panel
{
    BarePanel()
    {
        table->m_table = nullptr;
        table->m_scrollArea = nullptr;
        table->m_btnList = nullptr;
        table->m_btnGroup = nullptr;
    }
};

} // namespace

/// A table without its cell table, scroll area, strip and button group does what needs none of them, and no more.
class tst_MissingWidgets : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void stateIsStillKept();
    void pricesNeedTheCells();
    void modesAreStillAnnounced();
    void cellEventsAreStillSavedAndAnnounced();
    void buttonsAreNowhere();
    void layoutAndVisibilityDoNothing();
    void cellTableAloneIsMissing();
};

void tst_MissingWidgets::stateIsStillKept()
{
    BarePanel panel;
    panel.table->setStockCode(QStringLiteral("600000"));
    panel.table->setFlag(TC::OperationCellFlags(0x3));
    panel.table->setOperationType(ttservice::EOperationType(21));
    panel.table->setOrderType(ttservice::EOrderType(5));
    QCOMPARE(panel.table->getStockCode(), QStringLiteral("600000"));
    QCOMPARE(int(panel.table->m_flags), 0x3);
    QCOMPARE(int(panel.table->getOperationType()), 21);
    QCOMPARE(int(panel.table->orderType()), 5);
    QCOMPARE(panel.table->m_paramIndex, 1);
    panel.table->setExpandItemsHidden(false);
    QVERIFY(panel.table->isExpand());
    panel.table->slotShouldHintAlgorithm(5, true);
    QVERIFY(!panel.table->getMultiParamsTable());
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_MissingWidgets::pricesNeedTheCells()
{
    BarePanel panel;
    panel.table->setPriceType(ttservice::PRTP_LATEST);
    QCOMPARE(panel.table->m_pendingPriceType, 0);
    panel.table->selectPrice(ttservice::PRTP_LATEST);
    panel.table->setFixedPrice(3.5);
    QCOMPARE(panel.host.take(), QStringList());
    QCOMPARE(panel.table->m_originalPrice, 0.0);
    QCOMPARE(int(panel.table->priceType()), 11);
    QCOMPARE(panel.table->m_priceTypeName, QString());
    QCOMPARE(panel.table->getCurrentPriceTypeName(), QString());
    QCOMPARE(panel.table->singleVolType(), -1);
    panel.table->updateCmdLog();
    QCOMPARE(panel.table->getCmdLog(), std::string());
    panel.table->m_priceType = ttservice::EPriceType(5);
    QCOMPARE(panel.table->getModifiedPriceByOptTypeForCalc(ttservice::EOperationType(1), true), TC::kNoPrice);
    QStringList labels;
    QVector<QVariant> values;
    panel.table->doResetPriceType(labels, values, 4, 0, true, QString());
    QCOMPARE(labels.size(), 3);
}

void tst_MissingWidgets::modesAreStillAnnounced()
{
    BarePanel panel;
    QVERIFY(panel.table->sendEvent(5, 602));
    QCOMPARE(panel.host.takeNumbers(), QList<int>({1064, 1061, 129, 1206}));
    QCOMPARE(int(panel.table->orderType()), 2);
    QVERIFY(panel.table->sendEvent(5, 605));
    QCOMPARE(panel.host.takeNumbers(), QList<int>({1064, 1061, 1062, 129, 1206}));
    QCOMPARE(int(panel.table->priceType()), 12);
}

void tst_MissingWidgets::cellEventsAreStillSavedAndAnnounced()
{
    BarePanel panel;
    panel.table->sendCellChanged(TC::OCF_PriceType, QStringLiteral("x"), 5);
    panel.table->sendCellChanged(TC::OCF_BaseVolume, QStringLiteral("x"), 11);
    panel.table->sendEvent(87, TC::OCF_MinSingleVolume);
    panel.table->sendEvent(101, TC::OCF_ValidTime);
    QCOMPARE(panel.host.takeNumbers(), QList<int>({129, 129, 129, 129}));
    QCOMPARE(panel.table->saves, 4);
    panel.table->sendEvent(97, 0);
    QCOMPARE(panel.host.takeNumbers(), QList<int>({130}));
    QVERIFY(!panel.table->sendEvent(124, 0));
    QVERIFY(panel.table->sendEvent(248, 0));
    QVERIFY(!panel.table->sendEvent(1071, 0));
    QCOMPARE(panel.host.take(), QStringList({QStringLiteral("save")}));
    panel.table->resetTriggerPriceSetting();
    QCOMPARE(panel.host.take(), QStringList({QStringLiteral("save")}));
}

void tst_MissingWidgets::buttonsAreNowhere()
{
    BarePanel panel;
    panel.table->setVisibleByID(600, false);
    panel.table->setVisibleByOrderType(ttservice::EOrderType(13), false);
    panel.table->hideAlgTable();
    panel.table->showSelectButton(600);
    panel.table->setShowTimeAlgorith(true);
    panel.table->resetBtnType();
    panel.table->setCheckParam(QStringLiteral("600"));
    ttservice::COrderSetting setting;
    panel.table->showOrderParamBtn(&setting);
    QCOMPARE(panel.table->getSelectedButton(), -1);
    QVERIFY(panel.table->getBtnIDByName(QStringLiteral("普通交易")) < 0);
    QCOMPARE(panel.table->getBtnNameByID(600), QString());
    QCOMPARE(panel.table->loadCheckParam(), QString());
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_MissingWidgets::layoutAndVisibilityDoNothing()
{
    BarePanel panel;
    panel.table->m_visibleFlags[0] = 0x3;
    panel.table->loadVisibleFlag();
    panel.table->saveVisibleFlag(false);
    QCOMPARE(panel.table->m_visibleFlags[0], 0x3u);
    panel.table->resetCellVisibilities();
    panel.table->resetLayout(QSize(100, 100));
    panel.table->handleScaleChanged();
    panel.table->themeChanged();
    panel.table->modPriceCell();
    panel.table->fixSuperPrice();
    panel.table->resetSuperPrice();
    panel.table->setAllItemEnable(false);
    panel.host.show();
    panel.table->resize(panel.table->width(), 50);
    QCOMPARE(panel.host.take(), QStringList());
    BarePanel algorithm;
    algorithm.table->m_orderType = ttservice::EOrderType(2);
    algorithm.table->resetCellVisibilities();
    QCOMPARE(int(algorithm.table->orderType()), 2);
}

void tst_MissingWidgets::cellTableAloneIsMissing()
{
    Panel panel;
    panel.table->m_table = nullptr;
    panel.table->m_scrollArea = nullptr;
    panel.table->setOrderType(ttservice::EOrderType(1));
    panel.table->setExpandItemsHidden(false);
    panel.table->resize(panel.table->width(), 50);
    QCOMPARE(panel.table->getSelectedButton(), 600);
    QVERIFY(panel.table->sendEvent(5, 600));
    QCOMPARE(int(panel.table->orderType()), 0);
}

QTEST_MAIN(tst_MissingWidgets)
#include "tst_MissingWidgets.moc"
