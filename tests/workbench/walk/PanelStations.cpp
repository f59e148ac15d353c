#include "Stations.h"
#include "Walker.h"

#include <OrderParamTable_mini/semantics/OrderVocabulary.h>

#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QtTest>

namespace walk {

namespace {

QDockWidget& calls(Walker& w)
{
    return w.part(w.say("Host calls", "宿主调用"));
}

QStringList expandedAlgorithm()
{
    return {QStringLiteral("报价方式"),     QStringLiteral("单笔超价"), QStringLiteral("单笔基准量"),
            QStringLiteral("超价启用笔数"), QStringLiteral("波动区间"), QStringLiteral("单笔最小量"),
            QStringLiteral("单笔最大量"),   QStringLiteral("有效时间"), QStringLiteral("最大委托次数"),
            QStringLiteral("未成委托处理"), QStringLiteral("限价"),     QStringLiteral("投资备注")};
}

void expectPlainRows(Walker& w)
{
    const QStringList rows{QStringLiteral("报价方式"), QStringLiteral("单笔超价"), QStringLiteral("限价"),
                           QStringLiteral("投资备注")};
    QCOMPARE(w.panel().labels(), rows);
}

/// As constructed: nothing has asked for the cells of an order type yet.
void theWindowIsReady(Walker& w)
{
    QCOMPARE(w.window().windowTitle(), w.say("Order parameter workbench", "下单参数工作台"));
    for (const QString& title : {w.say("Modules and host", "模块与宿主"), w.say("Quote", "行情"),
                                 w.say("Host calls", "宿主调用"), w.say("Events", "事件")})
        QVERIFY2(w.part(title).isVisible(), qPrintable(title));
    const QStringList rows{QStringLiteral("报价方式"),     QStringLiteral("单笔超价"),   QStringLiteral("单笔基准量"),
                           QStringLiteral("尾单最小量"),   QStringLiteral("波动区间"),   QStringLiteral("单笔最小量"),
                           QStringLiteral("单笔最大量"),   QStringLiteral("有效时间"),   QStringLiteral("最大委托次数"),
                           QStringLiteral("未成委托处理"), QStringLiteral("单笔量区间"), QStringLiteral("初始报价"),
                           QStringLiteral("未成处理"),     QStringLiteral("波动区间"),   QStringLiteral("投资备注")};
    QCOMPARE(w.panel().labels(), rows);
    QCOMPARE(w.panel().value(TC::OCF_SuperPrice), QStringLiteral("0.50 %"));
    QCOMPARE(w.panel().value(TC::OCF_MinSingleVolume), QStringLiteral("10,000 股"));
    QCOMPARE(w.panel().value(TC::OCF_ValidTime), QStringLiteral("09:30 – 15:00"));
}

void aRangeIsTyped(Walker& w)
{
    w.hands().clickValue(TC::OCF_SingleVolumeRange);
    w.hands().type(QStringLiteral("200"));
    w.picture("range-editor");
    w.hands().press(Qt::Key_Tab);
    w.hands().type(QStringLiteral("5000"));
    w.hands().press(Qt::Key_Return);
    QCOMPARE(w.panel().value(TC::OCF_SingleVolumeRange), QStringLiteral("200 - 5,000 股"));
}

/// The global table takes no code and the code table does, which is what the host has the two for.
void aStockCodeIsTyped(Walker& w)
{
    auto& code = w.fieldAs<QLineEdit>(calls(w), w.say("Instrument code", "合约代码"));
    w.hands().click(code);
    w.hands().type(QStringLiteral("900101"));
    w.hands().press(Qt::Key_Return);
    const QString answer = w.say("code 900101", "代码 900101");
    QVERIFY(!w.labels(calls(w)).join(QLatin1Char('\n')).contains(answer));
    QWidget& tables = w.field(w.part(w.say("Modules and host", "模块与宿主")), w.say("Table class", "表类"));
    w.choose(tables, w.say("Code table", "代码参数表"));
    const QString told = w.labels(calls(w)).join(QLatin1Char('\n'));
    QVERIFY2(told.contains(answer), qPrintable(told));
    w.picture("code-table");
    w.choose(tables, w.say("Global table", "全局参数表"));
}

void theAlgorithmIsClicked(Walker& w)
{
    w.hands().clickMode(601);
    const QStringList rows{QStringLiteral("报价方式"), QStringLiteral("单笔超价"), QStringLiteral("单笔基准量"),
                           QStringLiteral("波动区间"), QStringLiteral("限价"),     QStringLiteral("投资备注")};
    QCOMPARE(w.panel().labels(), rows);
    const auto& type = w.fieldAs<QComboBox>(calls(w), w.say("Order type", "委托类型"));
    QCOMPARE(type.currentText(), w.say("1  algorithm", "1  智能算法"));
}

/// Once an operation is chosen the base volumes start from the bids, and the target volume is chosen.
void anOperationIsChosen(Walker& w)
{
    QWidget& operation = w.field(calls(w), w.say("Operation", "操作类型"));
    w.hands().clickArrow(dynamic_cast<QComboBox&>(operation));
    w.picture("operation-list");
    w.hands().clickEntry(QStringLiteral("18"));
    QCOMPARE(w.panel().value(TC::OCF_BaseVolume), QStringLiteral("目标量"));
    w.hands().clickValue(TC::OCF_BaseVolume);
    const QStringList volumes{QStringLiteral("买①量"),         QStringLiteral("买①+②量"),
                              QStringLiteral("买①+②+③量"),     QStringLiteral("买①+②+③+④量"),
                              QStringLiteral("买①+②+③+④+⑤量"), QStringLiteral("目标量"),
                              QStringLiteral("目标剩余量"),    QStringLiteral("持仓数量")};
    QCOMPARE(PanelSight::entries(), volumes);
    w.picture("base-volumes");
    w.hands().press(Qt::Key_Escape);
}

void thePanelIsExpanded(Walker& w)
{
    w.hands().clickButton(calls(w), w.say("Expanded", "展开(X)"));
    QCOMPARE(w.panel().labels(), expandedAlgorithm());
}

void aModeIsChosenInTheDropDown(Walker& w)
{
    w.clickDropDown();
    w.picture("mode-drop-down");
    w.hands().clickEntry(QStringLiteral("参数组"));
    QCOMPARE(w.panel().labels(), QStringList());
    const auto& type = w.fieldAs<QComboBox>(calls(w), w.say("Order type", "委托类型"));
    QCOMPARE(type.currentText(), w.say("5  parameter set 5", "5  参数组 5"));
}

void aModeIsChosenByKeys(Walker& w)
{
    w.hands().press(Qt::Key_O, Qt::AltModifier);
    w.hands().press(Qt::Key_A, Qt::ControlModifier);
    w.hands().type(QStringLiteral("0"));
    w.hands().press(Qt::Key_Return);
    expectPlainRows(w);
    w.picture("plain-order");
    w.hands().press(Qt::Key_A, Qt::ControlModifier);
    w.hands().type(QStringLiteral("1"));
    w.hands().press(Qt::Key_Return);
    QCOMPARE(w.panel().labels(), expandedAlgorithm());
}

} // namespace

Stations panelStations()
{
    return {
        {"ready", theWindowIsReady},
        {"range", aRangeIsTyped},
        {"code", aStockCodeIsTyped},
        {"algorithm", theAlgorithmIsClicked},
        {"operation", anOperationIsChosen},
        {"expanded", thePanelIsExpanded},
        {"parameter-set", aModeIsChosenInTheDropDown},
        {"mode-by-keys", aModeIsChosenByKeys},
    };
}

} // namespace walk
