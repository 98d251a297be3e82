#pragma once

#include <QtGlobal>

#include <memory>

namespace TOLVAN_NAMESPACE
{

class ArchiveFile;

/// Methods of compression, by their numbers in the zip format. Internal.
enum CompressionMethod : quint16 {
    Stored = 0,
    Deflated = 8,
    Bzip2 = 12,
};

/// Whether entries of this method can be read.
bool isReadableMethod(quint16 method);

/// CRC-32 of a zip entry, piece by piece. Begins with 0.
quint32 updatedChecksum(quint32 checksum, const char* data, qint64 length);

/// Unpacks deflated data in memory.
/// \return whether the data gives exactly \a size bytes
bool inflateWhole(const char* packed, qint64 packedSize, char* content, qint64 size);

/// Unpacks the content of an entry block by block. Internal.
class ContentStream
{
public:
    /// \param position    where the packed content begins in the file
    /// \param packedSize  how long it is, or may be
    /// \param method      a readable one
    ContentStream(ArchiveFile& file, qint64 position, qint64 packedSize, quint16 method);
    ~ContentStream();
    ContentStream(const ContentStream&) = delete;
    ContentStream& operator=(const ContentStream&) = delete;

    /// \return the number of bytes read; 0 at the end of the content, -1 if it is damaged or can't be read
    qint64 read(char* data, qint64 length);
    /// How much of the packed content was used.
    qint64 packedRead() const;

private:
    class Decoder;
    class StoredDecoder;
    class DeflateDecoder;
    class Bzip2Decoder;
    bool fill();

    ArchiveFile& m_file;
    qint64 m_position;
    qint64 m_left; ///< packed bytes that were not read from the file yet
    const qint64 m_packedSize;
    const std::unique_ptr<char[]> m_block;
    const char* m_next = nullptr; ///< packed bytes that are read but not unpacked
    qint64 m_available = 0;
    bool m_ended = false;
    std::unique_ptr<Decoder> m_decoder;
};

} // namespace TOLVAN_NAMESPACE
