#pragma once

#include <QStringList>

class QWidget;

namespace walk {

/// What of a window's texts cannot be read: labels, buttons, boxes, tabs, fields' choices, columns and rows that have
/// less room than their text, and parts that lie outside of the window without a bar to scroll to them. A text that is
/// elided, or scrolled in its field, is readable where a tooltip says all of it.
QStringList cutTexts(const QWidget& window);

} // namespace walk
