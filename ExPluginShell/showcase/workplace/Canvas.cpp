#include "Canvas.h"

#include "Guides.h"

#include <utilsDll/GuiUtils.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace
{

constexpr double gripReach = 10.0;
constexpr double snapReach = 7.0;
constexpr double shortestLine = 12.0;
constexpr QSize patternSize(14, 5);
const QColor accent(69, 184, 204);

/// A dash, or a stroke without a gap, with a dark seam that shows on any ground.
QPixmap linePattern(const QColor& color, bool gap, qreal ratio)
{
    QPixmap pattern(patternSize * ratio);
    pattern.setDevicePixelRatio(ratio);
    pattern.fill(Qt::transparent);
    QPainter painter(&pattern);
    const double length = gap ? 10 : patternSize.width();
    painter.fillRect(QRectF(0, 1, length, 3), QColor(0, 0, 0, 130));
    painter.fillRect(QRectF(gap ? 1 : 0, 1.5, gap ? 8 : length, 2), color);
    return pattern;
}

/// Lines that divide \a area into \a parts each way.
void paintGrid(QPainter& painter, const QRectF& area, int parts)
{
    painter.setPen(QColor(255, 255, 255, 110));
    for (int i = 1; i < parts; ++i) {
        const double x = std::round(area.x() + area.width() * i / parts) + 0.5;
        const double y = std::round(area.y() + area.height() * i / parts) + 0.5;
        painter.drawLine(QPointF(x, area.y()), QPointF(x, area.bottom()));
        painter.drawLine(QPointF(area.x(), y), QPointF(area.right(), y));
    }
}

/// The line to be drawn so that the pattern runs through the middle of both grips. drawToolLine() lays the
/// pattern below a line that runs to the right and lifts an oblique one by half its height.
QLineF throughGrips(QLineF line, bool stretched)
{
    const double angle = line.angle();
    if (angle > 135.0 && angle < 315.0) {
        line = QLineF(line.p2(), line.p1());
    }
    const bool oblique = line.dx() != 0.0 && line.dy() != 0.0;
    const QLineF across = line.unitVector().normalVector();
    const double half = patternSize.height() / 2.0;
    line.translate(across.dx() * half, across.dy() * half + (oblique ? half : 0.0));
    if (!stretched) { // the last copy may run past the end
        line.setLength(std::max(0.0, line.length() - patternSize.width() / 2.0));
    }
    return line;
}

QCursor toolCursor(ToolCursorType type)
{
    const QPixmap pixmap = toolCursorPixmap(type);
    return pixmap.isNull() ? QCursor(Qt::CrossCursor) : QCursor(pixmap);
}

/// The cursor that points along a line.
ToolCursorType cursorAlong(const QLineF& line)
{
    constexpr ToolCursorType eighths[] = {ArrowHorizontal, ArrowDiagonalRight, ArrowVertical,
                                          ArrowDiagonalLeft};
    return eighths[int(std::lround(line.angle() / 45.0)) % 4];
}

} // namespace

Canvas::Canvas(QWidget* parent)
    : QWidget(parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize Canvas::pictureSize(const QSize& original) const
{
    return (original.scaled(size(), Qt::KeepAspectRatio) * devicePixelRatioF()).expandedTo({16, 16});
}

QPixmap Canvas::pixmapOf(QImage image) const
{
    image.setDevicePixelRatio(devicePixelRatioF());
    return QPixmap::fromImage(image);
}

void Canvas::setPicture(const QImage& picture)
{
    m_picture = pixmapOf(picture);
    update();
}

void Canvas::setBefore(const QImage& before)
{
    m_before = pixmapOf(before);
    update();
}

void Canvas::setStep(Step* step)
{
    if (m_step != step) {
        m_step = step;
        m_dragging = false;
        m_chosen = 0;
        unsetCursor();
    }
    update();
}

void Canvas::setGrid(bool on)
{
    m_grid = on;
    update();
}

QRectF Canvas::frame() const
{
    const QSizeF shown = QSizeF(m_picture.size()) / devicePixelRatioF();
    return QRectF(QPointF(int((width() - shown.width()) / 2), int((height() - shown.height()) / 2)), shown);
}

QPointF Canvas::toPart(const QPointF& position) const
{
    const QRectF area = frame();
    return {qBound(0.0, (position.x() - area.x()) / area.width(), 1.0),
            qBound(0.0, (position.y() - area.y()) / area.height(), 1.0)};
}

QPointF Canvas::toCanvas(const QPointF& part) const
{
    const QRectF area = frame();
    return {area.x() + part.x() * area.width(), area.y() + part.y() * area.height()};
}

void Canvas::resizeEvent(QResizeEvent*)
{
    const qreal ratio = devicePixelRatioF();
    m_dashes = linePattern(Qt::white, true, ratio);
    m_stroke = linePattern(accent, false, ratio);
    Q_EMIT resized();
}

void Canvas::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRectF area = frame();
    painter.fillRect(rect(), QColor(0x18, 0x19, 0x1B));
    painter.drawPixmap(area.topLeft(), m_picture);
    if (!m_before.isNull()) {
        const double divider = area.x() + area.width() * m_divider;
        painter.save();
        painter.setClipRect(QRectF(area.topLeft(), QPointF(divider, area.bottom())));
        const QSizeF size = QSizeF(m_before.size()) / devicePixelRatioF();
        painter.drawPixmap(QRectF(area.center() - QPointF(size.width(), size.height()) / 2, size), m_before,
                           m_before.rect());
        painter.restore();
        painter.fillRect(QRectF(divider - 1, area.y(), 2, area.height()), Qt::white);
    }
    if (m_grid) {
        paintGrid(painter, area, 12);
    }
    if (m_step && m_before.isNull()) {
        paintGuides(painter);
    }
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(QPen(accent, 2.0));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(area.adjusted(1, 1, -1, -1));
    }
}

void Canvas::paintCrop(QPainter& painter) const
{
    const QRectF kept(toCanvas(m_step->area.topLeft()), toCanvas(m_step->area.bottomRight()));
    QPainterPath outside;
    outside.addRect(frame());
    outside.addRect(kept);
    painter.fillPath(outside, QColor(0, 0, 0, 150));
    painter.setPen(QColor(255, 255, 255, 200));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(kept);
    paintGrid(painter, kept, 3);
}

//! [code]
void Canvas::paintGuides(QPainter& painter) const
{
    if (m_step->tool == Tool::Crop) {
        paintCrop(painter);
    }
    const QRectF area = QRectF(rect()).adjusted(-patternSize.height(), -patternSize.height(),
                                                patternSize.height(), patternSize.height());
    const auto lines = Guides::lines(*m_step);
    for (int i = 0; i < lines.size(); ++i) {
        // The line in hand is one stroke from grip to grip, the others are dashed.
        const bool inHand = m_step->tool == Tool::TiltShift ? i == 0 : i == m_chosen / 2;
        const QLineF line(toCanvas(lines.at(i).p1()), toCanvas(lines.at(i).p2()));
        if (line.length() > 1.0) {
            const QLineF drawn = throughGrips(line, inHand);
            drawToolLine(drawn.p1(), drawn.p2(), inHand ? m_stroke : m_dashes, inHand, &painter, area);
        }
    }
    //! [code]
    painter.setRenderHint(QPainter::Antialiasing);
    const auto grips = Guides::grips(*m_step);
    for (int i = 0; i < grips.size(); ++i) {
        painter.setPen(QPen(QColor(0, 0, 0, 150), 1.0));
        painter.setBrush(i == m_chosen ? accent : QColor(Qt::white));
        painter.drawEllipse(toCanvas(grips.at(i)), 5.0, 5.0);
    }
}

int Canvas::gripAt(const QPointF& position) const
{
    const auto grips = m_step ? Guides::grips(*m_step) : QVector<QPointF>();
    for (int i = grips.size() - 1; i >= 0; --i) {
        if (QLineF(toCanvas(grips.at(i)), position).length() <= gripReach) {
            return i;
        }
    }
    return -1;
}

void Canvas::showCursor(const QPointF& position)
{
    if (!m_step || m_step->tool == Tool::Distortion) {
        unsetCursor();
        return;
    }
    const int grip = m_dragging ? m_chosen : gripAt(position);
    if (grip < 0) {
        setCursor(m_step->tool == Tool::Horizon ? toolCursor(ArrowSquare) : QCursor(Qt::ArrowCursor));
    } else if (m_step->tool == Tool::Crop) {
        setCursor(toolCursor(grip == 0 || grip == 3 ? ArrowDiagonalLeft : ArrowDiagonalRight));
    } else if (m_step->tool == Tool::TiltShift) {
        setCursor(toolCursor(grip == 0 ? ArrowSquare : grip == 1 ? RotationTop : ArrowVertical));
    } else {
        const QLineF line = m_step->lines.value(grip / 2);
        setCursor(toolCursor(m_dragging ? cursorAlong(QLineF(toCanvas(line.p1()), toCanvas(line.p2())))
                                        : (grip % 2 ? RotationTop : RotationBottom)));
    }
}

void Canvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    if (!m_before.isNull()) {
        m_draggingDivider = true;
        m_divider = toPart(event->localPos()).x();
        update();
        return;
    }
    if (!m_step) {
        return;
    }
    m_beforeDrag = *m_step;
    m_pressed = event->localPos();
    const int grip = gripAt(m_pressed);
    if (grip >= 0) {
        m_chosen = grip;
        m_dragging = true;
    } else if (m_step->tool == Tool::Horizon) { // a new line; a plain click leaves the old one
        m_step->lines = {QLineF(toPart(m_pressed), toPart(m_pressed))};
        m_chosen = 1;
        m_dragging = true;
    }
    showCursor(m_pressed);
    update();
}

void Canvas::dragTo(const QPointF& position, Qt::KeyboardModifiers modifiers)
{
    const QRectF area = frame();
    QPointF point = position - area.topLeft();
    const bool line = m_step->tool == Tool::Horizon || m_step->tool == Tool::Keystoning;
    if (line && modifiers.testFlag(Qt::ShiftModifier)) {
        const QLineF& chosen = m_step->lines.at(m_chosen / 2);
        const QPointF anchor = toCanvas(m_chosen % 2 ? chosen.p1() : chosen.p2()) - area.topLeft();
        point = Guides::atFullAngle(anchor, point);
    } else if (!modifiers.testFlag(Qt::ControlModifier)) {
        QVector<QLineF> others;
        for (int i = 0; line && i < m_step->lines.size(); ++i) {
            if (i != m_chosen / 2) {
                others += QLineF(toCanvas(m_step->lines.at(i).p1()) - area.topLeft(),
                                 toCanvas(m_step->lines.at(i).p2()) - area.topLeft());
            }
        }
        point = Guides::snapped(point, others, area.size(), snapReach);
    }
    Guides::moveGrip(*m_step, m_chosen, toPart(point + area.topLeft()));
    Q_EMIT stepChanged(false);
    update();
}

void Canvas::mouseMoveEvent(QMouseEvent* event)
{
    if (m_draggingDivider) {
        m_divider = toPart(event->localPos()).x();
        update();
    } else if (m_dragging) {
        dragTo(event->localPos(), event->modifiers());
    }
    showCursor(event->localPos());
}

void Canvas::mouseReleaseEvent(QMouseEvent* event)
{
    m_draggingDivider = false;
    if (!m_dragging) {
        return;
    }
    m_dragging = false;
    const QLineF line = m_step->lines.value(m_chosen / 2);
    if (!m_step->lines.isEmpty() &&
        QLineF(toCanvas(line.p1()), toCanvas(line.p2())).length() < shortestLine) {
        *m_step = m_beforeDrag;
    }
    showCursor(event->localPos());
    update();
    Q_EMIT stepChanged(true);
}

void Canvas::keyPressEvent(QKeyEvent* event)
{
    const auto grips = m_step ? Guides::grips(*m_step) : QVector<QPointF>();
    const int key = event->key();
    const bool next = key == Qt::Key_PageDown;
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        Q_EMIT applyRequested();
        return;
    }
    if (key == Qt::Key_Escape) {
        Q_EMIT cancelRequested();
        return;
    }
    if (grips.isEmpty() || (!next && key != Qt::Key_PageUp && (key < Qt::Key_Left || key > Qt::Key_Down))) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (next || key == Qt::Key_PageUp) {
        m_chosen = (m_chosen + (next ? 1 : grips.size() - 1)) % grips.size();
        update();
        return;
    }
    const QPointF ways[] = {{-1, 0}, {0, -1}, {1, 0}, {0, 1}}; // in the order of the arrow keys
    const QPointF way =
        ways[key - Qt::Key_Left] * (event->modifiers().testFlag(Qt::ShiftModifier) ? 10.0 : 1.0);
    if (m_chosen < grips.size()) {
        Guides::moveGrip(*m_step, m_chosen, toPart(toCanvas(grips.at(m_chosen)) + way));
        update();
        Q_EMIT stepChanged(true);
    }
}
