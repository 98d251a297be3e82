#include "OperationCompletionWaiter.h"

#include "frame/Logging.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimer>

#include <limits>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr char unit[] = "OperationCompletionWaiter";
constexpr char withResultConstructor[] =
    "TOLVAN_NAMESPACE::COperationCompletionWaiterWithResult::COperationCompletionWaiterWithResult";

void assertGiven(const void* argument, const char* function, int line)
{
    if (!argument) {
        Logging::reportAssertion(function, unit, line);
    }
}

} // namespace

COperationCompletionWaiter::COperationCompletionWaiter(QObject* sender, const char* signal, QObject* parent)
    : QObject(parent)
{
    constexpr char function[] = "TOLVAN_NAMESPACE::COperationCompletionWaiter::COperationCompletionWaiter";
    assertGiven(sender, function, 16);
    assertGiven(signal, function, 17);
    setSender(sender);
    QObject::connect(sender, signal, this, SLOT(onOperationCompleted()), Qt::AutoConnection);
}

COperationCompletionWaiter::COperationCompletionWaiter(QObject* parent)
    : QObject(parent)
{
}

COperationCompletionWaiter::~COperationCompletionWaiter() = default;

void COperationCompletionWaiter::startWaiting()
{
    if (!m_completed && QAbstractEventDispatcher::instance()) {
        m_loop.exec(QEventLoop::AllEvents);
    }
}

WaitResult COperationCompletionWaiter::startWaitingFor(std::chrono::milliseconds limit)
{
    if (!m_completed && !QAbstractEventDispatcher::instance()) {
        return WaitResult::NoEventLoop;
    }
    // The signal of a sender that has been deleted since may still be queued.
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    if (m_completed) {
        return WaitResult::Done;
    }
    if (isSenderGone()) {
        return WaitResult::SenderGone;
    }
    QTimer timer;
    QEventLoop* const loop = &m_loop;
    timer.setSingleShot(true);
    connect(&timer, SIGNAL(timeout()), loop, SLOT(quit()));
    const auto longest = static_cast<long long>(std::numeric_limits<int>::max());
    timer.start(static_cast<int>(qBound(0LL, static_cast<long long>(limit.count()), longest)));
    const QMetaObject::Connection senderGoes =
        m_sender ? connect(m_sender, SIGNAL(destroyed(QObject*)), loop, SLOT(quit()))
                 : QMetaObject::Connection();
    loop->exec(QEventLoop::AllEvents);
    disconnect(senderGoes);
    return m_completed        ? WaitResult::Done
           : isSenderGone()   ? WaitResult::SenderGone
           : timer.isActive() ? WaitResult::Stopped
                              : WaitResult::TimedOut;
}

void COperationCompletionWaiter::setSender(const QObject* sender)
{
    m_sender = sender;
    m_knowsSender = true;
}

bool COperationCompletionWaiter::isSenderGone() const
{
    return m_knowsSender && !m_sender;
}

bool COperationCompletionWaiter::isOperationCompleted() const
{
    return m_completed;
}

void COperationCompletionWaiter::onOperationCompleted()
{
    m_completed = true;
    if (m_loop.isRunning()) {
        m_loop.exit(0);
    }
}

COperationCompletionWaiterWithResult::COperationCompletionWaiterWithResult(const QObject* sender,
                                                                           const char* signal,
                                                                           QObject* parent)
    : COperationCompletionWaiter(parent)
{
    assertGiven(sender, withResultConstructor, 43);
    assertGiven(signal, withResultConstructor, 44);
    setSender(sender);
    QObject::connect(sender, signal, this, SLOT(onOperationCompleted(bool)), Qt::AutoConnection);
}

COperationCompletionWaiterWithResult::~COperationCompletionWaiterWithResult() = default;

bool COperationCompletionWaiterWithResult::isOperationSuccess() const
{
    if (!isOperationCompleted()) {
        Logging::reportAssertion("TOLVAN_NAMESPACE::COperationCompletionWaiterWithResult::isOperationSuccess",
                                 unit, 52);
    }
    return m_success;
}

void COperationCompletionWaiterWithResult::onOperationCompleted(bool ok)
{
    m_success = ok;
    COperationCompletionWaiter::onOperationCompleted();
}

} // namespace TOLVAN_NAMESPACE
