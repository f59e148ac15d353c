#include <OrderParamTable_mini/semantics/PriceAdjustment.h>

#include <OrderParamTable_mini/semantics/EventNumbers.h>
#include <OrderParamTable_mini/semantics/IntSet.h>

#include <cmath>

namespace TC {

using namespace ttservice;

namespace {

// clang-format off
constexpr IntSet kMarketPriceTypes {12, 18, 19, 20, 21, 22, 23, 24, 42, 43, 44, 45, 46, 47, 48};
// clang-format on

constexpr double kLargestPercent = 100.0;
constexpr double kLargestMoney = 1000000.0;
constexpr double kFluctuationFactor = 2.0;

SuperPriceRange rangeUpTo(double max, OperationCellFlags flags)
{
    return {hasCustomFlags(flags) ? -max : 0.0, max};
}

} // namespace

bool isNoPrice(double price)
{
    return std::abs(price - kNoPrice) <= kNoPriceTolerance;
}

bool hasCustomFlags(OperationCellFlags flags)
{
    return int(flags) != kDefaultCellFlags;
}

double allowedSuperPrice(double value, OperationCellFlags flags)
{
    return !hasCustomFlags(flags) && value < 0.0 ? 0.0 : value;
}

double limitedSuperPrice(double superPrice, double fluctuation, OperationCellFlags flags)
{
    const double limit = kFluctuationFactor * fluctuation;
    if (!(std::abs(superPrice) > limit))
        return superPrice;
    return allowedSuperPrice(superPrice < 0.0 ? -limit : limit, flags);
}

SuperPriceRange percentRange(OperationCellFlags flags)
{
    return rangeUpTo(kLargestPercent, flags);
}

SuperPriceRange moneyRange(OperationCellFlags flags)
{
    return rangeUpTo(kLargestMoney, flags);
}

PriceDisplayEvent priceDisplayEvent(EPriceType type)
{
    if (kMarketPriceTypes.contains(type))
        return {events::kPriceDisplay, "clr_global_text"};
    if (type == PRTP_AFTER_HOURS_FIX)
        return {events::kPriceDisplayAfterHours, "clr_disabled_widget_text"};
    return {};
}

CalculationPrice calculationPrice(EPriceType type, EOrderType order, EOperationType operation)
{
    if (type == PRTP_FIX)
        return CalculationPrice::Original;
    if (type == PRTP_AFTER_HOURS_FIX)
        return CalculationPrice::AfterHours;
    const bool algorithmPrice = order == ORDER_TYPE_ALGORITHM && operation != OPT_NONE;
    return algorithmPrice ? CalculationPrice::Original : CalculationPrice::None;
}

} // namespace TC
