#include "ArchiveExtraction.h"

#include "ArchiveNames.h"
#include "ArchiveSource.h"
#include "ExtractionFolder.h"

#include <quazip/quazip.h>
#include <quazip/quazipfile.h>
#include <quazip/quazipfileinfo.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

#include <memory>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr int blockSize = 128 * 1024;
constexpr int longestLinkTarget = 4096;
constexpr quint64 sizeWorthAsking = 16 * 1024 * 1024; // smaller entries don't fill a disk by themselves
constexpr int storedMethod = 0;
constexpr int deflatedMethod = 8;
constexpr quint16 encryptedFlag = 0x0001;
constexpr quint16 utf8Flag = 0x0800;
constexpr int countOverflow = 0xFFFF; // an archive without ZIP64 can't say how many more there are

/// Not every file system knows permissions; a file without them is extracted as well.
void setPermissions(QFileDevice& file, QFile::Permissions permissions)
{
    if (permissions) {
        file.setPermissions(permissions | QFile::ReadOwner);
    }
}

/// Unpacks one archive into one folder.
class Extractor
{
public:
    Extractor(const QString& archive, const QString& folder, const ArchiveProgress& progress)
        : m_source(archive)
        , m_zip(&m_source)
        , m_folder(folder)
        , m_progress(progress)
        , m_rules(nativeNameRules())
        , m_block(new char[blockSize])
    {
        m_zip.setFileNameCodec("ISO-8859-1"); // keeps the bytes of unmarked names, which are decoded here
    }

    bool extractAll();

private:
    bool extractCurrent();
    bool extractFile(const QString& target, QFile::Permissions permissions);
    bool extractLink(const QString& target);
    bool replaceFile(const QString& target, QFile::Permissions permissions);
    bool copyContent(QIODevice& target);
    bool isReadable() const;
    QString entryName() const;

    ArchiveSource m_source;
    QuaZip m_zip;
    ExtractionFolder m_folder;
    const ArchiveProgress& m_progress;
    const NameRules m_rules;
    const std::unique_ptr<char[]> m_block;
    QuaZipFileInfo64 m_entry;
    qint64 m_written = 0;
    bool m_cancelled = false;
};

QString Extractor::entryName() const
{
    return (m_entry.flags & utf8Flag) ? m_entry.name
                                      : decodeUnmarkedName(m_entry.name.toLatin1(), m_entry.extra);
}

bool Extractor::extractAll()
{
    if (!m_zip.open(QuaZip::mdUnzip)) {
        return false;
    }
    const int expected = m_zip.getEntriesCount();
    int seen = 0;
    bool complete = m_zip.goToFirstFile();
    for (bool more = complete; more && !m_cancelled; more = m_zip.goToNextFile()) {
        complete = extractCurrent() && complete;
        ++seen;
    }
    m_zip.close();
    // A directory that breaks off looks like its end.
    return complete && !m_cancelled && (seen == expected || (seen > expected && expected == countOverflow));
}

bool Extractor::isReadable() const
{
    const bool knownMethod = m_entry.method == storedMethod || m_entry.method == deflatedMethod;
    return knownMethod && !(m_entry.flags & encryptedFlag);
}

bool Extractor::extractCurrent()
{
    if (!m_zip.getCurrentFileInfo(&m_entry) || !isReadable()) {
        return false;
    }
    const QString name = entryName();
    const bool isFolder = name.endsWith(QLatin1Char('/')) ||
                          (m_rules == NameRules::Windows && name.endsWith(QLatin1Char('\\')));
    QStringList parts = safeParts(name, m_rules);
    if (parts.isEmpty()) {
        return isFolder && name == QLatin1String("./");
    }
    const QFile::Permissions permissions = m_entry.getPermissions();
    if (isFolder) {
        if (!m_folder.enter(parts)) {
            return false;
        }
        m_folder.setPermissions(permissions);
        return true;
    }
    const QString fileName = parts.takeLast();
    if (!m_folder.enter(parts)) {
        return false;
    }
    const QString target = m_folder.currentPath() + QLatin1Char('/') + fileName;
    return m_entry.isSymbolicLink() ? extractLink(target) : extractFile(target, permissions);
}

/// A new file is written in place and removed again on failure; the exclusive mode follows no link. An
/// existing one is replaced at the end.
bool Extractor::extractFile(const QString& target, QFile::Permissions permissions)
{
    if (m_entry.uncompressedSize > sizeWorthAsking) {
        const qint64 available = QStorageInfo(m_folder.currentPath()).bytesAvailable();
        if (available >= 0 && m_entry.uncompressedSize > static_cast<quint64>(available)) {
            return false;
        }
    }
    QFile file(target);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) {
        return replaceFile(target, permissions);
    }
    if (!copyContent(file)) {
        file.close();
        file.remove();
        return false;
    }
    setPermissions(file, permissions);
    return true;
}

bool Extractor::replaceFile(const QString& target, QFile::Permissions permissions)
{
    const QFileInfo existing(target);
    if (existing.isSymLink() || !existing.isFile()) {
        return false;
    }
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly) || !copyContent(file)) {
        return false;
    }
    setPermissions(file, permissions);
    return file.commit();
}

bool Extractor::copyContent(QIODevice& target)
{
    QuaZipFile entry(&m_zip);
    if (!entry.open(QIODevice::ReadOnly) || entry.getZipError() != UNZ_OK) {
        return false;
    }
    quint64 size = 0;
    qint64 length = 0;
    while ((length = entry.read(m_block.get(), blockSize)) > 0) {
        if (target.write(m_block.get(), length) != length) {
            return false;
        }
        size += static_cast<quint64>(length);
        m_written += length;
        if (m_progress && !m_progress(m_written)) {
            m_cancelled = true;
            return false;
        }
    }
    const bool readToItsEnd =
        length == 0 && entry.getZipError() == UNZ_OK && size == m_entry.uncompressedSize;
    entry.close(); // compares the checksum
    return readToItsEnd && entry.getZipError() == UNZ_OK;
}

bool Extractor::extractLink(const QString& target)
{
    if (m_rules == NameRules::Windows || m_entry.uncompressedSize > longestLinkTarget) {
        return false;
    }
    QByteArray text;
    QBuffer buffer(&text);
    buffer.open(QIODevice::WriteOnly);
    if (!copyContent(buffer)) {
        return false;
    }
    const QString destination = QFile::decodeName(text);
    if (!linkStaysInside(m_folder.currentRealParts(), destination)) {
        return false;
    }
    const QFileInfo existing(target);
    if (existing.isSymLink()) {
        const QString whole = QDir::cleanPath(m_folder.currentPath() + QLatin1Char('/') + destination);
        return QDir::cleanPath(existing.symLinkTarget()) == whole;
    }
    return QFile::link(destination, target);
}

} // namespace

bool extractEntries(const QString& archive, const QString& folder, const ArchiveProgress& progress)
{
    return Extractor(archive, folder, progress).extractAll();
}

bool DecompressFiles(const std::wstring& archive, const std::wstring& folder)
{
    return extractEntries(QString::fromStdWString(archive), QString::fromStdWString(folder));
}

} // namespace TOLVAN_NAMESPACE
