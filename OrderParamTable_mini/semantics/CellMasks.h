#pragma once

#include <OrderParamTable_mini/semantics/FeatureModules.h>
#include <OrderParamTable_mini/semantics/OrderVocabulary.h>

#include <ttservice/Enumerations.h>

#include <QtGlobal>

namespace TC {

/// The cells that the visibility rules speak of: bits 0 to 27, lowest first.
constexpr int kCellBits = 28;

/// What decides which cells a table may show.
struct CellVisibilityState
{
    int identity = 0;
    ttservice::EOrderType order = ttservice::ORDER_TYPE_NORMAL;
    OperationCellFlags flags;
    bool startCountHidden = false; ///< the start count of the super price is hidden
    bool remainingVolume = false;  ///< the base volume is the remaining target volume
};

/// The cells that an order type may show at all; all bits for order types outside 0 to 3.
quint32 orderTypeMask(ttservice::EOrderType type);

/// Whether the rules let one cell be seen.
bool isCellVisible(int cell, const CellVisibilityState& state, const ModuleQuery& isModuleOn);

/// Whether the rules hide and show the cell; the limit price keeps what other operations set.
constexpr bool isHiddenByRules(int cell)
{
    return cell != OCF_LimitPrice;
}

/// A cell of the first algorithm that expanding shows, whatever flags and modules say.
struct AlgorithmCell
{
    int cell;
    bool isHiddenOnCollapse; ///< collapsing hides it unless the user's word has it
};
constexpr AlgorithmCell kAlgorithmCells[] = {
    {OCF_FluctuationCheck, false}, {OCF_MinSingleVolume, true}, {OCF_MaxSingleVolume, true},
    {OCF_ValidTime, true},         {OCF_MaxOrderCount, true},   {OCF_UnfinishedOrderHandling, true},
};

} // namespace TC
