#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QRegion>
#include <QString>

class QHelpEvent;
class QPainter;
class QWidget;

/// What the toolkit's widgets paint with, so that none of them depends on the application's style.
namespace WQ::painting {

/// The scale of a widget: the UI scale, but 1 in a toolkit dialog, which keeps its size with all in it.
double scaleOf(const QWidget* widget);

/// The UI scale of a widget as far as a button's text may follow it.
double buttonScaleOf(const QWidget* widget);

/// Fills @p region, that of a paint event of a widget whose children cut it to pieces, and takes the painter's clip.
void fillRegion(QPainter& painter, const QRegion& region, const QColor& color);

/// A frame of one device pixel inside @p rect.
void drawFrame(QPainter& painter, const QRect& rect, const QColor& color);

/// The same around a widget whose children cut its region to pieces, and takes the painter's clip.
void drawOuterFrame(QPainter& painter, const QRect& rect, const QColor& color);

/// @p text on one line, with an ellipsis at its end where it does not fit.
void drawText(QPainter& painter, const QRect& rect, const QFont& font, const QColor& color, Qt::Alignment alignment,
              const QString& text);

/// The same at the left or right end of a rectangle that is filled with @p ground, as the little around it is which a
/// glyph may reach into: where the device allows, a picture that has been drawn before.
void drawTextOn(QPainter& painter, const QColor& ground, const QRect& rect, const QFont& font, const QColor& color,
                Qt::AlignmentFlag side, const QString& text);

/// The image of @p key in the middle of @p rect, @p edge pixels square.
void drawImage(QPainter& painter, const QRect& rect, const QString& key, const QColor& tint, int edge);

/// As much of a text as a widget may ever show: what follows would only cost time.
QString shownText(const QString& text);

/// The width of @p text in @p font, of what may be shown of it.
int textWidth(const QFont& font, const QString& text);

/// Takes away what a style sheet of the application draws around @p widget. To be called when the widget is polished
/// and when its style changes; costs nothing where there is no style sheet.
void shieldFromStyleSheet(QWidget* widget);

/// Shows a text as it is, tags and all, where a tooltip is asked for; an empty text hides the tooltip.
void showToolTip(const QHelpEvent& asked, const QString& text, QWidget* widget);

} // namespace WQ::painting
