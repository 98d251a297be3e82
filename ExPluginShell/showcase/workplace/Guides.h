#pragma once

#include "Correction.h"

#include <QPointF>
#include <QSizeF>

/// What the canvas shows of a step and what the mouse can take hold of. Everything in parts of the picture.
namespace Guides
{

/// The guide lines of \a step.
QVector<QLineF> lines(const Step& step);
/// The points that can be dragged.
QVector<QPointF> grips(const Step& step);
/// Moves the grip \a index of \a step to \a point.
void moveGrip(Step& step, int index, const QPointF& point);

/// Where a grip lands that is dragged to \a point: on the nearest line through the thirds, the middle and the
/// edges of the picture or along another guide line, if one is within \a reach.
///
/// All lengths are pixels of the canvas. A line is near if it meets the circle around the point, and the
/// point lands in the middle of the chord.
QPointF snapped(const QPointF& point, const QVector<QLineF>& others, const QSizeF& size, double reach);
/// The end of a line from \a anchor towards \a point, turned to the nearest multiple of 15 degrees.
QPointF atFullAngle(const QPointF& anchor, const QPointF& point);

} // namespace Guides
