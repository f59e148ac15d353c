#include "faults/LogLines.h"
#include "faults/ThrowingPanel.h"
#include "support/FaultCount.h"
#include "support/ModuleGuard.h"

#include "reference/toolkit/PersonEvents.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>

#include <QPointer>
#include <QtTest>

using namespace faults;
using namespace support;

namespace {

/// What a person does at a table, as its cell table and its buttons tell it.
struct PersonEvent
{
    const char* name;
    int event;
    int a;
    QVariant data;
};

// clang-format off
const PersonEvent kPersonEvents[] = {
    {"button 600", 5, 600, {}}, {"button 601", 5, 601, {}}, {"button 605", 5, 605, {}},
    {"price type", 73, 0x1, 5}, {"base volume", 73, 0x10, 11}, {"minimum", 87, 0x200, {}}, {"unit", 118, 0x2, {}},
    {"period", 101, 0x800, {}}, {"line", 102, 0x4000000, {}}, {"double click", 97, 0x1, {}},
    {"filter applied", 124, 0, {}},
};

} // namespace

/// A host may throw out of every event and hook. The exception reaches whoever called; the table is through with what
/// it was asked, shows what it is, keeps what was entered and goes on.
class tst_ThrowingListener : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanupTestCase();
    void everyCauseAtEveryPoint_data();
    void everyCauseAtEveryPoint();
    void aPersonsEventIsCaughtAtEveryPoint_data();
    void aPersonsEventIsCaughtAtEveryPoint();
    void aModeThatCannotBeSavedIsNotLeft_data();
    void aModeThatCannotBeSavedIsNotLeft();
    void whoDeletesAndThrows_data();
    void whoDeletesAndThrows();
    void theFirstOfManyArrives();

private:
    FaultCount m_count{"throwing listeners"};
    int m_said = 0; ///< how often an exception from a person's event was written to the log
};

void tst_ThrowingListener::cleanupTestCase()
{
    m_count.say();
    QCOMPARE(m_said, 1);
}

void tst_ThrowingListener::everyCauseAtEveryPoint_data()
{
    QTest::addColumn<int>("cause");
    const std::vector<Cause> all = causes();
    for (std::size_t i = 0; i < all.size(); ++i)
        QTest::newRow(all[i].name) << int(i);
}

void tst_ThrowingListener::everyCauseAtEveryPoint()
{
    QFETCH(int, cause);
    const ModuleGuard on({modules::kCommandRemark, modules::kAlgorithm3});
    const ClientModeGuard mode(100);
    const auto act = causes().at(std::size_t(cause)).act;
    ThrowingPanel undisturbed(-1);
    act(*undisturbed.panel.table);
    const QString expected = seen(*undisturbed.panel.table);
    undisturbed.listenQuietly();
    act(*undisturbed.panel.table);
    const QStringList expectedNext = undisturbed.panel.host.take();
    QVERIFY(!undisturbed.steps.isEmpty());
    for (int point = 0; point < undisturbed.steps.size(); ++point) {
        // A switch of the mode saves first, and does not take place without.
        if (point == 0 && undisturbed.steps.first() == QLatin1String("save")
            && undisturbed.steps.contains(QStringLiteral("1064")))
            continue;
        m_count.begin();
        const QString where = QStringLiteral("%1 at point %2: ").arg(undisturbed.steps.at(point)).arg(point);
        ThrowingPanel panel(point);
        QCOMPARE(caughtFrom([&] { act(*panel.panel.table); }), point);
        QCOMPARE(panel.steps, undisturbed.steps);
        const QString now = seen(*panel.panel.table);
        QVERIFY2(now == expected, qPrintable(where + now + QStringLiteral("\nexpected\n") + expected));
        panel.listenQuietly();
        act(*panel.panel.table);
        QCOMPARE(panel.panel.host.take(), expectedNext);
        m_count.end();
    }
}

void tst_ThrowingListener::aPersonsEventIsCaughtAtEveryPoint_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < int(std::size(kPersonEvents)); ++i)
        QTest::newRow(kPersonEvents[i].name) << i;
}

void tst_ThrowingListener::aPersonsEventIsCaughtAtEveryPoint()
{
    QFETCH(int, row);
    const PersonEvent& person = kPersonEvents[row];
    const auto act = [&person](BaseTableProbe& table) {
        if (person.event == 5)
            table.m_btnGroup->setCheckedByID(person.a);
        WQ::postPersonEvent(table.m_table, *table.m_table, person.event, person.a, 0, QStringLiteral("text"),
                            person.data, person.data.isValid());
        WQ::postPersonEvent(table.m_table, *table.m_table, 97, 0, 0, QStringLiteral("next"));
        QCoreApplication::processEvents();
    };
    ThrowingPanel undisturbed(-1);
    act(*undisturbed.panel.table);
    const int points = undisturbed.steps.size();
    QCOMPARE(undisturbed.steps.last(), QStringLiteral("130"));
    for (int point = 0; point < points; ++point) {
        if (point == 0 && person.event == 5)
            continue;
        m_count.begin();
        ThrowingPanel panel(point);
        {
            const LogLines log;
            act(*panel.panel.table);
            m_said += LogLines::warnings().size();
        }
        QStringList expected = undisturbed.steps;
        // What the table heard goes on to its host unless it is dropped.
        const int raw = expected.indexOf(QString::number(person.event));
        if (raw > point)
            expected.removeAt(raw);
        QCOMPARE(panel.steps, expected);
        QCOMPARE(seen(*panel.panel.table), seen(*undisturbed.panel.table));
        m_count.end();
    }
}

void tst_ThrowingListener::aModeThatCannotBeSavedIsNotLeft_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    for (const int from : {600, 601, 605}) {
        for (const int to : {600, 601, 602, 605})
            QTest::addRow("from %d to %d", from, to) << from << to;
    }
}

void tst_ThrowingListener::aModeThatCannotBeSavedIsNotLeft()
{
    QFETCH(int, from);
    QFETCH(int, to);
    m_count.begin();
    ThrowingPanel panel(-1);
    BaseTableProbe& table = *panel.panel.table;
    table.sendEvent(5, from);
    table.m_table->setItemInt(0x200, 777);
    const QString before = seen(table);
    table.onSave = [] { throw Thrown{7}; };
    panel.panel.host.take();
    table.m_btnGroup->setCheckedByID(to);
    QCOMPARE(caughtFrom([&] { table.sendEvent(5, to); }), 7);
    QCOMPARE(seen(table), before);
    QCOMPARE(table.m_table->itemInt(0x200), 777);
    QCOMPARE(panel.panel.host.take(), QStringList());
    panel.listenQuietly();
    table.sendEvent(5, to);
    QCOMPARE(int(table.orderType()), to - 600);
    QCOMPARE(table.getSelectedButton(), to);
    m_count.end();
}

void tst_ThrowingListener::whoDeletesAndThrows_data()
{
    everyCauseAtEveryPoint_data();
}

void tst_ThrowingListener::whoDeletesAndThrows()
{
    QFETCH(int, cause);
    const ModuleGuard on({modules::kCommandRemark, modules::kAlgorithm3});
    const ClientModeGuard mode(100);
    const auto act = causes().at(std::size_t(cause)).act;
    ThrowingPanel undisturbed(-1);
    act(*undisturbed.panel.table);
    for (int point = 0; point < undisturbed.steps.size(); ++point) {
        m_count.begin();
        ThrowingPanel panel(-1);
        const QPointer<BaseTableProbe> table = panel.panel.table;
        int step = 0;
        const auto hook = [&] {
            if (step++ != point)
                return;
            delete table.data();
            throw Thrown{point};
        };
        table->onSave = table->onReload = hook;
        panel.panel.host.onEvent = [&](int) { hook(); };
        QCOMPARE(caughtFrom([&] { act(*table); }), point);
        QVERIFY(!table);
        QCOMPARE(step, point + 1);
        m_count.end();
    }
}

void tst_ThrowingListener::theFirstOfManyArrives()
{
    Panel panel;
    QList<int> heard;
    panel.host.onEvent = [&](int number) {
        heard << number;
        throw Thrown{number};
    };
    panel.table->onSave = [] { throw Thrown{1}; };
    QCOMPARE(caughtFrom([&] { panel.table->setFixedPrice(2.5); }), 1061);
    QCOMPARE(heard, QList<int>({1061, 129}));
    QCOMPARE(panel.table->m_originalPrice, 2.5);
    panel.table->onSave = nullptr;
    heard.clear();
    QCOMPARE(caughtFrom([&] { panel.table->sendEvent(5, 605); }), 1064);
    QCOMPARE(heard, QList<int>({1064, 1061, 1062, 129, 1206}));
    QVERIFY(panel.cells().isHidden());
}

QTEST_MAIN(tst_ThrowingListener)
#include "tst_ThrowingListener.moc"
