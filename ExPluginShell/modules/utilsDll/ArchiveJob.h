#pragma once

#include "RunnableItem.h"

#include <QDateTime>
#include <QMetaType>
#include <QMutex>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

/// \file
/// Packing and unpacking zip archives as a work item with progress, a stop and a report.
///
/// \code
/// ArchiveTask task = ArchiveTask::pack({"/photos/2020", "/photos/notes.txt"}, "/backup/photos.zip");
/// auto* const job = new CArchiveJob(task, this);
/// connect(job, SIGNAL(progressed(qint64, qint64, QString)), this, SLOT(onProgressed(qint64, qint64, QString)));
/// connect(job, SIGNAL(finished(bool, bool)), this, SLOT(onFinished()));
/// m_pool.start(job);
///
/// void CBackup::onFinished()
/// {
///     const ArchiveReport report = m_job->report();
///     show(report.summary()); // in the user's language
///     for (const ArchiveFailure& failure : report.failures) {
///         list(failure.name, archiveProblemText(failure.problem));
///     }
///     m_job->deleteLater();
/// }
/// \endcode

namespace TOLVAN_NAMESPACE
{

/// Why an entry was not packed or unpacked.
enum class ArchiveProblem {
    NotFound,          ///< there is no such file, folder or archive
    NotAFile,          ///< neither a file, a folder nor a link: a pipe, a socket, a device
    NotAnArchive,      ///< no zip archive, or its directory can't be read
    UnsupportedMethod, ///< the entry is compressed with a method that is not supported, see CArchiveJob
    Encrypted,         ///< the entry needs a password
    Damaged,       ///< sizes, checksum or compressed data of the entry are wrong, or the archive is cut off
    NameRefused,   ///< the system can't use the name, or it is nested too deeply or too long
    OutsideFolder, ///< the name or the link leads out of the target folder
    Overlapping,   ///< the entry shares data with another one, as in archives made to fill disks
    TooLarge,      ///< the entry exceeds ArchiveTask::sizeLimit or what an archive of this size can hold
    DiskFull,      ///< the volume has not enough space
    AccessDenied,  ///< the rights of the user are not sufficient
    InTheWay,      ///< a folder, a link or a special file has the name of the entry
    Changed,       ///< the file changed its size while it was packed
    ReadFailed,    ///< any other error while reading
    WriteFailed,   ///< any other error while writing
    Stopped,       ///< the job was stopped before the entry was complete
};

/// A text for a problem, in the user's language, without a full stop: "the entry is encrypted".
UTILSDLL_EXPORT QString archiveProblemText(ArchiveProblem problem);

/// An entry that was not packed or unpacked.
struct ArchiveFailure {
    /// Name in the archive; for a file that can't be packed its path. A problem of the whole archive has the
    /// archive's path here.
    QString name;
    ArchiveProblem problem = ArchiveProblem::ReadFailed; ///< the reason
};

/// An entry of the listing of a dry run.
struct ArchiveEntry {
    QString name;           ///< with "/" between folders; a folder ends with "/"
    qint64 size = 0;        ///< bytes when unpacked
    qint64 packedSize = -1; ///< bytes in the archive; -1 in the dry run of packing
    QDateTime lastModified; ///< invalid if the archive has none
    bool isLink = false;    ///< whether the entry is a symbolic link
};

/// The result of a CArchiveJob.
struct UTILSDLL_EXPORT ArchiveReport {
    /// How many entries of each list below are kept. The counts are always complete.
    static constexpr int longestList = 100000;

    bool packing = false;             ///< whether the job packed or unpacked
    bool dryRun = false;              ///< whether nothing was to be written
    bool stopped = false;             ///< whether the job ended early because of a stop
    qint64 entries = 0;               ///< entries that the job was to handle, as far as they were found
    qint64 done = 0;                  ///< entries that were packed, unpacked or, in a dry run, found good
    qint64 bytes = 0;                 ///< size of their contents when unpacked
    qint64 failed = 0;                ///< entries that were not; a problem of the whole archive counts as one
    QVector<ArchiveFailure> failures; ///< the failed entries, in the order of the archive
    QVector<ArchiveEntry> listing;    ///< the entries, in a dry run only

    /// Whether everything was packed or unpacked. False also for an archive without any entry, which
    /// is no error of its own: failed is 0 then.
    bool isComplete() const { return !stopped && failed == 0 && (packing || entries > 0); }
    /// One line for the user, in the user's language, with counts, bytes and the first problem.
    QString summary() const;
};

/// What a CArchiveJob has to do.
struct UTILSDLL_EXPORT ArchiveTask {
    /// A task that packs files and folders into a new archive.
    ///
    /// A folder is packed with everything below it. An entry is named after the file or folder in \a files and
    /// the path below it: for "/photos/2020" that is "2020/a.jpg". With \a baseFolder set names are relative
    /// to that folder instead. A link is stored as a link (on Windows: skipped below a folder). The archive
    /// itself is left out if it lies in one of the folders.
    static ArchiveTask pack(const QStringList& files, const QString& archive);
    /// A task that unpacks an archive into a folder, with the rules of DecompressFiles().
    static ArchiveTask unpack(const QString& archive, const QString& folder);

    bool packing = false; ///< whether to pack or to unpack
    QStringList files;    ///< paths of files and folders to pack
    QString archive;      ///< path of the archive
    QString folder;       ///< the folder to unpack into; created with all missing parents
    QString baseFolder;   ///< packing: names are relative to this folder; empty: see pack()
    bool dryRun = false;  ///< list and check every entry, but write nothing and create no folder
    /// Packing: false refuses folders in \a files with ArchiveProblem::NotAFile.
    bool acceptFolders = true;
    /// Packing: true writes the archive without the files that can't be packed. False writes no archive then,
    /// and an existing one stays as it was. A file of more than 24 MB that can't be read to its end, or that
    /// changes its size meanwhile, ends the job without an archive in both cases.
    bool skipFailedFiles = false;
    /// Unpacking: most bytes that may be written; -1: as many as the volume has space for. An archive that
    /// claims to hold more than 1,100 times its own size is refused in any case: no honest one does.
    qint64 sizeLimit = -1;
};

/// Packs or unpacks a zip archive.
///
/// Reads entries that are stored or deflated and, on Linux, compressed with bzip2. Entries compressed with
/// Deflate64, which Windows Explorer uses above 2 GB, end in the report as ArchiveProblem::UnsupportedMethod.
/// An entry that fails leaves nothing behind, keeps an existing file as it was, and does not end the job.
///
/// The bytes of a packed archive depend on the files only, not on the number of processors.
///
/// \par Blocking
/// run() returns when the work is done; a thread pool calls it. stop() is followed within one block, that is
/// at most 24 MB of content. A stopped packing leaves no archive; a stopped unpacking leaves the entries that are
/// complete.
/// \par Threads
/// The job uses threads of its own beside the one that runs it, one per processor, which end with run().
/// Everything public may be called from any thread. progressed() is emitted in the thread that runs the job,
/// so receivers in other threads get it queued.
/// \par Memory
/// At most 128 MB, for archives and files of any size.
/// \par Life
/// Unlike CQRunnableItem a job is not deleted by the thread pool, so that its report can be read after
/// finished(). Its creator deletes it, with deleteLater() on finished() or after QThreadPool::waitForDone().
/// \par Log
/// An archive that was not unpacked completely is logged once, with the number of failures and the first of
/// them.
class UTILSDLL_EXPORT CArchiveJob : public CQRunnableItem
{
    Q_OBJECT

public:
    /// \param task   what to do; copied
    /// \param parent owns the job; may be null
    explicit CArchiveJob(const ArchiveTask& task, QObject* parent = nullptr);
    /// Stops the work and waits until it has ended.
    ~CArchiveJob() override;

    /// What the job was created with.
    const ArchiveTask& task() const { return m_task; }
    /// The result. Complete after finished(); empty before.
    ArchiveReport report() const;

    /// Does the work; called by run().
    /// \return ArchiveReport::isComplete()
    bool doRun() override;

Q_SIGNALS:
    /// The work has got further. Emitted at most ten times a second, and once at the end of complete work.
    /// \param bytes content handled so far
    /// \param total content in all; 0 while unknown. A damaged archive may claim less or more than it holds.
    /// \param entry name of the entry in work
    void progressed(qint64 bytes, qint64 total, const QString& entry);

private:
    const ArchiveTask m_task;
    mutable QMutex m_mutex;
    ArchiveReport m_report; ///< guarded by m_mutex
};

} // namespace TOLVAN_NAMESPACE

Q_DECLARE_METATYPE(TOLVAN_NAMESPACE::ArchiveReport)
