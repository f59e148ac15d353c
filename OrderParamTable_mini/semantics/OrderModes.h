#pragma once

#include <OrderParamTable_mini/semantics/IntSet.h>
#include <OrderParamTable_mini/semantics/OrderVocabulary.h>

#include <ttservice/Enumerations.h>

namespace TC {

/// What an order-mode button is: plain modes show cells, the ones from the fifth button on use a parameter set instead.
enum class ButtonKind {
    Other,        ///< not an order-mode button
    PlainMode,    ///< order types 0 to 3
    ParameterSet, ///< order types 4 and up
};
ButtonKind buttonKind(int buttonId);

/// The button of an order type; any integer is one.
constexpr int modeButton(ttservice::EOrderType type)
{
    return int(unsigned(type) + unsigned(kModeButtonBase));
}

/// The index of a parameter set, negative for order types below 4.
constexpr int parameterSetIndex(ttservice::EOrderType type)
{
    return int(unsigned(type) - unsigned(ttservice::ORDER_TYPE_PARAM_SET_FIRST));
}

constexpr bool isParameterSetType(ttservice::EOrderType type)
{
    return type >= ttservice::ORDER_TYPE_PARAM_SET_FIRST;
}

/// Whether an order type is an algorithm with a help page.
bool hasHelpPage(ttservice::EOrderType type);

/// Whether the help button shows in a parameter-set mode.
bool hasParameterSetHelp(ttservice::EOrderType type);

/// Whether an order type is none of -1 and the plain modes 0 to 3.
bool isTradeParameterType(ttservice::EOrderType type);

/// Whether the user's visible cells are kept for an order type: 0 to 3.
bool hasVisibleWord(ttservice::EOrderType type);

/// Whether an order type is a single-order algorithm with parameters of its own: 4 to 104.
bool isSingleOrderAlgorithm(ttservice::EOrderType type);

/// Whether the tables show algorithms at all, by identity and broker type.
bool showsAlgorithms(int identity, ttservice::ENVBrokerType broker);

/// The order type that a table is in when @p type is asked for: some always work with the first algorithm.
ttservice::EOrderType orderTypeInMode(int identity, ttservice::EOrderType type);

/// Whether the help button follows the order type; other tables have a help button of their own.
bool followsHelpPage(int identity);

/// Whether an operation is chosen: neither -1 nor -2.
bool isOperationChosen(ttservice::EOperationType operation);

/// Whether the client mode shows algorithm buttons of its own and wants to hear of order types.
bool isAlgorithmClientMode(int clientMode);

/// The order type that a task's record stands for: tasks record 0 and 1 as 6 and 7.
ttservice::EOrderType shownOrderType(ttservice::EOrderType recorded);

/// Whether a valid-time range belongs to an order type; plain orders, 0 and 6, have none.
bool hasValidTime(ttservice::EOrderType type);

} // namespace TC
