// Counts the allocations of each thread, in all libraries of the process that it is linked to. Needs the GNU C
// library.

#include <cstddef>

extern thread_local std::size_t allocations;
thread_local std::size_t allocations = 0;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)

// Under a sanitizer, its allocator hooks count the allocations.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void*, std::size_t),
                                                         void (*onFree)(const volatile void*));

[[maybe_unused]] static const int installed = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void*, std::size_t) { ++allocations; }, [](const volatile void*) {});

#else

// These definitions replace those of the C library in the whole process; operator new uses them as well.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* old, std::size_t size);

void* malloc(std::size_t size)
{
    ++allocations;
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size)
{
    ++allocations;
    return __libc_calloc(count, size);
}

void* realloc(void* old, std::size_t size)
{
    ++allocations;
    return __libc_realloc(old, size);
}
}

#endif
