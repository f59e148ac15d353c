#include "contract/RecordedPanel.h"
#include "contract/Sequences.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using contract::cellVisibilities;
using contract::lines;
using contract::RecordedPanel;
using contract::setupOf;
using support::TableSetup;

/// What the table calls, delivers and asks when events of the toolkit reach it, in order.
class tst_ContractEvents : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cellChangeSavesFitsAndAnnounces();
    void baseVolumeShowsTheTailVolume_data();
    void baseVolumeShowsTheTailVolume();
    void numberChangesLimitTheirCounterparts_data();
    void numberChangesLimitTheirCounterparts();
    void numberChangesOfAParameterSetAreNotHeard();
    void numberChangesBeforeTheTableIsReadyLimitAlone();
    void textChangesAnnounceWithoutText_data();
    void textChangesAnnounceWithoutText();
    void doubleClickIsPassedOnAs130();
    void appliedFilterIsSavedAndFitted();
    void resetFilterRecomputesAndRefreshesTheFilter();
    void neededHeightLaysOutAlone();
    void eventsThatAreTakenAndCallNothing_data();
    void eventsThatAreTakenAndCallNothing();
    void otherEventsReachTheToolkitBase_data();
    void otherEventsReachTheToolkitBase();
    void eventsDuringConstructionAreNotHeard_data();
    void eventsDuringConstructionAreNotHeard();
};

void tst_ContractEvents::init()
{
    recorder::reset();
}

void tst_ContractEvents::cellChangeSavesFitsAndAnnounces()
{
    RecordedPanel panel;

    QVERIFY(!panel.table.sendCellChanged(0x1, QStringLiteral("最新价"), 5));

    QCOMPARE(recorder::calls(), lines(R"(
        save()
        table.setFixedHeight(realHeight)
        deliver(129, 5, 0, "最新价", null)
    )"));
}

void tst_ContractEvents::baseVolumeShowsTheTailVolume_data()
{
    QTest::addColumn<int>("volume");
    for (int volume = -1; volume <= 13; ++volume)
        QTest::addRow("volume type %d", volume) << volume;
}

void tst_ContractEvents::baseVolumeShowsTheTailVolume()
{
    QFETCH(int, volume);
    RecordedPanel panel;

    QVERIFY(!panel.table.sendCellChanged(0x10, QStringLiteral("volume"), volume));

    const QStringList expected = lines(R"(
        save()
        table.setFixedHeight(realHeight)
        deliver(129, 5, 0, "volume", null)
    )");
    QCOMPARE(recorder::calls(),
             QStringList{QStringLiteral("table.setItemHidden(0x40, %1)").arg(recorder::written(volume != 11))}
                 + expected);
}

void tst_ContractEvents::numberChangesLimitTheirCounterparts_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<int>("cell");
    QTest::addColumn<QString>("call");
    for (const int event : {87, 118}) {
        QTest::addRow("%d, limiting cell", event)
            << event << 0x4000 << QStringLiteral("table.resetCellRange(0x8000, 0.5, 0.0)");
        QTest::addRow("%d, smallest volume", event)
            << event << 0x200 << QStringLiteral("table.resetCellRange(0x400, 700.0, 900.0)");
        QTest::addRow("%d, largest volume", event)
            << event << 0x400 << QStringLiteral("table.resetCellRange(0x200, 300.0, 800.0)");
        QTest::addRow("%d, another cell", event) << event << 0x1000 << QString();
    }
}

void tst_ContractEvents::numberChangesLimitTheirCounterparts()
{
    QFETCH(int, event);
    QFETCH(int, cell);
    QFETCH(QString, call);
    RecordedPanel panel;
    panel.table.m_table->resetCellRange(0x200, 300.0, 600.0);
    panel.table.m_table->resetCellRange(0x400, 200.0, 900.0);
    panel.table.m_table->setItemInt(0x200, 700);
    panel.table.m_table->setItemInt(0x400, 800);
    recorder::clear();

    QVERIFY(!panel.table.sendEvent(event, cell, QStringLiteral("700")));

    const QStringList limits = call.isEmpty() ? QStringList() : QStringList{call};
    QCOMPARE(recorder::calls(), limits + lines(R"(save()
                                                  deliver(129, 5, 0, "700", null))"));
}

void tst_ContractEvents::numberChangesOfAParameterSetAreNotHeard()
{
    RecordedPanel panel;
    panel.table.m_paramIndex = 1;
    for (const int event : {87, 118}) {
        for (const int cell : {0x2, 0x200, 0x400, 0x4000}) {
            QVERIFY(!panel.table.sendEvent(event, cell, QStringLiteral("7")));
            QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
        }
    }
}

void tst_ContractEvents::textChangesAnnounceWithoutText_data()
{
    QTest::addColumn<int>("event");
    QTest::newRow("101") << 101;
    QTest::newRow("102") << 102;
}

void tst_ContractEvents::textChangesAnnounceWithoutText()
{
    QFETCH(int, event);
    RecordedPanel panel;

    QVERIFY(!panel.table.sendEvent(event, 0x800, QStringLiteral("text")));

    QCOMPARE(recorder::calls(recorder::kEverything), lines(R"(save()
                                                              deliver(129, 5, 0, "", null))"));
}

void tst_ContractEvents::doubleClickIsPassedOnAs130()
{
    RecordedPanel panel;

    QVERIFY(panel.table.sendEvent(97, 0x2, QStringLiteral("text")));

    QCOMPARE(recorder::calls(recorder::kEverything), lines(R"(deliver(130, 5, 0, "text", null))"));
}

void tst_ContractEvents::appliedFilterIsSavedAndFitted()
{
    RecordedPanel panel;
    panel.table.m_table->setVisibleItemSet({0x1, 0x800});
    recorder::clear();

    QVERIFY(!panel.table.sendEvent(124, 0));

    QCOMPARE(recorder::calls(recorder::kActs | recorder::Ask), lines(R"(
        table.getVisibleItemIdSet()
        save()
        table.realHeight()
        table.setFixedHeight(realHeight)
        table.realHeight()
        scroll.getScrollBarWidth()
    )"));
    QCOMPARE(panel.table.m_visibleFlags[0], 0x801u);
}

void tst_ContractEvents::resetFilterRecomputesAndRefreshesTheFilter()
{
    RecordedPanel panel;
    panel.table.m_visibleFlags = {0x3, 0x5, 0x9, 0x11};
    panel.table.m_orderType = ttservice::EOrderType(2);

    QVERIFY(panel.table.sendEvent(248, 0));

    QCOMPARE(recorder::calls(), cellVisibilities({2, false, 0x188B, 0}) + lines("table.setMultiFilterWidgetParam()"));
    QCOMPARE(panel.table.m_visibleFlags, (std::array<quint32, 4>{0x3, 0x5, 0x0, 0x11}));
}

void tst_ContractEvents::neededHeightLaysOutAlone()
{
    RecordedPanel panel;

    QVERIFY(!panel.table.sendEvent(1071, 0));

    QCOMPARE(recorder::calls(), QStringList());
    QCOMPARE(recorder::calls(recorder::Ask), lines("table.realHeight()\n scroll.getScrollBarWidth()"));
}

void tst_ContractEvents::eventsThatAreTakenAndCallNothing_data()
{
    QTest::addColumn<int>("event");
    QTest::newRow("249") << 249;
    QTest::newRow("1213, the price type from outside") << 1213;
}

void tst_ContractEvents::eventsThatAreTakenAndCallNothing()
{
    QFETCH(int, event);
    RecordedPanel panel;
    int value = 6;

    QVERIFY(panel.table.handleEvent(event, 0, 0, QStringLiteral("text"), event == 1213 ? &value : nullptr));

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractEvents::otherEventsReachTheToolkitBase_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<int>("a");
    for (const int event : {0, 1, 4, 6, 72, 74, 86, 100, 123, 129, 130, 250, 1061, 1064, 1206, 1214, -1})
        QTest::addRow("event %d", event) << event << 1;
    for (const int button : {-1, 0, 599})
        QTest::addRow("a click of button %d", button) << 5 << button;
}

void tst_ContractEvents::otherEventsReachTheToolkitBase()
{
    QFETCH(int, event);
    QFETCH(int, a);
    RecordedPanel panel;
    int value = 0;

    // The recorder's base answers true, and that is what comes back.
    QVERIFY(panel.table.handleEvent(event, a, 7, QStringLiteral("text"), &value));

    QCOMPARE(recorder::calls(recorder::kEverything),
             QStringList{QStringLiteral("CBaseWidget::handleEvent(%1, %2, 7, \"text\", data)").arg(event).arg(a)});
}

void tst_ContractEvents::eventsDuringConstructionAreNotHeard_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<int>("cell");
    QTest::newRow("73 of the price type") << 73 << 0x1;
    QTest::newRow("73 of the base volume") << 73 << 0x10;
    QTest::newRow("101") << 101 << 0x800;
    QTest::newRow("102") << 102 << 0x4000000;
}

void tst_ContractEvents::eventsDuringConstructionAreNotHeard()
{
    QFETCH(int, event);
    QFETCH(int, cell);
    RecordedPanel panel;
    panel.table.m_ready = false;
    QVariant value = 11;

    QVERIFY(!panel.table.handleEvent(event, cell, 0, QStringLiteral("text"), &value));

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractEvents::numberChangesBeforeTheTableIsReadyLimitAlone()
{
    RecordedPanel panel;
    panel.table.m_ready = false;

    QVERIFY(!panel.table.sendEvent(87, 0x200));

    QCOMPARE(recorder::calls(), lines("table.resetCellRange(0x400, 10000.0, 1000000.0)"));
}

QTEST_MAIN(tst_ContractEvents)
#include "tst_ContractEvents.moc"
