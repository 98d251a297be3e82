#pragma once

#include <QCoreApplication>
#include <QString>

#include <deque>

namespace TOLVAN_NAMESPACE
{

/// Estimates how long work still takes, from what was done in the last seconds. Pure arithmetic: the caller
/// passes the time.
class RemainingTime
{
    Q_DECLARE_TR_FUNCTIONS(CProgressBox)

public:
    /// Records the progress.
    /// \param milliseconds since the work began
    void add(qint64 milliseconds, qint64 done, qint64 total);

    /// Returns the remaining seconds; -1 while two seconds of progress are not seen, or nothing moves.
    int seconds() const;
    /// Returns the remaining time in words; empty if it is not known.
    QString text() const;

private:
    struct Sample {
        qint64 time;
        qint64 done;
    };

    std::deque<Sample> m_samples; // of the last seconds, the oldest first
    qint64 m_total = 0;
};

} // namespace TOLVAN_NAMESPACE
