#pragma once

#include <cstddef>

/// Counts what the calling thread allocates in the whole process, libraries included, while it lives. Made
/// for systems with the GNU C library; a program that uses it is linked with AllocationCounter.cpp.
class AllocationCounter
{
public:
    AllocationCounter();
    ~AllocationCounter();
    AllocationCounter(const AllocationCounter&) = delete;
    AllocationCounter& operator=(const AllocationCounter&) = delete;

    /// Allocations since the counter was made.
    std::size_t count() const;
};
