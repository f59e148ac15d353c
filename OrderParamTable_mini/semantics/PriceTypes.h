#pragma once

#include <OrderParamTable_mini/semantics/ComboEntries.h>
#include <OrderParamTable_mini/semantics/FeatureModules.h>
#include <OrderParamTable_mini/semantics/OrderState.h>

namespace TC {

/// What a price-type list is built of; the values are the host's.
enum PriceTypeFlag : int {
    PTF_AutoBook = 1,    ///< the automatic order-book price, where the table may offer it
    PTF_Unused = 2,      ///< selects nothing; callers set it
    PTF_OwnAndOther = 4, ///< own-side queue price (not for options) and counter-party price
    PTF_PreClose = 8,    ///< previous close, for some desks and tables
    PTF_BookLevels = 16, ///< the levels of the order book
    PTF_AskLevels = 32,  ///< the ask-side short list, when the book levels are not selected
    PTF_BidLevels = 64,  ///< the bid-side short list, when neither of the above is selected
};

/// Whether a securities-lending sell may only be placed at a specified price: the operation, and its module.
bool isSpecifiedPriceOnly(const OrderState& state, const ModuleQuery& isModuleOn);

/// The one entry of such a table.
const ComboEntries& specifiedPriceEntry();

/// Appends the price types that @p flags and the market family (1 to 5; others add nothing) select. Answers false when
/// the table is restricted to the specified price, which then is all that was appended and must not be loaded.
bool appendPriceTypes(ComboEntries& entries, const OrderState& state, int flags, int market,
                      const ModuleQuery& isModuleOn);

/// The levels of the order book from the fifth ask to the fifth bid; options have the best levels alone.
const ComboEntries& bookLevelEntries(ttservice::ENVBrokerType broker);

/// What the price-type cell offers after construction; empty for broker types without the cell.
ComboEntries initialPriceTypes(const OrderState& state, const ModuleQuery& isModuleOn);

/// How a table's price types are rebuilt when its state changes.
enum class PriceTypeRebuild {
    None,          ///< the initial list stays for life
    SpecifiedOnly, ///< the specified price alone
    BookLevels,    ///< rebuilt with the book levels
    Compose,       ///< rebuilt for composite tables
};
PriceTypeRebuild priceTypeRebuild(const OrderState& state, const ModuleQuery& isModuleOn);

/// The price types of a composite table; empty while its module is off or the order type is not 0 or 1.
ComboEntries composePriceTypes(const OrderState& state, const ModuleQuery& isModuleOn);

/// The price types of the tables that rebuild with book levels.
constexpr int kBookLevelRebuildFlags = PTF_Unused | PTF_OwnAndOther | PTF_PreClose | PTF_BookLevels;
constexpr int kRebuildMarket = 4;

} // namespace TC
