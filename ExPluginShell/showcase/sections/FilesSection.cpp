#include "FileWork.h"
#include "Report.h"
#include "Sections.h"

#include <utilsDll/FileManagement.h>

#include <QDir>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstdio>

using namespace TOLVAN_NAMESPACE;

namespace
{

/// The bar stays on one line of a terminal; a file gets no more than a mark for each step.
class Bar
{
public:
    explicit Bar(const QString& title)
        : m_title(title)
        , m_terminal(FileWork::isTerminal())
    {
    }
    void show(int percent)
    {
        if (!m_terminal || percent == m_percent) {
            return;
        }
        m_percent = percent;
        constexpr int width = 30;
        const int filled = percent * width / 100;
        QTextStream out(stdout);
        out << "\r       " << m_title.leftJustified(12) << '[' << QString(filled, QLatin1Char('#'))
            << QString(width - filled, QLatin1Char('.')) << "] " << percent << " %";
    }
    void end()
    {
        if (m_terminal) {
            QTextStream(stdout) << '\r' << QString(60, QLatin1Char(' ')) << '\r';
        }
    }

private:
    const QString m_title;
    const bool m_terminal;
    int m_percent = -1;
};

/// Runs the work in its thread and turns the event loop here meanwhile.
bool runWithBar(FileWork& work, const QString& title)
{
    Bar bar(title);
    QEventLoop loop;
    QObject::connect(&work, &FileWork::progress, &loop, [&](int percent) { bar.show(percent); });
    QObject::connect(&work, &QThread::finished, &loop, &QEventLoop::quit);
    work.start();
    loop.exec();
    work.wait();
    bar.end();
    return work.succeeded();
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
    const bool packed = runWithBar(pack, QStringLiteral("packing"));
    report.check(QStringLiteral("a folder packed"),
                 QStringLiteral("%1 files of %2: %3")
                     .arg(pack.fileCount())
                     .arg(source, fileSizeToString(QFileInfo(archive).size())),
                 packed && pack.fileCount() > 0);

    FileWork unpack(FileWork::Unpack, archive, scratch.filePath(QStringLiteral("unpacked")));
    const bool unpacked = runWithBar(unpack, QStringLiteral("unpacking"));
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
