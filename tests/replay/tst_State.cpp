#include "replay/Expectation.h"
#include "replay/State.h"

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
#include <WQ/CPushButton.h>

#include <QtTest>

#include <boost/make_shared.hpp>

using namespace ttservice;
using replay::Json;
using replay::stateOf;

namespace probes {

class BaseTableProbe : public TC::COrderParamBaseTable
{
    Q_OBJECT
public:
    explicit BaseTableProbe(int id = 5, int broker = 2, QWidget* parent = nullptr)
        : TC::COrderParamBaseTable(TC::EOpParamWidgetID(id), ENVBrokerType(broker), true, parent, true,
                                   ENvTraderType(1), false)
    {
    }

    void setParam(const QString&) override
    {
    }
    QString param() const override
    {
        return {};
    }
    void save() override
    {
    }
    void reloadParam() override
    {
    }

    using TC::COrderParamBaseTable::m_table;
};

class CreditProbe : public TC::CCreditParamTable
{
    Q_OBJECT
};

class BasketProbe : public TC::CHpfBasketTaskParamWidget
{
    Q_OBJECT
public:
    using TC::CHpfBasketTaskParamWidget::CHpfBasketTaskParamWidget;
};

} // namespace probes

namespace {

using probes::BaseTableProbe;

/// Written without blanks, its keys in the order in which they stand: an order of keys that differs is a difference.
QByteArray written(const Json& json)
{
    return QByteArray::fromStdString(json.dump());
}

QByteArray rewritten(const QByteArray& json)
{
    return written(Json::parse(json.toStdString()));
}

Json cellOf(const Json& state, int id)
{
    for (const Json& cell : state["cells"]) {
        if (cell["id"] == id)
            return cell;
    }
    return nullptr;
}

QList<int> idsOf(const Json& cells)
{
    QList<int> ids;
    for (const Json& cell : cells)
        ids << cell["id"].get<int>();
    return ids;
}

QByteArray keysOf(const Json& object)
{
    QByteArrayList keys;
    for (const auto& [key, value] : object.items())
        keys << QByteArray::fromStdString(key);
    return keys.join(' ');
}

QByteArray differencesFrom(const QByteArray& expected, const Json& actual)
{
    QByteArrayList lines;
    for (const std::string& line : replay::differences(Json::parse(expected.toStdString()), actual))
        lines << QByteArray::fromStdString(line);
    return lines.join('\n');
}

CCodeOrderParam taskOf(int broker, int orderType)
{
    CCodeOrderParam task;
    task.account = boost::make_shared<CAccountInfoV2>();
    task.account->brokerType = ENVBrokerType(broker);
    task.account->accountId = "10086";
    task.account->accountName = "测试账号";
    task.orderType = EOrderType(orderType);
    task.operationType = EOperationType(18);
    task.code = "600000";
    task.name = "样本股份";
    task.priceType = PRTP_FIX;
    task.price = 12.345;
    task.volume = 1200;
    return task;
}

} // namespace

class tst_State : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyClassHasItsName();
    void aTableSaysEverythingInOrder();
    void aTableAfterItsConstruction();
    void theStripAndTheFilterFollowTheFlags();
    void cellsStandInDisplayOrder();
    void aCellOfEachKind_data();
    void aCellOfEachKind();
    void cellsThatHostsAdd_data();
    void cellsThatHostsAdd();
    void numbersThatJsonCannotWriteAreTexts();
    void aComboWithoutChoiceHasNoData();
    void anEmptyComboTextIsKept();
    void aPeriodMayBeMovedByTheHost();
    void hiddenFilteredDisabledAndFixedCellsDiffer();
    void aButtonInTheDropDownIsNotHidden();
    void aButtonWithoutTextIsHidden();
    void theHelpButtonAndItsMark();
    void missingWidgetsAreNull();
    void theCreditTable();
    void theTaskDialog();
    void theTaskDialogExpanded();
    void aTaskWithoutTable();
    void theBasketDialog();
    void otherWidgetsAreNull();
    void aDumpChangesNothing();
    void aDumpIsQuick();
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
    QCOMPARE(nameOf(BaseTableProbe()), QByteArray("BaseTableProbe"));
    QCOMPARE(nameOf(probes::CreditProbe()), QByteArray("CreditProbe"));
    QCOMPARE(nameOf(probes::BasketProbe(tasks, QString(), nullptr, std::string())), QByteArray("BasketProbe"));
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

void tst_State::cellsStandInDisplayOrder()
{
    const BaseTableProbe table;
    QCOMPARE(idsOf(stateOf(&table)["cells"]),
             (QList<int>{0x1, 0x2, 0x10, 0x40, 0x4, 0x8, 0x200, 0x400, 0x800, 0x1000, 0x2000, 0x10000, 0x20000, 0x80000,
                         0x2000000}));
}

void tst_State::aCellOfEachKind_data()
{
    QTest::addColumn<int>("broker");
    QTest::addColumn<QByteArray>("cell");

    QTest::newRow("combo") << 7 << QByteArray(R"({"id":1,"kind":"combo","label":"报价方式",
        "hidden":false,"shown":true,"enabled":true,"editable":true,
        "entries":[["最新价",5],["对手价",14],["指定价",11],["卖①价",4],["买①价",6]],"index":0,"data":5,"text":"最新价"})");
    QTest::newRow("number of two units") << 2 << QByteArray(R"({"id":2,"kind":"number","label":"单笔超价",
        "hidden":false,"shown":true,"enabled":true,"editable":true,
        "value":0.5,"unit":"%","min":-100.0,"max":100.0,"step":null,
        "units":[{"text":"%","type":6,"min":-100.0,"max":100.0,"step":null},
                 {"text":"元","type":6,"min":-1000000.0,"max":1000000.0,"step":null}]})");
    QTest::newRow("whole number") << 2 << QByteArray(R"({"id":512,"kind":"number","label":"单笔最小量",
        "hidden":false,"shown":true,"enabled":true,"editable":true,
        "value":10000,"unit":"股","min":100,"max":1000000,"step":100,
        "units":[{"text":"股","type":2,"min":100,"max":1000000,"step":100}]})");
    QTest::newRow("a step of 0 is given") << 2 << QByteArray(R"({"id":4,"kind":"number","label":"超价启用笔数",
        "hidden":false,"shown":true,"enabled":true,"editable":true,
        "value":1,"unit":"笔","min":1,"max":1000000,"step":0,
        "units":[{"text":"笔","type":2,"min":1,"max":1000000,"step":0}]})");
    QTest::newRow("number with a check box") << 6 << QByteArray(R"({"id":8,"kind":"checkNumber","label":"波动区间",
        "hidden":false,"shown":true,"enabled":true,"editable":true,
        "value":3.0,"unit":"%","min":0.0,"max":100.0,"step":0.0001,
        "units":[{"text":"%","type":6,"min":0.0,"max":100.0,"step":0.0001},
                 {"text":"元","type":6,"min":0.0,"max":1000000.0,"step":0.0001}],"checked":false,"checkText":"单向"})");
    QTest::newRow("period") << 2 << QByteArray(R"({"id":2048,"kind":"timePeriod","label":"有效时间",
        "hidden":false,"shown":true,"enabled":true,"editable":true,
        "start":"09:30:00","end":"15:00:00","rangeType":1,"elapse":19800})");
}

void tst_State::aCellOfEachKind()
{
    QFETCH(int, broker);
    QFETCH(QByteArray, cell);
    const BaseTableProbe table(5, broker);
    const int id = Json::parse(cell.toStdString())["id"].get<int>();
    QCOMPARE(written(cellOf(stateOf(&table), id)), rewritten(cell));
}

void tst_State::cellsThatHostsAdd_data()
{
    QTest::addColumn<QByteArray>("cell");

    QTest::newRow("range") << QByteArray(R"({"id":100,"kind":"range","label":"区间",
        "hidden":false,"shown":true,"enabled":true,"editable":true,
        "low":20,"high":80,"min":1,"max":100,"unit":"股","separator":" - "})");
    QTest::newRow("line with a pattern") << QByteArray(R"({"id":101,"kind":"line","label":"代码",
        "hidden":false,"shown":true,"enabled":true,"editable":true,
        "text":"abc","pattern":"[a-z]*","placeholder":""})");
    QTest::newRow("line without a pattern") << QByteArray(R"({"id":102,"kind":"line","label":"备注",
        "hidden":false,"shown":true,"enabled":true,"editable":true,
        "text":"他说\"买\"","pattern":"","placeholder":"填写"})");
    QTest::newRow("text") << QByteArray(R"({"id":103,"kind":"text","label":"数量",
        "hidden":false,"shown":true,"enabled":true,"editable":true,"text":"1234567.5","unit":"股"})");
    QTest::newRow("number beyond all whole ones") << QByteArray(R"({"id":104,"kind":"number","label":"价",
        "hidden":false,"shown":true,"enabled":true,"editable":true,
        "value":1.7976931348623157e308,"unit":"元","min":0.0,"max":1.7976931348623157e308,"step":0.001,
        "units":[{"text":"元","type":6,"min":0.0,"max":1.7976931348623157e308,"step":0.001}]})");
}

void tst_State::cellsThatHostsAdd()
{
    QFETCH(QByteArray, cell);
    BaseTableProbe table;
    constexpr double kMost = std::numeric_limits<double>::max();
    WQ::CMultiParamsTable& cells = *table.m_table;
    cells.addRangeCell(100, QStringLiteral("区间"), 2, 1, 100, 20, 80, 1, QStringLiteral("股"), 1, -1,
                       QStringLiteral(" - "), false);
    cells.addLineEdit(101, QStringLiteral("代码"), QStringLiteral("[a-z]*"), true, QStringLiteral("abc"));
    cells.addLineEdit(102, QStringLiteral("备注"), QStringLiteral("他说\"买\""), false, QStringLiteral("填写"));
    cells.addParamCell(103, QStringLiteral("数量"), 10, 0, 0, 0, QStringLiteral("股"), 0, 4);
    cells.setItemText(103, QStringLiteral("1234567.5"));
    cells.addParamCell(104, QStringLiteral("价"), 6, 0, kMost, 0.001, QStringLiteral("元"), kMost, 4);
    const int id = Json::parse(cell.toStdString())["id"].get<int>();
    QCOMPARE(written(cellOf(stateOf(&table), id)), rewritten(cell));
}

void tst_State::numbersThatJsonCannotWriteAreTexts()
{
    BaseTableProbe table;
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    table.m_table->addParamCell(100, QStringLiteral("价"), 6, -kInfinity, kInfinity, 0.01, QStringLiteral("元"),
                                kInfinity, 4);
    table.m_table->addParamCell(101, QStringLiteral("量"), 2, -kInfinity, kInfinity, 1, QStringLiteral("股"), 5, 4);
    const Json state = stateOf(&table);
    QCOMPARE(differencesFrom(R"({"value":"inf","min":"-inf","max":"inf"})", cellOf(state, 100)), QByteArray());
    QCOMPARE(differencesFrom(R"({"value":5,"min":"-inf","max":"inf"})", cellOf(state, 101)), QByteArray());
}

void tst_State::aComboWithoutChoiceHasNoData()
{
    BaseTableProbe table;
    table.m_table->resetComboData(0x10, {}, {}, 0);
    QCOMPARE(differencesFrom(R"({"entries":[],"index":-1,"data":null,"text":""})", cellOf(stateOf(&table), 0x10)),
             QByteArray());
    table.m_table->resetComboData(0x10, {QStringLiteral("甲"), QStringLiteral("乙")}, {QVariant(), QStringLiteral("b")},
                                  1);
    QCOMPARE(differencesFrom(R"({"entries":[["甲",null],["乙","b"]],"index":1,"data":"b","text":"乙"})",
                             cellOf(stateOf(&table), 0x10)),
             QByteArray());
    table.m_table->resetComboData(0x10, {QStringLiteral("甲")}, {QVariant()}, 0);
    QCOMPARE(differencesFrom(R"({"index":0,"data":null,"text":"甲"})", cellOf(stateOf(&table), 0x10)), QByteArray());
}

void tst_State::anEmptyComboTextIsKept()
{
    BaseTableProbe table;
    table.m_table->resetComboData(0x10, {QString()}, {7}, 0);
    QCOMPARE(differencesFrom(R"({"entries":[["",7]],"index":0,"data":7,"text":""})", cellOf(stateOf(&table), 0x10)),
             QByteArray());
}

void tst_State::aPeriodMayBeMovedByTheHost()
{
    BaseTableProbe table;
    table.m_table->setItemText(0x800, QStringLiteral("22:15:30-02:00:00"));
    // From a quarter past ten at night to two in the morning: 3 h 44 min 30 s.
    QCOMPARE(differencesFrom(R"({"start":"22:15:30","end":"02:00:00","rangeType":1,"elapse":13470})",
                             cellOf(stateOf(&table), 0x800)),
             QByteArray());
}

void tst_State::hiddenFilteredDisabledAndFixedCellsDiffer()
{
    BaseTableProbe table;
    table.m_table->setVisibleItemSet({0x10, 0x40});
    table.m_table->setItemHidden(0x40, true);
    table.m_table->setItemEditable(0x10, false);
    Json state = stateOf(&table);
    const auto looks = [&state](int id) {
        const Json cell = cellOf(state, id);
        return Json::array({cell["hidden"], cell["shown"], cell["enabled"], cell["editable"]});
    };
    QCOMPARE(looks(0x10), Json::parse("[false,true,true,false]"));
    QCOMPARE(looks(0x40), Json::parse("[true,false,true,true]"));
    QCOMPARE(looks(0x200), Json::parse("[false,false,true,true]"));
    table.m_table->setExpand(true);
    table.setAllItemEnable(false);
    state = stateOf(&table);
    QCOMPARE(looks(0x10), Json::parse("[false,true,false,false]"));
    QCOMPARE(looks(0x40), Json::parse("[true,false,false,true]"));
    QCOMPARE(looks(0x200), Json::parse("[false,true,false,true]"));
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
    const BaseTableProbe table(15);
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

void tst_State::theTaskDialog()
{
    CCodeOrderParam task = taskOf(2, 1);
    const TC::CBaseTaskParamWidget dialog(task, QString(), nullptr, false, ENvTraderType(1), false, std::string());
    const Json state = stateOf(&dialog);
    QCOMPARE(keysOf(state), QByteArray("class title size expanded button table facts deleteOnClose"));
    QCOMPARE(written(state["button"]), QByteArray(R"({"hidden":false,"icon":"tc_img_operation_expand_btn"})"));
    const QByteArray table = R"({"class":"CGlobalOrderParamTable","id":31,"operationType":18,"expand":false,
        "size":[220,310]})";
    QCOMPARE(differencesFrom(table, state["table"]), QByteArray());
    QCOMPARE(cellOf(state["table"], 1)["enabled"], Json(false));
    const QByteArray facts = R"([
        {"label":"    账号","text":"10086","min":0.0,"max":1000000.0,"step":0.001,"enabled":false},
        {"label":"账号名称","text":"测试账号","min":0.0,"max":1000000.0,"step":0.001,"enabled":false},
        {"label":"    代码","text":"600000","min":0.0,"max":1000000.0,"step":0.001,"enabled":false},
        {"label":"    名称","text":"样本股份","min":0.0,"max":1000000.0,"step":0.001,"enabled":false},
        {"label":"    方向","text":"","min":0.0,"max":1000000.0,"step":0.001,"enabled":false},
        {"label":"    数量","text":"1200","min":0.0,"max":1000000.0,"step":0.001,"enabled":false},
        {"label":"  基准价","text":"12.345","min":0.0,"max":1.7976931348623157e308,"step":0.001,"enabled":false}])";
    QCOMPARE(written(state["facts"]), rewritten(facts));
    QCOMPARE(differencesFrom(R"({"title":"","expanded":false,"deleteOnClose":true})", state), QByteArray());
}

void tst_State::theTaskDialogExpanded()
{
    CCodeOrderParam task = taskOf(2, 0);
    TC::CBaseTaskParamWidget dialog(task, QString(), nullptr, false, ENvTraderType(4), false, std::string());
    static_cast<WQ::CEventDeliverer&>(dialog).handleEvent(5, 0, 0, QString(), nullptr);
    const QByteArray expected = R"({"expanded":true,"button":{"hidden":true,"icon":"tc_img_operation_contract_btn"},
        "table":{"expand":true},"facts":[]})";
    QCOMPARE(differencesFrom(expected, stateOf(&dialog)), QByteArray());
}

void tst_State::aTaskWithoutTable()
{
    CCodeOrderParam task = taskOf(8, 1);
    TC::CBaseTaskParamWidget dialog(task, QString(), nullptr, false, ENvTraderType(1), false, std::string());
    QCOMPARE(differencesFrom(R"({"table":null,"button":{"hidden":true}})", stateOf(&dialog)), QByteArray());
    delete dialog.findChild<WQ::CPushButton*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(differencesFrom(R"({"button":null})", stateOf(&dialog)), QByteArray());
}

void tst_State::theBasketDialog()
{
    std::vector<CCodeOrderParam> tasks = {taskOf(2, 1)};
    TC::CHpfBasketTaskParamWidget dialog(tasks, QString(), nullptr, std::string());
    QCOMPARE(differencesFrom(R"({"class":"CHpfBasketTaskParamWidget","title":"","expanded":false,"button":null,
                                 "table":null,"facts":[],"deleteOnClose":true})",
                             stateOf(&dialog)),
             QByteArray());
    static_cast<WQ::CEventDeliverer&>(dialog).handleEvent(5, 0, 0, QString(), nullptr);
    QCOMPARE(stateOf(&dialog)["expanded"], Json(true));
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
    auto* const table = new BaseTableProbe(5, 2, &host);
    table->setOrderType(EOrderType(1));
    host.take();
    const QByteArray first = written(stateOf(table));
    QCOMPARE(written(stateOf(table)), first);
    QCoreApplication::processEvents();
    QCOMPARE(written(stateOf(table)), first);
    QCOMPARE(host.take(), QStringList());
}

void tst_State::aDumpIsQuick()
{
    const support::ModuleGuard on({support::modules::kCommandRemark});
    const BaseTableProbe table;
    constexpr int kDumps = 200;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < kDumps; ++i)
        stateOf(&table);
    const double milliseconds = double(timer.nsecsElapsed()) / 1e6 / kDumps;
    qInfo("a dump of %d cells takes %.3f ms", int(stateOf(&table)["cells"].size()), milliseconds);
    QVERIFY2(milliseconds < 5, "a dump is far slower than the commands it follows");
}

QTEST_MAIN(tst_State)
#include "tst_State.moc"
