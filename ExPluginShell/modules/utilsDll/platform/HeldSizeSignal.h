#pragma once

#include <csignal>

namespace TOLVAN_NAMESPACE::Platform
{

/// While it lives, a write of this thread that passes the process's file size limit fails with EFBIG. Without it the
/// system ends the process with a signal. Unix only.
class HeldSizeSignal
{
public:
    HeldSizeSignal();
    ~HeldSizeSignal();
    HeldSizeSignal(const HeldSizeSignal&) = delete;
    HeldSizeSignal& operator=(const HeldSizeSignal&) = delete;

private:
    sigset_t m_signal;
    sigset_t m_before;
    bool m_wasPending;
};

} // namespace TOLVAN_NAMESPACE::Platform
