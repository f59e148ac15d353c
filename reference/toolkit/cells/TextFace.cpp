#include "reference/toolkit/cells/TextFace.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QHash>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <memory>

namespace WQ::texts {

namespace {

constexpr int kLongestNumber = 64;

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
    m_run.setRawFont(m_raw);
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

bool Face::isNumber(QStringView text) const
{
    return text.size() <= kLongestNumber && std::all_of(text.begin(), text.end(), [this](QChar c) {
               return c.unicode() < kNumberCharacters && m_glyphs[static_cast<std::size_t>(c.unicode())] != 0;
           });
}

qreal Face::numberWidth(QStringView text) const
{
    qreal width = 0;
    for (const QChar c : text)
        width += advance(c);
    return width;
}

// Numbers of another width start between other pixels, so that nothing of them stays as it is.
std::optional<TextSpan> Face::difference(const QString& one, const QString& other) const
{
    if (!isNumber(one) || !isNumber(other) || !qFuzzyCompare(numberWidth(one), numberWidth(other)))
        return std::nullopt;
    const auto first = std::mismatch(one.begin(), one.end(), other.begin(), other.end()).first;
    const auto last = std::mismatch(one.rbegin(), one.rend(), other.rbegin(), other.rend()).first;
    const qreal left = numberWidth(QStringView(one).left(first - one.begin()));
    const qreal right = numberWidth(QStringView(one).chopped(last - one.rbegin()));
    const int from = static_cast<int>(std::floor(left)) - kOverhang;
    return TextSpan{from, static_cast<int>(std::ceil(right)) + kOverhang - from};
}

void Face::drawNumber(QPainter& painter, const QPointF& position, const QString& text, const TextSpan& seen) const
{
    std::array<quint32, kLongestNumber> glyphs;
    std::array<QPointF, kLongestNumber> places;
    std::size_t count = 0;
    qreal left = 0;
    for (const QChar c : text) {
        const qreal right = left + advance(c);
        if (right + kOverhang >= seen.left && left - kOverhang <= seen.left + seen.width) {
            glyphs[count] = m_glyphs[static_cast<std::size_t>(c.unicode())];
            places[count++] = QPointF(left, 0);
        }
        left = right;
    }
    m_run.setRawData(glyphs.data(), places.data(), static_cast<int>(count));
    painter.drawGlyphRun(position + QPointF(0, m_ascent), m_run);
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
