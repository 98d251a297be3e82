#pragma once

#include <QtGlobal>

#include <memory>

struct libdeflate_compressor;

namespace TOLVAN_NAMESPACE
{

/// Deflates pieces of memory. One object is used by one thread at a time. Internal.
class Deflater
{
public:
    Deflater();
    ~Deflater();
    Deflater(const Deflater&) = delete;
    Deflater& operator=(const Deflater&) = delete;

    /// Deflates \a size bytes without a header, as an archive holds them.
    /// \param packed room for \a size bytes
    /// \return the size of the result; 0 if it would not be smaller than the content
    qint64 deflate(const char* content, qint64 size, char* packed);

private:
    bool looksIncompressible(const char* content, qint64 size, char* packed);

    const std::unique_ptr<libdeflate_compressor, void (*)(libdeflate_compressor*)> m_compressor;
};

} // namespace TOLVAN_NAMESPACE
