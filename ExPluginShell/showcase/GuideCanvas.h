#pragma once

#include <QLineF>
#include <QPixmap>
#include <QVector>
#include <QWidget>

/// A photo that takes guide lines, as the correction tools do: press and drag draws a line, an end can be
/// dragged to another place, the cursor shows what a press would do.
///
/// Keyboard: Insert adds a line, Page Up and Page Down choose one, the arrow keys move its end, with Shift
/// its beginning, Delete removes it.
class GuideCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit GuideCanvas(QWidget* parent);

    /// Whether one copy of the pattern is stretched over each line instead of being repeated.
    void setStretched(bool stretched);
    /// Removes all lines.
    void clear();

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The lines or the line chosen changed; \a angle is that of the chosen line in degrees, -90 to 90.
    void linesChanged(int count, double angle);
    /// The picture has a new size.
    void sizeChanged(const QSize& size);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Grip {
        int line = -1; // none
        bool end = true;
    };

    Grip gripAt(const QPointF& position) const;
    void moveGrip(const Grip& grip, const QPointF& position);
    void showCursor(const QPointF& position);
    void addLine(const QLineF& line);
    void removeChosen();
    void changed();

    // Points are parts of the width and height, so that lines stay where they are when the size changes.
    QPointF toPart(const QPointF& position) const;
    QPointF toWidget(const QPointF& part) const;

    QPixmap m_photo;
    QPixmap m_pattern;
    QPixmap m_chosenPattern;
    QVector<QLineF> m_lines;
    int m_chosen = -1;
    Grip m_dragged;
    bool m_stretched = false;
};
