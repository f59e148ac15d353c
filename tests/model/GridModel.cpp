#include "model/GridModel.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace model {

namespace {

constexpr int kSecondsOfDay = 24 * 60 * 60;

double withoutFraction(double value)
{
    const double low = std::numeric_limits<int>::min();
    const double high = std::numeric_limits<int>::max();
    return std::trunc(std::clamp(value, low, high));
}

void limit(Unit& unit, double min, double max)
{
    unit.min = min;
    unit.max = std::max(min, max);
}

/// Number with number and text with text, never across.
bool sameValue(const Json& left, const Json& right)
{
    if (left.is_number() && right.is_number())
        return left.get<double>() == right.get<double>();
    return left.is_string() && right.is_string() && left == right;
}

} // namespace

bool Cell::isNumber() const
{
    return kind == Kind::Number || kind == Kind::CheckNumber;
}

const Unit& Cell::current() const
{
    return units.at(unit);
}

Json Cell::data() const
{
    return kind == Kind::Combo && index >= 0 ? entries.at(static_cast<std::size_t>(index)).second : Json();
}

void Cell::bound()
{
    const Unit& limits = current();
    value = std::max(limits.min, std::min(value, limits.max));
    high = std::max(limits.min, std::min(high, limits.max));
}

void Cell::setNumber(double number)
{
    if (std::isnan(number))
        return;
    value = current().type == 2 ? withoutFraction(number) : number;
    bound();
}

Cell* GridModel::find(int id)
{
    return const_cast<Cell*>(std::as_const(*this).find(id));
}

const Cell* GridModel::find(int id) const
{
    const auto found = std::find_if(cells.begin(), cells.end(), [id](const Cell& cell) { return cell.id == id; });
    return found == cells.end() ? nullptr : &*found;
}

int GridModel::add(Cell cell)
{
    if (find(cell.id))
        return -1;
    cells.push_back(std::move(cell));
    return static_cast<int>(cells.size()) - 1;
}

bool GridModel::shown(const Cell& cell) const
{
    return !cell.hidden && (expanded || visible.empty() || visible.count(cell.id) > 0);
}

double GridModel::itemDouble(int id) const
{
    const Cell* cell = find(id);
    if (!cell)
        return 0;
    switch (cell->kind) {
    case Kind::Number:
    case Kind::CheckNumber:
    case Kind::Range:
        return cell->value;
    case Kind::Combo:
        return cell->data().is_number() ? cell->data().get<double>() : 0;
    case Kind::Text:
        return toDouble(cell->text);
    case Kind::Line:
    case Kind::Period:
        break;
    }
    return 0;
}

int GridModel::itemInt(int id) const
{
    return static_cast<int>(withoutFraction(itemDouble(id)));
}

Json GridModel::itemData(int id) const
{
    const Cell* cell = find(id);
    return cell ? cell->data() : Json();
}

std::string GridModel::itemText(int id) const
{
    const Cell* cell = find(id);
    return cell ? cell->shownText() : std::string();
}

std::string GridModel::itemUnit(int id) const
{
    const Cell* cell = find(id);
    return cell && !cell->units.empty() ? cell->current().text : std::string();
}

int GridModel::timeElapse(int id) const
{
    const Cell* cell = find(id);
    if (!cell || cell->kind != Kind::Period)
        return 0;
    const int clock = cell->end - cell->start;
    return cell->rangeType == 0 ? cell->elapse : clock < 0 ? clock + kSecondsOfDay : clock;
}

void GridModel::setItemDouble(int id, double value)
{
    Cell* cell = find(id);
    if (cell && cell->isNumber())
        cell->setNumber(value);
}

void GridModel::setItemText(int id, const std::string& text)
{
    Cell* cell = find(id);
    if (!cell)
        return;
    if (cell->kind == Kind::Line || cell->kind == Kind::Text) {
        cell->text = text;
    } else if (cell->isNumber() && isNumber(text)) {
        cell->setNumber(toDouble(text));
    } else if (cell->kind == Kind::Combo) {
        const auto entry = std::find_if(cell->entries.begin(), cell->entries.end(),
                                        [&text](const auto& candidate) { return candidate.first == text; });
        cell->index = entry == cell->entries.end() ? cell->index : static_cast<int>(entry - cell->entries.begin());
    }
}

void GridModel::setComboData(int id, const Json& value)
{
    Cell* cell = find(id);
    if (!cell || cell->kind != Kind::Combo)
        return;
    const auto entry = std::find_if(cell->entries.begin(), cell->entries.end(),
                                    [&value](const auto& candidate) { return sameValue(candidate.second, value); });
    if (entry != cell->entries.end())
        cell->index = static_cast<int>(entry - cell->entries.begin());
}

void GridModel::resetComboData(int id, const Entries& entries, int index)
{
    Cell* cell = find(id);
    if (!cell || cell->kind != Kind::Combo)
        return;
    cell->entries = entries;
    cell->index = index >= 0 && index < static_cast<int>(entries.size()) ? index : -1;
}

void GridModel::resetCellRange(int id, double min, double max)
{
    Cell* cell = find(id);
    if (!cell || cell->units.empty() || cell->kind == Kind::Text)
        return;
    limit(cell->units.at(cell->unit), min, max);
    cell->bound();
}

void GridModel::setItemUnit(int id, const std::string& unit)
{
    Cell* cell = find(id);
    if (!cell || cell->units.empty())
        return;
    const auto found = std::find_if(cell->units.begin(), cell->units.end(),
                                    [&unit](const Unit& candidate) { return candidate.text == unit; });
    if (found == cell->units.end()) {
        cell->units.at(cell->unit).text = unit;
        return;
    }
    cell->unit = static_cast<std::size_t>(found - cell->units.begin());
    if (cell->kind != Kind::Text)
        cell->bound();
}

void GridModel::setItemUnit(int id, const std::string& unit, double min, double max, double step, bool makeCurrent)
{
    Cell* cell = find(id);
    if (!cell || cell->units.empty())
        return;
    auto found = std::find_if(cell->units.begin(), cell->units.end(),
                              [&unit](const Unit& candidate) { return candidate.text == unit; });
    if (found == cell->units.end()) {
        if (!makeCurrent)
            return;
        found = cell->units.begin() + static_cast<std::ptrdiff_t>(cell->unit);
        found->text = unit;
    }
    if (cell->kind == Kind::Text)
        return;
    limit(*found, min, max);
    found->step = step == 0 ? found->step : step;
    if (makeCurrent)
        cell->unit = static_cast<std::size_t>(found - cell->units.begin());
    cell->bound();
}

void GridModel::setItemTick(int id, const std::string& unit, double step)
{
    Cell* cell = find(id);
    if (!cell || cell->kind == Kind::Text)
        return;
    for (Unit& candidate : cell->units)
        if (candidate.text == unit)
            candidate.step = step;
}

void GridModel::setCheckDouble(int id, bool checked, double value)
{
    Cell* cell = find(id);
    if (cell && cell->kind == Kind::CheckNumber) {
        cell->checked = checked;
        cell->setNumber(value);
    }
}

void GridModel::setItemHidden(int id, bool hide)
{
    if (Cell* cell = find(id))
        cell->hidden = hide;
}

void GridModel::setItemName(int id, const std::string& label)
{
    if (Cell* cell = find(id))
        cell->label = label;
}

bool GridModel::offers(int id) const
{
    return find(id) && all.count(id) > 0 && blacklist.count(id) == 0;
}

bool GridModel::filterEnabled() const
{
    return footer && !expanded && enabled && !hidden;
}

} // namespace model
