#pragma once

#include "Waiting.h"

#include <QObject>
#include <QReadWriteLock>
#include <QRunnable>

/// A piece of work that knows whether it is running, can be asked to stop, and can be waited for.
/// Instantiated for QRunnable, once, in this library.
///
/// "Running" means inside the executable section, which run() of the derived class enters and leaves.
/// \par Threads
/// Everything public may be called from any thread.
/// \par Life
/// A thread pool deletes the item when run() returns, unless setAutoDelete(false) was called: do that
/// before start() for an item that anyone asks, stops or waits for later.
template <class Base>
class CRunnableItem : public Base
{
public:
    /// The condition of the waits below.
    class UTILSDLL_EXPORT StartFinishPredicate : public ICustomWaitPredicate
    {
    public:
        /// \param start   true: wait until the counter is above 0; false: until it is 0
        /// \param counter not owned
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

    /// Spins until no execution is inside the executable section. The parts of derived classes are gone by
    /// then: a class whose work uses its own members calls waitFinishBlocking() in its own destructor.
    virtual ~CRunnableItem();

    /// Whether the work has to end: a stop was asked for, or the **calling** thread has been asked to
    /// interrupt, or the application object is closing down. The work function polls it and returns early.
    virtual bool stopRequired() const;

    /// Whether an execution is inside the executable section.
    bool isStarted() const;
    /// The opposite of isStarted(): true also before the item ever ran.
    bool isFinished() const;

    /// \name Blocking waits
    /// Spin as waitBlocking() does: no sleep, no time-out, no events. A finish wait on an item that no
    /// thread has picked up yet returns at once; to know that the work ran to its end use
    /// waitExecuteBlocking(), which waits for the start first. A start wait on an item that has finished
    /// already, or that was stopped before it ran, never returns.
    /// @{

    /// Spins until the item has started, has finished, or has done one after the other.
    void waitStartBlocking();
    void waitFinishBlocking();
    void waitExecuteBlocking();
    /// @}

    /// \name Waits that keep the event loop turning
    /// The same as above while processing the calling thread's events, see waitNonBlocking(): they poll,
    /// and whatever is due in the program runs inside. With \a excludeUserInput no input reaches the
    /// application meanwhile.
    /// @{

    /// Turns the event loop until the item has started, has finished, or has done one after the other.
    void waitStartNonBlocking(bool excludeUserInput);
    void waitFinishNonBlocking(bool excludeUserInput);
    void waitExecuteNonBlocking(bool excludeUserInput);
    /// @}

protected:
    /// How many executions are inside the executable section.
    int entriesCounter() const;

    /// The stop request. Once set the item does not clear it itself.
    bool stopFlag() const;
    /// Sets or clears the stop request.
    void setStopFlag(bool stop);

    /// Enters the executable section; every entry has to be left, also when the work throws.
    void enterExcecutableSection();
    /// Leaves the executable section.
    void leaveExcecutableSection();

private:
    void waitConditionBlocking(bool start);
    void waitConditionNonBlocking(bool start, bool excludeUserInput);

    QAtomicInt m_entries;
    bool m_stop = false;
    mutable QReadWriteLock m_lock;
};

extern template class UTILSDLL_EXPORT CRunnableItem<QRunnable>;

/// A work item that announces its life through signals and can be stopped through a slot.
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
/// Long work belongs on a pool of its own: the global pool also serves Qt's painting.
///
/// \par Threads
/// started() and finished() are emitted in the thread that runs the item, wantsToStop() in the one that
/// calls stop(); the object itself lives in the thread that made it, so receivers there get them queued.
/// \par Life
/// See CRunnableItem. The executable section is left **before** finished() is emitted: after a wait run()
/// is still about to emit. An item with setAutoDelete(false) may be deleted after
/// QThreadPool::waitForDone(), or with deleteLater() on finished(), not right after a wait. An item with a
/// parent is not for auto-deletion.
class UTILSDLL_EXPORT CQRunnableItem : public QObject, public CRunnableItem<QRunnable>
{
    Q_OBJECT

public:
    /// See CRunnableItem and \b Life above for when it may be called.
    ~CQRunnableItem() override;

    /// The work: polls stopRequired() and returns early. Runs in the pool's thread.
    /// \return whether it succeeded
    virtual bool doRun() = 0;

protected:
    /// Called by stop(), in its thread, before the stop is asked for.
    virtual void doBeforeStopped();
    /// Called by stop(), in its thread, after wantsToStop(); to wake work that sleeps, for instance.
    virtual void doStopped();

    CQRunnableItem();
    /// \param emitSignals false: the item emits no signal at all
    explicit CQRunnableItem(bool emitSignals, QObject* parent = nullptr);

    /// Whether the item emits signals.
    bool emitSignals() const;

Q_SIGNALS:
    /// The work is about to begin.
    void started();
    /// A stop was asked for. A second stop() is silent; two threads that stop at the same moment may both
    /// announce it.
    void wantsToStop();
    /// The work has ended. Not emitted when it threw or never began.
    /// \param bOk      what the work returned
    /// \param bStopped whether a stop was required when it ended
    void finished(bool bOk, bool bStopped);

public Q_SLOTS:
    /// Asks the work to stop; does not wait. Without effect if a stop is required already.
    void stop();
    /// Runs the work in the calling thread, as a pool does. Returns at once, without a signal, when a stop
    /// is required already. An exception of the work passes through after the executable section has been
    /// left; in a pool's thread that ends the program.
    void run() override;

private:
    const bool m_emitSignals;
};
