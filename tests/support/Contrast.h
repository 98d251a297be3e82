#pragma once

#include <QImage>

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

/// Calls \a look with the place and the colour of every pixel of \a area.
template <class Look>
void eachPixel(const QImage& image, const QRect& area, Look look)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            look(QPoint(x, y), image.pixel(x, y));
        }
    }
}
