#pragma once

#include "ExcludeUserInpuEventLoop.h"

/// Swallows the user's input to an object for a scope. Internal, not installed.
///
/// The filter is a child of its target: if that dies within the scope, there is nothing left to remove at
/// the end.
class ScopedInputFilter
{
public:
    /// A null \a target: nothing is filtered.
    explicit ScopedInputFilter(QObject* target)
        : m_filter(target ? new CExcludeUserInpuEventsFilter(target) : nullptr)
    {
    }
    ~ScopedInputFilter() { delete m_filter; }
    ScopedInputFilter(const ScopedInputFilter&) = delete;
    ScopedInputFilter& operator=(const ScopedInputFilter&) = delete;

private:
    QPointer<CExcludeUserInpuEventsFilter> m_filter;
};
