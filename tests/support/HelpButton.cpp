#include "support/HelpButton.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CPushButton.h>

#include <QAbstractButton>

#include <algorithm>

namespace support {

namespace {

/// The group tells a screen reader about the button, and this test in the same words.
const QAbstractButton* helpButton(WQ::CDropDownButtonGroup& group)
{
    group.resetLayout();
    const auto buttons = group.findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
    const auto help = std::find_if(buttons.begin(), buttons.end(), [](const QAbstractButton* button) {
        return button->accessibleName() == QStringLiteral("帮助");
    });
    Q_ASSERT(help != buttons.end());
    return *help;
}

} // namespace

bool isHelpButtonOffered(WQ::CDropDownButtonGroup& group)
{
    return !helpButton(group)->isHidden();
}

bool isHelpButtonCritical(WQ::CDropDownButtonGroup& group)
{
    return !helpButton(group)->accessibleDescription().isEmpty();
}

void addModeButton(WQ::CDropDownButtonGroup& group, int id, const char* text)
{
    auto button = new WQ::CPushButton(WQ::CButtonColor(), id, &group);
    button->setText(QString::fromUtf8(text));
    group.addButton(button, WQ::AnchorStart);
}

} // namespace support
