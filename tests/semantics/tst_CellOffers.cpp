#include "semantics/RuleText.h"

#include <OrderParamTable_mini/semantics/CellOffers.h>

#include <QTest>

using TC::FeatureModule;

namespace {

const std::set<FeatureModule> kAllModules{FeatureModule::CommandRemark, FeatureModule::RandomVolume};

std::set<int> offered(int identity, int broker, int trader, bool hasPriceTypes, const std::set<FeatureModule>& modules)
{
    TC::OrderState state;
    state.identity = identity;
    state.broker = ttservice::ENVBrokerType(broker);
    state.trader = ttservice::ENvTraderType(trader);
    std::set<int> cells;
    for (int bit = 0; bit < 31; ++bit) {
        if (TC::isCellOffered(1 << bit, state, hasPriceTypes, ruletext::modulesOn(modules)))
            cells.insert(1 << bit);
    }
    return cells;
}

const std::set<int> kInEveryTable{0x40, 0x8, 0x200, 0x400, 0x800, 0x1000, 0x2000, 0x10000, 0x20000, 0x80000};

std::set<int> with(std::initializer_list<int> cells)
{
    std::set<int> all = kInEveryTable;
    all.insert(cells);
    return all;
}

} // namespace

class tst_CellOffers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPlainStockTable();
    void futuresHaveNoPriceTypes();
    void hongKongAccountsHaveNeitherSuperPriceNorBaseVolume();
    void brokersWithoutBaseVolume();
    void limitPriceBelongsToFourTables();
    void remarkAndRandomVolumeComeWithTheirModules();
    void cellsOfHostsAreNeverOffered();
};

void tst_CellOffers::aPlainStockTable()
{
    QCOMPARE(offered(1, 2, 2, true, {}), with({0x1, 0x2, 0x4, 0x10}));
}

void tst_CellOffers::futuresHaveNoPriceTypes()
{
    QCOMPARE(offered(1, 1, 2, false, {}), with({0x2, 0x4, 0x10}));
}

void tst_CellOffers::hongKongAccountsHaveNeitherSuperPriceNorBaseVolume()
{
    QCOMPARE(offered(1, 7, 2, true, {}), with({0x1}));
    QCOMPARE(offered(1, 11, 2, true, {}), with({0x1}));
}

void tst_CellOffers::brokersWithoutBaseVolume()
{
    QCOMPARE(offered(1, 6, 2, true, {}), with({0x1, 0x2, 0x4}));
    QCOMPARE(offered(1, 10, 2, true, {}), with({0x1, 0x2, 0x4}));
}

void tst_CellOffers::limitPriceBelongsToFourTables()
{
    const std::set<int> tables{5, 11, 12, 13};
    for (const int identity : ruletext::manyIntegers())
        QCOMPARE(offered(identity, 2, 2, true, {}).count(0x2000000), tables.count(identity));
}

void tst_CellOffers::remarkAndRandomVolumeComeWithTheirModules()
{
    QCOMPARE(offered(31, 2, 1, true, kAllModules), with({0x1, 0x2, 0x4, 0x10, 0x800000, 0x4000000}));
    QCOMPARE(offered(31, 2, 2, true, kAllModules), with({0x1, 0x2, 0x4, 0x10, 0x4000000}));
    QCOMPARE(offered(31, 2, 1, true, {}), with({0x1, 0x2, 0x4, 0x10}));
}

void tst_CellOffers::cellsOfHostsAreNeverOffered()
{
    for (const int cell : {0, 3, -1, 0x20, 0x80, 0x100, 0x4000, 0x8000, 0x100000, 0x200000, 0x400000, 0x1000000})
        QCOMPARE(int(TC::cellOffer(cell)), int(TC::CellOffer::Never));
}

QTEST_APPLESS_MAIN(tst_CellOffers)
#include "tst_CellOffers.moc"
