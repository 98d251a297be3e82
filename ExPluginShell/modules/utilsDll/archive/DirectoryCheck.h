#pragma once

#include <QtGlobal>

#include <vector>

namespace TOLVAN_NAMESPACE
{

class ZipDirectory;

/// What is known of an archive before its first entry is unpacked: counts, sizes, and entries that share data, as
/// in archives that expand without bounds. Internal.
class DirectoryCheck
{
public:
    /// The most content that an archive of this size can honestly have: deflate reaches 1,032 times its input.
    static qint64 largestContent(qint64 archiveSize);

    /// Reads the directory to its end.
    void survey(ZipDirectory& directory);

    qint64 entries() const { return m_entries; }
    qint64 contentSize() const { return m_contentSize; }
    /// Whether the entry with this index shares data with one that begins before it.
    bool overlaps(qint64 index) const;

private:
    void findOverlaps(ZipDirectory& directory);

    qint64 m_entries = 0;
    qint64 m_contentSize = 0;
    std::vector<qint64> m_overlapping; ///< sorted
};

} // namespace TOLVAN_NAMESPACE
