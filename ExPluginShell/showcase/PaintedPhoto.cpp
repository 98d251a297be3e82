#include "PaintedPhoto.h"

#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>

#include <cmath>

namespace
{

constexpr double horizon = 0.62; // parts of the height

void paintSky(QPainter& painter, double width, double height)
{
    QLinearGradient sky(0, 0, 0, height * horizon);
    sky.setColorAt(0.0, QColor(38, 56, 92));
    sky.setColorAt(0.55, QColor(148, 132, 158));
    sky.setColorAt(0.85, QColor(236, 172, 132));
    sky.setColorAt(1.0, QColor(250, 208, 150));
    painter.fillRect(QRectF(0, 0, width, height * horizon), sky);
    QRadialGradient sun(width * 0.68, height * 0.50, width * 0.22);
    sun.setColorAt(0.0, QColor(255, 244, 214, 255));
    sun.setColorAt(0.14, QColor(255, 236, 190, 235));
    sun.setColorAt(0.20, QColor(255, 214, 150, 120));
    sun.setColorAt(1.0, QColor(255, 190, 130, 0));
    painter.fillRect(QRectF(0, 0, width, height * horizon), sun);
}

/// A ridge of sums of sines, from far and pale to near and dark.
QPainterPath ridge(double width, double base, double relief, double phase)
{
    constexpr double step = 2.0;
    QPainterPath path(QPointF(0, base));
    for (double x = 0; x <= width + step; x += step) {
        const double t = x / width * 6.283 + phase;
        const double y = std::sin(t) + 0.5 * std::sin(2.3 * t + 1.0) + 0.24 * std::sin(5.1 * t + phase) +
                         0.10 * std::sin(11.7 * t) + 0.04 * std::sin(29.0 * t + 2.0);
        path.lineTo(x, base - relief * (1.15 + 0.6 * y));
    }
    path.lineTo(width, base);
    path.closeSubpath();
    return path;
}

void paintMountains(QPainter& painter, double width, double height)
{
    const struct {
        double relief;
        double phase;
        QColor top;
        QColor foot;
    } ridges[] = {
        {0.17, 0.4, {128, 122, 156}, {206, 164, 152}},
        {0.11, 2.1, {86, 90, 126}, {150, 128, 140}},
        {0.06, 4.0, {44, 52, 78}, {82, 80, 104}},
    };
    const double base = height * horizon;
    for (const auto& entry : ridges) {
        QLinearGradient slope(0, base - height * entry.relief * 2.0, 0, base);
        slope.setColorAt(0.0, entry.top);
        slope.setColorAt(1.0, entry.foot);
        painter.fillPath(ridge(width, base, height * entry.relief, entry.phase), slope);
    }
}

/// The lake mirrors what is above it, darker and drawn out by ripples.
void paintLake(QImage& image)
{
    const int shore = static_cast<int>(image.height() * horizon);
    for (int y = shore; y < image.height(); ++y) {
        const double depth = static_cast<double>(y - shore) / (image.height() - shore);
        const double ripple = 1.0 + 5.0 * depth;
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const double wave = std::sin(y * 0.9 + std::sin(x * 0.011) * 3.0) * ripple;
            const int mirrored = shore - 1 - static_cast<int>((y - shore) * 0.92 + wave);
            const QRgb above = image.pixel(x, qBound(0, mirrored, shore - 1));
            const double dim = 0.82 - 0.42 * depth;
            line[x] =
                qRgb(static_cast<int>(qRed(above) * dim * 0.92), static_cast<int>(qGreen(above) * dim * 0.97),
                     static_cast<int>(qBlue(above) * dim));
        }
    }
}

/// Darker corners and the grain of a sensor.
void develop(QImage& image)
{
    QRandomGenerator random(1839);
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const double dx = 2.0 * x / image.width() - 1.0;
            const double dy = 2.0 * y / image.height() - 1.0;
            const double light = 1.0 - 0.16 * (dx * dx + dy * dy);
            const int grain = static_cast<int>(random.bounded(13)) - 6;
            const auto channel = [&](int value) {
                return qBound(0, static_cast<int>(value * light) + grain, 255);
            };
            line[x] = qRgb(channel(qRed(line[x])), channel(qGreen(line[x])), channel(qBlue(line[x])));
        }
    }
}

} // namespace

QImage paintedPhoto(const QSize& size)
{
    QImage image(size.expandedTo({8, 8}), QImage::Format_RGB32);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        paintSky(painter, image.width(), image.height());
        paintMountains(painter, image.width(), image.height());
    }
    paintLake(image);
    develop(image);
    return image;
}
