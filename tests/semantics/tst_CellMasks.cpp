#include "semantics/RuleText.h"

#include <OrderParamTable_mini/semantics/CellMasks.h>

#include <QTest>

#include <map>

using TC::FeatureModule;

namespace {

struct Case
{
    int cell;
    int order;
    quint32 flags;
    int identity;
    bool startCountHidden;
    bool remainingVolume;
    bool remarkModule;
    bool triggerModule;
    bool stopModule;
};

quint32 maskOf(int order)
{
    switch (order) {
    case 0:
        return 0x7700003;
    case 1:
        return 0x6703FFF;
    case 2:
        return 0x4801889;
    case 3:
        return 0x4000080;
    default:
        return 0xFFFFFFFF;
    }
}

const std::set<int> kTablesWithoutRemark{3, 4, 35, 36, 37, 38, 42, 43, 48, 49, 51};

bool isExpected(const Case& c)
{
    const bool allowed = (c.flags & maskOf(c.order) & quint32(c.cell)) != 0;
    switch (c.cell) {
    case 0x2:
        return true;
    case 0x4:
        return !c.startCountHidden;
    case 0x40:
        return allowed && c.remainingVolume;
    case 0x4000000:
        return allowed && c.remarkModule && kTablesWithoutRemark.count(c.identity) == 0;
    case 0x100000:
        return allowed && c.triggerModule;
    case 0x200000:
    case 0x400000:
        return allowed && c.stopModule;
    default:
        return allowed;
    }
}

TC::CellVisibilityState stateOf(const Case& c)
{
    TC::CellVisibilityState state;
    state.identity = c.identity;
    state.order = ttservice::EOrderType(c.order);
    state.flags = TC::OperationCellFlags(QFlag(int(c.flags)));
    state.startCountHidden = c.startCountHidden;
    state.remainingVolume = c.remainingVolume;
    return state;
}

TC::ModuleQuery queryOf(const Case& c)
{
    return [c](FeatureModule module) {
        return (c.remarkModule && module == FeatureModule::CommandRemark)
            || (c.triggerModule && module == FeatureModule::TriggerPrice)
            || (c.stopModule && module == FeatureModule::StopProfitLoss);
    };
}

QString describe(const Case& c)
{
    return QStringLiteral("cell 0x%1 order %2 flags 0x%3 identity %4 start count hidden %5 remaining %6 modules %7%8%9")
        .arg(c.cell, 0, 16)
        .arg(c.order)
        .arg(c.flags, 0, 16)
        .arg(c.identity)
        .arg(c.startCountHidden)
        .arg(c.remainingVolume)
        .arg(c.remarkModule)
        .arg(c.triggerModule)
        .arg(c.stopModule);
}

/// The cells of the case's table that differ from the expectation; empty when none does.
QString differences(Case c)
{
    const TC::CellVisibilityState state = stateOf(c);
    const TC::ModuleQuery query = queryOf(c);
    for (int bit = 0; bit < 28; ++bit) {
        c.cell = 1 << bit;
        if (TC::isCellVisible(c.cell, state, query) != isExpected(c))
            return describe(c) + (isExpected(c) ? QLatin1String(" is not visible") : QLatin1String(" is visible"));
    }
    return {};
}

quint32 visibleCells(const Case& c)
{
    quint32 cells = 0;
    for (int bit = 0; bit < 28; ++bit) {
        if (TC::isCellVisible(1 << bit, stateOf(c), queryOf(c)))
            cells |= 1u << bit;
    }
    return cells;
}

constexpr quint32 kDefaultFlags = 0x7103FFF;

} // namespace

class tst_CellMasks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rulesSpeakOfTwentyEightCells();
    void masksOfTheOrderTypes();
    void everyCellForEveryTableOrderTypeFlagsAndModules();
    void everySingleFlagAllowsItsCellAlone();
    void superPriceStaysVisibleWithoutFlags();
    void defaultFlagsShowTheseCells_data();
    void defaultFlagsShowTheseCells();
    void remainingVolumeAloneShowsTheTailMinimum();
    void limitPriceKeepsItsHiddenMark();
    void cellsOfTheFirstAlgorithmThatExpandingShows();
    void overridesOfTheCells();
    void expandingShowsAndCollapsingHidesByTheWord();
    void otherOrderTypesKeepTheirMarks();
    void superPriceCellsAreShownAgain();
    void priceTypesShowTheLimitAndHideTheTrigger();
};

void tst_CellMasks::rulesSpeakOfTwentyEightCells()
{
    QCOMPARE(TC::kCellBits, 28);
}

void tst_CellMasks::masksOfTheOrderTypes()
{
    constexpr quint32 kAllCells = 0xFFFFFFF;
    for (const int order : ruletext::manyIntegers())
        QCOMPARE(TC::orderTypeMask(ttservice::EOrderType(order)) & kAllCells, maskOf(order) & kAllCells);
}

void tst_CellMasks::everyCellForEveryTableOrderTypeFlagsAndModules()
{
    for (const int order : {INT_MIN, -2, -1, 0, 1, 2, 3, 4, 5, 6, 7, 12, 13, 104, INT_MAX}) {
        for (const quint32 flags : {0u, kDefaultFlags, 0xFFFFFFFu, 0xFFFFFFFFu}) {
            for (int identity = -2; identity <= 60; ++identity) {
                for (int bits = 0; bits < 32; ++bits) {
                    const Case c{0,
                                 order,
                                 flags,
                                 identity,
                                 (bits & 1) != 0,
                                 (bits & 2) != 0,
                                 (bits & 4) != 0,
                                 (bits & 8) != 0,
                                 (bits & 16) != 0};
                    QCOMPARE(differences(c), QString());
                }
            }
        }
    }
}

void tst_CellMasks::everySingleFlagAllowsItsCellAlone()
{
    for (int bit = 0; bit < 32; ++bit) {
        for (const int order : {0, 1, 2, 3, 4, -1})
            QCOMPARE(differences({0, order, 1u << bit, 5, false, true, true, true, true}), QString());
    }
}

void tst_CellMasks::superPriceStaysVisibleWithoutFlags()
{
    for (const int order : ruletext::manyIntegers())
        QCOMPARE(visibleCells({0, order, 0, 5, true, true, true, true, true}), 0x2u);
}

void tst_CellMasks::defaultFlagsShowTheseCells_data()
{
    QTest::addColumn<int>("order");
    QTest::addColumn<quint32>("withoutModules");
    QTest::addColumn<quint32>("withModules");
    QTest::newRow("plain order") << 0 << 0x3000003u << 0x7100003u;
    QTest::newRow("first algorithm") << 1 << 0x2003FFFu << 0x6103FFFu;
    QTest::newRow("second algorithm") << 2 << 0x188Fu << 0x400188Fu;
    QTest::newRow("third algorithm") << 3 << 0x86u << 0x4000086u;
    QTest::newRow("parameter set") << 5 << 0x3003FFFu << 0x7103FFFu;
}

void tst_CellMasks::defaultFlagsShowTheseCells()
{
    QFETCH(int, order);
    const bool startHidden = order == 0;
    QTEST(visibleCells({0, order, kDefaultFlags, 5, startHidden, true, false, false, false}), "withoutModules");
    QTEST(visibleCells({0, order, kDefaultFlags, 5, startHidden, true, true, true, true}), "withModules");
}

void tst_CellMasks::remainingVolumeAloneShowsTheTailMinimum()
{
    Case c{0, 1, kDefaultFlags, 5, true, false, false, false, false};
    QVERIFY((visibleCells(c) & 0x40u) == 0);
    c.remainingVolume = true;
    QVERIFY((visibleCells(c) & 0x40u) != 0);
    c.order = 0;
    QVERIFY((visibleCells(c) & 0x40u) == 0);
}

void tst_CellMasks::limitPriceKeepsItsHiddenMark()
{
    for (int bit = 0; bit < 28; ++bit)
        QCOMPARE(TC::isHiddenByRules(1 << bit), bit != 25);
}

void tst_CellMasks::cellsOfTheFirstAlgorithmThatExpandingShows()
{
    std::set<int> shown;
    std::set<int> hiddenOnCollapse;
    for (const TC::AlgorithmCell& cell : TC::kAlgorithmCells) {
        QVERIFY(shown.insert(cell.cell).second);
        if (cell.isHiddenOnCollapse)
            hiddenOnCollapse.insert(cell.cell);
    }
    QCOMPARE(shown, (std::set<int>{0x8, 0x200, 0x400, 0x800, 0x1000, 0x2000}));
    QCOMPARE(hiddenOnCollapse, (std::set<int>{0x200, 0x400, 0x800, 0x1000, 0x2000}));
}

void tst_CellMasks::overridesOfTheCells()
{
    using TC::CellOverride;
    const std::map<int, CellOverride> expected{{0x2, CellOverride::Always},           {0x4, CellOverride::StartCount},
                                               {0x40, CellOverride::RemainingVolume}, {0x100000, CellOverride::Module},
                                               {0x200000, CellOverride::Module},      {0x400000, CellOverride::Module},
                                               {0x4000000, CellOverride::Remark}};
    const std::map<int, FeatureModule> modules{{0x100000, FeatureModule::TriggerPrice},
                                               {0x200000, FeatureModule::StopProfitLoss},
                                               {0x400000, FeatureModule::StopProfitLoss},
                                               {0x4000000, FeatureModule::CommandRemark}};
    for (int bit = 0; bit < 32; ++bit) {
        const int cell = int(1u << bit);
        const auto row = expected.find(cell);
        QCOMPARE(int(TC::cellOverride(cell)), int(row == expected.end() ? CellOverride::None : row->second));
        const auto module = modules.find(cell);
        QCOMPARE(TC::overrideModule(cell).has_value(), module != modules.end());
        if (module != modules.end())
            QCOMPARE(int(*TC::overrideModule(cell)), int(module->second));
    }
    for (const int identity : ruletext::manyIntegers())
        QCOMPARE(TC::showsRemark(identity), kTablesWithoutRemark.count(identity) == 0);
}

void tst_CellMasks::expandingShowsAndCollapsingHidesByTheWord()
{
    using TC::HiddenMark;
    const std::set<int> collapsing{0x200, 0x400, 0x800, 0x1000, 0x2000};
    for (int bit = 0; bit < 28; ++bit) {
        const int cell = 1 << bit;
        const bool isOfAlgorithm = cell == 0x8 || collapsing.count(cell) != 0;
        const auto mark = [cell](bool expanded, quint32 word) {
            return TC::expansionMark(cell, ttservice::ORDER_TYPE_ALGORITHM, expanded, word);
        };
        QCOMPARE(int(mark(true, 0)), int(isOfAlgorithm ? HiddenMark::Shown : HiddenMark::Kept));
        QCOMPARE(int(mark(false, 0)), int(collapsing.count(cell) ? HiddenMark::Hidden : HiddenMark::Kept));
        QCOMPARE(int(mark(false, quint32(cell))), int(HiddenMark::Kept));
        QCOMPARE(int(mark(false, ~quint32(cell))), int(collapsing.count(cell) ? HiddenMark::Hidden : HiddenMark::Kept));
    }
}

void tst_CellMasks::otherOrderTypesKeepTheirMarks()
{
    for (const int order : ruletext::manyIntegers()) {
        if (order == 1)
            continue;
        for (int bit = 0; bit < 28; ++bit) {
            for (const bool expanded : {false, true})
                QCOMPARE(int(TC::expansionMark(1 << bit, ttservice::EOrderType(order), expanded, 0)),
                         int(TC::HiddenMark::Kept));
        }
    }
}

void tst_CellMasks::superPriceCellsAreShownAgain()
{
    using TC::HiddenMark;
    for (int bit = 0; bit < 28; ++bit) {
        const int cell = 1 << bit;
        const HiddenMark shown = cell == 0x2 || cell == 0x4 ? HiddenMark::Shown : HiddenMark::Kept;
        QCOMPARE(int(TC::superPriceMark(cell, false)), int(shown));
        QCOMPARE(int(TC::superPriceMark(cell, true)), int(cell == 0x4 ? HiddenMark::Hidden : shown));
    }
    for (const int order : ruletext::manyIntegers()) {
        QVERIFY(TC::isStartCountHidden(false, ttservice::EOrderType(order)));
        QCOMPARE(TC::isStartCountHidden(true, ttservice::EOrderType(order)), order == 0);
    }
}

void tst_CellMasks::priceTypesShowTheLimitAndHideTheTrigger()
{
    using TC::HiddenMark;
    for (const int order : ruletext::manyIntegers()) {
        for (int bit = 0; bit < 28; ++bit) {
            HiddenMark expected = HiddenMark::Kept;
            if (order == 0 || order == 1)
                expected = bit == 20 ? HiddenMark::Hidden : bit == 25 ? HiddenMark::Shown : HiddenMark::Kept;
            QCOMPARE(int(TC::priceTypeMark(1 << bit, ttservice::EOrderType(order))), int(expected));
        }
    }
}

QTEST_APPLESS_MAIN(tst_CellMasks)
#include "tst_CellMasks.moc"
