#include "FolderTest.h"
#include "InstalledLogger.h"
#include "Sandbox.h"

#include <utilsDll/FileManagement.h>

#include <QUrl>

using namespace TOLVAN_NAMESPACE;

/// The recycle bin as other programs see it. The bin is the test's own: it lies in the test's profile.
class TrashTest : public FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        FolderTest::init();
        QDir(bin()).removeRecursively();
    }

    void binHoldsTheFile()
    {
        QStringList names{text("1. ") + QString(70, QChar(0x65E5))}; // a dot before a long text
        for (const char* name : {"a.tar.gz", "100% a%20b%41", "#?&;='\"", "line\nfeed", "\\back",
                                 "ä日\U0001F4F7", "-dash", ".hidden", "folder"}) {
            names += text(name);
        }
        for (const QString& name : names) {
            const QString inside = name == text("folder") ? text("/inside") : QString();
            FileTree::write(path(name) + inside, "content");
            QCOMPARE(moveFileToTrash(path(name)), FileOperationSucceeded);
            QVERIFY(!QFile::exists(path(name)));
            QCOMPARE(FileTree::read(bin() + text("/files/") + name + inside), QByteArray("content"));
            const QList<QByteArray> lines =
                FileTree::read(bin() + text("/info/") + name + text(".trashinfo")).split('\n');
            QCOMPARE(lines.size(), 4);
            QCOMPARE(lines.at(0), QByteArray("[Trash Info]"));
            QVERIFY(lines.at(1).startsWith("Path=/"));
            QCOMPARE(QFile::decodeName(QByteArray::fromPercentEncoding(lines.at(1).mid(5))),
                     realFolder() + QLatin1Char('/') + name);
            for (const char c : lines.at(1)) {
                QVERIFY(c > ' ' && c < 0x7F);
            }
        }
    }

    void sameNameTwice()
    {
        for (const char* content : {"first", "second", "third"}) {
            QCOMPARE(moveFileToTrash(FileTree::write(path(text("a.jpg")), content)), FileOperationSucceeded);
        }
        // A left-over file that has no info of its own is not replaced either.
        FileTree::write(bin() + text("/files/b.jpg"), "stray");
        QCOMPARE(moveFileToTrash(FileTree::write(path(text("b.jpg")), "b")), FileOperationSucceeded);
        const auto files = FileTree::of(bin() + text("/files"));
        QCOMPARE(files.keys().join(QLatin1Char(' ')), text("a.2.jpg a.3.jpg a.jpg b.2.jpg b.jpg"));
        QCOMPARE(files.value(text("b.jpg")), QByteArray("stray"));
        QCOMPARE(files.value(text("a.3.jpg")), QByteArray("third"));
        QCOMPARE(FileTree::of(bin() + text("/info")).size(), 4);
    }

    void veryLongName()
    {
        const QStringList names = {QString(125, QChar(0xE4)) + text(".jpeg"), // 255 bytes
                                   text("a. ") + QString(126, QChar(0xE4))};
        for (const QString& name : names) {
            for (int i = 0; i < 2; ++i) {
                QCOMPARE(moveFileToTrash(FileTree::write(path(name))), FileOperationSucceeded);
            }
        }
        const QStringList kept = FileTree::of(bin() + text("/files")).keys();
        QCOMPARE(kept.size(), 4);
        QVERIFY2(kept.filter(QChar(QChar::ReplacementCharacter)).isEmpty(), "a character is cut in half");
        const QByteArray infos = FileTree::of(bin() + text("/info")).values().join();
        for (const QString& name : names) {
            QCOMPARE(infos.count(QUrl::toPercentEncoding(name)), 2);
        }
    }

    /// Two foreign programs read the layout.
    void othersListAndRestore()
    {
        const QString awkward = text("a%20 b#\xC3\xA4\xE6\x97\xA5.txt");
        for (const QString& name : {text("plain"), awkward}) {
            QCOMPARE(moveFileToTrash(FileTree::write(path(name), name.toUtf8())), FileOperationSucceeded);
        }
        const Outcome listed = runProgram(text("trash-list"), {});
        QCOMPARE(listed.code, 0);
        QVERIFY2(!listed.output.contains("????"), listed.output); // its mark for a date that is none
        QVERIFY2(listed.output.contains((realFolder() + QLatin1Char('/') + awkward).toUtf8()), listed.output);

        const Outcome gio =
            runProgram(text("dbus-run-session"), {text("--"), text("gio"), text("trash"), text("--list")});
        QVERIFY2(gio.output.contains("/a b") || gio.output.contains("/a%20 b"), gio.output);
        QVERIFY2(gio.output.contains((realFolder() + text("/plain")).toUtf8()), gio.output);

        // It restores what was deleted from the current folder; both numbers, one after the other.
        for (int i = 0; i < 2; ++i) {
            const Outcome restored = runProgram(text("trash-restore"), {}, realFolder(), "0\n");
            QVERIFY2(restored.code == 0, restored.output);
        }
        QCOMPARE(FileTree::read(path(awkward)), awkward.toUtf8());
        QCOMPARE(FileTree::read(path(text("plain"))), QByteArray("plain"));
    }

    void receipt()
    {
        const QString file = FileTree::write(path("folder/a b"), "content");
        const TrashReceipt receipt = trash(file);
        QVERIFY(receipt.isTrashed && !QFile::exists(file));
        QCOMPARE(FileTree::read(receipt.trashPath), QByteArray("content"));
        QVERIFY(QDir(path("folder")).removeRecursively());
        QVERIFY(restore(receipt));
        QCOMPARE(FileTree::read(file), QByteArray("content"));
        QVERIFY(FileTree::of(bin() + text("/info")).isEmpty());
        QVERIFY(!restore(receipt));
        QVERIFY(!trash(path("missing")).isTrashed);
        const TrashReceipt second = trash(file);
        FileTree::write(file, "new");
        QVERIFY(!restore(second));
        QCOMPARE(FileTree::read(file), QByteArray("new"));
    }

    void linkInPlaceOfTheBin()
    {
        QVERIFY(QDir().mkpath(path("target")) && QDir().mkpath(QFileInfo(bin()).path()));
        QVERIFY(QFile::link(path("target"), bin()));
        QCOMPARE(moveFileToTrash(FileTree::write(path("a"), "content")), FileOperationSucceeded);
        QVERIFY(QFile::remove(bin()));
        QCOMPARE(FileTree::read(path("target/files/a")), QByteArray("content"));
    }

    void anotherFileSystem()
    {
        if (!m_volume.problem().isEmpty()) {
            QSKIP(qPrintable(m_volume.problem()));
        }
        const QString file = m_volume.path() + text("/photos/a b.jpg");
        QCOMPARE(moveFileToTrash(FileTree::write(file, "one")), FileOperationSucceeded);
        const QString own = m_volume.path() + text("/.Trash-0");
        QVERIFY2(FileTree::read(own + text("/info/a b.jpg.trashinfo")).contains("\nPath=photos/a%20b.jpg\n"),
                 "the path is relative to the volume");
        QCOMPARE(FileTree::read(own + text("/files/a b.jpg")), QByteArray("one"));
        QVERIFY(!QFile::exists(bin() + text("/files/a b.jpg")));

        // A trash for all users is taken when it has the sticky bit, and never through a link.
        const QString shared = m_volume.path() + text("/.Trash");
        QVERIFY(QFile::link(folder(), shared));
        QCOMPARE(moveFileToTrash(FileTree::write(file, "two")), FileOperationSucceeded);
        QCOMPARE(FileTree::read(own + text("/files/a b.2.jpg")), QByteArray("two"));
        QVERIFY(QFile::remove(shared));
        QCOMPARE(runProgram(text("mkdir"), {text("-m1777"), shared}).code, 0);
        QCOMPARE(moveFileToTrash(FileTree::write(file, "three")), FileOperationSucceeded);
        QCOMPARE(FileTree::read(shared + text("/0/files/a b.jpg")), QByteArray("three"));
    }

    /// Files report the device of their layer there, not that of their folder.
    void overlayFileSystem()
    {
        if (!m_volume.problem().isEmpty()) {
            QSKIP(qPrintable(m_volume.problem()));
        }
        FileTree::write(path("lower/a"), "content");
        const QString top = path("merged");
        QVERIFY(QDir().mkpath(top) && QDir(m_volume.path()).mkpath(text("upper")) &&
                QDir(m_volume.path()).mkpath(text("work")));
        const QString layers =
            text("lowerdir=%1,upperdir=%2/upper,workdir=%2/work").arg(path("lower"), m_volume.path());
        if (runProgram(text("mount"), {text("-t"), text("overlay"), text("none"), text("-o"), layers, top})
                .code != 0) {
            QSKIP("an overlay file system can't be mounted here");
        }
        const ErrorCodes result = moveFileToTrash(top + text("/a"));
        const QByteArray kept = FileTree::read(top + text("/.Trash-0/files/a"));
        QCOMPARE(runProgram(text("umount"), {text("-l"), top}).code, 0);
        QCOMPARE(result, FileOperationSucceeded);
        QCOMPARE(kept, QByteArray("content"));
    }

    void readOnlyFolder()
    {
        const QString file = FileTree::write(path(text("locked/a")), "kept");
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
            QStringList(text("E TOLVAN_NAMESPACE::moveFileToTrash: the recycle bin does not take ") + file));
        QCOMPARE(FileTree::read(file), QByteArray("kept"));
        QCOMPARE(QStringList(FileTree::of(bin()).keys()), QStringList({text("files/"), text("info/")}));
        permit(path("locked"), 0x7777);
    }

    /// Without a data folder of the user the trash of the file system is not used either.
    void unusableHome()
    {
        const QByteArray data = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", "/dev/null/nowhere");
        const QString file = FileTree::write(path(text("a")), "kept");
        const ErrorCodes result = moveFileToTrash(file);
        qputenv("XDG_DATA_HOME", data);
        QCOMPARE(result, FileOperationFailed);
        QCOMPARE(FileTree::read(file), QByteArray("kept"));
    }

private:
    QString realFolder() const { return QFileInfo(folder()).canonicalFilePath(); }
    static QString bin() { return qEnvironmentVariable("XDG_DATA_HOME") + text("/Trash"); }

    const SecondVolume m_volume;
};

TOLVAN_CORE_TEST_MAIN(TrashTest)
#include "tst_trash.moc"
