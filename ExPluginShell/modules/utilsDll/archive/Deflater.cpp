#include "Deflater.h"

#include <libdeflate.h>

namespace TOLVAN_NAMESPACE
{

namespace
{
constexpr int level = 6;
constexpr qint64 sampledSize = 1024 * 1024; // Smaller contents are deflated as a whole.
constexpr qint64 sampleSize = 16 * 1024;
constexpr qint64 samples = 16;
} // namespace

Deflater::Deflater()
    : m_compressor(libdeflate_alloc_compressor(level), libdeflate_free_compressor)
{
}

Deflater::~Deflater() = default;

qint64 Deflater::deflate(const char* content, qint64 size, char* packed)
{
    if (!m_compressor || size == 0 || (size >= sampledSize && looksIncompressible(content, size, packed))) {
        return 0;
    }
    return static_cast<qint64>(libdeflate_deflate_compress(m_compressor.get(), content,
                                                           static_cast<std::size_t>(size), packed,
                                                           static_cast<std::size_t>(size - 1)));
}

/// Deflates samples from all over the content: photographs are compressed already, and trying the whole of them
/// takes most of the time of packing. A content that saves less than a hundredth is not worth it either.
bool Deflater::looksIncompressible(const char* content, qint64 size, char* packed)
{
    qint64 packedSize = 0;
    for (qint64 i = 0; i < samples; ++i) {
        const qint64 offset = (size - sampleSize) / (samples - 1) * i;
        const auto length = libdeflate_deflate_compress(m_compressor.get(), content + offset,
                                                        static_cast<std::size_t>(sampleSize), packed,
                                                        static_cast<std::size_t>(sampleSize));
        packedSize += length == 0 ? sampleSize : static_cast<qint64>(length);
    }
    return packedSize * 100 > samples * sampleSize * 99;
}

} // namespace TOLVAN_NAMESPACE
