#include "SoapUnpacker.h"

#include <zlib.h>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr int zlibOrGzip = 15 + 32; ///< with a header, recognised by its first bytes
constexpr int bare = -15;           ///< "deflate" as some servers send it, without a header

} // namespace

struct SoapUnpacker::Stream : z_stream {
    Stream()
        : z_stream()
    {
    }
    ~Stream() { inflateEnd(this); }
};

SoapUnpacker::SoapUnpacker()
    : m_stream(std::make_unique<Stream>())
{
}

SoapUnpacker::~SoapUnpacker() = default;

bool SoapUnpacker::unpack(const QByteArray& piece, QByteArray& body, qint64 limit)
{
    if (!m_started && !piece.isEmpty()) {
        const bool hasHeader = piece.startsWith('\x1F') || (piece.at(0) & 0x0F) == Z_DEFLATED;
        m_started = inflateInit2(m_stream.get(), hasHeader ? zlibOrGzip : bare) == Z_OK;
    }
    QByteArray packed = piece;
    QByteArray plain(64 * 1024, Qt::Uninitialized);
    m_stream->next_in = reinterpret_cast<Bytef*>(packed.data());
    m_stream->avail_in = static_cast<uInt>(packed.size());
    while (!m_complete && body.size() <= limit) {
        m_stream->next_out = reinterpret_cast<Bytef*>(plain.data());
        m_stream->avail_out = static_cast<uInt>(plain.size());
        const int result = m_started ? inflate(m_stream.get(), Z_NO_FLUSH) : Z_BUF_ERROR;
        const int made = plain.size() - static_cast<int>(m_stream->avail_out);
        body.append(plain.constData(), m_started ? made : 0);
        m_complete = result == Z_STREAM_END;
        if (result != Z_OK) {
            return m_complete || result == Z_BUF_ERROR;
        }
        if (made == 0 && m_stream->avail_in == 0) {
            break;
        }
    }
    return true;
}

} // namespace TOLVAN_NAMESPACE
