#include "semantics/PriceTypeCases.h"

#include <OrderParamTable_mini/semantics/PriceTypes.h>

#include <QTest>

using listing::allModules;
using listing::caseOf;
using listing::kBrokers;
using listing::kFirstIdentity;
using listing::kLastIdentity;
using listing::Modules;
using listing::state;
using TC::FeatureModule;
using TC::OrderState;

class tst_PriceTypeRebuilds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initialListByBroker_data();
    void initialListByBroker();
    void initialListOfOtherBrokersIsTheCatalogueWithFlags31AndMarket5();
    void rebuildByTableAndBroker();
    void bookLevelRebuildUsesFlags30AndMarket4();
    void composeListIsEmptyWithoutItsModule();
    void composeListForEveryTableBrokerAndTrader();
};

void tst_PriceTypeRebuilds::initialListByBroker_data()
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

void tst_PriceTypeRebuilds::initialListByBroker()
{
    QFETCH(int, broker);
    QFETCH(int, identity);
    for (const Modules& m : allModules()) {
        for (const int trader : {1, 2, 4, 4096})
            QTEST(ruletext::text(TC::initialPriceTypes(state(identity, broker, trader, 0, -1, true), m.query)),
                  "expected");
    }
}

void tst_PriceTypeRebuilds::initialListOfOtherBrokersIsTheCatalogueWithFlags31AndMarket5()
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

void tst_PriceTypeRebuilds::rebuildByTableAndBroker()
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

void tst_PriceTypeRebuilds::bookLevelRebuildUsesFlags30AndMarket4()
{
    QCOMPARE(TC::kBookLevelRebuildFlags, 30);
    QCOMPARE(TC::kRebuildMarket, 4);
}

void tst_PriceTypeRebuilds::composeListIsEmptyWithoutItsModule()
{
    for (const int identity : {7, 9, 22, 24}) {
        for (const Modules& m : allModules())
            QCOMPARE(ruletext::text(TC::composePriceTypes(state(identity, 2, 4), m.query)), QString());
    }
}

void tst_PriceTypeRebuilds::composeListForEveryTableBrokerAndTrader()
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

QTEST_APPLESS_MAIN(tst_PriceTypeRebuilds)
#include "tst_PriceTypeRebuilds.moc"
