#include "semantics/RuleText.h"

#include <OrderParamTable_mini/semantics/BrokerGroups.h>

#include <QTest>

class tst_BrokerGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setsHoldExactlyTheirBrokerTypes();
    void everyBrokerTypeHasOneGroup();
};

void tst_BrokerGroups::setsHoldExactlyTheirBrokerTypes()
{
    const std::set<int> futures{1, 4, 5};
    const std::set<int> points{1, 4, 5, 1001, 1002};
    const std::set<int> hongKong{7, 11};
    const std::set<int> preCloseOfDesk4{2, 3};
    const std::set<int> withoutVolume{6, 7, 10, 11};
    const std::set<int> volumeByOperation{2, 3, 7, 10, 11};
    const std::set<int> withoutAlgorithms{4, 6, 10};
    for (const int broker : ruletext::manyIntegers()) {
        QCOMPARE(TC::kFutureBrokers.contains(broker), futures.count(broker) > 0);
        QCOMPARE(TC::kPointBrokers.contains(broker), points.count(broker) > 0);
        QCOMPARE(TC::kHongKongBrokers.contains(broker), hongKong.count(broker) > 0);
        QCOMPARE(TC::kStockBrokersOfTrader4.contains(broker), preCloseOfDesk4.count(broker) > 0);
        QCOMPARE(TC::kBrokersWithoutBaseVolume.contains(broker), withoutVolume.count(broker) > 0);
        QCOMPARE(TC::kBrokersWithVolumeByOperation.contains(broker), volumeByOperation.count(broker) > 0);
        QCOMPARE(TC::kBrokersWithoutAlgorithms.contains(broker), withoutAlgorithms.count(broker) > 0);
    }
}

void tst_BrokerGroups::everyBrokerTypeHasOneGroup()
{
    using TC::BrokerGroup;
    const std::map<int, BrokerGroup> groups{
        {1, BrokerGroup::Points},    {4, BrokerGroup::Points},    {5, BrokerGroup::Points},
        {1001, BrokerGroup::Points}, {1002, BrokerGroup::Points}, {7, BrokerGroup::HongKong},
        {11, BrokerGroup::HongKong}, {6, BrokerGroup::Option},
    };
    for (const int broker : ruletext::manyIntegers()) {
        const auto known = groups.find(broker);
        QCOMPARE(TC::brokerGroup(ttservice::ENVBrokerType(broker)),
                 known == groups.end() ? BrokerGroup::Shares : known->second);
    }
}

QTEST_APPLESS_MAIN(tst_BrokerGroups)
#include "tst_BrokerGroups.moc"
