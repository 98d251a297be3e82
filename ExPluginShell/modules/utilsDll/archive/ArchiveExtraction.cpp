#include "ArchiveExtraction.h"

#include "ArchiveFile.h"
#include "ArchiveNames.h"
#include "ArchiveWork.h"
#include "ContentStream.h"
#include "DirectoryCheck.h"
#include "NameEncoding.h"
#include "OrderedWork.h"
#include "platform/FolderWriter.h"
#include "UnpackedPiece.h"
#include "ZipDirectory.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <thread>

namespace TOLVAN_NAMESPACE
{

namespace
{

using Platform::FolderWriter;
using Platform::WriteResult;

constexpr qint64 blockSize = 256 * 1024;
constexpr qint64 mostInMemory = 80 * 1024 * 1024;
constexpr qint64 longestLinkTarget = 4096;
constexpr qint64 sizeWorthAsking = 16 * 1024 * 1024; // Smaller entries don't fill a disk by themselves.
constexpr int mostHelpers = 15;

ArchiveProblem problemOf(WriteResult result)
{
    switch (result) {
    case WriteResult::Outside:
        return ArchiveProblem::OutsideFolder;
    case WriteResult::InTheWay:
        return ArchiveProblem::InTheWay;
    case WriteResult::Denied:
        return ArchiveProblem::AccessDenied;
    case WriteResult::Full:
        return ArchiveProblem::DiskFull;
    case WriteResult::Done:
    case WriteResult::Failed:
        break;
    }
    return ArchiveProblem::WriteFailed;
}

/// Unpacks one archive into one folder.
class Extractor
{
public:
    explicit Extractor(ArchiveWork& work)
        : m_work(work)
        , m_task(work.task())
        , m_file(m_task.archive)
        , m_directory(m_file)
        , m_rules(nativeNameRules())
    {
    }

    void extractAll();

private:
    std::optional<ArchiveProblem> open();
    void run();
    UnpackedEntry nextEntry(DirectoryEntry&& entry);
    std::optional<ArchiveProblem> entryProblem(const UnpackedEntry& entry);
    void finish(UnpackedPiece& piece);
    std::optional<ArchiveProblem> finish(UnpackedEntry& entry);
    std::optional<ArchiveProblem> makeFolder(const UnpackedEntry& entry);
    std::optional<ArchiveProblem> makeFile(const UnpackedEntry& entry, const QString& name);
    std::optional<ArchiveProblem> makeLink(const UnpackedEntry& entry, const QString& name);
    template <class Write>
    std::optional<ArchiveProblem> copyContent(const UnpackedEntry& entry, const Write& write);

    ArchiveWork& m_work;
    const ArchiveTask& m_task;
    ArchiveFile m_file;
    ZipDirectory m_directory;
    FolderWriter m_folder;
    const NameRules m_rules;
    DirectoryCheck m_check;
    qint64 m_index = 0;
    qint64 m_claimed = 0; ///< size of the entries so far
};

void Extractor::extractAll()
{
    if (!m_task.dryRun) {
        const WriteResult result = m_folder.openRoot(m_task.folder);
        if (result != WriteResult::Done) {
            m_work.fail(m_task.folder, problemOf(result));
            return;
        }
    }
    if (const auto problem = open()) {
        m_work.fail(m_task.archive, *problem);
        return;
    }
    m_check.survey(m_directory);
    m_work.setEntries(m_check.entries());
    m_work.setTotal(m_check.contentSize());
    const bool complete = m_directory.isComplete();
    run();
    // A directory that breaks off looks like its end.
    if (!complete) {
        m_work.fail(m_task.archive, ArchiveProblem::Damaged);
    }
}

std::optional<ArchiveProblem> Extractor::open()
{
    const QFileInfo archive(m_task.archive);
    if (!archive.exists()) {
        return ArchiveProblem::NotFound;
    }
    if (!m_file.open()) {
        return !archive.isFile()      ? ArchiveProblem::NotAFile
               : archive.isReadable() ? ArchiveProblem::ReadFailed
                                      : ArchiveProblem::AccessDenied;
    }
    return m_directory.locate() ? std::nullopt : std::make_optional(ArchiveProblem::NotAnArchive);
}

void Extractor::run()
{
    const int processors = static_cast<int>(std::thread::hardware_concurrency());
    const qint64 helpers =
        std::min<qint64>({processors - 1, mostHelpers, m_check.contentSize() / UnpackedPiece::smallest});
    OrderedWork<UnpackedPiece> pieces(static_cast<int>(std::max<qint64>(0, helpers)), mostInMemory);
    m_directory.rewind();
    std::optional<DirectoryEntry> next = m_directory.next();
    while (next && !m_work.stopRequired()) {
        auto piece = std::make_unique<UnpackedPiece>(m_file, !m_directory.isWrapped());
        while (next && !piece->isFull()) {
            piece->add(nextEntry(std::move(*next)));
            next = m_directory.next();
        }
        while (pieces.isFull(piece->memory())) {
            finish(*pieces.take());
        }
        pieces.add(std::move(piece));
    }
    while (!pieces.isEmpty()) {
        finish(*pieces.take());
    }
    for (; next; next = m_directory.next()) {
        m_work.fail(nextEntry(std::move(*next)).name, ArchiveProblem::Stopped);
    }
}

UnpackedEntry Extractor::nextEntry(DirectoryEntry&& entry)
{
    UnpackedEntry unpacked;
    unpacked.entry = std::move(entry);
    const DirectoryEntry& from = unpacked.entry;
    unpacked.name =
        from.hasUtf8Name() ? QString::fromUtf8(from.name) : decodeUnmarkedName(from.name, from.extra);
    unpacked.isFolder = unpacked.name.endsWith(QLatin1Char('/')) ||
                        (m_rules == NameRules::Windows && unpacked.name.endsWith(QLatin1Char('\\')));
    unpacked.parts = safeParts(unpacked.name, m_rules);
    unpacked.position = m_directory.contentPosition(from);
    unpacked.problem = entryProblem(unpacked);
    ++m_index;
    return unpacked;
}

std::optional<ArchiveProblem> Extractor::entryProblem(const UnpackedEntry& unpacked)
{
    const DirectoryEntry& entry = unpacked.entry;
    if (unpacked.parts.isEmpty() && unpacked.name != QLatin1String("./")) {
        return leadsOutside(unpacked.name, m_rules) ? ArchiveProblem::OutsideFolder
                                                    : ArchiveProblem::NameRefused;
    }
    if (entry.isEncrypted()) {
        return ArchiveProblem::Encrypted;
    }
    if (!isReadableMethod(entry.method)) {
        return ArchiveProblem::UnsupportedMethod;
    }
    if (m_check.overlaps(m_index)) {
        return ArchiveProblem::Overlapping;
    }
    const qint64 room = m_directory.begin() - unpacked.position;
    if (unpacked.position < 0 || (!m_directory.isWrapped() && entry.packedSize > room)) {
        return ArchiveProblem::Damaged;
    }
    const qint64 honest = DirectoryCheck::largestContent(m_file.size());
    const qint64 limit = m_task.sizeLimit < 0 ? honest : std::min(honest, m_task.sizeLimit);
    if (entry.size > limit - m_claimed) {
        return ArchiveProblem::TooLarge;
    }
    m_claimed += entry.size;
    return std::nullopt;
}

void Extractor::finish(UnpackedPiece& piece)
{
    for (UnpackedEntry& entry : piece.entries) {
        if (m_task.dryRun) {
            m_work.list({entry.name, entry.entry.size, entry.entry.packedSize, entry.entry.lastModified(),
                         entry.entry.isLink()});
        }
        auto problem = m_work.stopRequired() ? ArchiveProblem::Stopped : entry.problem;
        if (!problem) {
            problem = finish(entry);
        }
        if (problem) {
            m_work.fail(entry.name, *problem);
        } else {
            m_work.succeed();
        }
        entry.content.reset();
    }
}

std::optional<ArchiveProblem> Extractor::finish(UnpackedEntry& entry)
{
    if (entry.isFolder) {
        return makeFolder(entry);
    }
    if (m_task.dryRun) {
        return copyContent(entry, [](const char*, qint64) { return WriteResult::Done; });
    }
    const QString name = entry.parts.takeLast();
    const WriteResult entered = m_folder.enter(entry.parts);
    if (entered != WriteResult::Done) {
        return problemOf(entered);
    }
    return entry.entry.isLink() ? makeLink(entry, name) : makeFile(entry, name);
}

std::optional<ArchiveProblem> Extractor::makeFolder(const UnpackedEntry& entry)
{
    if (m_task.dryRun) {
        return std::nullopt;
    }
    const WriteResult entered = m_folder.enter(entry.parts);
    if (entered != WriteResult::Done) {
        return problemOf(entered);
    }
    if (!entry.parts.isEmpty()) {
        m_folder.setPermissions(entry.entry.permissions());
    }
    return std::nullopt;
}

std::optional<ArchiveProblem> Extractor::makeFile(const UnpackedEntry& entry, const QString& name)
{
    if (entry.entry.size > sizeWorthAsking) {
        const qint64 available = m_folder.availableBytes();
        if (available >= 0 && entry.entry.size > available) {
            return ArchiveProblem::DiskFull;
        }
    }
    const WriteResult begun = m_folder.begin(name);
    if (begun != WriteResult::Done) {
        return problemOf(begun);
    }
    const auto problem =
        copyContent(entry, [this](const char* data, qint64 length) { return m_folder.write(data, length); });
    if (problem) {
        m_folder.discard();
        return problem;
    }
    const WriteResult result = m_folder.commit(entry.entry.permissions(), entry.entry.lastModified());
    return result == WriteResult::Done ? std::nullopt : std::make_optional(problemOf(result));
}

std::optional<ArchiveProblem> Extractor::makeLink(const UnpackedEntry& entry, const QString& name)
{
    if (m_rules == NameRules::Windows) {
        return ArchiveProblem::OutsideFolder;
    }
    if (entry.entry.size > longestLinkTarget) {
        return ArchiveProblem::Damaged;
    }
    QByteArray text;
    const auto problem = copyContent(entry, [&](const char* data, qint64 length) {
        text.append(data, static_cast<int>(length));
        return text.size() > longestLinkTarget ? WriteResult::Failed : WriteResult::Done;
    });
    if (problem) {
        return problem;
    }
    const QString target = QFile::decodeName(text);
    if (!linkStaysInside(m_folder.realParts(), target)) {
        return ArchiveProblem::OutsideFolder;
    }
    const WriteResult result = m_folder.createLink(name, target);
    return result == WriteResult::Done ? std::nullopt : std::make_optional(problemOf(result));
}

/// \param write takes a block and returns a WriteResult
template <class Write>
std::optional<ArchiveProblem> Extractor::copyContent(const UnpackedEntry& unpacked, const Write& write)
{
    const DirectoryEntry& entry = unpacked.entry;
    if (unpacked.content) {
        const WriteResult result = write(unpacked.content.get(), entry.size);
        if (result != WriteResult::Done) {
            return problemOf(result);
        }
        m_work.advance(entry.size, unpacked.name);
        return std::nullopt;
    }
    const bool wrapped = m_directory.isWrapped();
    const qint64 packedSize =
        wrapped && entry.method != Stored ? m_directory.begin() - unpacked.position : entry.packedSize;
    const qint64 largest = wrapped ? DirectoryCheck::largestContent(m_file.size()) : entry.size;
    ContentStream stream(m_file, unpacked.position, packedSize, entry.method);
    const std::unique_ptr<char[]> block(new char[blockSize]);
    quint32 checksum = 0;
    qint64 size = 0;
    qint64 length = 0;
    while ((length = stream.read(block.get(), blockSize)) > 0) {
        size += length;
        checksum = updatedChecksum(checksum, block.get(), length);
        if (size > largest) {
            return ArchiveProblem::Damaged;
        }
        const WriteResult result = write(block.get(), length);
        if (result != WriteResult::Done) {
            return problemOf(result);
        }
        m_work.advance(length, unpacked.name);
        if (m_work.stopRequired()) {
            return ArchiveProblem::Stopped;
        }
    }
    const bool sizesFit =
        wrapped ? static_cast<quint32>(size) == static_cast<quint32>(entry.size) &&
                      static_cast<quint32>(stream.packedRead()) == static_cast<quint32>(entry.packedSize)
                : size == entry.size;
    return length == 0 && sizesFit && checksum == entry.checksum
               ? std::nullopt
               : std::make_optional(ArchiveProblem::Damaged);
}

} // namespace

void unpackArchive(ArchiveWork& work)
{
    Extractor(work).extractAll();
}

bool DecompressFiles(const std::wstring& archive, const std::wstring& folder)
{
    const ArchiveTask task =
        ArchiveTask::unpack(QString::fromStdWString(archive), QString::fromStdWString(folder));
    ArchiveWork work(task, {}, {});
    unpackArchive(work);
    return work.finish().isComplete();
}

} // namespace TOLVAN_NAMESPACE
