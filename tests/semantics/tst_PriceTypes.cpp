#include "semantics/PriceTypeCases.h"

#include <OrderParamTable_mini/semantics/PriceTypes.h>

#include <QTest>

#include <random>

using listing::allModules;
using listing::caseOf;
using listing::kBrokers;
using listing::kFirstIdentity;
using listing::kLastIdentity;
using listing::Modules;
using listing::state;
using TC::OrderState;

namespace {

const std::vector<int> kUnknownBrokers{INT_MIN, -1, 0, 9, 12, 1000, INT_MAX};

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

QTEST_APPLESS_MAIN(tst_PriceTypes)
#include "tst_PriceTypes.moc"
