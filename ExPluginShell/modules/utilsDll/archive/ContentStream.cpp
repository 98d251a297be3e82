#include "ContentStream.h"

#include "ArchiveFile.h"

#include <algorithm>
#include <cstring>

#include <libdeflate.h>
#include <zlib.h>
#ifdef TOLVAN_HAVE_BZIP2
#include <bzlib.h>
#endif

namespace TOLVAN_NAMESPACE
{

namespace
{
constexpr qint64 blockSize = 128 * 1024;
} // namespace

bool isReadableMethod(quint16 method)
{
#ifdef TOLVAN_HAVE_BZIP2
    return method == Stored || method == Deflated || method == Bzip2;
#else
    return method == Stored || method == Deflated;
#endif
}

quint32 updatedChecksum(quint32 checksum, const char* data, qint64 length)
{
    return libdeflate_crc32(checksum, data, static_cast<std::size_t>(length));
}

bool inflateWhole(const char* packed, qint64 packedSize, char* content, qint64 size)
{
    const std::unique_ptr<libdeflate_decompressor, void (*)(libdeflate_decompressor*)> decompressor(
        libdeflate_alloc_decompressor(), libdeflate_free_decompressor);
    std::size_t written = 0;
    return decompressor &&
           libdeflate_deflate_decompress(decompressor.get(), packed, static_cast<std::size_t>(packedSize),
                                         content, static_cast<std::size_t>(size),
                                         &written) == LIBDEFLATE_SUCCESS &&
           written == static_cast<std::size_t>(size);
}

/// Unpacks from memory to memory.
class ContentStream::Decoder
{
public:
    struct Step {
        qint64 used;
        qint64 written;
        bool ended;
        bool damaged;
    };
    virtual ~Decoder() = default;
    virtual Step decode(const char* packed, qint64 packedSize, char* content, qint64 size) = 0;
};

class ContentStream::StoredDecoder : public ContentStream::Decoder
{
public:
    Step decode(const char* packed, qint64 packedSize, char* content, qint64 size) override
    {
        const qint64 length = std::min(packedSize, size);
        std::memcpy(content, packed, static_cast<std::size_t>(length));
        return {length, length, length == 0, false};
    }
};

class ContentStream::DeflateDecoder : public ContentStream::Decoder
{
public:
    DeflateDecoder()
        : m_ready(inflateInit2(&m_stream, -MAX_WBITS) == Z_OK)
    {
    }
    ~DeflateDecoder() override { inflateEnd(&m_stream); }

    Step decode(const char* packed, qint64 packedSize, char* content, qint64 size) override
    {
        m_stream.next_in = const_cast<Bytef*>(reinterpret_cast<const Bytef*>(packed)); // predates const
        m_stream.avail_in = static_cast<uInt>(packedSize);
        m_stream.next_out = reinterpret_cast<Bytef*>(content);
        m_stream.avail_out = static_cast<uInt>(size);
        const int result = m_ready ? inflate(&m_stream, Z_NO_FLUSH) : Z_MEM_ERROR;
        return {packedSize - m_stream.avail_in, size - m_stream.avail_out, result == Z_STREAM_END,
                result != Z_STREAM_END && result != Z_OK && result != Z_BUF_ERROR};
    }

private:
    z_stream m_stream = {};
    const bool m_ready;
};

#ifdef TOLVAN_HAVE_BZIP2
class ContentStream::Bzip2Decoder : public ContentStream::Decoder
{
public:
    Bzip2Decoder()
        : m_ready(BZ2_bzDecompressInit(&m_stream, 0, 0) == BZ_OK)
    {
    }
    ~Bzip2Decoder() override { BZ2_bzDecompressEnd(&m_stream); }

    Step decode(const char* packed, qint64 packedSize, char* content, qint64 size) override
    {
        m_stream.next_in = const_cast<char*>(packed); // predates const
        m_stream.avail_in = static_cast<unsigned>(packedSize);
        m_stream.next_out = content;
        m_stream.avail_out = static_cast<unsigned>(size);
        const int result = m_ready ? BZ2_bzDecompress(&m_stream) : BZ_MEM_ERROR;
        return {packedSize - m_stream.avail_in, size - m_stream.avail_out, result == BZ_STREAM_END,
                result != BZ_STREAM_END && result != BZ_OK};
    }

private:
    bz_stream m_stream = {};
    const bool m_ready;
};
#endif

ContentStream::ContentStream(ArchiveFile& file, qint64 position, qint64 packedSize, quint16 method)
    : m_file(file)
    , m_position(position)
    , m_left(packedSize)
    , m_packedSize(packedSize)
    , m_block(new char[blockSize])
{
    if (method == Stored) {
        m_decoder = std::make_unique<StoredDecoder>();
    } else if (method == Deflated) {
        m_decoder = std::make_unique<DeflateDecoder>();
    }
#ifdef TOLVAN_HAVE_BZIP2
    if (method == Bzip2) {
        m_decoder = std::make_unique<Bzip2Decoder>();
    }
#endif
}

ContentStream::~ContentStream() = default;

bool ContentStream::fill()
{
    const qint64 length = std::min(m_left, blockSize);
    if (!m_file.read(m_position, m_block.get(), length)) {
        return false;
    }
    m_position += length;
    m_left -= length;
    m_next = m_block.get();
    m_available = length;
    return true;
}

qint64 ContentStream::read(char* data, qint64 length)
{
    qint64 done = 0;
    while (!m_ended && done < length) {
        if (m_available == 0 && m_left > 0 && !fill()) {
            return -1;
        }
        const Decoder::Step step = m_decoder->decode(m_next, m_available, data + done, length - done);
        m_next += step.used;
        m_available -= step.used;
        done += step.written;
        m_ended = step.ended;
        if (step.damaged || (!m_ended && step.used == 0 && step.written == 0)) {
            return -1;
        }
    }
    return done;
}

qint64 ContentStream::packedRead() const
{
    return m_packedSize - m_left - m_available;
}

} // namespace TOLVAN_NAMESPACE
