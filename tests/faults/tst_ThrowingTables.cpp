#include "credit/CreditPanel.h"
#include "faults/PublicCalls.h"
#include "faults/Thrown.h"
#include "support/FaultCount.h"
#include "support/ModuleGuard.h"
#include "support/Panel.h"
#include "tables/TaskExpectations.h"

#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CCodeOrderParamTable.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CStopLossOrderParamTable.h>

#include <QtTest>

#include <functional>

using namespace faults;
using namespace support;

namespace {

/// The tables that hosts make, through what they all have in common.
struct TableKind
{
    const char* name;
    std::function<TC::COrderParamBaseTable*(QWidget*)> make;
};

// clang-format off
std::vector<TableKind> tableKinds()
{
    using namespace ttservice;
    return {
        {"base", [](QWidget* host) -> TC::COrderParamBaseTable* { TableSetup setup; setup.parent = host; return new BaseTableProbe(setup); }},
        {"global", [](QWidget* host) -> TC::COrderParamBaseTable* { return new TC::CGlobalOrderParamTable(TC::EOpParamWidgetID(5), BROKER_TYPE_STOCK, true, host, true, TRADER_TYPE_1, false); }},
        {"code", [](QWidget* host) -> TC::COrderParamBaseTable* { return new TC::CCodeOrderParamTable(TC::EOpParamWidgetID(5), BROKER_TYPE_STOCK, host, true, TRADER_TYPE_1, true); }},
        {"stop loss", [](QWidget* host) -> TC::COrderParamBaseTable* { return new TC::CStopLossOrderParamTable(TC::EOpParamWidgetID(5), BROKER_TYPE_STOCK, host); }},
        {"futures", [](QWidget* host) -> TC::COrderParamBaseTable* { return new TC::CGlobalOrderParamTable(TC::EOpParamWidgetID(6), BROKER_TYPE_FUTURE, true, host, true, TRADER_TYPE_1, false); }},
        {"options", [](QWidget* host) -> TC::COrderParamBaseTable* { return new TC::CGlobalOrderParamTable(TC::EOpParamWidgetID(7), BROKER_TYPE_OPTION, true, host, true, TRADER_TYPE_1, false); }},
    };
}

struct CreditCause
{
    const char* name;
    std::function<void(CreditProbe&)> act;
};

const CreditCause kCreditCauses[] = {
    {"reading a text", [](CreditProbe& table) { table.setParam(QStringLiteral("22+")); }},
    {"reading values", [](CreditProbe& table) { table.setParam(QStringLiteral("1021+1021-726=A-727=X-728=3-730=4")); }},
    {"choosing an account", [](CreditProbe& table) { table.setSelectAccount("A2"); }},
    {"an emptied code", [](CreditProbe& table) { table.fixCodeChanged(QString()); }},
    {"laying the rows out", [](CreditProbe& table) { table.refreshUIData(); }},
};

QString creditSeen(const CreditPanel& panel)
{
    QStringList text = panel.codeAndFigures();
    text << panel.row(726) << panel.remembered() << panel.table->param()
         << QString::number(panel.table->m_useAllCompacts) << QString::number(panel.cells().columnWidth(0));
    return text.join(QLatin1Char('\n'));
}

class BasketProbe : public TC::CHpfBasketTaskParamWidget
{
public:
    BasketProbe(std::vector<ttservice::CCodeOrderParam>& tasks, QWidget* host)
        : TC::CHpfBasketTaskParamWidget(tasks, QString(), host, std::string())
    {
    }

    using TC::CHpfBasketTaskParamWidget::creatTable;
};

} // namespace

/// Hosts that throw, and every kind of table and dialog.
class tst_ThrowingTables : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanupTestCase();
    void everyTableAtEveryCall_data();
    void everyTableAtEveryCall();
    void everyCreditCauseAtEveryPoint_data();
    void everyCreditCauseAtEveryPoint();
    void aListenerHearsWhatItsOwnCallsThrow();
    void aTaskDialogThatCannotBeMadeLeavesNothing();
    void aBasketTableThatCannotBeMadeLeavesNothing();

private:
    FaultCount m_count{"throwing listeners of every table"};
};

void tst_ThrowingTables::cleanupTestCase()
{
    m_count.say();
}

void tst_ThrowingTables::everyTableAtEveryCall_data()
{
    QTest::addColumn<int>("kind");
    const std::vector<TableKind> all = tableKinds();
    for (std::size_t i = 0; i < all.size(); ++i)
        QTest::newRow(all[i].name) << int(i);
}

void tst_ThrowingTables::everyTableAtEveryCall()
{
    QFETCH(int, kind);
    const ClientModeGuard mode(100);
    const TableKind table = tableKinds().at(std::size_t(kind));
    EventLog quietHost;
    EventLog throwingHost;
    auto* const quiet = table.make(&quietHost);
    auto* const disturbed = table.make(&throwingHost);
    throwingHost.onEvent = [](int number) { throw Thrown{number}; };
    for (const auto& call : publicCalls()) {
        call(*quiet);
        const QStringList heard = quietHost.take();
        m_count.begin();
        const int caught = caughtFrom([&] { call(*disturbed); });
        QCOMPARE(throwingHost.take(), heard);
        QCOMPARE(caught, heard.isEmpty() ? -1 : heard.first().section(QLatin1Char('('), 0, 0).toInt());
        QCOMPARE(seen(*disturbed), seen(*quiet));
        m_count.end();
    }
}

void tst_ThrowingTables::everyCreditCauseAtEveryPoint_data()
{
    QTest::addColumn<int>("cause");
    for (int i = 0; i < int(std::size(kCreditCauses)); ++i)
        QTest::newRow(kCreditCauses[i].name) << i;
}

void tst_ThrowingTables::everyCreditCauseAtEveryPoint()
{
    QFETCH(int, cause);
    const auto prepare = [](CreditPanel& panel) {
        panel.offerAccounts({QStringLiteral("A1"), QStringLiteral("A2")});
        panel.table->setParam(QStringLiteral("24+24-726=A-727=-728=1-729=2"));
        panel.host.take();
    };
    CreditPanel undisturbed;
    prepare(undisturbed);
    kCreditCauses[cause].act(*undisturbed.table);
    const QStringList heard = undisturbed.host.take();
    QVERIFY(!heard.isEmpty());
    for (int point = 0; point < heard.size(); ++point) {
        m_count.begin();
        CreditPanel panel;
        prepare(panel);
        int step = 0;
        panel.host.onEvent = [&](int) {
            if (step++ == point)
                throw Thrown{point};
        };
        QCOMPARE(caughtFrom([&] { kCreditCauses[cause].act(*panel.table); }), point);
        QCOMPARE(panel.host.take(), heard);
        QCOMPARE(creditSeen(panel), creditSeen(undisturbed));
        panel.host.onEvent = nullptr;
        kCreditCauses[cause].act(*panel.table);
        QVERIFY(!panel.host.take().isEmpty());
        m_count.end();
    }
}

void tst_ThrowingTables::aListenerHearsWhatItsOwnCallsThrow()
{
    Panel outer;
    Panel inner;
    QList<int> caught;
    inner.host.onEvent = [](int number) { throw Thrown{number}; };
    inner.table->onSave = [] { throw Thrown{1}; };
    outer.host.onEvent = [&](int) {
        caught << caughtFrom([&] { inner.table->setFixedPrice(4.5); });
        caught << caughtFrom([&] { inner.table->getOrderSettings(3); });
        caught << caughtFrom([&] { inner.table->sendEvent(97, 0); });
        caught << caughtFrom([&] { inner.table->resetOrderParamSetting(); });
        caught << caughtFrom([&] { inner.table->setOrderType(ttservice::EOrderType(1)); });
    };
    QCOMPARE(caughtFrom([&] { outer.table->sendEvent(97, 0); }), -1);
    QCOMPARE(caught, QList<int>({1061, 1, 130, 1, -1}));
    QCOMPARE(inner.table->m_originalPrice, 4.5);
}

void tst_ThrowingTables::aTaskDialogThatCannotBeMadeLeavesNothing()
{
    const ClientModeGuard mode(100);
    EventLog host;
    ttservice::CCodeOrderParam task = taskOf(2, 1);
    const auto make = [&] {
        return new TC::CBaseTaskParamWidget(task, QString(), &host, false, ttservice::TRADER_TYPE_1, false,
                                            std::string());
    };
    m_count.begin();
    host.onEvent = [](int number) { throw Thrown{number}; };
    QCOMPARE(caughtFrom([&] { make(); }), 1244);
    QVERIFY(host.findChildren<QWidget*>().isEmpty());
    host.onEvent = nullptr;
    QVERIFY(make()->findChild<TC::CGlobalOrderParamTable*>());
    m_count.end();
}

void tst_ThrowingTables::aBasketTableThatCannotBeMadeLeavesNothing()
{
    const ClientModeGuard mode(100);
    EventLog host;
    std::vector<ttservice::CCodeOrderParam> tasks(1, taskOf(2, 1));
    m_count.begin();
    auto* const dialog = new BasketProbe(tasks, &host);
    const auto make = [&] { return dialog->creatTable(tasks.front(), QString(), std::string()); };
    host.onEvent = [](int number) { throw Thrown{number}; };
    QCOMPARE(caughtFrom([&] { make(); }), 1244);
    QVERIFY(dialog->findChildren<TC::CGlobalOrderParamTable*>().isEmpty());
    host.onEvent = nullptr;
    QVERIFY(make());
    QCOMPARE(dialog->findChildren<TC::CGlobalOrderParamTable*>().size(), 1);
    m_count.end();
}

QTEST_MAIN(tst_ThrowingTables)
#include "tst_ThrowingTables.moc"
