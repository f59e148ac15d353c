// Moving valid-time ranges onto today, in time zones with and without daylight saving.

#include "GlobalTableProbe.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/editors/PersonEdits.h"

#include <QtTest>

#include <climits>
#include <ctime>

using namespace ttservice;

namespace {

/// Whole seconds since the epoch, from a time in UTC.
int utc(const char* isoTime)
{
    return int(QDateTime::fromString(QString::fromLatin1(isoTime), Qt::ISODate).toSecsSinceEpoch());
}

void setZone(const QByteArray& zone)
{
    qputenv("TZ", zone);
    tzset();
}

constexpr int kValidTime = 0x800;

} // namespace

class tst_ValidTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theRangeOfARecordMovesOntoToday_data();
    void theRangeOfARecordMovesOntoToday();
    void theClockRangeOfTheCellGoesToday_data();
    void theClockRangeOfTheCellGoesToday();
    void aDurationStartsNow();
    void plainOrdersHaveNoRange_data();
    void plainOrdersHaveNoRange();
    void aMissingRecordIsAddedAndStays();
    void aNullTaskChangesNothing();
    void arithmeticWrapsAtTheEndsOf32Bits();
};

void tst_ValidTime::cleanup()
{
    reference::resetServices();
    setZone("Asia/Shanghai");
}

void tst_ValidTime::theRangeOfARecordMovesOntoToday_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("now");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("newStart");
    QTest::addColumn<int>("newEnd");

    const QByteArray shanghai = "Asia/Shanghai";   // UTC+8 all the year
    const QByteArray newYork = "America/New_York"; // UTC-5, in summer UTC-4
    const QByteArray kolkata = "Asia/Kolkata";     // UTC+5:30 all the year
    QTest::newRow("half an hour of last week, Shanghai")
        << shanghai << utc("2026-11-20T02:10:00Z") << utc("2026-11-13T01:30:00Z") << utc("2026-11-13T02:00:00Z")
        << utc("2026-11-20T01:30:00Z") << utc("2026-11-20T02:00:00Z");
    QTest::newRow("half an hour of last week, Kolkata")
        << kolkata << utc("2026-11-20T02:10:00Z") << utc("2026-11-13T04:00:00Z") << utc("2026-11-13T04:30:00Z")
        << utc("2026-11-20T04:00:00Z") << utc("2026-11-20T04:30:00Z");
    QTest::newRow("the same day stays") << newYork << utc("2026-11-20T20:00:00Z") << utc("2026-11-20T14:30:00Z")
                                        << utc("2026-11-20T21:00:00Z") << utc("2026-11-20T14:30:00Z")
                                        << utc("2026-11-20T21:00:00Z");
    // 09:30 to 16:00 in winter time onto a day of summer time: an hour earlier in UTC.
    QTest::newRow("from winter to summer time, New York")
        << newYork << utc("2026-03-10T15:00:00Z") << utc("2026-03-06T14:30:00Z") << utc("2026-03-06T21:00:00Z")
        << utc("2026-03-10T13:30:00Z") << utc("2026-03-10T20:00:00Z");
    // 01:30 to 04:30, three hours, on the day that has no hour from two to three: it ends at 05:30 local.
    QTest::newRow("over the spring change, the end's time of day moves")
        << newYork << utc("2026-03-08T15:00:00Z") << utc("2026-03-06T06:30:00Z") << utc("2026-03-06T09:30:00Z")
        << utc("2026-03-08T06:30:00Z") << utc("2026-03-08T09:30:00Z");
    // 00:30 to 04:30, four hours, on the day that has the hour from one to two twice: it ends at 03:30 local.
    QTest::newRow("over the autumn change, the end's time of day moves")
        << newYork << utc("2026-11-01T15:00:00Z") << utc("2026-10-30T04:30:00Z") << utc("2026-10-30T08:30:00Z")
        << utc("2026-11-01T04:30:00Z") << utc("2026-11-01T08:30:00Z");
    // 02:30 is not on that day's clock: it is the instant that would be 02:30 without the change.
    QTest::newRow("a start that the spring change skips")
        << newYork << utc("2026-03-08T15:00:00Z") << utc("2026-03-06T07:30:00Z") << utc("2026-03-06T08:30:00Z")
        << utc("2026-03-08T07:30:00Z") << utc("2026-03-08T08:30:00Z");
    QTest::newRow("a start that a change at midnight skips")
        << QByteArray("America/Sao_Paulo") << utc("2018-11-04T15:00:00Z") << utc("2018-10-30T03:30:00Z")
        << utc("2018-10-30T04:30:00Z") << utc("2018-11-04T03:30:00Z") << utc("2018-11-04T04:30:00Z");
    QTest::newRow("over the end of a month")
        << shanghai << utc("2026-02-28T16:10:00Z") << utc("2026-02-28T01:30:00Z") << utc("2026-02-28T07:00:00Z")
        << utc("2026-03-01T01:30:00Z") << utc("2026-03-01T07:00:00Z");
    QTest::newRow("onto a leap day") << shanghai << utc("2028-02-29T04:00:00Z") << utc("2028-02-28T01:30:00Z")
                                     << utc("2028-02-28T07:00:00Z") << utc("2028-02-29T01:30:00Z")
                                     << utc("2028-02-29T07:00:00Z");
    QTest::newRow("over the end of a year")
        << shanghai << utc("2026-12-31T16:00:05Z") << utc("2026-12-31T01:30:00Z") << utc("2026-12-31T07:00:00Z")
        << utc("2027-01-01T01:30:00Z") << utc("2027-01-01T07:00:00Z");
    // 22:00 to 02:00 of the next day keeps its four hours.
    QTest::newRow("past midnight") << shanghai << utc("2026-11-20T02:00:00Z") << utc("2026-11-12T14:00:00Z")
                                   << utc("2026-11-12T18:00:00Z") << utc("2026-11-20T14:00:00Z")
                                   << utc("2026-11-20T18:00:00Z");
    QTest::newRow("an end before its start keeps its negative length")
        << shanghai << utc("2026-11-20T02:00:00Z") << utc("2026-11-12T07:00:00Z") << utc("2026-11-12T06:00:00Z")
        << utc("2026-11-20T07:00:00Z") << utc("2026-11-20T06:00:00Z");
}

void tst_ValidTime::theRangeOfARecordMovesOntoToday()
{
    QFETCH(QByteArray, zone);
    QFETCH(int, now);
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(int, newStart);
    QFETCH(int, newEnd);
    setZone(zone);
    reference::freezeClock(now);
    GlobalTableProbe table;
    table.setOrderType(EOrderType(1));
    table.record(1).orderType = EOrderType(1);
    table.record(1).validTimeStart = start;
    table.record(1).validTimeEnd = end;
    table.fixTimeRange();
    QCOMPARE(table.record(1).validTimeStart, newStart);
    QCOMPARE(table.record(1).validTimeEnd, newEnd);
}

void tst_ValidTime::theClockRangeOfTheCellGoesToday_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("now");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");

    // A stock table's cell reads 09:30:00 to 15:00:00.
    QTest::newRow("Shanghai") << QByteArray("Asia/Shanghai") << utc("2026-11-20T02:10:00Z")
                              << utc("2026-11-20T01:30:00Z") << utc("2026-11-20T07:00:00Z");
    QTest::newRow("New York, winter time") << QByteArray("America/New_York") << utc("2026-11-20T02:10:00Z")
                                           << utc("2026-11-19T14:30:00Z") << utc("2026-11-19T20:00:00Z");
    QTest::newRow("New York, summer time") << QByteArray("America/New_York") << utc("2026-07-01T15:00:00Z")
                                           << utc("2026-07-01T13:30:00Z") << utc("2026-07-01T19:00:00Z");
    QTest::newRow("London, first day of a year") << QByteArray("Europe/London") << utc("2027-01-01T00:00:00Z")
                                                 << utc("2027-01-01T09:30:00Z") << utc("2027-01-01T15:00:00Z");
}

void tst_ValidTime::theClockRangeOfTheCellGoesToday()
{
    QFETCH(QByteArray, zone);
    QFETCH(int, now);
    QFETCH(int, start);
    QFETCH(int, end);
    setZone(zone);
    reference::freezeClock(now);
    GlobalTableProbe table;
    CCodeOrderParam task;
    task.orderType = EOrderType(1);
    table.transferTimePeriod(&task);
    QCOMPARE(task.validTimeStart, start);
    QCOMPARE(task.validTimeEnd, end);
    QCOMPARE(int(task.orderType), 1);
}

void tst_ValidTime::aDurationStartsNow()
{
    const int now = utc("2026-11-20T02:10:07Z");
    reference::freezeClock(now);
    GlobalTableProbe table;
    table.setOrderType(EOrderType(1));
    table.setExpandItemsHidden(false);
    table.show();
    WQ::PersonEdit edit;
    edit.duration = QStringLiteral("00:10:00");
    QVERIFY(WQ::applyPersonEdit(*table.getMultiParamsTable(), kValidTime, edit) == WQ::EditOutcome::Done);
    CCodeOrderParam task;
    task.orderType = EOrderType(1);
    table.transferTimePeriod(&task);
    QCOMPARE(task.validTimeStart, now);
    QCOMPARE(task.validTimeEnd, now + 600);
}

void tst_ValidTime::plainOrdersHaveNoRange_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("plain order") << 0;
    QTest::newRow("plain order as a task records it") << 6;
}

void tst_ValidTime::plainOrdersHaveNoRange()
{
    QFETCH(int, type);
    reference::freezeClock(utc("2026-11-20T02:10:00Z"));
    GlobalTableProbe table;
    table.record(0).orderType = EOrderType(type);
    table.record(0).validTimeStart = 1000;
    table.record(0).validTimeEnd = 2000;
    table.fixTimeRange();
    QCOMPARE(table.record(0).validTimeStart, 1000);
    QCOMPARE(table.record(0).validTimeEnd, 2000);

    CCodeOrderParam task;
    task.orderType = EOrderType(type);
    task.validTimeStart = 1000;
    task.validTimeEnd = 2000;
    table.transferTimePeriod(&task);
    QCOMPARE(task.validTimeStart, 1000);
    QCOMPARE(task.validTimeEnd, 2000);
}

void tst_ValidTime::aMissingRecordIsAddedAndStays()
{
    GlobalTableProbe table;
    table.setOrderType(EOrderType(1));
    table.fixTimeRange();
    QVERIFY(table.hasRecord(1));
    QCOMPARE(table.record(1).validTimeStart, 0);
    QCOMPARE(table.record(1).validTimeEnd, 0);
}

void tst_ValidTime::aNullTaskChangesNothing()
{
    GlobalTableProbe table;
    table.transferTimePeriod(nullptr);
    QCOMPARE(table.recordCount(), 0);
}

void tst_ValidTime::arithmeticWrapsAtTheEndsOf32Bits()
{
    GlobalTableProbe table;
    table.setOrderType(EOrderType(1));
    table.record(1).orderType = EOrderType(1);
    table.record(1).validTimeStart = INT_MIN;
    table.record(1).validTimeEnd = INT_MAX;
    reference::freezeClock(utc("2026-11-20T02:10:00Z"));
    table.fixTimeRange();
    // The length of 2^32 - 1 seconds is -1 in 32 bits.
    QCOMPARE(table.record(1).validTimeEnd, table.record(1).validTimeStart - 1);
}

QTEST_MAIN(tst_ValidTime)
#include "tst_ValidTime.moc"
