#include "workbench/MainWindow.h"

#include "workbench/ComparePanel.h"
#include "workbench/CreditPanel.h"
#include "workbench/EventPanel.h"
#include "workbench/Finder.h"
#include "workbench/Language.h"
#include "workbench/OrderControls.h"
#include "workbench/OrderHeader.h"
#include "workbench/SetupForm.h"
#include "workbench/TableBench.h"
#include "workbench/Vocabulary.h"
#include "workbench/WhyFacts.h"
#include "workbench/WhyPanel.h"
#include "workbench/WhyTexts.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/Resources.h"

#include <OrderParamTable_mini/credit/CCreditParamTable.h>
#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <QAction>
#include <QCoreApplication>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>

#include <utility>

namespace workbench {

namespace {

QString plainText(const QAction& action)
{
    QString text = action.text();
    // Chinese texts carry their access key in brackets at the end.
    const int bracket = text.indexOf(QLatin1String("(&"));
    return (bracket < 0 ? text : text.left(bracket)).remove(QLatin1Char('&'));
}

/// The commands of a menu and of those in it, each under the way to it.
void appendCommands(std::vector<FinderEntry>& entries, const QString& way, const QList<QAction*>& actions)
{
    for (QAction* const action : actions) {
        const QString text = way + plainText(*action);
        if (action->menu())
            appendCommands(entries, text + QStringLiteral(" › "), action->menu()->actions());
        else if (!action->isSeparator() && action->isVisible() && action->isEnabled())
            entries.push_back(
                {text, action->shortcut().toString(QKeySequence::NativeText), [action] { action->trigger(); }});
    }
}

void focusCell(WQ::CMultiParamsTable& cells, int cell)
{
    cells.setCurrentIndex(WQ::CMultiParamsTablePrivate::of(&cells)->model().valueIndex(cell));
    cells.setFocus(Qt::ShortcutFocusReason);
}

template <class Value>
Value nextOf(const QList<Value>& all, const Value& now)
{
    return all.value((all.indexOf(now) + 1) % qMax(1, all.size()), now);
}

} // namespace

void MainWindow::connectHeader()
{
    connect(m_header, &OrderHeader::instrumentChosen, this, [this](const QString& code) {
        m_controls->chooseCode(code);
        m_bench->focusTable();
    });
    connect(m_header, &OrderHeader::operationChosen, m_controls, &OrderControls::chooseOperation);
    connect(m_header, &OrderHeader::accountChosen, this,
            [this](const QString&, int brokerType) { takeAccount(brokerType); });
    connect(m_bench, &TableBench::whyAsked, this, &MainWindow::explainCell);
    connect(m_events, &EventPanel::cellWanted, this, &MainWindow::goToCell);
}

/// An account has the panel of its broker type.
void MainWindow::takeAccount(int brokerType)
{
    TableSetup setup = m_form->setup();
    if (setup.brokerType != brokerType) {
        setup.brokerType = brokerType;
        m_form->setSetup(setup);
        showTable();
    }
    readTable();
}

/// A cell that is not shown is explained instead.
void MainWindow::goToCell(int cell)
{
    auto* const creditCells = m_credit->findChild<WQ::CMultiParamsTable*>();
    if (creditCells && creditCells->getItem(cell)) {
        goTo(dock("creditDock"));
        return focusCell(*creditCells, cell);
    }
    TC::COrderParamBaseTable* const table = m_bench->table();
    if (!table || !table->getMultiParamsTable())
        return;
    if (whyCell(*table, cell).isShown)
        return focusCell(*table->getMultiParamsTable(), cell);
    m_why->choose(cell);
    dock("whyDock")->show();
    dock("whyDock")->raise();
}

/// The keyboard stays where it is.
void MainWindow::explainCell()
{
    TC::COrderParamBaseTable* const table = m_bench->table();
    WQ::CMultiParamsTable* const cells = table ? table->getMultiParamsTable() : nullptr;
    const WQ::CellItem* const cell =
        cells ? WQ::CMultiParamsTablePrivate::of(cells)->model().cellAtRow(cells->currentIndex().row()) : nullptr;
    if (cell)
        m_why->choose(cell->id());
    dock("whyDock")->show();
    dock("whyDock")->raise();
}

void MainWindow::compareWithPanel()
{
    goTo(dock("compareDock"));
    m_compare->compareWithPanel();
}

void MainWindow::find()
{
    std::vector<FinderEntry> entries;
    appendCommands(entries, QString(), menuBar()->actions());
    TC::COrderParamBaseTable* const table = m_bench->table();
    for (const int cell : table ? whyCells(*table) : std::vector<int>()) {
        const QString state = whyCellState(whyCell(*table, cell));
        entries.push_back(
            {QStringLiteral("%1 · %2").arg(whyCellName(cell), state), QString(), [this, cell] { goToCell(cell); }});
    }
    if (!m_finder)
        m_finder = new Finder(this);
    m_finder->open(std::move(entries));
}

void MainWindow::chooseNextTheme()
{
    chooseTheme(nextOf<QString>(WQ::resources::themes(), WQ::resources::theme()));
}

void MainWindow::chooseNextLanguage()
{
    chooseLanguage(nextOf<QString>(languages(), language()));
}

/// Parts that were put away in an earlier run come back to their first places.
void MainWindow::showPanelAlone(bool alone)
{
    if (alone) {
        m_partsBefore = saveState();
        for (QDockWidget* part : qAsConst(m_docks))
            part->hide();
        m_bench->focusTable();
        return;
    }
    const QByteArray before = std::exchange(m_partsBefore, {});
    if (before.isEmpty() || !restoreState(before))
        arrangeParts();
}

} // namespace workbench
