#include "OperationCompletionWaiter.h"

#include "frame/Logging.h"

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
    QObject::connect(sender, signal, this, SLOT(onOperationCompleted()), Qt::AutoConnection);
}

COperationCompletionWaiter::COperationCompletionWaiter(QObject* parent)
    : QObject(parent)
{
}

COperationCompletionWaiter::~COperationCompletionWaiter() = default;

void COperationCompletionWaiter::startWaiting()
{
    if (!m_completed) {
        m_loop.exec(QEventLoop::AllEvents);
    }
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
