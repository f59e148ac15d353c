#include "contract/RecordedPanel.h"
#include "contract/Sequences.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using contract::cellVisibilities;
using contract::lines;
using contract::RecordedPanel;
using contract::setupOf;
using contract::tableByPriceType;
using support::TableSetup;

namespace {

QStringList shown(bool visible)
{
    return lines(visible ? "table.setVisible(true)\n scroll.setVisible(true)"
                         : "table.setVisible(false)\n scroll.setVisible(false)");
}

/// The visible cells of the default flags while no module is on.
const QMap<int, quint32> kCells = {{0, 0x3000003}, {1, 0x2003FBB}, {2, 0x188B}, {3, 0x82}};
constexpr quint32 kParameterSetCells = 0x3003FBB;

} // namespace

/// What a click on an order-mode button calls and delivers, in order.
class tst_ContractModeClicks : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void plainModeClick_data();
    void plainModeClick();
    void plainModeClickWithoutPriceTypeAnnouncesNone();
    void plainModeClickWithAnOperationSendsNoClearing();
    void parameterSetClick_data();
    void parameterSetClick();
    void helpOfAPlainModeIsLeftAloneOnTablesWithTheirOwn();
    void visibleCellsAreReadBeforeSavingWhileCollapsed();
    void clicksBeforeTheTableIsReadyNeitherSaveNorAnnounce();
};

void tst_ContractModeClicks::init()
{
    recorder::reset();
}

void tst_ContractModeClicks::plainModeClick_data()
{
    QTest::addColumn<int>("orderType");
    QTest::addColumn<bool>("help");
    QTest::newRow("600") << 0 << false;
    QTest::newRow("601") << 1 << true;
    QTest::newRow("602") << 2 << true;
    QTest::newRow("603") << 3 << false;
}

void tst_ContractModeClicks::plainModeClick()
{
    QFETCH(int, orderType);
    QFETCH(bool, help);
    RecordedPanel panel(setupOf(6));
    panel.table.m_hintMap = {{orderType, true}};
    recorder::state().clientMode = 101;

    QVERIFY(panel.table.sendEvent(5, 600 + orderType, QStringLiteral("mode")));

    const contract::ShownCells cells{orderType, false, kCells.value(orderType), 0};
    QStringList expected = lines("save()\n reload()") + cellVisibilities(cells) + tableByPriceType(cells);
    expected << QStringLiteral("deliver(1064, 6, %1, \"mode\", null)").arg(orderType);
    expected << lines(R"(deliver(1061, 6, 11, "mode", null)
                         deliver(129, 6, 0, "mode", null))");
    expected << shown(true) << QStringLiteral("deliver(1206, 0, 0, \"mode\", this)");
    expected << QStringLiteral("group.setHelpButtonVisible(%1)").arg(recorder::written(help));
    expected << QStringLiteral("group.setHelpButtonCritical(true)");
    expected << QStringLiteral("deliver(1244, %1, 0, \"\", null)").arg(orderType);
    QCOMPARE(recorder::calls(), expected);
}

void tst_ContractModeClicks::plainModeClickWithoutPriceTypeAnnouncesNone()
{
    TableSetup setup = setupOf(6);
    setup.brokerType = 1;
    RecordedPanel panel(setup);

    panel.table.sendEvent(5, 602, QStringLiteral("mode"));

    QCOMPARE(recorder::calls(recorder::Send), lines(R"(
        deliver(1064, 6, 2, "mode", null)
        deliver(129, 6, 0, "mode", null)
        deliver(1206, 0, 0, "mode", this)
    )"));
}

void tst_ContractModeClicks::plainModeClickWithAnOperationSendsNoClearing()
{
    RecordedPanel panel;
    for (const int operation : {-2, -1, 0, 1, 21}) {
        panel.table.m_operationType = ttservice::EOperationType(operation);
        for (const int button : {601, 605}) {
            recorder::clear();
            panel.table.sendEvent(5, button, {});
            QCOMPARE(recorder::calls(recorder::Send).contains(QStringLiteral("deliver(1206, 0, 0, \"\", this)")),
                     operation < 0);
        }
    }
}

void tst_ContractModeClicks::parameterSetClick_data()
{
    QTest::addColumn<int>("orderType");
    QTest::addColumn<bool>("help");
    QTest::newRow("604") << 4 << false;
    QTest::newRow("605") << 5 << true;
    QTest::newRow("612") << 12 << false;
    QTest::newRow("613") << 13 << true;
}

void tst_ContractModeClicks::parameterSetClick()
{
    QFETCH(int, orderType);
    QFETCH(bool, help);
    RecordedPanel panel(setupOf(6));
    panel.table.m_hintMap = {{orderType, true}};
    recorder::state().clientMode = 100;

    QVERIFY(panel.table.sendEvent(5, 600 + orderType, QStringLiteral("set")));

    QStringList expected = lines("save()") + cellVisibilities({orderType, false, kParameterSetCells, 0});
    expected << QStringLiteral("deliver(1064, 6, %1, \"set\", null)").arg(orderType);
    expected << lines(R"(reload()
                         deliver(1061, 6, 12, "set", null)
                         deliver(1062, 6, 1, "clr_global_text", null)
                         deliver(129, 6, 0, "set", null))");
    expected << shown(false) << QStringLiteral("deliver(1206, 0, 0, \"set\", this)");
    const QStringList calls = recorder::calls();
    QCOMPARE(calls.mid(0, expected.size()), expected);
    QCOMPARE(calls.last(), QStringLiteral("deliver(1244, %1, 0, \"\", null)").arg(orderType));
    // However often it is set on the way, the help button ends as the mode wants it.
    QCOMPARE(recorder::callsOf({QStringLiteral("group.setHelpButtonVisible")}).last(),
             QStringLiteral("group.setHelpButtonVisible(%1)").arg(recorder::written(help)));
    QCOMPARE(recorder::callsOf({QStringLiteral("group.setHelpButtonCritical")}).last(),
             QStringLiteral("group.setHelpButtonCritical(true)"));
}

void tst_ContractModeClicks::helpOfAPlainModeIsLeftAloneOnTablesWithTheirOwn()
{
    for (const int id : {15, 30, 36, 40, 51}) {
        RecordedPanel panel(setupOf(id));

        panel.table.sendEvent(5, 601, {});

        QCOMPARE(recorder::calls().filter(QStringLiteral("group.setHelpButton")), QStringList());
    }
}

void tst_ContractModeClicks::visibleCellsAreReadBeforeSavingWhileCollapsed()
{
    for (const int button : {602, 605}) {
        RecordedPanel panel;
        panel.table.sendEvent(5, button);
        QCOMPARE(recorder::calls(recorder::Ask | recorder::Hook).mid(0, 2),
                 lines("table.getVisibleItemIdSet()\n save()"));

        panel.table.setExpandItemsHidden(false);
        recorder::clear();
        panel.table.sendEvent(5, button);
        QCOMPARE(recorder::callsOf({QStringLiteral("table.getVisibleItemIdSet")}), QStringList());
        QCOMPARE(recorder::calls(recorder::Hook), lines("save()\n reload()"));
    }
}

void tst_ContractModeClicks::clicksBeforeTheTableIsReadyNeitherSaveNorAnnounce()
{
    for (const int button : {602, 605}) {
        RecordedPanel panel;
        panel.table.m_ready = false;

        QVERIFY(panel.table.sendEvent(5, button));

        QCOMPARE(recorder::calls(recorder::Hook), lines("reload()"));
        QCOMPARE(recorder::calls(recorder::Send).filter(QStringLiteral("deliver(129, ")), QStringList());
        QCOMPARE(recorder::calls(recorder::Send).first(),
                 QStringLiteral("deliver(1064, 5, %1, \"\", null)").arg(button - 600));
    }
}

QTEST_MAIN(tst_ContractModeClicks)
#include "tst_ContractModeClicks.moc"
