#pragma once

#include "utilsdll_global.h"

#include <QAtomicInt>

/// \file
/// Waits for a condition, with the processor or with the event loop.

/// A condition that a wait waits for.
class UTILSDLL_EXPORT ICustomWaitPredicate
{
public:
    /// True when the wait is over. Called again and again in the waiting thread; has to be cheap, and to
    /// read what other threads write through atomics or a lock.
    virtual bool test() const = 0;
    virtual ~ICustomWaitPredicate();
};

/// True while an atomic has the awaited value.
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

/// Spins until \a pred is true, yielding the processor between two tests. For short waits in any thread.
///
/// \warning No sleep, no time-out, no event processing: it burns a core, and in the main thread it freezes
/// the program; a condition that only an event of the waiting thread can bring about never comes.
///
/// An exception of the predicate passes through.
UTILSDLL_EXPORT void waitBlocking(const ICustomWaitPredicate& pred);

/// Turns the calling thread's event loop until \a pred is true: timers, queued signals and painting go on.
///
/// \param pred            the condition; an exception of it passes through, and the input filter is removed
/// \param excludeUserInput true: input is kept from the whole application meanwhile, see
///                         CExcludeUserInpuEventsFilter, and that of the window system is held back; in a
///                         thread other than the main one no input is blocked
///
/// \warning The loop polls without pause: it takes 100 percent of a core as long as it lasts, where a loop
/// that sleeps takes next to nothing. Timers keep their pace while the thread has a core; on a busy machine
/// the system prefers threads that slept, and a 1 ms timer loses as much time as the thread waits for a core
/// (docs/benchmarks/async.md). For what takes longer than a moment CExcludeUserInpuEventLoop or a
/// COperationCompletionWaiter is the better choice: they wait asleep.
/// \warning Whatever is due in the program runs inside the call, see CExcludeUserInpuEventLoop.
///
/// No time-out. In a thread without an event dispatcher it only spins.
UTILSDLL_EXPORT void waitNonBlocking(const ICustomWaitPredicate& pred, bool excludeUserInput);

/// waitBlocking() until \a value is \a awaited.
UTILSDLL_EXPORT void waitBlockingAtomicIntValue(const QAtomicInt& value, int awaited);

/// waitNonBlocking() until \a value is \a awaited.
UTILSDLL_EXPORT void waitNonBlockingAtomicIntValue(const QAtomicInt& value, int awaited,
                                                   bool excludeUserInput);
