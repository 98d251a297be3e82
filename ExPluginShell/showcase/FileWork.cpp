#include "FileWork.h"

#include <utilsDll/ArchiveJob.h>

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
    ArchiveTask task = m_kind == Pack ? ArchiveTask::pack({m_from}, m_to) : ArchiveTask::unpack(m_from, m_to);
    task.baseFolder = m_kind == Pack ? m_from : QString();
    CArchiveJob job(task);
    connect(&job, SIGNAL(progressed(qint64, qint64, QString)), this, SLOT(onProgressed(qint64, qint64)),
            Qt::DirectConnection);
    job.run(); // stops when the interruption of this thread is requested
    m_succeeded = job.report().isComplete();
    m_fileCount = filesBelow(m_kind == Pack ? m_from : m_to).size();
}

void FileWork::onProgressed(qint64 bytes, qint64 total)
{
    Q_EMIT progress(total > 0 ? int(qMin<qint64>(100, bytes * 100 / total)) : 100);
}
