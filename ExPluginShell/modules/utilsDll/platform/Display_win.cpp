#include "platform/Display.h"

#include <windows.h>

namespace TOLVAN_NAMESPACE::Platform
{

double logicalDotsPerInch()
{
    const HDC screen = GetDC(nullptr);
    if (!screen) {
        return USER_DEFAULT_SCREEN_DPI;
    }
    const int dotsPerInch = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dotsPerInch;
}

} // namespace TOLVAN_NAMESPACE::Platform
