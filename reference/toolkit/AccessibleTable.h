#pragma once

namespace WQ {

class CMultiParamsTable;

/// From now on a cell table answers a tree of its rows, each value cell with its label as name and its text as value,
/// and of the filter's footer.
/// Qt's own interface of a table cell answers no value. May be called again.
void makeTablesAccessible();

/// The child of a table's accessible tree that stands for a row's label or value.
int accessibleChild(int row, int column);

/// Says what of the table has the focus: the current row's value or the filter's footer.
void announceAccessibleFocus(CMultiParamsTable& table);

/// Says the values of these rows, while the table is seen.
void announceAccessibleValues(CMultiParamsTable& table, int first, int last);

} // namespace WQ
