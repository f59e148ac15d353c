#pragma once

#include <OrderParamTable_mini/semantics/IntSet.h>

#include <ttservice/Enumerations.h>

namespace TC {

// clang-format off
constexpr IntSet kFutureBrokers   {1, 4, 5};
constexpr IntSet kPointBrokers    {1, 4, 5, 1001, 1002};
constexpr IntSet kHongKongBrokers {7, 11};
constexpr IntSet kStockBrokersOfTrader4 {2, 3};

/// Broker types without a volume-type cell.
constexpr IntSet kBrokersWithoutBaseVolume {6, 7, 10, 11};

/// Broker types whose volume types follow the operation.
constexpr IntSet kBrokersWithVolumeByOperation {2, 3, 7, 10, 11};

/// Broker types whose tables show no algorithms.
constexpr IntSet kBrokersWithoutAlgorithms {4, 6, 10};
// clang-format on

/// In what an account's prices and volumes are measured.
enum class BrokerGroup {
    Points,   ///< points and lots
    HongKong, ///< Hong Kong dollars and shares
    Option,   ///< yuan in finer steps, and contracts
    Shares,   ///< yuan and shares; every other broker type
};

constexpr BrokerGroup brokerGroup(ttservice::ENVBrokerType broker)
{
    if (kPointBrokers.contains(broker))
        return BrokerGroup::Points;
    if (kHongKongBrokers.contains(broker))
        return BrokerGroup::HongKong;
    return broker == ttservice::BROKER_TYPE_OPTION ? BrokerGroup::Option : BrokerGroup::Shares;
}

} // namespace TC
