#pragma once

#include <QStringList>

/// Sequences of calls that several operations make, as the operations are described.
namespace contract {

struct ShownCells
{
    int orderType = 0;
    bool expanded = false;
    quint32 visible = 0; ///< the cells that the rules show
    quint32 word = 0;    ///< the user's visible cells of the order type, 0 for none and for types outside 0 to 3
};

/// Showing the super-price cells.
QStringList superPriceShow(const ShownCells& cells);

/// Showing the limit price and hiding the trigger price; nothing outside the order types 0 and 1.
QStringList tableByPriceType(const ShownCells& cells);

/// Collapsing or expanding.
QStringList expansion(const ShownCells& cells);

/// Recomputing which cells are shown; the strip is as it was.
QStringList cellVisibilities(const ShownCells& cells);

} // namespace contract
