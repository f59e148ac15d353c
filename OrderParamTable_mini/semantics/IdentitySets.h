#pragma once

#include <cstdint>
#include <initializer_list>

namespace TC {

/// A set of table identities between 0 and 63, combined at compile time. Identities outside are in no set.
class IdentitySet
{
public:
    constexpr IdentitySet(std::initializer_list<int> identities)
    {
        for (const int identity : identities)
            m_bits |= bitOf(identity);
    }

    static constexpr IdentitySet range(int first, int last)
    {
        IdentitySet set{};
        for (int identity = first; identity <= last; ++identity)
            set.m_bits |= bitOf(identity);
        return set;
    }

    constexpr bool contains(int identity) const
    {
        return identity >= 0 && identity < 64 && (m_bits & bitOf(identity)) != 0;
    }

    constexpr bool containsAll(IdentitySet other) const
    {
        return (other.m_bits & ~m_bits) == 0;
    }

    constexpr bool operator==(IdentitySet other) const
    {
        return m_bits == other.m_bits;
    }

    constexpr IdentitySet operator|(IdentitySet other) const
    {
        IdentitySet set{};
        set.m_bits = m_bits | other.m_bits;
        return set;
    }

private:
    static constexpr std::uint64_t bitOf(int identity)
    {
        return std::uint64_t(1) << identity;
    }

    std::uint64_t m_bits = 0;
};

// clang-format off

// Single tables that differ from their kin.
constexpr IdentitySet kTablesWithoutTargetVolumes      = {14};
constexpr IdentitySet kTablesWithWideFluctuation       = {7};
constexpr IdentitySet kTablesWithoutOptionMarketOrders = {43};

// Compositions of instruments.
constexpr IdentitySet kComposeFutureTables = {8, 10, 23};
constexpr IdentitySet kComposeStockTables  = {7, 9, 22, 24};

// Services and settings.
constexpr IdentitySet kOrderServiceTables = {15, 17, 18, 19, 20, 21, 22, 25, 26, 27, 28, 29, 30, 40};
constexpr IdentitySet kCloseSettingTables = {36, 37, 38, 42, 43, 48, 49, 51};

// Order modes: what the strip and the help button do.
constexpr IdentitySet kAlgorithmOnlyTables     = {10, 35};
constexpr IdentitySet kTablesWithoutStrip      = {31, 32, 33, 34, 52};
constexpr IdentitySet kTablesWithUnplacedStrip = {31, 32, 33, 35};
constexpr IdentitySet kTablesWithKeptStrip     = IdentitySet::range(31, 35); // on a resize; 34 is placed afterwards
constexpr IdentitySet kTablesWithoutAlgorithms = {36, 37, 38, 39, 43, 45, 48, 49, 51};
constexpr IdentitySet kTablesWithHelpOfTheirOwn =
    IdentitySet::range(15, 30) | IdentitySet{40} | kTablesWithoutAlgorithms;

// Price types.
constexpr IdentitySet kTablesWithoutTypedPrice =
    IdentitySet{7, 8, 9, 10, 14, 15} | IdentitySet::range(17, 30); // below kTypedPriceTablesEnd
constexpr IdentitySet kModelPriceTables                = {15, 17, 22, 30, 40};
constexpr IdentitySet kTablesWithBookLevelRebuild      = {36, 38, 39};
constexpr IdentitySet kAfterHoursTables                = {5, 31};
constexpr IdentitySet kTablesWithoutMarketOrders       = {22, 24};
constexpr IdentitySet kPreCloseTablesOfTrader1         = {5, 15, 22, 31, 36};
constexpr IdentitySet kPreCloseTablesOfTrader4         = {7, 31};
constexpr IdentitySet kTablesWithPreCloseHandling      = {5, 7, 15, 22, 36};
constexpr IdentitySet kComposeTablesWithPreClose       = {7};

// Cells.
constexpr IdentitySet kTablesWithLimitPrice      = {5, 11, 12, 13};
constexpr IdentitySet kTablesWithRandomVolume    = {5, 15, 31, 33, 36};
constexpr IdentitySet kTablesWithVolumeByOperation = {7, 22};
constexpr IdentitySet kTablesHidingRemark        = {3, 4, 35};
constexpr IdentitySet kTablesWithoutCommandLog   = kOrderServiceTables | kCloseSettingTables;

// clang-format on

/// Typed prices belong to the identities below this one, unknown negative ones included.
constexpr int kTypedPriceTablesEnd = 35;

static_assert(kTablesWithoutTypedPrice.containsAll({15, 17, 22, 30}),
              "tables below the end that offer a model price offer no typed one");
static_assert(kTablesWithKeptStrip.containsAll(kTablesWithUnplacedStrip),
              "a resize moves no strip that stays unplaced");
static_assert(kTablesWithHelpOfTheirOwn.containsAll(kTablesWithoutAlgorithms), "no algorithms, no algorithm help");
static_assert(!kTablesWithoutAlgorithms.contains(40), "table 40 has algorithms, though it keeps its help button");

} // namespace TC
