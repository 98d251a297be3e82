#include "platform/WindowMenu.h"

#include <windows.h>

namespace TOLVAN_NAMESPACE::Platform
{

void setCloseCommandEnabled(quint64 window, bool enable)
{
    const HMENU menu = GetSystemMenu(reinterpret_cast<HWND>(window), FALSE);
    EnableMenuItem(menu, SC_CLOSE, static_cast<UINT>(MF_BYCOMMAND | (enable ? MF_ENABLED : MF_GRAYED)));
}

} // namespace TOLVAN_NAMESPACE::Platform
