#pragma once

#include "ExcludeUserInpuEventLoop.h"

/// Swallows the user's input to an object for a scope. Internal, not installed.
///
/// The filter is a child of its target: a target that is destroyed within the scope deletes it.
class ScopedInputFilter
{
public:
    /// \param target the object without input; null filters nothing
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
