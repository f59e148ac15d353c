#include "contract/RecordedPanel.h"
#include "contract/Sequences.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using contract::cellVisibilities;
using contract::lines;
using contract::RecordedPanel;
using contract::setupOf;
using support::TableSetup;

namespace {

/// The visible cells of the default flags: the order type's mask without the tail volume, which needs the remaining
/// target volume, without the start count, and with the super price in any case.
constexpr quint32 kPlainCells = 0x3000003;
constexpr quint32 kAlgorithmCells = 0x2003FBB;

const char kTriggerModule[] = "mdl_order/mdl_order_trigger_price";
const char kStopModule[] = "mdl_order/mdl_order_stop_profit_loss";

} // namespace

/// Which calls show and hide the cells, in which order, and what is asked meanwhile.
class tst_ContractVisibility : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void recomputingCallsInOrder_data();
    void recomputingCallsInOrder();
    void expandedRecomputingCallsInOrder();
    void superPriceIsShownWithoutAnyFlag();
    void tailVolumeIsShownForTheRemainingTargetAlone();
    void bitsOutsideTheCatalogueAreHiddenAndShownAsWell();
    void stripIsShownOrHiddenByTheIdentity_data();
    void stripIsShownOrHiddenByTheIdentity();
    void algorithmOnlyTablesCheckButton601();
    void modulesAreAskedAtEachRecomputing_data();
    void modulesAreAskedAtEachRecomputing();
    void flagsRecomputeAndThenLimitTheSuperPrice_data();
    void flagsRecomputeAndThenLimitTheSuperPrice();
    void algorithmTableHidesTwoButtonsAlone();
    void buttonsByOrderType_data();
    void buttonsByOrderType();
    void enablingIsPassedOn();
};

void tst_ContractVisibility::init()
{
    recorder::reset();
}

void tst_ContractVisibility::recomputingCallsInOrder_data()
{
    QTest::addColumn<int>("orderType");
    QTest::addColumn<quint32>("visible");
    QTest::newRow("plain order") << 0 << kPlainCells;
    QTest::newRow("first algorithm") << 1 << kAlgorithmCells;
    QTest::newRow("random volumes") << 2 << 0x188Bu;
    QTest::newRow("third algorithm") << 3 << 0x82u;
    QTest::newRow("parameter set") << 5 << 0x3003FBBu;
}

void tst_ContractVisibility::recomputingCallsInOrder()
{
    QFETCH(int, orderType);
    QFETCH(quint32, visible);
    RecordedPanel panel;
    panel.table.m_orderType = ttservice::EOrderType(orderType);

    panel.table.resetCellVisibilities();

    QCOMPARE(recorder::calls(), cellVisibilities({orderType, false, visible, 0}));
}

void tst_ContractVisibility::expandedRecomputingCallsInOrder()
{
    RecordedPanel panel;
    panel.table.m_orderType = ttservice::EOrderType(1);
    panel.table.setExpandItemsHidden(false);
    recorder::clear();

    panel.table.resetCellVisibilities();

    QCOMPARE(recorder::calls(), cellVisibilities({1, true, kAlgorithmCells | 0x4, 0}));
}

void tst_ContractVisibility::superPriceIsShownWithoutAnyFlag()
{
    RecordedPanel panel;
    panel.table.m_flags = {};

    panel.table.resetCellVisibilities();

    QCOMPARE(recorder::calls(), cellVisibilities({0, false, 0x2, 0}));
}

void tst_ContractVisibility::bitsOutsideTheCatalogueAreHiddenAndShownAsWell()
{
    RecordedPanel panel;
    panel.table.m_flags = TC::OperationCellFlags(0xFFFFFFF);
    panel.table.m_orderType = ttservice::EOrderType(7);
    recorder::state().modulesOn = {QLatin1String(kTriggerModule), QLatin1String(kStopModule)};

    panel.table.resetCellVisibilities();

    QCOMPARE(recorder::calls(), cellVisibilities({7, false, 0xBFFFFBB, 0}));
}

void tst_ContractVisibility::stripIsShownOrHiddenByTheIdentity_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<bool>("shown");
    for (int id = 0; id <= 60; ++id)
        QTest::addRow("table %d", id) << id << !QSet<int>({10, 31, 32, 33, 34, 35, 52}).contains(id);
}

void tst_ContractVisibility::stripIsShownOrHiddenByTheIdentity()
{
    QFETCH(int, id);
    QFETCH(bool, shown);
    support::BaseTableProbe table(setupOf(id));
    recorder::clear();

    table.resetCellVisibilities();

    const QStringList calls = recorder::calls();
    QCOMPARE(calls.filter(QStringLiteral("strip.setVisible")),
             QStringList{QStringLiteral("strip.setVisible(%1)").arg(recorder::written(shown))});
    QCOMPARE(calls.indexOf(QStringLiteral("strip.setVisible(%1)").arg(recorder::written(shown))), 1);
    QVERIFY(calls.at(2).startsWith(QLatin1String("group.setCheckedByID(")));
}

void tst_ContractVisibility::algorithmOnlyTablesCheckButton601()
{
    for (const int id : {10, 35}) {
        RecordedPanel panel(setupOf(id));
        panel.table.m_orderType = ttservice::EOrderType(0);

        panel.table.resetCellVisibilities();

        QCOMPARE(recorder::calls(), cellVisibilities({1, false, kAlgorithmCells, 0}));
    }
}

void tst_ContractVisibility::modulesAreAskedAtEachRecomputing_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<int>("cell");
    QTest::newRow("remark") << QStringLiteral("mdl_order_command_remark") << 0x4000000;
    QTest::newRow("trigger price") << QStringLiteral("mdl_order_trigger_price") << 0x100000;
    QTest::newRow("stop profit") << QStringLiteral("mdl_order_stop_profit_loss") << 0x200000;
    QTest::newRow("stop loss") << QStringLiteral("mdl_order_stop_profit_loss") << 0x400000;
}

void tst_ContractVisibility::modulesAreAskedAtEachRecomputing()
{
    QFETCH(QString, module);
    QFETCH(int, cell);
    RecordedPanel panel;
    panel.table.m_flags = TC::OperationCellFlags(cell);
    const QString question = QStringLiteral("modules.isOn(\"mdl_order\", \"%1\")").arg(module);
    const QString hidden = QStringLiteral("table.setItemHidden(0x%1, ").arg(cell, 0, 16);
    // What resetTableByPriceType() hides again comes after the cells.
    const auto firstHiding = [&hidden] { return recorder::calls().filter(hidden).first(); };

    for (const bool isOn : {true, false, true}) {
        recorder::state().modulesOn.clear();
        if (isOn)
            recorder::state().modulesOn << QStringLiteral("mdl_order/") + module;
        recorder::clear();

        panel.table.resetCellVisibilities();

        QVERIFY(recorder::callsOf({QStringLiteral("modules.isOn")}).contains(question));
        QCOMPARE(firstHiding(), hidden + (isOn ? QLatin1String("false)") : QLatin1String("true)")));
    }
}

void tst_ContractVisibility::flagsRecomputeAndThenLimitTheSuperPrice_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<quint32>("visible");
    QTest::addColumn<QString>("limits");
    QTest::newRow("default flags") << 0x7103FFF << kPlainCells << QStringLiteral(R"(
        table.setItemUnit(0x2, "%", 0.0, 100.0, 0.0, false)
        table.setItemUnit(0x2, "元", 0.0, 1000000.0, 0.0, false))");
    QTest::newRow("other flags") << 0x7100003 << kPlainCells << QStringLiteral(R"(
        table.setItemUnit(0x2, "%", -100.0, 100.0, 0.0, false)
        table.setItemUnit(0x2, "元", -1000000.0, 1000000.0, 0.0, false))");
}

void tst_ContractVisibility::flagsRecomputeAndThenLimitTheSuperPrice()
{
    QFETCH(int, flags);
    QFETCH(quint32, visible);
    QFETCH(QString, limits);
    RecordedPanel panel;

    panel.table.setFlag(TC::OperationCellFlags(flags));

    QCOMPARE(recorder::calls(), cellVisibilities({0, false, visible, 0}) + lines(limits.toUtf8().constData()));
}

void tst_ContractVisibility::algorithmTableHidesTwoButtonsAlone()
{
    RecordedPanel panel;

    panel.table.hideAlgTable();

    QCOMPARE(recorder::calls(recorder::kEverything),
             lines("group.setVisibleByID(608, false)\n group.setVisibleByID(611, false)"));
}

void tst_ContractVisibility::buttonsByOrderType_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {-1, 0, 1, 5, 12, 13, 14, 613})
        QTest::addRow("order type %d", type) << type;
}

void tst_ContractVisibility::buttonsByOrderType()
{
    QFETCH(int, type);
    RecordedPanel panel;

    panel.table.setVisibleByOrderType(ttservice::EOrderType(type), true);
    panel.table.setVisibleByOrderType(ttservice::EOrderType(type), false);

    const QStringList both = lines("group.setVisibleByID(613, true)\n group.setVisibleByID(613, false)");
    QCOMPARE(recorder::calls(recorder::kEverything), type == 13 ? both : QStringList());
}

void tst_ContractVisibility::enablingIsPassedOn()
{
    RecordedPanel panel;

    panel.table.setAllItemEnable(false);
    panel.table.setAllItemEnable(true);

    QCOMPARE(recorder::calls(recorder::kEverything),
             lines("table.setAllItemEnable(false)\n table.setAllItemEnable(true)"));
}

void tst_ContractVisibility::tailVolumeIsShownForTheRemainingTargetAlone()
{
    RecordedPanel panel;
    panel.table.m_orderType = ttservice::EOrderType(1);
    for (const int volume : {0, 10, 11, 12}) {
        panel.table.m_table->setComboData(0x10, volume);
        recorder::clear();

        panel.table.resetCellVisibilities();

        QCOMPARE(recorder::calls(), cellVisibilities({1, false, kAlgorithmCells | (volume == 11 ? 0x40u : 0u), 0}));
    }
}

QTEST_MAIN(tst_ContractVisibility)
#include "tst_ContractVisibility.moc"
