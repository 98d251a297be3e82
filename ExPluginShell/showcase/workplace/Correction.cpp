#include "Correction.h"

#include <QPainter>

#include <cmath>

namespace
{

constexpr double strongestDistortion = 0.28;

using Mapping = std::function<QPointF(const QPointF&)>;

/// A picture of \a size whose pixel p shows the pixel back(p) of \a source. Between the corners of cells the
/// mapping is taken as a perspective, which is exact if it is one.
QImage warped(const QImage& source, const QSize& size, int columns, const Mapping& back,
              const Progress& progress)
{
    QImage result(size, QImage::Format_RGB32);
    uchar* const bits = result.bits();
    const bool finished = forBands(size.height(), progress, [&](int top, int bottom) {
        QImage rows = band(bits, result, top, bottom);
        QPainter painter(&rows);
        painter.fillRect(rows.rect(), Qt::black);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        for (int column = 0; column < columns; ++column) {
            const QRect cell(QPoint(size.width() * column / columns, top),
                             QPoint(size.width() * (column + 1) / columns - 1, bottom - 1));
            const QRectF target(cell);
            const QPolygonF corners{QVector<QPointF>{target.topLeft(), target.topRight(),
                                                     target.bottomRight(), target.bottomLeft()}};
            QPolygonF origin;
            for (const QPointF& corner : corners) {
                origin += back(corner);
            }
            QTransform transform;
            if (!QTransform::quadToQuad(origin, corners, transform)) {
                continue;
            }
            const QRectF part = origin.boundingRect().adjusted(-3, -3, 3, 3) & QRectF(source.rect());
            const QRectF whole(part.toAlignedRect() & source.rect());
            painter.resetTransform();
            painter.setClipRect(cell.translated(0, -top));
            painter.setTransform(transform * QTransform::fromTranslate(0, -top));
            painter.drawImage(whole, source, whole);
        }
    });
    return finished ? result : QImage();
}

/// Turns the picture and enlarges it until its corners are filled.
QTransform turned(const Step& step, const QSizeF& size)
{
    const double radians = std::abs(step.angle()) * M_PI / 180.0;
    const double longer = std::max(size.width(), size.height());
    const double shorter = std::min(size.width(), size.height());
    const double scale = std::cos(radians) + longer / shorter * std::sin(radians);
    QTransform transform;
    transform.translate(size.width() / 2, size.height() / 2);
    transform.rotate(step.angle()); // clockwise on the way back
    transform.scale(1 / scale, 1 / scale);
    transform.translate(-size.width() / 2, -size.height() / 2);
    return transform;
}

/// Sets both lines upright: the trapezium between them becomes a rectangle.
QTransform upright(const Step& step, const QSizeF& size)
{
    const auto at = [&](const QLineF& line, double y) {
        const double t = (y - line.y1()) / (line.y2() - line.y1());
        return QPointF(line.pointAt(t).x() * size.width(), y * size.height());
    };
    const QLineF& left = step.lines.at(0);
    const QLineF& right = step.lines.at(1);
    const double middleLeft = at(left, 0.5).x();
    const double middleRight = at(right, 0.5).x();
    const QPolygonF leaning{QVector<QPointF>{at(left, 0), at(right, 0), at(right, 1), at(left, 1)}};
    const QPolygonF straight{QVector<QPointF>{
        {middleLeft, 0}, {middleRight, 0}, {middleRight, size.height()}, {middleLeft, size.height()}}};
    QTransform back;
    if (std::abs(left.dy()) < 0.05 || std::abs(right.dy()) < 0.05 ||
        !QTransform::quadToQuad(straight, leaning, back)) {
        return {};
    }
    // Enlarged about the middle until all four corners come from inside the picture.
    const QRectF all(QPointF(), size);
    for (double scale = 1.0; scale > 0.5; scale -= 0.01) {
        QTransform smaller = QTransform::fromTranslate(-size.width() / 2, -size.height() / 2) *
                             QTransform::fromScale(scale, scale) *
                             QTransform::fromTranslate(size.width() / 2, size.height() / 2) * back;
        const QPolygonF quad = smaller.map(QPolygonF(all));
        if (std::all_of(quad.begin(), quad.end(),
                        [&](const QPointF& p) { return all.adjusted(-1, -1, 1, 1).contains(p); })) {
            return smaller;
        }
    }
    return back;
}

/// A point is moved along its ray from the middle by the square of its distance.
Mapping radial(double amount, const QSizeF& size)
{
    const QPointF middle(size.width() / 2, size.height() / 2);
    const double k = amount * strongestDistortion;
    const double reach = QPointF::dotProduct(middle, middle);
    const double fill =
        k > 0 ? 1 / (1 + k)
              : 1 / (1 + k * std::min(middle.x(), middle.y()) * std::min(middle.x(), middle.y()) / reach);
    return [=](const QPointF& point) {
        const QPointF way = point - middle;
        return middle + way * (1 + k * QPointF::dotProduct(way, way) / reach) * fill;
    };
}

/// \a source in a smaller \a size.
QImage reduced(const QImage& source, const QSize& size, const Progress& progress)
{
    QImage result(size, QImage::Format_RGB32);
    uchar* const bits = result.bits();
    forBands(size.height(), progress, [&](int top, int bottom) {
        const int from = int(qint64(top) * source.height() / size.height());
        const int to = int(qint64(bottom) * source.height() / size.height());
        QImage rows = band(bits, result, top, bottom);
        QPainter(&rows).drawImage(0, 0,
                                  source.copy(0, from, source.width(), to - from)
                                      .scaled(rows.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    });
    return result;
}

/// The picture, blurred away from the line of focus.
QImage tiltShifted(const QImage& source, const Step& step, const Progress& progress)
{
    const double factor = 1 + step.amount * source.width() / 90.0;
    const QSize small(std::max(2, int(source.width() / factor)), std::max(2, int(source.height() / factor)));
    const QImage soft = reduced(source, small, partOf(progress, 0.0, 0.4))
                            .scaled((small + source.size()) / 2 / std::max(1.0, factor / 4),
                                    Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QPointF centre(step.focus.x1() * source.width(), step.focus.y1() * source.height());
    const QPointF end(step.focus.x2() * source.width(), step.focus.y2() * source.height());
    const QLineF across = QLineF(centre, end).unitVector().normalVector();
    const QPointF reach = QPointF(across.dx(), across.dy()) * step.width * source.height() * 2;
    QLinearGradient fade(centre - reach, centre + reach);
    for (const double part : {0.0, 0.5, 1.0}) {
        fade.setColorAt(part == 0.5 ? 0.42 : part, QColor(0, 0, 0, part == 0.5 ? 0 : 255));
    }
    fade.setColorAt(0.58, QColor(0, 0, 0, 0));

    QImage result = source.convertToFormat(QImage::Format_RGB32);
    uchar* const bits = result.bits();
    const bool finished = forBands(source.height(), partOf(progress, 0.4, 0.6), [&](int top, int bottom) {
        QImage veil(source.width(), bottom - top, QImage::Format_ARGB32_Premultiplied);
        veil.fill(Qt::transparent);
        {
            QPainter painter(&veil);
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.translate(0, -top);
            painter.drawImage(QRectF(source.rect()), soft);
            painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
            painter.fillRect(source.rect(), fade);
        }
        QImage rows = band(bits, result, top, bottom);
        QPainter(&rows).drawImage(0, 0, veil);
    });
    return finished ? result : QImage();
}

} // namespace

QString moduleOf(Tool tool)
{
    constexpr const char* names[toolCount] = {"Horizon", "Keystoning", "Distortion", "Crop", "TiltShift"};
    return QString::fromLatin1(names[int(tool)]);
}

//! [code]
QImage corrected(const QImage& picture, const Step& step, const Progress& progress)
{
    const QSize size = picture.size();
    constexpr int meshColumns = 24;
    const auto through = [](const QTransform& transform) {
        return [transform](const QPointF& point) { return transform.map(point); };
    };
    switch (step.tool) {
    case Tool::Horizon:
        return warped(picture, size, 1, through(turned(step, size)), progress);
    case Tool::Keystoning:
        return warped(picture, size, 1, through(upright(step, size)), progress);
    case Tool::Distortion:
        return warped(picture, size, meshColumns, radial(step.amount, size), progress);
    case Tool::Crop:
        return picture.copy(QRectF(step.area.x() * size.width(), step.area.y() * size.height(),
                                   step.area.width() * size.width(), step.area.height() * size.height())
                                .toRect());
    case Tool::TiltShift:
        return tiltShifted(picture, step, progress);
    }
    return {};
}
//! [code]

Step Step::startOf(Tool tool, double aspect)
{
    Step step;
    step.tool = tool;
    step.aspect = aspect;
    if (tool == Tool::Horizon) {
        step.lines = {QLineF(0.12, 0.5, 0.88, 0.5)};
    } else if (tool == Tool::Keystoning) {
        step.lines = {QLineF(0.25, 0.88, 0.25, 0.12), QLineF(0.75, 0.88, 0.75, 0.12)};
    } else if (tool == Tool::TiltShift) {
        step.amount = 0.35;
    }
    return step;
}

double Step::angle() const
{
    if (lines.isEmpty()) {
        return 0.0;
    }
    const QLineF& line = lines.first();
    return std::remainder(QLineF(line.x1() * aspect, line.y1(), line.x2() * aspect, line.y2()).angle(),
                          180.0) *
           -1.0;
}

void Step::setAngle(double degrees)
{
    QLineF& line = lines.first();
    QLineF real(line.x1() * aspect, line.y1(), line.x2() * aspect, line.y2());
    const QPointF centre = real.center();
    real.setAngle(-degrees);
    real.translate(centre - real.center());
    line = QLineF(real.x1() / aspect, real.y1(), real.x2() / aspect, real.y2());
}

QVariantList Step::toList() const
{
    QVariantList stored{int(tool), amount, area, focus, width, aspect};
    for (const QLineF& line : lines) {
        stored += line;
    }
    return stored;
}

Step Step::fromList(const QVariantList& stored)
{
    Step step;
    step.tool = Tool(qBound(0, stored.value(0).toInt(), toolCount - 1));
    step.amount = stored.value(1).toDouble();
    step.area = stored.value(2).toRectF();
    step.focus = stored.value(3).toLineF();
    step.width = stored.value(4).toDouble();
    step.aspect = stored.value(5).toDouble();
    for (const QVariant& line : stored.mid(6)) {
        step.lines += line.toLineF();
    }
    return step;
}
