#include "platform/Modules.h"

#include <QFileInfo>

#include <windows.h>

#include <vector>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

QString fileNameOf(HMODULE module)
{
    constexpr DWORD longestPath = 32768;
    std::vector<wchar_t> buffer(longestPath);
    const DWORD length = GetModuleFileNameW(module, buffer.data(), longestPath);
    return QString::fromWCharArray(buffer.data(), static_cast<int>(length));
}

} // namespace

QString loadedModulePath(const QString& baseName)
{
    const HMODULE module = GetModuleHandleW(reinterpret_cast<LPCWSTR>(baseName.utf16()));
    return module && !baseName.isEmpty() ? fileNameOf(module) : QString();
}

QString ownLibraryFolder()
{
    HMODULE module = nullptr;
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (!GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&ownLibraryFolder), &module)) {
        return {};
    }
    return QFileInfo(fileNameOf(module)).absolutePath();
}

} // namespace TOLVAN_NAMESPACE::Platform
