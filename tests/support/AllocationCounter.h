#pragma once

#include <cstddef>

/// Counts the allocations of the calling thread, in all libraries of the process, during its lifetime. Needs
/// the GNU C library; a program that uses it is linked with AllocationCounter.cpp.
class AllocationCounter
{
public:
    AllocationCounter();
    ~AllocationCounter();
    AllocationCounter(const AllocationCounter&) = delete;
    AllocationCounter& operator=(const AllocationCounter&) = delete;

    /// Allocations since construction.
    std::size_t count() const;
};
