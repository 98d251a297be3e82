#include "ArchivePacking.h"

#include "ArchiveTarget.h"
#include "RawDeflater.h"

#include <quazip/JlCompress.h>
#include <quazip/quazip.h>
#include <quazip/quazipfile.h>
#include <quazip/quazipnewinfo.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <memory>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr int blockSize = 128 * 1024;
constexpr int longestName = 0xFFFF; // bytes; the format has no room for more
/// A file that may come near the format's old limit of 4 GiB, also when packing makes it larger.
constexpr qint64 largeFile = 0xF0000000;

bool isPlainAscii(const QString& name)
{
    return std::all_of(name.begin(), name.end(), [](QChar c) { return c.unicode() < 0x80; });
}

/// Packs files into one archive. Small ones are deflated in memory, with one stream for all: setting one up
/// takes longer than packing them.
class Packer
{
public:
    Packer(QIODevice& target, const ArchiveProgress& progress)
        : m_zip(&target)
        , m_progress(progress)
        , m_block(new char[blockSize])
    {
        m_zip.setAutoClose(false);
    }

    bool pack(const QVector<PackedFile>& files);

private:
    bool packFile(const PackedFile& file);
    bool packWhole(QFile& file, const QuaZipNewInfo& info);
    bool packInBlocks(QFile& file, const QuaZipNewInfo& info);
    bool report(qint64 length);

    QuaZip m_zip;
    const ArchiveProgress& m_progress;
    const std::unique_ptr<char[]> m_block;
    RawDeflater m_deflater;
    qint64 m_read = 0;
};

bool Packer::pack(const QVector<PackedFile>& files)
{
    m_zip.setUtf8Enabled(!std::all_of(files.begin(), files.end(),
                                      [](const PackedFile& file) { return isPlainAscii(file.name); }));
    if (!m_zip.open(QuaZip::mdCreate)) {
        return false;
    }
    const bool packed =
        std::all_of(files.begin(), files.end(), [this](const PackedFile& file) { return packFile(file); });
    m_zip.close();
    return packed && m_zip.getZipError() == ZIP_OK;
}

bool Packer::packFile(const PackedFile& file)
{
    const QFileInfo source(file.path);
    if (!source.exists() || (source.isDir() && !source.isSymLink()) || file.name.isEmpty() ||
        file.name.toUtf8().size() > longestName) {
        return false;
    }
    m_zip.setZip64Enabled(source.size() >= largeFile);
    if (source.isSymLink()) {
        return JlCompress::compressFile(&m_zip, file.path, file.name);
    }
    QFile content(file.path);
    if (!content.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return false;
    }
    QuaZipNewInfo info(file.name);
    info.dateTime = source.lastModified();
    info.setPermissions(source.permissions());
    return source.size() < blockSize ? packWhole(content, info) : packInBlocks(content, info);
}

bool Packer::packWhole(QFile& file, const QuaZipNewInfo& info)
{
    qint64 size = 0;
    while (size < blockSize) {
        const qint64 length = file.read(m_block.get() + size, blockSize - size);
        if (length < 0) {
            return false;
        }
        if (length == 0) {
            break;
        }
        size += length;
    }
    if (size == blockSize) { // has grown meanwhile
        return file.seek(0) && packInBlocks(file, info);
    }
    const RawDeflater::Result deflated = m_deflater.deflate(m_block.get(), static_cast<int>(size));
    if (!deflated.data) {
        return false;
    }
    QuaZipNewInfo rawInfo = info;
    rawInfo.uncompressedSize = static_cast<ulong>(size);
    QuaZipFile entry(&m_zip);
    if (!entry.open(QIODevice::WriteOnly, rawInfo, nullptr, deflated.checksum, Z_DEFLATED,
                    Z_DEFAULT_COMPRESSION, true) ||
        entry.write(deflated.data, deflated.size) != deflated.size) {
        return false;
    }
    entry.close();
    return entry.getZipError() == ZIP_OK && report(size);
}

bool Packer::packInBlocks(QFile& file, const QuaZipNewInfo& info)
{
    QuaZipFile entry(&m_zip);
    if (!entry.open(QIODevice::WriteOnly, info)) {
        return false;
    }
    qint64 length = 0;
    while ((length = file.read(m_block.get(), blockSize)) > 0) {
        if (entry.write(m_block.get(), length) != length || !report(length)) {
            return false;
        }
    }
    entry.close();
    return length == 0 && entry.getZipError() == ZIP_OK;
}

bool Packer::report(qint64 length)
{
    m_read += length;
    return !m_progress || m_progress(m_read);
}

} // namespace

bool packFiles(const QVector<PackedFile>& files, const QString& archive, const ArchiveProgress& progress)
{
    QDir().mkpath(QFileInfo(archive).absolutePath());
    ArchiveTarget target(archive);
    return target.begin() && Packer(target, progress).pack(files) && target.commit();
}

} // namespace TOLVAN_NAMESPACE
