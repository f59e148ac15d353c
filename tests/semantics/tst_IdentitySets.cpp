#include "semantics/RuleText.h"

#include <OrderParamTable_mini/semantics/IdentitySets.h>

#include <QTest>

namespace {

std::set<int> membersOf(TC::IdentitySet set)
{
    std::set<int> members;
    for (const int identity : ruletext::manyIntegers()) {
        if (set.contains(identity))
            members.insert(identity);
    }
    return members;
}

/// A named set and the numbers it is laid down with.
struct NamedSet
{
    const char* name;
    TC::IdentitySet set;
    std::set<int> members;
};

#define NAMED(set) #set, TC::set

// clang-format off
const NamedSet kNamedSets[] = {
    {NAMED(kTablesWithoutTargetVolumes), {14}},
    {NAMED(kTablesWithWideFluctuation), {7}},
    {NAMED(kTablesWithoutOptionMarketOrders), {43}},
    {NAMED(kComposeFutureTables), {8, 10, 23}},
    {NAMED(kComposeStockTables), {7, 9, 22, 24}},
    {NAMED(kOrderServiceTables), {15, 17, 18, 19, 20, 21, 22, 25, 26, 27, 28, 29, 30, 40}},
    {NAMED(kCloseSettingTables), {36, 37, 38, 42, 43, 48, 49, 51}},
    {NAMED(kAlgorithmOnlyTables), {10, 35}},
    {NAMED(kTablesWithoutStrip), {31, 32, 33, 34, 52}},
    {NAMED(kTablesWithUnplacedStrip), {31, 32, 33, 35}},
    {NAMED(kTablesWithKeptStrip), {31, 32, 33, 34, 35}},
    {NAMED(kTablesWithoutAlgorithms), {36, 37, 38, 39, 43, 45, 48, 49, 51}},
    {NAMED(kTablesWithHelpOfTheirOwn), {15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30,
                                        36, 37, 38, 39, 40, 43, 45, 48, 49, 51}},
    {NAMED(kTablesWithoutTypedPrice), {7, 8, 9, 10, 14, 15, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30}},
    {NAMED(kModelPriceTables), {15, 17, 22, 30, 40}},
    {NAMED(kTablesWithBookLevelRebuild), {36, 38, 39}},
    {NAMED(kAfterHoursTables), {5, 31}},
    {NAMED(kTablesWithoutMarketOrders), {22, 24}},
    {NAMED(kPreCloseTablesOfTrader1), {5, 15, 22, 31, 36}},
    {NAMED(kPreCloseTablesOfTrader4), {7, 31}},
    {NAMED(kTablesWithPreCloseHandling), {5, 7, 15, 22, 36}},
    {NAMED(kComposeTablesWithPreClose), {7}},
    {NAMED(kTablesWithLimitPrice), {5, 11, 12, 13}},
    {NAMED(kTablesWithRandomVolume), {5, 15, 31, 33, 36}},
    {NAMED(kTablesWithVolumeByOperation), {7, 22}},
    {NAMED(kTablesHidingRemark), {3, 4, 35}},
    {NAMED(kTablesWithoutCommandLog), {15, 17, 18, 19, 20, 21, 22, 25, 26, 27, 28, 29, 30,
                                       36, 37, 38, 40, 42, 43, 48, 49, 51}},
};
// clang-format on

#undef NAMED

} // namespace

class tst_IdentitySets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namedSetsHoldExactlyTheirIdentities_data();
    void namedSetsHoldExactlyTheirIdentities();
    void typedPricesEndBelowTable35();
    void identitiesOutside0To63AreInNoSet();
    void rangesHoldBothEnds();
    void unionsHoldTheMembersOfBoth();
    void containsAllIsInclusion();
};

void tst_IdentitySets::namedSetsHoldExactlyTheirIdentities_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(kNamedSets)); ++i)
        QTest::newRow(kNamedSets[i].name) << i;
}

void tst_IdentitySets::namedSetsHoldExactlyTheirIdentities()
{
    QFETCH(int, index);
    QCOMPARE(membersOf(kNamedSets[index].set), kNamedSets[index].members);
}

void tst_IdentitySets::typedPricesEndBelowTable35()
{
    QCOMPARE(TC::kTypedPriceTablesEnd, 35);
}

void tst_IdentitySets::identitiesOutside0To63AreInNoSet()
{
    const TC::IdentitySet all = TC::IdentitySet::range(0, 63);
    for (const int identity : ruletext::manyIntegers())
        QCOMPARE(all.contains(identity), identity >= 0 && identity <= 63);
}

void tst_IdentitySets::rangesHoldBothEnds()
{
    QCOMPARE(membersOf(TC::IdentitySet::range(15, 18)), (std::set<int>{15, 16, 17, 18}));
    QCOMPARE(membersOf(TC::IdentitySet::range(63, 63)), (std::set<int>{63}));
    QCOMPARE(membersOf(TC::IdentitySet::range(0, 0)), (std::set<int>{0}));
    QCOMPARE(membersOf(TC::IdentitySet::range(5, 4)), (std::set<int>{}));
}

void tst_IdentitySets::unionsHoldTheMembersOfBoth()
{
    QCOMPARE(membersOf(TC::IdentitySet{1, 2} | TC::IdentitySet{2, 60}), (std::set<int>{1, 2, 60}));
    QVERIFY((TC::IdentitySet{1} | TC::IdentitySet{2}) == TC::IdentitySet::range(1, 2));
}

void tst_IdentitySets::containsAllIsInclusion()
{
    const TC::IdentitySet set{1, 2, 3};
    QVERIFY(set.containsAll({}));
    QVERIFY(set.containsAll({1, 3}));
    QVERIFY(set.containsAll(set));
    QVERIFY(!set.containsAll({3, 4}));
    QVERIFY(!TC::IdentitySet{}.containsAll({0}));
}

QTEST_APPLESS_MAIN(tst_IdentitySets)
#include "tst_IdentitySets.moc"
