#include "reference/toolkit/cells/TextCache.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QHash>
#include <QPainter>
#include <QStaticText>

#include <algorithm>
#include <cmath>

namespace WQ::texts {

namespace {

constexpr int kTextsKept = 1024;
constexpr int kLongestKept = 64;
constexpr int kLongestShown = 256;

struct TextKey
{
    QString text;
    QString family;
    int pixels;
    int weight;

    bool operator==(const TextKey& other) const
    {
        return pixels == other.pixels && weight == other.weight && text == other.text && family == other.family;
    }
};

uint qHash(const TextKey& key, uint seed = 0)
{
    return ::qHash(key.text, seed) ^ static_cast<uint>(key.pixels * 31 + key.weight);
}

struct PreparedText
{
    QStaticText text;
    int width = 0;
};

PreparedText prepared(const QString& text, const QFont& font)
{
    PreparedText made;
    made.text.setTextFormat(Qt::PlainText);
    made.text.setText(text);
    made.text.prepare(QTransform(), font);
    made.width = static_cast<int>(std::ceil(made.text.size().width()));
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

const PreparedText& kept(const QString& text, const QFont& font)
{
    QHash<TextKey, PreparedText>& texts = cache();
    const TextKey key{text, font.family(), font.pixelSize(), font.weight()};
    const auto found = texts.constFind(key);
    if (found != texts.constEnd())
        return *found;
    // Prepared texts hold fonts, which must be gone before the application is.
    if (texts.isEmpty())
        qAddPostRoutine(clearCache);
    if (texts.size() >= kTextsKept)
        texts.clear();
    return *texts.insert(key, prepared(text, font));
}

bool breaksLine(QChar c)
{
    return c < QLatin1Char(' ') || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

} // namespace

int width(const QString& text, const QFont& font)
{
    if (text.isEmpty())
        return 0;
    if (text.size() <= kLongestKept)
        return kept(text, font).width;
    return QFontMetrics(font).horizontalAdvance(text) + 1;
}

void draw(QPainter& painter, QPoint position, const QString& text, const QFont& font)
{
    if (text.isEmpty())
        return;
    if (text.size() <= kLongestKept) {
        painter.drawStaticText(position, kept(text, font).text);
        return;
    }
    painter.drawText(position + QPoint(0, QFontMetrics(font).ascent()), text);
}

QString elided(const QString& text, const QFont& font, int room)
{
    if (width(text, font) <= room)
        return text;
    return room <= 0 ? QString() : QFontMetrics(font).elidedText(text, Qt::ElideRight, room);
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

} // namespace WQ::texts
