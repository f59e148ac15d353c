#include "support/FaultCount.h"
#include "support/ModuleGuard.h"
#include "support/Panel.h"

#include <WQ/CMultiParamsTable.h>

#include <QPointer>
#include <QtTest>

#include <functional>
#include <memory>

using namespace support;

namespace {

/// What somebody does to a table; the table may be gone when it returns.
struct Cause
{
    const char* name;
    std::function<void(BaseTableProbe&)> act;
};

Cause priceTypeThen(const char* name, int priceType, std::function<void(BaseTableProbe&)> act)
{
    return {name, [priceType, act](BaseTableProbe& table) {
                offerPriceType(table, priceType);
                table.updateCurrentPriceTypeName();
                act(table);
            }};
}

Cause event(const char* name, int number, int a)
{
    return {name, [number, a](BaseTableProbe& table) { table.sendEvent(number, a, QStringLiteral("text")); }};
}

// clang-format off
std::vector<Cause> causes()
{
    const auto orderType = [](int type) {
        return [type](BaseTableProbe& table) { table.setOrderType(ttservice::EOrderType(type)); };
    };
    const auto operation = [](int type) {
        return [type](BaseTableProbe& table) { table.setOperationType(ttservice::EOperationType(type)); };
    };
    const auto click = [](int button) { return [button](BaseTableProbe& table) { table.sendEvent(5, button); }; };
    return {
        event("button 600", 5, 600),
        event("button 602", 5, 602),
        event("button 604", 5, 604),
        event("button 605", 5, 605),
        priceTypeThen("button 601 with a market price", 45, click(601)),
        priceTypeThen("button 601 with the after-hours price", 49, click(601)),
        {"price type changed", [](BaseTableProbe& table) { table.sendCellChanged(0x1, QStringLiteral("x"), 5); }},
        {"base volume changed", [](BaseTableProbe& table) { table.sendCellChanged(0x10, QStringLiteral("x"), 11); }},
        event("cell changed without data", 73, 0x1),
        event("minimum committed", 87, 0x200),
        event("maximum committed", 87, 0x400),
        event("unit switched", 118, 0x2),
        event("period committed", 101, 0x800),
        event("line committed", 102, 0x4000000),
        event("double click", 97, 0x1),
        event("filter applied", 124, 0),
        event("filter reset", 248, 0),
        {"price selected", [](BaseTableProbe& table) { table.selectPrice(ttservice::PRTP_BUY1); }},
        {"fixed price", [](BaseTableProbe& table) { table.setFixedPrice(1.5); }},
        priceTypeThen("quoted price", 5, [](BaseTableProbe& table) { table.setPriceImpl(2.5, QStringLiteral("x")); }),
        priceTypeThen("order type 5 with a market price", 45, orderType(5)),
        priceTypeThen("order type 13 with the after-hours price", 49, orderType(13)),
        {"order type 1", orderType(1)},
        priceTypeThen("operation with a market price", 45, operation(1)),
        priceTypeThen("operation with the after-hours price", 49, operation(1)),
        {"operation", operation(21)},
        priceTypeThen("display reset", 42, [](BaseTableProbe& table) { table.resetShowFixPrice(); }),
        {"records read", [](BaseTableProbe& table) { table.getOrderSettings(3); }},
        {"record reset", [](BaseTableProbe& table) { table.resetOrderParamSetting(); }},
        {"trigger price reset", [](BaseTableProbe& table) { table.resetTriggerPriceSetting(); }},
        {"algorithm buttons", [](BaseTableProbe& table) { table.setAlgoBtnVisible(); }},
    };
}
// clang-format on

enum class Victim { Table, Host };

/// A table whose host deletes it at one point of what a cause makes it do; -1 for never.
struct Deletion
{
    Deletion(int at, Victim what)
        : panel(std::make_unique<Panel>())
        , table(panel->table)
        , host(&panel->host)
        , point(at)
        , victim(what)
    {
        table->onSave = table->onReload = [this] { step(QStringLiteral("hook")); };
        host->onEvent = [this](int number) { step(QString::number(number)); };
    }

    void step(const QString& what)
    {
        steps << what;
        if (steps.size() - 1 != point)
            return;
        if (victim == Victim::Table)
            delete table.data();
        else
            panel.reset();
    }

    std::unique_ptr<Panel> panel;
    QPointer<BaseTableProbe> table;
    QPointer<EventLog> host;
    QStringList steps;
    const int point;
    const Victim victim;
};

} // namespace

/// The host may delete the table inside any event and any hook: nothing of the table is touched then.
class tst_DeletedByListener : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyCauseAtEveryPoint_data();
    void everyCauseAtEveryPoint();
    void everyEventIsReached();
    void recordReadByADeletedTableIsADefaultOne();
    void cleanupTestCase();

private:
    FaultCount m_deletions{"deletion of a table by its host"};
};

void tst_DeletedByListener::everyCauseAtEveryPoint_data()
{
    QTest::addColumn<int>("cause");
    QTest::addColumn<int>("victim");
    const std::vector<Cause> all = causes();
    for (std::size_t i = 0; i < all.size(); ++i) {
        QTest::addRow("%s, the table", all[i].name) << int(i) << int(Victim::Table);
        QTest::addRow("%s, the host with it", all[i].name) << int(i) << int(Victim::Host);
    }
}

void tst_DeletedByListener::everyCauseAtEveryPoint()
{
    QFETCH(int, cause);
    QFETCH(int, victim);
    const ModuleGuard on({modules::kCommandRemark, modules::kAlgorithm3});
    const ClientModeGuard mode(100);
    const Cause what = causes().at(std::size_t(cause));
    QStringList undisturbed;
    {
        Deletion none(-1, Victim::Table);
        what.act(*none.table);
        undisturbed = none.steps;
        QVERIFY(none.table);
    }
    for (int point = 0; point < undisturbed.size(); ++point) {
        Deletion deletion(point, Victim(victim));
        m_deletions.begin();
        what.act(*deletion.table);
        QVERIFY2(!deletion.table, qPrintable(undisturbed.at(point)));
        QCOMPARE(deletion.steps, undisturbed.mid(0, point + 1));
        QCoreApplication::processEvents();
        QCOMPARE(deletion.steps.size(), point + 1);
        m_deletions.end();
    }
}

void tst_DeletedByListener::everyEventIsReached()
{
    const ClientModeGuard mode(100);
    QStringList reached;
    for (const Cause& cause : causes()) {
        Deletion none(-1, Victim::Table);
        cause.act(*none.table);
        reached << none.steps;
    }
    reached.removeDuplicates();
    reached.sort();
    QCOMPARE(reached.join(QLatin1Char(' ')), QStringLiteral("1061 1062 1063 1064 1206 1244 129 130 hook"));
}

void tst_DeletedByListener::recordReadByADeletedTableIsADefaultOne()
{
    Deletion deletion(0, Victim::Table);
    ttservice::COrderSetting setting;
    setting.intField2 = 5;
    deletion.table->setOrderSettings(3, setting);
    QCOMPARE(deletion.table->getOrderSettings(3).intField2, 0);
    QVERIFY(!deletion.table);
}

void tst_DeletedByListener::cleanupTestCase()
{
    m_deletions.say();
}

QTEST_MAIN(tst_DeletedByListener)
#include "support/FaultCount.h"
#include "tst_DeletedByListener.moc"
