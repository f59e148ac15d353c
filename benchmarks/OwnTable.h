#pragma once

#include "benchmarks/PanelContent.h"

#include <WQ/CMultiParamsTable.h>

namespace bench {

/// The common content in the toolkit's cell table.
void addRows(WQ::CMultiParamsTable& table);
void showRows(WQ::CMultiParamsTable& table, const QSet<int>& shown);

/// What a switch changes beside rows and entries: unit, range and numbers.
void takeValues(WQ::CMultiParamsTable& table, const Mode& mode);

QSet<int> shownRowsOf(WQ::CMultiParamsTable& table);

/// As rowNames(), of what the table holds.
QStringList rowNamesOf(WQ::CMultiParamsTable& table);

} // namespace bench
