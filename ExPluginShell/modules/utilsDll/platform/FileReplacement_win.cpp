#include "platform/FileReplacement.h"

#include <QDir>
#include <QFileInfo>

#include <io.h>
#include <windows.h>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

constexpr int mostAttempts = 250;
constexpr DWORD pause = 2; // milliseconds
constexpr int longestPlainPath = 247;

/// The path as the system takes it, also beyond its usual limit.
QString nativePath(const QString& path)
{
    const QString native = QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
    const bool isShare = native.startsWith(QLatin1String("\\\\"));
    return native.size() <= longestPlainPath || isShare ? native : QStringLiteral("\\\\?\\") + native;
}

const wchar_t* wide(const QString& text)
{
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

constexpr DWORD keptAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
                                 FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

/// The access list of a file as one block; null if the system does not return it.
QByteArray accessListOf(const QString& path)
{
    DWORD size = 0;
    GetFileSecurityW(wide(path), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    QByteArray list(static_cast<int>(size), '\0');
    return size && GetFileSecurityW(wide(path), DACL_SECURITY_INFORMATION, list.data(), size, &size)
               ? list
               : QByteArray();
}

} // namespace

bool FileReplacement::createFile(QFile& file, bool)
{
    return file.open(QIODevice::ReadWrite | QIODevice::NewOnly | QIODevice::Unbuffered);
}

qint64 FileReplacement::writeBlock(QFile& file, const char* data, qint64 length)
{
    return file.write(data, length);
}

bool FileReplacement::reserve(QFile& file, qint64 size)
{
    return file.resize(size);
}

bool FileReplacement::flushToDisk(QFile& file)
{
    return file.flush() && FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(file.handle())));
}

/// ReplaceFileW would keep the access list too, but for a moment there is no file under the name.
bool FileReplacement::keepRights(QFile& file, const QString& target)
{
    const QString from = nativePath(target);
    const QString to = nativePath(file.fileName());
    QByteArray list = accessListOf(from);
    const DWORD attributes = GetFileAttributesW(wide(from));
    return !list.isEmpty() && SetFileSecurityW(wide(to), DACL_SECURITY_INFORMATION, list.data()) &&
           attributes != INVALID_FILE_ATTRIBUTES &&
           ((attributes & keptAttributes) == 0 || SetFileAttributesW(wide(to), attributes & keptAttributes));
}

/// Only the move is tried again: it fails while another program has the target open.
bool FileReplacement::moveOver(const QString& from, const QString& to)
{
    const QString source = nativePath(from);
    const QString target = nativePath(to);
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        if (MoveFileExW(wide(source), wide(target), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
            return true;
        }
        const QFileInfo file(to);
        if (file.exists() && !(file.isFile() && file.isWritable())) {
            return false;
        }
        Sleep(pause);
    }
    return false;
}

} // namespace TOLVAN_NAMESPACE::Platform
