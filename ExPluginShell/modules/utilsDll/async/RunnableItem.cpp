#include "RunnableItem.h"

#include <QCoreApplication>
#include <QScopeGuard>
#include <QThread>

template <class Base>
CRunnableItem<Base>::StartFinishPredicate::StartFinishPredicate(bool start, const QAtomicInt* counter)
    : m_start(start)
    , m_counter(counter)
{
}

template <class Base>
CRunnableItem<Base>::StartFinishPredicate::~StartFinishPredicate() = default;

template <class Base>
bool CRunnableItem<Base>::StartFinishPredicate::test() const
{
    const int entries = m_counter->loadAcquire();
    return m_start ? entries > 0 : entries == 0;
}

template <class Base>
CRunnableItem<Base>::CRunnableItem()
    : m_lock(QReadWriteLock::Recursive)
{
}

template <class Base>
CRunnableItem<Base>::~CRunnableItem()
{
    waitConditionBlocking(false);
}

template <class Base>
bool CRunnableItem<Base>::stopRequired() const
{
    return stopFlag() || QThread::currentThread()->isInterruptionRequested() ||
           QCoreApplication::closingDown();
}

template <class Base>
bool CRunnableItem<Base>::isStarted() const
{
    return entriesCounter() > 0;
}

template <class Base>
bool CRunnableItem<Base>::isFinished() const
{
    return entriesCounter() == 0;
}

template <class Base>
void CRunnableItem<Base>::waitStartBlocking()
{
    waitConditionBlocking(true);
}

template <class Base>
void CRunnableItem<Base>::waitFinishBlocking()
{
    waitConditionBlocking(false);
}

template <class Base>
void CRunnableItem<Base>::waitExecuteBlocking()
{
    waitStartBlocking();
    waitFinishBlocking();
}

template <class Base>
void CRunnableItem<Base>::waitStartNonBlocking(bool excludeUserInput)
{
    waitConditionNonBlocking(true, excludeUserInput);
}

template <class Base>
void CRunnableItem<Base>::waitFinishNonBlocking(bool excludeUserInput)
{
    waitConditionNonBlocking(false, excludeUserInput);
}

template <class Base>
void CRunnableItem<Base>::waitExecuteNonBlocking(bool excludeUserInput)
{
    waitStartNonBlocking(excludeUserInput);
    waitFinishNonBlocking(excludeUserInput);
}

template <class Base>
int CRunnableItem<Base>::entriesCounter() const
{
    return m_entries.loadAcquire();
}

template <class Base>
bool CRunnableItem<Base>::stopFlag() const
{
    const QReadLocker lock(&m_lock);
    return m_stop;
}

template <class Base>
void CRunnableItem<Base>::setStopFlag(bool stop)
{
    const QWriteLocker lock(&m_lock);
    m_stop = stop;
}

template <class Base>
void CRunnableItem<Base>::enterExcecutableSection()
{
    m_entries.ref();
}

template <class Base>
void CRunnableItem<Base>::leaveExcecutableSection()
{
    m_entries.deref();
}

template <class Base>
void CRunnableItem<Base>::waitConditionBlocking(bool start)
{
    waitBlocking(StartFinishPredicate(start, &m_entries));
}

template <class Base>
void CRunnableItem<Base>::waitConditionNonBlocking(bool start, bool excludeUserInput)
{
    waitNonBlocking(StartFinishPredicate(start, &m_entries), excludeUserInput);
}

template class CRunnableItem<QRunnable>;

CQRunnableItem::CQRunnableItem()
    : CQRunnableItem(true)
{
}

CQRunnableItem::CQRunnableItem(bool emitSignals, QObject* parent)
    : QObject(parent)
    , m_emitSignals(emitSignals)
{
}

CQRunnableItem::~CQRunnableItem() = default;

void CQRunnableItem::doBeforeStopped() {}

void CQRunnableItem::doStopped() {}

bool CQRunnableItem::emitSignals() const
{
    return m_emitSignals;
}

void CQRunnableItem::stop()
{
    if (stopRequired()) {
        return;
    }
    doBeforeStopped();
    setStopFlag(true);
    if (stopRequired()) {
        if (m_emitSignals) {
            Q_EMIT wantsToStop();
        }
        doStopped();
    }
}

void CQRunnableItem::run()
{
    if (stopRequired()) {
        return;
    }
    if (m_emitSignals) {
        Q_EMIT started();
    }
    const bool ok = [this] {
        enterExcecutableSection();
        const auto leave = qScopeGuard([this] { leaveExcecutableSection(); });
        return doRun();
    }();
    if (m_emitSignals) {
        Q_EMIT finished(ok, stopRequired());
    }
}
