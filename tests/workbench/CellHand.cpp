#include "CellHand.h"

#include "workbench/Snapshot.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/ChoicePopup.h"
#include "reference/toolkit/editors/FilterPopup.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QtTest>

namespace person {

namespace {

using Cells = WQ::CMultiParamsTablePrivate;

constexpr int kInitialInMenu = 4; // after three to copy, and paste

template <class Popup>
Popup* openPopup()
{
    return qobject_cast<Popup*>(QApplication::activePopupWidget());
}

void click(QWidget* widget, const QPoint& at)
{
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, at);
}

} // namespace

CellHand::CellHand(WQ::CMultiParamsTable& cells)
    : m_cells(cells)
{
}

std::vector<int> CellHand::shown() const
{
    const WQ::CellModel& model = Cells::of(&m_cells)->model();
    std::vector<int> ids;
    for (int row = 0; m_cells.isVisible() && row < model.rowCount(); ++row)
        ids.push_back(model.cellAtRow(row)->id());
    return ids;
}

std::vector<int> CellHand::editable() const
{
    std::vector<int> ids;
    for (const int id : shown())
        if (Cells::of(&m_cells)->model().isEditable(cell(id)))
            ids.push_back(id);
    return ids;
}

const WQ::CellItem& CellHand::cell(int id) const
{
    return *Cells::of(&m_cells)->model().cell(id);
}

// A click activates the window that it hits; the offscreen platform leaves that to the program after a list has closed.
void CellHand::clickAt(const QRect& part) const
{
    QApplication::setActiveWindow(m_cells.window());
    click(m_cells.viewport(), part.center());
}

void CellHand::goTo(int id) const
{
    QApplication::setActiveWindow(m_cells.window());
    m_cells.setFocus();
    m_cells.setCurrentIndex(Cells::of(&m_cells)->model().valueIndex(id));
}

void CellHand::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* target = popup ? popup : QApplication::focusWidget();
    QTest::keyClick(target ? target : &m_cells, key, modifiers);
}

/// What stands open still was refused, or could not be done.
void CellHand::finish() const
{
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    if (qobject_cast<QLineEdit*>(QApplication::focusWidget()))
        press(Qt::Key_Escape);
    workbench::settle();
}

void CellHand::pick(int entry) const
{
    if (auto* list = openPopup<WQ::ChoicePopup>()) {
        list->setCurrentRow(entry);
        click(list, list->rowRect(entry).center());
    }
    finish();
}

void CellHand::choose(int id, int entry) const
{
    clickAt(Cells::of(&m_cells)->layoutOf(cell(id)).value);
    pick(entry);
}

void CellHand::chooseUnit(int id, int unit) const
{
    clickAt(Cells::of(&m_cells)->layoutOf(cell(id)).unitArea());
    pick(unit);
}

void CellHand::chooseByKeys(int id, int steps) const
{
    goTo(id);
    press(Qt::Key_Space);
    for (int i = 0; i < steps; ++i)
        press(Qt::Key_Down);
    press(Qt::Key_Return);
    finish();
}

void CellHand::toggle(int id) const
{
    clickAt(Cells::of(&m_cells)->layoutOf(cell(id)).check);
    finish();
}

void CellHand::type(int id, const QString& text) const
{
    goTo(id);
    QTest::keyClicks(&m_cells, text.left(1));
    if (QWidget* field = QApplication::focusWidget())
        QTest::keyClicks(field, text.mid(1));
    press(Qt::Key_Return);
    finish();
}

void CellHand::typeBoth(int id, const QString& first, const QString& second) const
{
    clickAt(Cells::of(&m_cells)->layoutOf(cell(id)).value);
    for (const QString& text : {first, second}) {
        auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        if (!field)
            break;
        field->selectAll();
        QTest::keyClicks(field, text);
        press(&text == &first ? Qt::Key_Tab : Qt::Key_Return);
    }
    finish();
}

void CellHand::typeOtherPeriod(int id, const QString& text) const
{
    goTo(id);
    press(Qt::Key_Down, Qt::AltModifier);
    if (auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget())) {
        field->selectAll();
        QTest::keyClicks(field, text);
        press(Qt::Key_Return);
    }
    finish();
}

void CellHand::step(int id, int steps) const
{
    goTo(id);
    press(Qt::Key_F2);
    for (int i = 0; i < steps; ++i)
        press(Qt::Key_Up);
    press(Qt::Key_Return);
    finish();
}

void CellHand::paste(int id, const QString& text) const
{
    QApplication::clipboard()->setText(text);
    goTo(id);
    press(Qt::Key_V, Qt::ControlModifier);
    finish();
}

void CellHand::restoreInitial(int id) const
{
    goTo(id);
    const QPoint at = Cells::of(&m_cells)->rowRect(cell(id)).center();
    QContextMenuEvent asked(QContextMenuEvent::Mouse, at, m_cells.viewport()->mapToGlobal(at));
    QApplication::sendEvent(m_cells.viewport(), &asked);
    if (auto* menu = openPopup<QMenu>()) {
        const auto actions = menu->actions();
        std::vector<QAction*> entries;
        for (QAction* action : actions)
            if (!action->isSeparator())
                entries.push_back(action);
        menu->setActiveAction(entries.at(kInitialInMenu));
        press(Qt::Key_Return);
    }
    finish();
}

void CellHand::doubleClick(int id) const
{
    QApplication::setActiveWindow(m_cells.window());
    const QPoint at = Cells::of(&m_cells)->rowRect(cell(id)).topLeft() + QPoint(6, 6);
    QTest::mouseDClick(m_cells.viewport(), Qt::LeftButton, Qt::NoModifier, at);
    finish();
}

WQ::FilterPopup* CellHand::openFilter() const
{
    if (m_cells.isVisible())
        clickAt(Cells::of(&m_cells)->footerRect());
    return openPopup<WQ::FilterPopup>();
}

void CellHand::filter(const std::vector<int>& rows) const
{
    if (auto* list = openFilter()) {
        for (const int row : rows) {
            list->setCurrentRow(row);
            click(list, list->rowRect(row).center());
        }
        click(list, list->applyRect().center());
    }
    finish();
}

void CellHand::resetFilter() const
{
    if (auto* list = openFilter())
        click(list, list->resetRect().center());
    finish();
}

} // namespace person
