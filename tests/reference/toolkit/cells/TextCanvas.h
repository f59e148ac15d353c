#pragma once

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/cells/TextFace.h"

#include <QColor>
#include <QImage>

/// What texts are drawn on, and with, when their pixels are compared.
namespace text_canvas {

constexpr QRgb kGround = 0xff171b21;
constexpr QRgb kInk = 0xffe8ebf0;

inline const WQ::texts::Face& panelFace(double scale = 1.0)
{
    return WQ::texts::faceOf(WQ::resources::font(WQ::keys::kTextFont, scale));
}

/// 240 by 40 logical pixels of ground.
inline QImage canvas(int ratio)
{
    QImage image(QSize(240, 40) * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(kGround);
    return image;
}

} // namespace text_canvas
