#include "reference/toolkit/Resources.h"

#include "reference/toolkit/ThemeStore.h"

#include <QGuiApplication>
#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

namespace WQ::resources {

namespace {

constexpr int kLargestEdge = 1024;
constexpr qreal kLargestRatio = 8;
constexpr int kImagesKept = 512;

const QColor kUnknownImage(0xff, 0x00, 0xff);

struct ImageKey
{
    QString key;
    QRgb tint;
    QSize size;
    qreal ratio;

    bool operator==(const ImageKey& other) const
    {
        return key == other.key && tint == other.tint && size == other.size && qFuzzyCompare(ratio, other.ratio);
    }
};

uint qHash(const ImageKey& image, uint seed = 0)
{
    return ::qHash(image.key, seed) ^ ::qHash(image.tint, seed) ^ ::qHash(image.size.width() * 4096, seed)
        ^ ::qHash(image.size.height(), seed);
}

QHash<ImageKey, QPixmap>& cache()
{
    static auto* const images = new QHash<ImageKey, QPixmap>;
    return *images;
}

void clearCache()
{
    cache().clear();
}

QPixmap draw(const ImageKey& image)
{
    QPixmap pixmap(image.size * image.ratio);
    pixmap.setDevicePixelRatio(image.ratio);
    pixmap.fill(Qt::transparent);
    const QString file = ThemeStore::instance().imageFile(image.key);
    const QRectF area(QPointF(), QSizeF(image.size));
    QPainter painter(&pixmap);
    if (file.isEmpty()) {
        painter.fillRect(area, kUnknownImage);
        return pixmap;
    }
    QSvgRenderer(file).render(&painter, area);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(area, QColor::fromRgba(image.tint));
    return pixmap;
}

qreal boundedRatio(qreal ratio)
{
    return ratio >= 0.1 ? std::min(ratio, kLargestRatio) : 1.0;
}

} // namespace

QPixmap image(const QString& key, const QColor& tint, QSize size, qreal pixelRatio)
{
    if (!qGuiApp || size.isEmpty())
        return {};
    const ImageKey wanted{key, tint.rgba(), size.boundedTo({kLargestEdge, kLargestEdge}), boundedRatio(pixelRatio)};
    const auto found = cache().constFind(wanted);
    if (found != cache().constEnd())
        return *found;
    // Pixmaps must be gone before the application is.
    if (cache().isEmpty())
        qAddPostRoutine(clearCache);
    if (cache().size() >= kImagesKept)
        cache().clear();
    return *cache().insert(wanted, draw(wanted));
}

} // namespace WQ::resources
