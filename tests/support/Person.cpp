#include "support/Person.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/ChoicePopup.h"
#include "reference/toolkit/editors/FilterPopup.h"
#include "support/BaseTableProbe.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CPushButton.h>

#include <QApplication>
#include <QLineEdit>
#include <QtTest>

#include <algorithm>

namespace support {

namespace {

constexpr int kHighEnough = 900;

using Cells = WQ::CMultiParamsTablePrivate;

void click(QWidget* widget, const QPoint& at)
{
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, at);
}

} // namespace

Person::Person(BaseTableProbe& table)
    : m_table(table)
{
}

bool Person::sitDown() const
{
    m_table.resize(m_table.width(), kHighEnough);
    m_table.window()->resize(m_table.size());
    m_table.resetCellVisibilities();
    m_table.window()->show();
    return QTest::qWaitForWindowActive(m_table.window());
}

void Person::clickModeButton(int id) const
{
    const auto buttons = m_table.m_btnGroup->findChildren<WQ::CPushButton*>();
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [id](const WQ::CPushButton* button) { return button->id() == id; });
    QVERIFY(found != buttons.end());
    click(*found, (*found)->rect().center());
}

void Person::clickValue(int id) const
{
    clickCells(Cells::of(&cells())->layoutOf(cell(id)).value);
}

void Person::clickLabel(int id) const
{
    clickCells(Cells::of(&cells())->layoutOf(cell(id)).label);
}

void Person::clickUnit(int id) const
{
    clickCells(Cells::of(&cells())->layoutOf(cell(id)).unitArea());
}

void Person::clickCheck(int id) const
{
    clickCells(Cells::of(&cells())->layoutOf(cell(id)).check);
}

void Person::doubleClick(int id) const
{
    const QPoint at = Cells::of(&cells())->layoutOf(cell(id)).label.center();
    QTest::mouseDClick(cells().viewport(), Qt::LeftButton, Qt::NoModifier, at);
}

void Person::type(const QString& text) const
{
    QVERIFY(QApplication::focusWidget());
    QTest::keyClicks(QApplication::focusWidget(), text);
}

void Person::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* target = popup ? popup : QApplication::focusWidget();
    QVERIFY(target);
    QTest::keyClick(target, key, modifiers);
}

void Person::enter(int id, const QString& text) const
{
    clickValue(id);
    type(text);
    press(Qt::Key_Return);
}

void Person::choose(int id, const QString& entry) const
{
    clickValue(id);
    pick(entry);
}

void Person::chooseUnit(int id, const QString& unit) const
{
    clickUnit(id);
    pick(unit);
}

void Person::pick(const QString& entry) const
{
    QVERIFY(list());
    const int row = list()->entries().indexOf(entry);
    QVERIFY(row >= 0);
    list()->setCurrentRow(row);
    click(list(), list()->rowRect(row).center());
}

void Person::openFilter() const
{
    clickCells(Cells::of(&cells())->footerRect());
}

void Person::toggleInFilter(int row) const
{
    QVERIFY(filter());
    click(filter(), filter()->rowRect(row).center());
}

void Person::applyFilter() const
{
    QVERIFY(filter());
    click(filter(), filter()->applyRect().center());
}

void Person::resetFilter() const
{
    QVERIFY(filter());
    click(filter(), filter()->resetRect().center());
}

QLineEdit* Person::line() const
{
    return qobject_cast<QLineEdit*>(QApplication::focusWidget());
}

WQ::ChoicePopup* Person::list() const
{
    return qobject_cast<WQ::ChoicePopup*>(QApplication::activePopupWidget());
}

WQ::FilterPopup* Person::filter() const
{
    return qobject_cast<WQ::FilterPopup*>(QApplication::activePopupWidget());
}

void Person::wait()
{
    QCoreApplication::processEvents();
}

// A click activates the window that it hits; the offscreen platform leaves that to the program after a list has closed.
void Person::clickCells(const QRect& part) const
{
    QApplication::setActiveWindow(m_table.window());
    click(cells().viewport(), part.center());
}

WQ::CMultiParamsTable& Person::cells() const
{
    return *m_table.m_table;
}

WQ::CellItem& Person::cell(int id) const
{
    return *Cells::of(&cells())->model().cell(id);
}

} // namespace support
