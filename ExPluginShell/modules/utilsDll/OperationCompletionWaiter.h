#pragma once

#include "utilsdll_global.h"

#include <QEventLoop>
#include <QObject>

namespace TOLVAN_NAMESPACE
{

/// Waits until an object emits a signal, with the event loop turning.
/// \code
/// COperationCompletionWaiter waiter(upload, SIGNAL(done())); // before the start: no signal is missed
/// upload->start();
/// waiter.startWaiting();
/// \endcode
/// One waiter serves one operation: completed once, it stays completed.
///
/// \warning startWaiting() is a nested event loop: whatever is due in the program runs inside it, the
/// user's clicks and keys included, so the operation may be started a second time by the user and objects
/// may be gone when it returns. It has no time-out: if the signal never comes it ends only with the
/// program's event loop. See CExcludeUserInpuEventLoop for a wait with a time-out that keeps the user out.
/// \par Threads
/// Make and use a waiter in the waiting thread. The sender may live in any thread.
class UTILSDLL_EXPORT COperationCompletionWaiter : public QObject
{
    Q_OBJECT

public:
    /// \param sender the object that will emit, not owned
    /// \param signal its signal as written by SIGNAL()
    ///
    /// A null argument is reported as an assertion; it, or a signal that does not exist, leaves a waiter
    /// that nothing will ever complete (Qt's own warning tells).
    COperationCompletionWaiter(QObject* sender, const char* signal, QObject* parent = nullptr);
    ~COperationCompletionWaiter() override;

    /// Blocks its caller until the signal has come, processing all events of the thread, user input as
    /// well. Returns at once if it has come before. Also returns, incomplete, when the application is told
    /// to quit.
    void startWaiting();

protected:
    /// For derived classes, which make their own connection.
    explicit COperationCompletionWaiter(QObject* parent = nullptr);

    /// Whether the signal has come.
    bool isOperationCompleted() const;

protected Q_SLOTS:
    /// Marks the operation as completed and ends the wait.
    void onOperationCompleted();

private:
    bool m_completed = false;
    QEventLoop m_loop;
};

/// A COperationCompletionWaiter for a signal whose first argument tells success, such as `finished(bool)`.
class UTILSDLL_EXPORT COperationCompletionWaiterWithResult : public COperationCompletionWaiter
{
    Q_OBJECT

public:
    /// Like the base class; \a signal has to carry a bool as its first argument.
    COperationCompletionWaiterWithResult(const QObject* sender, const char* signal,
                                         QObject* parent = nullptr);
    ~COperationCompletionWaiterWithResult() override;

    /// The bool that the signal carried. Asking before completion is reported as an assertion and answered
    /// with false.
    bool isOperationSuccess() const;

private Q_SLOTS:
    void onOperationCompleted(bool ok);

private:
    bool m_success = false;
};

} // namespace TOLVAN_NAMESPACE
