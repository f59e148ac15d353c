#pragma once

#include <QPaintEngine>
#include <QPainter>
#include <QRectF>

#include <cmath>

namespace WQ {

/// Aligns what is painted to the device's pixels, at any pixel ratio and wherever the widget stands in its window:
/// lines are one device pixel, and neighbouring rows neither overlap nor leave a gap.
class DeviceGrid
{
public:
    explicit DeviceGrid(const QPainter& painter)
        : m_toDevice(painter.deviceTransform())
        , m_isRaster(painter.paintEngine()->type() == QPaintEngine::Raster)
    {
    }

    /// At which ratio pictures of what is painted again and again are kept: Qt draws them pixel by pixel at these
    /// alone. 0: there is none; printers and vector pictures want the real thing anyway.
    int pictureRatio() const
    {
        const bool isWhole =
            std::floor(m_toDevice.dx()) == m_toDevice.dx() && std::floor(m_toDevice.dy()) == m_toDevice.dy();
        if (!m_isRaster || m_toDevice.type() > QTransform::TxScale || !isWhole)
            return 0;
        for (const int ratio : {1, 2}) {
            if (m_toDevice.m11() == ratio && m_toDevice.m22() == ratio)
                return ratio;
        }
        return 0;
    }

    /// The pixels that a logical rectangle covers.
    QRectF aligned(const QRectF& rect) const
    {
        const QRectF device = m_toDevice.mapRect(rect);
        return fromDevice(std::round(device.left()), std::round(device.top()), std::round(device.right()),
                          std::round(device.bottom()));
    }

    /// The size of a device pixel.
    QSizeF pixel() const
    {
        return QSizeF(1 / m_toDevice.m11(), 1 / m_toDevice.m22());
    }

    /// Fills the last device pixel of @p rect.
    void fillBottomLine(QPainter& painter, const QRectF& rect, const QColor& color) const
    {
        const QRectF pixels = aligned(rect);
        painter.fillRect(QRectF(pixels.left(), pixels.bottom() - pixel().height(), pixels.width(), pixel().height()),
                         color);
    }

    /// A frame of one device pixel inside @p rect, as four filled lines.
    void fillFrame(QPainter& painter, const QRectF& rect, const QColor& color) const
    {
        const QRectF pixels = aligned(rect);
        const qreal w = pixel().width();
        const qreal h = pixel().height();
        painter.fillRect(QRectF(pixels.left(), pixels.top(), pixels.width(), h), color);
        painter.fillRect(QRectF(pixels.left(), pixels.bottom() - h, pixels.width(), h), color);
        painter.fillRect(QRectF(pixels.left(), pixels.top(), w, pixels.height()), color);
        painter.fillRect(QRectF(pixels.right() - w, pixels.top(), w, pixels.height()), color);
    }

private:
    QRectF fromDevice(qreal left, qreal top, qreal right, qreal bottom) const
    {
        const qreal x = m_toDevice.m11();
        const qreal y = m_toDevice.m22();
        return QRectF(QPointF((left - m_toDevice.dx()) / x, (top - m_toDevice.dy()) / y),
                      QPointF((right - m_toDevice.dx()) / x, (bottom - m_toDevice.dy()) / y));
    }

    QTransform m_toDevice;
    bool m_isRaster;
};

} // namespace WQ
