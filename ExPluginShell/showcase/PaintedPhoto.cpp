#include "PaintedPhoto.h"

#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <QTransform>

#include <cmath>

namespace
{

// The scene is painted upright and level on 1500 x 1000 units, then photographed at a tilt.
constexpr double sceneWidth = 1500.0;
constexpr double sceneHeight = 1060.0;
constexpr double quay = 760.0; // where the houses stand
constexpr double tilt = 2.4;   // degrees by which the camera was turned
constexpr double lean = 0.085; // part of the width by which each upright edge falls inwards at the top

/// A gradient from \a from to \a to.
QLinearGradient shade(const QPointF& from, const QPointF& to, const QColor& first, const QColor& last)
{
    QLinearGradient gradient(from, to);
    gradient.setColorAt(0.0, first);
    gradient.setColorAt(1.0, last);
    return gradient;
}

void paintSky(QPainter& painter)
{
    QLinearGradient sky = shade({0, 0}, {0, quay}, {30, 58, 104}, {252, 214, 160});
    sky.setColorAt(0.45, QColor(96, 124, 168));
    sky.setColorAt(0.78, QColor(226, 176, 148));
    painter.fillRect(QRectF(-400, -400, sceneWidth + 800, quay + 400), sky);
    QRadialGradient sun(1130, 640, 520);
    sun.setColorAt(0.0, QColor(255, 240, 205, 230));
    sun.setColorAt(0.25, QColor(255, 214, 150, 110));
    sun.setColorAt(1.0, QColor(255, 190, 130, 0));
    painter.fillRect(QRectF(0, 0, sceneWidth, quay), sun);
    QRandomGenerator random(7);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 232, 214, 9));
    for (int puff = 0; puff < 99; ++puff) {
        const QPointF cloud((puff / 11) * 179 % 1500, 90 + (puff / 11) * 97 % 330);
        const double across = 60 + random.bounded(150);
        painter.drawEllipse(cloud + QPointF(random.bounded(240) - 120, random.bounded(24) - 12), across,
                            across * 0.12);
    }
}

/// A ridge of hills, \a phase along its waves.
void paintHills(QPainter& painter, double height, double phase, const QColor& color)
{
    QPainterPath ridge(QPointF(-400, quay));
    for (double x = -400; x <= sceneWidth + 400; x += 6) {
        const double t = x / 210 + phase;
        ridge.lineTo(x, quay - height * (1.1 + 0.5 * std::sin(t) + 0.22 * std::sin(2.7 * t)));
    }
    ridge.lineTo(sceneWidth + 400, quay);
    painter.fillPath(ridge, color);
}

void paintWindows(QPainter& painter, const QRectF& wall, int columns, int rows, QRandomGenerator& random)
{
    const double stepX = wall.width() / columns;
    const double stepY = (wall.height() - 70) / rows;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const QRectF window(wall.x() + stepX * (column + 0.28), wall.y() + 20 + stepY * (row + 0.18),
                                stepX * 0.44, stepY * 0.6);
            const bool lit = random.bounded(100) < 22;
            painter.fillRect(window.adjusted(-3, -3, 3, 5), QColor(240, 232, 218, 190));
            painter.fillRect(window, shade(window.topLeft(), window.bottomRight(),
                                           lit ? QColor(255, 222, 150) : QColor(58, 70, 92),
                                           lit ? QColor(240, 170, 90) : QColor(112, 126, 148)));
            painter.fillRect(QRectF(window.center().x() - 1, window.y(), 2, window.height()),
                             QColor(240, 232, 218));
            painter.fillRect(QRectF(window.x(), window.y() + window.height() * 0.4, window.width(), 2),
                             QColor(240, 232, 218));
        }
    }
}

void paintHouse(QPainter& painter, const QRectF& wall, const QColor& color, int gable,
                QRandomGenerator& random)
{
    painter.fillRect(wall, shade(wall.topLeft(), wall.topRight(), color.darker(122), color.lighter(104)));
    const double step = wall.width() / 9;
    QPolygonF roof;
    if (gable == 0) { // a pointed gable
        roof << wall.topLeft() - QPointF(6, 0) << QPointF(wall.center().x(), wall.top() - wall.width() * 0.55)
             << wall.topRight() + QPointF(6, 0);
    } else if (gable == 1) { // a stepped one
        for (int i = 0; i < 9; ++i) {
            const double height = step * (i < 5 ? i : 8 - i);
            roof << wall.topLeft() + QPointF(step * i, -height)
                 << wall.topLeft() + QPointF(step * (i + 1), -height);
        }
    } else { // a hipped roof
        roof << wall.topLeft() - QPointF(8, 0) << wall.topLeft() + QPointF(wall.width() * 0.2, -66)
             << wall.topLeft() + QPointF(wall.width() * 0.8, -66) << wall.topRight() + QPointF(8, 0);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(gable == 1 ? color.darker(106) : QColor(112, 62, 52));
    painter.drawPolygon(roof);
    paintWindows(painter, wall, std::max(2, int(wall.width() / 52)), std::max(3, int(wall.height() / 92)),
                 random);
    painter.fillRect(QRectF(wall.center().x() - 17, wall.bottom() - 58, 34, 58), QColor(66, 44, 38));
    painter.fillRect(QRectF(wall.left(), wall.top(), wall.width(), 7), QColor(245, 236, 220, 180));
}

void paintTower(QPainter& painter, const QRectF& wall)
{
    painter.fillRect(wall, shade(wall.topLeft(), wall.topRight(), {122, 104, 92}, {206, 178, 148}));
    for (double y = wall.top() + 150; y < wall.bottom() - 40; y += 118) {
        painter.fillRect(QRectF(wall.left() - 5, y, wall.width() + 10, 8), QColor(232, 214, 188));
        painter.fillRect(QRectF(wall.center().x() - 11, y + 34, 22, 52), QColor(56, 52, 58));
    }
    painter.setBrush(QColor(244, 238, 224));
    painter.setPen(QPen(QColor(72, 60, 52), 5));
    const QPointF clock(wall.center().x(), wall.top() + 74);
    painter.drawEllipse(clock, 38, 38);
    painter.drawLine(clock, clock + QPointF(0, -28));
    painter.drawLine(clock, clock + QPointF(19, 9));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(66, 96, 98));
    painter.drawPolygon(QPolygonF({wall.topLeft() - QPointF(12, 0),
                                   {wall.center().x(), wall.top() - 178},
                                   wall.topRight() + QPointF(12, 0)}));
}

void paintTown(QPainter& painter)
{
    QRandomGenerator random(1839);
    const QColor colors[] = {{186, 96, 74},   {222, 178, 112}, {150, 84, 70},   {206, 196, 176},
                             {122, 132, 126}, {198, 134, 90},  {214, 202, 170}, {160, 102, 86}};
    double x = -210;
    for (int house = 0; x < sceneWidth + 200; ++house) {
        const double width = 118 + random.bounded(70);
        const double height = 250 + random.bounded(150);
        paintHouse(painter, QRectF(x, quay - height, width, height), colors[house % 8], house % 3, random);
        x += width + 1;
        if (house == 5) {
            paintTower(painter, QRectF(x, quay - 560, 128, 560));
            x += 129;
        }
    }
    painter.fillRect(QRectF(-400, quay - 6, sceneWidth + 800, 26), QColor(92, 84, 80));
    painter.fillRect(QRectF(-400, quay + 8, sceneWidth + 800, 22), QColor(58, 54, 56));
}

/// The rows of the water from \a top to \a bottom mirror the town, darker and drawn out by ripples.
void paintWater(const QImage& scene, uchar* bits, double scale, int top, int bottom)
{
    const int shore = int((quay + 28) * scale);
    for (int y = std::max(top, shore); y < bottom; ++y) {
        const double depth = double(y - shore) / (scene.height() - shore);
        const double height = (1.5 + 9.0 * depth) * scale;
        const int dim = int((0.74 - 0.3 * depth) * 256);
        const double mirror = shore - 30 * scale - (y - shore) * 1.9;
        auto* const line = reinterpret_cast<QRgb*>(bits + y * scene.bytesPerLine());
        for (int x = 0; x < scene.width(); ++x) {
            const double ripple = std::sin(y / scale * 0.75 + std::sin(x / scale * 0.02) * 2.5) * height;
            const int row = qBound(0, int(mirror - ripple), shore - 1);
            const QRgb above = reinterpret_cast<const QRgb*>(scene.constScanLine(row))[x];
            line[x] =
                qRgb(qRed(above) * dim * 220 >> 16, qGreen(above) * dim * 246 >> 16, qBlue(above) * dim >> 8);
        }
    }
}

/// Darker corners and the grain of a sensor, for the rows of a picture of \a size that begin at \a top.
void develop(QImage& rows, const QSize& size, int top)
{
    for (int y = 0; y < rows.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(rows.scanLine(y));
        const double dy = 2.0 * (top + y) / size.height() - 1.0;
        quint32 noise = 1839 + quint32(top + y) * 2654435761u;
        for (int x = 0; x < size.width(); ++x) {
            const double dx = 2.0 * x / size.width() - 1.0;
            const int light = int(256 - 40 * (dx * dx + dy * dy));
            noise = noise * 1664525 + 1013904223;
            const int grain = int(noise >> 29) - 4;
            const auto channel = [&](int value) { return qBound(0, (value * light >> 8) + grain, 255); };
            line[x] = qRgb(channel(qRed(line[x])), channel(qGreen(line[x])), channel(qBlue(line[x])));
        }
    }
}

/// From the scene to a picture of \a size: uprights converge, as with a camera pointed upwards, and the
/// horizon leans.
QTransform throughTheLens(const QSizeF& size)
{
    const double margin = 110; // of the scene, never in the picture
    QPolygonF frame(QRectF(margin, 0, sceneWidth - 2 * margin, sceneHeight - 60));
    frame.removeLast(); // the first corner again
    const QPolygonF seen{QVector<QPointF>{{size.width() * lean, 0},
                                          {size.width() * (1 - lean), 0},
                                          {size.width() * 1.02, size.height()},
                                          {-size.width() * 0.02, size.height()}}};
    QTransform keystone;
    QTransform::quadToQuad(frame, seen, keystone);
    const QPointF middle(size.width() / 2, size.height() / 2);
    return keystone * QTransform::fromTranslate(-middle.x(), -middle.y()) *
           QTransform().rotate(tilt).scale(1.08, 1.08) * QTransform::fromTranslate(middle.x(), middle.y());
}

} // namespace

QImage paintedPhoto(const QSize& size, const Progress& progress)
{
    const double scale = std::max(size.width() / sceneWidth, size.height() / sceneHeight);
    QImage scene(QSize(int(sceneWidth * scale) + 1, int(sceneHeight * scale) + 1), QImage::Format_RGB32);
    uchar* const sceneBits = scene.bits();
    QImage photo(size, QImage::Format_RGB32);
    uchar* const photoBits = photo.bits();
    const auto paint = [&](int top, int bottom) {
        QImage rows = band(sceneBits, scene, top, bottom);
        QPainter painter(&rows);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(0, -top);
        painter.scale(scale, scale);
        paintSky(painter);
        paintHills(painter, 120, 0.4, {136, 138, 166});
        paintHills(painter, 74, 2.2, {96, 104, 136});
        paintTown(painter);
    };
    const auto flood = [&](int top, int bottom) { paintWater(scene, sceneBits, scale, top, bottom); };
    const auto take = [&](int top, int bottom) {
        QImage rows = band(photoBits, photo, top, bottom);
        rows.fill(QColor(30, 58, 104));
        QPainter painter(&rows);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setTransform(QTransform::fromScale(1 / scale, 1 / scale) * throughTheLens(size) *
                             QTransform::fromTranslate(0, -top));
        painter.drawImage(0, 0, scene);
        painter.end();
        develop(rows, size, top);
    };
    const bool finished = forBands(scene.height(), partOf(progress, 0.0, 0.4), paint) &&
                          forBands(scene.height(), partOf(progress, 0.4, 0.2), flood) &&
                          forBands(size.height(), partOf(progress, 0.6, 0.4), take);
    return finished ? photo : QImage();
}
