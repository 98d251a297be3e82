#include "Guides.h"

#include <utilsDll/GuiUtils.h>

#include <cmath>

using namespace TOLVAN_NAMESPACE;

namespace
{

constexpr double smallestCrop = 0.05;

QLineF acrossFocus(const Step& step)
{
    const QLineF along(step.focus.x1() * step.aspect, step.focus.y1(), step.focus.x2() * step.aspect,
                       step.focus.y2());
    const QLineF normal = along.unitVector().normalVector();
    return QLineF(0, 0, normal.dx() / step.aspect, normal.dy());
}

void moveCorner(QRectF& area, int corner, const QPointF& point)
{
    if (corner % 2 == 0) {
        area.setLeft(std::min(point.x(), area.right() - smallestCrop));
    } else {
        area.setRight(std::max(point.x(), area.left() + smallestCrop));
    }
    if (corner < 2) {
        area.setTop(std::min(point.y(), area.bottom() - smallestCrop));
    } else {
        area.setBottom(std::max(point.y(), area.top() + smallestCrop));
    }
}

void moveFocus(Step& step, int grip, const QPointF& point)
{
    if (grip == 0) {
        step.focus.translate(point - step.focus.p1());
    } else if (grip == 1) {
        if (QLineF(step.focus.p1(), point).length() > 0.03) {
            step.focus.setP2(point);
        }
    } else {
        const QLineF across = acrossFocus(step);
        const QPointF way = point - step.focus.p1();
        const double length = way.x() * across.dx() * step.aspect * step.aspect + way.y() * across.dy();
        step.width = qBound(0.03, std::abs(length), 0.6);
    }
}

} // namespace

QVector<QLineF> Guides::lines(const Step& step)
{
    if (step.tool != Tool::TiltShift) {
        return step.lines;
    }
    const QLineF across = acrossFocus(step);
    const QPointF shift = QPointF(across.dx(), across.dy()) * step.width;
    const QPointF middle = step.focus.p1();
    const QPointF half = step.focus.p2() - middle;
    const QLineF whole(middle - half, middle + half);
    return {whole, whole.translated(shift), whole.translated(-shift)};
}

QVector<QPointF> Guides::grips(const Step& step)
{
    QVector<QPointF> points;
    if (step.tool == Tool::Crop) {
        return {step.area.topLeft(), step.area.topRight(), step.area.bottomLeft(), step.area.bottomRight()};
    }
    if (step.tool == Tool::TiltShift) {
        const QLineF across = acrossFocus(step);
        return {step.focus.p1(), step.focus.p2(),
                step.focus.p1() + QPointF(across.dx(), across.dy()) * step.width};
    }
    for (const QLineF& line : step.lines) {
        points << line.p1() << line.p2();
    }
    return points;
}

void Guides::moveGrip(Step& step, int index, const QPointF& point)
{
    if (step.tool == Tool::Crop) {
        moveCorner(step.area, index, point);
    } else if (step.tool == Tool::TiltShift) {
        moveFocus(step, index, point);
    } else if (index / 2 < step.lines.size()) {
        QLineF& line = step.lines[index / 2];
        line = index % 2 == 0 ? QLineF(point, line.p2()) : QLineF(line.p1(), point);
    }
}

//! [code]
QPointF Guides::snapped(const QPointF& point, const QVector<QLineF>& others, const QSizeF& size, double reach)
{
    QVector<QLineF> lines = others;
    for (const double part : {0.0, 1.0 / 3, 0.5, 2.0 / 3, 1.0}) {
        lines += QLineF(0, size.height() * part, size.width(), size.height() * part);
        lines += QLineF(size.width() * part, 0, size.width() * part, size.height());
    }
    QPointF landed = point;
    for (const QLineF& line : lines) {
        const auto chord = lineAndCircleIntersectionPoints(line.x1(), line.y1(), line.x2(), line.y2(),
                                                           landed.x(), landed.y(), reach);
        if (chord.size() == 2) {
            landed = (chord.at(0) + chord.at(1)) / 2;
        }
    }
    return landed;
}

QPointF Guides::atFullAngle(const QPointF& anchor, const QPointF& point)
{
    constexpr double step = 15.0;
    QLineF line(anchor, point);
    line.setAngle(roundWithPrecision(line.angle() / step, 0) * step);
    return line.p2();
}
//! [code]
