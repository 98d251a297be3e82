#include "Waiting.h"

#include "ScopedInputFilter.h"

#include <QCoreApplication>
#include <QThread>

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
    while (!pred.test()) {
        QThread::yieldCurrentThread();
    }
}

void waitNonBlocking(const ICustomWaitPredicate& pred, bool excludeUserInput)
{
    const ScopedInputFilter filter(excludeUserInput ? QCoreApplication::instance() : nullptr);
    const QEventLoop::ProcessEventsFlags flags =
        excludeUserInput ? QEventLoop::ExcludeUserInputEvents : QEventLoop::AllEvents;
    while (!pred.test()) {
        QCoreApplication::processEvents(flags);
    }
}

void waitBlockingAtomicIntValue(const QAtomicInt& value, int awaited)
{
    waitBlocking(CAtomicIntWaitPredicate(value, awaited));
}

void waitNonBlockingAtomicIntValue(const QAtomicInt& value, int awaited, bool excludeUserInput)
{
    waitNonBlocking(CAtomicIntWaitPredicate(value, awaited), excludeUserInput);
}
