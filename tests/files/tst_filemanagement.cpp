#include "FolderTest.h"
#include "InstalledLogger.h"
#include "Sandbox.h"

#include <utilsDll/FileManagement.h>

#include <QDateTime>
#include <QProcess>
#include <QStorageInfo>

#include <atomic>
#include <thread>
#ifdef Q_OS_LINUX
#include <cerrno>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>
#endif

using namespace TOLVAN_NAMESPACE;

namespace
{

constexpr int rounds = 150;
const bool windows = QDir::separator() == QLatin1Char('\\');

/// What the file system supports. The functions below replace those that the library calls.
enum FileSystem {
    Modern,
    WithoutExclusiveRename,
    WithoutSecondNames, ///< and without the exclusive rename
};
FileSystem fileSystem = Modern;
const QVector<FileSystem> fileSystems =
    windows ? QVector<FileSystem>{Modern}
            : QVector<FileSystem>{Modern, WithoutExclusiveRename, WithoutSecondNames};

QString raceName(const QString& folder, const char* kind, int round)
{
    return folder + QLatin1Char('/') + QLatin1String(kind) + QString::number(round);
}

#ifdef Q_OS_LINUX
extern "C" Q_DECL_EXPORT int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
                                       unsigned flags) noexcept
{
    errno = EINVAL;
    return fileSystem == Modern ? int(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags)) : -1;
}

extern "C" Q_DECL_EXPORT int link(const char* from, const char* to) noexcept
{
    errno = EPERM;
    return fileSystem == WithoutSecondNames ? -1 : linkat(AT_FDCWD, from, AT_FDCWD, to, 0);
}
#endif

/// Both racers return at the same moment. They spin, but leave the processor to the other one when it needs it.
void meet(std::atomic<int>& arrived)
{
    ++arrived;
    for (int spins = 0; arrived < 2; ++spins) {
        if (spins % 1000 == 999) {
            std::this_thread::yield();
        }
    }
}

/// One of two processes that rename their own file of each round to the same target. They meet before each
/// round at counters in a shared file.
int runRacer(const QString& folder, const QByteArray& who, int kind)
{
    fileSystem = static_cast<FileSystem>(kind);
    QFile counters(folder + text("/counters"));
    if (!counters.open(QIODevice::ReadWrite)) {
        return 2;
    }
    auto* const arrived = reinterpret_cast<std::atomic<int>*>(counters.map(0, counters.size()));
    for (int round = 0; arrived && round < rounds; ++round) {
        meet(arrived[round]);
        renameFile(raceName(folder, who, round), raceName(folder, "target", round));
    }
    return arrived ? 0 : 2;
}

} // namespace

class FileManagementTest : public FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void rename_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<bool>("renamed");
        const auto row = [](const char* title, const char* from, const char* to, bool renamed) {
            QTest::newRow(title) << text(from) << text(to) << renamed;
        };
        row("uncleaned paths", "folder/../file", "./folder//new", true);
        row("folder", "folder", "new folder", true);
        row("change of case", "file", "FILE", true);
        row("change of case of a folder", "folder", "Folder", true);
        row("non-ASCII", "file", "ä日\U0001F4F7", true);
        row("onto an existing file", "file", "other", false);
        row("onto an existing folder", "file", "folder", false);
        row("folder onto an empty folder", "folder", "empty", false);
        row("folder into itself", "folder", "folder/below", false);
        row("missing source", "nothing", "new", false);
        row("missing target folder", "file", "nowhere/new", false);
    }

    void rename()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(bool, renamed);
        for (const FileSystem kind : fileSystems) {
            FolderTest::init();
            FileTree::write(path("file"), "the file");
            FileTree::write(path("other"), "another");
            FileTree::write(path("folder/inside"), "inside");
            QVERIFY(QDir().mkpath(path("empty")));
            const auto before = FileTree::of(folder());
            auto expected = before;
            const QString source = QDir::cleanPath(from), target = QDir::cleanPath(to);
            for (const QString& name : renamed ? before.keys() : QStringList()) {
                if (name == source || name.startsWith(source + QLatin1Char('/'))) {
                    expected.insert(target + name.mid(source.size()), expected.take(name));
                }
            }
            fileSystem = kind;
            const bool result = renameFile(path(from), path(to));
            fileSystem = Modern;
            QCOMPARE(result, renamed);
            const auto after = FileTree::of(folder()); // with the names as they are spelled
            if (underWine() && source.compare(target, Qt::CaseInsensitive) == 0 && after == before) {
                return; // it keeps the old spelling and calls that a success
            }
            QCOMPARE(after, expected);
        }
    }

    void renameOfNothingOrOntoALink()
    {
        const QString file = FileTree::write(path("file"));
        QVERIFY(!renameFile(QString(), path("new")));
        QVERIFY(!renameFile(file, QString()));
        QCOMPARE(FileTree::of(folder()).size(), 1);
        if (!windows) {
            QVERIFY(QFile::link(path("nowhere"), path("dangling")));
            QVERIFY(!renameFile(file, path("dangling")));
            QVERIFY(renameFile(path("dangling"), path("moved link")));
        }
    }

    /// Two processes rename their own file to the same name, again and again: one of them succeeds.
    void races()
    {
        for (const FileSystem kind : fileSystems) {
            FolderTest::init();
            for (int round = 0; round < rounds; ++round) {
                FileTree::write(raceName(folder(), "a", round), "a");
                FileTree::write(raceName(folder(), "b", round), "b");
            }
            FileTree::write(path("counters"), QByteArray(rounds * int(sizeof(int)), '\0'));
            QProcess racers[2];
            for (int i = 0; i < 2; ++i) {
                racers[i].start(QCoreApplication::applicationFilePath(),
                                {text("--racer"), folder(), text(i == 0 ? "a" : "b"), QString::number(kind)});
            }
            for (QProcess& racer : racers) {
                QVERIFY2(racer.waitForFinished(100000), qPrintable(racer.errorString()));
                QCOMPARE(racer.exitCode(), 0);
            }
            for (int round = 0; round < rounds; ++round) {
                const QByteArray winner = FileTree::read(raceName(folder(), "target", round));
                const QByteArray loser = winner == "a" ? "b" : "a";
                QVERIFY2(winner == "a" || winner == "b", qPrintable(text("%1 %2").arg(kind).arg(round)));
                QVERIFY(!QFile::exists(raceName(folder(), winner, round)));
                QCOMPARE(FileTree::read(raceName(folder(), loser, round)), loser);
            }
        }
    }

    void acrossFileSystems()
    {
        if (!m_volume.problem().isEmpty()) {
            QSKIP(qPrintable(m_volume.problem()));
        }
#ifdef Q_OS_LINUX
        const QString there = m_volume.path() + text("/moved");
        const QDateTime old = QDateTime::fromSecsSinceEpoch(1600000000);
        FileTree::write(path("folder/a/b"), QByteArray(300000, 'x'));
        FileTree::write(path("folder/\xC3\xA4"), "umlaut");
        QVERIFY(QFile::link(text("a/b"), path("folder/link")));
        QFile dated(path("folder/a/b"));
        QVERIFY(dated.open(QIODevice::ReadWrite) &&
                dated.setFileTime(old, QFileDevice::FileModificationTime));
        dated.close();
        permit(dated.fileName(), QFile::ReadOwner | QFile::ExeOwner);
        const QByteArray native = QFile::encodeName(dated.fileName());
        QCOMPARE(link(native.constData(), QFile::encodeName(path("folder/second name")).constData()), 0);
        QCOMPARE(setxattr(native.constData(), "trusted.test", "value", 5, 0), 0);
        QCOMPARE(chown(native.constData(), 65534, 65534), 0);
        QVERIFY(QFile::resize(FileTree::write(path("folder/hole"), "start"), 8 << 20));
        const auto tree = FileTree::of(path("folder"));
        QVERIFY(renameFile(path("folder"), there));
        QCOMPARE(FileTree::of(there), tree);
        QVERIFY(!QFile::exists(path("folder")));
        const QFileInfo moved(there + text("/a/b"));
        QCOMPARE(moved.lastModified(), old);
        QVERIFY(moved.permission(QFile::ExeOwner) && !moved.permission(QFile::WriteOwner));
        QCOMPARE(moved.ownerId(), 65534u);
        struct stat status = {};
        char value[5] = {};
        const QByteArray copy = QFile::encodeName(moved.filePath());
        QCOMPARE(getxattr(copy.constData(), "trusted.test", value, sizeof value), ssize_t(5));
        QVERIFY(stat(copy.constData(), &status) == 0 && status.st_nlink == 2);
        const QByteArray hole = QFile::encodeName(there + text("/hole"));
        QVERIFY(stat(hole.constData(), &status) == 0 && status.st_blocks < 1000);

        rlimit before = {};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        const rlimit limit = {1 << 20, before.rlim_max};
        FileTree::write(path("large"), QByteArray(2 << 20, 'x'));
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
        const bool isMoved = renameFile(path("large"), m_volume.path() + text("/large"));
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
        QVERIFY(!isMoved && QFile::exists(path("large")));

        const QString current = QDir::currentPath();
        FileTree::write(path("file"), "new");
        QVERIFY(QDir::setCurrent(folder()));
        QVERIFY(renameFile(text("file"), m_volume.path() + text("/file")));
        QVERIFY(QDir::setCurrent(current));
        QVERIFY(QFile::remove(m_volume.path() + text("/file")));
        QVERIFY(QDir(there).removeRecursively());
#endif
    }

    void refusedAcrossFileSystems()
    {
        if (!m_volume.problem().isEmpty()) {
            QSKIP(qPrintable(m_volume.problem()));
        }
        const auto there = [this](const char* name) { return m_volume.path() + QLatin1String(name); };
        FileTree::write(path("file"), "new");
        FileTree::write(there("/file"), "old");
        QVERIFY(QDir().mkpath(there("/folder")));
        // A pipe can't be copied; a folder that is locked can't get a new parent, and its copy is locked as well.
        QCOMPARE(runProgram(text("mkfifo"), {path("pipe")}).code, 0);
        FileTree::write(path("locked/file"));
        permit(path("locked"), 0x5555);
        permit(folder(), 0x7777);
        const auto before = FileTree::of(m_volume.path());
        {
            const OrdinaryUser user;
            for (const char* target : {"/file", "/folder", "/nowhere/file"}) {
                QVERIFY2(!renameFile(path("file"), there(target)), target);
            }
            QVERIFY(!renameFile(path("pipe"), there("/new")));
            QVERIFY(!renameFile(path("locked"), there("/new")));
        }
        QCOMPARE(FileTree::of(m_volume.path()), before);
        QCOMPARE(FileTree::read(path("file")), QByteArray("new"));
        QVERIFY(QFile::exists(path("pipe")) && QFile::exists(path("locked/file")));
        permit(path("locked"), 0x7777);
    }

    void emptying()
    {
        const struct {
            const char* entries; // a folder ends with a slash
            bool result;
            const char* left;
        } rows[] = {{"", false, ""},
                    {"a|.a|a b|ä|%41|#", true, ""},
                    {"a|d/b|d/e/c", true, "d/|d/e/"},
                    {"a|d/", false, "a|d/"}, // an empty folder stops everything, also one below
                    {"a|d/e/|d/b", false, "a|d/|d/b|d/e/"},
                    {"b/|c/a", false, "b/|c/|c/a"},
                    {"a/x|b/", false, "a/|b/"}}; // but not what comes before it
        for (const auto& row : rows) {
            FolderTest::init();
            for (const QString& entry : text(row.entries).split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
                QVERIFY(entry.endsWith(QLatin1Char('/')) ? QDir().mkpath(path(entry))
                                                         : !FileTree::write(path(entry)).isEmpty());
            }
            QCOMPARE(removeDirectoryContent(QDir(folder())), row.result);
            QCOMPARE(FileTree::of(folder()).keys().join(QLatin1Char('|')), text(row.left));
        }
        QVERIFY(!removeDirectoryContent(QDir(path("missing"))));
    }

    void emptyingKeepsWhatIsNotMeant()
    {
        for (const char* name : {"outside/kept", "inside/a.tmp", "inside/b.jpg", "inside/c/d.jpg"}) {
            FileTree::write(path(name), "kept");
        }
        QVERIFY(removeDirectoryContent(QDir(path("inside"), text("*.TMP"))));
        QCOMPARE(QStringList(FileTree::of(path("inside")).keys()), QStringList({text("b.jpg"), text("c/")}));
#ifdef Q_OS_WIN
        QSKIP("Wine makes no links to folders");
#endif
        QVERIFY(QDir(path("inside/c")).removeRecursively());
        QVERIFY(QFile::link(path("outside"), path("inside/link")));
        QVERIFY(QFile::link(path("nowhere"), path("inside/dangling")));
        QVERIFY(QFile::link(path("outside/kept"), path("inside/file link")));
        QVERIFY(removeDirectoryContent(QDir(path("inside"))));
        QVERIFY(FileTree::of(path("inside")).isEmpty());
        QCOMPARE(FileTree::read(path("outside/kept")), QByteArray("kept"));
    }

    void emptyingStopsAtTheFirstFailure()
    {
#ifdef Q_OS_WIN
        QSKIP("Permissions of folders mean nothing under Wine; see the open file");
#endif
        FileTree::write(path("locked/a"));
        FileTree::write(path("z"));
        permit(folder(), 0x7777);
        permit(path("locked"), 0x5555);
        {
            const OrdinaryUser user;
            QVERIFY(!removeDirectoryContent(QDir(folder())));
        }
        QCOMPARE(QStringList(FileTree::of(folder()).keys()),
                 QStringList({text("locked/"), text("locked/a"), text("z")}));
        permit(path("locked"), 0x7777);
    }

    /// Windows refuses; Unix deletes an open file.
    void emptyingMeetsAnOpenFile()
    {
        QFile held(FileTree::write(path("a")));
        QVERIFY(held.open(QIODevice::ReadOnly));
        QCOMPARE(removeDirectoryContent(QDir(folder())), !windows);
        QCOMPARE(QFile::exists(path("a")), windows);
    }

    void freeSpace()
    {
        QCOMPARE(availableDiskSpace(path("not there")), qint64(-1));
        if (!QStorageInfo(folder()).isValid()) {
            QSKIP("Qt reports no volume here: a chroot whose root is not a mount point");
        }
        QVERIFY(availableDiskSpace(folder()) > 0);
    }

    void showingInAMissingFolderIsReported()
    {
        auto& logger = installedLogger();
        logger.take();
        selectFilesInShell(QString(), {text("x")});
        QVERIFY(logger.take().isEmpty());
        selectFilesInShell(path("missing"), {});
        QCOMPARE(logger.take(), QStringList(text("E TOLVAN_NAMESPACE::selectFilesInShell: ASSERT in "
                                                 "ExPluginShell\\modules\\utilsDll\\FileManagement:176")));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(text("there is no file .*missing")));
        selectFilesInShell(folder(), {path("missing"), QString()});
        QVERIFY(logger.take().isEmpty());
    }

private:
    const SecondVolume m_volume;
};

int main(int argc, char* argv[])
{
    if (argc == 5 && qstrcmp(argv[1], "--racer") == 0) {
        return runRacer(QFile::decodeName(argv[2]), argv[3], atoi(argv[4]));
    }
    return TestMain::run<QCoreApplication, FileManagementTest>(argc, argv);
}
#include "tst_filemanagement.moc"
