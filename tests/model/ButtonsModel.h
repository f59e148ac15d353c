#pragma once

#include "model/ModelText.h"

#include <string>
#include <vector>

namespace model {

struct ModeButton
{
    int id;
    std::string text;
    bool checked = false;
    bool hidden = false;

    /// A button without a text takes no room.
    bool isGone() const
    {
        return hidden || text.empty();
    }
};

/// The order-mode buttons, of which at most one is checked, and their help button.
class ButtonsModel
{
public:
    std::vector<ModeButton> buttons;
    bool helpHidden = false;
    bool helpCritical = false;

    ModeButton* find(int id);
    /// Its position; names a button of that ID without a text, and answers -1 for one with a text.
    int add(int id, const std::string& text);
    int selected() const;
    void check(int id);
    void setVisible(int id, bool visible);
    int idOf(const std::string& text) const;
    std::string textOf(int id);
    std::string param() const;
    void setParam(const std::string& param);
    Json state() const;
};

} // namespace model
