#pragma once

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace TOLVAN_NAMESPACE
{

/// Runs pieces of work on several threads and returns them in the order in which they were added, so that the
/// result does not depend on the number of threads. Internal.
///
/// One thread adds and takes. It works as well while it waits, so without helpers everything runs in it.
/// \tparam Piece has `void work()`, called once in any thread, and `qint64 memory() const`
template <class Piece>
class OrderedWork
{
public:
    /// \param helpers threads beside the one that adds and takes
    /// \param memory  what all pieces that are added and not taken may need in all; one piece may exceed it
    OrderedWork(int helpers, long long memory)
        : m_memory(memory)
    {
        try {
            for (int i = 0; i < helpers; ++i) {
                m_threads.emplace_back([this] { help(); });
            }
        } catch (const std::system_error&) {
            // The system has no more threads: those there are do the work.
        }
    }
    /// Pieces that no thread has begun are dropped.
    ~OrderedWork()
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_next = m_slots.size();
            m_ending = true;
        }
        m_changed.notify_all();
        for (std::thread& thread : m_threads) {
            thread.join();
        }
    }
    OrderedWork(const OrderedWork&) = delete;
    OrderedWork& operator=(const OrderedWork&) = delete;

    bool isEmpty() const { return m_slots.empty(); }
    /// Whether a piece has to be taken before one with this need of memory may be added.
    bool isFull(long long memory) const
    {
        return !m_slots.empty() && (m_inWork + memory > m_memory || m_slots.size() >= longestQueue);
    }
    void add(std::unique_ptr<Piece> piece)
    {
        m_inWork += piece->memory();
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_slots.push_back({std::move(piece), false});
        }
        m_changed.notify_one();
    }
    /// The first piece, when its work is done.
    std::unique_ptr<Piece> take()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        while (!m_slots.front().done) {
            if (m_next < m_slots.size()) {
                workOnNext(lock);
            } else {
                m_changed.wait(lock);
            }
        }
        std::unique_ptr<Piece> piece = std::move(m_slots.front().piece);
        m_slots.pop_front();
        --m_next;
        m_inWork -= piece->memory();
        return piece;
    }

private:
    static constexpr std::size_t longestQueue = 64;

    struct Slot {
        std::unique_ptr<Piece> piece;
        bool done;
    };

    void workOnNext(std::unique_lock<std::mutex>& lock)
    {
        Slot& slot = m_slots[m_next++]; // stays in place while others are added behind and taken before it
        lock.unlock();
        slot.piece->work();
        lock.lock();
        slot.done = true;
        m_changed.notify_all();
    }
    void help()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        while (!m_ending) {
            if (m_next < m_slots.size()) {
                workOnNext(lock);
            } else {
                m_changed.wait(lock);
            }
        }
    }

    const long long m_memory;
    long long m_inWork = 0; ///< used by the adding thread only, as is the number of slots outside the lock
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Slot> m_slots;
    std::size_t m_next = 0; ///< the first slot that no thread has begun
    bool m_ending = false;
    std::vector<std::thread> m_threads;
};

} // namespace TOLVAN_NAMESPACE
