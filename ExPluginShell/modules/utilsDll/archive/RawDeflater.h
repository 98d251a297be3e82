#pragma once

#include <QtGlobal>

#include <memory>
#include <vector>

struct z_stream_s;

namespace TOLVAN_NAMESPACE
{

/// Deflates pieces of memory one after the other, without setting up a stream for each. Internal.
class RawDeflater
{
public:
    struct Result {
        const char* data; ///< valid until the next call; null on failure
        int size;
        quint32 checksum; ///< CRC-32 of the input
    };

    RawDeflater();
    ~RawDeflater();
    RawDeflater(const RawDeflater&) = delete;
    RawDeflater& operator=(const RawDeflater&) = delete;

    /// \return the deflated data, without a header of its own, as an archive holds it
    Result deflate(const char* data, int size);

private:
    const std::unique_ptr<z_stream_s> m_stream;
    bool m_ready;
    std::vector<char> m_output;
};

} // namespace TOLVAN_NAMESPACE
