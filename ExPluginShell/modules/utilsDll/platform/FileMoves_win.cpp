#include "platform/FileMoves.h"

#include <windows.h>

namespace TOLVAN_NAMESPACE::Platform
{

bool moveWithoutReplacing(const QString& from, const QString& to)
{
    return MoveFileW(reinterpret_cast<const wchar_t*>(from.utf16()),
                     reinterpret_cast<const wchar_t*>(to.utf16())) != FALSE;
}

} // namespace TOLVAN_NAMESPACE::Platform
