#pragma once

#include "ArchiveJob.h"
#include "ZipDirectory.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace TOLVAN_NAMESPACE
{

class ArchiveFile;

/// An entry on its way from the directory to the folder. Internal.
struct UnpackedEntry {
    DirectoryEntry entry;
    QString name;
    QStringList parts;
    bool isFolder = false;
    qint64 position = -1;            ///< of the packed content
    std::unique_ptr<char[]> content; ///< null if it is unpacked block by block, or has none
    std::optional<ArchiveProblem> problem;

    bool fitsMemory() const;
};

/// Entries that one thread unpacks into memory. Internal.
class UnpackedPiece
{
public:
    static constexpr qint64 smallest = 256 * 1024; ///< Smaller entries are handed to a thread together.

    /// \param wholeEntries false: everything is unpacked block by block
    UnpackedPiece(ArchiveFile& file, bool wholeEntries)
        : m_file(file)
        , m_wholeEntries(wholeEntries)
    {
    }
    bool isFull() const;
    void add(UnpackedEntry&& entry);
    qint64 memory() const { return m_memory; }
    void work();

    std::vector<UnpackedEntry> entries;

private:
    std::optional<ArchiveProblem> unpack(UnpackedEntry& unpacked) const;

    ArchiveFile& m_file;
    const bool m_wholeEntries;
    qint64 m_memory = 0;
};

} // namespace TOLVAN_NAMESPACE
