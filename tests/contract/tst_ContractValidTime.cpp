#include "contract/RecordedPanel.h"

#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

#include <QDateTime>
#include <QtTest>

using contract::lines;

namespace {

/// A global table with its records within reach.
class GlobalTable : public TC::CGlobalOrderParamTable
{
public:
    GlobalTable()
        : TC::CGlobalOrderParamTable(TC::EOpParamWidgetID(31), ttservice::ENVBrokerType(2), true, nullptr, true,
                                     ttservice::ENvTraderType(1), false)
    {
        recorder::clear();
    }

    ttservice::COrderSetting& record(int orderType)
    {
        return m_settingsByOrderType[orderType];
    }

    void setStoredType(int orderType)
    {
        m_orderType = ttservice::EOrderType(orderType);
    }

    using TC::CGlobalOrderParamTable::reloadParam;
};

int secondsOf(const QDate& day, int hour, int minute)
{
    return int(QDateTime(day, QTime(hour, minute)).toSecsSinceEpoch());
}

const QDate kLastWeek(2024, 3, 4);
const QDate kToday(2024, 3, 11);

} // namespace

/// What moving valid times onto today asks of the clock, the cell and the conversions.
class tst_ContractValidTime : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void settingsAreMovedOntoTheDayOfTheClock();
    void typesWithoutValidTimeAskNoClock_data();
    void typesWithoutValidTimeAskNoClock();
    void durationStartsAtTheClock();
    void clockRangeIsMovedOntoTheDayOfTheClock();
};

void tst_ContractValidTime::init()
{
    recorder::reset();
}

void tst_ContractValidTime::settingsAreMovedOntoTheDayOfTheClock()
{
    GlobalTable table;
    table.setStoredType(1);
    ttservice::COrderSetting& setting = table.record(1);
    setting.orderType = ttservice::EOrderType(1);
    setting.validTimeStart = secondsOf(kLastWeek, 9, 30);
    setting.validTimeEnd = secondsOf(kLastWeek, 10, 0);
    recorder::state().now = secondsOf(kToday, 13, 45);

    table.fixTimeRange();

    QCOMPARE(setting.validTimeStart, secondsOf(kToday, 9, 30));
    QCOMPARE(setting.validTimeEnd, secondsOf(kToday, 10, 0));
    const QStringList calls = recorder::calls(recorder::kEverything);
    QCOMPARE(calls.mid(0, 2), lines("getTimeService()\n clock.currentTime()"));
    QVERIFY(calls.contains(QStringLiteral("secondsToDateTime(%1)").arg(recorder::state().now)));
    QVERIFY(calls.contains(QStringLiteral("secondToQDateTime(%1)").arg(secondsOf(kLastWeek, 9, 30))));
    QCOMPARE(calls.last(), QStringLiteral("qDateTimeToSecond(\"2024-03-11T09:30:00\")"));
    QCOMPARE(calls.size(), 5);
}

void tst_ContractValidTime::typesWithoutValidTimeAskNoClock_data()
{
    QTest::addColumn<int>("orderType");
    QTest::newRow("0") << 0;
    QTest::newRow("6") << 6;
}

void tst_ContractValidTime::typesWithoutValidTimeAskNoClock()
{
    QFETCH(int, orderType);
    GlobalTable table;
    table.setStoredType(orderType);
    table.record(orderType).orderType = ttservice::EOrderType(orderType);
    ttservice::CCodeOrderParam task;
    task.orderType = ttservice::EOrderType(orderType);

    table.fixTimeRange();
    table.transferTimePeriod(&task);

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractValidTime::durationStartsAtTheClock()
{
    GlobalTable table;
    recorder::state().now = secondsOf(kToday, 13, 45);
    recorder::state().timeRangeType = 0;
    recorder::state().timeElapse = 600;
    ttservice::CCodeOrderParam task;
    task.orderType = ttservice::EOrderType(1);

    table.transferTimePeriod(&task);

    QCOMPARE(task.validTimeStart, int(recorder::state().now));
    QCOMPARE(task.validTimeEnd, int(recorder::state().now) + 600);
    QStringList calls = recorder::calls(recorder::kEverything);
    QCOMPARE(calls.takeFirst(), QStringLiteral("table.itemTimeRangeType(0x800)"));
    calls.sort();
    QCOMPARE(calls, lines("clock.currentTime()\n getTimeService()\n table.timeElapse(0x800)"));
}

void tst_ContractValidTime::clockRangeIsMovedOntoTheDayOfTheClock()
{
    GlobalTable table;
    recorder::state().now = secondsOf(kToday, 13, 45);
    recorder::state().timeRange = {secondsOf(kLastWeek, 9, 15), secondsOf(kLastWeek, 14, 57)};
    ttservice::CCodeOrderParam task;
    for (const int type : {1, 2, 7}) { // neither of them a duration
        recorder::state().timeRangeType = type;
        recorder::clear();
        task.orderType = ttservice::EOrderType(type);

        table.transferTimePeriod(&task);

        QCOMPARE(task.validTimeStart, secondsOf(kToday, 9, 15));
        QCOMPARE(task.validTimeEnd, secondsOf(kToday, 14, 57));
        const QStringList calls = recorder::calls(recorder::kEverything);
        QCOMPARE(calls.first(), QStringLiteral("table.itemTimeRangeType(0x800)"));
        QVERIFY(calls.contains(QStringLiteral("table.timeRange(0x800)")));
        QVERIFY(calls.contains(QStringLiteral("clock.currentTime()")));
        QVERIFY(calls.filter(QStringLiteral("timeElapse")).isEmpty());
    }
}

QTEST_MAIN(tst_ContractValidTime)
#include "tst_ContractValidTime.moc"
