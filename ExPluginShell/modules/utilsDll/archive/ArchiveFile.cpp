#include "ArchiveFile.h"

#include <QFileInfo>

namespace TOLVAN_NAMESPACE
{

ArchiveFile::ArchiveFile(const QString& path)
    : m_file(path)
{
}

bool ArchiveFile::open()
{
    // Opening a pipe would wait for its other end.
    if (!QFileInfo(m_file).isFile() || !m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return false;
    }
    m_size = m_file.size();
    return true;
}

bool ArchiveFile::read(qint64 position, char* data, qint64 length)
{
    if (position < 0 || length < 0 || position > m_size - length) {
        return false;
    }
    const QMutexLocker lock(&m_mutex);
    return m_file.seek(position) && m_file.read(data, length) == length;
}

} // namespace TOLVAN_NAMESPACE
