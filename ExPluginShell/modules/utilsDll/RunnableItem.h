#pragma once

#include "ExportedTemplate.h"
#include "Waiting.h"

#include <QObject>
#include <QReadWriteLock>
#include <QRunnable>

/// A piece of work that knows whether it is running, can be asked to stop, and can be waited for.
/// This library instantiates it once, for QRunnable.
///
/// "Running" means inside the executable section, which run() of the derived class enters and leaves.
/// \par Threads
/// All public functions may be called from any thread.
/// \par Life
/// A thread pool deletes the item when run() returns, unless setAutoDelete(false) was called. Call it before
/// start() if the item is used after that.
template <class Base>
class CRunnableItem : public Base
{
    friend class CItemRun; // internal

public:
    /// The condition that an item has started or has finished.
    class UTILSDLL_EXPORT StartFinishPredicate : public ICustomWaitPredicate
    {
    public:
        /// \param start   true if the counter has to be above 0, false if it has to be 0
        /// \param counter the item's counter of executions, not owned
        StartFinishPredicate(bool start, const QAtomicInt* counter);
        ~StartFinishPredicate() override;
        bool test() const override;

    private:
        const bool m_start;
        const QAtomicInt* const m_counter;
    };

    CRunnableItem();
    CRunnableItem(const CRunnableItem&) = delete;
    CRunnableItem& operator=(const CRunnableItem&) = delete;

    /// Spins until no execution is inside the executable section, as waitFinishBlocking() does. Members of
    /// derived classes have been destroyed by then: a class whose work uses its members calls
    /// waitFinishBlocking() in its own destructor.
    virtual ~CRunnableItem();

    /// Whether the work has to end: a stop was requested, or an interruption of the **calling** thread was
    /// requested, or the application object is closing down. The work function polls it and returns early.
    virtual bool stopRequired() const;

    /// Whether an execution is inside the executable section.
    bool isStarted() const;
    /// The opposite of isStarted(); also true before the first execution.
    bool isFinished() const;

    /// \name Blocking waits
    /// These spin like waitBlocking(): no sleep, no time-out, no events. A start wait ends when the item is
    /// running or has started since the call. A finish wait returns at once if no thread has started the item
    /// yet; use waitExecuteBlocking() to wait for the end of the work, which every execution since the item
    /// was created fulfils. A start or execute wait never returns if the item was stopped before it ran.
    ///
    /// The item may be deleted after a finish or execute wait if it is not started again: these waits also
    /// cover the emission of CQRunnableItem::finished() by another thread. A slot of finished() that is
    /// connected with Qt::BlockingQueuedConnection to the waiting thread needs a non-blocking wait.
    /// @{

    /// Waits until the item has started.
    void waitStartBlocking();
    /// Waits until the item has finished.
    void waitFinishBlocking();
    /// Waits until the item has started and then finished.
    void waitExecuteBlocking();
    /// @}

    /// \name Non-blocking waits
    /// The same waits while the calling thread's events are processed, see waitNonBlocking(). With
    /// \a excludeUserInput the application gets no user input until the wait returns.
    /// @{

    /// Processes events until the item has started.
    void waitStartNonBlocking(bool excludeUserInput);
    /// Processes events until the item has finished.
    void waitFinishNonBlocking(bool excludeUserInput);
    /// Processes events until the item has started and then finished.
    void waitExecuteNonBlocking(bool excludeUserInput);
    /// @}

    /// \name Waits with a deadline
    /// The same waits for a limited time. A limit of 0 or less tests once. They return WaitResult::Done or
    /// WaitResult::TimedOut, a start or execute wait also WaitResult::Stopped when the item was stopped
    /// before it started, a non-blocking wait also WaitResult::NoEventLoop in a thread without an event
    /// dispatcher. The item may be deleted only after WaitResult::Done.
    /// @{

    /// Waits at most \a limit until the item has started.
    WaitResult waitStartBlockingFor(std::chrono::milliseconds limit);
    /// Waits at most \a limit until the item has finished.
    WaitResult waitFinishBlockingFor(std::chrono::milliseconds limit);
    /// Waits at most \a limit until the item has started and then finished.
    WaitResult waitExecuteBlockingFor(std::chrono::milliseconds limit);
    /// Processes events, at most for \a limit, until the item has started.
    WaitResult waitStartNonBlockingFor(bool excludeUserInput, std::chrono::milliseconds limit);
    /// Processes events, at most for \a limit, until the item has finished.
    WaitResult waitFinishNonBlockingFor(bool excludeUserInput, std::chrono::milliseconds limit);
    /// Processes events, at most for \a limit, until the item has started and then finished.
    WaitResult waitExecuteNonBlockingFor(bool excludeUserInput, std::chrono::milliseconds limit);
    /// @}

protected:
    /// How many executions are inside the executable section.
    int entriesCounter() const;

    /// Whether a stop was requested. The item itself never clears the request.
    bool stopFlag() const;
    /// Sets or clears the stop request.
    void setStopFlag(bool stop);

    /// Enters the executable section. Each entry has to be left again, also when the work throws.
    void enterExcecutableSection();
    /// Leaves the executable section.
    void leaveExcecutableSection();

private:
    enum class Moment { Start, Finish, Execute };
    class Condition;

    bool hasEnded() const;
    void waitConditionBlocking(Moment moment) const;
    void waitConditionNonBlocking(Moment moment, bool excludeUserInput) const;
    WaitResult waitConditionBlockingFor(Moment moment, std::chrono::milliseconds limit) const;
    WaitResult waitConditionNonBlockingFor(Moment moment, bool excludeUserInput,
                                           std::chrono::milliseconds limit) const;

    QAtomicInt m_entries;
    bool m_stop = false;
    mutable QReadWriteLock m_lock;
    QAtomicInteger<quint32> m_starts; // executions since the item was created
    QAtomicInt m_runs;                // calls of CQRunnableItem::run() that have not emitted finished() yet
};

extern template class UTILSDLL_TEMPLATE_DECLARED CRunnableItem<QRunnable>;

/// A work item that reports its start and end by signals and can be stopped through a slot.
/// \code
/// class CThumbnails : public CQRunnableItem
/// {
///     bool doRun() override
///     {
///         for (const QString& file : m_files) {
///             if (stopRequired()) {
///                 return false;
///             }
///             make(file);
///         }
///         return true;
///     }
/// };
/// connect(item, SIGNAL(finished(bool, bool)), view, SLOT(onThumbnails(bool, bool)));
/// m_pool.start(item);
/// \endcode
/// Run long work in a separate pool: Qt also uses the global pool for painting.
///
/// \par Threads
/// started() and finished() are emitted in the thread that runs the item, wantsToStop() in the thread
/// that calls stop(). The object lives in the thread that created it; receivers in that thread get
/// the signals queued.
/// \par Life
/// See CRunnableItem. The executable section is left **before** finished() is emitted, but a finish or
/// execute wait returns after the emission. An item with setAutoDelete(false) may be deleted after such a
/// wait, also in a slot of finished(). Call setAutoDelete(false) for an item with a parent.
class UTILSDLL_EXPORT CQRunnableItem : public QObject, public CRunnableItem<QRunnable>
{
    Q_OBJECT

public:
    /// See \b Life above for when an item may be deleted.
    ~CQRunnableItem() override;

    /// Does the work, in the pool's thread. Polls stopRequired() and returns early if it is true.
    /// \return whether the work succeeded
    virtual bool doRun() = 0;

protected:
    /// Called by stop(), in its thread, before the stop is requested.
    virtual void doBeforeStopped();
    /// Called by stop(), in its thread, after wantsToStop(), for example to wake work that sleeps.
    virtual void doStopped();

    /// An item without a parent that emits signals.
    CQRunnableItem();
    /// \param emitSignals whether the item emits signals
    /// \param parent      owner of the item
    explicit CQRunnableItem(bool emitSignals, QObject* parent = nullptr);
    /// Does not compile: a pointer alone, such as a parent, would be taken for the flag.
    template <class Pointee>
    explicit CQRunnableItem(Pointee* flag, QObject* parent = nullptr) = delete;

    /// Whether the item emits signals.
    bool emitSignals() const;

Q_SIGNALS:
    /// The work is about to begin.
    void started();
    /// A stop was requested. A second stop() emits nothing, unless two threads call stop() at
    /// the same moment.
    void wantsToStop();
    /// The work has ended. Not emitted when it threw or never began.
    /// \param bOk      result of doRun()
    /// \param bStopped whether a stop was required when it ended
    void finished(bool bOk, bool bStopped);

public Q_SLOTS:
    /// Requests a stop and returns without waiting. Does nothing if a stop is required already.
    void stop();
    /// Runs the work in the calling thread; called by the pool. Returns at once, without a signal, if a stop
    /// is required already. An exception of the work is passed on after the executable section has been left;
    /// in a pool's thread it ends the program.
    void run() override;

private:
    const bool m_emitSignals;
};
