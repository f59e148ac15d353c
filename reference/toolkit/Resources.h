#pragma once

#include <WQ/WqExport.h>

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QStringList>

/// Sizes, colours, fonts and images by key, at the current theme and UI scale. GUI thread only.
///
/// An unknown key answers something visible (magenta, 24 pixels, an underlined font, a magenta image) and is reported
/// once.
namespace WQ::resources {

/// @p size pixels at @p scale, rounded: at least one pixel of what has any size at all. The scale is bounded to 1.0 to
/// 3.0, not-a-number counts as 1.0; what is not a number or below 0 has no size.
WQ_EXPORT int scaled(double size, double scale);

/// The size of @p key in pixels at @p scale.
WQ_EXPORT int size(const QString& key, double scale);

/// The colour of @p key; the reference stays valid as long as the program runs, and follows the theme.
WQ_EXPORT const QColor& color(const QString& key);

/// The font of @p key at @p scale: a CJK sans with tabular digits, sized in pixels.
WQ_EXPORT QFont font(const QString& key, double scale);

/// The image of @p key in one colour, in @p size device-independent pixels; cached.
WQ_EXPORT QPixmap image(const QString& key, const QColor& tint, QSize size, qreal pixelRatio);

/// The UI scale, 1.0 at first.
WQ_EXPORT double scale();

/// Bounds the scale to 1.0 to 3.0 and, when it is another one, tells every registered handler but the cell tables,
/// which take a scale from their owners alone. Not-a-number changes nothing.
WQ_EXPORT void setScale(double scale);

/// The themes there are, by name, sorted.
WQ_EXPORT QStringList themes();

/// The name of the theme in use, "dark" at first.
WQ_EXPORT QString theme();

/// Takes the theme and tells every registered handler; false, and nothing changes, when there is no theme of that name
/// or its file is wrong (reported with the line, each error once until the file is good).
WQ_EXPORT bool setTheme(const QString& name);

/// Adds the theme files of a folder ("NAME.json") to those compiled in, which keep precedence.
WQ_EXPORT void addThemeFolder(const QString& folder);

} // namespace WQ::resources
