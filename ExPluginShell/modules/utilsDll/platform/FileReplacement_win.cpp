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

bool moveOnce(const QString& from, const QString& to)
{
    // ReplaceFileW keeps the access list and the attributes, and needs a file to replace.
    return ReplaceFileW(wide(to), wide(from), nullptr, REPLACEFILE_WRITE_THROUGH, nullptr, nullptr) ||
           (GetLastError() == ERROR_FILE_NOT_FOUND &&
            MoveFileExW(wide(from), wide(to), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
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

bool FileReplacement::keepRights(QFile&, const QString&)
{
    return true; // moveOver() keeps them
}

/// Only the move is tried again: it fails while another program has the target open.
bool FileReplacement::moveOver(const QString& from, const QString& to)
{
    const QString source = nativePath(from);
    const QString target = nativePath(to);
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        if (moveOnce(source, target)) {
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
