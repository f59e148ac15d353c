#pragma once

#include "replay/Json.h"

#include <QtCore/QByteArray>

/// One cell, as the state of an object says it, in the forms of a catalogue.
namespace replay {

/// The names and the dividing line above the cells of a Markdown table.
QByteArray markdownHead();
QByteArray markdownRow(const Json& cell);

/// The names of the columns; csvRow() leaves out the first three, which say of which table the cell is.
QByteArray csvHead();
QByteArray csvRow(const Json& cell);

} // namespace replay
