#include "replay/Person.h"

#include "replay/ModeButtons.h"
#include "replay/Numbers.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/PersonEvents.h"
#include "reference/toolkit/cells/ComboCell.h"
#include "reference/toolkit/editors/PersonEdits.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CPushButton.h>

#include <QLocale>

#include <algorithm>

namespace replay::person {

namespace {

constexpr int kHelpButton = 0;

/// Whether the widget, or one that it stands in, is hidden by program. The object itself counts as shown.
bool isHiddenIn(const Object& object, const QWidget* widget)
{
    for (; widget && widget != object.widget; widget = widget->parentWidget()) {
        if (widget->isHidden())
            return true;
    }
    return false;
}

WQ::CMultiParamsTable& gridWithinReach(const Object& object)
{
    WQ::CMultiParamsTable* grid = object.grid();
    if (!grid)
        throw WrongCommand("the object has no cell table");
    if (isHiddenIn(object, grid))
        throw WrongCommand("the cell table is hidden");
    return *grid;
}

/// A number as a person types it: in plain digits.
QString typed(const Json& json)
{
    if (json.is_string())
        return QString::fromStdString(json.get<std::string>());
    const std::optional<double> number = numberOf(json);
    if (!number)
        throw WrongCommand("a number or a text is typed");
    return QString::number(*number, 'f', QLocale::FloatingPointShortest);
}

QString typedDuration(int seconds)
{
    if (seconds < 0)
        return QString::number(seconds);
    const QChar zero = QLatin1Char('0');
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600, 2, 10, zero)
        .arg(seconds / 60 % 60, 2, 10, zero)
        .arg(seconds % 60, 2, 10, zero);
}

QPair<QString, QString> typedTimes(const Json& json)
{
    QStringList times;
    read(json, times);
    if (times.size() != 2)
        throw WrongCommand("\"time\" is [start, end], each \"HH:MM:SS\"");
    return {times.at(0), times.at(1)};
}

/// A value is typed, but in a list of entries the one that carries it is chosen.
void setValue(WQ::PersonEdit& edit, const WQ::CellItem* cell, const Json& json)
{
    if (!cell || cell->kind() != WQ::CellKind::Combo) {
        edit.text = typed(json);
        return;
    }
    QVariant value;
    read(json, value);
    edit.index = static_cast<const WQ::ComboCell*>(cell)->indexOfData(value);
}

template <class T>
void setIfGiven(std::optional<T>& value, const Json& command, const char* key)
{
    if (command.contains(key))
        read(command[key], value.emplace());
}

WQ::PersonEdit editOf(const Json& command, const WQ::CellItem* cell)
{
    WQ::PersonEdit edit;
    setIfGiven(edit.unit, command, "unit");
    setIfGiven(edit.checked, command, "checked");
    setIfGiven(edit.text, command, "text");
    setIfGiven(edit.index, command, "index");
    if (command.contains("value"))
        setValue(edit, cell, command["value"]);
    if (command.contains("low") != command.contains("high"))
        throw WrongCommand("\"low\" and \"high\" come together");
    if (command.contains("low"))
        edit.range = qMakePair(typed(command["low"]), typed(command["high"]));
    if (command.contains("time"))
        edit.time = typedTimes(command["time"]);
    std::optional<int> elapse;
    setIfGiven(elapse, command, "elapse");
    if (elapse)
        edit.duration = typedDuration(*elapse);
    return edit;
}

constexpr const char* kValueKeys[] = {"value", "text", "index", "low", "time", "elapse"};

void checkKeys(const Json& command)
{
    const auto values = std::count_if(std::begin(kValueKeys), std::end(kValueKeys),
                                      [&command](const char* key) { return command.contains(key); });
    if (values > 1)
        throw WrongCommand("an edit gives one of value, text, index, low with high, time, elapse");
    if (values == 0 && !command.contains("high") && !command.contains("unit") && !command.contains("checked"))
        throw WrongCommand("an edit gives value, unit, checked, text, index, low with high, time or elapse");
}

/// A dialog's own buttons are told from those of the strip of the table in it by their IDs.
QAbstractButton* buttonWithinReach(const Object& object, int id)
{
    WQ::CPushButton* own = object.widget->isWindow() ? pushButton(*object.widget, id) : nullptr;
    if (own)
        return isHiddenIn(object, own) ? nullptr : own;
    WQ::CDropDownButtonGroup* group = object.buttons();
    if (!group || isHiddenIn(object, group))
        return nullptr;
    WQ::CPushButton* button = pushButton(*group, id);
    if (button || id != kHelpButton)
        return button && !isHidden(*button, visibleIds(*group)) ? button : nullptr;
    group->resetLayout(); // which makes the button, were the strip not laid out yet
    QAbstractButton* help = helpButton(*group);
    return help && !help->isHidden() ? help : nullptr;
}

} // namespace

bool edit(const Object& object, const Json& command)
{
    WQ::CMultiParamsTable& grid = gridWithinReach(object);
    int id = 0;
    read(command["cell"], id);
    checkKeys(command);
    const WQ::CellItem* cell = WQ::CMultiParamsTablePrivate::of(&grid)->model().cell(id);
    const WQ::EditOutcome outcome = WQ::applyPersonEdit(grid, id, editOf(command, cell));
    if (outcome == WQ::EditOutcome::Impossible)
        throw WrongCommand("cell " + std::to_string(id) + " cannot be edited so: it is not shown, disabled, read-only "
                           + "or of another kind, or lacks that unit or entry");
    WQ::deliverPostedPersonEvents();
    return outcome == WQ::EditOutcome::Done;
}

void click(const Object& object, int button)
{
    QAbstractButton* found = buttonWithinReach(object, button);
    if (!found || !found->isEnabled())
        throw WrongCommand("no button " + std::to_string(button) + " that could be clicked");
    found->click();
    WQ::deliverPostedPersonEvents();
}

void filter(const Object& object, const QSet<int>& cells)
{
    if (!WQ::applyPersonFilter(gridWithinReach(object), cells))
        throw WrongCommand(
            "the filter cannot be applied so: it takes one or more of the cells that it offers, while the "
            "table is collapsed and enabled");
    WQ::deliverPostedPersonEvents();
}

void resetFilter(const Object& object)
{
    if (!WQ::resetPersonFilter(gridWithinReach(object)))
        throw WrongCommand("the filter cannot be reset while the table is expanded or disabled");
    WQ::deliverPostedPersonEvents();
}

} // namespace replay::person
