#include "platform/FileReplacement.h"
#include "platform/SharedFile.h"

#include <QDir>
#include <QFileInfo>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

constexpr int mostAttempts = 250;
constexpr DWORD pause = 2; // milliseconds

/// A file that was replaced stays for a moment as one that is about to vanish: access is denied, and it has
/// no attributes. Folders and protected files have some.
bool isBeingReplaced(const wchar_t* path, DWORD error)
{
    return error == ERROR_SHARING_VIOLATION ||
           (error == ERROR_ACCESS_DENIED && GetFileAttributesW(path) == INVALID_FILE_ATTRIBUTES);
}

HANDLE openPatiently(const wchar_t* path, DWORD access)
{
    constexpr DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    for (int attempt = 0;; ++attempt) {
        const HANDLE handle =
            CreateFileW(path, access, share, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle != INVALID_HANDLE_VALUE || attempt == mostAttempts ||
            !isBeingReplaced(path, GetLastError())) {
            return handle;
        }
        Sleep(pause);
    }
}

} // namespace

bool openSharedFile(QFile& file, QIODevice::OpenMode mode)
{
    const bool writes = mode & QIODevice::WriteOnly;
    const QString path = QDir::toNativeSeparators(QFileInfo(file).absoluteFilePath());
    const HANDLE handle = openPatiently(reinterpret_cast<const wchar_t*>(path.utf16()),
                                        writes ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ);
    if (handle == INVALID_HANDLE_VALUE) {
        return false;
    }
    const int descriptor =
        _open_osfhandle(reinterpret_cast<intptr_t>(handle), (writes ? _O_RDWR : _O_RDONLY) | _O_BINARY);
    if (descriptor == -1) {
        CloseHandle(handle);
        return false;
    }
    if (!file.open(descriptor, mode, QFileDevice::AutoCloseHandle)) {
        _close(descriptor);
        return false;
    }
    return true;
}

bool replaceSharedFile(const QString& path, const QByteArray& text)
{
    return replaceFile(path, QByteArray(text).replace("\n", "\r\n"));
}

} // namespace TOLVAN_NAMESPACE::Platform
