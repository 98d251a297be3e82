#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// Relative luminance and contrast as the Web Content Accessibility Guidelines (WCAG 2.1) define them.
inline double luminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double value = channel / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

inline double contrast(QRgb first, QRgb second)
{
    const auto [dark, light] = std::minmax({luminance(first), luminance(second)});
    return (light + 0.05) / (dark + 0.05);
}
