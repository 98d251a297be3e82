#pragma once

#include <QColor>
#include <QHash>
#include <QImage>
#include <QPair>
#include <QSet>

#include <algorithm>
#include <cmath>

/// What a picture looks like to the eye.
namespace Pixels
{

inline qreal luminance(const QColor& colour)
{
    const auto part = [](qreal c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

/// Returns the contrast as defined by the Web Content Accessibility Guidelines.
inline qreal contrast(const QColor& one, const QColor& other)
{
    const qreal a = luminance(one) + 0.05;
    const qreal b = luminance(other) + 0.05;
    return qMax(a, b) / qMin(a, b);
}

inline QColor mostFrequent(const QImage& image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    return counts.isEmpty() ? QColor() : QColor(std::max_element(counts.cbegin(), counts.cend()).key());
}

/// Returns the contrast of \a ground with the pixel that stands out most.
inline qreal largestContrast(const QImage& image, const QColor& ground)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colours += image.pixel(x, y);
        }
    }
    qreal largest = 1;
    for (const QRgb colour : qAsConst(colours)) {
        largest = qMax(largest, contrast(QColor(colour), ground));
    }
    return largest;
}

/// Returns the contrast between the two colours of the pixel that changed most.
inline qreal largestChange(const QImage& before, const QImage& after)
{
    QSet<QPair<QRgb, QRgb>> changes;
    for (int y = 0; y < qMin(before.height(), after.height()); ++y) {
        for (int x = 0; x < qMin(before.width(), after.width()); ++x) {
            changes += {before.pixel(x, y), after.pixel(x, y)};
        }
    }
    qreal largest = 1;
    for (const auto& [was, is] : qAsConst(changes)) {
        largest = qMax(largest, contrast(QColor(was), QColor(is)));
    }
    return largest;
}

} // namespace Pixels
