#include "Stations.h"
#include "Walker.h"

#include "workbench/MainWindow.h"
#include "workbench/TableBench.h"

#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QtTest>

namespace walk {

namespace {

/// More stops than this on one round through the window, and nobody finds anything by Tab.
constexpr int kMostStops = 200;

/// Each menu opens by its access key. What stands in it shows its keys, but for what leads on to another menu.
void theMenusAreOpened(Walker& w)
{
    int withKeys = 0;
    for (const QAction* title : w.window().menuBar()->actions()) {
        const QKeySequence access = QKeySequence::mnemonic(title->text());
        QVERIFY2(!access.isEmpty(), qPrintable(title->text()));
        w.hands().press(access[0] & ~int(Qt::KeyboardModifierMask), Qt::AltModifier);
        QCOMPARE(QApplication::activePopupWidget(), title->menu());
        for (const QAction* action : title->menu()->actions())
            if (!action->isSeparator() && !action->menu()) {
                QVERIFY2(!action->shortcut().isEmpty(), qPrintable(action->text()));
                ++withKeys;
            }
        w.picture("menu");
        w.hands().press(Qt::Key_Escape);
        w.hands().press(Qt::Key_Escape);
    }
    QVERIFY(withKeys >= 25);
}

/// Each part is closed, and comes back by its keys.
void thePartsComeByTheirKeys(Walker& w)
{
    const auto docks = w.window().findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(docks.size(), 10);
    for (QDockWidget* dock : docks) {
        const QByteArray title = dock->windowTitle().toUtf8();
        dock->close();
        w.goTo(title.constData(), title.constData());
        QVERIFY2(dock->isVisible() && dock->isAncestorOf(QApplication::focusWidget()), title.constData());
    }
    w.hands().press(Qt::Key_F6);
    QVERIFY(w.window().bench()->isAncestorOf(QApplication::focusWidget()));
}

void theProgramTellsWhatItIs(Walker& w)
{
    w.answer([&w] { w.hands().press(Qt::Key_F1); },
             [&w](QDialog& dialog) {
                 const QString said = w.labels(dialog).join(QLatin1Char('\n'));
                 QVERIFY2(said.contains(w.say("Order parameter workbench", "下单参数工作台")), qPrintable(said));
                 w.picture("about");
                 w.hands().press(Qt::Key_Escape);
             });
}

QString nameOf(const QWidget& widget)
{
    QStringList names;
    for (const QWidget* at = &widget; at && !at->isWindow(); at = at->parentWidget())
        names.prepend(QString::fromLatin1(at->metaObject()->className()));
    return names.join(QLatin1Char('>')) + QLatin1Char(' ') + widget.accessibleName();
}

/// What of the window lies around a widget, frames of its parents included.
QImage around(const QWidget& widget)
{
    constexpr int kFrame = 3;
    QWidget* window = widget.window();
    const QRect place(widget.mapTo(window, QPoint()), widget.size());
    return window->grab(place.adjusted(-kFrame, -kFrame, kFrame, kFrame)).toImage();
}

/// One round by Tab from the panel back to it comes to every part that is on the screen, and shows at each stop where
/// it is: the place looks otherwise once the focus has gone on.
void tabGoesThroughEverything(Walker& w)
{
    w.hands().press(Qt::Key_F6);
    const QWidget* const start = w.window().bench();
    QSet<QWidget*> met;
    bool hasLeft = false;
    for (int stop = 0; stop < kMostStops; ++stop) {
        QWidget* const at = QApplication::focusWidget();
        QVERIFY(at);
        hasLeft = hasLeft || !start->isAncestorOf(at);
        if (hasLeft && start->isAncestorOf(at))
            break;
        met << at;
        const QImage focused = around(*at);
        w.hands().press(Qt::Key_Tab);
        if (QApplication::focusWidget() != at)
            QVERIFY2(around(*at) != focused, qPrintable(nameOf(*at)));
    }
    QVERIFY(hasLeft && start->isAncestorOf(QApplication::focusWidget()));
    for (const auto* dock : w.window().findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        const bool isOnScreen = !dock->visibleRegion().isEmpty();
        const bool isMet = std::any_of(met.begin(), met.end(), [dock](QWidget* at) { return dock->isAncestorOf(at); });
        QVERIFY2(isMet || !isOnScreen, qPrintable(dock->windowTitle()));
    }
}

} // namespace

Stations viewStations()
{
    return {
        {"menus", theMenusAreOpened},
        {"parts", thePartsComeByTheirKeys},
        {"about", theProgramTellsWhatItIs},
        {"tab", tabGoesThroughEverything},
    };
}

} // namespace walk
