#include "CountingHands.h"

#include "workbench/MainWindow.h"
#include "workbench/Snapshot.h"
#include "workbench/TableBench.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/ChoicePopup.h"
#include "reference/toolkit/editors/FilterPopup.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>
#include <WQ/CPushButton.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTabBar>
#include <QWindow>
#include <QtTest>

namespace person {

namespace {

using Cells = WQ::CMultiParamsTablePrivate;

QString withoutMnemonic(QString text)
{
    return text.remove(QLatin1Char('&'));
}

QWidget* aimed(QWidget& widget, const QPoint& at)
{
    if (!widget.isVisible() || !widget.visibleRegion().contains(at))
        return nullptr;
    // The offscreen platform leaves the window that was active before a list opened for the program to activate.
    if (!QApplication::activePopupWidget())
        QApplication::setActiveWindow(widget.window());
    return widget.window();
}

} // namespace

CountingHands::CountingHands(workbench::MainWindow& window)
    : m_window(&window)
{
}

void CountingHands::sitDownAt(workbench::MainWindow& window)
{
    m_window = &window;
}

int CountingHands::clicks() const
{
    return m_clicks;
}

int CountingHands::keys() const
{
    return m_keys;
}

void CountingHands::click(QWidget& widget, const QPoint& at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    QWidget* const window = aimed(widget, at);
    QVERIFY2(window, widget.metaObject()->className());
    // What the press does may end the window.
    const QPointer<QWindow> handle(window->windowHandle());
    const QPoint place = widget.mapTo(window, at);
    QTest::mousePress(handle, button, modifiers, place);
    if (handle && handle->isVisible())
        QTest::mouseRelease(handle, button, modifiers, place);
    ++m_clicks;
    workbench::settle();
}

void CountingHands::click(QWidget& widget)
{
    click(widget, widget.rect().center());
}

void CountingHands::doubleClick(QWidget& widget, const QPoint& at)
{
    QWidget* const window = aimed(widget, at);
    QVERIFY2(window, widget.metaObject()->className());
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, widget.mapTo(window, at));
    m_clicks += 2;
    workbench::settle();
}

/// What the keyboard belongs to: an open list, a dialog that waits, else the active window.
QWindow* CountingHands::keyboardWindow() const
{
    QWidget* const popup = QApplication::activePopupWidget();
    QWidget* const dialog = QApplication::activeModalWidget();
    if (!popup && !dialog && !QApplication::activeWindow())
        QApplication::setActiveWindow(m_window);
    QWidget* const window = popup ? popup : dialog ? dialog : QApplication::activeWindow();
    return window ? window->windowHandle() : nullptr;
}

void CountingHands::press(int key, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWindow> window(keyboardWindow());
    QVERIFY(window);
    QTest::keyPress(window, Qt::Key(key), modifiers);
    if (window && window->isVisible())
        QTest::keyRelease(window, Qt::Key(key), modifiers);
    ++m_keys;
    workbench::settle();
}

void CountingHands::type(const QString& text)
{
    for (const QChar character : text) {
        QWindow* const window = keyboardWindow();
        QVERIFY(window);
        const bool isAscii = character.unicode() < 0x80;
        const Qt::Key key = isAscii ? QTest::asciiToKey(character.toLatin1()) : Qt::Key_unknown;
        QTest::sendKeyEvent(QTest::Click, window, key, QString(character), Qt::NoModifier);
        ++m_keys;
    }
    workbench::settle();
}

WQ::CMultiParamsTable& CountingHands::cells() const
{
    return *m_window->bench()->table()->getMultiParamsTable();
}

void CountingHands::clickCells(const QRect& part, Qt::MouseButton button)
{
    click(*cells().viewport(), part.center(), button);
}

void CountingHands::clickLabel(int cell, Qt::MouseButton button)
{
    clickCells(Cells::of(&cells())->layoutOf(*Cells::of(&cells())->model().cell(cell)).label, button);
}

void CountingHands::clickValue(int cell)
{
    clickCells(Cells::of(&cells())->layoutOf(*Cells::of(&cells())->model().cell(cell)).value);
}

void CountingHands::clickUnit(int cell)
{
    clickCells(Cells::of(&cells())->layoutOf(*Cells::of(&cells())->model().cell(cell)).unitArea());
}

void CountingHands::clickCheck(int cell)
{
    clickCells(Cells::of(&cells())->layoutOf(*Cells::of(&cells())->model().cell(cell)).check);
}

void CountingHands::clickFooter()
{
    clickCells(Cells::of(&cells())->footerRect());
}

void CountingHands::clickMode(int button)
{
    for (auto* candidate : m_window->bench()->findChildren<WQ::CPushButton*>())
        if (candidate->id() == button)
            return click(*candidate);
    QFAIL("no such mode");
}

void CountingHands::clickEntry(const QString& start)
{
    QWidget* const popup = QApplication::activePopupWidget();
    QVERIFY2(popup, qPrintable(start));
    if (auto* list = qobject_cast<WQ::ChoicePopup*>(popup)) {
        for (int row = 0; row < list->entries().size(); ++row)
            if (list->entries().at(row).startsWith(start))
                return click(*list, list->rowRect(row).center());
    } else if (auto* menu = qobject_cast<QMenu*>(popup)) {
        for (QAction* action : menu->actions())
            if (withoutMnemonic(action->text()).startsWith(start))
                return click(*menu, menu->actionGeometry(action).center());
    } else {
        auto* view = qobject_cast<QAbstractItemView*>(popup);
        view = view ? view : popup->findChild<QAbstractItemView*>();
        QVERIFY(view);
        for (int row = 0; row < view->model()->rowCount(); ++row)
            if (view->model()->index(row, 0).data().toString().startsWith(start))
                return clickRow(*view, row);
    }
    QFAIL(qPrintable(start));
}

void CountingHands::clickFilterRow(int row)
{
    auto* filter = qobject_cast<WQ::FilterPopup*>(QApplication::activePopupWidget());
    QVERIFY(filter);
    click(*filter, filter->rowRect(row).center());
}

void CountingHands::clickFilterApply()
{
    auto* filter = qobject_cast<WQ::FilterPopup*>(QApplication::activePopupWidget());
    QVERIFY(filter);
    click(*filter, filter->applyRect().center());
}

void CountingHands::clickFilterReset()
{
    auto* filter = qobject_cast<WQ::FilterPopup*>(QApplication::activePopupWidget());
    QVERIFY(filter);
    click(*filter, filter->resetRect().center());
}

void CountingHands::clickButton(const QWidget& part, const QString& text)
{
    for (auto* button : part.findChildren<QAbstractButton*>())
        if (withoutMnemonic(button->text()) == text && button->isVisible())
            return click(*button, QPoint(qMin(12, button->width() / 2), button->height() / 2));
    QFAIL(qPrintable(text));
}

void CountingHands::clickTab(const QString& title)
{
    for (auto* bar : m_window->findChildren<QTabBar*>())
        for (int tab = 0; tab < bar->count(); ++tab)
            if (bar->tabText(tab) == title && bar->isVisible())
                return click(*bar, bar->tabRect(tab).center());
    QFAIL(qPrintable(title));
}

void CountingHands::clickClose(const QString& title)
{
    for (auto* dock : m_window->findChildren<QDockWidget*>()) {
        if (dock->windowTitle() != title)
            continue;
        auto* button = dock->findChild<QAbstractButton*>(QStringLiteral("qt_dockwidget_closebutton"));
        QVERIFY(button);
        return click(*button);
    }
    QFAIL(qPrintable(title));
}

void CountingHands::clickMenu(const QString& title)
{
    QMenuBar* const bar = m_window->menuBar();
    for (QAction* action : bar->actions())
        if (withoutMnemonic(action->text()) == title)
            return click(*bar, bar->actionGeometry(action).center());
    QFAIL(qPrintable(title));
}

void CountingHands::clickArrow(QComboBox& combo)
{
    click(combo, QPoint(combo.width() - 8, combo.height() / 2));
}

void CountingHands::clickRow(QAbstractItemView& view, int row, Qt::KeyboardModifiers modifiers)
{
    const QRect place = view.visualRect(view.model()->index(row, 0));
    click(*view.viewport(), place.center(), Qt::LeftButton, modifiers);
}

void CountingHands::doubleClickRow(QAbstractItemView& view, int row)
{
    doubleClick(*view.viewport(), view.visualRect(view.model()->index(row, 0)).center());
}

} // namespace person
