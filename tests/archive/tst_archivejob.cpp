#include "FolderTest.h"
#include "InstalledLogger.h"
#include "Sandbox.h"
#include "ZipWriter.h"

#include <utilsDll/ArchiveJob.h>

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QThreadPool>

#ifdef Q_OS_LINUX
#include <pthread.h>
#endif

using namespace TOLVAN_NAMESPACE;

class ArchiveJobTest : public FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void runsOnAPool()
    {
        FileTree::write(path("photos/2020/a.jpg"), QByteArray(100000, 'a'));
        FileTree::write(path("photos/notes.txt"), "notes");
        const auto onPool = [](const ArchiveTask& task) {
            QThreadPool pool;
            CArchiveJob job(task);
            QSignalSpy progressed(&job, SIGNAL(progressed(qint64, qint64, QString)));
            pool.start(&job);
            pool.waitForDone();
            const QVariantList last = progressed.value(progressed.size() - 1);
            return text("%1 %2 of %3")
                .arg(job.report().summary(), last.value(0).toString(), last.value(1).toString());
        };
        QCOMPARE(onPool(ArchiveTask::pack({path("photos")}, path("photos.zip"))),
                 text("Packed 4 of 4 entries (97.7KB). 100005 of 100005"));
        QCOMPARE(onPool(ArchiveTask::unpack(path("photos.zip"), path("out"))),
                 text("Unpacked 4 of 4 entries (97.7KB). 100005 of 100005"));
        QCOMPARE(FileTree::of(path("out/photos")), FileTree::of(path("photos")));
        const ArchiveReport report = run(unpacking(zipOf({{"good", "good"}, {"../bad", "bad"}})));
        QCOMPARE(report.summary(), text("Unpacked 1 of 2 entries (4B). ../bad: leads out of the folder."));
    }

    void packedNames()
    {
        FileTree::write(path("tree/sub/b"));
        FileTree::write(path("tree/a"));
        QVERIFY(QDir().mkpath(path("tree/empty")));
        const struct {
            const char* file;
            const char* base;
            const char* names;
        } rows[] = {{"tree", "", "tree/ tree/a tree/empty/ tree/sub/ tree/sub/b"},
                    {"tree/sub/", "", "sub/ sub/b"},
                    {"tree", "tree", "a empty/ sub/ sub/b"},
                    {"tree/sub/b", "tree", "sub/b"},
                    {"tree/a", "tree/sub", ""}}; // outside of the base
        for (const auto& row : rows) {
            ArchiveTask task = ArchiveTask::pack({path(row.file)}, path("tree/self.zip"));
            task.baseFolder = *row.base ? path(row.base) : QString();
            for (int i = 0; i < 2; ++i) { // the second time the archive lies in the folder
                run(task);
            }
            task.packing = false;
            task.dryRun = true;
            QStringList names;
            for (const ArchiveEntry& entry : run(task).listing) {
                names += entry.name;
            }
            QCOMPARE(names.join(QLatin1Char(' ')), text(row.names));
            QVERIFY(QFile::remove(path("tree/self.zip")) || !*row.names);
        }
    }

    void whatCannotBePacked()
    {
        QMap<QString, ArchiveProblem> bad{{path("missing"), ArchiveProblem::NotFound}};
#ifdef Q_OS_LINUX
        bad[path("pipe")] = ArchiveProblem::NotAFile;
        bad[path("locked")] = ArchiveProblem::AccessDenied;
        bad[text("/proc/self/status")] = ArchiveProblem::Changed; // its size is never that of its content
        QCOMPARE(runProgram(text("mkfifo"), {path("pipe")}).code, 0);
        QVERIFY(QFile::setPermissions(FileTree::write(path("locked")), QFile::Permissions()));
        permit(folder(), 0x7777);
#endif
        const OrdinaryUser user;
        for (const QString& file : bad.keys()) {
            FileTree::write(path("a.zip"), "old");
            ArchiveTask task =
                ArchiveTask::pack({FileTree::write(path("good"), "good"), file}, path("a.zip"));
            for (const bool skip : {false, true}) {
                task.skipFailedFiles = skip;
                const ArchiveReport report = run(task);
                QCOMPARE(report.failures.size(), 1);
                QCOMPARE(report.failures.constFirst().name, file);
                QCOMPARE(report.failures.constFirst().problem, bad.value(file));
                QCOMPARE(report.done, qint64(skip ? 1 : 0));
                QCOMPARE(FileTree::read(path("a.zip")) == "old", !skip);
            }
            QVERIFY(run(ArchiveTask::unpack(path("a.zip"), path("out"))).isComplete());
            QCOMPARE(FileTree::of(path("out")), (QMap<QString, QByteArray>{{text("good"), "good"}}));
        }
    }

    /// Everything is checked, nothing is written.
    void dryRun()
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

    void sizeLimit()
    {
        ArchiveTask task = unpacking(zipOf({{"a", "1234"}, {"b", "12345"}, {"c", "1234"}}));
        task.sizeLimit = 8;
        const ArchiveReport report = run(task);
        QCOMPARE(report.failures.size(), 1);
        QCOMPARE(report.failures.constFirst().problem, ArchiveProblem::TooLarge);
        QCOMPARE(FileTree::of(path("out")).keys().join(QLatin1Char(' ')), text("a c"));
    }

    void fullDisk()
    {
        if (!m_volume.problem().isEmpty()) {
            QSKIP(qPrintable(m_volume.problem()));
        }
        QVector<quint32> noise(1 << 19);
        QRandomGenerator(1).fillRange(noise.data(), noise.size());
        const QString file = FileTree::write(
            path("noise"), QByteArray(reinterpret_cast<const char*>(noise.constData()), 4 * noise.size()));
        QVERIFY(run(ArchiveTask::pack({file}, path("a.zip"))).isComplete());
        const QString archive = m_volume.path() + text("/a.zip");
        for (const ArchiveTask& task : {ArchiveTask::unpack(path("a.zip"), m_volume.path()),
                                        ArchiveTask::pack({file, file}, archive)}) {
            const ArchiveReport report = run(task);
            QCOMPARE(report.failures.size(), 1);
            QCOMPARE(report.failures.constFirst().name, task.packing ? archive : text("noise"));
            QCOMPARE(report.failures.constFirst().problem, ArchiveProblem::DiskFull);
        }
        QVERIFY(FileTree::of(m_volume.path()).isEmpty());
    }

    void stop()
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
        QCOMPARE(QStringList(FileTree::of(path("out")).keys()), QStringList(text("first")));
    }

    /// A stack of 64 terabytes is refused, as is every thread on a system that has no more.
    void withoutMoreThreads()
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

    void oneLogLine()
    {
        auto& logger = installedLogger();
        logger.take();
        run(unpacking(zipOf({{"../a", "a"}, {"b", "b"}, {"../c", "c"}})));
        QCOMPARE(logger.take(),
                 QStringList(text("W TOLVAN_NAMESPACE::CArchiveJob::doRun: %1 was not unpacked "
                                  "completely: 2 failures, the first: ../a (leads out of the folder)")
                                 .arg(path("test.zip"))));
    }

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

    const SecondVolume m_volume{"mode=777,size=1m"};
};

TOLVAN_CORE_TEST_MAIN(ArchiveJobTest)
#include "tst_archivejob.moc"
