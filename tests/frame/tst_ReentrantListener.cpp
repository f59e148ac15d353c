#include "frame/VisibleCells.h"
#include "support/CellText.h"
#include "support/HelpButton.h"
#include "support/ModuleGuard.h"
#include "support/Panel.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CScrollArea.h>

#include <QRegularExpression>
#include <QtTest>

#include <functional>
#include <stdexcept>

using namespace support;

namespace {

/// More than any of the actions has; what comes later belongs to the call back itself.
constexpr int kMostPoints = 12;

using Action = std::function<void(BaseTableProbe&)>;

struct NamedAction
{
    const char* name;
    Action act;
};

Action orderType(int type)
{
    return [type](BaseTableProbe& table) { table.setOrderType(ttservice::EOrderType(type)); };
}

Action click(int button)
{
    return [button](BaseTableProbe& table) { table.sendEvent(5, button, QStringLiteral("clicked")); };
}

// clang-format off
std::vector<NamedAction> outerActions()
{
    return {
        {"button 600", click(600)},
        {"button 601", click(601)},
        {"button 605", click(605)},
        {"order type 1", orderType(1)},
        {"order type 5", orderType(5)},
        {"operation 1", [](BaseTableProbe& table) { table.setOperationType(ttservice::EOperationType(1)); }},
        {"fixed price", [](BaseTableProbe& table) { table.setFixedPrice(2.5); }},
        {"price selected", [](BaseTableProbe& table) { table.selectPrice(ttservice::PRTP_BUY1); }},
        {"minimum committed", [](BaseTableProbe& table) { table.sendEvent(87, 0x200); }},
        {"filter reset", [](BaseTableProbe& table) { table.sendEvent(248, 0); }},
        {"filter applied", [](BaseTableProbe& table) { table.sendEvent(124, 0); }},
    };
}

std::vector<NamedAction> innerActions()
{
    return {
        {"order type 0", orderType(0)},
        {"order type 1", orderType(1)},
        {"order type 2", orderType(2)},
        {"order type 5", orderType(5)},
        {"button 602", click(602)},
        {"button 605", click(605)},
        {"operation 21", [](BaseTableProbe& table) { table.setOperationType(ttservice::OPT_SLO_SELL); }},
        {"flags", [](BaseTableProbe& table) { table.setFlag(TC::OperationCellFlags(0x6)); }},
        {"expanding", [](BaseTableProbe& table) { table.setExpandItemsHidden(false); }},
        {"another price", [](BaseTableProbe& table) { table.selectPrice(ttservice::PRTP_SELL1); }},
    };
}
// clang-format on

QSet<int> ownedCells(BaseTableProbe& table)
{
    QSet<int> owned;
    for (const CellRule& rule : kCellRules) {
        if (table.m_table->getItem(rule.id))
            owned.insert(rule.id);
    }
    return owned;
}

} // namespace

/// A listener may call the table back from inside its events and hooks; the table ends in one piece.
class tst_ReentrantListener : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyCallFromInsideEveryPoint_data();
    void everyCallFromInsideEveryPoint();
    void listenerThatFeedsItselfIsCutOff();
    void listenersHearNestedEventsInOrder();
    void whatAListenerThrowsReachesTheCaller();
};

void tst_ReentrantListener::everyCallFromInsideEveryPoint_data()
{
    QTest::addColumn<int>("outer");
    QTest::addColumn<int>("inner");
    const std::vector<NamedAction> outer = outerActions();
    const std::vector<NamedAction> inner = innerActions();
    for (std::size_t i = 0; i < outer.size(); ++i) {
        for (std::size_t k = 0; k < inner.size(); ++k)
            QTest::addRow("%s from inside %s", inner[k].name, outer[i].name) << int(i) << int(k);
    }
}

void tst_ReentrantListener::everyCallFromInsideEveryPoint()
{
    QFETCH(int, outer);
    QFETCH(int, inner);
    const ClientModeGuard mode(100);
    const Action act = outerActions().at(std::size_t(outer)).act;
    const Action callBack = innerActions().at(std::size_t(inner)).act;
    int points = 1;
    for (int point = 0; point < points && point < kMostPoints; ++point) {
        Panel panel;
        panel.host.show();
        for (const int id : {601, 602, 605})
            addModeButton(*panel.table->m_btnGroup, id, "mode");
        panel.table->setOrderType(ttservice::EOrderType(0));
        int step = 0;
        const auto hook = [&] {
            if (step++ == point)
                callBack(*panel.table);
        };
        panel.table->onSave = panel.table->onReload = hook;
        panel.host.onEvent = [&](int) { hook(); };

        act(*panel.table);

        points = qMax(points, step);
        BaseTableProbe& table = *panel.table;
        const int type = int(table.orderType());
        VisibleState state;
        state.flags = int(table.m_flags);
        state.expanded = table.isExpand();
        state.limitShown = true;
        const QString where = QStringLiteral("at point %1, order type %2").arg(point).arg(type);
        QVERIFY2(idText(shownCells(panel.cells())) == idText(expectedVisible(type, state, ownedCells(table))),
                 qPrintable(where + QLatin1String(": ") + idText(shownCells(panel.cells()))));
        QVERIFY2(table.getSelectedButton() == 600 + type, qPrintable(where));
        QVERIFY2(panel.cells().isVisible() == (type < 4), qPrintable(where));
        QVERIFY2(table.m_scrollArea->isVisible() == (type < 4), qPrintable(where));
        QCOMPARE(panel.cells().height(), panel.cells().realHeight());
    }
}

void tst_ReentrantListener::listenerThatFeedsItselfIsCutOff()
{
    Panel panel;
    panel.host.onEvent = [&](int event) {
        if (event == 129)
            panel.table->sendCellChanged(TC::OCF_PriceType, QStringLiteral("again"), 5);
    };
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cut off")));
    panel.table->sendCellChanged(TC::OCF_PriceType, QStringLiteral("first"), 5);
    QCOMPARE(panel.host.takeNumbers().count(129), 64);
    QCOMPARE(int(panel.table->priceType()), 5);
    panel.host.onEvent = nullptr;
    panel.table->sendEvent(97, 0);
    QCOMPARE(panel.host.take(), QStringList({eventLine(130, 5, 0)}));
}

void tst_ReentrantListener::listenersHearNestedEventsInOrder()
{
    Panel panel;
    bool inside = false;
    panel.host.onEvent = [&](int event) {
        if (event == 1064 && !inside) {
            inside = true;
            panel.table->setFixedPrice(3.5);
        }
    };
    panel.table->sendEvent(5, 601);
    QCOMPARE(panel.host.takeNumbers(), QList<int>({1064, 1061, 129, 1061, 129, 1206}));
    QCOMPARE(panel.table->m_originalPrice, 3.5);
}

void tst_ReentrantListener::whatAListenerThrowsReachesTheCaller()
{
    Panel panel;
    panel.host.onEvent = [](int) { throw std::runtime_error("listener"); };
    bool caught = false;
    try {
        panel.table->setFixedPrice(1.5);
    } catch (const std::runtime_error&) {
        caught = true;
    }
    QVERIFY(caught);
    panel.host.onEvent = nullptr;
    panel.host.take();
    panel.table->setFixedPrice(2.5);
    QCOMPARE(panel.host.takeNumbers(), QList<int>({1061, 129}));
    QCOMPARE(panel.table->m_originalPrice, 2.5);
}

QTEST_MAIN(tst_ReentrantListener)
#include "tst_ReentrantListener.moc"
