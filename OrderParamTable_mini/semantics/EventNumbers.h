#pragma once

/// @file
/// The library's own events by what they say, in the numbers of the toolkit. Of those that a table sends `a` is its
/// identity where the line says nothing else; `b` is 0 and the data null.

namespace TC::events {

constexpr int kParametersChanged = 129;       ///< text: of the edit or mode button
constexpr int kParameterDoubleClicked = 130;  ///< text: the cell's value
constexpr int kPriceTypeApplied = 1061;       ///< b: the price type
constexpr int kPriceDisplay = 1062;           ///< b 0, data double*: a price; b 1: the colour's key is the text
constexpr int kPriceDisplayAfterHours = 1063; ///< b 1: the colour's key is the text
constexpr int kOrderTypeChosen = 1064;        ///< b: the order type
constexpr int kContractCodeEmptied = 1083;    ///< from the credit table
constexpr int kOperationToBeChosen = 1206;    ///< a 0; data: COrderParamBaseTable*, the sender
constexpr int kAlgorithmButtons = 1244;       ///< a: the order type

/// To a table: data is an int*, the price type that somebody else has chosen; the text is its name.
constexpr int kPriceTypeFromOutside = 1213;

/// To a table, which answers true and does nothing.
constexpr int kKept = 249;

} // namespace TC::events
