#include "ArchiveCompression.h"

#include "ArchiveJob.h"

namespace TOLVAN_NAMESPACE
{

namespace
{

/// A job that nothing stops: the functions complete their work also in a thread that is asked to end.
class UnstoppableJob : public CArchiveJob
{
public:
    using CArchiveJob::CArchiveJob;
    bool stopRequired() const override { return false; }
};

} // namespace

bool CompressFiles(const QStringList& files, const QString& archive)
{
    ArchiveTask task = ArchiveTask::pack(files, archive);
    task.acceptFolders = false;
    UnstoppableJob job(task);
    return job.doRun();
}

void DecompressFiles(const QString& archive, const QString& folder)
{
    UnstoppableJob(ArchiveTask::unpack(archive, folder)).doRun();
}

} // namespace TOLVAN_NAMESPACE
