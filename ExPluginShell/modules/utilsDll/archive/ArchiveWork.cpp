#include "ArchiveWork.h"

namespace TOLVAN_NAMESPACE
{

namespace
{
constexpr qint64 progressInterval = 100; // milliseconds
} // namespace

ArchiveWork::ArchiveWork(const ArchiveTask& task, std::function<bool()> stopRequired, Progress progress)
    : m_task(task)
    , m_stopRequired(std::move(stopRequired))
    , m_progress(std::move(progress))
{
    m_report.packing = task.packing;
    m_report.dryRun = task.dryRun;
    m_sinceProgress.start();
}

bool ArchiveWork::stopRequired()
{
    m_report.stopped = m_report.stopped || (m_stopRequired && m_stopRequired());
    return m_report.stopped;
}

void ArchiveWork::advance(qint64 bytes, const QString& entry)
{
    m_report.bytes += bytes;
    m_entry = entry;
    if (m_progress && m_sinceProgress.elapsed() >= progressInterval) {
        m_sinceProgress.start();
        m_progress(m_report.bytes, m_total, entry);
    }
}

void ArchiveWork::fail(const QString& name, ArchiveProblem problem)
{
    ++m_report.failed;
    if (m_report.failures.size() < ArchiveReport::longestList) {
        m_report.failures += ArchiveFailure{name, problem};
    }
}

void ArchiveWork::list(const ArchiveEntry& entry)
{
    if (m_report.listing.size() < ArchiveReport::longestList) {
        m_report.listing += entry;
    }
}

ArchiveReport ArchiveWork::finish()
{
    if (m_progress && !m_report.stopped) {
        m_progress(m_report.bytes, m_total, m_entry);
    }
    return m_report;
}

} // namespace TOLVAN_NAMESPACE
