#pragma once

#include "Contrast.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

/// Looks at the pixels of the screen: a QWidget reports where Qt believes its window to be.
namespace ScreenProbe
{

/// Returns the upper left corner of the smallest rectangle around all pixels of \a color on the primary screen, in
/// screen coordinates; null if there is none, and always on the platform "offscreen".
inline QPoint placeOf(const QColor& color)
{
    QRect area;
    QScreen* const screen = QGuiApplication::primaryScreen();
    const QImage image = screen->grabWindow(0).toImage();
    eachPixel(image, image.rect(), [&](QPoint at, QRgb pixel) {
        if (pixel == color.rgb()) {
            area |= QRect(at, QSize(1, 1));
        }
    });
    return area.isNull() ? QPoint() : screen->geometry().topLeft() + area.topLeft();
}

/// Returns whether the platform shows windows, so that placeOf() can find them.
inline bool canSee()
{
    return QGuiApplication::platformName() != QLatin1String("offscreen");
}

} // namespace ScreenProbe
