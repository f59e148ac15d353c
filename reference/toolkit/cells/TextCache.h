#pragma once

#include <WQ/WqExport.h>

#include <QFont>
#include <QPoint>
#include <QString>

class QPainter;

namespace WQ {

/// Texts prepared once and shared by every table of the process: labels, units and entries are the same in all of them.
/// Long texts are measured and drawn without being kept.
namespace texts {

/// The width that @p text takes in @p font, rounded up.
WQ_EXPORT int width(const QString& text, const QFont& font);

/// Draws @p text in @p font, its top left corner at @p position, in the painter's pen.
WQ_EXPORT void draw(QPainter& painter, QPoint position, const QString& text, const QFont& font);

/// @p text shortened with an ellipsis to what fits into @p room pixels.
WQ_EXPORT QString elided(const QString& text, const QFont& font, int room);

/// What of @p text a row can show: one line, and no more characters than any row has room for.
WQ_EXPORT QString oneLine(const QString& text);

} // namespace texts

} // namespace WQ
