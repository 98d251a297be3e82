#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QtGlobal>

#include <optional>

namespace TOLVAN_NAMESPACE
{

class ArchiveFile;

/// An entry as the central directory of a zip archive describes it. Internal.
struct DirectoryEntry {
    QByteArray name; ///< as stored
    QByteArray extra;
    quint16 flags = 0;
    quint16 method = 0;
    quint16 dosTime = 0;
    quint16 dosDate = 0;
    quint32 checksum = 0;
    quint32 mode = 0; ///< Unix file type and permissions; 0 if the archive has none
    qint64 packedSize = 0;
    qint64 size = 0;
    qint64 offset = 0; ///< of the local header, in the file

    bool isEncrypted() const { return (flags & 0x0001) != 0; }
    bool hasUtf8Name() const { return (flags & 0x0800) != 0; }
    bool hasLaterSizes() const { return (flags & 0x0008) != 0; } ///< they follow the content
    bool isLink() const { return (mode & 0170000) == 0120000; }
    QFile::Permissions permissions() const;
    /// Time of the last change: the extended time stamp if there is one, which is UTC, else local DOS time.
    QDateTime lastModified() const;
};

/// The body of the first extra field with this number; null if there is none.
QByteArray extraField(const QByteArray& extra, quint16 number);

/// Reads the central directory of a zip archive, piece by piece, so that its size does not matter. Internal.
///
/// Finds it also in front of a long comment or of data behind the archive, behind a program, with ZIP64, and
/// in the archives that macOS writes above 4 GiB: those have no ZIP64, so sizes and offsets are stored modulo
/// 2^32 and the number of entries modulo 2^16.
class ZipDirectory
{
public:
    explicit ZipDirectory(ArchiveFile& file);

    /// Finds the directory.
    /// \return false if the file is no archive
    bool locate();
    /// Goes back to the first entry.
    void rewind();
    /// The next entry; none at the end, and where the directory is damaged.
    std::optional<DirectoryEntry> next();
    /// Whether next() has read the number of entries that the archive claims to have.
    bool isComplete() const;

    /// Where the directory begins in the file: contents end there.
    qint64 begin() const { return m_begin; }
    /// Whether sizes are stored modulo 2^32.
    bool isWrapped() const { return m_wrapped; }
    /// Position of the content of an entry.
    /// \return -1 if the local header does not fit the directory
    qint64 contentPosition(const DirectoryEntry& entry) const;

private:
    bool accept(qint64 endRecord, const char* record);
    bool readZip64(qint64 endRecord);
    bool placeDirectory(qint64 endRecord, qint64 size, qint64 offset);
    const char* bytes(qint64 position, qint64 length);
    qint64 unwrapped(const DirectoryEntry& entry) const;

    ArchiveFile& m_file;
    qint64 m_begin = 0;
    qint64 m_end = 0;
    qint64 m_shift = 0; ///< what precedes the archive in the file
    quint64 m_count = 0;
    bool m_zip64 = false;
    bool m_wrapped = false;

    qint64 m_position = 0;
    quint64 m_seen = 0;
    qint64 m_lastOffset = -1;
    QByteArray m_block;
    qint64 m_blockStart = 0;
};

} // namespace TOLVAN_NAMESPACE
