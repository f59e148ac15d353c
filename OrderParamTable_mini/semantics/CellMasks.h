#pragma once

#include <OrderParamTable_mini/semantics/FeatureModules.h>
#include <OrderParamTable_mini/semantics/OrderVocabulary.h>

#include <ttservice/Enumerations.h>

#include <QtGlobal>

#include <optional>

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

/// Whether a word of cells, the host's flags or a mask or the user's choice, has a cell.
constexpr bool hasCell(quint32 word, int cell)
{
    return (word & quint32(cell)) != 0;
}

/// What decides about some cells beside the flags and the mask of the order type.
enum class CellOverride {
    None,
    Always,          ///< shown, whatever flags and mask say
    StartCount,      ///< shown unless the start count is hidden, whatever flags and mask say
    RemainingVolume, ///< for the remaining target volume alone
    Remark,          ///< where remarks are kept, and with its module alone
    Module,          ///< with its module alone
};
CellOverride cellOverride(int cell);

/// The module that a cell's override asks for.
std::optional<FeatureModule> overrideModule(int cell);

/// Whether a table shows remarks, by its identity.
bool showsRemark(int identity);

/// Whether the rules let one cell be seen.
bool isCellVisible(int cell, const CellVisibilityState& state, const ModuleQuery& isModuleOn);

/// Whether the rules hide and show the cell; the limit price keeps what other operations set.
constexpr bool isHiddenByRules(int cell)
{
    return cell != OCF_LimitPrice;
}

/// Whether the start count of the super price is hidden: collapsed, or plain orders.
constexpr bool isStartCountHidden(bool expanded, ttservice::EOrderType order)
{
    return !expanded || order == ttservice::ORDER_TYPE_NORMAL;
}

/// Whether a volume type asks for the minimum volume of the last order.
constexpr bool asksForTailVolume(int volumeType)
{
    return volumeType == ttservice::VOLUME_TYPE_REMAINING;
}

/// What an operation after the rules does to a cell's hidden mark.
enum class HiddenMark { Kept, Shown, Hidden };

/// The cells of the super price are shown again after each change of price, operation and expansion.
constexpr int kSuperPriceCells[] = {OCF_SuperPrice, OCF_SuperPriceStartCount};
HiddenMark superPriceMark(int cell, bool startCountHidden);

/// Whether an order type's cells follow the price type.
constexpr bool hasPriceTypeCells(ttservice::EOrderType order)
{
    return order == ttservice::ORDER_TYPE_NORMAL || order == ttservice::ORDER_TYPE_ALGORITHM;
}

/// Where they do, the limit price is shown and the trigger price hidden.
HiddenMark priceTypeMark(int cell, ttservice::EOrderType order);

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

/// Whether expanding and collapsing hide and show cells of an order type.
constexpr bool hasAlgorithmCells(ttservice::EOrderType order)
{
    return order == ttservice::ORDER_TYPE_ALGORITHM;
}

/// What expanding, or collapsing with that word of the user's cells, does to a cell of the first algorithm.
HiddenMark expansionMark(const AlgorithmCell& row, bool expanded, quint32 word);

/// The same for any cell and order type.
HiddenMark expansionMark(int cell, ttservice::EOrderType order, bool expanded, quint32 word);

} // namespace TC
