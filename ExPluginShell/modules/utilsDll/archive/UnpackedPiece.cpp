#include "UnpackedPiece.h"

#include "ArchiveFile.h"
#include "ContentStream.h"

#include <algorithm>
#include <new>

namespace TOLVAN_NAMESPACE
{

namespace
{
constexpr qint64 largestInMemory = 24 * 1024 * 1024; // Larger entries are unpacked block by block.
constexpr std::size_t mostEntries = 64;
} // namespace

bool UnpackedEntry::fitsMemory() const
{
    return std::max(entry.size, entry.packedSize) <= largestInMemory &&
           (entry.method == Stored || entry.method == Deflated);
}

bool UnpackedPiece::isFull() const
{
    return m_memory >= smallest || entries.size() >= mostEntries;
}

void UnpackedPiece::add(UnpackedEntry&& entry)
{
    if (entry.fitsMemory() && !entry.problem) {
        m_memory += entry.entry.size + entry.entry.packedSize;
    }
    entries.push_back(std::move(entry));
}

void UnpackedPiece::work()
{
    for (UnpackedEntry& entry : entries) {
        if (m_wholeEntries && !entry.problem && !entry.isFolder && entry.fitsMemory()) {
            entry.problem = unpack(entry);
        }
    }
}

std::optional<ArchiveProblem> UnpackedPiece::unpack(UnpackedEntry& unpacked) const
{
    const DirectoryEntry& entry = unpacked.entry;
    const bool stored = entry.method == Stored;
    const auto allocated = [](qint64 size) {
        return std::unique_ptr<char[]>(new (std::nothrow) char[static_cast<std::size_t>(size) + 1]);
    };
    std::unique_ptr<char[]> packed = allocated(entry.packedSize);
    if (!packed || !m_file.read(unpacked.position, packed.get(), entry.packedSize)) {
        return ArchiveProblem::ReadFailed;
    }
    unpacked.content = stored ? std::move(packed) : allocated(entry.size);
    const bool whole = stored ? entry.packedSize == entry.size
                              : unpacked.content && inflateWhole(packed.get(), entry.packedSize,
                                                                 unpacked.content.get(), entry.size);
    if (!whole || updatedChecksum(0, unpacked.content.get(), entry.size) != entry.checksum) {
        return ArchiveProblem::Damaged;
    }
    return std::nullopt;
}

} // namespace TOLVAN_NAMESPACE
