#include "ScreenProbe.h"

#include <QColor>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

namespace ScreenProbe
{

QRect areaOf(const QColor& color, QScreen& screen)
{
    QRect area;
    const QImage image = screen.grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] == color.rgb()) {
                area |= QRect(screen.geometry().topLeft() + QPoint(x, y), QSize(1, 1));
            }
        }
    }
    return area;
}

bool canSee()
{
    return QGuiApplication::platformName() != QLatin1String("offscreen");
}

void paint(QWidget& widget, const QColor& color)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Window, color);
    widget.setPalette(palette);
    widget.setAutoFillBackground(true);
}

} // namespace ScreenProbe
