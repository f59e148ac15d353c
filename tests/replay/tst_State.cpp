#include "States.h"

#include "replay/Probes.h"
#include "support/BaseTableProbe.h"
#include "support/EventLog.h"
#include "support/HelpButton.h"
#include "support/ModuleGuard.h"

#include <OrderParamTable_mini/credit/CCreditParamTable.h>
#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CCodeOrderParamTable.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CStopLossOrderParamTable.h>

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using namespace states;
using namespace ttservice;
using replay::stateOf;
using support::BaseTableProbe;

class tst_State : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyClassHasItsName();
    void aTableSaysEverythingInOrder();
    void aTableAfterItsConstruction();
    void theStripAndTheFilterFollowTheFlags();
    void aButtonInTheDropDownIsNotHidden();
    void aButtonWithoutTextIsHidden();
    void theHelpButtonAndItsMark();
    void missingWidgetsAreNull();
    void theCreditTable();
    void otherWidgetsAreNull();
    void aDumpChangesNothing();
};

void tst_State::everyClassHasItsName()
{
    const auto nameOf = [](const QWidget& object) { return QByteArray::fromStdString(stateOf(&object)["class"]); };
    constexpr auto kId = TC::EOpParamWidgetID(31);
    constexpr auto kBroker = ENVBrokerType(2);
    constexpr auto kTrader = ENvTraderType(1);
    std::vector<CCodeOrderParam> tasks;
    CCodeOrderParam task = taskOf(2, 0);
    QCOMPARE(nameOf(TC::CGlobalOrderParamTable(kId, kBroker, true, nullptr, true, kTrader, false)),
             QByteArray("CGlobalOrderParamTable"));
    QCOMPARE(nameOf(TC::CCodeOrderParamTable(kId, kBroker, nullptr, true, kTrader, true)),
             QByteArray("CCodeOrderParamTable"));
    QCOMPARE(nameOf(TC::CStopLossOrderParamTable(kId, kBroker, nullptr)), QByteArray("CStopLossOrderParamTable"));
    QCOMPARE(nameOf(TC::CCreditParamTable()), QByteArray("CCreditParamTable"));
    QCOMPARE(nameOf(TC::CBaseTaskParamWidget(task, QString(), nullptr, false, kTrader, false, std::string())),
             QByteArray("CBaseTaskParamWidget"));
    QCOMPARE(nameOf(TC::CHpfBasketTaskParamWidget(tasks, QString(), nullptr, std::string())),
             QByteArray("CHpfBasketTaskParamWidget"));
    QCOMPARE(nameOf(replay::BaseTableProbe(kId, kBroker, true, nullptr, true, kTrader, false)),
             QByteArray("BaseTableProbe"));
    QCOMPARE(nameOf(replay::CreditProbe()), QByteArray("CreditProbe"));
    QCOMPARE(nameOf(replay::BasketProbe(tasks, QString(), nullptr, std::string())), QByteArray("BasketProbe"));
}

void tst_State::aTableSaysEverythingInOrder()
{
    const BaseTableProbe table;
    const Json state = stateOf(&table);
    QCOMPARE(keysOf(state),
             QByteArray("class id orderType operationType priceType stockCode expand size strip buttons help grid "
                        "scroll filter cells"));
    QCOMPARE(keysOf(state["strip"]), QByteArray("hidden height"));
    QCOMPARE(keysOf(state["buttons"][0]), QByteArray("id text checked hidden"));
    QCOMPARE(keysOf(state["help"]), QByteArray("hidden critical"));
    QCOMPARE(keysOf(state["grid"]), QByteArray("hidden width height realHeight"));
    QCOMPARE(keysOf(state["scroll"]), QByteArray("hidden geometry"));
    QCOMPARE(keysOf(state["filter"]), QByteArray("all visible blacklist expanded"));
}

void tst_State::aTableAfterItsConstruction()
{
    // Fourteen cells of 26 pixels and the filter's 20.
    const TC::CGlobalOrderParamTable table(TC::EOpParamWidgetID(31), ENVBrokerType(2), true, nullptr, true,
                                           ENvTraderType(1), false);
    const QByteArray expected = R"({"id":31,"orderType":0,"operationType":-1,"priceType":11,"stockCode":"",
        "expand":false,"size":[240,340],"strip":{"hidden":false,"height":28},
        "buttons":[{"id":600,"text":"普通交易","checked":true,"hidden":false}],
        "help":{"hidden":true,"critical":false},"grid":{"hidden":false,"realHeight":384},"scroll":{"hidden":false},
        "filter":{"all":[],"visible":[],"blacklist":[],"expanded":false}})";
    QCOMPARE(differencesFrom(expected, stateOf(&table)), QByteArray());
}

void tst_State::theStripAndTheFilterFollowTheFlags()
{
    TC::CGlobalOrderParamTable table(TC::EOpParamWidgetID(31), ENVBrokerType(2), true, nullptr, true, ENvTraderType(1),
                                     false);
    table.setFlag(TC::OperationCellFlags(0x7103fff));
    table.getMultiParamsTable()->setVisibleItemSet({2, 0x1000000, 1});
    table.getMultiParamsTable()->setItemFilterBlacklist(2, true);
    const Json state = stateOf(&table);
    // Plain orders: the price type, the super price always, and two cells that nobody has built; the trigger price is
    // never offered.
    const QByteArray expected = R"({"strip":{"hidden":true},"scroll":{"hidden":false,"geometry":[0,0,240,340]},
        "filter":{"all":[1,2,16777216,33554432],"visible":[1,2,16777216],"blacklist":[2,1048576],"expanded":false}})";
    QCOMPARE(differencesFrom(expected, state), QByteArray());
    QCOMPARE(state["grid"]["height"], state["grid"]["realHeight"]);
    table.setExpandItemsHidden(false);
    const QByteArray expanded = R"({"expand":true,"filter":{"visible":[],"expanded":true}})";
    QCOMPARE(differencesFrom(expanded, stateOf(&table)), QByteArray());
}

void tst_State::aButtonInTheDropDownIsNotHidden()
{
    BaseTableProbe table;
    auto* const group = table.findChild<WQ::CDropDownButtonGroup*>();
    for (const int id : {601, 602, 604, 605, 606, 607})
        support::addModeButton(*group, id, "很长的算法名称");
    table.setVisibleByID(605, false);
    QByteArrayList hidden;
    const Json buttons = stateOf(&table)["buttons"];
    for (const Json& button : buttons)
        hidden << written(Json::array({button["id"], button["hidden"]}));
    QCOMPARE(hidden.join(' '),
             QByteArray("[600,false] [601,false] [602,false] [604,false] [605,true] [606,false] [607,false]"));
    group->setParam(QStringLiteral("602"));
    QCOMPARE(differencesFrom(R"([{"id":602,"hidden":false},{"id":600,"hidden":true}])",
                             Json::array({stateOf(&table)["buttons"][0], stateOf(&table)["buttons"][1]})),
             QByteArray());
}

void tst_State::aButtonWithoutTextIsHidden()
{
    const support::ModuleGuard on({support::modules::kAlgorithm3});
    const BaseTableProbe table;
    QCOMPARE(written(stateOf(&table)["buttons"]),
             rewritten(R"([{"id":600,"text":"普通交易","checked":true,"hidden":false},
                           {"id":603,"text":"","checked":false,"hidden":true}])"));
}

void tst_State::theHelpButtonAndItsMark()
{
    support::TableSetup setup;
    setup.id = 15;
    const BaseTableProbe table(setup);
    QCOMPARE(written(stateOf(&table)["help"]), QByteArray(R"({"hidden":false,"critical":false})"));
    support::sendAlgorithmHint(1, true);
    QCOMPARE(written(stateOf(&table)["help"]), QByteArray(R"({"hidden":false,"critical":true})"));
}

void tst_State::missingWidgetsAreNull()
{
    BaseTableProbe table;
    table.m_table = nullptr;
    QCOMPARE(differencesFrom(R"({"grid":null,"filter":null,"cells":[]})", stateOf(&table)), QByteArray());
    delete table.findChild<WQ::CDropDownButtonGroup*>();
    QCOMPARE(differencesFrom(R"({"buttons":[],"help":null,"strip":{"hidden":false}})", stateOf(&table)), QByteArray());
}

void tst_State::theCreditTable()
{
    const TC::CCreditParamTable table;
    const Json state = stateOf(&table);
    QCOMPARE(keysOf(state), QByteArray("class size cells columnWidth realHeight param"));
    // Five rows of 26 pixels are shown, without the filter's footer.
    QCOMPARE(differencesFrom(R"({"class":"CCreditParamTable","size":[240,340],"columnWidth":120,"realHeight":130,
                                 "param":"-1"})",
                             state),
             QByteArray());
    QCOMPARE(idsOf(state["cells"]), (QList<int>{726, 727, 728, 729, 730, 731}));
    QCOMPARE(written(cellOf(state, 727)), rewritten(R"({"id":727,"kind":"line","label":"指定还券",
        "hidden":true,"shown":false,"enabled":true,"editable":true,
        "text":"","pattern":"(^$)|[a-zA-Z0-9-\\s&\\*]+$","placeholder":""})"));
    QCOMPARE(written(cellOf(state, 730)), rewritten(R"({"id":730,"kind":"text","label":"可还券资金",
        "hidden":false,"shown":true,"enabled":true,"editable":false,"text":"","unit":"元"})"));
}

void tst_State::otherWidgetsAreNull()
{
    const QWidget other;
    QVERIFY(stateOf(&other).is_null());
    QVERIFY(stateOf(nullptr).is_null());
}

void tst_State::aDumpChangesNothing()
{
    support::EventLog host;
    support::TableSetup setup;
    setup.parent = &host;
    auto* const table = new BaseTableProbe(setup);
    table->setOrderType(EOrderType(1));
    host.take();
    const QByteArray first = written(stateOf(table));
    QCOMPARE(written(stateOf(table)), first);
    QCoreApplication::processEvents();
    QCOMPARE(written(stateOf(table)), first);
    QCOMPARE(host.take(), QStringList());
}

QTEST_MAIN(tst_State)
#include "tst_State.moc"
