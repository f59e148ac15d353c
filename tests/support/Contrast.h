#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

namespace support {

/// How bright an opaque colour is, from 0 to 1.
inline double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// How well two opaque colours are told apart, from 1 to 21: the ratio of their luminances.
inline double contrast(const QColor& one, const QColor& other)
{
    const double lighter = std::max(luminance(one), luminance(other));
    const double darker = std::min(luminance(one), luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace support
