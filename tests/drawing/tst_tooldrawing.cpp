#include "AssertionReport.h"
#include "TestMain.h"

#include <utilsDll/GuiUtils.h>

#include <QImage>
#include <QPainter>

#include <limits>

namespace
{

/// What a call is to paint: the position and angle of the line's own axes, and the copies along it.
struct Painted {
    QPoint origin;
    double turn = 0.0;
    QList<int> copies;
    QRect stretched;
};

constexpr QSize canvas(64, 48);

/// Left half red with a blue row on top, right half green: no turn or reflection looks like another.
QPixmap makePattern(qreal ratio = 1.0)
{
    QPixmap pattern(QSize(8, 4) * ratio);
    pattern.setDevicePixelRatio(ratio);
    pattern.fill(Qt::green);
    QPainter painter(&pattern);
    painter.fillRect(0, 0, 4, 4, Qt::red);
    painter.fillRect(0, 0, 4, 1, Qt::blue);
    return pattern;
}

QImage blank(qreal ratio = 1.0)
{
    QImage image(canvas * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    return image;
}

QImage expectedImage(const Painted& painted, qreal ratio = 1.0)
{
    QImage image = blank(ratio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(painted.origin);
    painter.rotate(painted.turn);
    for (const int x : painted.copies) {
        painter.drawPixmap(x, 0, makePattern(ratio));
    }
    if (painted.stretched.isValid()) {
        painter.drawPixmap(painted.stretched, makePattern(ratio));
    }
    return image;
}

QImage drawn(const QPointF& from, const QPointF& to, bool stretch, const QRectF& clip, qreal ratio = 1.0)
{
    QImage image = blank(ratio);
    QPainter painter(&image);
    drawToolLine(from, to, makePattern(ratio), stretch, &painter, clip);
    return image;
}

} // namespace

/// The guide lines and icons, pixel by pixel.
class ToolDrawingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines()
    {
        const QRectF none;
        const QRectF clip(10, 10, 30, 20);
        const auto check = [](const char* name, QPointF from, QPointF to, bool stretch, QRectF area,
                              const Painted& painted) {
            for (const qreal ratio : {1.0, 2.0}) {
                QVERIFY2(drawn(from, to, stretch, area, ratio) == expectedImage(painted, ratio), name);
            }
        };
        check("rounded ends, a copy at the very end", {4.6, 9.4}, {20.1, 9.4}, false, none,
              {{5, 9}, 0, {0, 8, 16}, {}});
        check("upright, from below", {9, 40}, {9, 20}, false, none, {{9, 40}, -90, {0, 8, 16}, {}});
        check("up left is not swapped at 135 degrees", {30, 30}, {10, 10}, false, none,
              {{30, 28}, -135, {0, 8, 16, 24}, {}});
        check("stretched, clip without height", {5, 9}, {25.6, 9}, true, {10, 10, 30, 0},
              {{5, 9}, 0, {}, {0, 0, 21, 4}});
        check("ends on the edge are inside", {10, 15}, {40, 15}, true, clip,
              {{10, 15}, 0, {}, {0, 0, 30, 4}});
        check("both ends outside, crossing", {0, 15}, {60, 15}, true, clip, {});
        check("cut at the left", {0, 15}, {20, 15}, true, clip, {{10, 15}, 0, {}, {0, 0, 10, 4}});
        check("cut at the bottom", {20, 20}, {20, 45}, true, clip, {{20, 30}, -90, {}, {0, 0, 10, 4}});
    }

    void painterIsRestored()
    {
        QImage image = blank();
        QPainter painter(&image);
        const QTransform transform = QTransform::fromScale(3, 2).translate(50, 60);
        painter.setTransform(transform);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::TextAntialiasing, false);
        drawToolLine({5, 9}, {25, 9}, makePattern(), false, &painter, {});
        QCOMPARE(painter.transform(), transform);
        QCOMPARE(painter.renderHints(), QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.end();
        QCOMPARE(image,
                 expectedImage({{5, 9}, 0, {0, 8, 16}, {}})); // the transform that was set did not count
    }

    void nothingToDraw()
    {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        drawToolLine({5, 9}, {25, 9}, makePattern(), false, nullptr, {});
        QImage image = blank();
        QPainter painter(&image);
        drawToolLine({5, 9}, {25, 9}, QPixmap(), false, &painter, {});
        drawToolLine({5, infinity}, {25, 9}, makePattern(), true, &painter, {});
        drawToolLine({5, 9}, {infinity, 9}, makePattern(), true, &painter, {});
        drawToolLine({5, 9}, {1e12, 9}, makePattern(), false, &painter, {});
        painter.end();
        QCOMPARE(image, blank());
    }

    void cursors()
    {
        const QString file = QStringLiteral(":/icons/cursors/cusors_rotation_bottom.svg");
        const QPixmap last = toolCursorPixmap(RotationBottom);
        QCOMPARE(last.toImage(), QIcon(file).pixmap(23, 24).toImage());
        QCOMPARE(last.size(), QFile::exists(file) ? QSize(23, 24) : QSize(0, 0)); // without the bundles none
        verifyReport("toolCursorPixmap", "GuiUtils", 309, "Bug!!!", [] {
            QVERIFY(toolCursorPixmap(static_cast<ToolCursorType>(RotationBottom + 1)).isNull());
        });
    }

    void iconSizes()
    {
        QIcon icon;
        QCOMPARE(sizeOfIcon(icon, QIcon::Normal, QIcon::Off), QSize(0, 0));
        icon.addPixmap(QPixmap(30, 10));
        icon.addPixmap(QPixmap(10, 40));
        icon.addPixmap(QPixmap(99, 99), QIcon::Disabled, QIcon::On);
        QCOMPARE(sizeOfIcon(icon, QIcon::Normal, QIcon::Off), QSize(30, 40));
    }

    void iconsInRectangles()
    {
        QPixmap source(80, 40);
        source.fill(Qt::red);
        for (const auto& [aspect, painted] :
             {std::pair{Qt::KeepAspectRatio, QRect(10, 15, 20, 10)},
              std::pair{Qt::IgnoreAspectRatio, QRect(10, 15, 20, 10)},
              std::pair{Qt::KeepAspectRatioByExpanding, QRect(0, 10, 40, 20)}}) {
            QImage image = blank();
            QPainter painter(&image);
            paintIcon(&painter, QIcon(source), {10, 10, 20, 20}, aspect, QIcon::Normal, QIcon::Off);
            paintIcon(&painter, QIcon(), {0, 0, 64, 48}, Qt::KeepAspectRatio, QIcon::Normal, QIcon::Off);
            painter.end();
            paintIcon(nullptr, QIcon(source), {0, 0, 64, 48}, aspect, QIcon::Normal, QIcon::Off);
            QImage expected = blank();
            QPainter(&expected).fillRect(painted, Qt::red);
            QCOMPARE(image, expected);
        }
    }
};

TOLVAN_GUI_TEST_MAIN(ToolDrawingTest)
#include "tst_tooldrawing.moc"
