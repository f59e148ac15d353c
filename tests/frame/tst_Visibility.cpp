#include "frame/VisibleCells.h"
#include "support/BaseTableProbe.h"
#include "support/CellText.h"
#include "support/EventLog.h"
#include "support/HelpButton.h"
#include "support/ModuleGuard.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CWidgetList.h>

#include <QtTest>

using namespace support;

namespace {

constexpr int kOrderTypes[] = {0, 1, 2, 3, 4, 5, 12, 13};
constexpr int kAllFlags = 0xFFFFFFF;

QSet<int> ownedCells(BaseTableProbe& table)
{
    QSet<int> owned;
    for (const CellRule& rule : kCellRules) {
        if (table.m_table->getItem(rule.id))
            owned.insert(rule.id);
    }
    return owned;
}

/// The cells that hosts add on the IDs which the catalogue leaves free.
void addHostCells(BaseTableProbe& table)
{
    for (const CellRule& rule : kCellRules) {
        if (!table.m_table->getItem(rule.id))
            table.m_table->addParamCell(rule.id, QStringLiteral("host"), 6, 0, 100, 1, QStringLiteral("元"), 0, 4);
    }
}

void addModeButtons(BaseTableProbe& table, std::initializer_list<int> ids)
{
    for (const int id : ids)
        addModeButton(*table.m_btnGroup, id, "mode");
}

void setOrderType(BaseTableProbe& table, int type)
{
    table.setOrderType(ttservice::EOrderType(type));
}

} // namespace

/// Which cells are seen after a switch, collapsed and expanded.
class tst_Visibility : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyPairOfOrderTypes_data();
    void everyPairOfOrderTypes();
    void everyCellByFlagsAndModules_data();
    void everyCellByFlagsAndModules();
    void superPriceStaysWithAllFlagsCleared();
    void remarkNeedsModuleAndIdentity();
    void tables10And35AlwaysWorkInOrderType1_data();
    void tables10And35AlwaysWorkInOrderType1();
    void stripFollowsTheIdentity();
    void filterOffersWhatIsVisible();
    void expandingInOrderType1ShowsSixCellsWhateverFlagsSay();
    void tailVolumeFollowsTheRemainingTargetVolume();
    void visibleByOrderTypeKnowsType13Alone();
    void hidingTheAlgorithmTableHides608And611();
    void visibilityOperationsSendNothing();
};

void tst_Visibility::everyPairOfOrderTypes_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("brokerType");
    for (const int id : {3, 5, 7, 10, 11, 15, 31, 35, 36, 43, 52, 99}) {
        for (const int brokerType : {1, 2, 6, 7, 10, 99})
            QTest::addRow("identity %d, broker type %d", id, brokerType) << id << brokerType;
    }
}

void tst_Visibility::everyPairOfOrderTypes()
{
    QFETCH(int, id);
    QFETCH(int, brokerType);
    const ModuleGuard on({modules::kCommandRemark});
    BaseTableProbe table({id, brokerType, 1});
    const QSet<int> owned = ownedCells(table);
    VisibleState state;
    state.id = id;
    state.remarkModule = true;
    for (const int volume : {10, 11}) {
        table.m_table->setComboData(TC::OCF_BaseVolume, volume);
        state.remainingVolume = volume == 11 && owned.contains(TC::OCF_BaseVolume);
        for (const bool expanded : {false, true}) {
            state.expanded = expanded;
            for (const int from : kOrderTypes) {
                for (const int to : kOrderTypes) {
                    setOrderType(table, from);
                    table.setExpandItemsHidden(!expanded);
                    setOrderType(table, to);
                    state.limitShown = state.limitShown || from < 2 || to < 2 || id == 10 || id == 35;
                    const QString actual = idText(shownCells(*table.m_table));
                    const QString expected = idText(expectedVisible(to, state, owned));
                    if (actual != expected)
                        qInfo() << "from" << from << "to" << to << "expanded" << expanded << "volume" << volume;
                    QCOMPARE(actual, expected);
                }
            }
        }
    }
}

void tst_Visibility::everyCellByFlagsAndModules_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("modulesOn");
    for (const bool modulesOn : {false, true}) {
        for (const int flags : {0, 0x1, 0x7103FFF, kAllFlags, 0x6703FFF, 0x5555555, 0xAAAAAAA})
            QTest::addRow("flags 0x%x, modules %s", flags, modulesOn ? "on" : "off") << flags << modulesOn;
    }
}

void tst_Visibility::everyCellByFlagsAndModules()
{
    QFETCH(int, flags);
    QFETCH(bool, modulesOn);
    VisibleState state;
    state.flags = flags;
    state.remarkModule = state.triggerModule = state.stopModule = modulesOn;
    const ModuleGuard on({modulesOn ? modules::kCommandRemark : "", modulesOn ? modules::kTriggerPrice : "",
                          modulesOn ? modules::kStopProfitLoss : ""});
    for (const int id : {3, 5, 10, 36, 50}) {
        BaseTableProbe table({id});
        addHostCells(table);
        const QSet<int> owned = ownedCells(table);
        table.setFlag(TC::OperationCellFlags(flags));
        state.id = id;
        state.limitShown = true;
        for (const bool expanded : {true, false}) {
            table.setExpandItemsHidden(!expanded);
            state.expanded = expanded;
            for (const int type : {0, 1, 2, 3, 4, 5, 12, 13, -1, 77}) {
                setOrderType(table, type);
                if (shownCells(*table.m_table) != expectedVisible(type, state, owned))
                    qInfo() << "identity" << id << "order type" << type << "expanded" << expanded;
                QCOMPARE(idText(shownCells(*table.m_table)), idText(expectedVisible(type, state, owned)));
            }
        }
    }
}

void tst_Visibility::superPriceStaysWithAllFlagsCleared()
{
    for (const int type : kOrderTypes) {
        BaseTableProbe table;
        table.setFlag({});
        setOrderType(table, type);
        QVERIFY(!isHidden(*table.m_table, TC::OCF_SuperPrice));
        QVERIFY(shownCells(*table.m_table).contains(TC::OCF_SuperPrice));
        QVERIFY(isHidden(*table.m_table, TC::OCF_PriceType));
    }
}

void tst_Visibility::remarkNeedsModuleAndIdentity()
{
    const QSet<int> without = {3, 4, 35, 36, 37, 38, 42, 43, 48, 49, 51};
    for (int id = -5; id <= 70; ++id) {
        const ModuleGuard on({modules::kCommandRemark});
        BaseTableProbe table({id});
        table.resetCellVisibilities();
        QCOMPARE(isHidden(*table.m_table, TC::OCF_InvestRemark), without.contains(id));
        const ModuleGuard off({});
        table.resetCellVisibilities();
        QVERIFY(isHidden(*table.m_table, TC::OCF_InvestRemark));
    }
}

void tst_Visibility::tables10And35AlwaysWorkInOrderType1_data()
{
    QTest::addColumn<int>("id");
    QTest::newRow("identity 10") << 10;
    QTest::newRow("identity 35") << 35;
}

void tst_Visibility::tables10And35AlwaysWorkInOrderType1()
{
    QFETCH(int, id);
    BaseTableProbe table({id});
    table.show();
    QCOMPARE(int(table.orderType()), 0);
    table.resetCellVisibilities();
    QCOMPARE(int(table.orderType()), 1);
    for (const int type : kOrderTypes) {
        setOrderType(table, type);
        QCOMPARE(int(table.orderType()), 1);
        QVERIFY(!table.m_btnList->isVisible());
    }
    table.sendEvent(5, 602);
    QCOMPARE(int(table.orderType()), 1);
}

void tst_Visibility::stripFollowsTheIdentity()
{
    const QSet<int> hidden = {10, 31, 32, 33, 34, 35, 52};
    for (int id = -5; id <= 70; ++id) {
        BaseTableProbe table({id});
        table.show();
        table.resetCellVisibilities();
        QCOMPARE(table.m_btnList->isVisible(), !hidden.contains(id));
    }
}

void tst_Visibility::filterOffersWhatIsVisible()
{
    BaseTableProbe table;
    setOrderType(table, 2);
    // The super-price start count is offered too, as it may be shown when the table is expanded.
    QCOMPARE(idText(allItems(*table.m_table)), QStringLiteral("0x1 0x2 0x4 0x8 0x80 0x800 0x1000"));
    QCOMPARE(idText(filterBlacklist(*table.m_table)), QString());
    setOrderType(table, 0);
    QCOMPARE(idText(allItems(*table.m_table)), QStringLiteral("0x1 0x2 0x1000000 0x2000000"));
    QCOMPARE(idText(filterBlacklist(*table.m_table)), QStringLiteral("0x100000"));
    QCOMPARE(idText(table.m_table->getVisibleItemIdSet()), QString());
    table.m_table->setItemFilterBlacklist(TC::OCF_ValidTime, true);
    setOrderType(table, 2);
    QCOMPARE(idText(filterBlacklist(*table.m_table)), QString());
}

void tst_Visibility::expandingInOrderType1ShowsSixCellsWhateverFlagsSay()
{
    BaseTableProbe table;
    table.setFlag({});
    setOrderType(table, 1);
    table.setExpandItemsHidden(false);
    QCOMPARE(idText(shownCells(*table.m_table)),
             QStringLiteral("0x2 0x4 0x8 0x200 0x400 0x800 0x1000 0x2000 0x2000000"));
}

void tst_Visibility::tailVolumeFollowsTheRemainingTargetVolume()
{
    for (int volume = 0; volume <= 12; ++volume) {
        BaseTableProbe table;
        table.m_table->setComboData(TC::OCF_BaseVolume, volume);
        setOrderType(table, 1);
        QCOMPARE(isHidden(*table.m_table, TC::OCF_TailMinVolume), volume != 11);
    }
    BaseTableProbe option({5, 6});
    setOrderType(option, 1);
    QVERIFY(isHidden(*option.m_table, TC::OCF_TailMinVolume));
}

void tst_Visibility::visibleByOrderTypeKnowsType13Alone()
{
    BaseTableProbe table;
    addModeButtons(table, {601, 605, 613});
    const QString all = table.loadCheckParam();
    QCOMPARE(all, QStringLiteral("600,601,605,613"));
    for (const int type : {-1, 0, 1, 5, 12, 14, 613}) {
        table.setVisibleByOrderType(ttservice::EOrderType(type), false);
        QCOMPARE(table.loadCheckParam(), all);
    }
    table.setVisibleByOrderType(ttservice::EOrderType(13), false);
    QCOMPARE(table.loadCheckParam(), QStringLiteral("600,601,605"));
    table.setVisibleByOrderType(ttservice::EOrderType(13), true);
    QCOMPARE(table.loadCheckParam(), all);
    table.setVisibleByID(605, false);
    table.setVisibleByID(699, false);
    QCOMPARE(table.loadCheckParam(), QStringLiteral("600,601,613"));
}

void tst_Visibility::hidingTheAlgorithmTableHides608And611()
{
    BaseTableProbe table;
    addModeButtons(table, {604, 607, 608, 609, 610, 611, 612, 704});
    table.hideAlgTable();
    QCOMPARE(table.loadCheckParam(), QStringLiteral("600,604,607,609,610,612,704"));
}

void tst_Visibility::visibilityOperationsSendNothing()
{
    EventLog host;
    TableSetup setup;
    setup.parent = &host;
    const auto table = new BaseTableProbe(setup);
    table->resetCellVisibilities();
    table->setExpandItemsHidden(false);
    table->setExpandItemsHidden(true);
    table->setFlag(TC::OperationCellFlags(kAllFlags));
    table->loadVisibleFlag();
    table->saveVisibleFlag(false);
    table->hideAlgTable();
    table->setVisibleByID(600, false);
    table->setVisibleByOrderType(ttservice::EOrderType(13), true);
    QCoreApplication::processEvents();
    QCOMPARE(host.take(), QStringList());
    QCOMPARE(table->hooks, QStringList());
}

QTEST_MAIN(tst_Visibility)
#include "tst_Visibility.moc"
