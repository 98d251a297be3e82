#include "FolderTest.h"
#include "Sandbox.h"
#include "ZipWriter.h"

#include "archive/ArchiveExtraction.h"
#include "ArchiveCompression.h"

#include <quazip/JlCompress.h>
#include <quazip/quacrc32.h>
#include <quazip/quazip.h>

using namespace TOLVAN_NAMESPACE;

using Tree = QMap<QString, QByteArray>;

/// Packing and unpacking well-formed archives, also those of other programs.
class ArchivesTest : public FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void exchange_data()
    {
        QTest::addColumn<QString>("pack"); // empty: by us
        QTest::addColumn<QString>("unpack");
        const auto row = [](const char* title, const char* pack, const char* unpack) {
            QTest::newRow(title) << text(pack) << text(unpack);
        };
        row("ours", "", "");
#ifndef Q_OS_WIN // under Wine the programs of others are not there
        row("to unzip", "", "unzip -q ../a.zip");
        row("to 7z", "", "7z x -bd ../a.zip");
        row("to bsdtar", "", "bsdtar -xf ../a.zip");
        row("to python3", "", "python3 -m zipfile -e ../a.zip . && chmod 640 text.txt noise");
        row("from zip", "zip -qr ../a.zip .", "");
        row("from zip, stored", "zip -qr0 ../a.zip .", "");
        row("from zip, ZIP64 forced", "zip -qr -fz ../a.zip .", "");
        row("from zip, through a pipe", "zip -qr - . >../a.zip", "");
        row("from zip, unknown language", "LC_ALL=C zip -qr ../a.zip .", "");
        row("from zip, with comments", "zip -qr ../a.zip . && echo note | zip -qz ../a.zip", "");
        row("from zip, behind a program", "zip -qr ../b.zip . && (echo program; cat ../b.zip) >../a.zip", "");
        row("from 7z", "7z a -bd -tzip ../a.zip .", "");
        row("from 7z, bzip2", "7z a -bd -tzip -mm=BZip2 ../a.zip .", "");
        row("from bsdtar", "bsdtar -a -cf ../a.zip *", "");
        row("from python3", "python3 -m zipfile -c ../a.zip *", "");
#endif
    }

    void exchange()
    {
        QFETCH(QString, pack);
        QFETCH(QString, unpack);
        const auto shell = [](const QString& command, const QString& in) {
            const Outcome outcome = runProgram(text("sh"), {text("-c"), command}, in);
            QVERIFY2(outcome.code == 0, outcome.output);
        };
        const QDir tree(fill());
        for (const char* name : {"text.txt", "noise"}) { // one is packed in memory, one in blocks
            permit(tree.filePath(text(name)), 0x6640);
        }
        if (pack.isEmpty()) {
            QStringList files;
            for (const QFileInfo& file : tree.entryInfoList(QDir::Files)) {
                files += file.filePath();
            }
            QVERIFY(CompressFiles(files, path("a.zip")));
        } else {
            FileTree::write(path("tree/folder/below/file"), "below");
            QVERIFY(QDir().mkpath(path("tree/empty folder")));
            shell(pack, tree.path());
        }
        QVERIFY(QDir().mkpath(path("out")));
        if (unpack.isEmpty()) {
            QVERIFY(DecompressFiles(path("a.zip").toStdWString(), path("out").toStdWString()));
        } else {
            shell(unpack, path("out"));
        }
        QCOMPARE(unpacked(), FileTree::of(tree.path()));
        for (const char* name : {"text.txt", "noise"}) {
            QCOMPARE(QFileInfo(path("out/") + text(name)).permissions(),
                     QFileInfo(tree.filePath(text(name))).permissions());
        }
    }

    /// For a harmless archive the library's own function is the reference, permissions included.
    void sameResultAsTheLibrary()
    {
        FileTree::write(path("test.zip"), zipOf({{"folder/", "", 0, 040750},
                                                 {"folder/private", "a", 8, 0100600},
                                                 {"folder/program", "b", 0, 0100755},
                                                 {"no folder entry/file", "c", 8, 0100644},
                                                 {"no mode", "d", 8, 0},
                                                 {"./dot/./file", "e"},
                                                 {"twice", "first"},
                                                 {"twice", "second"}}));
        QVERIFY(!JlCompress::extractDir(path("test.zip"), path("theirs")).isEmpty());
        DecompressFiles(path("test.zip"), path("new/folders/ours"));
        const Tree tree = FileTree::of(path("theirs"));
        QCOMPARE(tree.value(text("twice")), QByteArray("second"));
        QCOMPARE(FileTree::of(path("new/folders/ours")), tree);
        for (const QString& name : tree.keys()) {
            QCOMPARE(QFileInfo(path("new/folders/ours/") + name).permissions(),
                     QFileInfo(path("theirs/") + name).permissions());
        }
        // Two files of one name are two entries.
        QVERIFY(
            CompressFiles({FileTree::write(path("a/x"), "from a"), FileTree::write(path("b/x"), "from b")},
                          path("other/folders/ours.zip")));
        QCOMPARE(JlCompress::getFileList(path("other/folders/ours.zip")).size(), 2);
        DecompressFiles(path("other/folders/ours.zip"), path("out"));
        QCOMPARE(unpacked(), (Tree{{text("x"), "from b"}}));
    }

    void namesWithoutMark_data()
    {
        QTest::addColumn<QByteArray>("raw");
        QTest::addColumn<QByteArray>("extra");
        QTest::addColumn<QString>("name");
        const auto field = [](const QByteArray& raw, char version) {
            QByteArray body;
            QDataStream out(&body, QIODevice::WriteOnly);
            out.setByteOrder(QDataStream::LittleEndian);
            out << quint8(version) << QuaCrc32().calculate(raw);
            return "up\x07" + QByteArray(1, '\0') + body + "\xC3\xA4";
        };
        const auto row = [](const QByteArray& raw, const char* name, const QByteArray& extra = {}) {
            QTest::newRow(raw.toPercentEncoding()) << raw << extra << text(name);
        };
        row("\xC3\xA4", "ä"); // UTF-8
        row("\x84.txt", "ä.txt");
        row("\x80 \xFF!", "Ç \u00A0!"); // the first and the last character of code page 437
        row("\xC3", "├");               // broken UTF-8
        row("\xE0\x80\xAF", "αÇ»");     // overlong UTF-8
        row("K\x94ln.jpg", "Köln.jpg");
        row(QByteArray::fromHex("9a62756e67"), "Übung");
        row(QByteArray::fromHex("53747261e165"), "Straße");
        row("\x82t\x82.jpg", "été.jpg");
#ifndef Q_OS_WIN                              // there it is the code page of the system
        row("\x8E\xCA\x90^.jpg", "写真.jpg"); // Shift-JIS
        row("IMG\x82\xA0\x82\xE8\x83J", "IMGありカ");
        row("\xD5\xD5\xC6\xAC 1.jpg", "照片 1.jpg"); // GBK
        row("\x94\xAE\xE2\xAE 2020.jpg", "Фото 2020.jpg");
        row("\x8C\x88\x90", "МИР");
#endif
        row("x", "ä", field("x", 1));
        row("to another", "to another", field("y", 1));
        row("other version", "other version", field("other version", 2));
        row("cut off", "cut off", QByteArray("up\x03\x00\x01\x02\x03", 7));
    }

    void namesWithoutMark()
    {
        QFETCH(QByteArray, raw);
        QFETCH(QString, name);
        QFETCH(QByteArray, extra);
        ZipEntry entry{raw, "content"};
        entry.extra = extra;
        QVERIFY(unpack(zipOf({entry})));
        QCOMPARE(unpacked(), (Tree{{name, "content"}}));
    }

    void failedPackingLeavesNoArchive()
    {
        const QString good = FileTree::write(path("good"), "good");
        FileTree::write(path("old.zip"), "old");
        QVERIFY(QDir().mkpath(path("folder")));
        const auto before = FileTree::of(folder());
        for (const QString& bad : {path("missing"), path("folder"), QString()}) {
            QVERIFY(!CompressFiles({good, bad}, path("new.zip")));
            QVERIFY(!CompressFiles({good, bad}, path("old.zip")));
        }
        QVERIFY(!CompressFiles({good}, path("folder")));
        QVERIFY(!CompressFiles({good}, path("good/new.zip")));
        QCOMPARE(FileTree::of(folder()), before);
    }

    /// An existing archive is overwritten then; a failure keeps it.
    void folderRefusesNewFiles()
    {
#ifdef Q_OS_WIN
        QSKIP("Permissions of folders mean nothing under Wine");
#endif
        fill();
        const QString archive = FileTree::write(path("box/old.zip"), "old");
        FileTree::write(path("good"), "good");
        permit(archive, 0x6666);
        permit(path("box"), 0x5555);
        permit(folder(), 0x7777);
        {
            const OrdinaryUser user;
            QVERIFY(CompressFiles({path("good")}, archive));
            QVERIFY(!CompressFiles({path("good")}, path("box/new.zip")));
        }
        QVERIFY(unpack(FileTree::read(archive)));
        QCOMPARE(unpacked(), (Tree{{text("good"), "good"}}));
        {
            const OrdinaryUser user;
            const QString noise = path("tree/noise"); // more than is collected in memory
            QVERIFY(!CompressFiles({noise, noise, noise, noise, path("missing")}, archive));
        }
        permit(path("box"), 0x7777);
        QVERIFY(unpack(FileTree::read(archive)));
    }

    void emptyAndMissingArchives()
    {
        QVERIFY(CompressFiles({}, path("empty.zip")));
        for (const QByteArray& zip : {FileTree::read(path("empty.zip")), zipOf({}), QByteArray()}) {
            QVERIFY(!unpack(zip));
            QVERIFY(unpacked().isEmpty());
        }
        DecompressFiles(path("no archive"), path("made/folder"));
        QVERIFY(QFileInfo(path("made/folder")).isDir());
    }

    void existingFilesAreReplacedWhole()
    {
        FileTree::write(path("out/long"), "an old file with more in it");
        QVERIFY(QFile::setPermissions(path("out/long"), QFile::ReadOwner)); // also a read-only one
        FileTree::write(path("out/damaged"), "kept");
        FileTree::write(path("out/other"), "not in the archive");
        ZipEntry damaged{"damaged", "new content"};
        damaged.checksum = 12345;
        QVERIFY(!unpack(zipOf({{"long", "new"}, damaged, {"last", "last"}})));
        QCOMPARE(unpacked(), (Tree{{text("long"), "new"},
                                   {text("damaged"), "kept"},
                                   {text("other"), "not in the archive"},
                                   {text("last"), "last"}}));
    }

    /// The owner can always use what was unpacked. A folder of another user may be written into, but its
    /// permissions can't be changed.
    void permissions()
    {
        QVERIFY(unpack(zipOf({{"locked/", "", 0, 040000 | 0555}, {"locked/a", "a", 8, 0100000 | 0222}})));
        QVERIFY(QFileInfo(path("out/locked/a")).permission(QFile::ReadOwner));
        QVERIFY(QFileInfo(path("out/locked")).permission(QFile::WriteOwner));
#ifndef Q_OS_WIN
        QVERIFY(!QFileInfo(path("out/locked/a")).permission(QFile::ReadGroup));
        QVERIFY(!QFileInfo(path("out/locked")).permission(QFile::WriteGroup));
#endif
        QVERIFY(QDir().mkpath(path("out/shared")));
        FileTree::write(path("test.zip"), zipOf({{"shared/", "", 0, 040755}, {"shared/a", "a"}}));
        for (const QString& open : {folder(), path("out/shared")}) {
            permit(open, 0x7777);
        }
        const OrdinaryUser user;
        QVERIFY(DecompressFiles(path("test.zip").toStdWString(), path("out").toStdWString()));
    }

    void linksInside()
    {
#ifdef Q_OS_WIN
        QSKIP("links are not made on Windows; see the hostile archives");
#endif
        QVERIFY(QDir().mkpath(path("out")));
        const QByteArray zip = zipOf({{"a/file", "content"},
                                      {"link", "a/file", 0, 0120777},
                                      {"b/up", "./../a", 8, 0120777},
                                      {"b/up/through", "inside"}});
        const Tree expected = {{text("a/"), "folder"},      {text("a/file"), "content"},
                               {text("link"), "-> a/file"}, {text("b/"), "folder"},
                               {text("b/up"), "-> ./../a"}, {text("a/through"), "inside"}};
        for (int i = 0; i < 2; ++i) { // the second time over what is there
            QVERIFY(unpack(zip));
            QCOMPARE(unpacked(), expected);
        }
    }

    /// Links to files and to folders.
    void linksArePacked()
    {
#ifdef Q_OS_WIN
        QSKIP("links are not made on Windows");
#endif
        FileTree::write(path("tree/folder/file"), "content");
        QVERIFY(QFile::link(text("folder/file"), path("tree/to file")));
        QVERIFY(QFile::link(text("folder"), path("tree/to folder")));
        QVERIFY(CompressFiles({path("tree/to file"), path("tree/to folder")}, path("links.zip")));
        QVERIFY(unpack(FileTree::read(path("links.zip"))));
        QCOMPARE(unpacked(), (Tree{{text("to file"), "-> folder/file"}, {text("to folder"), "-> folder"}}));
    }

    /// What is packed on this system can be unpacked on it.
    void names()
    {
#ifdef Q_OS_WIN
        QSKIP("Windows has no files with such names");
#endif
        Tree expected;
        QStringList files;
        for (const char* name : {"plain", "a:1.jpg", "\\server", "what?", "ä日"}) {
            expected[text(name)] = "content";
            files += FileTree::write(path("in/") + text(name));
        }
        QVERIFY(CompressFiles(files, path("a.zip")));
        QVERIFY(unpack(FileTree::read(path("a.zip"))));
        QCOMPARE(unpacked(), expected);
    }

    /// Times are restored, by us and by others; the format knows the years from 1980 to 2107.
    void times()
    {
        const QVector<qint64> seconds = {1600000001, 86400, 4102444801};
        QStringList files;
        for (int i = 0; i < seconds.size(); ++i) {
            files += FileTree::write(path("in/") + QString::number(i));
            QFile file(files.last());
            QVERIFY(file.open(QIODevice::ReadWrite) &&
                    file.setFileTime(QDateTime::fromSecsSinceEpoch(seconds.at(i)),
                                     QFileDevice::FileModificationTime));
        }
        QVERIFY(CompressFiles(files, path("a.zip")));
        QuaZip zip(path("a.zip"));
        QVERIFY(zip.open(QuaZip::mdUnzip));
        QCOMPARE(zip.getFileInfoList64().at(1).dateTime.date().year(), 1980);
        zip.close();
        QVERIFY(unpack(FileTree::read(path("a.zip"))));
        for (int i = 0; i < 2; ++i) { // the third is beyond the extended time stamp, which ends in 2038
            QCOMPARE(QFileInfo(path("out/") + QString::number(i)).lastModified().toSecsSinceEpoch(),
                     seconds.at(i));
        }
        QVERIFY(qAbs(QFileInfo(path("out/2")).lastModified().toSecsSinceEpoch() - seconds.at(2)) <= 2);
    }

    void commentsAndTrailingData()
    {
        const QVector<ZipEntry> entries = {{"a", "content"}};
        const QByteArray misleading = "PK\5\6" + QByteArray(65531, 'c');
        for (const QByteArray& zip : {zipOf(entries, QByteArray(65535, 'c')), zipOf(entries, misleading),
                                      zipOf(entries) + QByteArray(100000, '\n')}) {
            QVERIFY(QDir(path("out")).removeRecursively() || !QFile::exists(path("out")));
            QVERIFY(unpack(zip));
            QCOMPARE(unpacked(), (Tree{{text("a"), "content"}}));
        }
    }

private:
    /// Files of all sizes that take different ways, in one folder, with names of several scripts.
    QString fill() const
    {
        QByteArray noise(300000, '\0');
        quint32 state = 1;
        for (char& byte : noise) {
            state = state * 1664525u + 1013904223u;
            byte = char(state >> 24);
        }
        FileTree::write(path("tree/empty"), "");
        FileTree::write(path("tree/text.txt"), QByteArray("some words ").repeated(2000));
        FileTree::write(path("tree/noise"), noise);
        FileTree::write(path("tree/one block"), noise.left(128 * 1024));
        FileTree::write(path("tree/less than a block"), noise.left(128 * 1024 - 1));
        FileTree::write(path("tree/\xC3\xA4\xE6\x97\xA5\xF0\x9F\x93\xB7.txt"), "umlaut");
        return path("tree");
    }

    bool unpack(const QByteArray& zip) const
    {
        const QString archive = FileTree::write(path("test.zip"), zip);
        return DecompressFiles(archive.toStdWString(), path("out").toStdWString());
    }

    Tree unpacked() const
    {
        return FileTree::of(path("out"));
    }
};

TOLVAN_CORE_TEST_MAIN(ArchivesTest)
#include "tst_archives.moc"
