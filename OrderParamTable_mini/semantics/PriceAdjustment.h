#pragma once

#include <OrderParamTable_mini/semantics/OrderVocabulary.h>

#include <ttservice/Enumerations.h>

namespace TC {

/// Whether a price is the no-price value, within its tolerance.
bool isNoPrice(double price);

/// Whether the host's flags differ from the default; super prices may then be negative.
bool hasCustomFlags(OperationCellFlags flags);

/// A super price as the flags allow it: not below 0 with the default flags.
double allowedSuperPrice(double value, OperationCellFlags flags);

/// A super price kept within twice the fluctuation range; a zero counts as positive.
double limitedSuperPrice(double superPrice, double fluctuation, OperationCellFlags flags);

/// The limits of the super price in one of its units.
struct SuperPriceRange
{
    double min;
    double max;
};
SuperPriceRange percentRange(OperationCellFlags flags);
SuperPriceRange moneyRange(OperationCellFlags flags);

/// The event that colours the host's price display for a price type.
struct PriceDisplayEvent
{
    int event = 0;                   ///< 0 for price types that change nothing
    const char* colourKey = nullptr; ///< the text colour
};
PriceDisplayEvent priceDisplayEvent(ttservice::EPriceType type);

/// Where the price for amount calculations comes from.
enum class CalculationPrice {
    None,       ///< there is no price
    Original,   ///< the price that the host passed
    AfterHours, ///< the limit-price cell
};
CalculationPrice calculationPrice(ttservice::EPriceType type, ttservice::EOrderType order,
                                  ttservice::EOperationType operation);

} // namespace TC
