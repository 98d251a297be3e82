#include "FileTree.h"
#include "FolderTest.h"
#include "InstalledLogger.h"
#include "Sandbox.h"
#include "TestMain.h"

#include <utilsDll/FileManagement.h>

#include <QUrl>

using namespace TOLVAN_NAMESPACE;

/// The recycle bin as other programs see it. The bin is the test's own: it lies in the test's profile.
class TrashTest : public FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void binHoldsTheFile_data();
    void binHoldsTheFile();
    void sameNameTwice();
    void veryLongName();
    void othersListAndRestore();
    void receipt();
    void linkInPlaceOfTheBin();
    void anotherFileSystem();
    void overlayFileSystem();
    void readOnlyFolder();
    void unusableHome();

private:
    QString realFolder() const { return QFileInfo(folder()).canonicalFilePath(); }
    static QString bin() { return qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/Trash"); }

    const SecondVolume m_volume;
};

void TrashTest::init()
{
    FolderTest::init();
    QDir(bin()).removeRecursively();
}

void TrashTest::binHoldsTheFile_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"plain.txt", "with blank", "100%", "a%20b%41", "#?&;='\"", "line\nfeed", "\\back",
          "\xC3\xA4\xE6\x97\xA5\xF0\x9F\x93\xB7", "-dash", ".hidden", "a.tar.gz", "folder/"}) {
        QTest::newRow(name) << QString::fromUtf8(name);
    }
    QTest::newRow("a dot before a long text") << QStringLiteral("1. ") + QString(70, QChar(0x65E5));
}

void TrashTest::binHoldsTheFile()
{
    QFETCH(QString, name);
    const bool isFolder = name.endsWith(QLatin1Char('/'));
    name.remove(QLatin1Char('/'));
    const QString file = path(name);
    FileTree::write(isFolder ? file + QStringLiteral("/inside") : file, "content");
    QCOMPARE(moveFileToTrash(file), FileOperationSucceeded);
    QVERIFY(!QFile::exists(file));

    const QString kept = bin() + QStringLiteral("/files/") + name;
    QCOMPARE(FileTree::read(isFolder ? kept + QStringLiteral("/inside") : kept), QByteArray("content"));
    const QList<QByteArray> lines =
        FileTree::read(bin() + QStringLiteral("/info/") + name + QStringLiteral(".trashinfo")).split('\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(0), QByteArray("[Trash Info]"));
    QVERIFY(lines.at(1).startsWith("Path=/"));
    QCOMPARE(QFile::decodeName(QByteArray::fromPercentEncoding(lines.at(1).mid(5))),
             realFolder() + QLatin1Char('/') + name);
    for (const char c : lines.at(1)) {
        QVERIFY(c > ' ' && c < 0x7F);
    }
}

void TrashTest::sameNameTwice()
{
    for (const char* content : {"first", "second", "third"}) {
        QCOMPARE(moveFileToTrash(FileTree::write(path(QStringLiteral("a.jpg")), content)),
                 FileOperationSucceeded);
    }
    // A left-over file that has no info of its own is not replaced either.
    FileTree::write(bin() + QStringLiteral("/files/b.jpg"), "stray");
    QCOMPARE(moveFileToTrash(FileTree::write(path(QStringLiteral("b.jpg")), "b")), FileOperationSucceeded);
    const auto files = FileTree::of(bin() + QStringLiteral("/files"));
    QCOMPARE(files.keys().join(QLatin1Char(' ')), QStringLiteral("a.2.jpg a.3.jpg a.jpg b.2.jpg b.jpg"));
    QCOMPARE(files.value(QStringLiteral("b.jpg")), QByteArray("stray"));
    QCOMPARE(files.value(QStringLiteral("a.3.jpg")), QByteArray("third"));
    QCOMPARE(FileTree::of(bin() + QStringLiteral("/info")).size(), 4);
}

void TrashTest::veryLongName()
{
    const QStringList names = {QString(125, QChar(0xE4)) + QStringLiteral(".jpeg"), // 255 bytes
                               QStringLiteral("a. ") + QString(126, QChar(0xE4))};
    for (const QString& name : names) {
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(moveFileToTrash(FileTree::write(path(name))), FileOperationSucceeded);
        }
    }
    const QStringList kept = FileTree::of(bin() + QStringLiteral("/files")).keys();
    QCOMPARE(kept.size(), 4);
    QVERIFY2(kept.filter(QChar(QChar::ReplacementCharacter)).isEmpty(), "a character is cut in half");
    const QByteArray infos = FileTree::of(bin() + QStringLiteral("/info")).values().join();
    for (const QString& name : names) {
        QCOMPARE(infos.count(QUrl::toPercentEncoding(name)), 2);
    }
}

/// Two foreign programs read the layout.
void TrashTest::othersListAndRestore()
{
    const QString awkward = QString::fromUtf8("a%20 b#\xC3\xA4\xE6\x97\xA5.txt");
    for (const QString& name : {QStringLiteral("plain"), awkward}) {
        QCOMPARE(moveFileToTrash(FileTree::write(path(name), name.toUtf8())), FileOperationSucceeded);
    }
    const Outcome listed = runProgram(QStringLiteral("trash-list"), {});
    QCOMPARE(listed.code, 0);
    QVERIFY2(!listed.output.contains("????"), listed.output); // its mark for a date that is none
    QVERIFY2(listed.output.contains((realFolder() + QLatin1Char('/') + awkward).toUtf8()), listed.output);

    const Outcome gio =
        runProgram(QStringLiteral("dbus-run-session"), {QStringLiteral("--"), QStringLiteral("gio"),
                                                        QStringLiteral("trash"), QStringLiteral("--list")});
    QVERIFY2(gio.output.contains("/a b") || gio.output.contains("/a%20 b"), gio.output);
    QVERIFY2(gio.output.contains((realFolder() + QStringLiteral("/plain")).toUtf8()), gio.output);

    // It restores what was deleted from the current folder; both numbers, one after the other.
    for (int i = 0; i < 2; ++i) {
        const Outcome restored = runProgram(QStringLiteral("trash-restore"), {}, realFolder(), "0\n");
        QVERIFY2(restored.code == 0, restored.output);
    }
    QCOMPARE(FileTree::read(path(awkward)), awkward.toUtf8());
    QCOMPARE(FileTree::read(path(QStringLiteral("plain"))), QByteArray("plain"));
}

void TrashTest::receipt()
{
    const QString file = FileTree::write(path("folder/a b"), "content");
    const TrashReceipt receipt = trash(file);
    QVERIFY(receipt.isTrashed && !QFile::exists(file));
    QCOMPARE(FileTree::read(receipt.trashPath), QByteArray("content"));
    QVERIFY(QDir(path("folder")).removeRecursively());
    QVERIFY(restore(receipt));
    QCOMPARE(FileTree::read(file), QByteArray("content"));
    QVERIFY(FileTree::of(bin() + QStringLiteral("/info")).isEmpty());
    QVERIFY(!restore(receipt));
    QVERIFY(!trash(path("missing")).isTrashed);
    const TrashReceipt second = trash(file);
    FileTree::write(file, "new");
    QVERIFY(!restore(second));
    QCOMPARE(FileTree::read(file), QByteArray("new"));
}

void TrashTest::linkInPlaceOfTheBin()
{
    QVERIFY(QDir().mkpath(path("target")) && QDir().mkpath(QFileInfo(bin()).path()));
    QVERIFY(QFile::link(path("target"), bin()));
    QCOMPARE(moveFileToTrash(FileTree::write(path("a"), "content")), FileOperationSucceeded);
    QVERIFY(QFile::remove(bin()));
    QCOMPARE(FileTree::read(path("target/files/a")), QByteArray("content"));
}

/// Files report the device of their layer there, not that of their folder.
void TrashTest::overlayFileSystem()
{
    if (!m_volume.problem().isEmpty()) {
        QSKIP(qPrintable(m_volume.problem()));
    }
    FileTree::write(path("lower/a"), "content");
    const QString top = path("merged");
    QVERIFY(QDir().mkpath(top) && QDir(m_volume.path()).mkpath(QStringLiteral("upper")) &&
            QDir(m_volume.path()).mkpath(QStringLiteral("work")));
    const QString layers =
        QStringLiteral("lowerdir=%1,upperdir=%2/upper,workdir=%2/work").arg(path("lower"), m_volume.path());
    if (runProgram(QStringLiteral("mount"), {QStringLiteral("-t"), QStringLiteral("overlay"),
                                             QStringLiteral("none"), QStringLiteral("-o"), layers, top})
            .code != 0) {
        QSKIP("an overlay file system can't be mounted here");
    }
    const ErrorCodes result = moveFileToTrash(top + QStringLiteral("/a"));
    const QByteArray kept = FileTree::read(top + QStringLiteral("/.Trash-0/files/a"));
    QCOMPARE(runProgram(QStringLiteral("umount"), {QStringLiteral("-l"), top}).code, 0);
    QCOMPARE(result, FileOperationSucceeded);
    QCOMPARE(kept, QByteArray("content"));
}

void TrashTest::anotherFileSystem()
{
    if (!m_volume.problem().isEmpty()) {
        QSKIP(qPrintable(m_volume.problem()));
    }
    const QString file = m_volume.path() + QStringLiteral("/photos/a b.jpg");
    QCOMPARE(moveFileToTrash(FileTree::write(file, "one")), FileOperationSucceeded);
    const QString own = m_volume.path() + QStringLiteral("/.Trash-0");
    QVERIFY2(
        FileTree::read(own + QStringLiteral("/info/a b.jpg.trashinfo")).contains("\nPath=photos/a%20b.jpg\n"),
        "the path is relative to the volume");
    QCOMPARE(FileTree::read(own + QStringLiteral("/files/a b.jpg")), QByteArray("one"));
    QVERIFY(!QFile::exists(bin() + QStringLiteral("/files/a b.jpg")));

    // A trash for all users is taken when it has the sticky bit, and never through a link.
    const QString shared = m_volume.path() + QStringLiteral("/.Trash");
    QVERIFY(QFile::link(folder(), shared));
    QCOMPARE(moveFileToTrash(FileTree::write(file, "two")), FileOperationSucceeded);
    QCOMPARE(FileTree::read(own + QStringLiteral("/files/a b.2.jpg")), QByteArray("two"));
    QVERIFY(QFile::remove(shared));
    QCOMPARE(runProgram(QStringLiteral("mkdir"), {QStringLiteral("-m1777"), shared}).code, 0);
    QCOMPARE(moveFileToTrash(FileTree::write(file, "three")), FileOperationSucceeded);
    QCOMPARE(FileTree::read(shared + QStringLiteral("/0/files/a b.jpg")), QByteArray("three"));
}

void TrashTest::readOnlyFolder()
{
    const QString file = FileTree::write(path(QStringLiteral("locked/a")), "kept");
    const auto permit = [](const QString& name, int permissions) {
        QVERIFY(QFile::setPermissions(name, QFile::Permissions(permissions)));
    };
    permit(path("locked"), 0x5555);
    permit(folder(), 0x7777);
    permit(QFileInfo(bin()).path(), 0x7777);
    auto& logger = installedLogger();
    logger.take();
    {
        const OrdinaryUser user;
        QCOMPARE(moveFileToTrash(file), FileOperationFailed);
    }
    QCOMPARE(
        logger.take(),
        QStringList(QStringLiteral("E TOLVAN_NAMESPACE::moveFileToTrash: the recycle bin does not take ") +
                    file));
    QCOMPARE(FileTree::read(file), QByteArray("kept"));
    QCOMPARE(QStringList(FileTree::of(bin()).keys()),
             QStringList({QStringLiteral("files/"), QStringLiteral("info/")}));
    permit(path("locked"), 0x7777);
}

/// Without a data folder of the user the trash of the file system is not used either.
void TrashTest::unusableHome()
{
    const QByteArray data = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", "/dev/null/nowhere");
    const QString file = FileTree::write(path(QStringLiteral("a")), "kept");
    const ErrorCodes result = moveFileToTrash(file);
    qputenv("XDG_DATA_HOME", data);
    QCOMPARE(result, FileOperationFailed);
    QCOMPARE(FileTree::read(file), QByteArray("kept"));
}

TOLVAN_CORE_TEST_MAIN(TrashTest)
#include "tst_trash.moc"
