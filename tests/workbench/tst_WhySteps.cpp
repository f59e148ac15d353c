#include "support/ModuleGuard.h"

#include "workbench/WhySteps.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"

#include <OrderParamTable_mini/semantics/CellMasks.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <WQ/CMultiParamsTable.h>

#include <QtTest>

#include <map>

using namespace workbench;
using support::ModuleGuard;

namespace {

using Table = TC::CGlobalOrderParamTable;
using TablePointer = std::unique_ptr<Table>;

constexpr int kDefaultFlags = 0x7103FFF;
constexpr int kAllFlags = 0xFFFFFFF;

TablePointer makeTable(int identity, int broker = 2, int trader = 1)
{
    return std::make_unique<Table>(TC::EOpParamWidgetID(identity), ttservice::ENVBrokerType(broker), true, nullptr,
                                   true, ttservice::ENvTraderType(trader), true);
}

/// The cells that a host may add, so that the rules of theirs have something to show.
void addHostCells(Table& table)
{
    for (const int cell : {0x20, 0x80, 0x100, 0x4000, 0x8000, 0x100000, 0x200000, 0x400000, 0x1000000, 0x8000000})
        table.getMultiParamsTable()->addParamCell(cell, QStringLiteral("host"), 6, 0, 100, 1, QString(), 0, 4);
}

void drive(Table& table, int order, int flags, bool expanded)
{
    table.setExpandItemsHidden(!expanded);
    table.setOrderType(ttservice::EOrderType(order));
    table.setFlag(TC::OperationCellFlags(QFlag(flags)));
}

std::vector<WhyStep> stepsOf(Table& table, int cell)
{
    return whySteps(whyTable(table), whyCell(table, cell));
}

/// "Flag shows", "Filter hides".
QString answer(Table& table, int cell)
{
    static const char* const kNames[] = {"Catalogue", "Flag",      "OrderType", "Override", "Module",
                                         "PriceType", "Expansion", "Since",     "Filter",   "Area"};
    const std::vector<WhyStep> steps = stepsOf(table, cell);
    const WhyStep& step = decisiveStep(steps);
    return QStringLiteral("%1 %2").arg(QLatin1String(kNames[int(step.rule)]),
                                       isShownBy(steps) ? QStringLiteral("shows") : QStringLiteral("hides"));
}

/// Which cells a person sees: the rows of the view, while it is not hidden.
std::map<int, bool> shownCells(Table& table)
{
    const WQ::CMultiParamsTable& grid = *table.getMultiParamsTable();
    const WQ::CellModel& cells = WQ::CMultiParamsTablePrivate::of(&grid)->model();
    std::map<int, bool> shown;
    for (int row = 0; row < grid.model()->rowCount() && !grid.isHidden(); ++row)
        shown[cells.cellAtRow(row)->id()] = true;
    return shown;
}

/// The limit price keeps the mark of an earlier order type outside 0 and 1.
bool mayBeOfEarlier(int cell, int order)
{
    return cell == 0x2000000 && order != 0 && order != 1;
}

/// The first cell whose explanation is not what the table shows; empty for none.
QString disagreement(Table& table)
{
    std::map<int, bool> shown = shownCells(table);
    const WhyTable facts = whyTable(table);
    for (const int cell : whyCells(table)) {
        const std::vector<WhyStep> steps = whySteps(facts, whyCell(table, cell));
        const bool isDecidedOnce =
            std::count_if(steps.begin(), steps.end(), [](const WhyStep& step) { return step.isDecisive; }) == 1;
        const bool isSince = steps[std::size_t(WhyRule::Since)].effect != WhyEffect::None;
        if (isShownBy(steps) != shown[cell] || !isDecidedOnce || (isSince && !mayBeOfEarlier(cell, facts.state.order)))
            return QStringLiteral("table %1 broker %2 order %3 operation %4 flags %5 expanded %6 cell 0x%7: %8")
                .arg(facts.state.identity)
                .arg(facts.state.broker)
                .arg(facts.state.order)
                .arg(facts.state.operation)
                .arg(int(facts.flags), 0, 16)
                .arg(facts.isExpanded)
                .arg(cell, 0, 16)
                .arg(answer(table, cell));
    }
    return {};
}

/// Drives one table through the combinations; @returns how many there were.
int walk(Table& table, QString& firstDisagreement)
{
    int combinations = 0;
    for (const int order : {0, 1, 2, 3, 5, -1}) {
        for (const int operation : {-1, 18, 21}) {
            table.setOperationType(ttservice::EOperationType(operation));
            for (const int flags : {kDefaultFlags, kAllFlags, 0}) {
                for (const bool expanded : {false, true}) {
                    drive(table, order, flags, expanded);
                    ++combinations;
                    if (firstDisagreement.isEmpty())
                        firstDisagreement = disagreement(table);
                }
            }
        }
    }
    return combinations;
}

} // namespace

class tst_WhySteps : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyCellIsExplainedAsItIsShown_data();
    void everyCellIsExplainedAsItIsShown();
    void aTableAsConstructedIsExplained();
    void theFlagsDecide();
    void theMaskDecides();
    void theCatalogueDecides();
    void theSuperPriceHasRulesOfItsOwn();
    void theTailVolumeFollowsTheVolumeType();
    void theRemarkFollowsModuleAndIdentity();
    void modulesDecide();
    void theLimitPriceFollowsThePriceType();
    void expandingAndCollapsingDecide();
    void theFilterDecides();
    void parameterSetsShowNoCells();
    void marksThatWereSetSinceAreTold();
    void whatExpandingHasShownStaysShown();
    void unknownCellsAreInNoTable();
};

void tst_WhySteps::everyCellIsExplainedAsItIsShown_data()
{
    QTest::addColumn<bool>("modules");
    QTest::newRow("modules off") << false;
    QTest::newRow("modules on") << true;
}

void tst_WhySteps::everyCellIsExplainedAsItIsShown()
{
    QFETCH(bool, modules);
    using namespace support::modules;
    const ModuleGuard guard =
        modules ? ModuleGuard{kCommandRemark, kTriggerPrice, kStopProfitLoss, kRandomVolume} : ModuleGuard{};
    QString disagreement;
    int combinations = 0;
    for (int identity = 0; identity <= 53; ++identity) {
        for (const int broker : {1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 1001, 1002}) {
            const TablePointer table = makeTable(identity, broker);
            addHostCells(*table);
            combinations += walk(*table, disagreement);
        }
    }
    QCOMPARE(disagreement, QString());
    QCOMPARE(combinations, 54 * 12 * 6 * 3 * 3 * 2);
}

void tst_WhySteps::aTableAsConstructedIsExplained()
{
    for (int identity = 0; identity <= 53; ++identity) {
        for (const int broker : {1, 2, 6, 7, 10, 1001}) {
            const TablePointer table = makeTable(identity, broker);
            table->setExpandItemsHidden(true);
            QCOMPARE(disagreement(*table), QString());
            QCOMPARE(answer(*table, 0x20000), QStringLiteral("Catalogue shows"));
        }
    }
}

void tst_WhySteps::theFlagsDecide()
{
    const TablePointer table = makeTable(1);
    drive(*table, 1, kDefaultFlags, true);
    QCOMPARE(answer(*table, 0x1), QStringLiteral("Flag shows"));
    QCOMPARE(answer(*table, 0x10000), QStringLiteral("Flag hides"));
    QCOMPARE(answer(*table, 0x800), QStringLiteral("Flag shows"));
}

void tst_WhySteps::theMaskDecides()
{
    const TablePointer table = makeTable(1);
    drive(*table, 2, kDefaultFlags, true);
    QCOMPARE(answer(*table, 0x200), QStringLiteral("OrderType hides"));
    QCOMPARE(answer(*table, 0x1000), QStringLiteral("Flag shows"));
    drive(*table, 7, kDefaultFlags, true);
    QCOMPARE(decisiveStep(stepsOf(*table, 0x200)).rule, WhyRule::Area);
}

void tst_WhySteps::theCatalogueDecides()
{
    const TablePointer table = makeTable(1, 7);
    drive(*table, 1, kDefaultFlags, true);
    QCOMPARE(answer(*table, 0x2), QStringLiteral("Catalogue hides"));
    QCOMPARE(answer(*table, 0x10), QStringLiteral("Catalogue hides"));
    QCOMPARE(answer(*table, 0x2000000), QStringLiteral("Catalogue hides"));
}

void tst_WhySteps::theSuperPriceHasRulesOfItsOwn()
{
    const TablePointer table = makeTable(1);
    drive(*table, 1, 0, true);
    QCOMPARE(answer(*table, 0x2), QStringLiteral("Override shows"));
    QCOMPARE(answer(*table, 0x4), QStringLiteral("Override shows"));
    drive(*table, 1, kDefaultFlags, false);
    QCOMPARE(answer(*table, 0x4), QStringLiteral("Override hides"));
    drive(*table, 0, kDefaultFlags, true);
    QCOMPARE(answer(*table, 0x4), QStringLiteral("OrderType hides"));
}

void tst_WhySteps::theTailVolumeFollowsTheVolumeType()
{
    const TablePointer table = makeTable(1);
    drive(*table, 1, kDefaultFlags, true);
    QCOMPARE(answer(*table, 0x40), QStringLiteral("Override hides"));
    table->getMultiParamsTable()->setComboData(0x10, 11);
    drive(*table, 1, kDefaultFlags, true);
    QCOMPARE(answer(*table, 0x40), QStringLiteral("Flag shows"));
}

void tst_WhySteps::theRemarkFollowsModuleAndIdentity()
{
    const ModuleGuard guard{support::modules::kCommandRemark};
    const TablePointer usual = makeTable(1);
    drive(*usual, 0, kDefaultFlags, true);
    QCOMPARE(answer(*usual, 0x4000000), QStringLiteral("Flag shows"));
    const TablePointer closing = makeTable(36);
    drive(*closing, 0, kDefaultFlags, true);
    QCOMPARE(answer(*closing, 0x4000000), QStringLiteral("Override hides"));
}

void tst_WhySteps::modulesDecide()
{
    const TablePointer table = makeTable(1);
    addHostCells(*table);
    drive(*table, 0, kAllFlags, true);
    QCOMPARE(answer(*table, 0x100000), QStringLiteral("Module hides"));
    QCOMPARE(answer(*table, 0x200000), QStringLiteral("Module hides"));
    const ModuleGuard guard{support::modules::kTriggerPrice, support::modules::kStopProfitLoss};
    drive(*table, 0, kAllFlags, true);
    QCOMPARE(answer(*table, 0x100000), QStringLiteral("PriceType hides"));
    QCOMPARE(answer(*table, 0x200000), QStringLiteral("Flag shows"));
}

void tst_WhySteps::theLimitPriceFollowsThePriceType()
{
    const TablePointer table = makeTable(5);
    table->setExpandItemsHidden(true);
    QCOMPARE(answer(*table, 0x2000000), QStringLiteral("Catalogue hides"));
    drive(*table, 0, 0, false);
    QCOMPARE(answer(*table, 0x2000000), QStringLiteral("PriceType shows"));
    drive(*table, 2, 0, false);
    QCOMPARE(answer(*table, 0x2000000), QStringLiteral("Since shows"));
}

void tst_WhySteps::expandingAndCollapsingDecide()
{
    const TablePointer table = makeTable(1);
    drive(*table, 1, kDefaultFlags, false);
    QCOMPARE(answer(*table, 0x200), QStringLiteral("Expansion hides"));
    QCOMPARE(answer(*table, 0x8), QStringLiteral("Flag shows"));
    drive(*table, 1, 0, true);
    QCOMPARE(answer(*table, 0x200), QStringLiteral("Expansion shows"));
    QCOMPARE(answer(*table, 0x40), QStringLiteral("Flag hides"));
}

void tst_WhySteps::theFilterDecides()
{
    const TablePointer table = makeTable(1);
    drive(*table, 1, kDefaultFlags, false);
    table->getMultiParamsTable()->setVisibleItemSet({0x1});
    QCOMPARE(answer(*table, 0x1), QStringLiteral("Flag shows"));
    QCOMPARE(answer(*table, 0x2), QStringLiteral("Filter hides"));
    QCOMPARE(answer(*table, 0x200), QStringLiteral("Expansion hides"));
    QCOMPARE(disagreement(*table), QString());
}

void tst_WhySteps::parameterSetsShowNoCells()
{
    const TablePointer table = makeTable(1);
    drive(*table, 5, kDefaultFlags, true);
    QCOMPARE(answer(*table, 0x1), QStringLiteral("Area hides"));
    QCOMPARE(answer(*table, 0x10000), QStringLiteral("Flag hides"));
}

void tst_WhySteps::marksThatWereSetSinceAreTold()
{
    const TablePointer table = makeTable(1);
    drive(*table, 1, kDefaultFlags, true);
    table->getMultiParamsTable()->setItemHidden(0x1, true);
    table->getMultiParamsTable()->setItemHidden(0x10000, false);
    QCOMPARE(answer(*table, 0x1), QStringLiteral("Since hides"));
    QCOMPARE(answer(*table, 0x10000), QStringLiteral("Since shows"));
    std::map<int, bool> shown = shownCells(*table);
    QVERIFY(!shown[0x1] && shown[0x10000]);
}

// Collapsing leaves the one-way fluctuation range as expanding has left it, whatever the flags say.
void tst_WhySteps::whatExpandingHasShownStaysShown()
{
    const TablePointer table = makeTable(1);
    drive(*table, 1, 0, true);
    table->setExpandItemsHidden(true);
    QCOMPARE(answer(*table, 0x8), QStringLiteral("Since shows"));
    QCOMPARE(answer(*table, 0x200), QStringLiteral("Flag hides"));
    QVERIFY(shownCells(*table)[0x8]);
}

void tst_WhySteps::unknownCellsAreInNoTable()
{
    const TablePointer table = makeTable(1);
    drive(*table, 1, kDefaultFlags, true);
    for (const int cell : {0, -1, 3, 726, INT_MAX, INT_MIN})
        QCOMPARE(answer(*table, cell), QStringLiteral("Catalogue hides"));
}

QTEST_MAIN(tst_WhySteps)
#include "tst_WhySteps.moc"
