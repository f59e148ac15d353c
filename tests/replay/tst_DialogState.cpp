#include "States.h"

#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>

#include <WQ/CPushButton.h>

#include <QtTest>

using namespace states;
using namespace ttservice;
using replay::stateOf;

class tst_DialogState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTaskDialog();
    void theTaskDialogExpanded();
    void aTaskWithoutTable();
    void theBasketDialog();
};

void tst_DialogState::theTaskDialog()
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

void tst_DialogState::theTaskDialogExpanded()
{
    CCodeOrderParam task = taskOf(2, 0);
    TC::CBaseTaskParamWidget dialog(task, QString(), nullptr, false, ENvTraderType(4), false, std::string());
    static_cast<WQ::CEventDeliverer&>(dialog).handleEvent(5, 0, 0, QString(), nullptr);
    const QByteArray expected = R"({"expanded":true,"button":{"hidden":true,"icon":"tc_img_operation_contract_btn"},
        "table":{"expand":true},"facts":[]})";
    QCOMPARE(differencesFrom(expected, stateOf(&dialog)), QByteArray());
}

void tst_DialogState::aTaskWithoutTable()
{
    CCodeOrderParam task = taskOf(8, 1);
    TC::CBaseTaskParamWidget dialog(task, QString(), nullptr, false, ENvTraderType(1), false, std::string());
    QCOMPARE(differencesFrom(R"({"table":null,"button":{"hidden":true}})", stateOf(&dialog)), QByteArray());
    delete dialog.findChild<WQ::CPushButton*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(differencesFrom(R"({"button":null})", stateOf(&dialog)), QByteArray());
}

void tst_DialogState::theBasketDialog()
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

QTEST_MAIN(tst_DialogState)
#include "tst_DialogState.moc"
