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

struct OverrideRow
{
    int cell;
    CellOverride kind;
    std::optional<FeatureModule> module;
};

// The super-price cells are shown by rules of their own, whatever the flags and the mask say.
// clang-format off
constexpr OverrideRow kOverrides[] = {
    {OCF_SuperPrice,           CellOverride::Always,          {}},
    {OCF_SuperPriceStartCount, CellOverride::StartCount,      {}},
    {OCF_TailMinVolume,        CellOverride::RemainingVolume, {}},
    {OCF_InvestRemark,         CellOverride::Remark,          FeatureModule::CommandRemark},
    {OCF_TriggerPrice,         CellOverride::Module,          FeatureModule::TriggerPrice},
    {OCF_StopProfit,           CellOverride::Module,          FeatureModule::StopProfitLoss},
    {OCF_StopLoss,             CellOverride::Module,          FeatureModule::StopProfitLoss},
};
// clang-format on

const OverrideRow* overrideRow(int cell)
{
    for (const OverrideRow& row : kOverrides) {
        if (row.cell == cell)
            return &row;
    }
    return nullptr;
}

bool overridden(const OverrideRow& row, bool allowed, const CellVisibilityState& state, const ModuleQuery& isModuleOn)
{
    switch (row.kind) {
    case CellOverride::None:
        break;
    case CellOverride::Always:
        return true;
    case CellOverride::StartCount:
        return !state.startCountHidden;
    case CellOverride::RemainingVolume:
        return allowed && state.remainingVolume;
    case CellOverride::Remark:
        return allowed && showsRemark(state.identity) && isModuleOn(*row.module);
    case CellOverride::Module:
        return allowed && isModuleOn(*row.module);
    }
    return allowed;
}

} // namespace

quint32 orderTypeMask(EOrderType type)
{
    for (const MaskRow& row : kMasks) {
        if (row.type == type)
            return row.mask;
    }
    return ~quint32(0);
}

CellOverride cellOverride(int cell)
{
    const OverrideRow* const row = overrideRow(cell);
    return row ? row->kind : CellOverride::None;
}

std::optional<FeatureModule> overrideModule(int cell)
{
    const OverrideRow* const row = overrideRow(cell);
    return row ? row->module : std::nullopt;
}

bool showsRemark(int identity)
{
    return !kCloseSettingTables.contains(identity) && !kTablesHidingRemark.contains(identity);
}

bool isCellVisible(int cell, const CellVisibilityState& state, const ModuleQuery& isModuleOn)
{
    const bool allowed = hasCell(quint32(int(state.flags)) & orderTypeMask(state.order), cell);
    const OverrideRow* const row = overrideRow(cell);
    return row ? overridden(*row, allowed, state, isModuleOn) : allowed;
}

HiddenMark superPriceMark(int cell, bool startCountHidden)
{
    switch (cell) {
    case OCF_SuperPrice:
        return HiddenMark::Shown;
    case OCF_SuperPriceStartCount:
        return startCountHidden ? HiddenMark::Hidden : HiddenMark::Shown;
    default:
        return HiddenMark::Kept;
    }
}

HiddenMark priceTypeMark(int cell, EOrderType order)
{
    if (!hasPriceTypeCells(order))
        return HiddenMark::Kept;
    switch (cell) {
    case OCF_TriggerPrice:
        return HiddenMark::Hidden;
    case OCF_LimitPrice:
        return HiddenMark::Shown;
    default:
        return HiddenMark::Kept;
    }
}

HiddenMark expansionMark(const AlgorithmCell& row, bool expanded, quint32 word)
{
    if (expanded)
        return HiddenMark::Shown;
    return row.isHiddenOnCollapse && !hasCell(word, row.cell) ? HiddenMark::Hidden : HiddenMark::Kept;
}

HiddenMark expansionMark(int cell, EOrderType order, bool expanded, quint32 word)
{
    for (const AlgorithmCell& row : kAlgorithmCells) {
        if (row.cell == cell && hasAlgorithmCells(order))
            return expansionMark(row, expanded, word);
    }
    return HiddenMark::Kept;
}

} // namespace TC
