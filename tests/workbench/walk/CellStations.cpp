#include "Stations.h"
#include "Walker.h"

#include <OrderParamTable_mini/semantics/OrderVocabulary.h>

#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QMenu>
#include <QtTest>

namespace walk {

namespace {

QString clipboard()
{
    return QApplication::clipboard()->text();
}

void anEntryIsClicked(Walker& w)
{
    w.hands().clickValue(TC::OCF_PriceType);
    const QStringList prices{QStringLiteral("指定价"), QStringLiteral("挂单价"), QStringLiteral("对手价"),
                             QStringLiteral("昨收价"), QStringLiteral("卖⑤价"),  QStringLiteral("卖④价"),
                             QStringLiteral("卖③价"),  QStringLiteral("卖②价"),  QStringLiteral("卖①价"),
                             QStringLiteral("最新价"), QStringLiteral("买①价"),  QStringLiteral("买②价"),
                             QStringLiteral("买③价"),  QStringLiteral("买④价"),  QStringLiteral("买⑤价")};
    QCOMPARE(PanelSight::entries(), prices);
    w.picture("price-types");
    w.hands().clickEntry(QStringLiteral("对手价"));
    QCOMPARE(w.panel().value(TC::OCF_PriceType), QStringLiteral("对手价"));
}

void anEntryIsChosenByKeys(Walker& w)
{
    w.hands().press(Qt::Key_Space);
    w.hands().press(Qt::Key_Down);
    w.hands().press(Qt::Key_Return);
    QCOMPARE(w.panel().value(TC::OCF_PriceType), QStringLiteral("昨收价"));
}

void aNumberIsTyped(Walker& w)
{
    w.hands().press(Qt::Key_Tab);
    QCOMPARE(w.panel().edited(), QStringLiteral("0.50"));
    w.hands().type(QStringLiteral("0.37"));
    w.picture("number-editor");
    w.hands().press(Qt::Key_Return);
    QCOMPARE(w.panel().value(TC::OCF_SuperPrice), QStringLiteral("0.37 %"));
}

void aWrongNumberIsRefused(Walker& w)
{
    w.hands().clickValue(TC::OCF_SuperPrice);
    w.hands().type(QStringLiteral("101"));
    w.hands().press(Qt::Key_Return);
    QVERIFY2(PanelSight::notice().contains(QStringLiteral("100")), qPrintable(PanelSight::notice()));
    w.picture("wrong-number");
    w.hands().press(Qt::Key_Escape);
    QCOMPARE(w.panel().value(TC::OCF_SuperPrice), QStringLiteral("0.37 %"));
}

void aUnitIsSwitched(Walker& w)
{
    w.hands().clickUnit(TC::OCF_SuperPrice);
    QCOMPARE(PanelSight::entries(), (QStringList{QStringLiteral("%"), QStringLiteral("元")}));
    w.picture("units");
    w.hands().clickEntry(QStringLiteral("元"));
    QCOMPARE(w.panel().value(TC::OCF_SuperPrice), QStringLiteral("0.37 元"));
    QVERIFY2(w.panel().toolTip(TC::OCF_SuperPrice).contains(QStringLiteral("1,000,000")),
             qPrintable(w.panel().toolTip(TC::OCF_SuperPrice)));
}

void aNumberOffTheGridIsMarked(Walker& w)
{
    w.hands().clickValue(TC::OCF_MinSingleVolume);
    QCOMPARE(w.panel().edited(), QStringLiteral("10000"));
    w.hands().type(QStringLiteral("1250"));
    w.picture("off-the-grid");
    w.hands().press(Qt::Key_Return);
    QCOMPARE(w.panel().value(TC::OCF_MinSingleVolume), QStringLiteral("1,250 股"));
    const QString said = w.panel().toolTip(TC::OCF_MinSingleVolume);
    QVERIFY2(said.contains(QStringLiteral("1,200")) && said.contains(QStringLiteral("1,300")), qPrintable(said));
}

void aBoxIsTicked(Walker& w)
{
    w.hands().clickCheck(TC::OCF_FluctuationCheck);
    QVERIFY(w.panel().isChecked(TC::OCF_FluctuationCheck));
    w.hands().press(Qt::Key_Space);
    QVERIFY(!w.panel().isChecked(TC::OCF_FluctuationCheck));
    w.hands().press(Qt::Key_Space);
    QVERIFY(w.panel().isChecked(TC::OCF_FluctuationCheck));
}

void aPeriodIsTyped(Walker& w)
{
    w.hands().clickValue(TC::OCF_ValidTime);
    w.hands().press(Qt::Key_A, Qt::ControlModifier);
    w.hands().type(QStringLiteral("09:45:00"));
    w.hands().press(Qt::Key_Tab);
    w.hands().press(Qt::Key_A, Qt::ControlModifier);
    w.hands().type(QStringLiteral("14:30:00"));
    w.picture("period-editor");
    w.hands().press(Qt::Key_Return);
    QCOMPARE(w.panel().value(TC::OCF_ValidTime), QStringLiteral("09:45 – 14:30"));
}

void aNumberIsStepped(Walker& w)
{
    w.hands().clickValue(TC::OCF_MaxOrderCount);
    w.hands().press(Qt::Key_Up);
    QCOMPARE(w.panel().edited(), QStringLiteral("1001"));
    w.hands().press(Qt::Key_Up, Qt::ShiftModifier);
    w.hands().press(Qt::Key_Return);
    QCOMPARE(w.panel().value(TC::OCF_MaxOrderCount), QStringLiteral("1,011 次"));
}

void aLineIsTyped(Walker& w)
{
    w.hands().clickValue(TC::OCF_InvestRemark);
    w.compose(QStringLiteral("季度调仓"));
    w.hands().type(QStringLiteral(" Q2"));
    w.hands().press(Qt::Key_Return);
    QCOMPARE(w.panel().value(TC::OCF_InvestRemark), QStringLiteral("季度调仓 Q2"));
}

void theMenuOfACellIsUsed(Walker& w)
{
    w.hands().clickLabel(TC::OCF_SuperPrice, Qt::RightButton);
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    int withKeys = 0;
    for (const QAction* action : menu->actions())
        withKeys += !action->shortcut().isEmpty() && action->isShortcutVisibleInContextMenu();
    QCOMPARE(withKeys, 6);
    w.picture("cell-menu");
    w.hands().clickEntry(w.say("Copy label and value", "复制名称和数值"));
    QVERIFY2(clipboard().startsWith(QStringLiteral("单笔超价")) && clipboard().contains(QStringLiteral("0.37")),
             qPrintable(clipboard()));
}

void valuesAreCopiedAndPastedByKeys(Walker& w)
{
    w.hands().clickLabel(TC::OCF_MaxOrderCount);
    w.hands().press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard(), QStringLiteral("1011"));
    QApplication::clipboard()->setText(QStringLiteral("500"));
    w.hands().press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(w.panel().value(TC::OCF_MaxOrderCount), QStringLiteral("500 次"));
    w.hands().press(Qt::Key_Backspace, Qt::ControlModifier);
    QCOMPARE(w.panel().value(TC::OCF_MaxOrderCount), QStringLiteral("1,000 次"));
    w.hands().press(Qt::Key_F10, Qt::ShiftModifier);
    QVERIFY(qobject_cast<QMenu*>(QApplication::activePopupWidget()));
    w.hands().press(Qt::Key_Escape);
}

/// What is ticked is shown afterwards, also what the collapsed algorithm hides.
void theFilterIsApplied(Walker& w)
{
    w.hands().clickButton(w.part(w.say("Host calls", "宿主调用")), w.say("Expanded", "展开(X)"));
    QCOMPARE(w.panel().labels().size(), 6);
    w.hands().clickFooter();
    w.hands().clickFilterRow(0);
    w.picture("filter-open");
    w.hands().clickFilterApply();
    QVERIFY(!w.panel().labels().contains(QStringLiteral("报价方式")));
    QVERIFY(w.panel().labels().contains(QStringLiteral("有效时间")));
}

void theFilterIsReset(Walker& w)
{
    w.hands().clickFooter();
    w.hands().clickFilterReset();
    const QStringList rows{QStringLiteral("报价方式"), QStringLiteral("单笔超价"), QStringLiteral("单笔基准量"),
                           QStringLiteral("波动区间"), QStringLiteral("限价"),     QStringLiteral("投资备注")};
    QCOMPARE(w.panel().labels(), rows);
}

} // namespace

Stations cellStations()
{
    return {
        {"entry-clicked", anEntryIsClicked},
        {"entry-by-keys", anEntryIsChosenByKeys},
        {"number", aNumberIsTyped},
        {"number-refused", aWrongNumberIsRefused},
        {"unit", aUnitIsSwitched},
        {"grid", aNumberOffTheGridIsMarked},
        {"check", aBoxIsTicked},
        {"period", aPeriodIsTyped},
        {"steps", aNumberIsStepped},
        {"remark", aLineIsTyped},
        {"menu", theMenuOfACellIsUsed},
        {"clipboard", valuesAreCopiedAndPastedByKeys},
        {"filter", theFilterIsApplied},
        {"filter-reset", theFilterIsReset},
    };
}

} // namespace walk
