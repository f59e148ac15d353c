// The workbench as the program makes it, driven line by line from the standard input: for tests that end it hard.

#include "WindowPerson.h"

#include "workbench/Appearance.h"
#include "workbench/CellMemory.h"
#include "workbench/CreditPanel.h"
#include "workbench/HostForm.h"
#include "workbench/Language.h"
#include "workbench/MainWindow.h"
#include "workbench/OrderControls.h"
#include "workbench/QuoteFeed.h"
#include "workbench/QuotePanel.h"
#include "workbench/SetupForm.h"
#include "workbench/TableBench.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/editors/PersonEdits.h"
#include "replay/Values.h"

#include <OrderParamTable_mini/credit/CCreditParamTable.h>
#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>
#include <TC/CUserConfig.h>

#include <QApplication>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QListWidget>
#include <QStatusBar>
#include <QtTest>

#include <functional>
#include <iostream>
#include <map>

using namespace workbench;

namespace {

using Arguments = QStringList;

WQ::CMultiParamsTable& cellsOf(MainWindow& window)
{
    return *window.bench()->table()->getMultiParamsTable();
}

Json stateOf(MainWindow& window)
{
    TC::COrderParamBaseTable& table = *window.bench()->table();
    QStringList modules = reference::modules().values();
    modules.sort();
    Json state = Json::object();
    state["identity"] = int(table.getId());
    state["orderType"] = int(table.orderType());
    state["operation"] = int(table.getOperationType());
    state["priceType"] = int(table.priceType());
    state["expanded"] = table.isExpand();
    state["cells"] = rememberedCells(cellsOf(window));
    state["visible"] = replay::written(cellsOf(window).getVisibleItemIdSet());
    state["record"] = replay::written(table.getOrderSettings(table.orderType()));
    state["credit"] = window.credit()->table()->param().toStdString();
    state["modules"] = replay::written(modules);
    state["clientMode"] = TC::getUserConfig()->clientMode();
    const auto clock = window.findChild<HostForm*>()->clock();
    state["clock"] = clock ? Json(*clock) : Json();
    state["feed"] = window.quotePanel()->feed()->rate();
    state["theme"] = WQ::resources::theme().toStdString();
    state["scale"] = WQ::resources::scale();
    state["language"] = language().toStdString();
    state["said"] = window.statusBar()->currentMessage().toStdString();
    return state;
}

void openEditor(MainWindow& window, int id, const QString& text)
{
    WQ::CMultiParamsTable& cells = cellsOf(window);
    cells.setFocus();
    cells.setCurrentIndex(WQ::CMultiParamsTablePrivate::of(&cells)->model().valueIndex(id));
    QTest::keyClicks(&cells, text.left(1));
    QTest::keyClicks(QApplication::focusWidget(), text.mid(1));
}

void filter(MainWindow& window, const Arguments& ids)
{
    QSet<int> cells;
    for (const QString& id : ids)
        cells.insert(id.toInt());
    if (!WQ::applyPersonFilter(cellsOf(window), cells))
        std::cerr << "filter not possible\n";
}

// clang-format off
const std::map<QString, std::function<void(MainWindow&, const Arguments&)>> kCommands = {
    {QStringLiteral("theme"),    [](MainWindow& w, const Arguments& a) { w.chooseTheme(a.value(0)); }},
    {QStringLiteral("scale"),    [](MainWindow& w, const Arguments& a) { w.chooseScale(a.value(0).toDouble()); }},
    {QStringLiteral("language"), [](MainWindow& w, const Arguments& a) { w.chooseLanguage(a.value(0)); }},
    {QStringLiteral("mode"),     [](MainWindow& w, const Arguments& a) { person::clickButton(*w.bench(), a.value(0).toInt()); }},
    {QStringLiteral("expand"),   [](MainWindow& w, const Arguments&) { w.findChild<OrderControls*>()->findChildren<QCheckBox*>().value(0)->click(); }},
    {QStringLiteral("edit"),     [](MainWindow& w, const Arguments&) { person::editAllCells(*w.bench()); }},
    {QStringLiteral("type"),     [](MainWindow& w, const Arguments& a) { person::typeInto(cellsOf(w), a.value(0).toInt(), a.value(1)); }},
    {QStringLiteral("filter"),   [](MainWindow& w, const Arguments& a) { filter(w, a); }},
    {QStringLiteral("open"),     [](MainWindow& w, const Arguments& a) { openEditor(w, a.value(0).toInt(), a.value(1)); }},
    {QStringLiteral("module"),   [](MainWindow& w, const Arguments& a) { w.form()->findChild<QListWidget*>()->item(a.value(0).toInt())->setCheckState(Qt::Checked); }},
    {QStringLiteral("freeze"),   [](MainWindow& w, const Arguments& a) {
         auto* host = w.findChild<HostForm*>();
         host->findChild<QCheckBox*>()->click();
         host->findChild<QDateTimeEdit*>()->setDateTime(QDateTime::fromSecsSinceEpoch(a.value(0).toLongLong()));
     }},
    {QStringLiteral("rate"),     [](MainWindow& w, const Arguments& a) { w.quotePanel()->setFeed(false, a.value(0).toInt()); Q_EMIT w.quotePanel()->feedChosen(); }},
    {QStringLiteral("credit"),   [](MainWindow& w, const Arguments& a) { w.credit()->setOperation(a.value(0).toInt()); }},
    {QStringLiteral("state"),    [](MainWindow&, const Arguments&) {}},
};
// clang-format on

void drive(MainWindow& window)
{
    std::string line;
    while (std::getline(std::cin, line)) {
        Arguments words = QString::fromStdString(line).split(QLatin1Char(' '));
        const auto command = kCommands.find(words.takeFirst());
        if (command == kCommands.end())
            std::cerr << "unknown: " << line << '\n';
        else
            command->second(window, words);
        // The pass in which an event goes out, and the next, which stores what it left. No time passes.
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        std::cout << stateOf(window).dump() << std::endl;
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const SavedLook saved = savedLook();
    setLanguage(saved.language);
    dressApplication();
    if (!saved.theme.isEmpty())
        setTheme(saved.theme);
    setScale(saved.scale);
    MainWindow window(loadHostData(QString()));
    window.loadState();
    window.show();
    QCoreApplication::processEvents();
    drive(window);
    return 0;
}
