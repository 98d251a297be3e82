#pragma once

#include "ArchiveJob.h"

#include <QElapsedTimer>

#include <functional>

namespace TOLVAN_NAMESPACE
{

/// A task in work: its report, its progress and its stop. Used by the thread that runs the job only. Internal.
class ArchiveWork
{
public:
    using Progress = std::function<void(qint64 bytes, qint64 total, const QString& entry)>;

    /// \param stopRequired polled at least once for each block; empty: nothing stops the work
    ArchiveWork(const ArchiveTask& task, std::function<bool()> stopRequired, Progress progress);

    const ArchiveTask& task() const { return m_task; }
    /// Whether the work has to end. Stays true once it was.
    bool stopRequired();

    /// The content in all.
    void setTotal(qint64 bytes) { m_total = bytes; }
    /// Content that was handled. Reports the progress if the last report is old enough.
    void advance(qint64 bytes, const QString& entry);

    /// An entry that is complete.
    void succeed() { ++m_report.done; }
    /// Nothing that was reported as complete is: no archive was written.
    void withdraw() { m_report.done = m_report.bytes = 0; }
    /// An entry that was not done.
    void fail(const QString& name, ArchiveProblem problem);
    qint64 failed() const { return m_report.failed; }
    /// An entry of a dry run.
    void list(const ArchiveEntry& entry);
    void setEntries(qint64 count) { m_report.entries = count; }

    /// Ends the work.
    ArchiveReport finish();

private:
    const ArchiveTask& m_task;
    const std::function<bool()> m_stopRequired;
    const Progress m_progress;
    ArchiveReport m_report;
    QElapsedTimer m_sinceProgress;
    QString m_entry;
    qint64 m_total = 0;
};

/// Does a task of packing.
void packArchive(ArchiveWork& work);
/// Does a task of unpacking.
void unpackArchive(ArchiveWork& work);

} // namespace TOLVAN_NAMESPACE
