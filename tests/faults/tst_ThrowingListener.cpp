#include "credit/CreditPanel.h"
#include "faults/FaultCount.h"
#include "faults/LogLines.h"
#include "faults/PublicCalls.h"
#include "support/CellText.h"
#include "support/HelpButton.h"
#include "support/ModuleGuard.h"
#include "support/Panel.h"
#include "tables/TaskExpectations.h"

#include "reference/toolkit/PersonEvents.h"

#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CCodeOrderParamTable.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CStopLossOrderParamTable.h>

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CScrollArea.h>

#include <QPointer>
#include <QtTest>

#include <functional>

using namespace support;

namespace {

/// What a listener throws: nothing the standard library or Qt would catch by its base.
struct Thrown
{
    int point;
};

using Act = std::function<void(BaseTableProbe&)>;

struct Cause
{
    const char* name;
    Act act;
};

Cause click(const char* name, int button, int priceType)
{
    return {name, [button, priceType](BaseTableProbe& table) {
                offerPriceType(table, priceType);
                table.updateCurrentPriceTypeName();
                table.m_btnGroup->setCheckedByID(button);
                table.sendEvent(5, button, QStringLiteral("text"));
            }};
}

Cause event(const char* name, int number, int cell)
{
    return {name, [number, cell](BaseTableProbe& table) { table.sendEvent(number, cell, QStringLiteral("text")); }};
}

// clang-format off
std::vector<Cause> causes()
{
    const auto orderType = [](int type, int priceType) {
        return [type, priceType](BaseTableProbe& table) {
            offerPriceType(table, priceType);
            table.updateCurrentPriceTypeName();
            table.setOrderType(ttservice::EOrderType(type));
        };
    };
    return {
        click("button 600", 600, 5),
        click("button 601 with a market price", 601, 45),
        click("button 602 with the after-hours price", 602, 49),
        click("button 605 with a market price", 605, 45),
        click("button 605 with the after-hours price", 605, 49),
        {"price type changed", [](BaseTableProbe& table) { table.sendCellChanged(0x1, QStringLiteral("x"), 5); }},
        {"base volume changed", [](BaseTableProbe& table) { table.sendCellChanged(0x10, QStringLiteral("x"), 11); }},
        event("cell changed without data", 73, 0x1),
        event("minimum committed", 87, 0x200),
        event("unit switched", 118, 0x2),
        event("period committed", 101, 0x800),
        event("line committed", 102, 0x4000000),
        event("double click", 97, 0x1),
        event("filter applied", 124, 0),
        {"price selected", [](BaseTableProbe& table) { table.selectPrice(ttservice::PRTP_BUY1); }},
        {"fixed price", [](BaseTableProbe& table) { table.setFixedPrice(2.5); }},
        {"quoted price", [](BaseTableProbe& table) { table.setPriceType(ttservice::PRTP_LATEST); table.setPriceImpl(2.5, QStringLiteral("x")); }},
        {"order type 1", orderType(1, 5)},
        {"order type 5 with a market price", orderType(5, 45)},
        {"order type 5 with the after-hours price", orderType(5, 49)},
        {"operation with a market price", [](BaseTableProbe& table) {
             offerPriceType(table, 45);
             table.updateCurrentPriceTypeName();
             table.setOperationType(ttservice::EOperationType(21));
         }},
        {"display reset", [](BaseTableProbe& table) {
             offerPriceType(table, 45);
             table.updateCurrentPriceTypeName();
             table.resetShowFixPrice();
         }},
        {"records read", [](BaseTableProbe& table) { table.getOrderSettings(3); }},
        {"record reset", [](BaseTableProbe& table) { table.resetOrderParamSetting(); }},
        {"trigger price reset", [](BaseTableProbe& table) { table.resetTriggerPriceSetting(); }},
        {"algorithm buttons", [](BaseTableProbe& table) { table.setAlgoBtnVisible(); }},
    };
}
// clang-format on

/// All that a host or a person can see of a table, so that two of them can be compared.
QString seen(BaseTableProbe& table)
{
    const WQ::CMultiParamsTable& cells = *table.m_table;
    QStringList text = cellRows(*table.m_table);
    text << QStringLiteral("order %1 operation %2 price %3 \"%4\" at %5 button %6 set %7 strip %8")
                .arg(int(table.orderType()))
                .arg(int(table.getOperationType()))
                .arg(int(table.priceType()))
                .arg(table.m_priceTypeName)
                .arg(table.m_originalPrice)
                .arg(table.getSelectedButton())
                .arg(table.m_paramIndex)
                .arg(table.loadCheckParam());
    text << QStringLiteral("cells %1 area %2 height %3 of %4 shown ")
                .arg(!cells.isHidden())
                .arg(!table.m_scrollArea->isHidden())
                .arg(cells.height())
                .arg(table.m_table->realHeight())
            + idText(shownCells(*table.m_table));
    return text.join(QLatin1Char('\n'));
}

enum class Thrower { Listener, SaveHook, ReloadHook };

/// A panel whose host throws at one of the events or hooks that a cause makes it hear; -1 for never.
struct ThrowingPanel
{
    explicit ThrowingPanel(int at)
        : point(at)
    {
        for (const int id : {601, 602, 605})
            addModeButton(*panel.table->m_btnGroup, id, "mode");
        panel.table->setOrderType(ttservice::EOrderType(0));
        panel.table->m_table->setItemInt(0x200, 300);
        panel.table->onSave = [this] { step(Thrower::SaveHook, QStringLiteral("save")); };
        panel.table->onReload = [this] { step(Thrower::ReloadHook, QStringLiteral("reload")); };
        panel.host.onEvent = [this](int number) { step(Thrower::Listener, QString::number(number)); };
    }

    void step(Thrower who, const QString& what)
    {
        steps << what;
        if (steps.size() - 1 != point)
            return;
        thrower = who;
        throw Thrown{point};
    }

    void listenQuietly()
    {
        panel.table->onSave = panel.table->onReload = nullptr;
        panel.host.onEvent = nullptr;
        panel.host.take();
    }

    Panel panel;
    const int point;
    QStringList steps;
    Thrower thrower = Thrower::Listener;
};

/// A call that reaches the caller with what the host threw; -1 when nothing came.
int caughtFrom(const std::function<void()>& call)
{
    try {
        call();
    } catch (const Thrown& thrown) {
        return thrown.point;
    }
    return -1;
}

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
// clang-format on

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
// clang-format on

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

/// A host may throw out of every event and hook. The exception reaches whoever called; the table is through with what
/// it was asked, shows what it is, keeps what was entered and goes on.
class tst_ThrowingListener : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanupTestCase();
    void everyCauseAtEveryPoint_data();
    void everyCauseAtEveryPoint();
    void everyTableAtEveryCall_data();
    void everyTableAtEveryCall();
    void everyCreditCauseAtEveryPoint_data();
    void everyCreditCauseAtEveryPoint();
    void aPersonsEventIsCaughtAtEveryPoint_data();
    void aPersonsEventIsCaughtAtEveryPoint();
    void aModeThatCannotBeSavedIsNotLeft_data();
    void aModeThatCannotBeSavedIsNotLeft();
    void whoDeletesAndThrows_data();
    void whoDeletesAndThrows();
    void theFirstOfManyArrives();
    void aListenerHearsWhatItsOwnCallsThrow();
    void aTaskDialogThatCannotBeMadeLeavesNothing();
    void aBasketTableThatCannotBeMadeLeavesNothing();

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
    const Act act = causes().at(std::size_t(cause)).act;
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

void tst_ThrowingListener::everyTableAtEveryCall_data()
{
    QTest::addColumn<int>("kind");
    const std::vector<TableKind> all = tableKinds();
    for (std::size_t i = 0; i < all.size(); ++i)
        QTest::newRow(all[i].name) << int(i);
}

void tst_ThrowingListener::everyTableAtEveryCall()
{
    QFETCH(int, kind);
    const ClientModeGuard mode(100);
    const TableKind table = tableKinds().at(std::size_t(kind));
    EventLog quietHost;
    EventLog throwingHost;
    auto* const quiet = table.make(&quietHost);
    auto* const disturbed = table.make(&throwingHost);
    throwingHost.onEvent = [](int number) { throw Thrown{number}; };
    for (const auto& call : faults::publicCalls()) {
        call(*quiet);
        const QStringList heard = quietHost.take();
        m_count.begin();
        const int caught = caughtFrom([&] { call(*disturbed); });
        QCOMPARE(throwingHost.take(), heard);
        QCOMPARE(caught, heard.isEmpty() ? -1 : heard.first().section(QLatin1Char('('), 0, 0).toInt());
        QCOMPARE(faults::seen(*disturbed), faults::seen(*quiet));
        m_count.end();
    }
}

void tst_ThrowingListener::everyCreditCauseAtEveryPoint_data()
{
    QTest::addColumn<int>("cause");
    for (int i = 0; i < int(std::size(kCreditCauses)); ++i)
        QTest::newRow(kCreditCauses[i].name) << i;
}

void tst_ThrowingListener::everyCreditCauseAtEveryPoint()
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
    const Act act = causes().at(std::size_t(cause)).act;
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

void tst_ThrowingListener::aListenerHearsWhatItsOwnCallsThrow()
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

void tst_ThrowingListener::aTaskDialogThatCannotBeMadeLeavesNothing()
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

void tst_ThrowingListener::aBasketTableThatCannotBeMadeLeavesNothing()
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

QTEST_MAIN(tst_ThrowingListener)
#include "tst_ThrowingListener.moc"
