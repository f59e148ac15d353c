#include <OrderParamTable_mini/semantics/OrderModes.h>

#include <OrderParamTable_mini/semantics/BrokerGroups.h>
#include <OrderParamTable_mini/semantics/IdentitySets.h>

namespace TC {

using namespace ttservice;

namespace {

// clang-format off
constexpr IntSet kTypesWithHelpPage         {1, 2, 5, 13};
constexpr IntSet kParameterSetTypesWithHelp {5, 13};
constexpr IntSet kTypesWithoutValidTime     {0, 6};
constexpr IntSet kUnchosenOperations        {-1, -2};
constexpr IntSet kAlgorithmClientModes      {100, 101};
// clang-format on

constexpr int kFirstParameterSetButton = kModeButtonBase + ORDER_TYPE_PARAM_SET_FIRST;
constexpr unsigned kLastSingleOrderAlgorithm = 104;

} // namespace

ButtonKind buttonKind(int buttonId)
{
    if (buttonId < kModeButtonBase)
        return ButtonKind::Other;
    return buttonId < kFirstParameterSetButton ? ButtonKind::PlainMode : ButtonKind::ParameterSet;
}

bool hasHelpPage(EOrderType type)
{
    return kTypesWithHelpPage.contains(type);
}

bool hasParameterSetHelp(EOrderType type)
{
    return kParameterSetTypesWithHelp.contains(type);
}

bool isTradeParameterType(EOrderType type)
{
    return unsigned(type) + 1U > 4U;
}

bool hasVisibleWord(EOrderType type)
{
    return type >= ORDER_TYPE_NORMAL && type <= ORDER_TYPE_ALGORITHM_3;
}

bool isSingleOrderAlgorithm(EOrderType type)
{
    return unsigned(type) - 4U <= kLastSingleOrderAlgorithm - 4U;
}

bool showsAlgorithms(int identity, ENVBrokerType broker)
{
    return !kTablesWithoutAlgorithms.contains(identity) && !kBrokersWithoutAlgorithms.contains(broker);
}

EOrderType orderTypeInMode(int identity, EOrderType type)
{
    return kAlgorithmOnlyTables.contains(identity) ? ORDER_TYPE_ALGORITHM : type;
}

bool followsHelpPage(int identity)
{
    return !kTablesWithHelpOfTheirOwn.contains(identity);
}

bool isOperationChosen(EOperationType operation)
{
    return !kUnchosenOperations.contains(operation);
}

bool isAlgorithmClientMode(int clientMode)
{
    return kAlgorithmClientModes.contains(clientMode);
}

EOrderType shownOrderType(EOrderType recorded)
{
    switch (recorded) {
    case ORDER_TYPE_NORMAL_TASK:
        return ORDER_TYPE_NORMAL;
    case ORDER_TYPE_ALGORITHM_TASK:
        return ORDER_TYPE_ALGORITHM;
    default:
        return recorded;
    }
}

bool hasValidTime(EOrderType type)
{
    return !kTypesWithoutValidTime.contains(type);
}

} // namespace TC
