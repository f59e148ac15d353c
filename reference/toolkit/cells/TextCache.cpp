#include "reference/toolkit/cells/TextCache.h"

#include "reference/toolkit/cells/DigitPictures.h"
#include "reference/toolkit/cells/TextFace.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QHash>
#include <QPainter>
#include <QPixmapCache>
#include <QStaticText>

#include <algorithm>
#include <cmath>

namespace WQ::texts {

namespace {

constexpr int kTextsKept = 1024;
constexpr int kLongestKept = 64;
constexpr int kLongestShown = 256;

// Around a text in its picture: glyphs may reach over their own width and the height of the line.
constexpr int kMargin = 2;

struct TextKey
{
    QString text;
    const Face* face;

    bool operator==(const TextKey& other) const
    {
        return face == other.face && text == other.text;
    }
};

uint qHash(const TextKey& key, uint seed = 0)
{
    return ::qHash(key.text, seed) ^ ::qHash(key.face, seed);
}

struct PreparedText
{
    QStaticText text;
    int width = 0;
    int height = 0;
};

PreparedText prepared(const QString& text, const QFont& font)
{
    PreparedText made;
    made.text.setTextFormat(Qt::PlainText);
    made.text.setText(text);
    made.text.prepare(QTransform(), font);
    made.width = static_cast<int>(std::ceil(made.text.size().width()));
    made.height = static_cast<int>(std::ceil(made.text.size().height()));
    return made;
}

QHash<TextKey, PreparedText>& cache()
{
    static auto* const texts = new QHash<TextKey, PreparedText>;
    return *texts;
}

void clearCache()
{
    cache().clear();
}

const PreparedText& kept(const QString& text, const Face& face)
{
    QHash<TextKey, PreparedText>& texts = cache();
    const TextKey key{text, &face};
    const auto found = texts.constFind(key);
    if (found != texts.constEnd())
        return *found;
    // Prepared texts hold fonts, which must be gone before the application is.
    if (texts.isEmpty())
        qAddPostRoutine(clearCache);
    if (texts.size() >= kTextsKept)
        texts.clear();
    return *texts.insert(key, prepared(text, face.font()));
}

bool breaksLine(QChar c)
{
    return c < QLatin1Char(' ') || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

void append(QString& key, quint64 number)
{
    for (int shift = 0; shift < 64; shift += 16)
        key += QChar(static_cast<ushort>(number >> shift));
}

QString pictureKey(const QString& text, const Face& face, QRgb color, QRgb ground, int ratio)
{
    constexpr int kNumbers = 10;
    QString key;
    key.reserve(text.size() + kNumbers);
    key += text;
    append(key, reinterpret_cast<quintptr>(&face));
    append(key, (quint64(color) << 32) + ground);
    key += QChar(static_cast<ushort>(ratio));
    return key;
}

QSize sizeOf(const QString& text, const Face& face)
{
    return face.isNumber(text) ? QSize(width(text, face), face.height())
                               : QSize(kept(text, face).width, kept(text, face).height);
}

QPixmap pictureOf(const QString& text, const Face& face, const QColor& color, const QColor& ground, int ratio)
{
    QPixmap picture((sizeOf(text, face) + QSize(2 * kMargin, 2 * kMargin)) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(ground);
    QPainter painter(&picture);
    painter.setPen(color);
    const QPoint position(kMargin, kMargin);
    if (face.isNumber(text)) {
        face.drawNumber(painter, position, text, TextSpan{0, picture.width()});
    } else {
        painter.setFont(face.font());
        painter.drawStaticText(position, kept(text, face).text);
    }
    return picture;
}

} // namespace

int width(const QString& text, const Face& face)
{
    if (text.isEmpty())
        return 0;
    if (face.isNumber(text))
        return static_cast<int>(std::ceil(face.numberWidth(text)));
    if (text.size() <= kLongestKept)
        return kept(text, face).width;
    return QFontMetrics(face.font()).horizontalAdvance(text) + 1;
}

QString elided(const QString& text, const Face& face, int room)
{
    if (width(text, face) <= room)
        return text;
    return room <= 0 ? QString() : QFontMetrics(face.font()).elidedText(text, Qt::ElideRight, room);
}

QString oneLine(const QString& text)
{
    if (text.size() <= kLongestShown && std::none_of(text.begin(), text.end(), breaksLine))
        return text;
    QString line = text.left(kLongestShown);
    std::replace_if(line.begin(), line.end(), breaksLine, QLatin1Char(' '));
    if (text.size() > kLongestShown)
        line += QChar(0x2026);
    return line;
}

Pen::Pen(QPainter& painter, const Face& face, int pictureRatio, const QRect& seen)
    : m_painter(painter)
    , m_face(face)
    , m_pictureRatio(pictureRatio)
    , m_seen(seen)
{
}

void Pen::draw(const QRect& area, const QString& text, const QColor& color, const QColor& ground)
{
    if (text.isEmpty())
        return;
    const QPoint position(area.left(), area.top() + (area.height() - m_face.height()) / 2);
    const bool isNumber = m_face.isNumber(text);
    // A number that is seen whole comes back as it is; of one that changes only the new digits are seen.
    const bool comesBack = isNumber ? m_seen.contains(area) : text.size() <= kLongestKept;
    if (m_pictureRatio > 0 && comesBack)
        drawPicture(position, area, text, color, ground);
    else if (isNumber)
        drawDigits(position, text, color, ground);
    else
        drawDirectly(position, text, color);
}

void Pen::drawPicture(const QPoint& position, const QRect& area, const QString& text, const QColor& color,
                      const QColor& ground)
{
    const QString key = pictureKey(text, m_face, color.rgba(), ground.rgba(), m_pictureRatio);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = pictureOf(text, m_face, color, ground, m_pictureRatio);
        QPixmapCache::insert(key, picture);
    }
    const QRect whole(position - QPoint(kMargin, kMargin), picture.size() / m_pictureRatio);
    const QRect seen(QPoint(whole.left(), std::max(whole.top(), area.top())),
                     QPoint(whole.right(), std::min(whole.bottom(), area.bottom())));
    const QPoint cut = (seen.topLeft() - whole.topLeft()) * m_pictureRatio;
    m_painter.drawPixmap(seen, picture, QRect(cut, seen.size() * m_pictureRatio));
}

void Pen::drawDigits(const QPoint& position, const QString& text, const QColor& color, const QColor& ground)
{
    const TextSpan seen{m_seen.left() - position.x(), m_seen.width()};
    if (m_pictureRatio > 0
        && digitPictures(m_face, color.rgba(), ground.rgba(), m_pictureRatio).draw(m_painter, position, text, seen))
        return;
    m_painter.setPen(color);
    m_face.drawNumber(m_painter, position, text, seen);
}

void Pen::drawDirectly(const QPoint& position, const QString& text, const QColor& color)
{
    m_painter.setPen(color);
    if (!m_fontSet)
        m_painter.setFont(m_face.font());
    m_fontSet = true;
    if (text.size() <= kLongestKept)
        m_painter.drawStaticText(position, kept(text, m_face).text);
    else
        m_painter.drawText(position + QPoint(0, QFontMetrics(m_face.font()).ascent()), text);
}

} // namespace WQ::texts
