#include "WindowHands.h"

#include "WindowPerson.h"

#include "workbench/CreditPanel.h"
#include "workbench/HostForm.h"
#include "workbench/MainWindow.h"
#include "workbench/OrderControls.h"
#include "workbench/QuoteLadder.h"
#include "workbench/QuotePanel.h"
#include "workbench/RecorderPanel.h"
#include "workbench/SetupForm.h"
#include "workbench/Snapshot.h"
#include "workbench/TableBench.h"
#include "workbench/TaskPanel.h"

#include "reference/toolkit/PopupList.h"

#include <OrderParamTable_mini/credit/CCreditParamTable.h>
#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>
#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CFloatWidget.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CPushButton.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

namespace person {

using namespace workbench;

namespace {

template <class Widget>
Widget* withText(QWidget* parent, const QString& text)
{
    for (auto* widget : parent->findChildren<Widget*>())
        if (widget->text().remove(QLatin1Char('&')) == text)
            return widget;
    qCritical("no %s", qPrintable(text));
    return nullptr;
}

QWidget* fieldOf(QWidget* parent, const QString& label)
{
    auto* title = withText<QLabel>(parent, label);
    return title ? title->buddy() : nullptr;
}

void focus(QWidget* widget)
{
    QApplication::setActiveWindow(widget->window());
    widget->setFocus();
}

void pressAmong(QAbstractItemView* view, int row, bool isDouble)
{
    QApplication::setActiveWindow(view->window());
    const QPoint at = view->visualRect(view->model()->index(row, 0)).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    if (isDouble)
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    settle();
}

} // namespace

WindowHands::WindowHands(MainWindow& window)
    : m_window(window)
{
}

void WindowHands::press(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(widget, key, modifiers);
    settle();
}

void WindowHands::goTo(Part part)
{
    QApplication::setActiveWindow(&m_window);
    press(&m_window, Qt::Key(Qt::Key_0 + part), Qt::ControlModifier);
}

void WindowHands::record()
{
    goTo(Recorder);
    clickButton(m_window.recorderPanel(), QStringLiteral("Record"));
}

void WindowHands::stop()
{
    goTo(Recorder);
    clickButton(m_window.recorderPanel(), QStringLiteral("Stop"));
}

void WindowHands::clickButton(QWidget* parent, const QString& text)
{
    auto* button = withText<QPushButton>(parent, text);
    QVERIFY(button);
    QVERIFY2(button->isVisible(), qPrintable(text));
    QTest::mouseClick(button, Qt::LeftButton);
    settle();
}

void WindowHands::clickCheck(QWidget* parent, const QString& text)
{
    auto* check = withText<QCheckBox>(parent, text);
    QVERIFY(check);
    QTest::mouseClick(check, Qt::LeftButton, Qt::NoModifier, QPoint(8, check->height() / 2));
    settle();
}

void WindowHands::enterText(QLineEdit* line, const QString& text)
{
    focus(line);
    line->selectAll();
    QTest::keyClicks(line, text);
    press(line, Qt::Key_Return);
}

void WindowHands::enterNumber(QWidget* parent, const QString& label, const QString& text)
{
    QWidget* field = fieldOf(parent, label);
    QVERIFY2(field, qPrintable(label));
    enterText(field->findChild<QLineEdit*>(), text);
}

void WindowHands::tick(QWidget* widget, int row)
{
    auto* list = qobject_cast<QListWidget*>(widget);
    list->scrollToItem(list->item(row));
    pressAmong(list, row, false);
    press(list, Qt::Key_Space);
}

CellHand WindowHands::panel() const
{
    return CellHand(*m_window.bench()->table()->getMultiParamsTable());
}

CellHand WindowHands::credit() const
{
    return CellHand(*m_window.credit()->findChild<WQ::CMultiParamsTable*>());
}

QWidget* WindowHands::controls() const
{
    return m_window.findChild<OrderControls*>();
}

QWidget* WindowHands::host() const
{
    return m_window.findChild<HostForm*>();
}

QWidget* WindowHands::setup() const
{
    return m_window.findChild<QWidget*>(QStringLiteral("setupDock"));
}

WQ::CFloatWidget* WindowHands::dialog() const
{
    const auto dialogs = m_window.findChildren<WQ::CFloatWidget*>();
    return dialogs.isEmpty() ? nullptr : dialogs.last();
}

void WindowHands::clickMode(int id)
{
    QApplication::setActiveWindow(&m_window);
    person::clickButton(*m_window.bench(), id);
    settle();
}

void WindowHands::clickModeIfShown(QWidget* parent, int id)
{
    QApplication::setActiveWindow(parent->window());
    for (auto* button : parent->findChildren<WQ::CPushButton*>())
        if (button->id() == id && button->isVisible())
            QTest::mouseClick(button, Qt::LeftButton);
    settle();
}

/// The strip's chevron, and an entry of what opens below it.
void WindowHands::chooseModeInDropDown(int entry)
{
    QApplication::setActiveWindow(&m_window);
    auto* group = m_window.bench()->findChild<WQ::CDropDownButtonGroup*>();
    const auto buttons = group ? group->findChildren<QAbstractButton*>() : QList<QAbstractButton*>();
    for (QAbstractButton* button : buttons)
        if (button->accessibleName() == WQ::CDropDownButtonGroup::tr("更多") && button->isVisible())
            QTest::mouseClick(button, Qt::LeftButton);
    if (auto* list = qobject_cast<WQ::PopupList*>(QApplication::activePopupWidget())) {
        for (int i = 0; i <= entry; ++i)
            QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
    }
    settle();
}

void WindowHands::clickHelp()
{
    auto* group = m_window.bench()->findChild<WQ::CDropDownButtonGroup*>();
    const auto buttons = group ? group->findChildren<QAbstractButton*>() : QList<QAbstractButton*>();
    for (QAbstractButton* button : buttons)
        if (button->accessibleName() == WQ::CDropDownButtonGroup::tr("帮助") && button->isVisible())
            QTest::mouseClick(button, Qt::LeftButton);
    settle();
}

void WindowHands::enterCode(const QString& code)
{
    enterText(qobject_cast<QLineEdit*>(fieldOf(controls(), QStringLiteral("Instrument code"))), code);
}

void WindowHands::nextPriceType()
{
    QWidget* priceType = fieldOf(controls(), QStringLiteral("Price type (k)"));
    focus(priceType);
    press(priceType, Qt::Key_Down);
}

void WindowHands::nextTheme()
{
    QWidget* theme = fieldOf(setup(), QStringLiteral("Display theme"));
    focus(theme);
    press(theme, m_window.palette().color(QPalette::Window).lightness() > 128 ? Qt::Key_Up : Qt::Key_Down);
}

void WindowHands::nextTableClass()
{
    auto* choice = qobject_cast<QComboBox*>(fieldOf(m_window.form(), QStringLiteral("Table class")));
    focus(choice);
    press(choice, choice->currentIndex() < 2 ? Qt::Key_Down : Qt::Key_Home);
}

void WindowHands::rebuild()
{
    QApplication::setActiveWindow(&m_window);
    press(&m_window, Qt::Key_F5);
}

void WindowHands::enterClock(const QString& time)
{
    auto* edit = host()->findChild<QDateTimeEdit*>();
    if (edit->isEnabled())
        edit->setDateTime(QDateTime::fromString(time, QStringLiteral("yyyy-MM-dd hh:mm:ss")));
    settle();
}

void WindowHands::clickQuote(int row, bool isDouble)
{
    goTo(Quote);
    pressAmong(m_window.ladder(), row, isDouble);
}

void WindowHands::openTask(int row, bool byKeys)
{
    goTo(Tasks);
    auto* view = m_window.findChild<TaskPanel*>()->findChild<QTableView*>();
    view->scrollTo(view->model()->index(row, 0));
    pressAmong(view, row, !byKeys);
    if (byKeys)
        press(view, Qt::Key_Return);
}

void WindowHands::openBasket(int first, int last)
{
    goTo(Tasks);
    auto* tasks = m_window.findChild<TaskPanel*>();
    auto* view = tasks->findChild<QTableView*>();
    pressAmong(view, first, false);
    for (int row = first; row < last; ++row)
        press(view, Qt::Key_Down, Qt::ShiftModifier);
    clickButton(tasks, QStringLiteral("Open basket"));
}

void WindowHands::pressExpand()
{
    const auto buttons = dialog() ? dialog()->findChildren<WQ::CPushButton*>(QString(), Qt::FindDirectChildrenOnly)
                                  : QList<WQ::CPushButton*>();
    for (auto* button : buttons)
        if (button->isVisible())
            QTest::mouseClick(button, Qt::LeftButton);
    settle();
}

void WindowHands::closeDialog()
{
    if (dialog()) {
        focus(dialog());
        QTest::keyClick(dialog(), Qt::Key_Escape);
    }
    settle();
    QApplication::setActiveWindow(&m_window);
}

} // namespace person
