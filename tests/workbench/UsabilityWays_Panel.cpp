#include "UsabilityWays.h"

#include "workbench/HostCalls.h"
#include "workbench/MainWindow.h"
#include "workbench/QuoteFeed.h"
#include "workbench/QuoteLadder.h"
#include "workbench/QuotePanel.h"
#include "workbench/Snapshot.h"
#include "workbench/TableBench.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/PersonEdits.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QtTest>

namespace person {

using namespace workbench;

namespace {

QString clipboard()
{
    return QApplication::clipboard()->text();
}

bool isEditing()
{
    return qobject_cast<QLineEdit*>(QApplication::focusWidget());
}

void collapse(Scene& s)
{
    hostCall(s.table(), calls::kSetExpandItemsHidden, true);
    settle();
}

void goToVolume(Scene& s)
{
    s.cells().setCurrentIndex(
        WQ::CMultiParamsTablePrivate::of(&s.cells())->model().valueIndex(TC::OCF_MinSingleVolume));
}

void hideSuperPrice(Scene& s)
{
    collapse(s);
    QVERIFY(WQ::applyPersonFilter(s.cells(), {TC::OCF_PriceType}));
    settle();
}

bool isShown(Scene& s, int cell)
{
    return WQ::CMultiParamsTablePrivate::of(&s.cells())->model().rowOf(cell) >= 0;
}

bool isTicked(Scene& s, int cell)
{
    const WQ::CellItem& item = *WQ::CMultiParamsTablePrivate::of(&s.cells())->model().cell(cell);
    return static_cast<const WQ::NumberCell&>(item).isChecked();
}

} // namespace

const std::vector<Way>& waysInThePanel()
{
    // clang-format off
    static const std::vector<Way> kWays = {
        {"Step a value up", nullptr,
         [](Scene& s) { s.hands().clickValue(TC::OCF_SuperPrice); s.hands().press(Qt::Key_Up); s.hands().press(Qt::Key_Return); },
         [](Scene& s) { return s.cells().itemText(TC::OCF_SuperPrice) == QLatin1String("0.51"); }},
        {"Ten steps up", nullptr,
         [](Scene& s) { s.hands().clickValue(TC::OCF_SuperPrice); s.hands().press(Qt::Key_Up, Qt::ShiftModifier); s.hands().press(Qt::Key_Return); },
         [](Scene& s) { return s.cells().itemText(TC::OCF_SuperPrice) == QLatin1String("0.60"); }},
        {"Type a volume", nullptr,
         [](Scene& s) { s.hands().clickValue(TC::OCF_MinSingleVolume); s.hands().type(QStringLiteral("20000")); s.hands().press(Qt::Key_Return); },
         [](Scene& s) { return s.cells().itemInt(TC::OCF_MinSingleVolume) == 20000; }},
        {"Type a value into the next cell too", goToVolume,
         [](Scene& s) { s.hands().type(QStringLiteral("500")); s.hands().press(Qt::Key_Tab); s.hands().type(QStringLiteral("900")); s.hands().press(Qt::Key_Return); },
         [](Scene& s) { return s.cells().itemInt(TC::OCF_MinSingleVolume) == 500 && s.cells().itemInt(TC::OCF_MaxSingleVolume) == 900; }},
        {"Change a unit", nullptr,
         [](Scene& s) { s.hands().clickUnit(TC::OCF_SuperPrice); s.hands().clickEntry(QStringLiteral("元")); },
         [](Scene& s) { return s.cells().itemUnit(TC::OCF_SuperPrice) == QStringLiteral("元"); }},
        {"Choose a price type", nullptr,
         [](Scene& s) { s.hands().clickValue(TC::OCF_PriceType); s.hands().clickEntry(QStringLiteral("最新价")); },
         [](Scene& s) { return int(s.table().priceType()) == 5; }},
        {"Tick a cell's box", nullptr,
         [](Scene& s) { s.hands().clickCheck(TC::OCF_FluctuationCheck); },
         [](Scene& s) { return isTicked(s, TC::OCF_FluctuationCheck); }},
        {"Set when an order begins", nullptr,
         [](Scene& s) { s.hands().clickValue(TC::OCF_ValidTime); s.hands().press(Qt::Key_A, Qt::ControlModifier); s.hands().type(QStringLiteral("1015")); s.hands().press(Qt::Key_Return); },
         [](Scene& s) { return s.cells().itemText(TC::OCF_ValidTime).startsWith(QLatin1String("10:15:00")); }},
        {"Write a remark", nullptr,
         [](Scene& s) { s.hands().clickValue(TC::OCF_InvestRemark); s.hands().type(QStringLiteral("Q4")); s.hands().press(Qt::Key_Return); },
         [](Scene& s) { return s.cells().itemText(TC::OCF_InvestRemark) == QLatin1String("Q4"); }},
        {"Take an edit back", [](Scene& s) { s.hands().clickValue(TC::OCF_SuperPrice); s.hands().type(QStringLiteral("9")); },
         [](Scene& s) { s.hands().press(Qt::Key_Escape); },
         [](Scene& s) { return !isEditing() && s.cells().itemText(TC::OCF_SuperPrice) == QLatin1String("0.50"); }},
        {"Return to the initial value", [](Scene& s) { s.cells().setItemText(TC::OCF_SuperPrice, QStringLiteral("0.77")); },
         [](Scene& s) { s.hands().clickLabel(TC::OCF_SuperPrice); s.hands().press(Qt::Key_Backspace, Qt::ControlModifier); },
         [](Scene& s) { return s.cells().itemText(TC::OCF_SuperPrice) == QLatin1String("0.50"); }},
        {"Copy a value", nullptr,
         [](Scene& s) { s.hands().clickLabel(TC::OCF_MaxOrderCount); s.hands().press(Qt::Key_C, Qt::ControlModifier); },
         [](Scene&) { return clipboard() == QLatin1String("1000"); }},
        {"Copy all cells", goToVolume,
         [](Scene& s) { s.hands().press(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier); },
         [](Scene&) { return clipboard().contains(QStringLiteral("单笔最小量\t10000")); }},
        {"Paste a volume", [](Scene&) { QApplication::clipboard()->setText(QStringLiteral("30,000")); },
         [](Scene& s) { s.hands().clickLabel(TC::OCF_MinSingleVolume); s.hands().press(Qt::Key_V, Qt::ControlModifier); },
         [](Scene& s) { return s.cells().itemInt(TC::OCF_MinSingleVolume) == 30000; }},
        {"Hide a cell", collapse,
         [](Scene& s) { s.hands().clickFooter(); s.hands().clickFilterRow(1); s.hands().clickFilterApply(); },
         [](Scene& s) { return !isShown(s, TC::OCF_SuperPrice) && isShown(s, TC::OCF_PriceType); }},
        {"Get a hidden cell back", hideSuperPrice,
         [](Scene& s) { s.hands().clickFooter(); s.hands().clickFilterReset(); },
         [](Scene& s) { return isShown(s, TC::OCF_SuperPrice); }},
        {"Switch the order mode", nullptr,
         [](Scene& s) { s.hands().clickMode(602); },
         [](Scene& s) { return int(s.table().orderType()) == 2; }},
        {"Show all cells of a mode", [](Scene& s) { s.hands().clickButton(s.part("controlsDock"), QStringLiteral("Expanded")); },
         [](Scene& s) { s.hands().clickButton(s.part("controlsDock"), QStringLiteral("Expanded")); },
         [](Scene& s) { return s.table().isExpand(); }},
        {"Take a price type from the quote", nullptr,
         [](Scene& s) { s.hands().clickRow(*s.window().ladder(), 6); },
         [](Scene& s) { return int(s.table().priceType()) == 6; }},
        {"Take a price from the quote", nullptr,
         [](Scene& s) { s.hands().doubleClickRow(*s.window().ladder(), 6); },
         [](Scene& s) { return s.window().ladder()->selectionModel()->isRowSelected(6, {}) && int(s.table().priceType()) == 11; }},
        {"Let the quote move", nullptr,
         [](Scene& s) { s.hands().clickButton(*s.window().quotePanel(), QStringLiteral("Quote moves")); },
         [](Scene& s) { return s.window().quotePanel()->feed()->isRunning(); }},
    };
    // clang-format on
    return kWays;
}

} // namespace person
