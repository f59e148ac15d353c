#pragma once

#include "replay/Json.h"

namespace WQ {
class CMultiParamsTable;
}

namespace replay {

/// All cells of a table, hidden ones too, in display order: what each offers and holds, by its kind.
Json cellStates(const WQ::CMultiParamsTable& table);

} // namespace replay
