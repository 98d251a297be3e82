#include "RawDeflater.h"

#include <zlib.h>

namespace TOLVAN_NAMESPACE
{

namespace
{
constexpr int memoryLevel = 8;
} // namespace

RawDeflater::RawDeflater()
    : m_stream(new z_stream_s())
    , m_ready(deflateInit2(m_stream.get(), Z_DEFAULT_COMPRESSION, Z_DEFLATED, -MAX_WBITS, memoryLevel,
                           Z_DEFAULT_STRATEGY) == Z_OK)
{
}

RawDeflater::~RawDeflater()
{
    if (m_ready) {
        deflateEnd(m_stream.get());
    }
}

RawDeflater::Result RawDeflater::deflate(const char* data, int size)
{
    if (!m_ready || deflateReset(m_stream.get()) != Z_OK) {
        return {nullptr, 0, 0};
    }
    const auto length = static_cast<uInt>(size);
    const auto* const input = reinterpret_cast<const Bytef*>(data);
    const uLong bound = deflateBound(m_stream.get(), length);
    if (m_output.size() < bound) {
        m_output.resize(bound);
    }
    m_stream->next_in = const_cast<Bytef*>(input); // the library's interface predates const
    m_stream->avail_in = length;
    m_stream->next_out = reinterpret_cast<Bytef*>(m_output.data());
    m_stream->avail_out = static_cast<uInt>(m_output.size());
    if (::deflate(m_stream.get(), Z_FINISH) != Z_STREAM_END) {
        return {nullptr, 0, 0};
    }
    return {m_output.data(), static_cast<int>(m_stream->total_out),
            static_cast<quint32>(crc32(crc32(0, nullptr, 0), input, length))};
}

} // namespace TOLVAN_NAMESPACE
