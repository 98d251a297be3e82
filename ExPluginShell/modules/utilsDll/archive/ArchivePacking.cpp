#include "ArchiveNames.h"
#include "ArchiveTarget.h"
#include "ArchiveWork.h"
#include "ContentStream.h"
#include "Deflater.h"
#include "OrderedWork.h"
#include "PackedFiles.h"
#include "PackedPiece.h"

#include <quazip/quazip.h>
#include <quazip/quazipfile.h>
#include <quazip/quazipnewinfo.h>

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <QtEndian>

#include <zlib.h>

#include <algorithm>
#include <numeric>
#include <optional>
#include <thread>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr qint64 blockSize = 256 * 1024;
constexpr qint64 mostInMemory = 80 * 1024 * 1024;
constexpr int mostHelpers = 15;
/// A file that may come near the format's old limit of 4 GiB, also when packing makes it larger.
constexpr qint64 largeFile = 0xF0000000;
constexpr int firstYear = 1980; // of the format
constexpr int lastYear = 2107;
constexpr quint32 dosFolder = 0x10;

bool isPlainAscii(const QString& name)
{
    return std::all_of(name.begin(), name.end(), [](QChar c) { return c.unicode() < 0x80; });
}

/// The nearest time that the format has.
QDateTime timeInFormat(const QDateTime& time)
{
    const int year = time.date().year();
    return year < firstYear  ? QDateTime(QDate(firstYear, 1, 1), QTime(0, 0))
           : year > lastYear ? QDateTime(QDate(lastYear, 12, 31), QTime(23, 59, 58))
                             : time;
}

QuaZipNewInfo infoOf(const PackedFile& file)
{
    QuaZipNewInfo info(file.name);
    info.dateTime = timeInFormat(file.lastModified);
    info.setPermissions(file.permissions);
    const quint32 type = file.isLink ? 0120000u : file.isFolder ? 0040000u : 0100000u;
    const quint32 permissions = file.isLink ? 0777u : (info.externalAttr >> 16) & 07777u;
    info.externalAttr = (type | permissions) << 16 | (file.isFolder ? dosFolder : 0);
    const qint64 time = file.lastModified.toSecsSinceEpoch();
    if (time == static_cast<qint32>(time)) {
        char field[9] = {'U', 'T', 5, 0, 1};
        qToLittleEndian<qint32>(static_cast<qint32>(time), field + 5);
        info.extraLocal = info.extraGlobal = QByteArray(field, sizeof field);
    }
    return info;
}

/// Packs files into one archive.
class Packer
{
public:
    Packer(QIODevice& target, ArchiveWork& work)
        : m_zip(&target)
        , m_work(work)
    {
        m_zip.setAutoClose(false);
    }

    /// \return whether the archive is complete, but for the files that were left out
    bool pack(std::vector<PackedFile>& files);
    bool hasTargetFailed() const { return m_targetFailed; }

private:
    void packFiles(std::vector<PackedFile>& files);
    void packPiece(PackedPiece& piece);
    std::optional<ArchiveProblem> packContent(const PackedContent& content);
    std::optional<ArchiveProblem> packInBlocks(const PackedFile& file, const QuaZipNewInfo& info);

    QuaZip m_zip;
    ArchiveWork& m_work;
    Deflaters m_deflaters;
    bool m_failed = false;       ///< the archive can't become complete
    bool m_targetFailed = false; ///< it can't be written: a problem of the archive and of no entry
};

bool Packer::pack(std::vector<PackedFile>& files)
{
    m_zip.setUtf8Enabled(!std::all_of(files.begin(), files.end(),
                                      [](const PackedFile& file) { return isPlainAscii(file.name); }));
    m_targetFailed = !m_zip.open(QuaZip::mdCreate);
    if (!m_targetFailed) {
        packFiles(files);
        m_zip.close();
        m_targetFailed = m_targetFailed || (!m_failed && m_zip.getZipError() != ZIP_OK);
    }
    return !m_failed && !m_targetFailed;
}

void Packer::packFiles(std::vector<PackedFile>& files)
{
    const qint64 size = std::accumulate(files.begin(), files.end(), qint64(0),
                                        [](qint64 sum, const PackedFile& file) { return sum + file.size; });
    m_work.setTotal(size);
    const int processors = static_cast<int>(std::thread::hardware_concurrency());
    const qint64 helpers = std::min<qint64>({processors - 1, mostHelpers, size / PackedPiece::smallest});
    OrderedWork<PackedPiece> pieces(static_cast<int>(std::max<qint64>(helpers, 0)), mostInMemory);
    auto next = files.begin();
    while (next != files.end() && !m_failed && !m_work.stopRequired()) {
        auto piece = std::make_unique<PackedPiece>(m_deflaters);
        while (next != files.end() && !piece->isFull()) {
            piece->add(std::move(*next++));
        }
        while (pieces.isFull(piece->memory())) {
            packPiece(*pieces.take());
        }
        pieces.add(std::move(piece));
    }
    while (!pieces.isEmpty()) {
        packPiece(*pieces.take());
    }
    for (; m_work.stopRequired() && next != files.end(); ++next) {
        m_work.fail(next->path, ArchiveProblem::Stopped);
    }
}

void Packer::packPiece(PackedPiece& piece)
{
    for (PackedContent& content : piece.contents) {
        std::optional<ArchiveProblem> problem = content.problem;
        if (m_work.stopRequired()) {
            problem = ArchiveProblem::Stopped;
        } else if (!problem && !m_failed) {
            problem = packContent(content);
            m_failed = problem.has_value(); // a part of the entry may be in the archive
            m_targetFailed = problem == ArchiveProblem::WriteFailed;
        }
        if (problem && !m_targetFailed) {
            m_work.fail(content.file.path, *problem);
            m_failed = m_failed || !m_work.task().skipFailedFiles;
        } else if (!m_failed) {
            m_work.succeed();
        }
        content.data.reset();
    }
}

std::optional<ArchiveProblem> Packer::packContent(const PackedContent& content)
{
    const PackedFile& file = content.file;
    QuaZipNewInfo info = infoOf(file);
    m_zip.setZip64Enabled(file.size >= largeFile);
    if (!content.data && !file.isFolder) {
        return packInBlocks(file, info);
    }
    info.uncompressedSize = static_cast<ulong>(file.size);
    QuaZipFile entry(&m_zip);
    if (!entry.open(QIODevice::WriteOnly, info, nullptr, content.checksum, content.method,
                    Z_DEFAULT_COMPRESSION, true) ||
        (content.size > 0 && entry.write(content.data.get(), content.size) != content.size)) {
        return ArchiveProblem::WriteFailed;
    }
    entry.close();
    if (entry.getZipError() != ZIP_OK) {
        return ArchiveProblem::WriteFailed;
    }
    m_work.advance(file.size, file.name);
    return std::nullopt;
}

std::optional<ArchiveProblem> Packer::packInBlocks(const PackedFile& file, const QuaZipNewInfo& info)
{
    QFile content(file.path);
    if (const auto problem = openContent(content)) {
        return problem;
    }
    QuaZipFile entry(&m_zip);
    if (!entry.open(QIODevice::WriteOnly, info)) {
        return ArchiveProblem::WriteFailed;
    }
    const std::unique_ptr<char[]> block(new char[blockSize]);
    qint64 size = 0;
    qint64 length = 0;
    while (size <= file.size && (length = content.read(block.get(), blockSize)) > 0) {
        if (entry.write(block.get(), length) != length) {
            return ArchiveProblem::WriteFailed;
        }
        size += length;
        m_work.advance(length, file.name);
        if (m_work.stopRequired()) {
            return ArchiveProblem::Stopped;
        }
    }
    entry.close();
    if (length < 0 || size != file.size) {
        return length < 0 ? ArchiveProblem::ReadFailed : ArchiveProblem::Changed;
    }
    return entry.getZipError() == ZIP_OK ? std::nullopt : std::make_optional(ArchiveProblem::WriteFailed);
}

/// Lists the files, each after a look whether it can be read.
void checkFiles(ArchiveWork& work, const std::vector<PackedFile>& files)
{
    for (const PackedFile& file : files) {
        if (work.stopRequired()) {
            return;
        }
        QFile content(file.path);
        const auto problem = file.isLink || file.isFolder ? std::nullopt : openContent(content);
        work.list({file.name, file.size, -1, file.lastModified, file.isLink});
        if (problem) {
            work.fail(file.path, *problem);
        } else {
            work.advance(file.size, file.name);
            work.succeed();
        }
    }
}

ArchiveProblem targetProblem(const QString& archive)
{
    const QFileInfo info(archive);
    if (info.exists() && !info.isFile()) {
        return ArchiveProblem::InTheWay;
    }
    const QFileInfo folder(info.absolutePath());
    if (!folder.isDir()) {
        return folder.exists() ? ArchiveProblem::InTheWay : ArchiveProblem::AccessDenied;
    }
    if (!folder.isWritable() || (info.exists() && !info.isWritable())) {
        return ArchiveProblem::AccessDenied;
    }
    const qint64 available = QStorageInfo(folder.filePath()).bytesAvailable();
    return available >= 0 && available < blockSize ? ArchiveProblem::DiskFull : ArchiveProblem::WriteFailed;
}

} // namespace

void packArchive(ArchiveWork& work)
{
    const ArchiveTask& task = work.task();
    std::vector<PackedFile> files = filesToPack(work);
    const qint64 missing = work.failed();
    work.setEntries(static_cast<qint64>(files.size()) + missing);
    if (task.dryRun) {
        checkFiles(work, files);
        return;
    }
    if (missing > 0 && !task.skipFailedFiles) {
        return;
    }
    QDir().mkpath(QFileInfo(task.archive).absolutePath());
    ArchiveTarget target(task.archive);
    bool hasTargetFailed = !target.begin();
    if (!hasTargetFailed) {
        Packer packer(target, work);
        const bool complete = packer.pack(files) && !work.stopRequired();
        hasTargetFailed = complete ? !target.commit() : packer.hasTargetFailed();
        if (complete && !hasTargetFailed) {
            return;
        }
    }
    work.withdraw();
    if (hasTargetFailed && !work.stopRequired()) {
        work.fail(task.archive, targetProblem(task.archive));
    }
}

} // namespace TOLVAN_NAMESPACE
