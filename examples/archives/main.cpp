#include <utilsDll/ArchiveJob.h>

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QTemporaryDir>

using namespace TOLVAN_NAMESPACE;

namespace
{

/// Does the work in this thread; a thread pool or a CProgressBox runs it in another one.
ArchiveReport reportOf(const ArchiveTask& task)
{
    CArchiveJob job(task);
    job.run();
    const ArchiveReport report = job.report();
    qInfo().noquote() << report.summary();
    for (const ArchiveFailure& failure : report.failures) {
        qWarning().noquote() << failure.name << archiveProblemText(failure.problem);
    }
    return report;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    QFile notes(folder.filePath(QStringLiteral("notes.txt")));
    if (!notes.open(QIODevice::WriteOnly) || notes.write("raised the horizon by 0.4 degrees\n") < 0) {
        return 1;
    }
    notes.close();

    const QString archive = folder.filePath(QStringLiteral("photos.zip"));
    const ArchiveReport packed = reportOf(ArchiveTask::pack({notes.fileName()}, archive));
    const ArchiveReport unpacked =
        reportOf(ArchiveTask::unpack(archive, folder.filePath(QStringLiteral("restored"))));
    return packed.isComplete() && unpacked.isComplete() ? 0 : 1;
}
