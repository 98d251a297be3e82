#pragma once

#include "utilsdll_global.h"
#include "Waiting.h"

#include <QEventLoop>
#include <QObject>
#include <QPointer>

#include <chrono>

namespace TOLVAN_NAMESPACE
{

/// Waits until an object emits a signal, and processes events until then.
/// \code
/// COperationCompletionWaiter waiter(upload, SIGNAL(done())); // before the start: no signal is missed
/// upload->start();
/// waiter.startWaiting();
/// \endcode
/// A waiter serves one operation: once completed, it stays completed. Use startWaitingFor() if the signal
/// may be missing.
///
/// \warning startWaiting() runs a nested event loop: everything that is due in the thread runs inside it, the
/// user's clicks and keys included. The user can start the operation a second time, and objects may have been
/// deleted when it returns. It has no time-out: without the signal it ends only with the thread's event loop.
/// See CExcludeUserInpuEventLoop for a wait with a time-out and without user input.
/// \par Threads
/// Create and use a waiter in the waiting thread. The sender may live in any thread.
class UTILSDLL_EXPORT COperationCompletionWaiter : public QObject
{
    Q_OBJECT

public:
    /// A null \a sender or \a signal is reported as an assertion. With a null argument or a signal that does
    /// not exist the waiter is never completed; Qt writes a warning.
    /// \param sender the object that will emit the signal, not owned
    /// \param signal its signal as written by SIGNAL()
    /// \param parent owner of the waiter
    COperationCompletionWaiter(QObject* sender, const char* signal, QObject* parent = nullptr);
    ~COperationCompletionWaiter() override;

    /// Blocks its caller until the signal has been emitted and processes all events of the thread, user input
    /// included. Returns at once if the signal was emitted before. Also returns, without completion, when the
    /// thread's event loop is quit, and at once in a thread without an event dispatcher.
    void startWaiting();

    /// startWaiting() for a limited time.
    /// \param limit longest duration of the wait; 0 or less processes only the events that are due
    /// \return WaitResult::Done if the signal was emitted; WaitResult::TimedOut; WaitResult::SenderGone if
    ///         the sender is null or was deleted, WaitResult::Stopped if the thread's event loop was quit,
    ///         WaitResult::NoEventLoop at once in a thread without an event dispatcher
    WaitResult startWaitingFor(std::chrono::milliseconds limit);

protected:
    /// For derived classes that connect a signal themselves.
    explicit COperationCompletionWaiter(QObject* parent = nullptr);

    /// Whether the signal has been emitted.
    bool isOperationCompleted() const;

protected Q_SLOTS:
    /// Marks the operation as completed and ends the wait.
    void onOperationCompleted();

private:
    friend class COperationCompletionWaiterWithResult;

    void setSender(const QObject* sender);
    bool isSenderGone() const;

    bool m_completed = false;
    QEventLoop m_loop;
    QPointer<const QObject> m_sender;
    bool m_knowsSender = false; // false in derived classes that connect a signal themselves
};

/// A COperationCompletionWaiter for a signal whose first argument reports success, such as `finished(bool)`.
class UTILSDLL_EXPORT COperationCompletionWaiterWithResult : public COperationCompletionWaiter
{
    Q_OBJECT

public:
    /// Like the constructor of the base class. The first argument of \a signal has to be a bool.
    COperationCompletionWaiterWithResult(const QObject* sender, const char* signal,
                                         QObject* parent = nullptr);
    ~COperationCompletionWaiterWithResult() override;

    /// The signal's first argument. Before completion it reports an assertion and returns false.
    bool isOperationSuccess() const;

private Q_SLOTS:
    void onOperationCompleted(bool ok);

private:
    bool m_success = false;
};

} // namespace TOLVAN_NAMESPACE
