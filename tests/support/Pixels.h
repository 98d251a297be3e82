#pragma once

#include "Contrast.h"

#include <QHash>
#include <QPair>
#include <QSet>

/// What a picture looks like to the eye.
namespace Pixels
{

inline QRgb mostFrequent(const QImage& image)
{
    QHash<QRgb, int> counts;
    eachPixel(image, image.rect(), [&](QPoint, QRgb colour) { ++counts[colour]; });
    return std::max_element(counts.cbegin(), counts.cend()).key();
}

/// Returns the contrast of \a ground with the pixel that stands out most.
inline double largestContrast(const QImage& image, QRgb ground)
{
    QSet<QRgb> colours;
    eachPixel(image, image.rect(), [&](QPoint, QRgb colour) { colours += colour; });
    double largest = 1;
    for (const QRgb colour : qAsConst(colours)) {
        largest = qMax(largest, contrast(colour, ground));
    }
    return largest;
}

/// Returns how many pixels changed by at least this contrast.
inline int countChanges(const QImage& before, const QImage& after, double least)
{
    QHash<QPair<QRgb, QRgb>, int> changes;
    eachPixel(before, before.rect() & after.rect(), [&](const QPoint& at, QRgb was) {
        if (was != after.pixel(at)) {
            ++changes[{was, after.pixel(at)}];
        }
    });
    int count = 0;
    for (auto it = changes.cbegin(); it != changes.cend(); ++it) {
        count += contrast(it.key().first, it.key().second) >= least ? it.value() : 0;
    }
    return count;
}

/// A picture that was enlarged loses nothing when it is made small and large again.
inline bool isBlurred(const QImage& image)
{
    const QImage drawn = image.convertToFormat(QImage::Format_RGB32);
    const QImage blurred = drawn.scaled(drawn.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                               .scaled(drawn.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int most = 0;
    eachPixel(drawn, drawn.rect(), [&](QPoint at, QRgb pixel) {
        most = qMax(most, qAbs(qGreen(pixel) - qGreen(blurred.pixel(at))));
    });
    return most < 20;
}

} // namespace Pixels
