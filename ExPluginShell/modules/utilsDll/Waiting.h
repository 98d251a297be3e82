#pragma once

#include "utilsdll_global.h"

#include <QAtomicInt>

#include <chrono>

/// \file
/// Waits for a condition, by spinning or by processing events.

/// The condition that ends a wait.
class UTILSDLL_EXPORT ICustomWaitPredicate
{
public:
    /// Returns true when the wait is over. Called repeatedly in the waiting thread, so it has to be cheap.
    /// What other threads write has to be read through atomics or under a lock.
    virtual bool test() const = 0;
    virtual ~ICustomWaitPredicate();
};

/// The condition that an atomic has the awaited value.
class UTILSDLL_EXPORT CAtomicIntWaitPredicate : public ICustomWaitPredicate
{
public:
    /// \param value   not owned; has to outlive the predicate
    /// \param awaited the value that ends the wait
    CAtomicIntWaitPredicate(const QAtomicInt& value, int awaited);
    /// Reads with acquire order: what the writer did before its releasing store is visible after the wait.
    bool test() const override;

private:
    const QAtomicInt& m_value;
    const int m_awaited;
};

/// Spins until \a pred is true and yields the processor between two tests. For short waits in any thread.
///
/// \param pred the condition; its exceptions are passed on
///
/// \warning There is no sleep, no time-out and no event processing: the wait uses a whole core, and
/// in the main thread it freezes the program. A condition that needs an event of the waiting thread
/// is never fulfilled.
UTILSDLL_EXPORT void waitBlocking(const ICustomWaitPredicate& pred);

/// Processes the calling thread's events until \a pred is true: timers, queued signals and painting continue.
///
/// There is no time-out. A thread without an event dispatcher only spins.
/// \param pred             the condition; its exceptions are passed on after the input filter
///                         has been removed
/// \param excludeUserInput true keeps input from the whole application during the wait, see
///                         CExcludeUserInpuEventsFilter, and delivers that of the window system afterwards;
///                         in a thread other than the main one no input is blocked
///
/// \warning The wait polls without pause and uses a whole core. On a busy machine the system prefers threads
/// that have slept, and timers of the waiting thread are late (docs/benchmarks/async.md). For work of more
/// than a moment use CExcludeUserInpuEventLoop or COperationCompletionWaiter, which sleep.
/// \warning Everything that is due in the thread runs inside the call, see CExcludeUserInpuEventLoop.
UTILSDLL_EXPORT void waitNonBlocking(const ICustomWaitPredicate& pred, bool excludeUserInput);

/// Why a wait with a deadline has ended.
enum class WaitResult {
    Done,        ///< the wait was fulfilled
    TimedOut,    ///< the deadline passed
    SenderGone,  ///< the object whose signal was awaited was deleted, or never existed
    Stopped,     ///< the work item was stopped before it started, or the thread's event loop was quit
    NoEventLoop, ///< the calling thread has no event dispatcher, so that no event could end the wait
};

/// waitBlocking() for a limited time.
/// \param pred  the condition; its exceptions are passed on
/// \param limit longest duration of the wait; 0 or less tests the condition once
/// \return WaitResult::Done or WaitResult::TimedOut
UTILSDLL_EXPORT WaitResult waitBlockingFor(const ICustomWaitPredicate& pred, std::chrono::milliseconds limit);

/// waitNonBlocking() for a limited time.
/// \param pred             see waitNonBlocking()
/// \param excludeUserInput see waitNonBlocking()
/// \param limit            longest duration of the wait; 0 or less tests the condition once
/// \return WaitResult::Done, WaitResult::TimedOut or, at once, WaitResult::NoEventLoop
UTILSDLL_EXPORT WaitResult waitNonBlockingFor(const ICustomWaitPredicate& pred, bool excludeUserInput,
                                              std::chrono::milliseconds limit);

/// waitBlocking() until \a value is \a awaited.
UTILSDLL_EXPORT void waitBlockingAtomicIntValue(const QAtomicInt& value, int awaited);

/// waitNonBlocking() until \a value is \a awaited.
UTILSDLL_EXPORT void waitNonBlockingAtomicIntValue(const QAtomicInt& value, int awaited,
                                                   bool excludeUserInput);
