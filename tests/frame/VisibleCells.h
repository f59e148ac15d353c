#pragma once

#include <QSet>
#include <QString>

/// Which cells a switch leaves to be seen, cell by cell. The columns are the order types: 0, 1 while collapsed, 1 while
/// expanded, 2, 3, and any other.
///
///     x  where the host's flags allow it     !  always                 .  never
///     e  while expanded                      6  while expanded, whatever the flags say
///     v  where the base volume is the remaining target volume          r  where remarks are offered
///     t  with the module of the trigger price                          s  with the module of stop profit and stop loss
///     l  kept as it is, and shown for good by order types 0 and 1
struct CellRule
{
    int id;
    const char* columns;
};

// clang-format off
constexpr CellRule kCellRules[] = {
    //           0 1 1e2 3 other
    {0x1,       "xxxx.x"},
    {0x2,       "!!!!!!"},
    {0x4,       "..!eee"},
    {0x8,       ".x6x.x"},
    {0x10,      ".xx..x"},
    {0x20,      ".xx..x"},
    {0x40,      ".vv..v"},
    {0x80,      ".xxxxx"},
    {0x100,     ".xx..x"},
    {0x200,     "..6..x"},
    {0x400,     "..6..x"},
    {0x800,     "..6x.x"},
    {0x1000,    "..6x.x"},
    {0x2000,    "..6..x"},
    {0x4000,    ".....x"},
    {0x8000,    ".....x"},
    {0x10000,   ".....x"},
    {0x20000,   ".....x"},
    {0x40000,   ".....x"},
    {0x80000,   ".....x"},
    {0x100000,  ".....t"},
    {0x200000,  "sss..s"},
    {0x400000,  "sss..s"},
    {0x800000,  "...x.x"},
    {0x1000000, "x....x"},
    {0x2000000, "llllll"},
    {0x4000000, "rrrrrr"},
    {0x8000000, ".....x"},
};
// clang-format on

/// What the rules look at beside the order type.
struct VisibleState
{
    int id = 5;
    int flags = 0x7103FFF;
    bool expanded = false;
    bool remainingVolume = false; ///< the base volume cell is there and says so
    bool remarkModule = false;
    bool triggerModule = false;
    bool stopModule = false;
    bool limitShown = false; ///< order type 0 or 1 was in force since the construction
};

inline bool isVisibleBy(char rule, int id, const VisibleState& state)
{
    static const QSet<int> withoutRemark = {3, 4, 35, 36, 37, 38, 42, 43, 48, 49, 51};
    const bool allowed = (state.flags & id) != 0;
    switch (rule) {
    case 'x':
        return allowed;
    case '!':
    case '6':
        return true;
    case 'e':
        return state.expanded;
    case 'v':
        return allowed && state.remainingVolume;
    case 'r':
        return allowed && state.remarkModule && !withoutRemark.contains(state.id);
    case 't':
        return allowed && state.triggerModule;
    case 's':
        return allowed && state.stopModule;
    case 'l':
        return state.limitShown;
    default:
        return false;
    }
}

/// The cells of @p owned that are seen in that order type when the user has chosen none.
inline QSet<int> expectedVisible(int orderType, const VisibleState& state, const QSet<int>& owned)
{
    const int type = state.id == 10 || state.id == 35 ? 1 : orderType;
    const int column = type == 0 ? 0 : type == 1 ? (state.expanded ? 2 : 1) : type == 2 ? 3 : type == 3 ? 4 : 5;
    QSet<int> visible;
    for (const CellRule& rule : kCellRules) {
        if (owned.contains(rule.id) && isVisibleBy(rule.columns[column], rule.id, state))
            visible.insert(rule.id);
    }
    return visible;
}
