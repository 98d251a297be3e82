#pragma once

#include <QGuiApplication>
#include <QRect>
#include <QScreen>
#include <QtGlobal>
#include <QWidget>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QApplication>
#include <QDesktopWidget>
#endif

/// What differs between Qt 5.15 and Qt 6. No other file of the library asks for the version of Qt. Internal, not
/// installed.
namespace TOLVAN_NAMESPACE::QtVersion
{

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

inline bool hasDesktop()
{
    return QApplication::desktop() != nullptr;
}

/// Returns the geometry of the screen that shows the largest part of \a widget, in logical pixels.
inline QRect screenGeometry(const QWidget& widget)
{
    return QApplication::desktop()->screenGeometry(&widget);
}

/// Returns the factor of the display's dots per inch that Qt puts into the ratio of device pixels. Qt 6 does
/// so with all of them and reports 96; its ratio also has the factor of QT_SCALE_FACTOR.
inline double dotsInRatio()
{
    return 1.0;
}

/// Returns whether Qt drops a head of more than 100 lines and then waits for a body without end. It reports
/// the head of such an answer with its status and without lines.
constexpr bool dropsLongHeads()
{
    return false;
}

/// Returns whether QIcon::pixmap() multiplies the requested size by the application's ratio.
inline bool iconsUseDevicePixels()
{
    return QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps);
}

#else

inline bool hasDesktop()
{
    return QGuiApplication::primaryScreen() != nullptr;
}

inline QRect screenGeometry(const QWidget& widget)
{
    const QRect frame =
        widget.isWindow() ? widget.frameGeometry() : QRect(widget.mapToGlobal(QPoint()), widget.size());
    QScreen* const own = widget.screen();
    const QScreen* const beneath = own ? own->virtualSiblingAt(frame.center()) : nullptr;
    const QScreen* const screen = beneath ? beneath : own;
    return screen ? screen->geometry() : QRect();
}

inline double dotsInRatio()
{
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen ? screen->devicePixelRatio() : 1.0;
}

constexpr bool dropsLongHeads()
{
    return true;
}

inline bool iconsUseDevicePixels()
{
    return true;
}

#endif

} // namespace TOLVAN_NAMESPACE::QtVersion
