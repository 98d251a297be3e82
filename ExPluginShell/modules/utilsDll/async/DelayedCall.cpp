#include "DelayedCall.h"

#include "DelayedInvoker.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <QThreadStorage>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <mutex>
#include <vector>

namespace
{

constexpr std::chrono::milliseconds unloadLimit{1000};

} // namespace

/// Holds one invoker for each thread that has requested a call. The end of a thread deletes its invoker.
class Q_DECL_HIDDEN CDelayedCall::Store
{
public:
    Store() { living = this; }
    ~Store();

    /// The invoker of the calling thread, or null.
    static CDelayedInvoker* invoker();
    static void schedule(int msec, QObject* object, const char* method, const QVariantList& args,
                         bool singleShot);

private:
    /// What Qt keeps for a thread. When the store ends, slots of other threads are left behind without an
    /// invoker; they are filled again if the library is loaded again.
    struct Slot {
        ~Slot();
        Store* store = nullptr;
        std::unique_ptr<CDelayedInvoker> invoker;
    };

    CDelayedInvoker& invokerOrNew();
    void endOtherThreads();
    std::vector<QPointer<QObject>> askBusyThreads();

    // Outside the object, because static objects that outlive it may still use delayed calls.
    static std::atomic<Store*> living;
    static std::atomic<bool> hasEnded;

    std::timed_mutex m_mutex; // for the list below; a call does not lock it
    std::vector<Slot*> m_filledSlots;
    QThreadStorage<Slot*> m_slots;
};

std::atomic<CDelayedCall::Store*> CDelayedCall::Store::living{nullptr};
std::atomic<bool> CDelayedCall::Store::hasEnded{false};

CDelayedCall::Store::Slot::~Slot()
{
    if (store) {
        const std::lock_guard lock(store->m_mutex);
        auto& slots = store->m_filledSlots;
        slots.erase(std::remove(slots.begin(), slots.end(), this), slots.end());
    }
}

CDelayedInvoker* CDelayedCall::Store::invoker()
{
    Store* const store = living;
    Slot* const slot = store ? store->m_slots.localData() : nullptr;
    return slot ? slot->invoker.get() : nullptr;
}

CDelayedInvoker& CDelayedCall::Store::invokerOrNew()
{
    Slot* slot = m_slots.localData();
    if (!slot) {
        slot = new Slot;
        m_slots.setLocalData(slot);
    }
    if (!slot->invoker) {
        slot->invoker = std::make_unique<CDelayedInvoker>();
        slot->store = this;
        const std::lock_guard lock(m_mutex);
        m_filledSlots.push_back(slot);
    }
    return *slot->invoker;
}

void CDelayedCall::Store::schedule(int msec, QObject* object, const char* method, const QVariantList& args,
                                   bool singleShot)
{
    if (object && method && !hasEnded) {
        instance().m_store->invokerOrNew().schedule(msec, object, method, singleShot, args);
    }
}

CDelayedCall::Store::~Store()
{
    hasEnded = true;
    if (m_slots.hasLocalData()) {
        m_slots.setLocalData(nullptr);
    }
    living = nullptr;
    // Without an application object the process is ending, and other threads may have ended.
    if (QCoreApplication::instance()) {
        endOtherThreads();
    }
}

/// Deletes the invokers of all other threads before their code is unloaded.
void CDelayedCall::Store::endOtherThreads()
{
    QDeadlineTimer limit(unloadLimit);
    const auto isGone = [](const QPointer<QObject>& probe) { return probe.isNull(); };
    const std::vector<QPointer<QObject>> probes = askBusyThreads();
    while (!std::all_of(probes.begin(), probes.end(), isGone) && !limit.hasExpired()) {
        QThread::msleep(1);
    }
    std::unique_lock lock(m_mutex, unloadLimit);
    if (lock.owns_lock()) {
        for (const Slot* const slot : m_filledSlots) {
            QCoreApplication::removePostedEvents(slot->invoker.get());
        }
    }
}

/// Deletes the invokers without calls and posts the deletion of the others to their threads.
/// \return one object for each of these threads: Qt deletes it after the invoker, and when it is gone, no
///         code of this library runs in its thread any more
std::vector<QPointer<QObject>> CDelayedCall::Store::askBusyThreads()
{
    std::vector<QPointer<QObject>> probes;
    const std::unique_lock lock(m_mutex, unloadLimit);
    if (!lock.owns_lock()) {
        return probes;
    }
    std::vector<Slot*> busy;
    for (Slot* const slot : m_filledSlots) {
        if (slot->invoker->isIdle()) {
            slot->invoker.reset();
            slot->store = nullptr;
            continue;
        }
        busy.push_back(slot);
        QMetaObject::invokeMethod(
            slot->invoker.get(), [this] { m_slots.setLocalData(nullptr); }, Qt::QueuedConnection);
        probes.emplace_back(new QObject);
        probes.back()->moveToThread(slot->invoker->thread());
        probes.back()->deleteLater();
    }
    m_filledSlots.swap(busy);
    return probes;
}

CDelayedCall::CDelayedCall()
    : m_store(std::make_unique<Store>())
{
}

CDelayedCall::~CDelayedCall() = default;

void CDelayedCall::invoke(int msec, QObject* object, const char* method, bool singleShot)
{
    Store::schedule(msec, object, method, {}, singleShot);
}

void CDelayedCall::invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, bool singleShot)
{
    Store::schedule(msec, object, method, {a1}, singleShot);
}

void CDelayedCall::invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2,
                                  bool singleShot)
{
    Store::schedule(msec, object, method, {a1, a2}, singleShot);
}

void CDelayedCall::invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2, Arg a3,
                                  bool singleShot)
{
    Store::schedule(msec, object, method, {a1, a2, a3}, singleShot);
}

void CDelayedCall::invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2, Arg a3,
                                  Arg a4, bool singleShot)
{
    Store::schedule(msec, object, method, {a1, a2, a3, a4}, singleShot);
}

void CDelayedCall::invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2, Arg a3,
                                  Arg a4, Arg a5, bool singleShot)
{
    Store::schedule(msec, object, method, {a1, a2, a3, a4, a5}, singleShot);
}

void CDelayedCall::invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2, Arg a3,
                                  Arg a4, Arg a5, Arg a6, bool singleShot)
{
    Store::schedule(msec, object, method, {a1, a2, a3, a4, a5, a6}, singleShot);
}

void CDelayedCall::invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2, Arg a3,
                                  Arg a4, Arg a5, Arg a6, Arg a7, bool singleShot)
{
    Store::schedule(msec, object, method, {a1, a2, a3, a4, a5, a6, a7}, singleShot);
}

void CDelayedCall::invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2, Arg a3,
                                  Arg a4, Arg a5, Arg a6, Arg a7, Arg a8, bool singleShot)
{
    Store::schedule(msec, object, method, {a1, a2, a3, a4, a5, a6, a7, a8}, singleShot);
}

void CDelayedCall::invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2, Arg a3,
                                  Arg a4, Arg a5, Arg a6, Arg a7, Arg a8, Arg a9, bool singleShot)
{
    Store::schedule(msec, object, method, {a1, a2, a3, a4, a5, a6, a7, a8, a9}, singleShot);
}

void CDelayedCall::discard(QObject* object, const char* method)
{
    CDelayedInvoker* const invoker = object ? Store::invoker() : nullptr;
    if (invoker) {
        invoker->discard(object, method);
    }
}

bool CDelayedCall::isActive(QObject* object, const char* method)
{
    CDelayedInvoker* const invoker = object && method ? Store::invoker() : nullptr;
    return invoker && invoker->isActive(object, method);
}

template class UTILSDLL_TEMPLATE_DEFINED Singleton<CDelayedCall>;
