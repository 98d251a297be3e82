#pragma once

#include <QFile>
#include <QMutex>
#include <QString>

namespace TOLVAN_NAMESPACE
{

/// An archive file that is read at any position, by several threads. Internal.
class ArchiveFile
{
public:
    explicit ArchiveFile(const QString& path);

    /// \return false if the file is missing, not a regular file, or can't be read
    bool open();
    qint64 size() const { return m_size; }
    /// Reads exactly \a length bytes. Thread-safe.
    bool read(qint64 position, char* data, qint64 length);

private:
    QFile m_file;
    qint64 m_size = 0;
    QMutex m_mutex;
};

} // namespace TOLVAN_NAMESPACE
