#pragma once

#include <WQ/WqExport.h>

#include <QFont>
#include <QGlyphRun>
#include <QRawFont>
#include <QString>
#include <QStringView>

#include <array>
#include <optional>

class QPainter;

namespace WQ::texts {

/// A part of a text, in pixels from its left.
struct TextSpan
{
    int left = 0;
    int width = 0;
};

/// A font as a table measures and draws with it. One a font for the life of the application, shared by every table.
class WQ_EXPORT Face
{
public:
    /// What a character of a number may reach over its own width, in pixels.
    static constexpr int kOverhang = 1;

    explicit Face(const QFont& font);
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;

    const QFont& font() const
    {
        return m_font;
    }

    /// Of a line of this font, without what a text of other fonts may add.
    int height() const
    {
        return m_height;
    }

    /// Whether @p text is one of a number: digits, signs, points, commas, colons and blanks, of one glyph each that
    /// stands where the one before it ends. Such a text needs no shaping, which is the most that a new text costs.
    bool isNumber(QStringView text) const;

    /// The width of a text that isNumber().
    qreal numberWidth(QStringView text) const;

    /// How far after @p character of a number the next one stands.
    qreal advance(QChar character) const
    {
        return m_advances[static_cast<std::size_t>(character.unicode())];
    }

    /// Where two numbers that start at the same place are not the same to the pixel; nothing where all may differ.
    std::optional<TextSpan> difference(const QString& one, const QString& other) const;

    /// Draws a text that isNumber() in the painter's pen, its top left corner at @p position. Characters out of
    /// @p seen may be left out.
    void drawNumber(QPainter& painter, const QPointF& position, const QString& text, const TextSpan& seen) const;

private:
    static constexpr int kNumberCharacters = 64; // all of them are below

    bool takeGlyphs();

    QFont m_font;
    QRawFont m_raw;
    mutable QGlyphRun m_run;                           // holds no glyphs but while it is drawn
    std::array<quint32, kNumberCharacters> m_glyphs{}; // 0: not of a number
    std::array<qreal, kNumberCharacters> m_advances{};
    int m_height;
    int m_ascent;
};

/// The face of a font. There is an application.
WQ_EXPORT const Face& faceOf(const QFont& font);

} // namespace WQ::texts
