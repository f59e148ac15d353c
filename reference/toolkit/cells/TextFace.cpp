#include "reference/toolkit/cells/TextFace.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <memory>

namespace WQ::texts {

namespace {

constexpr int kLongestNumber = 64;

// What a glyph may reach over its own width.
constexpr int kOverhang = 1;

const QString& numberCharacters()
{
    static const QString characters = QStringLiteral("0123456789.,:-+ ");
    return characters;
}

// Every character before every other, and before itself.
QString allPairs()
{
    QString pairs;
    for (const QChar first : numberCharacters()) {
        for (const QChar second : numberCharacters()) {
            pairs += first;
            pairs += second;
        }
    }
    return pairs;
}

// All that says how a font looks, set: what a font leaves unset a painter takes from its device, and fonts that are
// equal may leave different things unset.
QFont complete(const QFont& font)
{
    QFont all(font);
    all.setFamily(font.family());
    if (font.pixelSize() > 0)
        all.setPixelSize(font.pixelSize());
    else
        all.setPointSizeF(font.pointSizeF());
    all.setWeight(font.weight());
    all.setStyle(font.style());
    all.setUnderline(font.underline());
    return all;
}

using Faces = QHash<QFont, std::shared_ptr<const Face>>;

Faces& faces()
{
    static auto* const all = new Faces;
    return *all;
}

void clearFaces()
{
    faces().clear();
}

} // namespace

Face::Face(const QFont& font)
    : m_font(complete(font))
    , m_raw(QRawFont::fromFont(font))
    , m_height(QFontMetrics(font).height())
    , m_ascent(QFontMetrics(font).ascent())
{
    if (!takeGlyphs())
        m_glyphs.fill(0);
}

// False for a font that lacks one of the characters, or that moves one for the sake of its neighbour.
bool Face::takeGlyphs()
{
    const QString& characters = numberCharacters();
    const QVector<quint32> glyphs = m_raw.glyphIndexesForString(characters);
    const QVector<QPointF> advances = m_raw.advancesForGlyphIndexes(glyphs);
    if (glyphs.size() != characters.size() || advances.size() != glyphs.size() || glyphs.contains(0))
        return false;
    for (int i = 0; i < glyphs.size(); ++i) {
        const auto character = static_cast<std::size_t>(characters.at(i).unicode());
        m_glyphs[character] = glyphs.at(i);
        m_advances[character] = advances.at(i).x();
    }
    const QString pairs = allPairs();
    return qFuzzyCompare(QFontMetricsF(m_font).horizontalAdvance(pairs), numberWidth(pairs));
}

bool Face::isNumber(const QString& text) const
{
    return text.size() <= kLongestNumber && std::all_of(text.begin(), text.end(), [this](QChar c) {
               return c.unicode() < kNumberCharacters && m_glyphs[static_cast<std::size_t>(c.unicode())] != 0;
           });
}

qreal Face::numberWidth(const QString& text) const
{
    qreal width = 0;
    for (const QChar c : text)
        width += m_advances[static_cast<std::size_t>(c.unicode())];
    return width;
}

// Numbers of another width start between other pixels, so that nothing of them stays as it is.
std::optional<TextSpan> Face::difference(const QString& one, const QString& other) const
{
    if (!isNumber(one) || !isNumber(other) || !qFuzzyCompare(numberWidth(one), numberWidth(other)))
        return std::nullopt;
    const auto first = std::mismatch(one.begin(), one.end(), other.begin(), other.end()).first;
    const auto last = std::mismatch(one.rbegin(), one.rend(), other.rbegin(), other.rend()).first;
    const qreal left = numberWidth(one.left(static_cast<int>(first - one.begin())));
    const qreal right = numberWidth(one) - numberWidth(one.right(static_cast<int>(last - one.rbegin())));
    const int from = static_cast<int>(std::floor(left)) - kOverhang;
    return TextSpan{from, static_cast<int>(std::ceil(right)) + kOverhang - from};
}

void Face::drawNumber(QPainter& painter, const QPoint& position, const QString& text) const
{
    std::array<quint32, kLongestNumber> glyphs;
    std::array<QPointF, kLongestNumber> places;
    qreal left = 0;
    for (int i = 0; i < text.size(); ++i) {
        const auto character = static_cast<std::size_t>(text.at(i).unicode());
        glyphs[static_cast<std::size_t>(i)] = m_glyphs[character];
        places[static_cast<std::size_t>(i)] = QPointF(left, 0);
        left += m_advances[character];
    }
    QGlyphRun run;
    run.setRawFont(m_raw);
    run.setRawData(glyphs.data(), places.data(), text.size());
    painter.drawGlyphRun(position + QPoint(0, m_ascent), run);
}

const Face& faceOf(const QFont& font)
{
    const auto found = faces().constFind(font);
    if (found != faces().constEnd())
        return **found;
    // Faces hold font engines, which must be gone before the application is.
    if (faces().isEmpty())
        qAddPostRoutine(clearFaces);
    return **faces().insert(font, std::make_shared<const Face>(font));
}

} // namespace WQ::texts
