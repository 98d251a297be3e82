#include "RunnableItem.h"

#include <QCoreApplication>
#include <QScopeGuard>
#include <QThread>

/// A call of CQRunnableItem::run(), from its start until it has emitted finished(). Lies on
/// the thread's stack.
///
/// Waits in other threads last until it ends, so that the item can be deleted after them. Waits in its own
/// thread are inside a slot of finished(); they do not wait for it, and the slot may delete the item.
class CItemRun
{
public:
    using Item = CRunnableItem<QRunnable>;

    explicit CItemRun(Item& item)
        : m_item(&item)
        , m_outer(innermost)
    {
        m_item->m_runs.ref();
        innermost = this;
    }
    ~CItemRun()
    {
        innermost = m_outer;
        if (m_item) {
            m_item->m_runs.deref();
        }
    }
    CItemRun(const CItemRun&) = delete;
    CItemRun& operator=(const CItemRun&) = delete;

    /// Whether a thread other than the calling one is inside run() of \a item.
    static bool isInOtherThread(const Item& item)
    {
        int own = 0;
        for (const CItemRun* run = innermost; run; run = run->m_outer) {
            own += run->m_item == &item ? 1 : 0;
        }
        return item.m_runs.loadAcquire() > own;
    }

    /// Has to be called before \a item is deleted.
    static void forget(const Item& item)
    {
        for (CItemRun* run = innermost; run; run = run->m_outer) {
            run->m_item = run->m_item == &item ? nullptr : run->m_item;
        }
    }

private:
    static thread_local CItemRun* innermost;

    Item* m_item;
    CItemRun* const m_outer;
};

thread_local CItemRun* CItemRun::innermost = nullptr;

/// The condition of the waits of an item.
template <class Base>
class CRunnableItem<Base>::Condition : public ICustomWaitPredicate
{
public:
    Condition(const CRunnableItem& item, Moment moment, bool endsWhenStopped = false)
        : m_item(item)
        , m_moment(moment)
        , m_endsWhenStopped(endsWhenStopped && moment != Moment::Finish)
        , m_startsBefore(moment == Moment::Start ? item.m_starts.loadAcquire() : 0)
    {
    }
    bool test() const override
    {
        return isFulfilled() || (m_endsWhenStopped && m_item.stopFlag() && !hasStarted());
    }

    /// What the wait returns for \a result, the outcome of waiting for test().
    WaitResult outcome(WaitResult result) const
    {
        return result == WaitResult::Done && !isFulfilled() ? WaitResult::Stopped : result;
    }

private:
    bool isFulfilled() const
    {
        switch (m_moment) {
        case Moment::Start:
            return hasStarted();
        case Moment::Execute:
            return hasStarted() && m_item.hasEnded();
        case Moment::Finish:
            break;
        }
        return m_item.hasEnded();
    }

    /// Also true for a start whose end has come before it was noticed.
    bool hasStarted() const
    {
        return m_item.m_starts.loadAcquire() != m_startsBefore ||
               StartFinishPredicate(true, &m_item.m_entries).test();
    }

    const CRunnableItem& m_item;
    const Moment m_moment;
    const bool m_endsWhenStopped;
    const quint32 m_startsBefore;
};

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
    waitConditionBlocking(Moment::Finish);
    CItemRun::forget(*this);
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
    waitConditionBlocking(Moment::Start);
}

template <class Base>
void CRunnableItem<Base>::waitFinishBlocking()
{
    waitConditionBlocking(Moment::Finish);
}

template <class Base>
void CRunnableItem<Base>::waitExecuteBlocking()
{
    waitConditionBlocking(Moment::Execute);
}

template <class Base>
void CRunnableItem<Base>::waitStartNonBlocking(bool excludeUserInput)
{
    waitConditionNonBlocking(Moment::Start, excludeUserInput);
}

template <class Base>
void CRunnableItem<Base>::waitFinishNonBlocking(bool excludeUserInput)
{
    waitConditionNonBlocking(Moment::Finish, excludeUserInput);
}

template <class Base>
void CRunnableItem<Base>::waitExecuteNonBlocking(bool excludeUserInput)
{
    waitConditionNonBlocking(Moment::Execute, excludeUserInput);
}

template <class Base>
WaitResult CRunnableItem<Base>::waitStartBlockingFor(std::chrono::milliseconds limit)
{
    return waitConditionBlockingFor(Moment::Start, limit);
}

template <class Base>
WaitResult CRunnableItem<Base>::waitFinishBlockingFor(std::chrono::milliseconds limit)
{
    return waitConditionBlockingFor(Moment::Finish, limit);
}

template <class Base>
WaitResult CRunnableItem<Base>::waitExecuteBlockingFor(std::chrono::milliseconds limit)
{
    return waitConditionBlockingFor(Moment::Execute, limit);
}

template <class Base>
WaitResult CRunnableItem<Base>::waitStartNonBlockingFor(bool excludeUserInput,
                                                        std::chrono::milliseconds limit)
{
    return waitConditionNonBlockingFor(Moment::Start, excludeUserInput, limit);
}

template <class Base>
WaitResult CRunnableItem<Base>::waitFinishNonBlockingFor(bool excludeUserInput,
                                                         std::chrono::milliseconds limit)
{
    return waitConditionNonBlockingFor(Moment::Finish, excludeUserInput, limit);
}

template <class Base>
WaitResult CRunnableItem<Base>::waitExecuteNonBlockingFor(bool excludeUserInput,
                                                          std::chrono::milliseconds limit)
{
    return waitConditionNonBlockingFor(Moment::Execute, excludeUserInput, limit);
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
    m_starts.ref(); // last: a wait that sees the new start must also see the entry or its end
}

template <class Base>
void CRunnableItem<Base>::leaveExcecutableSection()
{
    m_entries.deref();
}

template <class Base>
bool CRunnableItem<Base>::hasEnded() const
{
    return StartFinishPredicate(false, &m_entries).test() && !CItemRun::isInOtherThread(*this);
}

template <class Base>
void CRunnableItem<Base>::waitConditionBlocking(Moment moment) const
{
    waitBlocking(Condition(*this, moment));
}

template <class Base>
void CRunnableItem<Base>::waitConditionNonBlocking(Moment moment, bool excludeUserInput) const
{
    waitNonBlocking(Condition(*this, moment), excludeUserInput);
}

template <class Base>
WaitResult CRunnableItem<Base>::waitConditionBlockingFor(Moment moment, std::chrono::milliseconds limit) const
{
    const Condition condition(*this, moment, true);
    return condition.outcome(waitBlockingFor(condition, limit));
}

template <class Base>
WaitResult CRunnableItem<Base>::waitConditionNonBlockingFor(Moment moment, bool excludeUserInput,
                                                            std::chrono::milliseconds limit) const
{
    const Condition condition(*this, moment, true);
    return condition.outcome(waitNonBlockingFor(condition, excludeUserInput, limit));
}

template class UTILSDLL_TEMPLATE_DEFINED CRunnableItem<QRunnable>;

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
    const CItemRun run(*this);
    const bool ok = [this] {
        enterExcecutableSection();
        const auto leave = qScopeGuard([this] { leaveExcecutableSection(); });
        return doRun();
    }();
    if (m_emitSignals) {
        Q_EMIT finished(ok, stopRequired());
    }
}
