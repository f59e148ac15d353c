#include "support/BaseTableProbe.h"
#include "support/CellText.h"
#include "support/EventLog.h"
#include "support/ModuleGuard.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CScrollArea.h>
#include <WQ/CWidgetList.h>
#include <ttservice/CInstrumentDetail.h>

#include <QtTest>

using namespace support;

/// What a table is and holds from its construction on.
class tst_TableState : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void membersStartAsTheyAreDeclared();
    void constructionStoresItsArguments();
    void constructionCallsNoHookAndSendsNoEvent();
    void widgetTreeOfATable();
    void hintSignalReachesEveryTableFromItsConstructionOn();
    void hintSignalIsDeclaredAndNeverEmitted();
    void stockCodeIsStored();
    void instrumentIsNotKept();
    void realVolumeTypeIsTheVolumeType();
    void flagsAreStoredAndNarrowTheCells();
    void cellsAreEnabledAndDisabledTogether();
    void forcedHelpIsStoredAlone();
    void inertOperationsAnswerTheirConstantAndChangeNothing();
};

void tst_TableState::membersStartAsTheyAreDeclared()
{
    BaseTableProbe table;
    QCOMPARE(table.m_paramIndex, -1);
    QVERIFY(table.m_hintMap.isEmpty());
    QVERIFY(table.m_mapReady);
    QVERIFY(table.m_orderSettings.isEmpty());
    QVERIFY(!table.m_forceHideHelp);
    QCOMPARE(int(table.orderType()), 0);
    QCOMPARE(int(table.getOperationType()), -1);
    QCOMPARE(int(table.m_flags), 0x7103FFF);
    QCOMPARE(table.getStockCode(), QString());
    QVERIFY(table.m_ready);
    QCOMPARE(int(table.m_paramPriceType), 12);
    QCOMPARE(table.m_pendingPriceType, 0);
    QVERIFY(!table.isExpand());
    for (const quint32 word : table.m_visibleFlags)
        QCOMPARE(word, 0u);
    QCOMPARE(table.m_priceTypeName, QString());
    QCOMPARE(table.m_originalPrice, 0.0);
}

void tst_TableState::constructionStoresItsArguments()
{
    QWidget parent;
    TableSetup setup;
    setup.id = 33;
    setup.parent = &parent;
    const auto table = new BaseTableProbe(setup);
    QCOMPARE(int(table->getId()), 33);
    QCOMPARE(table->parentWidget(), &parent);
}

void tst_TableState::constructionCallsNoHookAndSendsNoEvent()
{
    EventLog host;
    const ModuleGuard on({modules::kAlgorithm3, modules::kCommandRemark, modules::kRandomVolume});
    const ClientModeGuard mode(100);
    TableSetup setup;
    setup.parent = &host;
    setup.traderType = 1;
    const auto table = new BaseTableProbe(setup);
    QCoreApplication::processEvents();
    QCOMPARE(table->hooks, QStringList());
    QCOMPARE(host.take(), QStringList());
}

void tst_TableState::widgetTreeOfATable()
{
    BaseTableProbe table;
    QCOMPARE(table.objectName(), QStringLiteral("vtmq_pelorin_orderparambasetable"));
    QVERIFY(table.getMultiParamsTable());
    QCOMPARE(table.getMultiParamsTable()->focusPolicy(), Qt::StrongFocus);
    QVERIFY(table.m_scrollArea->isAncestorOf(table.getMultiParamsTable()));
    QCOMPARE(table.m_scrollArea->parentWidget(), &table);
    QCOMPARE(table.m_btnList->parentWidget(), &table);
    QVERIFY(table.m_btnList->isAncestorOf(table.m_btnGroup));
    QVERIFY(table.inherits("TC::COrderParamBaseTable"));
    QVERIFY(table.inherits("WQ::CBaseWidget"));
}

void tst_TableState::hintSignalReachesEveryTableFromItsConstructionOn()
{
    BaseTableProbe first;
    BaseTableProbe second;
    sendAlgorithmHint(5, true);
    sendAlgorithmHint(13, true);
    sendAlgorithmHint(13, false);
    const QMap<int, bool> expected = {{5, true}, {13, false}};
    QCOMPARE(first.m_hintMap, expected);
    QCOMPARE(second.m_hintMap, expected);
    QVERIFY(BaseTableProbe().m_hintMap.isEmpty());
}

void tst_TableState::hintSignalIsDeclaredAndNeverEmitted()
{
    BaseTableProbe table;
    const QMetaObject& meta = TC::COrderParamBaseTable::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    QVERIFY(meta.indexOfSignal("sigShouldHintAlgorithm(int,bool)") >= meta.methodOffset());
    QVERIFY(meta.indexOfSlot("slotShouldHintAlgorithm(int,bool)") >= meta.methodOffset());
    QSignalSpy spy(&table, &TC::COrderParamBaseTable::sigShouldHintAlgorithm);
    sendAlgorithmHint(1, true);
    table.slotShouldHintAlgorithm(2, true);
    table.setOrderType(ttservice::EOrderType(5));
    QCOMPARE(spy.count(), 0);
}

void tst_TableState::stockCodeIsStored()
{
    BaseTableProbe table;
    table.setStockCode(QStringLiteral("600000"));
    QCOMPARE(table.getStockCode(), QStringLiteral("600000"));
    QCOMPARE(table.hooks, QStringList());
}

void tst_TableState::instrumentIsNotKept()
{
    BaseTableProbe table;
    auto detail = std::make_shared<ttservice::CInstrumentDetail>();
    const std::weak_ptr<ttservice::CInstrumentDetail> watch = detail;
    table.setInstrument(std::move(detail));
    QVERIFY(watch.expired());
    table.setInstrument(nullptr);
}

void tst_TableState::realVolumeTypeIsTheVolumeType()
{
    BaseTableProbe table;
    for (int type = -5; type <= 20; ++type)
        QCOMPARE(int(table.getRealVolumeType(ttservice::EVolumeType(type))), type);
}

void tst_TableState::flagsAreStoredAndNarrowTheCells()
{
    BaseTableProbe table;
    table.setFlag(TC::OperationCellFlags(TC::OCF_PriceType));
    QCOMPARE(int(table.m_flags), 0x1);
    QVERIFY(!isHidden(*table.m_table, TC::OCF_PriceType));
    QVERIFY(isHidden(*table.m_table, TC::OCF_ValidTime));
    QCOMPARE(table.hooks, QStringList());
}

void tst_TableState::cellsAreEnabledAndDisabledTogether()
{
    EventLog host;
    TableSetup setup;
    setup.parent = &host;
    const auto table = new BaseTableProbe(setup);
    const QStringList before = cellRows(*table->m_table);
    table->setAllItemEnable(false);
    const QModelIndex cell = table->m_table->model()->index(0, 1);
    QVERIFY(!(cell.flags() & Qt::ItemIsEnabled));
    table->setAllItemEnable(true);
    QVERIFY(cell.flags() & Qt::ItemIsEnabled);
    QCOMPARE(cellRows(*table->m_table), before);
    QCOMPARE(host.take(), QStringList());
}

void tst_TableState::forcedHelpIsStoredAlone()
{
    BaseTableProbe table;
    table.forceHideHelpBtn(true);
    QVERIFY(table.m_forceHideHelp);
    table.forceHideHelpBtn(false);
    QVERIFY(!table.m_forceHideHelp);
}

void tst_TableState::inertOperationsAnswerTheirConstantAndChangeNothing()
{
    EventLog host;
    TableSetup setup;
    setup.parent = &host;
    const auto table = new BaseTableProbe(setup);
    table->setOrderType(ttservice::EOrderType(1));
    const QStringList before = cellRows(*table->m_table);
    ttservice::COrderSetting setting = table->getDefault();
    ttservice::EPriceType priceType = ttservice::PRTP_LATEST;
    QString message = QStringLiteral("kept");
    double low = 1.0;
    double high = 2.0;

    table->clear();
    table->doSetSingleNvAlgoUiParam(ttservice::EOrderType(5), QStringLiteral("1+2"));
    table->getPriceLimit(low, high);
    table->handleWheel();
    table->hideAmountUsed();
    table->loadOpParam(&setting, 1.0);
    table->loadOpParam(nullptr, 1.0);
    table->onPriceTypeChange();
    table->reSetPriceTypeEnable();
    table->resetCurrentPriceType();
    table->resetMarketPriceType();
    table->setAlgirithmBtnVisible(ttservice::EOrderType(5));
    table->setTableEnabled(ttservice::EOrderType(1), false);
    table->updateIntervalUnit();
    table->updatePriceLimit();
    table->updateRandomVolume();
    table->updateUnit();
    table->saveOpParam(QStringLiteral("600000"), &setting);
    table->saveOpParam(QString(), nullptr);
    table->resetStrategyType(ttservice::EOrderType(5), QStringLiteral("x"));
    table->setTableUIByParams(ttservice::ETradePlatform(7));

    QVERIFY(table->changePriceType(priceType));
    QCOMPARE(int(priceType), 5);
    QVERIFY(table->checkPriceLimit(message));
    QCOMPARE(message, QStringLiteral("kept"));
    QVERIFY(table->hasUpStopPrice());
    QCOMPARE(table->doGetSingleNvAlgoUiParam(ttservice::EOrderType(5)), QString());
    QCOMPARE(table->getAlgoPriceTypeName(), QString());
    QCOMPARE(low, 1.0);
    QCOMPARE(high, 2.0);
    QCOMPARE(cellRows(*table->m_table), before);
    QCOMPARE(table->hooks, QStringList());
    table->resetOrderParamSetting();
    QCOMPARE(table->hooks, QStringList({QStringLiteral("save")}));
    QCOMPARE(host.take(), QStringList());
}

QTEST_MAIN(tst_TableState)
#include "tst_TableState.moc"
