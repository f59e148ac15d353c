#include "semantics/RuleText.h"

#include <OrderParamTable_mini/semantics/VolumeTypes.h>

#include <QTest>

using TC::FeatureModule;
using TC::OrderState;

namespace {

const QString kAsks = QStringLiteral("卖①+②+③+④+⑤量=0, 卖①+②+③+④量=1, 卖①+②+③量=2, 卖①+②量=3, 卖①量=4");
const QString kBids = QStringLiteral("买①量=5, 买①+②量=6, 买①+②+③量=7, 买①+②+③+④量=8, 买①+②+③+④+⑤量=9");
const QString kTarget = QStringLiteral("目标量=10");
const QString kRemaining = QStringLiteral("目标剩余量=11");
const QString kPosition = QStringLiteral("持仓数量=12");
const QString kWholePosition = QStringLiteral("持仓总量=12");

QString joined(const QStringList& parts)
{
    return parts.join(QLatin1String(", "));
}

OrderState state(int identity, int broker, int operation = -1, int trader = 1)
{
    OrderState s;
    s.identity = identity;
    s.broker = ttservice::ENVBrokerType(broker);
    s.operation = ttservice::EOperationType(operation);
    s.trader = ttservice::ENvTraderType(trader);
    return s;
}

} // namespace

class tst_VolumeTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void brokers6And7And10And11HaveNoVolumeTypeCell();
    void futuresOfferBestLevelsTargetsAndPosition();
    void futuresOnTable14OfferNoTargets();
    void otherBrokersReadLikeAnOrderBookAroundTheTarget();
    void volumeTypesFollowTheOperationForSomeBrokersAndTables();
    void withoutAnOperationThirteenVolumeTypesAreOffered();
    void hongKongBrokersOfferTargetsAloneOnceAnOperationIsChosen();
    void anyChosenOperationOffersEightVolumeTypes();
    void valuesAreIntegers();
    void lotsDropTheRemainderTowardZero_data();
    void lotsDropTheRemainderTowardZero();
    void randomVolumeNeedsModuleStockDesk1AndTable();
};

void tst_VolumeTypes::brokers6And7And10And11HaveNoVolumeTypeCell()
{
    for (const int broker : ruletext::manyIntegers()) {
        const bool has = broker != 6 && broker != 7 && broker != 10 && broker != 11;
        QCOMPARE(TC::hasBaseVolume(ttservice::ENVBrokerType(broker)), has);
    }
}

void tst_VolumeTypes::futuresOfferBestLevelsTargetsAndPosition()
{
    const QString expected = joined({QStringLiteral("卖①量=4, 买①量=5"), kTarget, kRemaining, kPosition});
    for (const int broker : {1, 4, 5}) {
        for (const int identity : ruletext::manyIntegers()) {
            if (identity != 14)
                QCOMPARE(ruletext::text(TC::initialVolumeTypes(state(identity, broker))), expected);
        }
    }
}

void tst_VolumeTypes::futuresOnTable14OfferNoTargets()
{
    for (const int broker : {1, 4, 5})
        QCOMPARE(ruletext::text(TC::initialVolumeTypes(state(14, broker))),
                 joined({QStringLiteral("卖①量=4, 买①量=5"), kPosition}));
}

void tst_VolumeTypes::otherBrokersReadLikeAnOrderBookAroundTheTarget()
{
    const QString expected = joined({kAsks, kTarget, kBids, kRemaining, kWholePosition});
    for (const int broker : {2, 3, 8, 1001, 1002, 0, -1, 9, 12, INT_MIN, INT_MAX}) {
        for (const int identity : {-1, 5, 7, 14, 22, 31, 60})
            QCOMPARE(ruletext::text(TC::initialVolumeTypes(state(identity, broker))), expected);
    }
}

void tst_VolumeTypes::volumeTypesFollowTheOperationForSomeBrokersAndTables()
{
    const std::set<int> brokers{2, 3, 7, 10, 11};
    for (const int broker : ruletext::manyIntegers()) {
        for (const int identity : ruletext::manyIntegers()) {
            const bool follows = brokers.count(broker) > 0 || identity == 7 || identity == 22;
            QCOMPARE(TC::hasVolumeTypesByOperation(state(identity, broker)), follows);
        }
    }
}

void tst_VolumeTypes::withoutAnOperationThirteenVolumeTypesAreOffered()
{
    const QString expected = joined({kAsks, kTarget, kBids, kRemaining, kPosition});
    for (const int broker : ruletext::manyIntegers())
        QCOMPARE(ruletext::text(TC::operationVolumeTypes(state(7, broker, -1))), expected);
}

void tst_VolumeTypes::hongKongBrokersOfferTargetsAloneOnceAnOperationIsChosen()
{
    for (const int broker : {7, 11}) {
        for (const int operation : ruletext::manyIntegers()) {
            if (operation != -1)
                QCOMPARE(ruletext::text(TC::operationVolumeTypes(state(31, broker, operation))),
                         joined({kTarget, kRemaining}));
        }
    }
}

void tst_VolumeTypes::anyChosenOperationOffersEightVolumeTypes()
{
    const QString expected = joined({kBids, kTarget, kRemaining, kPosition});
    for (const int broker : {2, 3, 10, 1, 4, 5, 6, 8, 1001, 0}) {
        for (const int operation : ruletext::manyIntegers()) {
            if (operation != -1)
                QCOMPARE(ruletext::text(TC::operationVolumeTypes(state(22, broker, operation))), expected);
        }
    }
}

void tst_VolumeTypes::valuesAreIntegers()
{
    for (const int broker : {1, 2}) {
        for (const QVariant& value : TC::initialVolumeTypes(state(5, broker)).values)
            QCOMPARE(int(value.type()), int(QVariant::Int));
        for (const QVariant& value : TC::operationVolumeTypes(state(5, broker, 22)).values)
            QCOMPARE(int(value.type()), int(QVariant::Int));
    }
}

void tst_VolumeTypes::lotsDropTheRemainderTowardZero_data()
{
    QTest::addColumn<int>("shares");
    QTest::addColumn<int>("lots");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("less than a lot") << 99 << 0;
    QTest::newRow("one lot") << 100 << 100;
    QTest::newRow("two and a half") << 250 << 200;
    QTest::newRow("negative") << -250 << -200;
    QTest::newRow("less than a lot, negative") << -99 << 0;
    QTest::newRow("just below twenty") << 1999 << 1900;
    QTest::newRow("largest") << INT_MAX << 2147483600;
    QTest::newRow("smallest") << INT_MIN << -2147483600;
}

void tst_VolumeTypes::lotsDropTheRemainderTowardZero()
{
    QFETCH(int, shares);
    QTEST(TC::wholeLots(shares), "lots");
}

void tst_VolumeTypes::randomVolumeNeedsModuleStockDesk1AndTable()
{
    const TC::ModuleQuery on = ruletext::modulesOn({FeatureModule::RandomVolume});
    std::set<FeatureModule> others{FeatureModule::ThirdAlgorithm,        FeatureModule::MultiMarketPrice,
                                   FeatureModule::StockMultiMarketPrice, FeatureModule::SloSellOnlyFixedPrice,
                                   FeatureModule::ComposeFullPriceTypes, FeatureModule::CommandRemark,
                                   FeatureModule::TriggerPrice,          FeatureModule::StopProfitLoss};
    const TC::ModuleQuery off = ruletext::modulesOn(others);
    const std::set<int> tables{5, 15, 31, 33, 36};
    for (const int identity : ruletext::manyIntegers()) {
        for (const int broker : {1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 1001, 1002, 0, -1}) {
            for (const int trader : {0, 1, 2, 3, 4, 4096, -1}) {
                const bool may = broker == 2 && trader == 1 && tables.count(identity) > 0;
                QCOMPARE(TC::mayRandomiseVolume(state(identity, broker, 22, trader), on), may);
                QVERIFY(!TC::mayRandomiseVolume(state(identity, broker, 22, trader), off));
            }
        }
    }
}

QTEST_APPLESS_MAIN(tst_VolumeTypes)
#include "tst_VolumeTypes.moc"
