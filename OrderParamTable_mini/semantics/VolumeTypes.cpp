#include <OrderParamTable_mini/semantics/VolumeTypes.h>

#include <OrderParamTable_mini/semantics/BrokerGroups.h>
#include <OrderParamTable_mini/semantics/IdentitySets.h>

namespace TC {

using namespace ttservice;

namespace {

// clang-format off
constexpr EntryRow kAskVolumes[] = {
    {u"卖①+②+③+④+⑤量", VOLUME_TYPE_SELL12345}, {u"卖①+②+③+④量", VOLUME_TYPE_SELL1234},
    {u"卖①+②+③量",     VOLUME_TYPE_SELL123},   {u"卖①+②量",     VOLUME_TYPE_SELL12},
    {u"卖①量",         VOLUME_TYPE_SELL1},
};
constexpr EntryRow kBidVolumes[] = {
    {u"买①量",         VOLUME_TYPE_BUY1},    {u"买①+②量",       VOLUME_TYPE_BUY12},
    {u"买①+②+③量",     VOLUME_TYPE_BUY123},  {u"买①+②+③+④量",   VOLUME_TYPE_BUY1234},
    {u"买①+②+③+④+⑤量", VOLUME_TYPE_BUY12345},
};
constexpr EntryRow kBestVolumes[]   = {{u"卖①量", VOLUME_TYPE_SELL1}, {u"买①量", VOLUME_TYPE_BUY1}};
constexpr EntryRow kTarget[]        = {{u"目标量", VOLUME_TYPE_TARGET}};
constexpr EntryRow kRemaining[]     = {{u"目标剩余量", VOLUME_TYPE_REMAINING}};
constexpr EntryRow kPositionTotal[] = {{u"持仓总量", VOLUME_TYPE_POSITION}};
constexpr EntryRow kPosition[]      = {{u"持仓数量", VOLUME_TYPE_POSITION}};
// clang-format on

// The target volume sits between the ask and the bid side, so that the list reads like an order book around it.
ComboEntries bookAroundTarget()
{
    return ComboEntries(kAskVolumes) + ComboEntries(kTarget) + ComboEntries(kBidVolumes) + ComboEntries(kRemaining);
}

} // namespace

bool hasBaseVolume(ENVBrokerType broker)
{
    return !kBrokersWithoutBaseVolume.contains(broker);
}

ComboEntries initialVolumeTypes(const OrderState& state)
{
    static const ComboEntries targets = ComboEntries(kTarget) + ComboEntries(kRemaining);
    static const ComboEntries best(kBestVolumes);
    static const ComboEntries position(kPosition);
    static const ComboEntries full = bookAroundTarget() + ComboEntries(kPositionTotal);
    if (!kFutureBrokers.contains(state.broker))
        return full;
    const bool targetOffered = !kTablesWithoutTargetVolumes.contains(state.identity);
    return targetOffered ? best + targets + position : best + position;
}

bool hasVolumeTypesByOperation(const OrderState& state)
{
    return kBrokersWithVolumeByOperation.contains(state.broker)
        || kTablesWithVolumeByOperation.contains(state.identity);
}

const ComboEntries& operationVolumeTypes(const OrderState& state)
{
    static const ComboEntries undecided = bookAroundTarget() + ComboEntries(kPosition);
    static const ComboEntries targets = ComboEntries(kTarget) + ComboEntries(kRemaining);
    static const ComboEntries decided = ComboEntries(kBidVolumes) + targets + ComboEntries(kPosition);
    if (state.operation == OPT_NONE)
        return undecided;
    return kHongKongBrokers.contains(state.broker) ? targets : decided;
}

bool mayRandomiseVolume(const OrderState& state, const ModuleQuery& isModuleOn)
{
    return isModuleOn(FeatureModule::RandomVolume) && state.broker == BROKER_TYPE_STOCK && state.trader == TRADER_TYPE_1
        && kTablesWithRandomVolume.contains(state.identity);
}

} // namespace TC
