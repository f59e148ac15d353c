#include "credit/CreditPanel.h"
#include "support/FaultCount.h"

#include <QPointer>
#include <QRegularExpression>
#include <QTest>

#include <functional>
#include <memory>
#include <stdexcept>

using support::CreditProbe;

namespace {

/// A call that sends events, with their numbers in order.
struct Sender
{
    const char* name;
    std::function<void(CreditProbe&)> call;
    QList<int> events;
};

const Sender kSenders[] = {
    {"reading a text", [](CreditProbe& table) { table.setParam(QStringLiteral("22+")); }, {1083, 73}},
    {"reading a text with a code",
     [](CreditProbe& table) { table.setParam(QStringLiteral("22+22-726=A-727=X-728=1-729=2")); },
     {73}},
    {"reading an unknown operation", [](CreditProbe& table) { table.setParam(QStringLiteral("99+")); }, {1083, 73}},
    {"choosing an account", [](CreditProbe& table) { table.setSelectAccount("A1"); }, {73}},
    {"an emptied code", [](CreditProbe& table) { table.fixCodeChanged(QString()); }, {1083}},
    {"laying the rows out", [](CreditProbe& table) { table.refreshUIData(); }, {1083, 73}},
};

/// Who dies while the event is delivered.
enum class Victim { Table, Host, GrandHost };

/// A table below two hosts, all on the heap.
struct Family
{
    Family()
        : grandHost(new support::EventLog)
        , host(new support::EventLog(grandHost))
        , table(new CreditProbe(host))
    {
    }

    ~Family()
    {
        delete grandHost;
    }

    QPointer<support::EventLog> grandHost;
    QPointer<support::EventLog> host;
    QPointer<CreditProbe> table;
};

void addSenderEvents()
{
    QTest::addColumn<int>("sender");
    QTest::addColumn<int>("event");
    for (int i = 0; i < int(std::size(kSenders)); ++i) {
        for (const int event : kSenders[i].events)
            QTest::addRow("%s, in %d", kSenders[i].name, event) << i << event;
    }
}

} // namespace

class tst_CreditDeletedByListener : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theListedEventsAreSent();
    void theTableDies_data()
    {
        addSenderEvents();
    }
    void theTableDies()
    {
        dies(Victim::Table);
    }
    void itsHostDies_data()
    {
        addSenderEvents();
    }
    void itsHostDies()
    {
        dies(Victim::Host);
    }
    void theHostsHostDies_data()
    {
        addSenderEvents();
    }
    void theHostsHostDies()
    {
        dies(Victim::GrandHost);
    }
    void aListenerReadsAnotherText_data()
    {
        addSenderEvents();
    }
    void aListenerReadsAnotherText();
    void aListenerThatFeedsItselfIsCutOff();
    void whatAListenerThrowsReachesTheCaller_data()
    {
        addSenderEvents();
    }
    void whatAListenerThrowsReachesTheCaller();

    void cleanupTestCase();

private:
    void dies(Victim victim);

    FaultCount m_deletions{"deletion of a credit table by its host"};
};

void tst_CreditDeletedByListener::theListedEventsAreSent()
{
    for (const Sender& sender : kSenders) {
        CreditPanel panel;
        sender.call(*panel.table);
        QCOMPARE(panel.host.takeNumbers(), sender.events);
    }
}

void tst_CreditDeletedByListener::dies(Victim victim)
{
    QFETCH(int, sender);
    QFETCH(int, event);
    Family family;
    QList<int> heard;
    family.host->onEvent = [&family, &heard, event, victim](int arrived) {
        heard << arrived;
        if (arrived != event)
            return;
        switch (victim) {
        case Victim::Table:
            delete family.table;
            break;
        case Victim::Host:
            delete family.host;
            break;
        case Victim::GrandHost:
            delete family.grandHost;
            break;
        }
    };
    m_deletions.begin();
    kSenders[sender].call(*family.table);
    QVERIFY(!family.table);
    const QList<int>& all = kSenders[sender].events;
    QCOMPARE(heard, all.mid(0, all.indexOf(event) + 1));
    m_deletions.end();
}

void tst_CreditDeletedByListener::aListenerReadsAnotherText()
{
    QFETCH(int, sender);
    QFETCH(int, event);
    CreditPanel panel;
    bool isFirst = true;
    panel.host.onEvent = [&](int arrived) {
        if (arrived == event && std::exchange(isFirst, false))
            panel.table->setParam(QStringLiteral("1021+1021-726=A-727=Y-728=3-730=4"));
    };
    kSenders[sender].call(*panel.table);
    QVERIFY(!isFirst);
    QCOMPARE(panel.table->m_operationType, 1021);
    QCOMPARE(panel.row(728), QStringLiteral("未还融券合约息费: \"3.00\" 元, fixed"));
    QCOMPARE(panel.row(730), QStringLiteral("可还款资金: \"4.00\" 元, fixed"));
    QVERIFY(panel.row(729).contains(QStringLiteral("hidden")));
    QVERIFY(panel.row(731).contains(QStringLiteral("hidden")));
    QVERIFY(panel.table->param().startsWith(QStringLiteral("1021+")));
}

void tst_CreditDeletedByListener::aListenerThatFeedsItselfIsCutOff()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("event 73 cut off")));
    CreditPanel panel;
    int heard = 0;
    panel.host.onEvent = [&](int) {
        ++heard;
        panel.table->setSelectAccount("A1");
    };
    panel.table->setSelectAccount("A1");
    QCOMPARE(heard, 64);
}

void tst_CreditDeletedByListener::whatAListenerThrowsReachesTheCaller()
{
    QFETCH(int, sender);
    QFETCH(int, event);
    CreditPanel panel;
    panel.host.onEvent = [event](int arrived) {
        if (arrived == event)
            throw std::runtime_error("the listener's own");
    };
    QVERIFY_EXCEPTION_THROWN(kSenders[sender].call(*panel.table), std::runtime_error);
    panel.host.onEvent = nullptr;
    panel.host.take();
    panel.table->setParam(QStringLiteral("24+"));
    QCOMPARE(panel.row(728), QStringLiteral("负债金额: \"0.00\" 元, fixed"));
    QCOMPARE(panel.host.takeNumbers(), (QList<int>{1083, 73}));
}

void tst_CreditDeletedByListener::cleanupTestCase()
{
    m_deletions.say();
}

QTEST_MAIN(tst_CreditDeletedByListener)
#include "support/FaultCount.h"
#include "tst_CreditDeletedByListener.moc"
