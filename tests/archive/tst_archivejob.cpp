#include "FileTree.h"
#include "FolderTest.h"
#include "InstalledLogger.h"
#include "Sandbox.h"
#include "TestMain.h"
#include "ZipWriter.h"

#include <utilsDll/ArchiveJob.h>

#include <QSignalSpy>
#include <QThreadPool>

#ifdef Q_OS_LINUX
#include <pthread.h>
#endif

using namespace TOLVAN_NAMESPACE;

Q_DECLARE_METATYPE(ArchiveTask)
Q_DECLARE_METATYPE(ArchiveProblem)

/// The example of the header.
class CBackup : public QObject
{
    Q_OBJECT

public:
    void start(const ArchiveTask& task)
    {
        m_job = new CArchiveJob(task, this);
        connect(m_job, SIGNAL(progressed(qint64, qint64, QString)), this,
                SLOT(onProgressed(qint64, qint64, QString)));
        connect(m_job, SIGNAL(finished(bool, bool)), this, SLOT(onFinished()));
        m_pool.start(m_job);
    }
    QString shown;
    qint64 handled = 0;
    qint64 all = -1;

private Q_SLOTS:
    void onProgressed(qint64 bytes, qint64 total, const QString&)
    {
        handled = bytes;
        all = total;
    }
    void onFinished()
    {
        const ArchiveReport report = m_job->report();
        shown = report.summary();
        for (const ArchiveFailure& failure : report.failures) {
            shown += failure.name + archiveProblemText(failure.problem);
        }
        m_job->deleteLater();
    }

private:
    CArchiveJob* m_job = nullptr;
    QThreadPool m_pool;
};

class ArchiveJobTest : public FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void exampleOfTheHeader();
    void packedNames_data();
    void packedNames();
    void whatCannotBePacked_data();
    void whatCannotBePacked();
    void dryRun();
    void sizeLimit();
    void stop();
    void withoutMoreThreads();
    void oneLogLine();

private:
    ArchiveReport run(const ArchiveTask& task) const
    {
        CArchiveJob job(task);
        job.run();
        return job.report();
    }
    ArchiveTask unpacking(const QByteArray& zip) const
    {
        return ArchiveTask::unpack(FileTree::write(path("test.zip"), zip), path("out"));
    }
};

void ArchiveJobTest::exampleOfTheHeader()
{
    FileTree::write(path("photos/2020/a.jpg"), QByteArray(100000, 'a'));
    FileTree::write(path("photos/notes.txt"), "notes");
    CBackup backup;
    backup.start(ArchiveTask::pack({path("photos")}, path("photos.zip")));
    QTRY_COMPARE(backup.shown, QStringLiteral("Packed 4 of 4 entries (97.7KB)."));
    QCOMPARE(backup.handled, qint64(100005));
    QCOMPARE(backup.all, qint64(100005));
    backup.start(ArchiveTask::unpack(path("photos.zip"), path("out")));
    QTRY_COMPARE(backup.shown, QStringLiteral("Unpacked 4 of 4 entries (97.7KB)."));
    QCOMPARE(FileTree::of(path("out/photos")), FileTree::of(path("photos")));
    backup.start(unpacking(zipOf({{"good", "good"}, {"../bad", "bad"}})));
    QTRY_COMPARE(backup.shown, QStringLiteral("Unpacked 1 of 2 entries (4B). ../bad: leads out of the folder."
                                              "../badleads out of the folder"));
}

void ArchiveJobTest::packedNames_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("names");
    QTest::newRow("folder") << "tree" << QString() << "tree/ tree/a tree/empty/ tree/sub/ tree/sub/b";
    QTest::newRow("folder with a slash") << "tree/sub/" << QString() << "sub/ sub/b";
    QTest::newRow("the base itself") << "tree"
                                     << "tree"
                                     << "a empty/ sub/ sub/b";
    QTest::newRow("below a base") << "tree/sub"
                                  << "tree"
                                  << "sub/ sub/b";
    QTest::newRow("file below a base") << "tree/sub/b"
                                       << "tree"
                                       << "sub/b";
    QTest::newRow("outside of the base") << "tree/a"
                                         << "tree/sub" << QString();
}

void ArchiveJobTest::packedNames()
{
    QFETCH(QString, base);
    QFETCH(QString, file);
    FileTree::write(path("tree/sub/b"));
    FileTree::write(path("tree/a"));
    QVERIFY(QDir().mkpath(path("tree/empty")));
    ArchiveTask task = ArchiveTask::pack({path(file)}, path("tree/self.zip"));
    task.baseFolder = base.isEmpty() ? base : path(base);
    for (int i = 0; i < 2; ++i) { // the second time the archive lies in the folder
        run(task);
    }
    task.packing = false;
    task.dryRun = true;
    QStringList names;
    for (const ArchiveEntry& entry : run(task).listing) {
        names += entry.name;
    }
    QTEST(names.join(QLatin1Char(' ')), "names");
}

void ArchiveJobTest::whatCannotBePacked_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<ArchiveProblem>("problem");
    QTest::newRow("missing") << "missing" << ArchiveProblem::NotFound;
#ifdef Q_OS_LINUX
    QTest::newRow("pipe") << "pipe" << ArchiveProblem::NotAFile;
    QTest::newRow("locked file") << "locked" << ArchiveProblem::AccessDenied;
    // Its size is never that of its content.
    QTest::newRow("grows") << "/proc/self/status" << ArchiveProblem::Changed;
#endif
}

void ArchiveJobTest::whatCannotBePacked()
{
    QFETCH(QString, file);
    QFETCH(ArchiveProblem, problem);
#ifdef Q_OS_LINUX
    QCOMPARE(runProgram(QStringLiteral("mkfifo"), {path("pipe")}).code, 0);
    QVERIFY(QFile::setPermissions(FileTree::write(path("locked")), QFile::Permissions()));
    QVERIFY(QFile::setPermissions(folder(), QFile::Permissions(0x7777)));
    const OrdinaryUser user;
#endif
    FileTree::write(path("a.zip"), "old");
    const QString bad = QDir(folder()).filePath(file);
    ArchiveTask task = ArchiveTask::pack({FileTree::write(path("good"), "good"), bad}, path("a.zip"));
    for (const bool skip : {false, true}) {
        task.skipFailedFiles = skip;
        const ArchiveReport report = run(task);
        QCOMPARE(report.failures.size(), 1);
        QCOMPARE(report.failures.constFirst().name, bad);
        QCOMPARE(report.failures.constFirst().problem, problem);
        QCOMPARE(report.done, qint64(skip ? 1 : 0));
        QCOMPARE(FileTree::read(path("a.zip")) == "old", !skip);
    }
    QVERIFY(run(ArchiveTask::unpack(path("a.zip"), path("out"))).isComplete());
    QCOMPARE(FileTree::of(path("out")), (QMap<QString, QByteArray>{{QStringLiteral("good"), "good"}}));
}

/// Everything is checked, nothing is written.
void ArchiveJobTest::dryRun()
{
    ZipEntry damaged{"damaged", "content"};
    damaged.checksum = 1;
    ArchiveTask task = unpacking(zipOf({{"folder/", "", 0, 040755}, {"good", "good"}, damaged}));
    task.dryRun = true;
    const ArchiveReport report = run(task);
    QVERIFY(!QFile::exists(path("out")));
    QCOMPARE(report.done, qint64(2));
    QCOMPARE(report.failures.size(), 1);
    QCOMPARE(report.listing.size(), 3);
    QCOMPARE(report.listing.at(1).size, qint64(4));
    task = ArchiveTask::pack({path("test.zip")}, path("new.zip"));
    task.dryRun = true;
    QCOMPARE(run(task).listing.size(), 1);
    QVERIFY(!QFile::exists(path("new.zip")));
}

void ArchiveJobTest::sizeLimit()
{
    ArchiveTask task = unpacking(zipOf({{"a", "1234"}, {"b", "12345"}, {"c", "1234"}}));
    task.sizeLimit = 8;
    const ArchiveReport report = run(task);
    QCOMPARE(report.failures.size(), 1);
    QCOMPARE(report.failures.constFirst().problem, ArchiveProblem::TooLarge);
    QCOMPARE(FileTree::of(path("out")).keys().join(QLatin1Char(' ')), QStringLiteral("a c"));
}

void ArchiveJobTest::stop()
{
    const ArchiveTask task =
        unpacking(zipOf({{"first", "first"}, zerosEntry("zeros", Q_INT64_C(2) << 30), {"last", "last"}}));
    CArchiveJob job(task);
    connect(&job, SIGNAL(progressed(qint64, qint64, QString)), &job, SLOT(stop()), Qt::DirectConnection);
    QSignalSpy finished(&job, SIGNAL(finished(bool, bool)));
    job.run();
    QCOMPARE(finished, QList<QVariantList>({{false, true}}));
    const ArchiveReport report = job.report();
    QVERIFY(report.stopped);
    QCOMPARE(report.failures.size(), 2);
    QCOMPARE(report.failures.constLast().problem, ArchiveProblem::Stopped);
    QCOMPARE(QStringList(FileTree::of(path("out")).keys()), QStringList(QStringLiteral("first")));
}

/// A stack of 64 terabytes is refused, as is every thread on a system that has no more.
void ArchiveJobTest::withoutMoreThreads()
{
#ifdef Q_OS_LINUX
    const QByteArray content(1 << 20, 'a');
    pthread_attr_t attributes;
    std::size_t before = 0;
    QCOMPARE(pthread_getattr_default_np(&attributes), 0);
    QCOMPARE(pthread_attr_getstacksize(&attributes, &before), 0);
    QCOMPARE(pthread_attr_setstacksize(&attributes, std::size_t(1) << 46), 0);
    QCOMPARE(pthread_setattr_default_np(&attributes), 0);
    const ArchiveReport packed =
        run(ArchiveTask::pack({FileTree::write(path("file"), content)}, path("a.zip")));
    const ArchiveReport unpacked = run(ArchiveTask::unpack(path("a.zip"), path("out")));
    QCOMPARE(pthread_attr_setstacksize(&attributes, before), 0);
    QCOMPARE(pthread_setattr_default_np(&attributes), 0);
    QVERIFY(packed.isComplete() && unpacked.isComplete());
    QCOMPARE(FileTree::read(path("out/file")), content);
#else
    QSKIP("the system does not refuse threads here");
#endif
}

void ArchiveJobTest::oneLogLine()
{
    auto& logger = installedLogger();
    logger.take();
    run(unpacking(zipOf({{"../a", "a"}, {"b", "b"}, {"../c", "c"}})));
    QCOMPARE(logger.take(),
             QStringList(QStringLiteral("W TOLVAN_NAMESPACE::CArchiveJob::doRun: %1 was not unpacked "
                                        "completely: 2 failures, the first: ../a (leads out of the folder)")
                             .arg(path("test.zip"))));
}

TOLVAN_CORE_TEST_MAIN(ArchiveJobTest)
#include "tst_archivejob.moc"
