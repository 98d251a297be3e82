#include "platform/FatalMessage.h"

#include <windows.h>

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

void prepareFatalMessages()
{
    // The message box is always there.
}

void showFatalMessage(const ushort* text, const ushort* title, quintptr owner)
{
    MessageBoxW(reinterpret_cast<HWND>(owner), reinterpret_cast<LPCWSTR>(text),
                reinterpret_cast<LPCWSTR>(title), MB_ICONERROR);
}

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
