#include "reference/services/ServiceControl.h"

#include <TC/CTimeService.h>
#include <utils/secondsToDateTime.h>

#include <QDateTime>
#include <QtTest>

#include <ctime>
#include <limits>

namespace {

/// "2024-05-20 09:30:00"
QString localFields(qint64 seconds)
{
    int year = -1, month = -1, day = -1, hour = -1, minute = -1, second = -1;
    utils::secondsToDateTime(seconds, year, month, day, hour, minute, second);
    return QString::asprintf("%04d-%02d-%02d %02d:%02d:%02d", year, month, day, hour, minute, second);
}

void setTimeZone(const QByteArray& zone)
{
    qputenv("TZ", zone);
    tzset();
}

} // namespace

class tst_TimeService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        reference::resetServices();
        setTimeZone("Asia/Shanghai");
    }

    void theClockIsTheSystemsUnlessItIsFrozen()
    {
        const auto now = [] { return TC::getTimeService()->currentTime(); };
        const qint64 before = QDateTime::currentSecsSinceEpoch();
        QVERIFY(now() >= before);
        QVERIFY(now() <= QDateTime::currentSecsSinceEpoch());
        QVERIFY(!reference::frozenClock());
        reference::freezeClock(1716168600);
        QCOMPARE(now(), qint64(1716168600));
        QVERIFY(reference::frozenClock() == std::optional<qint64>(1716168600));
        reference::freezeClock(std::numeric_limits<qint64>::min());
        QCOMPARE(now(), std::numeric_limits<qint64>::min());
        reference::freezeClock(std::nullopt);
        QVERIFY(now() >= before);
        QVERIFY(!reference::frozenClock());
    }

    void secondsAreSplitInTheLocalTimeZone_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("fields");
        const auto row = [](const char* name, const char* zone, qint64 seconds, const char* fields) {
            QTest::newRow(name) << QByteArray(zone) << seconds << QString::fromLatin1(fields);
        };
        row("Shanghai, opening", "Asia/Shanghai", 1716168600, "2024-05-20 09:30:00");
        row("UTC, the same moment", "UTC", 1716168600, "2024-05-20 01:30:00");
        row("New York, summer time", "America/New_York", 1716168600, "2024-05-19 21:30:00");
        row("New York, last second of winter time", "America/New_York", 1710053999, "2024-03-10 01:59:59");
        row("New York, first second of summer time", "America/New_York", 1710054000, "2024-03-10 03:00:00");
        row("New York, first 01:30 of the autumn night", "America/New_York", 1730611800, "2024-11-03 01:30:00");
        row("New York, second 01:30 of the autumn night", "America/New_York", 1730615400, "2024-11-03 01:30:00");
        row("Shanghai, leap day", "Asia/Shanghai", 1709135999, "2024-02-28 23:59:59");
        row("Shanghai, after midnight", "Asia/Shanghai", 1709136000, "2024-02-29 00:00:00");
        row("Shanghai, year end", "Asia/Shanghai", 1735660799, "2024-12-31 23:59:59");
        row("UTC, the epoch", "UTC", 0, "1970-01-01 00:00:00");
        row("UTC, before the epoch", "UTC", -1, "1969-12-31 23:59:59");
    }

    void secondsAreSplitInTheLocalTimeZone()
    {
        QFETCH(QByteArray, zone);
        QFETCH(qint64, seconds);
        QFETCH(QString, fields);
        setTimeZone(zone);
        QCOMPARE(localFields(seconds), fields);
    }

    void secondsThatNoDateHoldsAnswerTheNearestOne()
    {
        const QString latest = localFields(std::numeric_limits<qint64>::max());
        const QString earliest = localFields(std::numeric_limits<qint64>::min());
        QVERIFY2(latest.startsWith(QLatin1String("2922789")), qPrintable(latest));
        QVERIFY2(earliest.startsWith(QLatin1String("-292275")), qPrintable(earliest));
        QCOMPARE(localFields(std::numeric_limits<qint64>::max() / 2), latest);
    }
};

QTEST_APPLESS_MAIN(tst_TimeService)
#include "tst_TimeService.moc"
