#pragma once

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
#else
inline void __tsan_acquire(void*) {}
inline void __tsan_release(void*) {}
#endif

// Marks an order for the thread sanitizer that it cannot see in Qt, which is built without it: what one
// thread wrote before handOver() is visible to another one after takeOver() of the same object. Empty
// in other builds.

inline void handOver(void* object)
{
    __tsan_release(object);
}
inline void takeOver(void* object)
{
    __tsan_acquire(object);
}

/// The object handed over by all work that pools have finished.
inline char finishedWork;

/// An item that a pool hands over under its own lock, both ways; start it with startOn().
template <class Item>
class TakenOver : public Item
{
public:
    using Item::Item;
    void run() override
    {
        takeOver(this);
        Item::run();
        handOver(&finishedWork);
    }
};

template <class Item>
void startOn(QThreadPool& pool, Item& item)
{
    handOver(&item);
    pool.start(&item);
}

/// Whether all items of the pool have finished within 30 s.
inline bool finishOn(QThreadPool& pool)
{
    const bool finished = pool.waitForDone(30000);
    takeOver(&finishedWork);
    return finished;
}
