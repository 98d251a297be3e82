#pragma once

#include "Correction.h"

#include <QPixmap>
#include <QWidget>

/// The picture under the guide lines of the current tool.
///
/// A press on a grip drags it, a press beside the line of the Horizon tool draws a new one. A dragged grip
/// snaps to the thirds and edges of the picture and to other guides; with Ctrl it does not, with Shift the line
/// turns in steps of 15 degrees. Keyboard: Page Up and Page Down choose a grip, the arrow keys move it by one
/// pixel, with Shift by ten, Enter applies, Escape cancels.
class Canvas : public QWidget
{
    Q_OBJECT

public:
    explicit Canvas(QWidget* parent);

    /// The picture that is shown; its guides refer to it.
    void setPicture(const QImage& picture);
    /// The picture left of the divider, to compare with; null for none.
    void setBefore(const QImage& before);
    /// Shows the guides of \a step; null for none. \param step not owned, read and changed until the next call
    void setStep(Step* step);
    void setGrid(bool on);
    /// The size in device pixels that a picture should have to fill the canvas.
    QSize pictureSize(const QSize& original) const;

Q_SIGNALS:
    /// The step was changed by hand; \a finished: the grip was released.
    void stepChanged(bool finished);
    void applyRequested();
    void cancelRequested();
    void resized();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QSize sizeHint() const override { return {620, 430}; }
    QSize minimumSizeHint() const override { return {320, 220}; }

private:
    QPixmap pixmapOf(QImage image) const;
    QRectF frame() const;
    QPointF toPart(const QPointF& position) const;
    QPointF toCanvas(const QPointF& part) const;
    int gripAt(const QPointF& position) const;
    void dragTo(const QPointF& position, Qt::KeyboardModifiers modifiers);
    void showCursor(const QPointF& position);
    void paintGuides(QPainter& painter) const;
    void paintCrop(QPainter& painter) const;

    QPixmap m_picture;
    QPixmap m_before;
    QPixmap m_dashes;
    QPixmap m_stroke;
    Step* m_step = nullptr;
    Step m_beforeDrag;
    QPointF m_pressed;
    double m_divider = 0.5;
    int m_chosen = 0;
    bool m_dragging = false;
    bool m_draggingDivider = false;
    bool m_grid = false;
};
