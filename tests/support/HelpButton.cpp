#include "support/HelpButton.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CPushButton.h>

#include <QAbstractButton>

#include <algorithm>

namespace support {

namespace {

/// The group tells a screen reader about the button, and this test in the same words. Null while it was never needed.
const QAbstractButton* helpButton(WQ::CDropDownButtonGroup& group)
{
    group.resetLayout();
    const auto buttons = group.findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
    const auto help = std::find_if(buttons.begin(), buttons.end(), [](const QAbstractButton* button) {
        return button->accessibleName() == QStringLiteral("帮助");
    });
    return help == buttons.end() ? nullptr : *help;
}

} // namespace

bool isHelpButtonOffered(WQ::CDropDownButtonGroup& group)
{
    const QAbstractButton* const help = helpButton(group);
    return help && !help->isHidden();
}

bool isHelpButtonCritical(WQ::CDropDownButtonGroup& group)
{
    const QAbstractButton* const help = helpButton(group);
    return help && !help->accessibleDescription().isEmpty();
}

void addModeButton(WQ::CDropDownButtonGroup& group, int id, const char* text)
{
    auto button = new WQ::CPushButton(WQ::CButtonColor(), id, &group);
    button->setText(QString::fromUtf8(text));
    group.addButton(button, WQ::AnchorStart);
}

} // namespace support
