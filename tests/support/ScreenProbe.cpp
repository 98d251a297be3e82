#include "ScreenProbe.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

namespace ScreenProbe
{

QPoint placeOf(const QColor& color)
{
    QRect area;
    QScreen* const screen = QGuiApplication::primaryScreen();
    const QImage image = screen->grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] == color.rgb()) {
                area |= QRect(x, y, 1, 1);
            }
        }
    }
    return area.isNull() ? QPoint() : screen->geometry().topLeft() + area.topLeft();
}

bool canSee()
{
    return QGuiApplication::platformName() != QLatin1String("offscreen");
}

} // namespace ScreenProbe
