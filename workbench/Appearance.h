#pragma once

#include <QString>

namespace workbench {

/// Dresses Qt's own widgets like the toolkit's: style, palette and font from the theme in use and its UI scale.
void dressApplication();

/// Takes the theme for the toolkit and for Qt's own widgets; false for a theme that there is not.
bool setTheme(const QString& name);

/// Takes the UI scale, bounded to 1.0 to 3.0. Tables are told by their owners.
void setScale(double scale);

} // namespace workbench
