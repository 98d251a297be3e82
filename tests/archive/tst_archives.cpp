#include "FileTree.h"
#include "FolderTest.h"
#include "Sandbox.h"
#include "TestMain.h"
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
    void exchange_data();
    void exchange();
    void sameResultAsTheLibrary();
    void namesWithoutMark_data();
    void namesWithoutMark();
    void failedPackingLeavesNoArchive();
    void folderRefusesNewFiles();
    void emptyAndMissingArchives();
    void existingFilesAreReplacedWhole();
    void permissions();
    void linksInside();
    void linksArePacked();
    void names_data();
    void names();
    void times();
    void commentsAndTrailingData();

private:
    QString fill() const;
    bool unpack(const QByteArray& zip) const
    {
        const QString archive = FileTree::write(path("test.zip"), zip);
        return DecompressFiles(archive.toStdWString(), path("out").toStdWString());
    }
    Tree unpacked() const { return FileTree::of(path("out")); }
};

/// Files of all sizes that take different ways, in one folder, with names of several scripts.
QString ArchivesTest::fill() const
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

void ArchivesTest::exchange_data()
{
    QTest::addColumn<QString>("pack"); // empty: by us
    QTest::addColumn<QString>("unpack");
    const auto row = [](const char* title, const char* pack, const char* unpack) {
        QTest::newRow(title) << QString::fromLatin1(pack) << QString::fromLatin1(unpack);
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

void ArchivesTest::exchange()
{
    QFETCH(QString, pack);
    QFETCH(QString, unpack);
    const auto shell = [](const QString& command, const QString& in) {
        const Outcome outcome = runProgram(QStringLiteral("sh"), {QStringLiteral("-c"), command}, in);
        QVERIFY2(outcome.code == 0, outcome.output);
    };
    const QDir tree(fill());
    for (const char* name : {"text.txt", "noise"}) { // one is packed in memory, one in blocks
        QVERIFY(QFile::setPermissions(tree.filePath(QLatin1String(name)), QFile::Permissions(0x6640)));
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
        QCOMPARE(QFileInfo(path("out/") + QLatin1String(name)).permissions(),
                 QFileInfo(tree.filePath(QLatin1String(name))).permissions());
    }
}

/// For a harmless archive the library's own function is the reference, permissions included.
void ArchivesTest::sameResultAsTheLibrary()
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
    QCOMPARE(tree.value(QStringLiteral("twice")), QByteArray("second"));
    QCOMPARE(FileTree::of(path("new/folders/ours")), tree);
    for (const QString& name : tree.keys()) {
        QCOMPARE(QFileInfo(path("new/folders/ours/") + name).permissions(),
                 QFileInfo(path("theirs/") + name).permissions());
    }
    // Two files of one name are two entries.
    QVERIFY(CompressFiles({FileTree::write(path("a/x"), "from a"), FileTree::write(path("b/x"), "from b")},
                          path("other/folders/ours.zip")));
    QCOMPARE(JlCompress::getFileList(path("other/folders/ours.zip")).size(), 2);
    DecompressFiles(path("other/folders/ours.zip"), path("out"));
    QCOMPARE(unpacked(), (Tree{{QStringLiteral("x"), "from b"}}));
}

void ArchivesTest::namesWithoutMark_data()
{
    QTest::addColumn<QByteArray>("raw");
    QTest::addColumn<QByteArray>("extra");
    QTest::addColumn<QString>("name");
    const auto field = [](const QByteArray& raw, const QByteArray& name, char version = 1) {
        quint32 crc = QuaCrc32().calculate(raw);
        QByteArray body(1, version);
        for (int i = 0; i < 4; ++i, crc >>= 8) {
            body += char(crc);
        }
        body += name;
        return QByteArray("\x75\x70", 2) + char(body.size()) + '\0' + body;
    };
    const auto row = [](const char* title, const QByteArray& raw, const QString& name,
                        const QByteArray& extra = {}) { QTest::newRow(title) << raw << extra << name; };
    const QByteArray umlaut = "\xC3\xA4"; // UTF-8
    row("UTF-8", umlaut, QStringLiteral("\u00E4"));
    row("code page 437", "\x84.txt", QStringLiteral("\u00E4.txt"));
    row("its first and last character", "\x80 \xFF!", QStringLiteral("\u00C7 \u00A0!"));
    row("broken UTF-8", "\xC3", QStringLiteral("\u251C"));
    row("overlong UTF-8", "\xE0\x80\xAF", QStringLiteral("\u03B1\u00C7\u00BB"));
    for (const char* western : {"K\x94ln.jpg",
                                "\x9A"
                                "bung.jpg",
                                "Stra\xE1"
                                "e.jpg",
                                "\x82t\x82.jpg"}) {
        QString text = QString::fromLatin1(western);
        text.replace(QChar(0x94), QChar(0xF6)).replace(QChar(0x9A), QChar(0xDC));
        row(western, western, text.replace(QChar(0xE1), QChar(0xDF)).replace(QChar(0x82), QChar(0xE9)));
    }
#ifndef Q_OS_WIN // there it is the code page of the system
    row("Shift-JIS", "\x8E\xCA\x90^.jpg", QStringLiteral("\u5199\u771F.jpg"));
    row("Shift-JIS, kana", "IMG\x82\xA0\x82\xE8\x83J", QStringLiteral("IMG\u3042\u308A\u30AB"));
    row("GBK", "\xD5\xD5\xC6\xAC 1.jpg", QStringLiteral("\u7167\u7247 1.jpg"));
    row("Cyrillic", "\x94\xAE\xE2\xAE 2020.jpg", QStringLiteral("\u0424\u043E\u0442\u043E 2020.jpg"));
    row("Cyrillic capitals", "\x8C\x88\x90", QStringLiteral("\u041C\u0418\u0420"));
#endif
    row("attached name", "x", QStringLiteral("\u00E4"), field("x", umlaut));
    row("attached to another name", "x", QStringLiteral("x"), field("y", umlaut));
    row("attached in another version", "x", QStringLiteral("x"), field("x", umlaut, 2));
    row("attached field cut off", "x", QStringLiteral("x"), QByteArray("\x75\x70\x03\x00\x01\x02\x03", 7));
}

void ArchivesTest::namesWithoutMark()
{
    QFETCH(QByteArray, raw);
    QFETCH(QByteArray, extra);
    QFETCH(QString, name);
    ZipEntry entry{raw, "content"};
    entry.extra = extra;
    QVERIFY(unpack(zipOf({entry})));
    QCOMPARE(unpacked(), (Tree{{name, "content"}}));
}

void ArchivesTest::failedPackingLeavesNoArchive()
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
void ArchivesTest::folderRefusesNewFiles()
{
#ifdef Q_OS_WIN
    QSKIP("Permissions of folders mean nothing under Wine");
#endif
    fill();
    const QString archive = FileTree::write(path("box/old.zip"), "old");
    FileTree::write(path("good"), "good");
    QVERIFY(QFile::setPermissions(archive, QFile::Permissions(0x6666)));
    QVERIFY(QFile::setPermissions(path("box"), QFile::Permissions(0x5555)));
    QVERIFY(QFile::setPermissions(folder(), QFile::Permissions(0x7777)));
    {
        const OrdinaryUser user;
        QVERIFY(CompressFiles({path("good")}, archive));
        QVERIFY(!CompressFiles({path("good")}, path("box/new.zip")));
    }
    QVERIFY(unpack(FileTree::read(archive)));
    QCOMPARE(unpacked(), (Tree{{QStringLiteral("good"), "good"}}));
    {
        const OrdinaryUser user;
        const QString noise = path("tree/noise"); // more than is collected in memory
        QVERIFY(!CompressFiles({noise, noise, noise, noise, path("missing")}, archive));
    }
    QVERIFY(QFile::setPermissions(path("box"), QFile::Permissions(0x7777)));
    QVERIFY(unpack(FileTree::read(archive)));
}

void ArchivesTest::emptyAndMissingArchives()
{
    QVERIFY(CompressFiles({}, path("empty.zip")));
    for (const QByteArray& zip : {FileTree::read(path("empty.zip")), zipOf({}), QByteArray()}) {
        QVERIFY(!unpack(zip));
        QVERIFY(unpacked().isEmpty());
    }
    DecompressFiles(path("no archive"), path("made/folder"));
    QVERIFY(QFileInfo(path("made/folder")).isDir());
}

void ArchivesTest::existingFilesAreReplacedWhole()
{
    FileTree::write(path("out/long"), "an old file with more in it");
    QVERIFY(QFile::setPermissions(path("out/long"), QFile::ReadOwner)); // also a read-only one
    FileTree::write(path("out/damaged"), "kept");
    FileTree::write(path("out/other"), "not in the archive");
    ZipEntry damaged{"damaged", "new content"};
    damaged.checksum = 12345;
    QVERIFY(!unpack(zipOf({{"long", "new"}, damaged, {"last", "last"}})));
    QCOMPARE(unpacked(), (Tree{{QStringLiteral("long"), "new"},
                               {QStringLiteral("damaged"), "kept"},
                               {QStringLiteral("other"), "not in the archive"},
                               {QStringLiteral("last"), "last"}}));
}

/// The owner can always use what was unpacked. A folder of another user may be written into, but its
/// permissions can't be changed.
void ArchivesTest::permissions()
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
        QVERIFY(QFile::setPermissions(open, QFile::Permissions(0x7777)));
    }
    const OrdinaryUser user;
    QVERIFY(DecompressFiles(path("test.zip").toStdWString(), path("out").toStdWString()));
}

void ArchivesTest::names_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"plain", "a:1.jpg", "\\server", "what?", "\xC3\xA4\xE6\x97\xA5"}) {
        QTest::newRow(name) << QString::fromUtf8(name);
    }
}

/// What is packed on this system can be unpacked on it.
void ArchivesTest::names()
{
#ifdef Q_OS_WIN
    QSKIP("Windows has no files with such names");
#endif
    QFETCH(QString, name);
    QVERIFY(CompressFiles({FileTree::write(path("in/") + name)}, path("a.zip")));
    QVERIFY(unpack(FileTree::read(path("a.zip"))));
    QCOMPARE(unpacked(), (Tree{{name, "content"}}));
}

/// Times are restored, by us and by others; the format knows the years from 1980 to 2107.
void ArchivesTest::times()
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

void ArchivesTest::commentsAndTrailingData()
{
    const QVector<ZipEntry> entries = {{"a", "content"}};
    const QByteArray misleading = "PK\5\6" + QByteArray(65531, 'c');
    for (const QByteArray& zip : {zipOf(entries, QByteArray(65535, 'c')), zipOf(entries, misleading),
                                  zipOf(entries) + QByteArray(100000, '\n')}) {
        QVERIFY(QDir(path("out")).removeRecursively() || !QFile::exists(path("out")));
        QVERIFY(unpack(zip));
        QCOMPARE(unpacked(), (Tree{{QStringLiteral("a"), "content"}}));
    }
}

void ArchivesTest::linksInside()
{
#ifdef Q_OS_WIN
    QSKIP("links are not made on Windows; see the hostile archives");
#endif
    QVERIFY(QDir().mkpath(path("out")));
    const QByteArray zip = zipOf({{"a/file", "content"},
                                  {"link", "a/file", 0, 0120777},
                                  {"b/up", "./../a", 8, 0120777},
                                  {"b/up/through", "inside"}});
    const Tree expected = {{QStringLiteral("a/"), "folder"},      {QStringLiteral("a/file"), "content"},
                           {QStringLiteral("link"), "-> a/file"}, {QStringLiteral("b/"), "folder"},
                           {QStringLiteral("b/up"), "-> ./../a"}, {QStringLiteral("a/through"), "inside"}};
    for (int i = 0; i < 2; ++i) { // the second time over what is there
        QVERIFY(unpack(zip));
        QCOMPARE(unpacked(), expected);
    }
}

/// Links to files and to folders.
void ArchivesTest::linksArePacked()
{
#ifdef Q_OS_WIN
    QSKIP("links are not made on Windows");
#endif
    FileTree::write(path("tree/folder/file"), "content");
    QVERIFY(QFile::link(QStringLiteral("folder/file"), path("tree/to file")));
    QVERIFY(QFile::link(QStringLiteral("folder"), path("tree/to folder")));
    QVERIFY(CompressFiles({path("tree/to file"), path("tree/to folder")}, path("links.zip")));
    QVERIFY(unpack(FileTree::read(path("links.zip"))));
    QCOMPARE(unpacked(), (Tree{{QStringLiteral("to file"), "-> folder/file"},
                               {QStringLiteral("to folder"), "-> folder"}}));
}

TOLVAN_CORE_TEST_MAIN(ArchivesTest)
#include "tst_archives.moc"
