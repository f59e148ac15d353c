#pragma once

#include <WQ/WqExport.h>

#include <QColor>
#include <QHash>
#include <QImage>
#include <QPoint>
#include <QString>

#include <vector>

class QPainter;

namespace WQ::texts {

class Face;
struct TextSpan;

/// The characters of numbers as they look in one colour on one ground, and numbers put together from them: to blend
/// their glyphs anew is most of what painting a changed value costs.
class WQ_EXPORT DigitPictures
{
public:
    /// @p ratio: device pixels a logical one, whole.
    DigitPictures(const Face& face, QRgb color, QRgb ground, int ratio);

    /// Draws what of the number @p text is @p seen, its top left corner at @p position, to the pixel as the face draws
    /// it on the ground. False, and nothing is drawn, where characters share a pixel or leave the line.
    bool draw(QPainter& painter, const QPoint& position, const QString& text, const TextSpan& seen);

private:
    /// The pixels of a character that are not ground, and those between them.
    struct Ink
    {
        QPoint place; // device pixels, from where the character begins in its line
        int width = 0;
        int height = 0;
        std::vector<QRgb> pixels;
    };

    const Ink& inkOf(QChar character, qreal offset);
    Ink inkIn(const QImage& picture) const;
    void clear(int width, int height);
    bool putAll(const QString& text, int left);
    bool put(const Ink& ink, int left);

    const Face& m_face;
    const QRgb m_color;
    const QRgb m_ground;
    const int m_ratio;
    QHash<int, Ink> m_inks; // by character and where between two pixels it begins
    QImage m_canvas;
    QRgb* m_pixels = nullptr; // of the canvas
    int m_stride = 0;
    int m_width = 0; // as far as the canvas is in use
    int m_height = 0;
};

/// Those of a face, colour, ground and ratio. Good until the next call.
WQ_EXPORT DigitPictures& digitPictures(const Face& face, QRgb color, QRgb ground, int ratio);

} // namespace WQ::texts
