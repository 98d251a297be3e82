#include "platform/FolderWriter.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QStorageInfo>

#include <windows.h>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

WriteResult resultOf(DWORD error)
{
    switch (error) {
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_WRITE_PROTECT:
        return WriteResult::Denied;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return WriteResult::Full;
    default:
        return WriteResult::Failed;
    }
}

const wchar_t* native(const QString& path)
{
    return reinterpret_cast<const wchar_t*>(path.utf16());
}

bool isInside(const QString& path, const QString& root)
{
    return path == root || path.startsWith(root.endsWith(QLatin1Char('/')) ? root : root + QLatin1Char('/'));
}

} // namespace

class FolderWriter::Data
{
public:
    WriteResult step(const QString& path) const
    {
        const QFileInfo info(path);
        if (info.isSymLink() || info.isJunction()) {
            return info.isDir() && isInside(info.canonicalFilePath(), root) ? WriteResult::Done
                                                                            : WriteResult::Outside;
        }
        if (info.exists()) {
            return info.isDir() ? WriteResult::Done : WriteResult::InTheWay;
        }
        return QDir().mkdir(path) ? WriteResult::Done : resultOf(GetLastError());
    }

    QString root;
    QString current;
    QFile file;
    QString target;
};

FolderWriter::FolderWriter()
    : m_data(std::make_unique<Data>())
{
}

FolderWriter::~FolderWriter()
{
    discard();
}

WriteResult FolderWriter::openRoot(const QString& path)
{
    const QString folder = path.isEmpty() ? QStringLiteral(".") : path;
    QDir().mkpath(folder);
    m_data->root = QFileInfo(folder).canonicalFilePath();
    m_data->current = m_data->root;
    return QFileInfo(m_data->root).isDir() ? WriteResult::Done : WriteResult::InTheWay;
}

WriteResult FolderWriter::enter(const QStringList& parts)
{
    QString path = m_data->root;
    for (const QString& part : parts) {
        if (!path.endsWith(QLatin1Char('/'))) { // the root of a drive has one
            path += QLatin1Char('/');
        }
        path += part;
        const WriteResult result = m_data->step(path);
        if (result != WriteResult::Done) {
            return result;
        }
    }
    m_data->current = path;
    return WriteResult::Done;
}

QStringList FolderWriter::realParts() const
{
    const QString real = QFileInfo(m_data->current).canonicalFilePath();
    return real.mid(m_data->root.size()).split(QLatin1Char('/'), Qt::SkipEmptyParts);
}

void FolderWriter::setPermissions(QFile::Permissions permissions)
{
    if (permissions) {
        QFile::setPermissions(m_data->current,
                              permissions | QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
}

qint64 FolderWriter::availableBytes() const
{
    return QStorageInfo(m_data->current).bytesAvailable();
}

WriteResult FolderWriter::begin(const QString& name)
{
    constexpr auto mode = QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered;
    Data& data = *m_data;
    data.target = data.current + QLatin1Char('/') + name;
    data.file.setFileName(data.target);
    if (data.file.open(mode)) {
        return WriteResult::Done;
    }
    const DWORD error = GetLastError();
    const QFileInfo existing(data.target);
    if (!existing.exists() && !existing.isSymLink()) {
        return resultOf(error);
    }
    if (existing.isSymLink() || !existing.isFile()) {
        return WriteResult::InTheWay;
    }
    const quint32 number = QRandomGenerator::global()->generate();
    data.file.setFileName(data.current + QStringLiteral("/.unpacking-") + QString::number(number, 36));
    return data.file.open(mode) ? WriteResult::Done : resultOf(GetLastError());
}

WriteResult FolderWriter::write(const char* bytes, qint64 length)
{
    return m_data->file.write(bytes, length) == length ? WriteResult::Done : resultOf(GetLastError());
}

WriteResult FolderWriter::commit(QFile::Permissions permissions, const QDateTime& modified)
{
    QFile& file = m_data->file;
    const QString written = file.fileName();
    if (modified.isValid()) {
        file.setFileTime(modified, QFileDevice::FileModificationTime);
    }
    file.close();
    if (written != m_data->target) {
        const DWORD attributes = GetFileAttributesW(native(m_data->target));
        if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
            SetFileAttributesW(native(m_data->target), attributes & ~DWORD(FILE_ATTRIBUTE_READONLY));
        }
        if (MoveFileExW(native(written), native(m_data->target),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == FALSE) {
            const WriteResult result = resultOf(GetLastError());
            SetFileAttributesW(native(m_data->target), attributes);
            QFile::remove(written);
            return result;
        }
    }
    if (permissions) {
        QFile::setPermissions(m_data->target, permissions | QFile::ReadOwner);
    }
    return WriteResult::Done;
}

void FolderWriter::discard()
{
    if (m_data->file.isOpen()) {
        m_data->file.close();
        m_data->file.remove();
    }
}

WriteResult FolderWriter::createLink(const QString&, const QString&)
{
    return WriteResult::Failed;
}

} // namespace TOLVAN_NAMESPACE::Platform
