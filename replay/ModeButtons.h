#pragma once

#include <QAbstractButton>
#include <QStringList>

namespace WQ {
class CDropDownButtonGroup;
class CPushButton;
} // namespace WQ

class QWidget;

/// The buttons of a group as a person finds them.
namespace replay {

/// The button of that ID among the direct children of @p parent; null without one.
WQ::CPushButton* pushButton(const QWidget& parent, int id);

/// A button without text and icon takes no room.
bool takesNoRoom(const WQ::CPushButton& button);

/// The IDs of the buttons that neither the host nor the library has taken away. One that the strip is too narrow for
/// stands in the drop-down and is among them: how wide the strip is depends on whether the window has been shown.
QStringList visibleIds(WQ::CDropDownButtonGroup& group);

/// Whether a person finds the button nowhere in its group, whose visible IDs are given.
bool isHidden(const WQ::CPushButton& button, const QStringList& visible);

/// The group tells a screen reader which of its own buttons is the help button; null without it.
QAbstractButton* helpButton(const WQ::CDropDownButtonGroup& group);

} // namespace replay
