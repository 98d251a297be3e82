#include "FileTree.h"
#include "Sandbox.h"
#include "TestMain.h"

#include "archive/ArchiveExtraction.h"
#include "ArchiveCompression.h"

using namespace TOLVAN_NAMESPACE;

/// What the format's old fields have no room for. Takes minutes and several gigabytes of disk.
class SlowArchivesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void seventyThousandEntries();
    void entryOfMoreThanFourGigabytes();

private:
    QString path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    QByteArray python(const char* code, const QString& archive) const
    {
        const Outcome outcome =
            runProgram(QStringLiteral("python3"), {QStringLiteral("-c"), QString::fromUtf8(code), archive});
        return outcome.code == 0 ? outcome.output.trimmed() : "failed: " + outcome.output;
    }

    QTemporaryDir m_folder{QStringLiteral("/var/tmp/tst_archives_slow-XXXXXX")};
};

void SlowArchivesTest::seventyThousandEntries()
{
    constexpr int count = 70000;
    QStringList files;
    for (int i = 0; i < count; ++i) {
        files += FileTree::write(path("many/") + QString::number(i), QByteArray::number(i));
    }
    QVERIFY(CompressFiles(files, path("many.zip")));
    QCOMPARE(
        python("import sys, zipfile; z = zipfile.ZipFile(sys.argv[1]); print(len(z.namelist()), z.testzip(), "
               "z.read('69999').decode())",
               path("many.zip")),
        QByteArray("70000 None 69999"));
    const Outcome tested = runProgram(QStringLiteral("unzip"), {QStringLiteral("-tq"), path("many.zip")});
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

void SlowArchivesTest::entryOfMoreThanFourGigabytes()
{
    constexpr qint64 size = (Q_INT64_C(4) << 30) + 12345;
    const auto hasEnd = [](const QString& name) {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) && file.seek(size - 3) && file.readAll() == "end";
    };
    QFile sparse(path("large"));
    QVERIFY(sparse.open(QIODevice::WriteOnly) && sparse.seek(size - 3) && sparse.write("end") == 3);
    sparse.close();
    QVERIFY(CompressFiles({path("large"), FileTree::write(path("behind"), "behind it")}, path("large.zip")));
    QCOMPARE(python("import sys, zipfile; z = zipfile.ZipFile(sys.argv[1]); "
                    "print(z.getinfo('large').file_size, z.testzip())",
                    path("large.zip")),
             QByteArray::number(size) + " None");
    DecompressFiles(path("large.zip"), path("out"));
    QCOMPARE(QFileInfo(path("out/large")).size(), size);
    QVERIFY(hasEnd(path("out/large")));
    QCOMPARE(FileTree::read(path("out/behind")), QByteArray("behind it"));
    QVERIFY(QDir(path("out")).removeRecursively());

    const Outcome zip = runProgram(
        QStringLiteral("zip"), {QStringLiteral("-q1"), path("theirs.zip"), path("large")}, m_folder.path());
    QVERIFY2(zip.code == 0, zip.output);
    QVERIFY(DecompressFiles(path("theirs.zip").toStdWString(), path("out").toStdWString()));
    QVERIFY(hasEnd(path("out") + path("large")));
}

TOLVAN_CORE_TEST_MAIN(SlowArchivesTest)
#include "tst_archives_slow.moc"
