#pragma once

#include "model/ModelText.h"

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace model {

/// One selectable unit of a number cell; value type 2 is an int, 6 a double.
struct Unit
{
    std::string text;
    int type = 6;
    double min = 0;
    double max = 0;
    std::optional<double> step;
};

enum class Kind {
    Combo,
    Number,
    CheckNumber,
    Range,
    Period,
    Line,
    Text,
};

using Entries = std::vector<std::pair<std::string, Json>>;

/// One cell: what a person sees of it and what it holds. A kind uses the fields that it needs.
struct Cell
{
    int id = 0;
    Kind kind = Kind::Number;
    std::string label;
    bool hidden = false;
    bool editable = true;

    Entries entries;
    int index = -1;

    std::vector<Unit> units;
    std::size_t unit = 0;
    double value = 0; ///< of a range the lower one
    double high = 0;
    bool checked = false;
    std::string checkText;

    int start = 0; ///< seconds of the day
    int end = 0;
    int rangeType = 1;
    int elapse = 0;

    std::string text; ///< of a line and a text cell; of a range its separator
    std::string pattern;
    std::string placeholder;

    bool isNumber() const;
    const Unit& current() const;
    Json data() const;
    std::string shownText() const;
    void bound();
    void setNumber(double number);
    Json state() const;
};

/// What a person did in an editor: the events it caused, in order, or that it could not be done.
struct PersonEvent
{
    int event;
    int a;
    int b;
    std::string text;
    Json data;
};

struct EditOutcome
{
    bool possible = false;
    bool accepted = true;
};

/// The cell table as the toolkit promises it.
class GridModel
{
public:
    std::vector<Cell> cells;
    std::set<int> all;
    std::set<int> visible;
    std::set<int> blacklist;
    bool expanded = false;
    bool enabled = true;
    bool hidden = false;
    bool footer = true;

    Cell* find(int id);
    const Cell* find(int id) const;
    int add(Cell cell);
    bool shown(const Cell& cell) const;

    double itemDouble(int id) const;
    int itemInt(int id) const;
    Json itemData(int id) const;
    std::string itemText(int id) const;
    std::string itemUnit(int id) const;
    int timeElapse(int id) const;

    void setItemDouble(int id, double value);
    void setItemText(int id, const std::string& text);
    void setComboData(int id, const Json& value);
    void resetComboData(int id, const Entries& entries, int index);
    void resetCellRange(int id, double min, double max);
    void setItemUnit(int id, const std::string& unit);
    void setItemUnit(int id, const std::string& unit, double min, double max, double step, bool makeCurrent);
    void setItemTick(int id, const std::string& unit, double step);
    void setCheckDouble(int id, bool checked, double value);
    void setItemHidden(int id, bool hide);
    void setItemName(int id, const std::string& label);

    /// Whether the filter offers the cell.
    bool offers(int id) const;
    bool filterEnabled() const;

    /// What a person does in the cell's editor, step by step: unit, check, value; @p send gets each event as it is
    /// committed.
    template <class Send>
    EditOutcome edit(const Json& command, Send send);

    Json state() const;

private:
    bool canEdit(const Json& command) const;
    std::optional<PersonEvent> commitUnit(Cell& cell, const std::string& unit);
    std::optional<PersonEvent> commitCheck(Cell& cell, bool checked);
    std::optional<PersonEvent> commitValue(Cell& cell, const Json& command, bool& accepted);
};

template <class Send>
EditOutcome GridModel::edit(const Json& command, Send send)
{
    EditOutcome outcome;
    if (!canEdit(command))
        return outcome;
    outcome.possible = true;
    const int id = command.at("cell").get<int>();
    const auto sendIfAny = [&send](const std::optional<PersonEvent>& event) {
        if (event)
            send(*event);
    };
    if (command.contains("unit"))
        sendIfAny(commitUnit(*find(id), command.at("unit").get<std::string>()));
    if (command.contains("checked"))
        sendIfAny(commitCheck(*find(id), command.at("checked").get<bool>()));
    sendIfAny(commitValue(*find(id), command, outcome.accepted));
    return outcome;
}

} // namespace model
