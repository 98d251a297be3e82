#include "GuideCanvas.h"

#include "PaintedPhoto.h"

#include <utilsDll/GuiUtils.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace
{

constexpr int mostLines = 20;
constexpr double gripRadius = 9.0;

constexpr QSize patternSize(14, 5);

/// A dash with a dark seam, so that it shows on any ground.
QPixmap linePattern(const QColor& color, qreal ratio)
{
    QPixmap pattern(patternSize * ratio);
    pattern.setDevicePixelRatio(ratio);
    pattern.fill(Qt::transparent);
    QPainter painter(&pattern);
    painter.fillRect(QRectF(0, 1, 10, 3), QColor(0, 0, 0, 130));
    painter.fillRect(QRectF(1, 1.5, 8, 2), color);
    return pattern;
}

/// The line to be drawn so that the dashes run through the middle of both grips. The pattern lies below a
/// line that runs to the right, and an oblique one is lifted by half its height already; repeated copies may
/// run past the end, so it is drawn in by half a copy.
QLineF lineThroughGrips(QLineF line, bool stretched)
{
    const double angle = line.angle();
    if (angle > 135.0 && angle < 315.0) {
        line = QLineF(line.p2(), line.p1());
    }
    const bool oblique = line.dx() != 0.0 && line.dy() != 0.0;
    const QLineF across = line.unitVector().normalVector(); // to the upper side of the pattern
    const double half = patternSize.height() / 2.0;
    line.translate(across.dx() * half, across.dy() * half + (oblique ? half : 0.0));
    if (!stretched) {
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
    const int eighth = static_cast<int>(std::lround(line.angle() / 45.0)) % 4;
    return eighths[eighth];
}

} // namespace

GuideCanvas::GuideCanvas(QWidget* parent)
    : QWidget(parent)
    , m_lines(
          {QLineF(0.06, 0.585, 0.94, 0.64), QLineF(0.20, 0.92, 0.27, 0.10), QLineF(0.80, 0.90, 0.74, 0.12)})
    , m_chosen(0)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(320, 200);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void GuideCanvas::setStretched(bool stretched)
{
    m_stretched = stretched;
    update();
}

void GuideCanvas::clear()
{
    m_lines.clear();
    m_chosen = -1;
    changed();
}

QSize GuideCanvas::sizeHint() const
{
    return {720, 420};
}

QPointF GuideCanvas::toPart(const QPointF& position) const
{
    return {qBound(0.0, position.x() / width(), 1.0), qBound(0.0, position.y() / height(), 1.0)};
}

QPointF GuideCanvas::toWidget(const QPointF& part) const
{
    return {part.x() * width(), part.y() * height()};
}

void GuideCanvas::resizeEvent(QResizeEvent*)
{
    const qreal ratio = devicePixelRatioF();
    m_photo = QPixmap::fromImage(paintedPhoto(size() * ratio));
    m_photo.setDevicePixelRatio(ratio);
    m_pattern = linePattern(Qt::white, ratio);
    m_chosenPattern = linePattern(QColor(69, 184, 204), ratio);
    Q_EMIT sizeChanged(size());
    changed();
}

void GuideCanvas::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_photo);
    const QRectF area = QRectF(rect()).adjusted(-patternSize.height(), -patternSize.height(),
                                                patternSize.height(), patternSize.height());
    for (int i = 0; i < m_lines.size(); ++i) {
        const bool chosen = i == m_chosen;
        const QLineF line(toWidget(m_lines.at(i).p1()), toWidget(m_lines.at(i).p2()));
        if (!line.isNull()) {
            const QLineF drawn = lineThroughGrips(line, m_stretched);
            drawToolLine(drawn.p1(), drawn.p2(), chosen ? m_chosenPattern : m_pattern, m_stretched, &painter,
                         area);
        }
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(0, 0, 0, 150), 1.0));
        painter.setBrush(chosen ? QColor(69, 184, 204) : QColor(Qt::white));
        painter.drawEllipse(line.p1(), 4.5, 4.5);
        painter.drawEllipse(line.p2(), 4.5, 4.5);
    }
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(QPen(QColor(69, 184, 204), 2.0));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    }
}

GuideCanvas::Grip GuideCanvas::gripAt(const QPointF& position) const
{
    for (int i = m_lines.size() - 1; i >= 0; --i) {
        for (const bool end : {true, false}) {
            const QPointF grip = toWidget(end ? m_lines.at(i).p2() : m_lines.at(i).p1());
            if (QLineF(grip, position).length() <= gripRadius) {
                return {i, end};
            }
        }
    }
    return {};
}

void GuideCanvas::showCursor(const QPointF& position)
{
    const Grip grip = m_dragged.line >= 0 ? m_dragged : gripAt(position);
    if (grip.line < 0) {
        setCursor(toolCursor(ArrowSquare));
        return;
    }
    const QLineF line(toWidget(m_lines.at(grip.line).p1()), toWidget(m_lines.at(grip.line).p2()));
    setCursor(
        toolCursor(m_dragged.line >= 0 ? cursorAlong(line) : (grip.end ? RotationTop : RotationBottom)));
}

void GuideCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    m_dragged = gripAt(event->localPos());
    if (m_dragged.line < 0) {
        const QPointF start = toPart(event->localPos());
        addLine(QLineF(start, start));
        m_dragged = {m_lines.size() - 1, true};
    }
    m_chosen = m_dragged.line;
    showCursor(event->localPos());
    changed();
}

void GuideCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (m_dragged.line >= 0) {
        moveGrip(m_dragged, toPart(event->localPos()));
    }
    showCursor(event->localPos());
}

void GuideCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    m_dragged = {};
    showCursor(event->localPos());
}

void GuideCanvas::keyPressEvent(QKeyEvent* event)
{
    constexpr double stepPixels = 4.0;
    const QPointF step(stepPixels / width(), stepPixels / height());
    QPointF way;
    switch (event->key()) {
    case Qt::Key_Insert:
        addLine(QLineF(0.3, 0.5, 0.7, 0.5));
        return;
    case Qt::Key_Delete:
        removeChosen();
        return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (!m_lines.isEmpty()) {
            const int next = m_chosen + (event->key() == Qt::Key_PageDown ? 1 : m_lines.size() - 1);
            m_chosen = next % m_lines.size();
            changed();
        }
        return;
    case Qt::Key_Left:
        way.setX(-step.x());
        break;
    case Qt::Key_Right:
        way.setX(step.x());
        break;
    case Qt::Key_Up:
        way.setY(-step.y());
        break;
    case Qt::Key_Down:
        way.setY(step.y());
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    if (m_chosen >= 0) {
        const bool end = !event->modifiers().testFlag(Qt::ShiftModifier);
        const QLineF line = m_lines.at(m_chosen);
        moveGrip({m_chosen, end}, toPart(toWidget((end ? line.p2() : line.p1()) + way)));
    }
}

void GuideCanvas::moveGrip(const Grip& grip, const QPointF& position)
{
    QLineF& line = m_lines[grip.line];
    if (grip.end) {
        line.setP2(position);
    } else {
        line.setP1(position);
    }
    changed();
}

void GuideCanvas::addLine(const QLineF& line)
{
    if (m_lines.size() == mostLines) {
        m_lines.removeFirst();
    }
    m_lines.append(line);
    m_chosen = m_lines.size() - 1;
    changed();
}

void GuideCanvas::removeChosen()
{
    if (m_chosen >= 0) {
        m_lines.removeAt(m_chosen);
        m_chosen = m_lines.size() - 1;
        changed();
    }
}

void GuideCanvas::changed()
{
    double angle = 0.0;
    if (m_chosen >= 0) {
        const QLineF line(toWidget(m_lines.at(m_chosen).p1()), toWidget(m_lines.at(m_chosen).p2()));
        angle = std::remainder(line.angle(), 180.0);
    }
    update();
    Q_EMIT linesChanged(m_lines.size(), TOLVAN_NAMESPACE::roundWithPrecision(angle, 2));
}
