#include "platform/Display.h"

#include <QGuiApplication>
#include <QScreen>

namespace TOLVAN_NAMESPACE::Platform
{

double logicalDotsPerInch()
{
    constexpr double unscaled = 96.0;
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchX() : unscaled;
}

} // namespace TOLVAN_NAMESPACE::Platform
