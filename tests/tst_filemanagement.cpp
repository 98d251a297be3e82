#include "FileTree.h"
#include "InstalledLogger.h"
#include "Sandbox.h"
#include "TestMain.h"

#include <utilsDll/FileManagement.h>

#include <QDateTime>
#include <QProcess>
#include <QStorageInfo>

#include <atomic>

using namespace TOLVAN_NAMESPACE;

namespace
{

constexpr int races = 1000;

QString raceName(const QString& folder, const char* kind, int round)
{
    return folder + QLatin1Char('/') + QLatin1String(kind) + QString::number(round);
}

/// One of two processes that rename their own file of each round to the same target. They meet before each
/// round at a counter in a shared file.
int runRacer(const QString& folder, const QByteArray& who)
{
    QFile counters(folder + QStringLiteral("/counters"));
    if (!counters.open(QIODevice::ReadWrite)) {
        return 2;
    }
    auto* const arrived = reinterpret_cast<std::atomic<int>*>(counters.map(0, races * qint64(sizeof(int))));
    int won = 0;
    for (int round = 0; arrived && round < races; ++round) {
        ++arrived[round];
        while (arrived[round] < 2) {
        }
        won += renameFile(raceName(folder, who, round), raceName(folder, "target", round));
    }
    std::printf("%d\n", won);
    return arrived ? 0 : 2;
}

} // namespace

class FileManagementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void rename_data();
    void rename();
    void renameNeverReplaces();
    void thousandRaces();
    void acrossFileSystems();
    void emptying_data();
    void emptying();
    void emptyingKeepsWhatLinksPointTo();
    void emptyingStopsAtTheFirstFailure();
    void emptyingMeetsAnOpenFile();
    void freeSpace();
    void showingInAMissingFolderIsReported();

private:
    QString path(const char* name) const { return m_folder->filePath(QString::fromUtf8(name)); }

    const SecondVolume m_volume;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void FileManagementTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void FileManagementTest::rename_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("renamed");
    const auto row = [](const char* title, const char* from, const char* to, bool renamed) {
        QTest::newRow(title) << QString::fromUtf8(from) << QString::fromUtf8(to) << renamed;
    };
    row("file", "file", "new", true);
    row("file into another folder", "file", "folder/new", true);
    row("uncleaned paths", "folder/../file", "./folder//new", true);
    row("folder", "folder", "new folder", true);
    row("change of case", "file", "FILE", true);
    row("change of case of a folder", "folder", "Folder", true);
    row("non-ASCII", "file", "\xC3\xA4\xE6\x97\xA5\xF0\x9F\x93\xB7", true);
    row("onto an existing file", "file", "other", false);
    row("onto an existing folder", "file", "folder", false);
    row("folder onto an empty folder", "folder", "empty", false);
    row("folder into itself", "folder", "folder/below", false);
    row("missing source", "nothing", "new", false);
    row("missing target folder", "file", "nowhere/new", false);
}

void FileManagementTest::rename()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    FileTree::write(path("file"), "the file");
    FileTree::write(path("other"), "another");
    FileTree::write(path("folder/inside"), "inside");
    QVERIFY(QDir().mkpath(path("empty")));
    auto expected = FileTree::of(m_folder->path());
    const QString source = QDir::cleanPath(from);
    const QString target = QDir::cleanPath(to);
    QFETCH(bool, renamed);
    if (renamed) {
        for (const QString& name : expected.keys()) {
            if (name == source || name.startsWith(source + QLatin1Char('/'))) {
                expected.insert(target + name.mid(source.size()), expected.take(name));
            }
        }
    }
    QCOMPARE(renameFile(m_folder->filePath(from), m_folder->filePath(to)), renamed);
    const bool windows = QDir::separator() == QLatin1Char('\\');
    if (windows && source.compare(target, Qt::CaseInsensitive) == 0) {
        // Wine keeps the old spelling and calls that a success.
        QVERIFY(QFile::exists(m_folder->filePath(to)));
        return;
    }
    QCOMPARE(FileTree::of(m_folder->path()), expected);
}

void FileManagementTest::renameNeverReplaces()
{
    QVERIFY(!renameFile(QString(), path("new")));
    FileTree::write(path("file"));
    QVERIFY(!renameFile(path("file"), QString()));
    QCOMPARE(FileTree::of(m_folder->path()).size(), 1);
    if (QFile::link(path("nowhere"), path("dangling"))) {
        QVERIFY(!renameFile(path("file"), path("dangling")) || QDir::separator() == QLatin1Char('\\'));
        QVERIFY(renameFile(path("dangling"), path("moved link")));
    }
}

void FileManagementTest::thousandRaces()
{
    for (int round = 0; round < races; ++round) {
        FileTree::write(raceName(m_folder->path(), "a", round), "a");
        FileTree::write(raceName(m_folder->path(), "b", round), "b");
    }
    FileTree::write(path("counters"), QByteArray(races * int(sizeof(int)), '\0'));
    QProcess racers[2];
    for (int i = 0; i < 2; ++i) {
        racers[i].start(QCoreApplication::applicationFilePath(),
                        {QStringLiteral("--racer"), m_folder->path(), QLatin1String(i == 0 ? "a" : "b")});
    }
    for (QProcess& racer : racers) {
        QVERIFY(racer.waitForFinished(100000));
        QCOMPARE(racer.exitCode(), 0);
    }
    int lost = 0;
    for (int round = 0; round < races; ++round) {
        const QByteArray winner = FileTree::read(raceName(m_folder->path(), "target", round));
        const QByteArray loser = winner == "a" ? "b" : "a";
        QVERIFY2(winner == "a" || winner == "b", qPrintable(QString::number(round)));
        QVERIFY(!QFile::exists(raceName(m_folder->path(), winner, round)));
        lost += FileTree::read(raceName(m_folder->path(), loser, round)) != loser;
    }
    QCOMPARE(lost, 0);
}

void FileManagementTest::acrossFileSystems()
{
    if (!m_volume.problem().isEmpty()) {
        QSKIP(qPrintable(m_volume.problem()));
    }
    const QString there = m_volume.path() + QStringLiteral("/moved");
    const QDateTime old = QDateTime::fromSecsSinceEpoch(1600000000);
    FileTree::write(path("folder/a/b"), QByteArray(300000, 'x'));
    FileTree::write(path("folder/\xC3\xA4"), "umlaut");
    QVERIFY(QFile::link(QStringLiteral("a/b"), path("folder/link")));
    QFile dated(path("folder/a/b"));
    QVERIFY(dated.open(QIODevice::ReadWrite) && dated.setFileTime(old, QFileDevice::FileModificationTime));
    QVERIFY(dated.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    dated.close();
    const auto tree = FileTree::of(path("folder"));

    QVERIFY(renameFile(path("folder"), there));
    QCOMPARE(FileTree::of(there), tree);
    QVERIFY(!QFile::exists(path("folder")));
    QCOMPARE(QFileInfo(there + QStringLiteral("/a/b")).lastModified(), old);
    QVERIFY(QFileInfo(there + QStringLiteral("/a/b")).permission(QFile::ExeOwner));

    FileTree::write(path("file"), "new");
    QVERIFY(!renameFile(path("file"), there));
    FileTree::write(m_volume.path() + QStringLiteral("/file"), "old");
    QVERIFY(!renameFile(path("file"), m_volume.path() + QStringLiteral("/file")));
    QCOMPARE(FileTree::read(m_volume.path() + QStringLiteral("/file")), QByteArray("old"));
    QVERIFY(!renameFile(path("file"), m_volume.path() + QStringLiteral("/nowhere/file")));
    QVERIFY(renameFile(path("file"), m_volume.path() + QStringLiteral("/file2")));
    QCOMPARE(QDir(m_volume.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList({QStringLiteral("file"), QStringLiteral("file2"), QStringLiteral("moved")}));
}

void FileManagementTest::emptying_data()
{
    QTest::addColumn<QStringList>("entries"); // a folder ends with a slash
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("left");
    const auto row = [](const char* title, const char* entries, bool result, const char* left) {
        const auto list = [](const char* text) {
            return QString::fromUtf8(text).split(QLatin1Char('|'), Qt::SkipEmptyParts);
        };
        QTest::newRow(title) << list(entries) << result << list(left);
    };
    row("no entries", "", false, "");
    row("one file", "a", true, "");
    row("hidden file", ".a", true, "");
    row("files in folders", "a|d/b|d/e/c", true, "d/|d/e/");
    row("an empty folder stops before the files", "a|d/", false, "a|d/");
    row("an empty folder below stops everything", "a|d/e/|d/b", false, "a|d/|d/b|d/e/");
    row("an empty folder stops before later folders", "b/|c/a", false, "b/|c/|c/a");
    row("a full folder before an empty one", "a/x|b/", false, "a/|b/");
    row("names of all kinds", "a b|\xC3\xA4|%41|#", true, "");
}

void FileManagementTest::emptying()
{
    QFETCH(QStringList, entries);
    for (const QString& entry : entries) {
        const QString full = m_folder->filePath(entry);
        if (entry.endsWith(QLatin1Char('/'))) {
            QVERIFY(QDir().mkpath(full));
        } else {
            FileTree::write(full);
        }
    }
    QTEST(removeDirectoryContent(QDir(m_folder->path())), "result");
    QTEST(QStringList(FileTree::of(m_folder->path()).keys()), "left");
    QVERIFY(!removeDirectoryContent(QDir(path("missing"))));
}

void FileManagementTest::emptyingKeepsWhatLinksPointTo()
{
    FileTree::write(path("outside/kept"), "kept");
    QVERIFY(QDir().mkpath(path("inside")));
#ifdef Q_OS_WIN
    QSKIP("Wine makes no links to folders");
#endif
    QVERIFY(QFile::link(path("outside"), path("inside/link")));
    QVERIFY(QFile::link(path("nowhere"), path("inside/dangling")));
    QVERIFY(QFile::link(path("outside/kept"), path("inside/file link")));
    QVERIFY(removeDirectoryContent(QDir(path("inside"))));
    QVERIFY(FileTree::of(path("inside")).isEmpty());
    QCOMPARE(FileTree::read(path("outside/kept")), QByteArray("kept"));
}

void FileManagementTest::emptyingStopsAtTheFirstFailure()
{
#ifdef Q_OS_WIN
    QSKIP("Permissions of folders mean nothing under Wine; see the open file");
#endif
    const QTemporaryDir open(QStringLiteral("/tmp/tst_filemanagement-XXXXXX"));
    const auto everything = QFile::Permissions(0x7777);
    FileTree::write(open.filePath(QStringLiteral("locked/a")));
    FileTree::write(open.filePath(QStringLiteral("z")));
    for (const char* name : {".", "locked/a", "z"}) {
        QVERIFY(QFile::setPermissions(open.filePath(QLatin1String(name)), everything));
    }
    QVERIFY(QFile::setPermissions(open.filePath(QStringLiteral("locked")), QFile::Permissions(0x5555)));
    {
        const OrdinaryUser user;
        QVERIFY(!removeDirectoryContent(QDir(open.path())));
    }
    QCOMPARE(QStringList(FileTree::of(open.path()).keys()),
             QStringList({QStringLiteral("locked/"), QStringLiteral("locked/a"), QStringLiteral("z")}));
    QVERIFY(QFile::setPermissions(open.filePath(QStringLiteral("locked")), everything));
}

/// Windows refuses, other systems don't care.
void FileManagementTest::emptyingMeetsAnOpenFile()
{
    FileTree::write(path("a"));
    QFile held(path("a"));
    QVERIFY(held.open(QIODevice::ReadOnly));
    const bool windows = QDir::separator() == QLatin1Char('\\');
    QCOMPARE(removeDirectoryContent(QDir(m_folder->path())), !windows);
    QCOMPARE(QFile::exists(path("a")), windows);
}

void FileManagementTest::freeSpace()
{
    const qint64 free = availableDiskSpace(m_folder->path());
    const QStorageInfo volume(m_folder->path());
    QVERIFY(free > 0 && free <= volume.bytesTotal());
    QCOMPARE(availableDiskSpace(path("not there")), qint64(-1));
}

void FileManagementTest::showingInAMissingFolderIsReported()
{
    auto& logger = installedLogger();
    logger.take();
    selectFilesInShell(QString(), {QStringLiteral("x")});
    QVERIFY(logger.take().isEmpty());
    selectFilesInShell(path("missing"), {});
    const QStringList lines = logger.take();
    QCOMPARE(lines.size(), 1);
    QVERIFY(
        lines.constFirst().startsWith(QStringLiteral("E TOLVAN_NAMESPACE::selectFilesInShell: ASSERT in ")));
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("there is no file .*missing")));
    selectFilesInShell(m_folder->path(), {path("missing"), QString()});
    QVERIFY(logger.take().isEmpty());
}

int main(int argc, char* argv[])
{
    if (argc == 4 && qstrcmp(argv[1], "--racer") == 0) {
        return runRacer(QFile::decodeName(argv[2]), argv[3]);
    }
    return TestMain::run<QCoreApplication, FileManagementTest>(argc, argv);
}
#include "tst_filemanagement.moc"
