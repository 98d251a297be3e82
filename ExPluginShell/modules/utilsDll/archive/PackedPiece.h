#pragma once

#include "ArchiveJob.h"
#include "ContentStream.h"
#include "PackedFiles.h"

#include <memory>
#include <optional>
#include <vector>

namespace TOLVAN_NAMESPACE
{

class Deflaters;

/// A file on its way into the archive. Internal.
struct PackedContent {
    PackedFile file;
    std::unique_ptr<char[]> data; ///< null if the file is packed block by block, and for a folder
    qint64 size = 0;              ///< of the data
    quint16 method = Stored;
    quint32 checksum = 0;
    std::optional<ArchiveProblem> problem;

    bool fitsMemory() const;
};

/// Opens a file that is to be packed, if it is a regular one.
std::optional<ArchiveProblem> openContent(QFile& file);

/// Files that one thread reads and deflates. Internal.
class PackedPiece
{
public:
    static constexpr qint64 smallest = 256 * 1024; ///< Smaller files are handed to a thread together.

    explicit PackedPiece(Deflaters& deflaters)
        : m_deflaters(deflaters)
    {
    }
    bool isFull() const;
    void add(PackedFile&& file);
    qint64 memory() const { return m_memory; }
    void work();

    std::vector<PackedContent> contents;

private:
    Deflaters& m_deflaters;
    qint64 m_memory = 0;
};

} // namespace TOLVAN_NAMESPACE
