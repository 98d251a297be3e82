#pragma once

#include <QRunnable>
#include <QThreadPool>

#if defined(__SANITIZE_THREAD__)
#define TOLVAN_THREAD_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define TOLVAN_THREAD_SANITIZER 1
#endif
#endif

#ifdef TOLVAN_THREAD_SANITIZER
extern "C" void __tsan_acquire(void* address);
extern "C" void __tsan_release(void* address);
#endif

/// Tells the thread sanitizer what it can't see in a toolkit that is not built with it: a pool hands an item
/// over under its own lock, so what was written before the start is there when the item runs.
inline void handOver(QRunnable& item)
{
#ifdef TOLVAN_THREAD_SANITIZER
    __tsan_release(&item);
#else
    Q_UNUSED(item)
#endif
}

/// The other end of handOver().
inline void takeOver(QRunnable& item)
{
#ifdef TOLVAN_THREAD_SANITIZER
    __tsan_acquire(&item);
#else
    Q_UNUSED(item)
#endif
}

/// An item that takes itself over when a pool runs it.
template <class Item>
class TakenOver : public Item
{
public:
    using Item::Item;
    void run() override
    {
        takeOver(*this);
        Item::run();
    }
};

/// Starts an item of a TakenOver class.
inline void startOn(QThreadPool& pool, QRunnable& item)
{
    handOver(item);
    pool.start(&item);
}
