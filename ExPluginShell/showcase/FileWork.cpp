#include "FileWork.h"

#include "archive/ArchiveExtraction.h"
#include "archive/ArchivePacking.h"

#include <quazip/quazip.h>
#include <quazip/quazipfileinfo.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>

using namespace TOLVAN_NAMESPACE;

namespace
{

QStringList filesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        files += QDir(folder).relativeFilePath(walk.next());
    }
    files.sort();
    return files;
}

qint64 contentSize(const QString& archive)
{
    QuaZip zip(archive);
    qint64 size = 0;
    if (zip.open(QuaZip::mdUnzip)) {
        for (const QuaZipFileInfo64& entry : zip.getFileInfoList64()) {
            size += static_cast<qint64>(entry.uncompressedSize);
        }
    }
    return size;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

FileWork::FileWork(Kind kind, const QString& from, const QString& to, QObject* parent)
    : QThread(parent)
    , m_kind(kind)
    , m_from(from)
    , m_to(to)
{
}

FileWork::~FileWork()
{
    requestInterruption();
    wait();
}

QString FileWork::sampleFolder()
{
    const QString fonts = QStringLiteral("/usr/share/fonts/truetype/roboto");
    return QDir(fonts).exists() ? fonts : QCoreApplication::applicationDirPath();
}

QString FileWork::firstDifference(const QString& a, const QString& b)
{
    const QStringList files = filesBelow(a);
    if (files != filesBelow(b)) {
        return QStringLiteral("not the same files");
    }
    for (const QString& file : files) {
        if (contentOf(QDir(a).filePath(file)) != contentOf(QDir(b).filePath(file))) {
            return file;
        }
    }
    return {};
}

void FileWork::run()
{
    m_succeeded = m_kind == Pack ? pack() : unpack();
}

bool FileWork::report(qint64 bytes, qint64 total)
{
    const int percent = total > 0 ? int(qMin<qint64>(100, bytes * 100 / total)) : 100;
    if (percent != m_percent) {
        m_percent = percent;
        Q_EMIT progress(percent);
    }
    return !isInterruptionRequested();
}

bool FileWork::pack()
{
    QVector<PackedFile> files;
    qint64 total = 0;
    for (const QString& name : filesBelow(m_from)) {
        const QString path = QDir(m_from).filePath(name);
        files += PackedFile{path, name};
        total += QFileInfo(path).size();
    }
    m_fileCount = files.size();
    return packFiles(files, m_to, [&](qint64 bytes) { return report(bytes, total); });
}

bool FileWork::unpack()
{
    const qint64 expected = contentSize(m_from);
    const bool unpacked = extractEntries(m_from, m_to, [&](qint64 bytes) { return report(bytes, expected); });
    m_fileCount = filesBelow(m_to).size();
    return unpacked;
}
