#include "FileWork.h"
#include "Report.h"
#include "Sections.h"

#include <utilsDll/FileManagement.h>

#include <QDir>
#include <QEventLoop>
#include <QTemporaryDir>

using namespace TOLVAN_NAMESPACE;

namespace
{

/// Runs the work in its thread and turns the event loop here meanwhile.
/// \return how often it reported progress, -1 if it failed
int runAndCount(FileWork& work)
{
    int reports = 0;
    QEventLoop loop;
    QObject::connect(&work, &FileWork::progress, &loop, [&reports] { ++reports; });
    QObject::connect(&work, &QThread::finished, &loop, &QEventLoop::quit);
    work.start();
    loop.exec();
    work.wait();
    return work.succeeded() ? reports : -1;
}

void showTexts(Report& report)
{
    const auto name = [&](const char* text, bool isPath, bool expected) {
        const QString title = QStringLiteral("name \"%1\"").arg(QLatin1String(text));
        const bool valid = validateFileName(QLatin1String(text), isPath);
        report.check(title, valid ? QStringLiteral("may be used") : QStringLiteral("refused"),
                     valid == expected);
    };
    name("Holiday.jpg", false, true);
    name("Con", false, false);
    name("what?.jpg", false, false);
    name("C:/Photos/Holiday.jpg", true, true);
    const bool same = isEqualFileOrDirNames(QFileInfo(QStringLiteral("a/b.jpg")),
                                            QFileInfo(QStringLiteral("A/B.png")), CompareDirAndBaseName);
    report.check(QStringLiteral("a/b.jpg and A/B.png, without suffix"),
                 same ? QStringLiteral("equal") : QStringLiteral("different"), same);
    report.check(QStringLiteral("sizes as text"),
                 fileSizeToString(1024) + QStringLiteral(", ") + fileSizeToString(1025) +
                     QStringLiteral(", ") + fileSizeToString(1572864),
                 fileSizeToString(1572864).startsWith(QStringLiteral("1.5")));
    report.row(QStringLiteral("an image of 6000 x 4000 pixels"), sizeToString(QSize(6000, 4000)));
    report.row(QStringLiteral("free space here"), fileSizeToString(availableDiskSpace(QDir::currentPath())));
}

void showArchive(Report& report, const QDir& scratch)
{
    const QString source = FileWork::sampleFolder();
    const QString archive = scratch.filePath(QStringLiteral("folder.zip"));
    FileWork pack(FileWork::Pack, source, archive);
    const int reports = runAndCount(pack);
    report.check(QStringLiteral("a folder packed"),
                 QStringLiteral("%1 files of %2: %3, %4 progress reports")
                     .arg(pack.fileCount())
                     .arg(source, fileSizeToString(QFileInfo(archive).size()))
                     .arg(reports),
                 reports > 0 && pack.fileCount() > 0);

    FileWork unpack(FileWork::Unpack, archive, scratch.filePath(QStringLiteral("unpacked")));
    const bool unpacked = runAndCount(unpack) > 0;
    const QString difference =
        FileWork::firstDifference(source, scratch.filePath(QStringLiteral("unpacked")));
    report.check(QStringLiteral("unpacked, both trees compared"),
                 difference.isEmpty() ? QStringLiteral("equal") : difference,
                 unpacked && difference.isEmpty());

    FileWork cancelled(FileWork::Pack, source, scratch.filePath(QStringLiteral("cancelled.zip")));
    QObject::connect(&cancelled, &FileWork::progress, [&](int) { cancelled.requestInterruption(); });
    cancelled.start();
    cancelled.wait();
    report.check(QStringLiteral("packing cancelled"), QStringLiteral("no archive is left"),
                 !cancelled.succeeded() && !QFile::exists(scratch.filePath(QStringLiteral("cancelled.zip"))));
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
