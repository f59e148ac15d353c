#include "Stations.h"
#include "Walker.h"

#include "reference/toolkit/Resources.h"

#include <OrderParamTable_mini/semantics/OrderVocabulary.h>

#include <QApplication>
#include <QDateTimeEdit>
#include <QDockWidget>
#include <QMenu>
#include <QtTest>

namespace walk {

namespace {

QDockWidget& events(Walker& w)
{
    return w.part(w.say("Events", "事件"));
}

/// The third algorithm has its button then, and none of the usual cells but the remark.
void aModuleIsSwitchedOn(Walker& w)
{
    w.goTo("Modules and host", "模块与宿主");
    w.hands().press(Qt::Key_Y, Qt::AltModifier);
    w.hands().press(Qt::Key_Home);
    w.hands().press(Qt::Key_Space);
    w.picture("module-list");
    w.hands().clickMode(603);
    w.picture("third-algorithm");
    QVERIFY(!w.panel().labels().contains(QStringLiteral("报价方式")));
    QVERIFY(w.panel().labels().contains(QStringLiteral("投资备注")));
    w.hands().clickMode(601);
}

/// Yesterday's close is offered to the first desk alone.
void theTraderTypeIsChanged(Walker& w)
{
    const auto chooseTrader = [&w](const char* trader) {
        w.hands().press(Qt::Key_R, Qt::AltModifier);
        w.hands().press(Qt::Key_A, Qt::ControlModifier);
        w.hands().type(QLatin1String(trader));
        w.hands().press(Qt::Key_Return);
        w.hands().clickValue(TC::OCF_PriceType);
        const QStringList offered = PanelSight::entries();
        w.hands().press(Qt::Key_Escape);
        return offered;
    };
    QVERIFY(!chooseTrader("4").contains(QStringLiteral("昨收价")));
    QVERIFY(chooseTrader("1").contains(QStringLiteral("昨收价")));
}

void theClientModeIsChanged(Walker& w)
{
    w.hands().press(Qt::Key_J, Qt::AltModifier);
    w.hands().press(Qt::Key_A, Qt::ControlModifier);
    w.hands().type(QStringLiteral("100"));
    w.hands().press(Qt::Key_Return);
    w.picture("client-mode");
    w.hands().clickMode(600);
    w.hands().clickMode(601);
    const QString rows = Walker::rows(events(w)).join(QLatin1Char('\n'));
    QVERIFY2(rows.contains(w.say("1244 algorithm buttons", "1244 算法按钮")), qPrintable(rows));
}

void theClockIsFrozenAndAdvanced(Walker& w)
{
    auto* const time = w.part(w.say("Modules and host", "模块与宿主")).findChild<QDateTimeEdit*>();
    QVERIFY(time);
    w.hands().press(Qt::Key_Z, Qt::AltModifier);
    QTRY_VERIFY(time->isEnabled());
    w.hands().press(Qt::Key_Tab);
    QVERIFY(time->hasFocus());
    w.hands().type(QStringLiteral("20240520093000"));
    w.hands().press(Qt::Key_Return);
    QCOMPARE(time->text(), QStringLiteral("2024-05-20 09:30:00"));
    const auto lastTime = [&w] {
        w.hands().clickMode(600);
        w.hands().clickMode(601);
        return Walker::rows(events(w)).constLast().section(QStringLiteral(" | "), 1, 1);
    };
    QCOMPARE(lastTime(), QStringLiteral("09:30:00"));
    w.hands().clickButton(w.part(w.say("Modules and host", "模块与宿主")), w.say("Advance", "前进"));
    QCOMPARE(lastTime(), QStringLiteral("09:31:00"));
}

void theWindowIsScaled(Walker& w)
{
    const int width = w.panelWidth();
    w.hands().press(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(w.panelWidth(), width * 5 / 4);
    w.picture("larger");
    w.hands().press(Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(w.panelWidth(), width);
    for (int i = 0; i < 4; ++i)
        w.hands().press(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(w.panelWidth(), 2 * width);
    w.picture("twice");
    w.hands().press(Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(w.panelWidth(), width);
}

/// By keys: the menu, the list in it, the theme by its place.
void chooseTheme(Walker& w, const QString& name)
{
    w.hands().press(Qt::Key_V, Qt::AltModifier);
    w.hands().press(Qt::Key_T);
    const auto* themes = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(themes);
    for (int i = 0; i < themes->actions().size() && themes->activeAction()->text() != name; ++i)
        w.hands().press(Qt::Key_Down);
    w.picture("themes");
    w.hands().press(Qt::Key_Return);
}

void theThemeIsLight(Walker& w)
{
    chooseTheme(w, w.say("Light", "浅色"));
    QCOMPARE(WQ::resources::theme(), QStringLiteral("light"));
}

void theThemeIsHighContrast(Walker& w)
{
    chooseTheme(w, w.say("High contrast", "高对比度"));
    QCOMPARE(WQ::resources::theme(), QStringLiteral("high-contrast"));
}

void theThemeIsDark(Walker& w)
{
    chooseTheme(w, w.say("Dark", "深色"));
    QCOMPARE(WQ::resources::theme(), QStringLiteral("dark"));
}

} // namespace

Stations hostStations()
{
    return {
        {"module", aModuleIsSwitchedOn},           {"trader", theTraderTypeIsChanged}, {"mode", theClientModeIsChanged},
        {"clock", theClockIsFrozenAndAdvanced},    {"scale", theWindowIsScaled},       {"light", theThemeIsLight},
        {"high-contrast", theThemeIsHighContrast}, {"dark", theThemeIsDark},
    };
}

} // namespace walk
