#include "FolderTest.h"
#include "ZipWriter.h"

#include "archive/ArchiveExtraction.h"
#include "archive/ArchiveNames.h"
#include "archive/ArchiveWork.h"

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#endif

using namespace TOLVAN_NAMESPACE;

Q_DECLARE_METATYPE(ZipEntry)
Q_DECLARE_METATYPE(ArchiveProblem)

using Tree = QMap<QString, QByteArray>;

/// Damaged archives and archives whose entries lead out of the folder. Nothing outside the folder changes, and
/// the good entries are unpacked.
class HostileArchivesTest : public FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        FolderTest::init();
        FileTree::write(path("victim"), "untouched");
        FileTree::write(path("box/victim"), "untouched");
        QVERIFY(QDir().mkpath(path("box/out")));
        m_outside = outside();
    }

    void cleanup() { QCOMPARE(outside(), m_outside); } // after each archive
    void safeNames()
    {
        const struct {
            const char* name;
            const char* onUnix; // the parts, separated by bars
            const char* onWindows;
        } names[] = {{"./a//b/.", "a|b", "a|b"},
                     {"..a/b..", "..a|b..", ""},
                     {"a/../b", "", ""},
                     {"a\\..\\b", "", ""},
                     {"a\\b", "a\\b", "a|b"},
                     {"a:1.jpg", "a:1.jpg", ""},
                     {"\\server", "\\server", ""},
                     {"C:\\victim", "", ""},
                     {"nul", "nul", ""},
                     {"a/CON.txt", "a|CON.txt", ""},
                     {"com1.tar.gz", "com1.tar.gz", ""},
                     {"com10", "com10", "com10"},
                     {"NUL .txt", "NUL .txt", ""},
                     {"a.", "a.", ""},
                     {"a /b", "a |b", ""},
                     {"what?", "what?", ""},
                     {"line\nfeed", "line\nfeed", ""}};
        for (const auto& [name, onUnix, onWindows] : names) {
            QCOMPARE(safeParts(text(name), NameRules::Unix).join(QLatin1Char('|')), text(onUnix));
            QCOMPARE(safeParts(text(name), NameRules::Windows).join(QLatin1Char('|')), text(onWindows));
        }
        QVERIFY(safeParts(text("a") + QChar(0) + text("b"), NameRules::Unix).isEmpty());
    }

    void badEntryAmongGoodOnes_data()
    {
        QTest::addColumn<ZipEntry>("entry");
        QTest::addColumn<ArchiveProblem>("problem");
        const QByteArray content(5000, 'x');
        for (const char* name : {"../victim", "a/../../victim", "..", "a/..", "/victim", "//a/victim",
                                 "..\\victim", "C:\\victim", "c:/victim", "../new/folder/"}) {
            QTest::newRow(name) << ZipEntry{name, content} << ArchiveProblem::OutsideFolder;
        }
        QVector<QByteArray> refused = {{"..\0/victim", 10}, {"nul\0l", 5}, {}};
        if (nativeNameRules() == NameRules::Windows) {
            refused += {"CON", "nul.txt", "a/COM1", "ab:c", "what?", "dot.", "blank "};
        }
        for (const QByteArray& name : refused) {
            QTest::newRow(name) << ZipEntry{name, content} << ArchiveProblem::NameRefused;
        }
        QTest::newRow("name too long for the system")
            << ZipEntry{QByteArray(300, 'n'), content} << ArchiveProblem::WriteFailed;
        ArchiveProblem problem = ArchiveProblem::NameRefused;
        const auto row = [&](const char* title, auto change) {
            ZipEntry entry{"bad", content};
            change(entry);
            QTest::newRow(title) << entry << problem;
        };
        row("nested too deep", [](ZipEntry& entry) { entry.name = QByteArray("d/").repeated(32000) + "f"; });
        problem = ArchiveProblem::Damaged;
        row("wrong checksum", [](ZipEntry& entry) { entry.checksum = 1; });
        row("wrong checksum, stored", [](ZipEntry& entry) { entry.checksum = 1, entry.method = 0; });
        row("local header says another size", [](ZipEntry& entry) { entry.localSize = 4; });
        row("declared larger than it is", [](ZipEntry& entry) { entry.declaredSize = 6000; });
        row("declared smaller than it is", [](ZipEntry& entry) { entry.declaredSize = 4000; });
        row("negative size", [](ZipEntry& entry) {
            entry.declaredSize = 0xFFFFFFFF; // stands in the ZIP64 field
            entry.extra = QByteArray("\1\0\x08\0", 4) + QByteArray(8, '\xFF');
        });
        row("no content at all", [](ZipEntry& entry) { entry.packed = ""; });
        row("content cut off", [](ZipEntry& entry) { entry.packed = deflated(entry.content).chopped(4); });
        row("content is no deflated data", [](ZipEntry& entry) { entry.packed = "\xFF\xFF\xFF\xFF"; });
        row("stored content cut off", [](ZipEntry& entry) { entry.packed = "short", entry.method = 0; });
        problem = ArchiveProblem::UnsupportedMethod;
        row("Deflate64", [](ZipEntry& entry) { entry.method = 9; });
        row("unknown method", [](ZipEntry& entry) { entry.method = 99; });
        problem = ArchiveProblem::Encrypted;
        row("encrypted", [](ZipEntry& entry) { entry.flags = 1; });
        problem = ArchiveProblem::TooLarge;
        row("larger than any archive of this size", [](ZipEntry& entry) { entry.declaredSize = 0xFFFFFFFE; });
        problem = ArchiveProblem::InTheWay;
        row("a file where a folder is needed", [](ZipEntry& entry) { entry.name = "first/below"; });
        row("a folder where the file should be", [](ZipEntry& entry) { entry.name = "folder"; });
    }

    void badEntryAmongGoodOnes()
    {
        QFETCH(ZipEntry, entry);
        const QVector<ZipEntry> entries = {
            {"first", "first"}, {"folder/", "", 0, 040755}, entry, {"last", "last"}};
        const ArchiveTask task =
            ArchiveTask::unpack(FileTree::write(path("test.zip"), zipOf(entries)), path("box/out"));
        ArchiveWork work(task, {}, {});
        unpackArchive(work);
        const ArchiveReport report = work.finish();
        QCOMPARE(report.failures.size(), 1);
        QTEST(report.failures.constFirst().problem, "problem");
        QCOMPARE(report.done, qint64(3));
        Tree tree = inside();
        tree.remove(text("a/")); // made on the way to a bad name
        QCOMPARE(tree, (Tree{{text("first"), "first"}, {text("folder/"), "folder"}, {text("last"), "last"}}));
    }

    void linksLeadNowhere_data()
    {
        QTest::addColumn<QVector<ZipEntry>>("entries");
        const auto row = [](const char* title, QVector<ZipEntry> entries) {
            QTest::newRow(title) << entries;
        };
        const quint32 link = 0120777;
        row("link to a file outside", {{"l", "../victim", 0, link}, {"l", "overwritten"}});
        row("link to an absolute path", {{"l", "/tmp", 0, link}, {"l/escaped", "x"}});
        row("entry below a link just made", {{"l", "..", 0, link}, {"l/escaped", "x"}});
        row("folder below a link just made", {{"l", "..", 0, link}, {"l/escaped/", "", 0, 040755}});
        row("link through a link", {{"a", "b/../..", 0, link}, {"b", ".", 0, link}, {"a/escaped", "x"}});
        row("link whose folder is a link",
            {{"d/e/f", "x"}, {"l", "d/e", 0, link}, {"l/up", "../../..", 0, link}, {"l/up/escaped", "x"}});
        row("link one folder too high", {{"a/b/l", "../../../victim", 0, link}});
        row("link that goes down and up", {{"a/l", "b/..", 0, link}}); // "b" may become a link later
        row("link to itself", {{"l", "l", 0, link}, {"l/escaped", "x"}});
        row("very long target", {{"l", QByteArray(70000, 'x'), 8, link}});
        row("empty target", {{"l", "", 0, link}});
        row("damaged link", {{"l", "victim", 0, link, 0, {}, {}, {}, -1, -1, 1}});
    }

    void linksLeadNowhere()
    {
        QFETCH(QVector<ZipEntry>, entries);
        entries += ZipEntry{"last", "last"};
        QVERIFY(!unpack(zipOf(entries)));
        QCOMPARE(FileTree::read(path("box/out/last")), QByteArray("last"));
        QVERIFY(!QFile::exists(text("/tmp/escaped")));
    }

    void linkThatWasThereBefore()
    {
#ifdef Q_OS_WIN
        QSKIP("Wine makes no links to folders");
#endif
        QVERIFY(QFile::link(path("box"), path("box/out/folder")));
        QVERIFY(QFile::link(path("victim"), path("box/out/file")));
        QVERIFY(QFile::link(path("new"), path("box/out/dangling")));
        QVERIFY(!unpack(zipOf({{"folder/victim", "x"},
                               {"folder/new/", "", 0, 040755},
                               {"file", "x"},
                               {"dangling", "x"},
                               {"good", "good"}})));
        QCOMPARE(FileTree::read(path("box/out/good")), QByteArray("good"));
    }

    /// Another process puts a link in the place of a folder while its files are unpacked.
    void folderBecomesALink()
    {
#ifdef Q_OS_WIN
        QSKIP("Wine makes no links to folders");
#endif
        QVector<ZipEntry> entries;
        for (int i = 0; i < 20; ++i) {
            entries += ZipEntry{"folder/" + QByteArray::number(i), "content"};
        }
        const ArchiveTask task =
            ArchiveTask::unpack(FileTree::write(path("test.zip"), zipOf(entries)), path("box/out"));
        const auto swap = [this] {
            if (QFile::exists(path("box/out/folder/10")) &&
                QFile::rename(path("box/out/folder"), path("box/out/moved"))) {
                return !QFile::link(path("box"), path("box/out/folder"));
            }
            return false;
        };
        ArchiveWork work(task, swap, {});
        unpackArchive(work);
        QVERIFY(QFileInfo(path("box/out/folder")).isSymLink());
        QCOMPARE(FileTree::of(path("box/out/moved")).size(), 20);
    }

    /// A name is too long for any file, comments and extra fields may be as long as the format lets them.
    void overlongFields()
    {
        ZipEntry commented{"commented", "content"};
        commented.comment = QByteArray(65535, 'c');
        ZipEntry extended{"extended", "content"};
        extended.extra = QByteArray("\x34\x12\xFB\xFF", 4) + QByteArray(65531, 'e');
        ZipEntry broken{"broken extra", "content"};
        broken.extra = QByteArray("\x01\x00\xFF\xFF", 4) + QByteArray(100, 'e');
        QVERIFY(!unpack(zipOf({commented, extended, broken, {QByteArray(65535, 'n'), "x"}, {"last", "last"}},
                              QByteArray(65000, 'z'))));
        QCOMPARE(inside(), (Tree{{text("commented"), "content"},
                                 {text("extended"), "content"},
                                 {text("broken extra"), "content"},
                                 {text("last"), "last"}}));
    }

    /// Cut at every byte, so at every kind of record. Only the last fields of the last record may be missing:
    /// their upper bytes are zeros, and so are bytes behind the end for the library.
    void truncatedAnywhere()
    {
        const QByteArray zip = zipOf({{"a", QByteArray(300, 'a')}, {"b/c", "stored", 0}}, "comment");
        const int lastRecord = zip.lastIndexOf("PK\5\6");
        QVERIFY(unpack(zip));
        const Tree complete = inside();
        for (int length = 0; length < zip.size(); ++length) {
            QVERIFY(QDir(path("box/out")).removeRecursively());
            const bool result = unpack(zip.left(length));
            QVERIFY2(!result || length > lastRecord + 16, qPrintable(QString::number(length)));
            QVERIFY(!result || inside() == complete);
        }
    }

    void wrongCounts()
    {
        const QByteArray zip = zipOf({{"a", "a"}, {"b", "b"}});
        for (const char count : {'\x01', '\x03', '\x00'}) {
            QByteArray changed = zip;
            changed[zip.size() - 14] = count; // entries on this disk, entries
            changed[zip.size() - 12] = count;
            QVERIFY(!unpack(changed));
            QCOMPARE(inside().size(), 2);
        }
    }

    /// Ten gigabytes of zeros in ten megabytes. What the directory declares is written as far as the disk has
    /// room (here: the process's own limit); what does not fit is taken back. Memory stays that of the buffers.
    void bomb()
    {
#ifdef Q_OS_LINUX
        constexpr rlim_t room = 64 * 1024 * 1024;
        rlimit before = {};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        const rlimit limit = {room, before.rlim_max};
        rusage usage = {};
        FileTree::write(path("test.zip"), zipOf({zerosEntry("zeros", Q_INT64_C(10) << 30),
                                                 { "last",
                                                   "last" }}));
        QVERIFY(QFileInfo(path("test.zip")).size() < 12 << 20);
        getrusage(RUSAGE_SELF, &usage);
        const long peak = usage.ru_maxrss;
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
        const bool complete =
            DecompressFiles(path("test.zip").toStdWString(), path("box/out").toStdWString());
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
        QVERIFY(!complete);
        QCOMPARE(inside(), (Tree{{ text("last"), "last" }}));
        getrusage(RUSAGE_SELF, &usage);
        QVERIFY2(usage.ru_maxrss - peak < 16 * 1024, qPrintable(QString::number(usage.ru_maxrss - peak)));
#else
        QSKIP("the size of a file can't be limited here");
#endif
    }

    /// The second entry is the rest of the first one: forty kilobytes made this way filled gigabytes.
    void overlappingEntries()
    {
        const QByteArray kernel = zipOf({{"inner", QByteArray(100000, 'x')}});
        ZipEntry outer{"outer", kernel, 0};
        QByteArray zip = zipOf({outer, {"inner", QByteArray(100000, 'x')}});
        const int offset = zip.lastIndexOf("PK\1\2") + 42;
        zip[offset] = char(35); // the local header inside of the first entry
        zip[offset + 1] = zip[offset + 2] = 0;
        QVERIFY(!unpack(zip));
        QCOMPARE(inside(), (Tree{{text("outer"), kernel}}));
    }

private:
    bool unpack(const QByteArray& zip) const
    {
        const QString archive = FileTree::write(path("test.zip"), zip);
        return DecompressFiles(archive.toStdWString(), path("box/out").toStdWString());
    }

    Tree inside() const
    {
        return FileTree::of(path("box/out"));
    }

    /// What lies outside the folder that is unpacked into.
    Tree outside() const
    {
        Tree tree = FileTree::of(folder());
        for (const QString& name : tree.keys()) {
            if (name.startsWith(QLatin1String("box/out/")) || name == QLatin1String("test.zip")) {
                tree.remove(name);
            }
        }
        return tree;
    }

    Tree m_outside;
};

TOLVAN_CORE_TEST_MAIN(HostileArchivesTest)
#include "tst_archives_hostile.moc"
