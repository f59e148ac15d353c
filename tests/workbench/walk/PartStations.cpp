#include "Stations.h"
#include "Walker.h"

#include "workbench/HostTable.h"

#include <OrderParamTable_mini/semantics/OrderVocabulary.h>
#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>

#include <WQ/CParameterCell.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QSpinBox>
#include <QtTest>

namespace walk {

namespace {

template <class Widget>
Widget& in(const QWidget& part)
{
    auto* widget = part.findChild<Widget*>();
    if (!widget)
        throw std::runtime_error(Widget::staticMetaObject.className());
    return *widget;
}

/// The ladder from the fifth ask down: its sixth row is the last price, the next the best bid.
void aPriceIsTakenFromTheQuote(Walker& w)
{
    QDockWidget& quote = w.part(w.say("Quote", "行情"));
    auto& ladder = in<workbench::HostTable>(quote);
    QCOMPARE(Walker::rows(quote).size(), 11);
    w.hands().clickRow(ladder, 6);
    QCOMPARE(w.panel().value(TC::OCF_PriceType), QStringLiteral("买①价"));
    w.hands().doubleClickRow(ladder, 5);
    QCOMPARE(w.panel().value(TC::OCF_PriceType), QStringLiteral("指定价"));
}

void theQuoteMovesWhileAPersonTypes(Walker& w)
{
    QDockWidget& quote = w.part(w.say("Quote", "行情"));
    const QStringList before = Walker::rows(quote);
    auto& rate = in<QSpinBox>(quote);
    w.hands().click(rate, QPoint(10, rate.height() / 2));
    w.hands().press(Qt::Key_A, Qt::ControlModifier);
    w.hands().type(QStringLiteral("50"));
    w.hands().press(Qt::Key_Return);
    w.hands().clickButton(quote, w.say("Quote moves", "行情变动(Q)"));
    w.hands().clickValue(TC::OCF_SuperPrice);
    w.hands().type(QStringLiteral("0.4"));
    QTRY_VERIFY(Walker::rows(quote) != before);
    QCOMPARE(w.panel().edited(), QStringLiteral("0.4"));
    w.hands().press(Qt::Key_Escape);
    w.hands().clickButton(quote, w.say("Quote moves", "行情变动(Q)"));
    QCOMPARE(w.panel().value(TC::OCF_SuperPrice), QStringLiteral("0.37 元"));
}

void theTicketIsRead(Walker& w)
{
    const QDockWidget& ticket = w.goTo("Ticket", "委托单");
    const QStringList items = in<QLineEdit>(ticket).text().split(QLatin1Char('+'));
    QCOMPARE(items.size(), 41);
    QCOMPARE(items.first(), QStringLiteral("1"));
    const QString rows = Walker::rows(ticket).join(QLatin1Char('\n'));
    QVERIFY2(rows.contains(QStringLiteral("季度调仓 Q2")), qPrintable(rows));
    QVERIFY2(rows.contains(w.say("operation | 18", "操作类型 | 18")), qPrintable(rows));
}

void aTaskIsOpened(Walker& w)
{
    QDockWidget& tasks = w.goTo("Tasks", "任务");
    QCOMPARE(Walker::rows(tasks).size(), 27);
    w.hands().doubleClickRow(in<workbench::HostTable>(tasks), 1);
    const QPointer<QWidget> dialog = &in<TC::CBaseTaskParamWidget>(tasks);
    QStringList facts;
    for (const auto* fact : dialog->findChildren<WQ::CParameterCell*>())
        facts << fact->label().trimmed() + QLatin1Char(' ') + fact->text();
    const QStringList task{QStringLiteral("账号 1000200318"), QStringLiteral("账号名称 演示证券普通账户"),
                           QStringLiteral("代码 900102"),     QStringLiteral("名称 演示酒业"),
                           QStringLiteral("方向 "),           QStringLiteral("数量 100"),
                           QStringLiteral("基准价 1688.000")};
    QCOMPARE(facts, task);
    w.picture("task-dialog");
    w.hands().press(Qt::Key_Escape);
    QVERIFY(!dialog);
}

void aBasketIsOpened(Walker& w)
{
    QDockWidget& tasks = w.part(w.say("Tasks", "任务"));
    w.hands().clickButton(tasks, w.say("Open basket", "打开篮子"));
    const QPointer<QWidget> basket = &in<TC::CHpfBasketTaskParamWidget>(tasks);
    w.picture("basket-dialog");
    w.hands().press(Qt::Key_Escape);
    QVERIFY(!basket);
}

void anAccountIsChosenForTheCredit(Walker& w)
{
    QDockWidget& credit = w.goTo("Credit", "信用");
    w.choose(w.field(credit, w.say("Operation", "操作类型")), QStringLiteral("24"));
    QCOMPARE(w.credit().value(728), QStringLiteral("3,000.00 元"));
    QVERIFY(w.credit().labels().contains(QStringLiteral("负债金额")));
    auto& account = w.fieldAs<QLineEdit>(credit, w.say("Account", "账号"));
    w.hands().click(account);
    w.hands().press(Qt::Key_A, Qt::ControlModifier);
    w.hands().type(QStringLiteral("6600300163"));
    w.hands().clickButton(credit, w.say("Select", "选择"));
    QCOMPARE(w.credit().value(726), QStringLiteral("6600300163"));
}

/// A contract's figures: 3,000 shares to repay, nothing repayable today in an account without them.
void aContractIsChosen(Walker& w)
{
    QDockWidget& credit = w.part(w.say("Credit", "信用"));
    w.choose(w.field(credit, w.say("Operation", "操作类型")), QStringLiteral("22"));
    w.hands().clickButton(credit, w.say("Choose a contract", "选择合约"));
    QCOMPARE(w.credit().value(728), QStringLiteral("3,000 股"));
    QCOMPARE(w.credit().value(729), QStringLiteral("0 股"));
}

void eventsAreFiltered(Walker& w)
{
    QDockWidget& events = w.goTo("Events", "事件");
    const int all = Walker::rows(events).size();
    w.hands().press(Qt::Key_F, Qt::ControlModifier);
    w.hands().type(w.say("number committed", "提交数值"));
    const QStringList rows = Walker::rows(events);
    QVERIFY(!rows.isEmpty() && rows.size() < all);
    for (const QString& row : rows)
        QVERIFY2(row.contains(QStringLiteral("87 ")), qPrintable(row));
    w.picture("events-filtered");
    w.hands().press(Qt::Key_A, Qt::ControlModifier);
    w.hands().press(Qt::Key_Delete);
    QCOMPARE(Walker::rows(events).size(), all);
}

void eventsArePausedCopiedAndCleared(Walker& w)
{
    QDockWidget& events = w.part(w.say("Events", "事件"));
    const int all = Walker::rows(events).size();
    w.hands().clickButton(events, w.say("Pause", "暂停"));
    w.hands().clickMode(600);
    QCOMPARE(Walker::rows(events).size(), all);
    w.hands().clickButton(events, w.say("Pause", "暂停"));
    w.hands().clickMode(601);
    QVERIFY(Walker::rows(events).size() > all);
    w.hands().clickButton(events, w.say("Copy", "复制"));
    QCOMPARE(QApplication::clipboard()->text().split(QLatin1Char('\n')).size(), Walker::rows(events).size());
    w.hands().clickButton(events, w.say("Clear", "清空"));
    QCOMPARE(Walker::rows(events), QStringList());
}

} // namespace

Stations partStations()
{
    return {
        {"quote", aPriceIsTakenFromTheQuote},
        {"quote-moves", theQuoteMovesWhileAPersonTypes},
        {"ticket", theTicketIsRead},
        {"tasks", aTaskIsOpened},
        {"basket", aBasketIsOpened},
        {"credit", anAccountIsChosenForTheCredit},
        {"contract", aContractIsChosen},
        {"events", eventsAreFiltered},
        {"events-cleared", eventsArePausedCopiedAndCleared},
    };
}

} // namespace walk
