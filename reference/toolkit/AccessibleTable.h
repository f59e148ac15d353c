#pragma once

namespace WQ {

/// From now on a cell table answers a tree of its rows: each value cell has its label as name and its text as value.
/// Qt's own interface of a table cell answers no value. May be called again.
void makeTablesAccessible();

/// The child of a table's accessible tree that stands for a row's label or value.
int accessibleChild(int row, int column);

} // namespace WQ
