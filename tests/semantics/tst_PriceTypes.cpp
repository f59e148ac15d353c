#include "semantics/PriceTypeListing.h"
#include "semantics/RuleText.h"

#include <OrderParamTable_mini/semantics/PriceTypes.h>

#include <QTest>

#include <random>

using TC::FeatureModule;
using TC::OrderState;

namespace {

const std::vector<int> kBrokers{1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 1001, 1002};
const std::vector<int> kUnknownBrokers{INT_MIN, -1, 0, 9, 12, 1000, INT_MAX};
constexpr int kFirstIdentity = -2;
constexpr int kLastIdentity = 60;

struct Modules
{
    bool sloSell;
    bool stockMarket;
    TC::ModuleQuery query;
};

Modules modules(bool sloSell, bool stockMarket)
{
    std::set<FeatureModule> on;
    if (sloSell)
        on.insert(FeatureModule::SloSellOnlyFixedPrice);
    if (stockMarket)
        on.insert(FeatureModule::StockMultiMarketPrice);
    return {sloSell, stockMarket, ruletext::modulesOn(on)};
}

const std::vector<Modules>& allModules()
{
    static const std::vector<Modules> all{modules(false, false), modules(true, false), modules(false, true),
                                          modules(true, true)};
    return all;
}

OrderState state(int identity, int broker, int trader = 1, int order = 0, int operation = -1, bool autoBook = false)
{
    return {identity,
            ttservice::ENVBrokerType(broker),
            ttservice::ENvTraderType(trader),
            ttservice::EOrderType(order),
            ttservice::EOperationType(operation),
            autoBook};
}

listing::Case caseOf(const OrderState& s, int flags, int market, const Modules& m)
{
    return {s.identity, s.broker, s.trader, s.order, s.operation, s.autoBook, flags, market, m.sloSell, m.stockMarket};
}

QString describe(const listing::Case& c)
{
    return QStringLiteral("identity %1 broker %2 trader %3 order %4 operation %5 autoBook %6 flags %7 market %8 "
                          "slo-sell %9 stock-market ")
               .arg(c.identity)
               .arg(c.broker)
               .arg(c.trader)
               .arg(c.order)
               .arg(c.operation)
               .arg(c.autoBook)
               .arg(c.flags)
               .arg(c.market)
               .arg(c.sloSellModule)
        + QString::number(c.stockMarketModule);
}

bool isSame(const TC::ComboEntries& actual, const listing::Entries& expected)
{
    if (actual.texts.size() != expected.size() || actual.values.size() != expected.size())
        return false;
    for (int i = 0; i < expected.size(); ++i) {
        if (actual.values.at(i).toInt() != expected.at(i).value
            || actual.texts.at(i) != QStringView(expected.at(i).text))
            return false;
    }
    return true;
}

/// Empty when the rule answers what the listing says, else what differs.
QString difference(const OrderState& s, int flags, int market, const Modules& m)
{
    const listing::Case c = caseOf(s, flags, market, m);
    TC::ComboEntries actual;
    const bool loads = TC::appendPriceTypes(actual, s, flags, market, m.query);
    const listing::Entries expected = listing::catalogue(c);
    if (isSame(actual, expected) && loads == !listing::isSpecifiedOnly(c))
        return {};
    return describe(c) + QLatin1String(": ") + ruletext::text(actual) + QLatin1String(" instead of ")
        + listing::text(expected) + (loads ? QLatin1String(" (to be loaded)") : QLatin1String(" (not to be loaded)"));
}

} // namespace

class tst_PriceTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCatalogueFollowsFlagsForEveryTableBrokerAndTrader();
    void theCatalogueFollowsMarketOrderAndOperationForEveryTableAndBroker();
    void theCatalogueFollowsAnyCombination();
    void theCatalogueAppendsToWhatIsThere();
    void valuesAreIntegers();
    void sloSellIsSpecifiedPriceAloneWhateverTheFlags();
    void optionsOnTable43LackTheMarketOrders();
    void afterHoursPriceNeedsMarket3PlainOrderAndTable5Or31();
    void oneLabelStandsForTwoValuesByMarket();
    void bookLevelsByBroker();
    void initialListByBroker_data();
    void initialListByBroker();
    void initialListOfOtherBrokersIsTheCatalogueWithFlags31AndMarket5();
    void rebuildByTableAndBroker();
    void bookLevelRebuildUsesFlags30AndMarket4();
    void composeListIsEmptyWithoutItsModule();
    void composeListForEveryTableBrokerAndTrader();
};

void tst_PriceTypes::theCatalogueFollowsFlagsForEveryTableBrokerAndTrader()
{
    for (const int broker : kBrokers) {
        for (int identity = kFirstIdentity; identity <= kLastIdentity; ++identity) {
            for (const int trader : {1, 2, 4, 4096}) {
                for (int flags = 0; flags < 128; ++flags) {
                    for (const bool autoBook : {false, true}) {
                        const OrderState s = state(identity, broker, trader, 0, -1, autoBook);
                        QCOMPARE(difference(s, flags, 4, allModules().front()), QString());
                    }
                }
            }
        }
    }
}

void tst_PriceTypes::theCatalogueFollowsMarketOrderAndOperationForEveryTableAndBroker()
{
    for (const int broker : kBrokers) {
        for (int identity = kFirstIdentity; identity <= kLastIdentity; ++identity) {
            for (int market = 0; market <= 6; ++market) {
                for (int order = 0; order <= 2; ++order) {
                    for (const int operation : {-1, 21, 22}) {
                        for (const Modules& m : allModules())
                            QCOMPARE(difference(state(identity, broker, 4, order, operation, true), 5, market, m),
                                     QString());
                    }
                }
            }
        }
    }
}

void tst_PriceTypes::theCatalogueFollowsAnyCombination()
{
    std::mt19937 random(20240520);
    const auto among = [&random](const std::vector<int>& values) { return values.at(random() % values.size()); };
    std::vector<int> brokers = kBrokers;
    brokers.insert(brokers.end(), kUnknownBrokers.begin(), kUnknownBrokers.end());
    std::vector<int> identities{INT_MIN, -3, 61, 63, 64, 69, 71, INT_MAX};
    for (int identity = kFirstIdentity; identity <= kLastIdentity; ++identity)
        identities.push_back(identity);
    for (int i = 0; i < 200000; ++i) {
        const OrderState s =
            state(among(identities), among(brokers), among({1, 2, 4, 4096, 0, -1, INT_MAX}),
                  among({0, 1, 2, -1, 4, INT_MIN}), among({-1, 21, 22, -2, 1021, INT_MAX}), random() % 2 != 0);
        const int flags = random() % 16 == 0 ? among({-1, 128, 255, INT_MIN, INT_MAX}) : int(random() % 128);
        const int market = among({0, 1, 2, 3, 4, 5, 6, -1, INT_MIN, INT_MAX});
        QCOMPARE(difference(s, flags, market, allModules().at(random() % 4)), QString());
    }
}

void tst_PriceTypes::theCatalogueAppendsToWhatIsThere()
{
    TC::ComboEntries entries;
    entries.texts << QStringLiteral("before");
    entries.values << 99;
    TC::appendPriceTypes(entries, state(5, 2), 4, 4, allModules().front().query);
    QCOMPARE(ruletext::text(entries), QStringLiteral("before=99, 指定价=11, 挂单价=13, 对手价=14"));
}

void tst_PriceTypes::valuesAreIntegers()
{
    TC::ComboEntries entries;
    TC::appendPriceTypes(entries, state(5, 6, 1, 0, -1, true), 127, 3, allModules().back().query);
    for (const QVariant& value : entries.values)
        QCOMPARE(int(value.type()), int(QVariant::Int));
}

void tst_PriceTypes::sloSellIsSpecifiedPriceAloneWhateverTheFlags()
{
    QCOMPARE(ruletext::text(TC::specifiedPriceEntry()), QStringLiteral("指定价=11"));
    for (const int broker : kBrokers) {
        for (int flags = 0; flags < 128; ++flags) {
            const OrderState s = state(43, broker, 4, 0, 21, true);
            TC::ComboEntries entries;
            QVERIFY(!TC::appendPriceTypes(entries, s, flags, 3, allModules().at(3).query));
            QCOMPARE(ruletext::text(entries), QStringLiteral("指定价=11"));
            QVERIFY(TC::isSpecifiedPriceOnly(s, allModules().at(1).query));
            QVERIFY(!TC::isSpecifiedPriceOnly(s, allModules().at(2).query));
        }
    }
    for (const int operation : ruletext::manyIntegers())
        QCOMPARE(TC::isSpecifiedPriceOnly(state(5, 3, 1, 0, operation), allModules().at(1).query), operation == 21);
}

void tst_PriceTypes::optionsOnTable43LackTheMarketOrders()
{
    TC::ComboEntries on43;
    TC::appendPriceTypes(on43, state(43, 6), 0, 0, allModules().front().query);
    QCOMPARE(ruletext::text(on43), QStringLiteral("限价即全成否则撤=26"));
    TC::ComboEntries on42;
    TC::appendPriceTypes(on42, state(42, 6), 0, 0, allModules().front().query);
    QCOMPARE(ruletext::text(on42),
             QStringLiteral("限价即全成否则撤=26, 市价即成剩撤=27, 市价即全成否则撤=28, "
                            "市价剩转限价=29"));
}

void tst_PriceTypes::afterHoursPriceNeedsMarket3PlainOrderAndTable5Or31()
{
    for (int identity = kFirstIdentity; identity <= kLastIdentity; ++identity) {
        for (int market = 0; market <= 6; ++market) {
            for (int order = -1; order <= 13; ++order) {
                TC::ComboEntries entries;
                TC::appendPriceTypes(entries, state(identity, 2, 1, order), 0, market, allModules().front().query);
                const bool offered = market == 3 && order == 0 && (identity == 5 || identity == 31);
                QCOMPARE(entries.texts.contains(QStringLiteral("盘后定价")), offered);
                QCOMPARE(entries.values.contains(49), offered);
            }
        }
    }
}

void tst_PriceTypes::oneLabelStandsForTwoValuesByMarket()
{
    const int valueOfMarket[] = {0, 42, 47, 42, 47, 47, 0};
    for (int market = 0; market <= 6; ++market) {
        TC::ComboEntries entries;
        TC::appendPriceTypes(entries, state(40, 2), 0, market, allModules().at(2).query);
        const int at = entries.texts.indexOf(QStringLiteral("最优五档即成剩撤"));
        QCOMPARE(at < 0 ? 0 : entries.values.at(at).toInt(), valueOfMarket[market]);
    }
}

void tst_PriceTypes::bookLevelsByBroker()
{
    const QString levels = QStringLiteral("卖⑤价=0, 卖④价=1, 卖③价=2, 卖②价=3, 卖①价=4, 最新价=5, 买①价=6, "
                                          "买②价=7, 买③价=8, 买④价=9, 买⑤价=10");
    for (const int broker : ruletext::manyIntegers()) {
        QCOMPARE(ruletext::text(TC::bookLevelEntries(ttservice::ENVBrokerType(broker))),
                 broker == 6 ? QStringLiteral("卖①价=4, 最新价=5, 买①价=6") : levels);
    }
}

void tst_PriceTypes::initialListByBroker_data()
{
    QTest::addColumn<int>("broker");
    QTest::addColumn<int>("identity");
    QTest::addColumn<QString>("expected");
    const QString asks = QStringLiteral("卖⑤价=0, 卖④价=1, 卖③价=2, 卖②价=3, 卖①价=4");
    const QString bids = QStringLiteral("买①价=6, 买②价=7, 买③价=8, 买④价=9, 买⑤价=10");
    const QString first = QStringLiteral("最新价=5, 挂单价=13, 对手价=14, ");
    const QString hongKong = QStringLiteral("最新价=5, 对手价=14, %1卖①价=4, 买①价=6");
    const QString option = QStringLiteral("最新价=5, 对手价=14, %1限价即全成否则撤=26, 市价即成剩撤=27, "
                                          "市价即全成否则撤=28, 市价剩转限价=29, 卖①价=4, 买①价=6");
    struct FixedEntry
    {
        int identity;
        QString text;
    };
    const FixedEntry fixedEntries[] = {
        {5, QStringLiteral("指定价=11, ")},  {15, QStringLiteral("模型价=11, ")},
        {40, QStringLiteral("模型价=11, ")}, {9, QString()},
        {31, QStringLiteral("指定价=11, ")}, {35, QString()},
        {-1, QStringLiteral("指定价=11, ")}, {30, QStringLiteral("模型价=11, ")},
        {16, QStringLiteral("指定价=11, ")},
    };
    const auto add = [](int broker, int identity, const QString& expected) {
        QTest::addRow("broker %d, identity %d", broker, identity) << broker << identity << expected;
    };
    for (const FixedEntry& fixed : fixedEntries) {
        for (const int broker : {1, 5})
            add(broker, fixed.identity, QString());
        for (const int broker : {1001, 1002, 10})
            add(broker, fixed.identity, first + fixed.text + asks + QLatin1String(", ") + bids);
        for (const int broker : {7, 11})
            add(broker, fixed.identity, hongKong.arg(fixed.text));
        QString limit = fixed.text;
        add(6, fixed.identity, option.arg(limit.replace(QStringLiteral("指定价"), QStringLiteral("限价"))));
    }
    add(6, 43, QStringLiteral("最新价=5, 对手价=14, 限价即全成否则撤=26, 卖①价=4, 买①价=6"));
}

void tst_PriceTypes::initialListByBroker()
{
    QFETCH(int, broker);
    QFETCH(int, identity);
    for (const Modules& m : allModules()) {
        for (const int trader : {1, 2, 4, 4096})
            QTEST(ruletext::text(TC::initialPriceTypes(state(identity, broker, trader, 0, -1, true), m.query)),
                  "expected");
    }
}

void tst_PriceTypes::initialListOfOtherBrokersIsTheCatalogueWithFlags31AndMarket5()
{
    for (const int broker : {2, 3, 4, 8, 0, -1, 9, 12, INT_MAX}) {
        for (int identity = kFirstIdentity; identity <= kLastIdentity; ++identity) {
            for (const int trader : {1, 2, 4, 4096}) {
                for (const Modules& m : allModules()) {
                    const OrderState s = state(identity, broker, trader, 0, -1, identity % 2 == 0);
                    QCOMPARE(ruletext::text(TC::initialPriceTypes(s, m.query)),
                             listing::text(listing::catalogue(caseOf(s, 31, 5, m))));
                }
            }
        }
    }
}

void tst_PriceTypes::rebuildByTableAndBroker()
{
    using TC::PriceTypeRebuild;
    for (const int broker : kBrokers) {
        for (int identity = kFirstIdentity; identity <= kLastIdentity; ++identity) {
            PriceTypeRebuild expected = PriceTypeRebuild::None;
            if (listing::isOneOf(identity, {36, 38, 39}))
                expected = PriceTypeRebuild::BookLevels;
            else if (listing::isOneOf(identity, {7, 9, 22, 24}) && broker != 7 && broker != 11)
                expected = PriceTypeRebuild::Compose;
            const auto rebuild = [&](int operation, const Modules& m) {
                return TC::priceTypeRebuild(state(identity, broker, 4, 1, operation), m.query);
            };
            QCOMPARE(rebuild(-1, allModules().at(3)), expected);
            QCOMPARE(rebuild(22, allModules().at(1)), expected);
            QCOMPARE(rebuild(21, allModules().at(2)), expected);
            QCOMPARE(rebuild(21, allModules().at(1)), PriceTypeRebuild::SpecifiedOnly);
        }
    }
}

void tst_PriceTypes::bookLevelRebuildUsesFlags30AndMarket4()
{
    QCOMPARE(TC::kBookLevelRebuildFlags, 30);
    QCOMPARE(TC::kRebuildMarket, 4);
}

void tst_PriceTypes::composeListIsEmptyWithoutItsModule()
{
    for (const int identity : {7, 9, 22, 24}) {
        for (const Modules& m : allModules())
            QCOMPARE(ruletext::text(TC::composePriceTypes(state(identity, 2, 4), m.query)), QString());
    }
}

void tst_PriceTypes::composeListForEveryTableBrokerAndTrader()
{
    const Modules compose{
        false, true, ruletext::modulesOn({FeatureModule::ComposeFullPriceTypes, FeatureModule::StockMultiMarketPrice})};
    for (const int identity : {7, 9, 22, 24}) {
        for (const int broker : {1, 2, 3, 4, 5, 6, 8, 10, 1001, 1002}) {
            for (const int trader : {1, 2, 4, 4096}) {
                for (const int order : ruletext::manyIntegers()) {
                    const OrderState s = state(identity, broker, trader, order, -1, trader == 1);
                    const bool hasPreClose = (trader == 4 || trader == 4096) && identity == 7 && broker == 2;
                    const listing::Case c = caseOf(s, hasPreClose ? 31 : 23, 4, compose);
                    const QString expected =
                        order == 0 || order == 1 ? listing::text(listing::catalogue(c)) : QString();
                    QCOMPARE(ruletext::text(TC::composePriceTypes(s, compose.query)), expected);
                }
            }
        }
    }
}

QTEST_APPLESS_MAIN(tst_PriceTypes)
#include "tst_PriceTypes.moc"
