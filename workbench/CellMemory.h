#pragma once

#include "workbench/StateFile.h"

namespace WQ {
class CMultiParamsTable;
}

namespace workbench {

/// The committed values of all cells of a table, hidden ones too, as a person would enter them.
Json rememberedCells(const WQ::CMultiParamsTable& cells);

/// Commits what differs, as a person would, in cells that are taken out of hiding for it. The table is expanded; who
/// calls this hides its cells again. A listener may have deleted the table afterwards.
void recallCells(WQ::CMultiParamsTable& cells, const Json& remembered);

} // namespace workbench
