#include "platform/Display.h"

#include <windows.h>

namespace TOLVAN_NAMESPACE::Platform
{

double logicalDotsPerInch(double /*inRatio*/)
{
    const HDC screen = GetDC(nullptr);
    if (!screen) {
        return USER_DEFAULT_SCREEN_DPI;
    }
    const int dotsPerInch = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dotsPerInch;
}

bool usesHighContrast()
{
    HIGHCONTRASTW contrast = {};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

} // namespace TOLVAN_NAMESPACE::Platform
