#include "FileTree.h"
#include "FolderTest.h"
#include "InstalledLogger.h"
#include "Sandbox.h"
#include "TestMain.h"

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

constexpr int races = 1000;
const bool windows = QDir::separator() == QLatin1Char('\\');

/// What the file system supports. The functions below replace those that the library calls.
enum FileSystem {
    Modern,
    WithoutExclusiveRename,
    WithoutSecondNames, ///< and without the exclusive rename
};
FileSystem fileSystem = Modern;

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

/// Both racers return at the same moment: they yield the first time and spin the second time.
void meet(std::atomic<int>& arrived, std::atomic<int>& awake)
{
    for (++arrived; arrived < 2;) {
        std::this_thread::yield();
    }
    for (++awake; awake < 2;) {
    }
}

/// One of two processes that rename their own file of each round to the same target. They meet before each
/// round at counters in a shared file.
int runRacer(const QString& folder, const QByteArray& who, int kind)
{
    fileSystem = static_cast<FileSystem>(kind);
    QFile counters(folder + QStringLiteral("/counters"));
    if (!counters.open(QIODevice::ReadWrite)) {
        return 2;
    }
    auto* const arrived = reinterpret_cast<std::atomic<int>*>(counters.map(0, counters.size()));
    for (int round = 0; arrived && round < races; ++round) {
        meet(arrived[2 * round], arrived[2 * round + 1]);
        renameFile(raceName(folder, who, round), raceName(folder, "target", round));
    }
    return arrived ? 0 : 2;
}

void permit(const QString& path, int permissions)
{
    QVERIFY(QFile::setPermissions(path, QFile::Permissions(permissions)));
}

} // namespace

class FileManagementTest : public FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void rename_data();
    void rename();
    void renameOfNothingOrOntoALink();
    void thousandRaces_data();
    void thousandRaces();
    void acrossFileSystems();
    void refusedAcrossFileSystems();
    void emptying_data();
    void emptying();
    void emptyingKeepsWhatIsNotMeant();
    void emptyingStopsAtTheFirstFailure();
    void emptyingMeetsAnOpenFile();
    void freeSpace();
    void showingInAMissingFolderIsReported();

private:
    const SecondVolume m_volume;
};

void FileManagementTest::rename_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("renamed");
    QTest::addColumn<int>("kind");
    const auto row = [](const char* title, const char* from, const char* to, bool renamed) {
        for (int kind = Modern; kind <= (windows ? Modern : WithoutSecondNames); ++kind) {
            QTest::addRow("%s %d", title, kind)
                << QString::fromUtf8(from) << QString::fromUtf8(to) << renamed << kind;
        }
    };
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
    QFETCH(bool, renamed);
    FileTree::write(path("file"), "the file");
    FileTree::write(path("other"), "another");
    FileTree::write(path("folder/inside"), "inside");
    QVERIFY(QDir().mkpath(path("empty")));
    const auto before = FileTree::of(folder());
    auto expected = before;
    const QString source = QDir::cleanPath(from);
    const QString target = QDir::cleanPath(to);
    for (const QString& name : renamed ? before.keys() : QStringList()) {
        if (name.startsWith(source) && (name == source || name.at(source.size()) == QLatin1Char('/'))) {
            expected.insert(target + name.mid(source.size()), expected.take(name));
        }
    }
    QFETCH(int, kind);
    fileSystem = static_cast<FileSystem>(kind);
    const bool result = renameFile(path(from), path(to));
    fileSystem = Modern;
    QCOMPARE(result, renamed);
    const auto after = FileTree::of(folder()); // with the names as they are spelled
    if (underWine() && source.compare(target, Qt::CaseInsensitive) == 0 && after == before) {
        return; // it keeps the old spelling and calls that a success
    }
    QCOMPARE(after, expected);
}

void FileManagementTest::renameOfNothingOrOntoALink()
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

void FileManagementTest::thousandRaces_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("any file system") << int(Modern);
    if (!windows) {
        QTest::newRow("without exclusive rename") << int(WithoutExclusiveRename);
        QTest::newRow("without second names") << int(WithoutSecondNames);
    }
}

void FileManagementTest::thousandRaces()
{
    QFETCH(int, kind);
    for (int round = 0; round < races; ++round) {
        FileTree::write(raceName(folder(), "a", round), "a");
        FileTree::write(raceName(folder(), "b", round), "b");
    }
    FileTree::write(path("counters"), QByteArray(2 * races * int(sizeof(int)), '\0'));
    QProcess racers[2];
    for (int i = 0; i < 2; ++i) {
        racers[i].start(
            QCoreApplication::applicationFilePath(),
            {QStringLiteral("--racer"), folder(), QLatin1String(i == 0 ? "a" : "b"), QString::number(kind)});
    }
    for (QProcess& racer : racers) {
        QVERIFY2(racer.waitForFinished(100000), qPrintable(racer.errorString()));
        QCOMPARE(racer.exitCode(), 0);
    }
    for (int round = 0; round < races; ++round) {
        const QByteArray winner = FileTree::read(raceName(folder(), "target", round));
        const QByteArray loser = winner == "a" ? "b" : "a";
        QVERIFY2(winner == "a" || winner == "b", qPrintable(QString::number(round)));
        QVERIFY(!QFile::exists(raceName(folder(), winner, round)));
        QCOMPARE(FileTree::read(raceName(folder(), loser, round)), loser);
    }
}

void FileManagementTest::acrossFileSystems()
{
    if (!m_volume.problem().isEmpty()) {
        QSKIP(qPrintable(m_volume.problem()));
    }
#ifdef Q_OS_LINUX
    const QString there = m_volume.path() + QStringLiteral("/moved");
    const QDateTime old = QDateTime::fromSecsSinceEpoch(1600000000);
    FileTree::write(path("folder/a/b"), QByteArray(300000, 'x'));
    FileTree::write(path("folder/\xC3\xA4"), "umlaut");
    QVERIFY(QFile::link(QStringLiteral("a/b"), path("folder/link")));
    QFile dated(path("folder/a/b"));
    QVERIFY(dated.open(QIODevice::ReadWrite) && dated.setFileTime(old, QFileDevice::FileModificationTime));
    dated.close();
    permit(dated.fileName(), QFile::ReadOwner | QFile::ExeOwner);
    const QByteArray native = QFile::encodeName(dated.fileName());
    QCOMPARE(link(native.constData(), QFile::encodeName(path("folder/second name")).constData()), 0);
    QCOMPARE(setxattr(native.constData(), "trusted.test", "value", 5, 0), 0);
    QCOMPARE(chown(native.constData(), 65534, 65534), 0);
    QVERIFY(QFile::resize(FileTree::write(path("folder/hole"), "start"), 100 << 20));
    const auto tree = FileTree::of(path("folder"));
    QVERIFY(renameFile(path("folder"), there));
    QCOMPARE(FileTree::of(there), tree);
    QVERIFY(!QFile::exists(path("folder")));
    const QFileInfo moved(there + QStringLiteral("/a/b"));
    QCOMPARE(moved.lastModified(), old);
    QVERIFY(moved.permission(QFile::ExeOwner) && !moved.permission(QFile::WriteOwner));
    QCOMPARE(moved.ownerId(), 65534u);
    struct stat status = {};
    char value[5] = {};
    const QByteArray copy = QFile::encodeName(moved.filePath());
    QCOMPARE(getxattr(copy.constData(), "trusted.test", value, sizeof value), ssize_t(5));
    QVERIFY(stat(copy.constData(), &status) == 0 && status.st_nlink == 2);
    const QByteArray hole = QFile::encodeName(there + QStringLiteral("/hole"));
    QVERIFY(stat(hole.constData(), &status) == 0 && status.st_blocks < 1000);

    rlimit before = {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit limit = {1 << 20, before.rlim_max};
    FileTree::write(path("large"), QByteArray(2 << 20, 'x'));
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
    const bool isMoved = renameFile(path("large"), m_volume.path() + QStringLiteral("/large"));
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
    QVERIFY(!isMoved && QFile::exists(path("large")));

    const QString current = QDir::currentPath();
    FileTree::write(path("file"), "new");
    QVERIFY(QDir::setCurrent(folder()));
    QVERIFY(renameFile(QStringLiteral("file"), m_volume.path() + QStringLiteral("/file")));
    QVERIFY(QDir::setCurrent(current));
    QVERIFY(QFile::remove(m_volume.path() + QStringLiteral("/file")));
    QVERIFY(QDir(there).removeRecursively());
#endif
}

void FileManagementTest::refusedAcrossFileSystems()
{
    if (!m_volume.problem().isEmpty()) {
        QSKIP(qPrintable(m_volume.problem()));
    }
    const auto there = [this](const char* name) { return m_volume.path() + QLatin1String(name); };
    FileTree::write(path("file"), "new");
    FileTree::write(there("/file"), "old");
    QVERIFY(QDir().mkpath(there("/folder")));
    // A pipe can't be copied; a folder that is locked can't get a new parent, and its copy is locked as well.
    QCOMPARE(runProgram(QStringLiteral("mkfifo"), {path("pipe")}).code, 0);
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
    row("names of all kinds", "a|.a|a b|\xC3\xA4|%41|#", true, "");
    row("files in folders", "a|d/b|d/e/c", true, "d/|d/e/");
    row("an empty folder stops before the files", "a|d/", false, "a|d/");
    row("an empty folder below stops everything", "a|d/e/|d/b", false, "a|d/|d/b|d/e/");
    row("an empty folder stops before later folders", "b/|c/a", false, "b/|c/|c/a");
    row("a full folder before an empty one", "a/x|b/", false, "a/|b/");
}

void FileManagementTest::emptying()
{
    QFETCH(QStringList, entries);
    for (const QString& entry : entries) {
        if (entry.endsWith(QLatin1Char('/'))) {
            QVERIFY(QDir().mkpath(path(entry)));
        } else {
            FileTree::write(path(entry));
        }
    }
    QTEST(removeDirectoryContent(QDir(folder())), "result");
    QTEST(QStringList(FileTree::of(folder()).keys()), "left");
    QVERIFY(!removeDirectoryContent(QDir(path("missing"))));
}

void FileManagementTest::emptyingKeepsWhatIsNotMeant()
{
    for (const char* name : {"outside/kept", "inside/a.tmp", "inside/b.jpg", "inside/c/d.jpg"}) {
        FileTree::write(path(name), "kept");
    }
    QVERIFY(removeDirectoryContent(QDir(path("inside"), QStringLiteral("*.TMP"))));
    QCOMPARE(QStringList(FileTree::of(path("inside")).keys()),
             QStringList({QStringLiteral("b.jpg"), QStringLiteral("c/")}));
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

void FileManagementTest::emptyingStopsAtTheFirstFailure()
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
             QStringList({QStringLiteral("locked/"), QStringLiteral("locked/a"), QStringLiteral("z")}));
    permit(path("locked"), 0x7777);
}

/// Windows refuses; Unix deletes an open file.
void FileManagementTest::emptyingMeetsAnOpenFile()
{
    QFile held(FileTree::write(path("a")));
    QVERIFY(held.open(QIODevice::ReadOnly));
    QCOMPARE(removeDirectoryContent(QDir(folder())), !windows);
    QCOMPARE(QFile::exists(path("a")), windows);
}

void FileManagementTest::freeSpace()
{
    QCOMPARE(availableDiskSpace(path("not there")), qint64(-1));
    if (!QStorageInfo(folder()).isValid()) {
        QSKIP("Qt reports no volume here: a chroot whose root is not a mount point");
    }
    QVERIFY(availableDiskSpace(folder()) > 0);
}

void FileManagementTest::showingInAMissingFolderIsReported()
{
    auto& logger = installedLogger();
    logger.take();
    selectFilesInShell(QString(), {QStringLiteral("x")});
    QVERIFY(logger.take().isEmpty());
    selectFilesInShell(path("missing"), {});
    QCOMPARE(logger.take(),
             QStringList(QStringLiteral("E TOLVAN_NAMESPACE::selectFilesInShell: ASSERT in "
                                        "ExPluginShell\\modules\\utilsDll\\FileManagement:176")));
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("there is no file .*missing")));
    selectFilesInShell(folder(), {path("missing"), QString()});
    QVERIFY(logger.take().isEmpty());
}

int main(int argc, char* argv[])
{
    if (argc == 5 && qstrcmp(argv[1], "--racer") == 0) {
        return runRacer(QFile::decodeName(argv[2]), argv[3], atoi(argv[4]));
    }
    return TestMain::run<QCoreApplication, FileManagementTest>(argc, argv);
}
#include "tst_filemanagement.moc"
