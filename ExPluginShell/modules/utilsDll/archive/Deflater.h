#pragma once

#include <QtGlobal>

#include <memory>
#include <mutex>
#include <vector>

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

/// Deflaters that are not in use: making one takes longer than packing a small file. Thread-safe. Internal.
class Deflaters
{
public:
    std::unique_ptr<Deflater> take()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_free.empty()) {
            return std::make_unique<Deflater>();
        }
        auto deflater = std::move(m_free.back());
        m_free.pop_back();
        return deflater;
    }
    void giveBack(std::unique_ptr<Deflater> deflater)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_free.push_back(std::move(deflater));
    }

private:
    std::mutex m_mutex;
    std::vector<std::unique_ptr<Deflater>> m_free;
};

} // namespace TOLVAN_NAMESPACE
