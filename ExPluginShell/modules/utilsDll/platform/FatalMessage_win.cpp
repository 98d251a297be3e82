#include "platform/FatalMessage.h"

#include <windows.h>

namespace TOLVAN_NAMESPACE::Platform
{

void prepareFatalMessages()
{
    // MessageBoxW needs no preparation.
}

void showFatalMessage(const ushort* text, const ushort* title, quintptr owner)
{
    MessageBoxW(reinterpret_cast<HWND>(owner), reinterpret_cast<LPCWSTR>(text),
                reinterpret_cast<LPCWSTR>(title), MB_ICONERROR);
}

} // namespace TOLVAN_NAMESPACE::Platform
