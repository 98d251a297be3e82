#include "FileTree.h"
#include "Sandbox.h"
#include "TestMain.h"
#include "ZipWriter.h"

#include "ArchiveCompression.h"
#include "ArchiveExtraction.h"
#include "ArchiveNames.h"

#include <quazip/JlCompress.h>
#include <quazip/quacrc32.h>

using namespace TOLVAN_NAMESPACE;

using Tree = QMap<QString, QByteArray>;

/// Packing and unpacking well-formed archives, also those of other programs.
class ArchivesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void packedByUs_data();
    void packedByUs();
    void packedByOthers_data();
    void packedByOthers();
    void sameResultAsTheLibrary();
    void namesWithoutMark_data();
    void namesWithoutMark();
    void sameNameTwice();
    void failedPackingLeavesNoArchive_data();
    void failedPackingLeavesNoArchive();
    void missingFoldersAreMade();
    void emptyArchive();
    void existingFilesAreReplacedWhole();
    void permissions();
    void linksInside();
    void progressAndCancelling();

private:
    QString path(const char* name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    QString fill() const;
    Tree unpack(const QByteArray& zip, bool* complete = nullptr) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void ArchivesTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

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

Tree ArchivesTest::unpack(const QByteArray& zip, bool* complete) const
{
    FileTree::write(path("test.zip"), zip);
    const bool result = DecompressFiles(path("test.zip").toStdWString(), path("out").toStdWString());
    if (complete) {
        *complete = result;
    }
    return FileTree::of(path("out"));
}

void ArchivesTest::packedByUs_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    const auto row = [](const char* program, const char* arguments) {
        QTest::newRow(program) << QString::fromLatin1(program)
                               << QString::fromLatin1(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    };
    row("ours", "");
#ifndef Q_OS_WIN
    row("unzip", "-q ../ours.zip");
    row("7z", "x -bd ../ours.zip");
    row("bsdtar", "-xf ../ours.zip");
    row("python3", "-m zipfile -e ../ours.zip .");
#endif
}

void ArchivesTest::packedByUs()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    const QDir tree(fill());
    QStringList files;
    for (const QFileInfo& file : tree.entryInfoList(QDir::Files)) {
        files += file.filePath();
    }
    QVERIFY(CompressFiles(files, path("ours.zip")));
    QVERIFY(QDir().mkpath(path("out")));
    if (program == QLatin1String("ours")) {
        DecompressFiles(path("ours.zip"), path("out"));
    } else {
        const Outcome outcome = runProgram(program, arguments, path("out"));
        QVERIFY2(outcome.code == 0, outcome.output);
    }
    QCOMPARE(FileTree::of(path("out")), FileTree::of(tree.path()));
    for (const char* name : {"text.txt", "noise"}) { // one packed in memory, one in blocks
        const QFileInfo original(tree.filePath(QLatin1String(name)));
        QCOMPARE(QFileInfo(QDir(path("out")).filePath(QLatin1String(name))).permissions(),
                 original.permissions());
    }
}

void ArchivesTest::packedByOthers_data()
{
    QTest::addColumn<QString>("command");
#ifndef Q_OS_WIN
    QTest::newRow("zip") << QStringLiteral("zip -qr ../theirs.zip .");
    QTest::newRow("zip, stored") << QStringLiteral("zip -qr0 ../theirs.zip .");
    QTest::newRow("zip, ZIP64 forced") << QStringLiteral("zip -qr -fz ../theirs.zip .");
    QTest::newRow("zip, through a pipe") << QStringLiteral("zip -qr - . >../theirs.zip");
    QTest::newRow("zip, unknown language") << QStringLiteral("LC_ALL=C zip -qr ../theirs.zip .");
    QTest::newRow("zip, with comments")
        << QStringLiteral("zip -qr ../theirs.zip . && echo note | zip -qz ../theirs.zip");
    QTest::newRow("zip, behind a program")
        << QStringLiteral("zip -qr ../a.zip . && (echo program; cat ../a.zip) >../theirs.zip");
    QTest::newRow("7z") << QStringLiteral("7z a -bd -tzip ../theirs.zip . >/dev/null");
    QTest::newRow("bsdtar") << QStringLiteral("bsdtar -a -cf ../theirs.zip *");
    QTest::newRow("python3") << QStringLiteral("python3 -m zipfile -c ../theirs.zip *");
#else
    QTest::newRow("none under Wine") << QString();
#endif
}

void ArchivesTest::packedByOthers()
{
    QFETCH(QString, command);
    if (command.isEmpty()) {
        QSKIP("the programs that pack archives are not there");
    }
    fill();
    FileTree::write(path("tree/folder/below/file"), "below");
    QVERIFY(QDir().mkpath(path("tree/empty folder")));
    const Outcome outcome = runProgram(QStringLiteral("sh"), {QStringLiteral("-c"), command}, path("tree"));
    QVERIFY2(outcome.code == 0, outcome.output);
    DecompressFiles(path("theirs.zip"), path("out"));
    QCOMPARE(FileTree::of(path("out")), FileTree::of(path("tree")));
    QVERIFY(DecompressFiles(path("theirs.zip").toStdWString(), path("again").toStdWString()));
    QCOMPARE(FileTree::of(path("again")), FileTree::of(path("tree")));
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
    DecompressFiles(path("test.zip"), path("ours"));
    const Tree tree = FileTree::of(path("theirs"));
    QCOMPARE(tree.value(QStringLiteral("twice")), QByteArray("second"));
    QCOMPARE(FileTree::of(path("ours")), tree);
    for (const QString& name : tree.keys()) {
        QCOMPARE(QFileInfo(path("ours/") + name).permissions(),
                 QFileInfo(path("theirs/") + name).permissions());
    }
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
    const QByteArray umlaut = "\xC3\xA4"; // UTF-8
    QTest::newRow("ASCII") << QByteArray("a.txt") << QByteArray() << QStringLiteral("a.txt");
    QTest::newRow("UTF-8") << umlaut << QByteArray() << QStringLiteral("\u00E4");
    QTest::newRow("code page 437") << QByteArray("\x84.txt") << QByteArray() << QStringLiteral("\u00E4.txt");
    QTest::newRow("its last character") << QByteArray("a\xFF"
                                                      "b")
                                        << QByteArray() << QStringLiteral("a\u00A0b");
    QTest::newRow("its first character") << QByteArray("\x80") << QByteArray() << QStringLiteral("\u00C7");
    QTest::newRow("broken UTF-8") << QByteArray("\xC3") << QByteArray() << QStringLiteral("\u251C");
    QTest::newRow("overlong UTF-8") << QByteArray("\xC0\xAF") << QByteArray()
                                    << QStringLiteral("\u2514\u00BB");
    QTest::newRow("attached name") << QByteArray("x") << field("x", umlaut) << QStringLiteral("\u00E4");
    QTest::newRow("attached to another name") << QByteArray("x") << field("y", umlaut) << QStringLiteral("x");
    QTest::newRow("attached in another version")
        << QByteArray("x") << field("x", umlaut, 2) << QStringLiteral("x");
    QTest::newRow("attached field cut off")
        << QByteArray("x") << QByteArray("\x75\x70\x03\x00\x01\x02\x03", 7) << QStringLiteral("x");
}

void ArchivesTest::namesWithoutMark()
{
    QFETCH(QByteArray, raw);
    QFETCH(QByteArray, extra);
    QFETCH(QString, name);
    QCOMPARE(decodeUnmarkedName(raw, extra), name);
    ZipEntry entry{raw, "content"};
    entry.extra = extra;
    QCOMPARE(unpack(zipOf({entry})), (Tree{{name, "content"}}));
}

void ArchivesTest::sameNameTwice()
{
    const QStringList files = {FileTree::write(path("a/x"), "from a"),
                               FileTree::write(path("b/x"), "from b")};
    QVERIFY(CompressFiles(files, path("ours.zip")));
    QVERIFY(JlCompress::compressFiles(path("reference.zip"), files));
    QCOMPARE(JlCompress::getFileList(path("ours.zip")), JlCompress::getFileList(path("reference.zip")));
    DecompressFiles(path("ours.zip"), path("out"));
    QCOMPARE(FileTree::of(path("out")), (Tree{{QStringLiteral("x"), "from b"}}));
}

void ArchivesTest::failedPackingLeavesNoArchive_data()
{
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("archive");
    QTest::newRow("missing file") << QStringLiteral("missing") << QStringLiteral("new.zip");
    QTest::newRow("a folder") << QStringLiteral("folder") << QStringLiteral("new.zip");
    QTest::newRow("empty name") << QString() << QStringLiteral("new.zip");
    QTest::newRow("missing file, archive exists") << QStringLiteral("missing") << QStringLiteral("old.zip");
    QTest::newRow("archive is a folder") << QStringLiteral("good") << QStringLiteral("folder");
    QTest::newRow("archive below a file") << QStringLiteral("good") << QStringLiteral("good/new.zip");
}

void ArchivesTest::failedPackingLeavesNoArchive()
{
    QFETCH(QString, second);
    QFETCH(QString, archive);
    FileTree::write(path("good"), "good");
    FileTree::write(path("old.zip"), "old");
    QVERIFY(QDir().mkpath(path("folder")));
    const auto before = FileTree::of(m_folder->path());
    const QString other = second.isEmpty() ? QString() : m_folder->filePath(second);
    QVERIFY(!CompressFiles({path("good"), other}, m_folder->filePath(archive)));
    QCOMPARE(FileTree::of(m_folder->path()), before);
}

void ArchivesTest::missingFoldersAreMade()
{
    QVERIFY(CompressFiles({FileTree::write(path("good"), "good")}, path("new/folders/a.zip")));
    DecompressFiles(path("new/folders/a.zip"), path("more/new/folders"));
    QCOMPARE(FileTree::read(path("more/new/folders/good")), QByteArray("good"));
    DecompressFiles(path("no archive"), path("made all the same"));
    QVERIFY(QFileInfo(path("made all the same")).isDir());
}

void ArchivesTest::emptyArchive()
{
    QVERIFY(CompressFiles({}, path("empty.zip")));
    QVERIFY(!DecompressFiles(path("empty.zip").toStdWString(), path("out").toStdWString()));
    QVERIFY(!DecompressFiles(path("no archive").toStdWString(), path("out").toStdWString()));
    bool complete = true;
    QVERIFY(unpack(zipOf({}), &complete).isEmpty());
    QVERIFY(!complete);
}

void ArchivesTest::existingFilesAreReplacedWhole()
{
    FileTree::write(path("out/long"), "an old file with more in it");
    FileTree::write(path("out/damaged"), "kept");
    FileTree::write(path("out/other"), "not in the archive");
    bool complete = true;
    ZipEntry damaged{"damaged", "new content"};
    damaged.checksum = 12345;
    const Tree tree = unpack(zipOf({{"long", "new"}, damaged, {"last", "last"}}), &complete);
    QVERIFY(!complete);
    QCOMPARE(tree, (Tree{{QStringLiteral("long"), "new"},
                         {QStringLiteral("damaged"), "kept"},
                         {QStringLiteral("other"), "not in the archive"},
                         {QStringLiteral("last"), "last"}}));
}

void ArchivesTest::permissions()
{
    bool complete = false;
    unpack(zipOf({{"locked/", "", 0, 040000 | 0555}, {"locked/a", "a", 8, 0100000 | 0222}}), &complete);
    QVERIFY(complete);
    QVERIFY(QFileInfo(path("out/locked/a")).permission(QFile::ReadOwner));
    QVERIFY(QFileInfo(path("out/locked")).permission(QFile::WriteOwner));
#ifndef Q_OS_WIN
    QVERIFY(!QFileInfo(path("out/locked/a")).permission(QFile::ReadGroup));
    QVERIFY(!QFileInfo(path("out/locked")).permission(QFile::WriteGroup));
#endif
}

void ArchivesTest::linksInside()
{
#ifdef Q_OS_WIN
    QSKIP("links are not made on Windows; see the hostile archives");
#endif
    QVERIFY(QDir().mkpath(path("out")));
    const QByteArray zip = zipOf({{"a/file", "content"},
                                  {"link", "a/file", 0, 0120777},
                                  {"b/up", "../a", 8, 0120777},
                                  {"b/up/through", "inside"}});
    bool complete = false;
    const Tree expected = {{QStringLiteral("a/"), "folder"},      {QStringLiteral("a/file"), "content"},
                           {QStringLiteral("link"), "-> a/file"}, {QStringLiteral("b/"), "folder"},
                           {QStringLiteral("b/up"), "-> ../a"},   {QStringLiteral("a/through"), "inside"}};
    QCOMPARE(unpack(zip, &complete), expected);
    QVERIFY(complete);
    QCOMPARE(unpack(zip, &complete), expected); // once more over what is there
    QVERIFY(complete);
}

void ArchivesTest::progressAndCancelling()
{
    fill();
    FileTree::write(path("test.zip"), zipOf({{"a", QByteArray(10000, 'a')}, {"b", QByteArray(10000, 'b')}}));
    QVector<qint64> reports;
    QVERIFY(extractEntries(path("test.zip"), path("out"), [&](qint64 bytes) {
        reports += bytes;
        return true;
    }));
    QCOMPARE(reports, QVector<qint64>({10000, 20000}));
    QVERIFY(!extractEntries(path("test.zip"), path("half"), [](qint64 bytes) { return bytes <= 10000; }));
    QCOMPARE(QStringList(FileTree::of(path("half")).keys()), QStringList({QStringLiteral("a")}));
}

TOLVAN_CORE_TEST_MAIN(ArchivesTest)
#include "tst_archives.moc"
