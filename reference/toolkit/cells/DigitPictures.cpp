#include "reference/toolkit/cells/DigitPictures.h"

#include "reference/toolkit/cells/TextFace.h"

#include <QCache>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace WQ::texts {

namespace {

constexpr int kInksKept = 1024;
constexpr int kKindsKept = 32;

// Qt places glyphs in steps of this part of a pixel.
constexpr int kOffsets = 64;

// Around a character in its picture.
constexpr int kMargin = 2;

struct Kind
{
    const Face* face;
    QRgb color;
    QRgb ground;
    int ratio;

    bool operator==(const Kind& other) const
    {
        return face == other.face && color == other.color && ground == other.ground && ratio == other.ratio;
    }
};

uint qHash(const Kind& kind, uint seed = 0)
{
    return ::qHash(kind.face, seed) ^ ::qHash((quint64(kind.color) << 32) + kind.ground, seed) ^ uint(kind.ratio);
}

} // namespace

DigitPictures::DigitPictures(const Face& face, QRgb color, QRgb ground, int ratio)
    : m_face(face)
    , m_color(color)
    , m_ground(ground)
    , m_ratio(ratio)
{
}

bool DigitPictures::draw(QPainter& painter, const QPoint& position, const QString& text, const TextSpan& seen)
{
    const int end = static_cast<int>(std::ceil(m_face.numberWidth(text))) + Face::kOverhang;
    const int left = std::max(seen.left, -Face::kOverhang);
    const int right = std::min(seen.left + seen.width, end);
    if (left >= right)
        return true;
    clear((right - left) * m_ratio, m_face.height() * m_ratio);
    if (!putAll(text, left * m_ratio))
        return false;
    painter.drawImage(QRect(position.x() + left, position.y(), right - left, m_face.height()), m_canvas,
                      QRect(0, 0, m_width, m_height));
    return true;
}

bool DigitPictures::putAll(const QString& text, int left)
{
    const int overhang = Face::kOverhang * m_ratio;
    qreal begin = 0;
    for (const QChar character : text) {
        const qreal end = begin + m_face.advance(character) * m_ratio;
        const bool isSeen = end + overhang >= left && begin - overhang <= left + m_width;
        const int pixel = static_cast<int>(std::floor(begin));
        if (isSeen && !put(inkOf(character, begin - pixel), pixel - left))
            return false;
        begin = end;
    }
    return true;
}

const DigitPictures::Ink& DigitPictures::inkOf(QChar character, qreal offset)
{
    const int key = character.unicode() * kOffsets + static_cast<int>(offset * kOffsets);
    const auto found = m_inks.constFind(key);
    if (found != m_inks.constEnd())
        return *found;
    if (m_inks.size() >= kInksKept)
        m_inks.clear();
    const QString text(character);
    const QSize size(static_cast<int>(std::ceil(m_face.numberWidth(text))) + 1, m_face.height());
    QImage picture((size + QSize(2 * kMargin, 2 * kMargin)) * m_ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(m_ratio);
    picture.fill(m_ground);
    QPainter painter(&picture);
    painter.setPen(QColor::fromRgba(m_color));
    m_face.drawNumber(painter, QPointF(kMargin + offset / m_ratio, kMargin), text, TextSpan{0, size.width()});
    painter.end();
    return *m_inks.insert(key, inkIn(picture));
}

DigitPictures::Ink DigitPictures::inkIn(const QImage& picture) const
{
    QRect box;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != m_ground)
                box |= QRect(x, y, 1, 1);
        }
    }
    Ink ink{box.topLeft() - QPoint(kMargin, kMargin) * m_ratio, box.width(), box.height(), {}};
    for (int y = box.top(); y <= box.bottom(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        ink.pixels.insert(ink.pixels.end(), line + box.left(), line + box.right() + 1);
    }
    return ink;
}

void DigitPictures::clear(int width, int height)
{
    if (m_canvas.width() < width || m_canvas.height() < height)
        m_canvas = QImage(width, height, QImage::Format_RGB32);
    m_width = width;
    m_height = height;
    m_pixels = reinterpret_cast<QRgb*>(m_canvas.bits());
    m_stride = m_canvas.bytesPerLine() / static_cast<int>(sizeof(QRgb));
    for (int y = 0; y < height; ++y)
        std::fill_n(m_pixels + y * m_stride, width, m_ground);
}

bool DigitPictures::put(const Ink& ink, int left)
{
    if (ink.place.y() < 0 || ink.place.y() + ink.height > m_height)
        return ink.pixels.empty();
    const int begin = left + ink.place.x();
    const int first = std::max(0, -begin);
    const int last = std::min(ink.width, m_width - begin);
    bool areFree = true;
    for (int y = 0; y < ink.height; ++y) {
        const QRgb* const from = ink.pixels.data() + y * ink.width;
        QRgb* const to = m_pixels + (ink.place.y() + y) * m_stride + begin;
        for (int x = first; x < last; ++x) {
            areFree &= from[x] == m_ground || to[x] == m_ground;
            to[x] = from[x] == m_ground ? to[x] : from[x];
        }
    }
    return areFree;
}

DigitPictures& digitPictures(const Face& face, QRgb color, QRgb ground, int ratio)
{
    static auto* const kinds = new QCache<Kind, DigitPictures>(kKindsKept);
    const Kind kind{&face, color, ground, ratio};
    DigitPictures* pictures = kinds->object(kind);
    if (!pictures) {
        pictures = new DigitPictures(face, color, ground, ratio);
        kinds->insert(kind, pictures);
    }
    return *pictures;
}

} // namespace WQ::texts
