#include "FileTree.h"
#include "Sandbox.h"
#include "TestMain.h"
#include "Texts.h"

#include "archive/ArchiveExtraction.h"
#include "ArchiveCompression.h"

using namespace TOLVAN_NAMESPACE;

/// What the format's old fields have no room for. Takes minutes and several gigabytes of disk.
class SlowArchivesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void seventyThousandEntries()
    {
        constexpr int count = 70000;
        QStringList files;
        for (int i = 0; i < count; ++i) {
            files += FileTree::write(path("many/") + QString::number(i), QByteArray::number(i));
        }
        QVERIFY(CompressFiles(files, path("many.zip")));
        QCOMPARE(python("import sys, zipfile; z = zipfile.ZipFile(sys.argv[1]); print(len(z.namelist()), "
                        "z.testzip(), "
                        "z.read('69999').decode())",
                        path("many.zip")),
                 QByteArray("70000 None 69999"));
        const Outcome tested = runProgram(text("unzip"), {text("-tq"), path("many.zip")});
        QVERIFY2(tested.code == 0, tested.output);
        QVERIFY(DecompressFiles(path("many.zip").toStdWString(), path("ours").toStdWString()));
        QCOMPARE(FileTree::of(path("ours")), FileTree::of(path("many")));

        QCOMPARE(python("import sys, zipfile\nwith zipfile.ZipFile(sys.argv[1], 'w') as z:\n"
                        "  for i in range(70000): z.writestr(str(i), str(i))",
                        path("theirs.zip")),
                 QByteArray());
        QVERIFY(DecompressFiles(path("theirs.zip").toStdWString(), path("theirs").toStdWString()));
        QCOMPARE(FileTree::of(path("theirs")), FileTree::of(path("many")));
    }

    void entryOfMoreThanFourGigabytes()
    {
        constexpr qint64 size = (Q_INT64_C(4) << 30) + 12345;
        const auto hasEnd = [](const QString& name) {
            QFile file(name);
            return file.open(QIODevice::ReadOnly) && file.seek(size - 3) && file.readAll() == "end";
        };
        QFile sparse(path("large"));
        QVERIFY(sparse.open(QIODevice::WriteOnly) && sparse.seek(size - 3) && sparse.write("end") == 3);
        sparse.close();
        QVERIFY(
            CompressFiles({path("large"), FileTree::write(path("behind"), "behind it")}, path("large.zip")));
        QCOMPARE(python("import sys, zipfile; z = zipfile.ZipFile(sys.argv[1]); "
                        "print(z.getinfo('large').file_size, z.testzip())",
                        path("large.zip")),
                 QByteArray::number(size) + " None");
        DecompressFiles(path("large.zip"), path("out"));
        QCOMPARE(QFileInfo(path("out/large")).size(), size);
        QVERIFY(hasEnd(path("out/large")));
        QCOMPARE(FileTree::read(path("out/behind")), QByteArray("behind it"));
        QVERIFY(QDir(path("out")).removeRecursively());

        const Outcome zip =
            runProgram(text("zip"), {text("-q1"), path("theirs.zip"), path("large")}, m_folder.path());
        QVERIFY2(zip.code == 0, zip.output);
        QVERIFY(DecompressFiles(path("theirs.zip").toStdWString(), path("out").toStdWString()));
        QVERIFY(hasEnd(path("out") + path("large")));
    }

    /// Above 4 GiB it stores sizes and offsets modulo 2^32, without ZIP64. The content is deflated in stored blocks.
    void archiveOfMacOs()
    {
        const char* const code = R"(if True:
    import struct, sys, zlib
    blocks, block = 65600, 65535
    crc = 0
    for i in range(blocks): crc = zlib.crc32(bytes(block), crc)
    f = open(sys.argv[1], "wb")
    def record(start, name, flags, method, crc, packed, size, *rest):
        head = struct.pack("<HHHHHIIIHH", 20, flags, method, 0, 0x58a1, crc, packed % 2**32, size % 2**32, len(name), 0)
        f.write(start + head + struct.pack("<HHHII", *rest) + name if rest else start + head + name)
    record(b"PK\3\4", b"large", 8, 8, 0, 0, 0)
    for i in range(blocks):
        f.write(struct.pack("<BHH", i == blocks - 1, block, block ^ 0xffff)); f.seek(block, 1)
    packed, size = blocks * (block + 5), blocks * block
    f.write(b"PK\7\b" + struct.pack("<III", crc, packed % 2**32, size % 2**32))
    second = f.tell()
    record(b"PK\3\4", b"behind", 0, 0, zlib.crc32(b"behind it"), 9, 9); f.write(b"behind it")
    directory = f.tell()
    record(b"PK\1\2\x15\3", b"large", 8, 8, crc, packed, size, 0, 0, 0, 0o100644 << 16, 0)
    record(b"PK\1\2\x15\3", b"behind", 0, 0, zlib.crc32(b"behind it"), 9, 9, 0, 0, 0, 0o100644 << 16, second % 2**32)
    f.write(b"PK\5\6" + struct.pack("<HHHHIIH", 0, 0, 2, 2, f.tell() - directory, directory % 2**32, 0))
    )";
        QCOMPARE(python(code, path("mac.zip")), QByteArray());
        QVERIFY(DecompressFiles(path("mac.zip").toStdWString(), path("mac").toStdWString()));
        QCOMPARE(QFileInfo(path("mac/large")).size(), Q_INT64_C(65600) * 65535);
        QCOMPARE(FileTree::read(path("mac/behind")), QByteArray("behind it"));
    }

private:
    QString path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    QByteArray python(const char* code, const QString& archive) const
    {
        const Outcome outcome = runProgram(text("python3"), {text("-c"), QString::fromUtf8(code), archive});
        return outcome.code == 0 ? outcome.output.trimmed() : "failed: " + outcome.output;
    }

    QTemporaryDir m_folder{text("/var/tmp/tst_archives_slow-XXXXXX")};
};

TOLVAN_CORE_TEST_MAIN(SlowArchivesTest)
#include "tst_archives_slow.moc"
