#include "frame/HandlingChecks.h"
#include "frame/HandlingDeeds.h"
#include "monkey/Warnings.h"
#include "reference/toolkit/EditorPanel.h"
#include "support/BaseTableProbe.h"

#include <OrderParamTable_mini/credit/CCreditParamTable.h>

namespace {

constexpr int kDeeds = 1500;

int numberFrom(const char* variable, int otherwise)
{
    bool isNumber = false;
    const int asked = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? asked : otherwise;
}

/// A window with a table in it.
struct Handled
{
    std::unique_ptr<EditorPanel> panel; ///< of the toolkit alone
    std::unique_ptr<QWidget> window;    ///< with a table of the library
    WQ::CMultiParamsTable* table = nullptr;
};

Handled toolkitTable(bool isScrolled)
{
    Handled handled{std::make_unique<EditorPanel>(), nullptr, nullptr};
    handled.table = handled.panel->table;
    handled.table->setAllItemSet({1, 2, 3, 4, 5, 6, 7, 8, 9});
    handled.table->setCustomWidgetVisible(true);
    handled.table->setMinimumSize(240, isScrolled ? 0 : handled.table->realHeight());
    if (isScrolled)
        handled.table->setFixedSize(240, 4 * 26);
    handled.panel->host.show();
    return handled;
}

Handled wholeTable()
{
    return toolkitTable(false);
}

Handled scrolledTable()
{
    return toolkitTable(true);
}

Handled orderPanel(int id, int brokerType)
{
    support::TableSetup setup;
    setup.id = id;
    setup.brokerType = brokerType;
    auto table = std::make_unique<support::BaseTableProbe>(setup);
    table->setOrderType(ttservice::EOrderType(1));
    table->setExpandItemsHidden(false);
    WQ::CMultiParamsTable* cells = table->getMultiParamsTable();
    table->resize(260, 700);
    table->show();
    return {nullptr, std::move(table), cells};
}

Handled stockPanel()
{
    return orderPanel(5, 2);
}

Handled futuresPanel()
{
    return orderPanel(5, 1);
}

Handled optionPanel()
{
    return orderPanel(5, 6);
}

Handled creditTable()
{
    auto table = std::make_unique<TC::CCreditParamTable>();
    auto* cells = table->findChild<WQ::CMultiParamsTable*>();
    table->resize(260, 300);
    table->show();
    return {nullptr, std::move(table), cells};
}

/// What a deed leads to may be queued behind what is queued.
void settle()
{
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::processEvents();
        WQ::deliverPostedPersonEvents();
    }
}

using Make = Handled (*)();

} // namespace

Q_DECLARE_METATYPE(Make)

/// Random handling of tables of every kind. ORDERPARAM_SEED gives another seed, ORDERPARAM_HANDLING_DEEDS more deeds.
class tst_PanelHandling : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whateverIsDoneTheTableStaysRight_data();
    void whateverIsDoneTheTableStaysRight();
    void everyKindOfEventIsCaused();

private:
    QHash<int, int> m_events;
};

void tst_PanelHandling::whateverIsDoneTheTableStaysRight_data()
{
    QTest::addColumn<Make>("make");
    QTest::newRow("every kind of cell") << Make(wholeTable);
    QTest::newRow("the same, scrolled") << Make(scrolledTable);
    QTest::newRow("stock panel") << Make(stockPanel);
    QTest::newRow("futures panel") << Make(futuresPanel);
    QTest::newRow("option panel") << Make(optionPanel);
    QTest::newRow("credit table") << Make(creditTable);
}

void tst_PanelHandling::whateverIsDoneTheTableStaysRight()
{
    QFETCH(Make, make);
    const int seed = numberFrom("ORDERPARAM_SEED", 20260101);
    const int deeds = numberFrom("ORDERPARAM_HANDLING_DEEDS", kDeeds);
    const monkey::Warnings warnings;
    const Handled handled = make();
    QVERIFY(handled.table);
    QApplication::setActiveWindow(handled.table->window());
    QCoreApplication::processEvents();
    HandlingChecks checks(*handled.table);
    HandlingDeeds person(*handled.table, static_cast<quint64>(seed));
    for (int done = 0; done < deeds; ++done) {
        checks.begin();
        person.act();
        settle();
        const QString complaint = warnings.count() > 0 ? warnings.first() : checks.complaint();
        if (!complaint.isEmpty())
            QFAIL(qPrintable(QStringLiteral("seed %1, deed %2: %3; after: %4")
                                 .arg(seed)
                                 .arg(done)
                                 .arg(complaint, person.said().join(QStringLiteral(", ")))));
    }
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    for (auto event = checks.events().begin(); event != checks.events().end(); ++event)
        m_events[event.key()] += event.value();
}

// What is never caused was not tried.
void tst_PanelHandling::everyKindOfEventIsCaused()
{
    for (const int event : {73, 87, 97, 101, 102, 118, 124, 248})
        QVERIFY2(m_events.value(event) > 0, qPrintable(QString::number(event)));
}

QTEST_MAIN(tst_PanelHandling)
#include "tst_PanelHandling.moc"
