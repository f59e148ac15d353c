#pragma once

namespace WQ {

/// From now on a single cell answers its text as its accessible value. May be called again.
void makeCellsAccessible();

} // namespace WQ
