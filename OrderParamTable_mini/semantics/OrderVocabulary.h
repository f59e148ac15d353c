#pragma once

#include <QFlags>

namespace TC {

/// Which place of the host a table serves. The values are the host's; the rules compare them with the sets of
/// IdentitySets.h, and any integer may arrive.
enum EOpParamWidgetID : int {
    OPW_StockTask = 31,  ///< task dialogs of stock, credit and Hong Kong accounts
    OPW_FutureTask = 32, ///< task dialogs of point-priced accounts
    OPW_OptionTask = 33, ///< task dialogs of option accounts
};

/// Cell IDs, which are bits at the same time, so that a flags word can allow, show or hide each cell.
enum EOperationCellFlag : int {
    OCF_PriceType = 0x1,                  ///< price type
    OCF_SuperPrice = 0x2,                 ///< single-order super price
    OCF_SuperPriceStartCount = 0x4,       ///< number of orders after which super price starts
    OCF_FluctuationCheck = 0x8,           ///< fluctuation range with a one-way check box
    OCF_BaseVolume = 0x10,                ///< single-order base volume
    OCF_Reserved_20 = 0x20,               ///< kept for cells that a host adds
    OCF_TailMinVolume = 0x40,             ///< minimum volume of the last order
    OCF_Reserved_80 = 0x80,               ///< kept for cells that a host adds
    OCF_Reserved_100 = 0x100,             ///< kept for cells that a host adds
    OCF_MinSingleVolume = 0x200,          ///< minimum single volume
    OCF_MaxSingleVolume = 0x400,          ///< maximum single volume
    OCF_ValidTime = 0x800,                ///< valid time period
    OCF_MaxOrderCount = 0x1000,           ///< maximum number of orders
    OCF_UnfinishedOrderHandling = 0x2000, ///< handling of unfinished orders (order-side)
    OCF_LimitingCell = 0x4000,            ///< a host's cell whose value limits OCF_LimitedCell
    OCF_LimitedCell = 0x8000,             ///< a host's cell that ranges from 0.5 to the value of OCF_LimitingCell
    OCF_InitialQuote = 0x10000,           ///< initial quote price
    OCF_UnfinishedHandling = 0x20000,     ///< handling of unfinished orders (price)
    OCF_PriceFluctuation = 0x80000,       ///< fluctuation range in percent
    OCF_TriggerPrice = 0x100000,          ///< trigger price, added by a host
    OCF_StopProfit = 0x200000,            ///< stop profit, added by a host
    OCF_StopLoss = 0x400000,              ///< stop loss, added by a host
    OCF_SingleVolumeRange = 0x800000,     ///< random single-volume range
    OCF_Reserved_1000000 = 0x1000000,     ///< kept for cells that a host adds
    OCF_LimitPrice = 0x2000000,           ///< limit price, also of after-hours orders
    OCF_InvestRemark = 0x4000000,         ///< investment remark
};
Q_DECLARE_FLAGS(OperationCellFlags, EOperationCellFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(OperationCellFlags)

/// What a table allows until its host says otherwise. 0x10000, 0x20000, 0x80000 and 0x800000 are not among it.
constexpr int kDefaultCellFlags = 0x7103FFF;

/// Order-mode buttons are numbered 600 plus the order type they select.
constexpr int kModeButtonBase = 600;

/// Marks the absence of a price: the largest finite double, compared with kNoPriceTolerance.
constexpr double kNoPrice = 1.7976931348623157e308;
constexpr double kNoPriceTolerance = 1e-5;

} // namespace TC
