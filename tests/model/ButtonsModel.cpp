#include "model/ButtonsModel.h"

#include <algorithm>

namespace model {

ModeButton* ButtonsModel::find(int id)
{
    const auto found =
        std::find_if(buttons.begin(), buttons.end(), [id](const ModeButton& button) { return button.id == id; });
    return found == buttons.end() ? nullptr : &*found;
}

int ButtonsModel::add(int id, const std::string& text)
{
    if (ModeButton* present = find(id)) {
        const bool nameless = present->text.empty();
        if (nameless)
            present->text = text;
        return nameless ? static_cast<int>(present - buttons.data()) : -1;
    }
    buttons.push_back({id, text});
    return static_cast<int>(buttons.size()) - 1;
}

int ButtonsModel::selected() const
{
    const auto found =
        std::find_if(buttons.begin(), buttons.end(), [](const ModeButton& button) { return button.checked; });
    return found == buttons.end() ? -1 : found->id;
}

void ButtonsModel::check(int id)
{
    if (!find(id))
        return;
    for (ModeButton& button : buttons)
        button.checked = button.id == id;
}

void ButtonsModel::setVisible(int id, bool visible)
{
    if (ModeButton* button = find(id))
        button->hidden = !visible;
}

int ButtonsModel::idOf(const std::string& text) const
{
    const auto found =
        std::find_if(buttons.begin(), buttons.end(), [&text](const ModeButton& button) { return button.text == text; });
    return found == buttons.end() ? -1 : found->id;
}

std::string ButtonsModel::textOf(int id)
{
    const ModeButton* button = find(id);
    return button ? button->text : std::string();
}

std::string ButtonsModel::param() const
{
    std::string text;
    for (const ModeButton& button : buttons)
        if (!button.hidden)
            text += (text.empty() ? "" : ",") + std::to_string(button.id);
    return text;
}

void ButtonsModel::setParam(const std::string& param)
{
    std::vector<ModeButton> ordered;
    for (const std::string& piece : split(param, ',')) {
        const auto named = std::find_if(buttons.begin(), buttons.end(), [&piece](const ModeButton& button) {
            return isNumber(piece) && button.id == toInt(piece);
        });
        if (named != buttons.end()) {
            ordered.push_back(*named);
            ordered.back().hidden = false;
            buttons.erase(named);
        }
    }
    const bool namesAny = !ordered.empty();
    for (ModeButton& button : buttons) {
        button.hidden = namesAny || button.hidden;
        ordered.push_back(button);
    }
    buttons = std::move(ordered);
}

Json ButtonsModel::state() const
{
    Json list = Json::array();
    for (const ModeButton& button : buttons) {
        list.push_back(
            {{"id", button.id}, {"text", button.text}, {"checked", button.checked}, {"hidden", button.isGone()}});
    }
    return list;
}

} // namespace model
