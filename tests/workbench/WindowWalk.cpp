#include "WindowWalk.h"

#include "workbench/CreditPanel.h"
#include "workbench/FlagsEditor.h"
#include "workbench/MainWindow.h"
#include "workbench/QuoteLadder.h"
#include "workbench/SetupForm.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"

#include <WQ/CFloatWidget.h>

#include <QListWidget>

#include <algorithm>

namespace person {

using namespace workbench;

/// What a person does in a cell of that kind, so that it holds another value than before, or is asked and refuses.
void WindowWalk::editByKind(const CellHand& hand, int id)
{
    const WQ::CellItem& cell = hand.cell(id);
    switch (cell.kind()) {
    case WQ::CellKind::Combo:
        hand.choose(id, static_cast<const WQ::ComboCell&>(cell).count() - 1);
        return hand.chooseByKeys(id, 1);
    case WQ::CellKind::CheckNumber:
        hand.toggle(id);
        [[fallthrough]];
    case WQ::CellKind::Number:
        hand.chooseUnit(id, static_cast<const WQ::NumberCell&>(cell).units().size() - 1);
        hand.type(id, QStringLiteral("3"));
        return hand.step(id, 2);
    case WQ::CellKind::TimePeriod:
        hand.typeBoth(id, QStringLiteral("10:15:00"), QStringLiteral("11:20:30"));
        return hand.typeOtherPeriod(id, QStringLiteral("00:45:00"));
    case WQ::CellKind::Range:
        return hand.typeBoth(id, QStringLiteral("1"), QStringLiteral("2"));
    case WQ::CellKind::Line:
    case WQ::CellKind::Text:
        return hand.type(id, QStringLiteral("abc 1"));
    }
}

void WindowWalk::pasteAndRestore(const CellHand& hand)
{
    for (const int id : hand.editable()) {
        const auto& cells = hand.editable();
        if (std::find(cells.begin(), cells.end(), id) == cells.end())
            continue;
        const WQ::CellKind kind = hand.cell(id).kind();
        if (kind == WQ::CellKind::Number || kind == WQ::CellKind::CheckNumber)
            hand.paste(id, QStringLiteral("1"));
        hand.restoreInitial(id);
    }
}

void WindowWalk::workInPanelCells()
{
    for (const int id : panel().editable())
        editByKind(panel(), id);
    pasteAndRestore(panel());
    for (const int id : panel().editable())
        editByKind(panel(), id);
    panel().doubleClick(panel().shown().front());
}

/// All cells are within reach in the expanded table of the algorithm, and the filter in the collapsed one.
void WindowWalk::workInModes()
{
    for (const int mode : {601, 602, 605, 613, 600, 601})
        clickMode(mode);
    clickHelp();
    chooseModeInDropDown(0);
    clickMode(601);
    goTo(HostCalls);
    clickCheck(controls(), QStringLiteral("Expanded"));
    workInPanelCells();
    goTo(HostCalls);
    clickCheck(controls(), QStringLiteral("Expanded"));
    panel().filter({1, 2});
    panel().resetFilter();
    panel().filter({0, 3});
}

void WindowWalk::workInHostCalls()
{
    goTo(HostCalls);
    enterNumber(controls(), QStringLiteral("Operation"), QStringLiteral("18"));
    enterNumber(controls(), QStringLiteral("Order type"), QStringLiteral("2"));
    enterCode(QStringLiteral("600000"));
    enterNumber(controls(), QStringLiteral("Specified price"), QStringLiteral("10.37"));
    clickButton(controls(), QStringLiteral("Set"));
    nextPriceType();
    auto* flags = m_window.findChild<FlagsEditor*>();
    for (const int row : {3, 4, 3})
        tick(flags, row);
    for (const char* name : {"Cells enabled", "Cells enabled"})
        clickCheck(controls(), QLatin1String(name));
}

void WindowWalk::workInQuote()
{
    for (const int row : {4, 6, 5})
        clickQuote(row, false);
    clickQuote(3, true);
    press(m_window.ladder(), Qt::Key_Down);
    press(m_window.ladder(), Qt::Key_Return);
    press(m_window.ladder(), Qt::Key_Return, Qt::ControlModifier);
}

/// One dialog edited and closed, one edited and left open, a basket.
void WindowWalk::workInTasks()
{
    for (const int task : {1, 9}) {
        openTask(task, task == 9);
        pressExpand();
        const CellHand hand(*dialog()->findChild<WQ::CMultiParamsTable*>());
        for (const int id : hand.editable())
            editByKind(hand, id);
        hand.doubleClick(hand.shown().front());
        if (task == 1)
            closeDialog();
    }
    openBasket(1, 3);
}

void WindowWalk::workInCredit()
{
    goTo(Credit);
    for (const char* operation : {"23", "24", "1021", "22"})
        enterNumber(m_window.credit(), QStringLiteral("Operation"), QLatin1String(operation));
    for (const char* button : {"Select", "Choose a contract", "Enter", "Load"})
        clickButton(m_window.credit(), QLatin1String(button));
    for (const int id : credit().editable())
        editByKind(credit(), id);
    pasteAndRestore(credit());
}

void WindowWalk::workInServices()
{
    goTo(Setup);
    enterNumber(host(), QStringLiteral("Client mode (j)"), QStringLiteral("101"));
    clickCheck(host(), QStringLiteral("Freeze the clock at"));
    enterClock(QStringLiteral("2024-05-20 09:30:00"));
    clickButton(host(), QStringLiteral("Advance"));
    enterClock(QStringLiteral("2024-05-21 10:00:00"));
}

/// A module that gives the new table a button for this host to name, another desk, another broker, a new table.
void WindowWalk::workInSetup()
{
    goTo(Setup);
    tick(m_window.form()->findChild<QListWidget*>(), 0);
    clickMode(603);
    enterNumber(m_window.form(), QStringLiteral("Trader type"), QStringLiteral("2"));
    enterNumber(m_window.form(), QStringLiteral("Broker type"), QStringLiteral("6"));
    clickMode(601);
    for (const int id : panel().editable())
        editByKind(panel(), id);
}

/// What a reset brings back is seen of the table alone: its host hears nothing of it.
void WindowWalk::workInFilter()
{
    panel().filter({0});
    panel().resetFilter();
}

void WindowWalk::workInLook()
{
    press(&m_window, Qt::Key_Plus, Qt::ControlModifier);
    goTo(Setup);
    nextTheme();
    enterNumber(setup(), QStringLiteral("UI scale"), QStringLiteral("1.5"));
}

void WindowWalk::walk()
{
    workInModes();
    workInHostCalls();
    workInQuote();
    workInServices();
    workInCredit();
    workInTasks();
    workInLook();
    workInSetup();
    workInFilter();
}

} // namespace person
