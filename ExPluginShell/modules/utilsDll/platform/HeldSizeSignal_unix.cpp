#include "platform/HeldSizeSignal.h"

#include <cerrno>
#include <ctime>

namespace TOLVAN_NAMESPACE::Platform
{

HeldSizeSignal::HeldSizeSignal()
{
    sigset_t pending;
    sigpending(&pending);
    m_wasPending = sigismember(&pending, SIGXFSZ) == 1;
    sigemptyset(&m_signal);
    sigaddset(&m_signal, SIGXFSZ);
    pthread_sigmask(SIG_BLOCK, &m_signal, &m_before);
}

HeldSizeSignal::~HeldSizeSignal()
{
    constexpr timespec atOnce = {};
    while (!m_wasPending && sigtimedwait(&m_signal, nullptr, &atOnce) == -1 && errno == EINTR) {
    }
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

} // namespace TOLVAN_NAMESPACE::Platform
