#include "AllocationCounter.h"

#include <cerrno>
#include <cstdlib>

namespace
{

thread_local bool counting = false;
thread_local std::size_t allocations = 0;

void noteAllocation()
{
    if (counting) {
        ++allocations;
    }
}

} // namespace

AllocationCounter::AllocationCounter()
{
    allocations = 0;
    counting = true;
}

AllocationCounter::~AllocationCounter()
{
    counting = false;
}

std::size_t AllocationCounter::count() const
{
    return allocations;
}

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)

// Under a sanitizer, its allocator hooks count the allocations.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void*, std::size_t),
                                                         void (*onFree)(const volatile void*));

namespace
{
[[maybe_unused]] const int installed = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void*, std::size_t) { noteAllocation(); }, [](const volatile void*) {});
} // namespace

#else

// These definitions replace those of the C library in the whole process; operator new uses them as well.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* old, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);

void* malloc(std::size_t size)
{
    noteAllocation();
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size)
{
    noteAllocation();
    return __libc_calloc(count, size);
}

void* realloc(void* old, std::size_t size)
{
    noteAllocation();
    return __libc_realloc(old, size);
}

void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    noteAllocation();
    return __libc_memalign(alignment, size);
}

int posix_memalign(void** result, std::size_t alignment, std::size_t size)
{
    noteAllocation();
    *result = __libc_memalign(alignment, size);
    return *result ? 0 : ENOMEM;
}
}

#endif
