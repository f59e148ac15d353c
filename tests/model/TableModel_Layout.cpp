#include "model/TableModel.h"

#include <algorithm>

namespace model {

std::string TableModel::rows() const
{
    std::string text = grid.footer ? "footer" : "none";
    for (const Cell& cell : grid.cells)
        text += grid.shown(cell) ? " " + std::to_string(cell.id) : "";
    return text;
}

void TableModel::fitHeight()
{
    fittedRows = rows();
}

void TableModel::layOut()
{
    isLaidOut = true;
    placedRows = rows();
}

void TableModel::handleScaleChanged()
{
    if (!made.fontScale)
        return;
    fitHeight();
    resize();
}

void TableModel::show()
{
    if (!isShown)
        layOut();
    isShown = true;
}

void TableModel::resize()
{
    isLaidOut = isShown;
    placedRows.clear();
}

std::string TableModel::layoutMismatch(const Json& actual) const
{
    const Json& sizes = actual.at("grid");
    const int needed = sizes.at("realHeight").get<int>();
    if (fittedRows == rows() && sizes.at("height") != needed)
        return "the grid's height: expected " + std::to_string(needed) + ", got " + sizes.at("height").dump();
    if (!isLaidOut)
        return {};
    const int width = actual.at("size").at(0).get<int>();
    const int top = idIn({31, 32, 33, 35}) ? 0 : actual.at("strip").at("height").get<int>();
    const int room = actual.at("size").at(1).get<int>() - top;
    const Json place = {0, top, width, std::max(0, room)};
    if (actual.at("scroll").at("geometry") != place)
        return "the scroll area: expected " + place.dump() + ", got " + actual.at("scroll").at("geometry").dump();
    if (placedRows != rows() || (sizes.at("width").get<int>() < width) == (room < needed))
        return {};
    return "the grid's width: " + sizes.dump() + " in " + place.dump();
}

} // namespace model
