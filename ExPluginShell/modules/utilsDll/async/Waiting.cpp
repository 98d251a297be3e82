#include "Waiting.h"

#include "ScopedInputFilter.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

namespace
{

/// Repeats \a step until \a pred is true or the time is over.
template <class Step>
WaitResult repeatUntil(const ICustomWaitPredicate& pred, const QDeadlineTimer& deadline, Step step)
{
    while (!pred.test()) {
        if (deadline.hasExpired()) {
            return WaitResult::TimedOut;
        }
        step();
    }
    return WaitResult::Done;
}

WaitResult processEventsUntil(const ICustomWaitPredicate& pred, bool excludeUserInput,
                              const QDeadlineTimer& deadline)
{
    const ScopedInputFilter filter(excludeUserInput ? QCoreApplication::instance() : nullptr);
    const QEventLoop::ProcessEventsFlags flags =
        excludeUserInput ? QEventLoop::ExcludeUserInputEvents : QEventLoop::AllEvents;
    return repeatUntil(pred, deadline, [flags] { QCoreApplication::processEvents(flags); });
}

} // namespace

ICustomWaitPredicate::~ICustomWaitPredicate() = default;

CAtomicIntWaitPredicate::CAtomicIntWaitPredicate(const QAtomicInt& value, int awaited)
    : m_value(value)
    , m_awaited(awaited)
{
}

bool CAtomicIntWaitPredicate::test() const
{
    return m_value.loadAcquire() == m_awaited;
}

void waitBlocking(const ICustomWaitPredicate& pred)
{
    repeatUntil(pred, QDeadlineTimer::Forever, &QThread::yieldCurrentThread);
}

WaitResult waitBlockingFor(const ICustomWaitPredicate& pred, std::chrono::milliseconds limit)
{
    return repeatUntil(pred, QDeadlineTimer(limit), &QThread::yieldCurrentThread);
}

void waitNonBlocking(const ICustomWaitPredicate& pred, bool excludeUserInput)
{
    processEventsUntil(pred, excludeUserInput, QDeadlineTimer::Forever);
}

WaitResult waitNonBlockingFor(const ICustomWaitPredicate& pred, bool excludeUserInput,
                              std::chrono::milliseconds limit)
{
    if (!QAbstractEventDispatcher::instance()) {
        return pred.test() ? WaitResult::Done : WaitResult::NoEventLoop;
    }
    return processEventsUntil(pred, excludeUserInput, QDeadlineTimer(limit));
}

void waitBlockingAtomicIntValue(const QAtomicInt& value, int awaited)
{
    waitBlocking(CAtomicIntWaitPredicate(value, awaited));
}

void waitNonBlockingAtomicIntValue(const QAtomicInt& value, int awaited, bool excludeUserInput)
{
    waitNonBlocking(CAtomicIntWaitPredicate(value, awaited), excludeUserInput);
}
