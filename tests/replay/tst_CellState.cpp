#include "States.h"

#include "support/BaseTableProbe.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using namespace states;
using replay::stateOf;
using support::BaseTableProbe;

class tst_CellState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

void tst_CellState::cellsStandInDisplayOrder()
{
    const BaseTableProbe table;
    QCOMPARE(idsOf(stateOf(&table)["cells"]),
             (QList<int>{0x1, 0x2, 0x10, 0x40, 0x4, 0x8, 0x200, 0x400, 0x800, 0x1000, 0x2000, 0x10000, 0x20000, 0x80000,
                         0x2000000}));
}

void tst_CellState::aCellOfEachKind_data()
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

void tst_CellState::aCellOfEachKind()
{
    QFETCH(int, broker);
    QFETCH(QByteArray, cell);
    support::TableSetup setup;
    setup.brokerType = broker;
    const BaseTableProbe table(setup);
    const int id = Json::parse(cell.toStdString())["id"].get<int>();
    QCOMPARE(written(cellOf(stateOf(&table), id)), rewritten(cell));
}

void tst_CellState::cellsThatHostsAdd_data()
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

void tst_CellState::cellsThatHostsAdd()
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

void tst_CellState::numbersThatJsonCannotWriteAreTexts()
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

void tst_CellState::aComboWithoutChoiceHasNoData()
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

void tst_CellState::anEmptyComboTextIsKept()
{
    BaseTableProbe table;
    table.m_table->resetComboData(0x10, {QString()}, {7}, 0);
    QCOMPARE(differencesFrom(R"({"entries":[["",7]],"index":0,"data":7,"text":""})", cellOf(stateOf(&table), 0x10)),
             QByteArray());
}

void tst_CellState::aPeriodMayBeMovedByTheHost()
{
    BaseTableProbe table;
    table.m_table->setItemText(0x800, QStringLiteral("22:15:30-02:00:00"));
    // From a quarter past ten at night to two in the morning: 3 h 44 min 30 s.
    QCOMPARE(differencesFrom(R"({"start":"22:15:30","end":"02:00:00","rangeType":1,"elapse":13470})",
                             cellOf(stateOf(&table), 0x800)),
             QByteArray());
}

void tst_CellState::hiddenFilteredDisabledAndFixedCellsDiffer()
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

QTEST_MAIN(tst_CellState)
#include "tst_CellState.moc"
