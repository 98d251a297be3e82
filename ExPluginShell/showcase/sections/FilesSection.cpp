#include "Report.h"
#include "Sections.h"

#include <utilsDll/ArchiveJob.h>
#include <utilsDll/FileManagement.h>

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

using namespace TOLVAN_NAMESPACE;

namespace
{

void showTexts(Report& report)
{
    const struct {
        const char* text;
        bool isPath;
        bool expected;
    } names[] = {{"Holiday.jpg", false, true},
                 {"Con", false, false},
                 {"what?.jpg", false, false},
                 {"C:/Photos/Holiday.jpg", true, true}};
    for (const auto& name : names) {
        const bool valid = validateFileName(QLatin1String(name.text), name.isPath);
        report.check(QStringLiteral("name \"%1\"").arg(QLatin1String(name.text)),
                     valid ? QStringLiteral("may be used") : QStringLiteral("refused"),
                     valid == name.expected);
    }
    const bool same = isEqualFileOrDirNames(QFileInfo(QStringLiteral("a/b.jpg")),
                                            QFileInfo(QStringLiteral("A/B.png")), CompareDirAndBaseName);
    report.check(QStringLiteral("a/b.jpg and A/B.png, without suffix"),
                 same ? QStringLiteral("equal") : QStringLiteral("different"), same);
    report.check(QStringLiteral("sizes as text"),
                 fileSizeToString(1024) + QStringLiteral(", ") + fileSizeToString(1572864),
                 fileSizeToString(1572864).startsWith(QStringLiteral("1.5")));
    report.row(QStringLiteral("an image of 6000 x 4000 pixels"), sizeToString(QSize(6000, 4000)));
    report.row(QStringLiteral("free space here"), fileSizeToString(availableDiskSpace(QDir::currentPath())));
}

void showArchive(Report& report, const QDir& scratch)
{
    const QString archive = scratch.filePath(QStringLiteral("folder.zip"));
    CArchiveJob pack(ArchiveTask::pack({QCoreApplication::applicationDirPath()}, archive));
    int reports = 0;
    QObject::connect(&pack, &CArchiveJob::progressed, [&reports] { ++reports; });
    pack.run();
    report.check(QStringLiteral("a folder packed"),
                 QStringLiteral("%1 %2 progress reports").arg(pack.report().summary()).arg(reports),
                 pack.report().isComplete() && reports > 0);
    CArchiveJob unpack(ArchiveTask::unpack(archive, scratch.filePath(QStringLiteral("unpacked"))));
    unpack.run();
    report.check(QStringLiteral("unpacked"), unpack.report().summary(),
                 unpack.report().isComplete() && unpack.report().bytes == pack.report().bytes);

    const QString cancelled = scratch.filePath(QStringLiteral("cancelled.zip"));
    CArchiveJob stopped(ArchiveTask::pack({QCoreApplication::applicationDirPath()}, cancelled));
    QObject::connect(&stopped, &CArchiveJob::progressed, &stopped, &CArchiveJob::stop, Qt::DirectConnection);
    stopped.run();
    report.check(QStringLiteral("packing cancelled"), QStringLiteral("no archive is left"),
                 stopped.report().stopped && !QFile::exists(cancelled));
}

} // namespace

void showFiles(Report& report)
{
    showTexts(report);
    const QTemporaryDir folder;
    const QDir scratch(folder.path());
    showArchive(report, scratch);

    const QString archive = QDir::toNativeSeparators(scratch.filePath(QStringLiteral("folder.zip")));
    const QString renamed = QDir::toNativeSeparators(scratch.filePath(QStringLiteral("renamed.zip")));
    report.check(QStringLiteral("renamed"), QStringLiteral("folder.zip to renamed.zip"),
                 renameFile(archive, renamed) && QFile::exists(renamed));
    // It stays in the user's bin, so it is a small one.
    const QString note = QDir::toNativeSeparators(scratch.filePath(QStringLiteral("trelio-showcase.txt")));
    QFile(note).open(QIODevice::WriteOnly);
    report.check(QStringLiteral("sent to the recycle bin"), QStringLiteral("trelio-showcase.txt"),
                 moveFileToTrash(note) == FileOperationSucceeded && !QFile::exists(note));
    const QString unpacked = scratch.filePath(QStringLiteral("unpacked"));
    QFile(unpacked + QStringLiteral("/shown.txt")).open(QIODevice::WriteOnly);
    removeDirectoryContent(QDir(unpacked));
    const auto left = QDir(unpacked).entryList(QDir::Files | QDir::Hidden);
    report.check(QStringLiteral("folder emptied"), QStringLiteral("%1 files left on top").arg(left.size()),
                 left.isEmpty());
    selectFilesInShell(scratch.path(), {scratch.filePath(QStringLiteral("gone.zip"))});
    report.row(QStringLiteral("file browser, asked for a missing file"), QStringLiteral("nothing opens"));
}
