#include "platform/FileReplacement.h"

#include "platform/SharedFile.h"

#include <QDir>
#include <QFileInfo>
#include <QUuid>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

constexpr qint64 copyBlock = 1024 * 1024;
constexpr int longestNamePart = 50; // leaves room for the suffix below the system's limit

QString resolved(const QString& path)
{
    const QFileInfo file(path);
    if (!file.isSymLink()) {
        return path;
    }
    const QString whole = file.canonicalFilePath(); // empty for a link to nothing
    return whole.isEmpty() ? file.symLinkTarget() : whole;
}

} // namespace

FileReplacement::FileReplacement(const QString& path)
    : m_target(resolved(path))
{
}

FileReplacement::~FileReplacement()
{
    cancel();
}

bool FileReplacement::open(OpenMode mode)
{
    const QFileInfo target(m_target);
    m_replaces = target.exists();
    if (isOpen() || (m_replaces && (!target.isFile() || !target.isWritable()))) {
        return false;
    }
    m_isBeside = openTemporary(target.path());
    if (!m_isBeside && (!m_replaces || !openTemporary(QDir::tempPath()))) {
        return false;
    }
    m_size = 0;
    m_failed = false;
    return QIODevice::open(mode | QIODevice::Unbuffered);
}

bool FileReplacement::openTemporary(const QString& folder)
{
    m_temporary = folder + QLatin1Char('/') + QFileInfo(m_target).fileName().left(longestNamePart) +
                  QLatin1Char('.') + QUuid::createUuid().toString(QUuid::Id128);
    m_file.setFileName(m_temporary);
    if (createFile(m_file, m_replaces)) {
        return true;
    }
    m_temporary.clear();
    return false;
}

qint64 FileReplacement::writeData(const char* data, qint64 length)
{
    const qint64 written = m_file.seek(pos()) ? writeBlock(m_file, data, length) : -1;
    m_failed = m_failed || written != length;
    m_size = qMax(m_size, pos() + qMax<qint64>(written, 0));
    return written;
}

bool FileReplacement::commit()
{
    if (!isOpen() || m_failed || !flushToDisk(m_file)) {
        cancel();
        return false;
    }
    const bool isReplaceable = m_isBeside && (!m_replaces || keepRights(m_file, m_target));
    if (m_permissions) {
        m_file.setPermissions(*m_permissions);
    }
    m_file.close();
    if (m_file.error() == QFile::NoError && isReplaceable && moveOver(m_temporary, m_target)) {
        m_temporary.clear();
        QIODevice::close();
        return true;
    }
    const bool isOverwritten = m_file.error() == QFile::NoError && m_replaces && overwriteTarget();
    cancel();
    return isOverwritten;
}

bool FileReplacement::overwriteTarget()
{
    QFile target(m_target);
    m_file.setFileName(m_temporary); // a file opened by its descriptor has no name
    if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ||
        !openSharedFile(target, QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        return false;
    }
    const qint64 oldSize = target.size();
    if (m_size > oldSize && !reserve(target, m_size)) {
        target.resize(oldSize);
        return false;
    }
    for (qint64 left = m_size; left > 0;) {
        const QByteArray block = m_file.read(copyBlock);
        if (block.isEmpty() || writeBlock(target, block.constData(), block.size()) != block.size()) {
            return false;
        }
        left -= block.size();
    }
    if (m_permissions) {
        target.setPermissions(*m_permissions);
    }
    if (!target.resize(m_size) || !flushToDisk(target)) {
        return false;
    }
    target.close();
    return target.error() == QFile::NoError;
}

void FileReplacement::cancel()
{
    m_file.close();
    if (!m_temporary.isEmpty()) {
        QFile::remove(m_temporary);
        m_temporary.clear();
    }
    QIODevice::close();
}

bool replaceFile(const QString& path, const QByteArray& content)
{
    FileReplacement file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
}

} // namespace TOLVAN_NAMESPACE::Platform
