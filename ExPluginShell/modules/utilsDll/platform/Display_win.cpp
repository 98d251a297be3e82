#include "platform/Display.h"

#include <windows.h>

namespace TOLVAN_NAMESPACE
{
namespace Platform
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

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
