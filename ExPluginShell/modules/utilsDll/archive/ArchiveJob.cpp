#include "ArchiveJob.h"

#include "ArchiveWork.h"
#include "FileManagement.h"
#include "frame/Logging.h"

#include <QMutexLocker>

namespace TOLVAN_NAMESPACE
{

namespace
{

/// In the order of ArchiveProblem.
const char* const problemTexts[] = {
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "not found"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "not a file"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "not a zip archive"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "unsupported compression method"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "protected by a password"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "damaged"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "name not allowed"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "leads out of the folder"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "shares data with another entry"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "too large"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "not enough disk space"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "access denied"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "name used by a folder or a link"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "changed while it was read"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "cannot be read"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "cannot be written"),
    QT_TRANSLATE_NOOP("TOLVAN_NAMESPACE::CArchiveJob", "stopped"),
};

} // namespace

QString archiveProblemText(ArchiveProblem problem)
{
    return CArchiveJob::tr(problemTexts[static_cast<int>(problem)]);
}

QString ArchiveReport::summary() const
{
    const QString size = fileSizeToString(bytes);
    const auto filled = [&](const QString& text) { return text.arg(done).arg(entries).arg(size); };
    if (stopped) {
        return filled(CArchiveJob::tr("Stopped after %1 of %2 entries (%3)."));
    }
    if (failures.isEmpty()) {
        return filled(dryRun    ? CArchiveJob::tr("Checked %1 of %2 entries (%3).")
                      : packing ? CArchiveJob::tr("Packed %1 of %2 entries (%3).")
                                : CArchiveJob::tr("Unpacked %1 of %2 entries (%3)."));
    }
    const ArchiveFailure& first = failures.constFirst();
    const QString text = filled(dryRun    ? CArchiveJob::tr("Checked %1 of %2 entries (%3). %4: %5.")
                                : packing ? CArchiveJob::tr("Packed %1 of %2 entries (%3). %4: %5.")
                                          : CArchiveJob::tr("Unpacked %1 of %2 entries (%3). %4: %5."));
    return text.arg(first.name, archiveProblemText(first.problem));
}

ArchiveTask ArchiveTask::pack(const QStringList& files, const QString& archive)
{
    ArchiveTask task;
    task.packing = true;
    task.files = files;
    task.archive = archive;
    return task;
}

ArchiveTask ArchiveTask::unpack(const QString& archive, const QString& folder)
{
    ArchiveTask task;
    task.archive = archive;
    task.folder = folder;
    return task;
}

CArchiveJob::CArchiveJob(const ArchiveTask& task, QObject* parent)
    : CQRunnableItem(true, parent)
    , m_task(task)
{
    setAutoDelete(false);
    qRegisterMetaType<ArchiveReport>();
}

CArchiveJob::~CArchiveJob()
{
    stop();
    waitFinishBlocking();
}

ArchiveReport CArchiveJob::report() const
{
    const QMutexLocker lock(&m_mutex);
    return m_report;
}

bool CArchiveJob::doRun()
{
    ArchiveWork work(
        m_task, [this] { return stopRequired(); },
        [this](qint64 bytes, qint64 total, const QString& entry) {
            if (emitSignals()) {
                Q_EMIT progressed(bytes, total, entry);
            }
        });
    if (m_task.packing) {
        packArchive(work);
    } else {
        unpackArchive(work);
    }
    const ArchiveReport report = work.finish();
    if (!m_task.packing && !m_task.dryRun && !report.failures.isEmpty()) {
        const ArchiveFailure& first = report.failures.constFirst();
        UTILSDLL_LOG(LogLevel::Warning, "TOLVAN_NAMESPACE::CArchiveJob::doRun")
            << m_task.archive << " was not unpacked completely: " << report.failed
            << " failures, the first: " << first.name << " (" << problemTexts[static_cast<int>(first.problem)]
            << ")";
    }
    const QMutexLocker lock(&m_mutex);
    m_report = report;
    return m_report.isComplete();
}

} // namespace TOLVAN_NAMESPACE
