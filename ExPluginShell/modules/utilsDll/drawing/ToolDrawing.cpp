#include "GuiUtils.h"

#include "frame/Logging.h"

#include <QLineF>
#include <QPainter>
#include <QTransform>

#include <cmath>
#include <limits>

using namespace TOLVAN_NAMESPACE;

namespace
{

constexpr QSize cursorSize(23, 24);

bool isFinite(const QPointF& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// Moves \a outside, one end of \a line, to the first edge of \a clip that the line meets.
/// \return false if that end is inside, which is reported with \a sourceLine
bool cutAtEdge(const QLineF& line, QPointF& outside, const QRectF& clip, int sourceLine)
{
    if (clip.contains(outside)) {
        Logging::reportAssertion("drawToolLine", "GuiUtils", sourceLine);
        return false;
    }
    const QLineF edges[] = {{clip.topLeft(), clip.bottomLeft()},
                            {clip.topLeft(), clip.topRight()},
                            {clip.topRight(), clip.bottomRight()},
                            {clip.bottomRight(), clip.bottomLeft()}};
    for (const QLineF& edge : edges) {
        QPointF crossing;
        if (line.intersects(edge, &crossing) == QLineF::BoundedIntersection) {
            outside = crossing;
            return true;
        }
    }
    return true;
}

/// Cuts the line from-to to \a clip.
/// \return false if nothing of the line is to be drawn
bool clipLine(QPointF& from, QPointF& to, const QRectF& clip)
{
    if (clip.width() <= 0.0 || clip.height() <= 0.0) {
        return true;
    }
    const bool fromInside = clip.contains(from);
    const bool toInside = clip.contains(to);
    if (fromInside == toInside) {
        return fromInside;
    }
    const QLineF line(from, to);
    return fromInside ? cutAtEdge(line, to, clip, 222) : cutAtEdge(line, from, clip, 227);
}

void drawCopies(QPainter& painter, const QPixmap& pattern, double length, bool stretch)
{
    const QSizeF size = QSizeF(pattern.size()) / pattern.devicePixelRatioF();
    if (stretch) {
        painter.drawPixmap(QRectF(0.0, 0.0, length, size.height()).toRect(), pattern, pattern.rect());
        return;
    }
    if (length >= std::numeric_limits<int>::max()) {
        return; // longer than any drawing surface
    }
    const int end = qRound(length);
    for (double x = 0.0; x <= end; x += size.width()) {
        painter.drawPixmap(QPointF(x, 0.0), pattern);
    }
}

/// Draws along the line from left to right, or from bottom to top.
void drawAlong(QLineF line, double angle, const QPixmap& pattern, bool stretch, QPainter& painter)
{
    constexpr double quarterTurn = 90.0;
    if (const double quarters = angle / quarterTurn; quarters != std::floor(quarters)) { // oblique
        line.translate(0.0, -0.5 * pattern.height() / pattern.devicePixelRatioF());
    }
    const QTransform savedTransform = painter.transform();
    const QPainter::RenderHints savedHints = painter.renderHints();
    const QPoint start = line.p1().toPoint();
    painter.setTransform(QTransform::fromTranslate(start.x(), start.y()).rotate(-angle));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    drawCopies(painter, pattern, line.length(), stretch);
    painter.setTransform(savedTransform);
    painter.setRenderHints(savedHints, true);
}

const char* cursorFile(ToolCursorType type)
{
    switch (type) {
    case ArrowDiagonalLeft:
        return ":/icons/cursors/cusors_arrow_diagonal_left.svg";
    case ArrowDiagonalRight:
        return ":/icons/cursors/cusors_arrow_diagonal_right.svg";
    case ArrowHorizontal:
        return ":/icons/cursors/cusors_arrow_horizontal.svg";
    case ArrowSquare:
        return ":/icons/cursors/cusors_arrow_square.svg";
    case ArrowVertical:
        return ":/icons/cursors/cusors_arrow_vertical.svg";
    case RotationTop:
        return ":/icons/cursors/cusors_rotation_top.svg";
    case RotationBottom:
        return ":/icons/cursors/cusors_rotation_bottom.svg";
    }
    return nullptr;
}

} // namespace

void drawToolLine(const QPointF& from, const QPointF& to, const QPixmap& pattern, bool stretch,
                  QPainter* painter, const QRectF& clip)
{
    constexpr double downLeft = 135.0;
    constexpr double upRight = 315.0;
    if (!painter || pattern.width() < 1 || !isFinite(from) || !isFinite(to)) {
        return;
    }
    QPointF start = from;
    QPointF end = to;
    if (!clipLine(start, end, clip)) {
        return;
    }
    const QLineF line(start, end);
    const double angle = line.angle();
    if (angle > downLeft && angle < upRight) {
        drawToolLine(end, start, pattern, stretch, painter, clip);
        return;
    }
    drawAlong(line, angle, pattern, stretch, *painter);
}

QPixmap toolCursorPixmap(ToolCursorType type)
{
    const char* const file = cursorFile(type);
    if (!file) {
        Logging::reportAssertionX("toolCursorPixmap", "GuiUtils", 309, "Bug!!!");
        return {};
    }
    return QIcon(QString::fromLatin1(file)).pixmap(cursorSize, QIcon::Normal, QIcon::Off);
}

void paintIcon(QPainter* painter, const QIcon& icon, const QRect& rect, Qt::AspectRatioMode aspect,
               QIcon::Mode mode, QIcon::State state)
{
    if (!painter || icon.isNull()) {
        return;
    }
    QRect target = rect;
    if (aspect != Qt::IgnoreAspectRatio) {
        target.setSize(sizeOfIcon(icon, mode, state).scaled(rect.size(), aspect));
        target.moveCenter(rect.center());
    }
    icon.paint(painter, target, Qt::AlignCenter, mode, state);
}

QSize sizeOfIcon(const QIcon& icon, QIcon::Mode mode, QIcon::State state)
{
    QSize largest(0, 0);
    for (const QSize& size : icon.availableSizes(mode, state)) {
        largest = largest.expandedTo(size);
    }
    return largest;
}
