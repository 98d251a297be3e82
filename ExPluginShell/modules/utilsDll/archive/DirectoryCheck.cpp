#include "DirectoryCheck.h"

#include "ZipDirectory.h"

#include <algorithm>
#include <limits>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr qint64 highestRatio = 1100;
constexpr qint64 smallContent = 16 * 1024 * 1024; // Never too large, also in the smallest archive.
constexpr qint64 localHeaderSize = 30;
constexpr std::size_t mostUnordered = 2 * 1024 * 1024; // Entries that are sorted in memory: 48 MB.
constexpr qint64 largest = std::numeric_limits<qint64>::max();

qint64 sum(qint64 a, qint64 b)
{
    return a > largest - b ? largest : a + b;
}

qint64 endOf(const DirectoryEntry& entry)
{
    return sum(entry.offset + localHeaderSize + entry.name.size(), entry.packedSize);
}

} // namespace

qint64 DirectoryCheck::largestContent(qint64 archiveSize)
{
    return archiveSize > largest / highestRatio - smallContent ? largest
                                                               : archiveSize * highestRatio + smallContent;
}

void DirectoryCheck::survey(ZipDirectory& directory)
{
    bool ordered = true;
    qint64 end = 0;
    directory.rewind();
    while (const auto entry = directory.next()) {
        ++m_entries;
        m_contentSize = sum(m_contentSize, entry->size);
        ordered = ordered && entry->offset >= end;
        end = endOf(*entry);
    }
    if (!ordered) {
        findOverlaps(directory);
    }
}

void DirectoryCheck::findOverlaps(ZipDirectory& directory)
{
    struct Extent {
        qint64 begin;
        qint64 end;
        qint64 index;
    };
    std::vector<Extent> extents;
    directory.rewind();
    qint64 index = 0;
    for (auto entry = directory.next(); entry; entry = directory.next(), ++index) {
        if (extents.size() < mostUnordered) {
            extents.push_back({entry->offset, endOf(*entry), index});
        } else {
            m_overlapping.push_back(index);
        }
    }
    std::stable_sort(extents.begin(), extents.end(),
                     [](const Extent& a, const Extent& b) { return a.begin < b.begin; });
    qint64 end = 0;
    for (const Extent& extent : extents) {
        if (extent.begin < end) {
            m_overlapping.push_back(extent.index);
        } else {
            end = extent.end;
        }
    }
    std::sort(m_overlapping.begin(), m_overlapping.end());
}

bool DirectoryCheck::overlaps(qint64 index) const
{
    return std::binary_search(m_overlapping.begin(), m_overlapping.end(), index);
}

} // namespace TOLVAN_NAMESPACE
