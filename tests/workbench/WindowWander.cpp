#include "WindowWalk.h"

#include "workbench/CreditPanel.h"
#include "workbench/FlagsEditor.h"
#include "workbench/HostForm.h"
#include "workbench/MainWindow.h"
#include "workbench/OrderControls.h"
#include "workbench/SetupForm.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"

#include <WQ/CFloatWidget.h>

#include <QDateTimeEdit>
#include <QLineEdit>
#include <QListWidget>

#include <array>

namespace person {

using namespace workbench;

namespace {

template <std::size_t N>
QString textOf(const std::array<const char*, N>& texts, int place)
{
    return QLatin1String(texts[static_cast<std::size_t>(place)]);
}

// clang-format off
constexpr std::array kNumbers = {"0", "1", "2.5", "7", "12", "99", "100", "1234", "0.001", "0.125", "-3", "1000000", "1e3", "x", "."};
constexpr std::array kOperations = {"-1", "-2", "18", "21", "22", "40", "1021", "7"};
constexpr std::array kOrderTypes = {"0", "1", "2", "3", "5", "6", "7", "12", "13", "-1", "99"};
constexpr std::array kCodes = {"600000", "900101", "", "a b", "688001"};
constexpr std::array kPrices = {"0", "10.37", "0.005", "99999"};
constexpr std::array kCreditOperations = {"22", "23", "24", "25", "1021", "99"};
constexpr std::array kCreditButtons = {"Select", "Choose a contract", "Enter", "Load"};
constexpr std::array kIdentities = {"0", "5", "8", "10", "15", "22", "31", "33", "34", "35", "36", "43", "52"};
constexpr std::array kBrokers = {"1", "2", "3", "6", "8", "10", "1001"};
constexpr std::array kTraders = {"1", "2", "4", "4096"};
constexpr std::array kModes = {"0", "100", "101"};
constexpr std::array kScales = {"1", "1.25", "2", "3"};
constexpr std::array kModeButtons = {600, 601, 602, 603, 605, 612, 613};
// clang-format on

} // namespace

// clang-format off
const std::vector<WindowWalk::Act>& WindowWalk::acts()
{
    static const std::vector<Act> rows = {
        {30, &WindowWalk::panelEdit},
        { 6, &WindowWalk::panelFilter},
        {12, &WindowWalk::panelMode},
        { 3, &WindowWalk::panelDoubleClick},
        {12, &WindowWalk::anyHostCall},
        { 5, &WindowWalk::anyQuote},
        { 3, &WindowWalk::anyTask},
        { 8, &WindowWalk::anyDialogAct},
        { 8, &WindowWalk::anyCredit},
        { 4, &WindowWalk::anyService},
        { 3, &WindowWalk::anySetup},
        { 2, &WindowWalk::anyLook},
    };
    return rows;
}
// clang-format on

void WindowWalk::wander(quint32 seed, int count)
{
    m_random.seed(seed);
    int weights = 0;
    for (const Act& act : acts())
        weights += act.weight;
    for (int i = 0; i < count; ++i) {
        int left = below(weights);
        for (const Act& act : acts()) {
            left -= act.weight;
            if (left >= 0)
                continue;
            (this->*act.act)();
            break;
        }
    }
}

int WindowWalk::below(int count)
{
    return count > 0 ? m_random.bounded(count) : 0;
}

QString WindowWalk::anyNumber()
{
    return textOf(kNumbers, below(kNumbers.size()));
}

int WindowWalk::anyModeButton()
{
    return kModeButtons[static_cast<std::size_t>(below(kModeButtons.size()))];
}

void WindowWalk::anyEdit(const CellHand& hand)
{
    const std::vector<int> ids = hand.editable();
    if (ids.empty())
        return;
    const int id = ids[static_cast<std::size_t>(below(int(ids.size())))];
    const WQ::CellItem& cell = hand.cell(id);
    const bool isNumber = cell.kind() == WQ::CellKind::Number || cell.kind() == WQ::CellKind::CheckNumber;
    switch (below(8)) {
    case 0:
        return hand.paste(id, anyNumber());
    case 1:
        return hand.restoreInitial(id);
    case 2:
        return hand.step(id, 1 + below(3));
    case 3:
        if (isNumber)
            return hand.chooseUnit(id, below(static_cast<const WQ::NumberCell&>(cell).units().size()));
        break;
    case 4:
        if (cell.kind() == WQ::CellKind::CheckNumber)
            return hand.toggle(id);
        break;
    default:
        break;
    }
    if (cell.kind() == WQ::CellKind::Combo)
        return below(2) ? hand.choose(id, below(static_cast<const WQ::ComboCell&>(cell).count()))
                        : hand.chooseByKeys(id, below(4));
    if (cell.kind() == WQ::CellKind::TimePeriod)
        return below(2) ? hand.typeBoth(id, QStringLiteral("09:%1:00").arg(30 + below(30)), QStringLiteral("14:00:05"))
                        : hand.typeOtherPeriod(id, QStringLiteral("00:%1:00").arg(10 + below(40)));
    if (cell.kind() == WQ::CellKind::Range)
        return hand.typeBoth(id, QString::number(below(5)), QString::number(5 + below(5)));
    hand.type(id, anyNumber());
}

void WindowWalk::panelEdit()
{
    anyEdit(panel());
}

void WindowWalk::panelFilter()
{
    if (below(3) == 0)
        return panel().resetFilter();
    std::vector<int> rows;
    for (int i = below(3); i >= 0; --i)
        rows.push_back(below(8));
    panel().filter(rows);
}

void WindowWalk::panelMode()
{
    switch (below(6)) {
    case 0:
        return chooseModeInDropDown(below(4));
    case 1:
        return clickHelp();
    default:
        return clickModeIfShown(m_window.findChild<QWidget*>(QStringLiteral("tableBench")), anyModeButton());
    }
}

void WindowWalk::panelDoubleClick()
{
    const std::vector<int> ids = panel().shown();
    if (!ids.empty())
        panel().doubleClick(ids[static_cast<std::size_t>(below(int(ids.size())))]);
}

void WindowWalk::anyHostCall()
{
    goTo(HostCalls);
    switch (below(8)) {
    case 0:
        return enterNumber(controls(), QStringLiteral("Operation"), textOf(kOperations, below(kOperations.size())));
    case 1:
        return enterNumber(controls(), QStringLiteral("Order type"), textOf(kOrderTypes, below(kOrderTypes.size())));
    case 2:
        return enterCode(textOf(kCodes, below(kCodes.size())));
    case 3:
        enterNumber(controls(), QStringLiteral("Specified price"), textOf(kPrices, below(kPrices.size())));
        return clickButton(controls(), QStringLiteral("Set"));
    case 4:
        return nextPriceType();
    case 5:
        return tick(m_window.findChild<FlagsEditor*>(), below(28));
    case 6:
        return clickCheck(controls(), QStringLiteral("Cells enabled"));
    default:
        return clickCheck(controls(), QStringLiteral("Expanded"));
    }
}

void WindowWalk::anyQuote()
{
    clickQuote(below(10), below(3) == 0);
}

void WindowWalk::anyTask()
{
    if (below(4) == 0)
        return openBasket(below(3), 3 + below(3));
    openTask(below(11), below(2) == 0);
}

void WindowWalk::anyDialogAct()
{
    auto* cells = dialog() ? dialog()->findChild<WQ::CMultiParamsTable*>() : nullptr;
    const int act = below(8);
    if (act == 0)
        return closeDialog();
    if (act == 1 || !cells)
        return pressExpand();
    const std::vector<int> ids = CellHand(*cells).shown();
    if (act == 2 && !ids.empty())
        return CellHand(*cells).doubleClick(ids.front());
    if (act == 3)
        return clickModeIfShown(dialog(), anyModeButton());
    anyEdit(CellHand(*cells));
}

void WindowWalk::anyCredit()
{
    goTo(Credit);
    switch (below(4)) {
    case 0:
        return enterNumber(m_window.credit(), QStringLiteral("Operation"),
                           textOf(kCreditOperations, below(kCreditOperations.size())));
    case 1:
        return clickButton(m_window.credit(), textOf(kCreditButtons, below(kCreditButtons.size())));
    default:
        return anyEdit(credit());
    }
}

void WindowWalk::anyService()
{
    goTo(Setup);
    switch (below(4)) {
    case 0:
        return enterNumber(host(), QStringLiteral("Client mode (j)"), textOf(kModes, below(kModes.size())));
    case 1:
        return clickCheck(host(), QStringLiteral("Freeze the clock at"));
    case 2:
        return enterClock(QStringLiteral("2024-05-%1 10:00:00").arg(10 + below(20)));
    default:
        return clickButton(host(), QStringLiteral("Advance"));
    }
}

void WindowWalk::anySetup()
{
    goTo(Setup);
    switch (below(6)) {
    case 0:
        return enterNumber(m_window.form(), QStringLiteral("Identity"), textOf(kIdentities, below(kIdentities.size())));
    case 1:
        return enterNumber(m_window.form(), QStringLiteral("Broker type"), textOf(kBrokers, below(kBrokers.size())));
    case 2:
        return enterNumber(m_window.form(), QStringLiteral("Trader type"), textOf(kTraders, below(kTraders.size())));
    case 3:
        return nextTableClass();
    case 4:
        return rebuild();
    default:
        return tick(m_window.form()->findChild<QListWidget*>(), below(4));
    }
}

void WindowWalk::anyLook()
{
    goTo(Setup);
    if (below(2))
        nextTheme();
    else
        enterNumber(setup(), QStringLiteral("UI scale"), textOf(kScales, below(kScales.size())));
}

} // namespace person
