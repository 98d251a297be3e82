#include "platform/Processes.h"

#include <windows.h>

#include <psapi.h> // needs the types of windows.h

#include <memory>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

constexpr DWORD nameLength = 260;
constexpr std::size_t mostProcesses = 1024;

struct CloseProcess {
    using pointer = HANDLE;
    void operator()(HANDLE process) const { CloseHandle(process); }
};
using ProcessHandle = std::unique_ptr<HANDLE, CloseProcess>;

QString baseNameOf(HANDLE process, HMODULE module)
{
    wchar_t buffer[nameLength] = {};
    const DWORD length = GetModuleBaseNameW(process, module, buffer, nameLength);
    return QString::fromWCharArray(buffer, static_cast<int>(length));
}

bool runsExecutable(HANDLE process, const QString& processName)
{
    HMODULE executable = nullptr;
    DWORD needed = 0;
    return EnumProcessModules(process, &executable, sizeof executable, &needed) &&
           baseNameOf(process, executable).compare(processName, Qt::CaseInsensitive) == 0;
}

QString executablePath(const QString& processName)
{
    DWORD ids[mostProcesses] = {};
    DWORD returned = 0;
    if (!EnumProcesses(ids, sizeof ids, &returned) || returned < sizeof(DWORD)) {
        return {};
    }
    for (std::size_t i = 0; i < returned / sizeof(DWORD); ++i) {
        if (ids[i] == 0) {
            continue;
        }
        const ProcessHandle process(OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, ids[i]));
        if (!process || !runsExecutable(process.get(), processName)) {
            continue;
        }
        wchar_t path[nameLength] = {};
        const DWORD length = GetModuleFileNameExW(process.get(), nullptr, path, nameLength);
        return QString::fromWCharArray(path, static_cast<int>(length));
    }
    return {};
}

/// The version has to be read from a copy: VerQueryValueW may write into the block that it is given.
std::optional<FileVersionWords> readVersion(HMODULE module)
{
    const HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(16)); // 16: RT_VERSION
    const DWORD size = resource ? SizeofResource(module, resource) : 0;
    const HGLOBAL loaded = size != 0 ? LoadResource(module, resource) : nullptr;
    const void* locked = loaded ? LockResource(loaded) : nullptr;
    if (!locked) {
        return std::nullopt;
    }
    const std::unique_ptr<void, decltype(&LocalFree)> copy(LocalAlloc(LMEM_FIXED, size), &LocalFree);
    if (copy) {
        CopyMemory(copy.get(), locked, size);
    }
    FreeResource(loaded);

    VS_FIXEDFILEINFO* info = nullptr;
    UINT length = 0;
    if (!copy || !VerQueryValueW(copy.get(), L"\\", reinterpret_cast<void**>(&info), &length) || !info) {
        return std::nullopt;
    }
    return FileVersionWords{info->dwFileVersionMS, info->dwFileVersionLS};
}

} // namespace

QString currentProcessName()
{
    return baseNameOf(GetCurrentProcess(), nullptr);
}

std::optional<FileVersionWords> fileVersionOfProcess(const QString& processName)
{
    const QString path = executablePath(processName);
    // The module stays loaded: callers ask once per run and keep the answer.
    const HMODULE module = path.isEmpty() ? nullptr : LoadLibraryW(reinterpret_cast<LPCWSTR>(path.utf16()));
    return module ? readVersion(module) : std::nullopt;
}

} // namespace TOLVAN_NAMESPACE::Platform
