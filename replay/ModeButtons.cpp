#include "replay/ModeButtons.h"

#include "reference/toolkit/IconButton.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CPushButton.h>

#include <algorithm>

namespace replay {

WQ::CPushButton* pushButton(const QWidget& parent, int id)
{
    const auto buttons = parent.findChildren<WQ::CPushButton*>(QString(), Qt::FindDirectChildrenOnly);
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [id](const WQ::CPushButton* button) { return button->id() == id; });
    return found == buttons.end() ? nullptr : *found;
}

bool takesNoRoom(const WQ::CPushButton& button)
{
    return button.text().isEmpty() && button.iconKey().isEmpty();
}

QStringList visibleIds(WQ::CDropDownButtonGroup& group)
{
    return group.getParam().split(QLatin1Char(','));
}

bool isHidden(const WQ::CPushButton& button, const QStringList& visible)
{
    return takesNoRoom(button) || !visible.contains(QString::number(button.id()));
}

QAbstractButton* helpButton(const WQ::CDropDownButtonGroup& group)
{
    const QString name = WQ::CDropDownButtonGroup::tr("帮助");
    const auto buttons = group.findChildren<WQ::IconButton*>(QString(), Qt::FindDirectChildrenOnly);
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [&name](const WQ::IconButton* button) { return button->accessibleName() == name; });
    return found == buttons.end() ? nullptr : *found;
}

} // namespace replay
