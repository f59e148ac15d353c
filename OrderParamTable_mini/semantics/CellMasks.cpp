#include <OrderParamTable_mini/semantics/CellMasks.h>

#include <OrderParamTable_mini/semantics/IdentitySets.h>

namespace TC {

using namespace ttservice;

namespace {

// clang-format off
struct MaskRow
{
    EOrderType type;
    quint32 mask;
};
constexpr MaskRow kMasks[] = {
    {ORDER_TYPE_NORMAL,        0x7700003},
    {ORDER_TYPE_ALGORITHM,     0x6703FFF},
    {ORDER_TYPE_RANDOM_VOLUME, 0x4801889},
    {ORDER_TYPE_ALGORITHM_3,   0x4000080},
};
// clang-format on

using CellRule = bool (*)(bool allowed, const CellVisibilityState& state, const ModuleQuery& isModuleOn);

bool always(bool, const CellVisibilityState&, const ModuleQuery&)
{
    return true;
}

bool unlessStartCountHidden(bool, const CellVisibilityState& state, const ModuleQuery&)
{
    return !state.startCountHidden;
}

bool forRemainingVolume(bool allowed, const CellVisibilityState& state, const ModuleQuery&)
{
    return allowed && state.remainingVolume;
}

bool whereRemarksAreKept(bool allowed, const CellVisibilityState& state, const ModuleQuery& isModuleOn)
{
    return allowed && !kCloseSettingTables.contains(state.identity) && !kTablesHidingRemark.contains(state.identity)
        && isModuleOn(FeatureModule::CommandRemark);
}

template <FeatureModule module>
bool withModule(bool allowed, const CellVisibilityState&, const ModuleQuery& isModuleOn)
{
    return allowed && isModuleOn(module);
}

struct OverrideRow
{
    int cell;
    CellRule rule;
};

// The super-price cells are shown by rules of their own, whatever the flags and the mask say.
// clang-format off
constexpr OverrideRow kOverrides[] = {
    {OCF_SuperPrice,           always},
    {OCF_SuperPriceStartCount, unlessStartCountHidden},
    {OCF_TailMinVolume,        forRemainingVolume},
    {OCF_InvestRemark,         whereRemarksAreKept},
    {OCF_TriggerPrice,         withModule<FeatureModule::TriggerPrice>},
    {OCF_StopProfit,           withModule<FeatureModule::StopProfitLoss>},
    {OCF_StopLoss,             withModule<FeatureModule::StopProfitLoss>},
};
// clang-format on

} // namespace

quint32 orderTypeMask(EOrderType type)
{
    for (const MaskRow& row : kMasks) {
        if (row.type == type)
            return row.mask;
    }
    return ~quint32(0);
}

bool isCellVisible(int cell, const CellVisibilityState& state, const ModuleQuery& isModuleOn)
{
    const bool allowed = (quint32(int(state.flags)) & orderTypeMask(state.order) & quint32(cell)) != 0;
    for (const OverrideRow& row : kOverrides) {
        if (row.cell == cell)
            return row.rule(allowed, state, isModuleOn);
    }
    return allowed;
}

} // namespace TC
