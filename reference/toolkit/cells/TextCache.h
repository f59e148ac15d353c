#pragma once

#include <WQ/WqExport.h>

#include <QColor>
#include <QRect>
#include <QString>

class QPainter;

namespace WQ::texts {

class Face;

/// @file
/// Texts prepared once and shared by every table of the process: labels, units and entries are the same in all of them.
/// Long texts are measured and drawn without being kept.

/// The width that @p text takes in @p face, rounded up.
WQ_EXPORT int width(const QString& text, const Face& face);

/// @p text shortened with an ellipsis to what fits into @p room pixels.
WQ_EXPORT QString elided(const QString& text, const Face& face, int room);

/// What of @p text a row can show: one line, and no more characters than any row has room for.
WQ_EXPORT QString oneLine(const QString& text);

/// Draws texts on grounds of one colour: where the device allows, as pictures that have been drawn before.
class WQ_EXPORT Pen
{
public:
    /// @p pictureRatio as DeviceGrid has it for the painter. What lies outside of @p seen may be left out.
    Pen(QPainter& painter, const Face& face, int pictureRatio, const QRect& seen = kEverywhere);

    /// Draws @p text from the left of @p area, in the middle of its height. The area and the little around it that a
    /// glyph may reach into are filled with @p ground already.
    void draw(const QRect& area, const QString& text, const QColor& color, const QColor& ground);

private:
    // No coordinate of a widget is out of it, and none of it overflows.
    static constexpr QRect kEverywhere = QRect(-(1 << 24), -(1 << 24), 1 << 25, 1 << 25);

    void drawPicture(const QPoint& position, const QRect& area, const QString& text, const QColor& color,
                     const QColor& ground);
    void drawDigits(const QPoint& position, const QString& text, const QColor& color, const QColor& ground);
    void drawDirectly(const QPoint& position, const QString& text, const QColor& color);

    QPainter& m_painter;
    const Face& m_face;
    const int m_pictureRatio;
    const QRect m_seen;
    bool m_fontSet = false;
};

} // namespace WQ::texts
