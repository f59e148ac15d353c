#pragma once

#include <WQ/WqExport.h>

#include <QByteArray>
#include <QColor>
#include <QFont>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace WQ {

/// How a font of the toolkit looks at scale 1.
struct FontRole
{
    double size = 0; ///< pixels
    QFont::Weight weight = QFont::Normal;
};

/// What the themes have in common.
struct ThemeMetrics
{
    QStringList families;         ///< of the text font, the first one installed is taken
    QHash<QString, double> sizes; ///< pixels at scale 1
    QHash<QString, FontRole> fonts;
    QHash<QString, QString> images; ///< name of the drawing
};

using ThemeColors = QHash<QString, QColor>;

/// The colours of a theme file: {"colors": {KEY: "#rrggbb", ...}}. Nothing, and in @p error "LINE: what is wrong", when
/// anything in it is.
WQ_EXPORT std::optional<ThemeColors> readThemeColors(const QByteArray& file, QString& error);

/// The sizes, fonts and images that all themes share, from their file; errors as above.
WQ_EXPORT std::optional<ThemeMetrics> readThemeMetrics(const QByteArray& file, QString& error);

/// The line, from 1, in which @p key stands first as a name, with a section as a name of that section; 1 when it stands
/// nowhere. The file must be valid JSON.
WQ_EXPORT int lineOfKey(const QByteArray& file, const QString& key, const QString& section = QString());

} // namespace WQ
