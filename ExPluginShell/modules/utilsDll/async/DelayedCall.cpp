#include "DelayedCall.h"

#include "frame/Logging.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QPointer>
#include <QThread>
#include <QThreadStorage>
#include <QTimerEvent>
#include <QVector>

#include <algorithm>
#include <array>
#include <chrono>
#include <map>
#include <mutex>
#include <vector>

using TOLVAN_NAMESPACE::Logging::reportAssertion;

namespace
{

constexpr int maxArguments = 9;
constexpr std::chrono::milliseconds unloadLimit{1000};

class CDelayedInvoker;

/// The invokers of all threads. Locked when a thread gets or loses its invoker, never for a call.
struct InvokerRegistry {
    std::timed_mutex mutex;
    QVector<CDelayedInvoker*> invokers;
};

/// The pending calls of one thread.
class CDelayedInvoker : public QObject
{
public:
    struct methodData {
        QPointer<QObject> target;
        QObject* targetKey;
        const char* method;
        bool singleShot;
        QVariantList args;

        bool isLiveFor(const QObject* object) const { return target && targetKey == object; }
        static bool invokeMethod(QObject* target, const char* method, const QVariantList& args);
    };

    explicit CDelayedInvoker(InvokerRegistry& registry);
    ~CDelayedInvoker() override;

    void schedule(int msec, QObject* object, const char* method, bool singleShot, const QVariantList& args);
    void discard(QObject* object, const char* method);
    bool isActive(QObject* object, const char* method);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    using CallTable = std::map<int, methodData>;
    using ObjectIndex = std::multimap<QObject*, int>;

    ObjectIndex::iterator findLive(ObjectIndex::iterator entry, const QObject* object, const char* method);
    void forget(CallTable::iterator call);

    CallTable m_calls;
    ObjectIndex m_objects;
    InvokerRegistry& m_registry;
};

CDelayedInvoker::CDelayedInvoker(InvokerRegistry& registry)
    : m_registry(registry)
{
    const std::lock_guard lock(m_registry.mutex);
    m_registry.invokers.append(this);
}

CDelayedInvoker::~CDelayedInvoker()
{
    const std::lock_guard lock(m_registry.mutex);
    m_registry.invokers.removeOne(this);
}

void CDelayedInvoker::schedule(int msec, QObject* object, const char* method, bool singleShot,
                               const QVariantList& args)
{
    const auto entry = findLive(m_objects.lower_bound(object), object, method);
    if (entry == m_objects.end()) {
        const int id = startTimer(msec, Qt::CoarseTimer);
        if (id >= 1) {
            m_calls.insert_or_assign(id, methodData{object, object, method, singleShot, args});
            m_objects.emplace(object, id);
        }
        return;
    }
    // The new call takes over the nodes of the one that it replaces: debouncing allocates nothing.
    killTimer(entry->second);
    auto call = m_calls.extract(entry->second);
    const int id = startTimer(msec, Qt::CoarseTimer);
    if (id < 1) {
        m_objects.erase(entry);
        return;
    }
    call.key() = id;
    call.mapped().method = method;
    call.mapped().singleShot = singleShot;
    call.mapped().args = args;
    m_calls.insert(std::move(call));
    entry->second = id;
}

void CDelayedInvoker::discard(QObject* object, const char* method)
{
    auto entry = findLive(m_objects.lower_bound(object), object, method);
    while (entry != m_objects.end()) {
        killTimer(entry->second);
        m_calls.erase(entry->second);
        entry = m_objects.erase(entry);
        entry = method ? m_objects.end() : findLive(entry, object, method);
    }
}

bool CDelayedInvoker::isActive(QObject* object, const char* method)
{
    return findLive(m_objects.lower_bound(object), object, method) != m_objects.end();
}

/// The first live call of \a object and \a method from \a entry on, or end() of the index. A null \a method
/// matches every method.
CDelayedInvoker::ObjectIndex::iterator CDelayedInvoker::findLive(ObjectIndex::iterator entry,
                                                                 const QObject* object, const char* method)
{
    for (; entry != m_objects.end() && entry->first == object; ++entry) {
        const auto call = m_calls.find(entry->second);
        if (call != m_calls.end() && call->second.isLiveFor(object) &&
            (!method || qstrcmp(method, call->second.method) == 0)) {
            return entry;
        }
    }
    return m_objects.end();
}

void CDelayedInvoker::forget(CallTable::iterator call)
{
    // The key is used because the target of a destroyed object is null, and its entry would never be found.
    const auto [begin, end] = m_objects.equal_range(call->second.targetKey);
    const auto entry = std::find_if(
        begin, end, [id = call->first](const auto& candidate) { return candidate.second == id; });
    if (entry != end) {
        m_objects.erase(entry);
    }
    m_calls.erase(call);
}

void CDelayedInvoker::timerEvent(QTimerEvent* event)
{
    const auto call = event ? m_calls.find(event->timerId()) : m_calls.end();
    if (call == m_calls.end()) {
        QObject::timerEvent(event);
        return;
    }
    // A copy, because the called method may discard or replace any call, also this one.
    const methodData due = call->second;
    if (due.singleShot) {
        forget(call);
    }
    if (due.target && !due.method) {
        reportAssertion("`anonymous-namespace'::CDelayedInvoker::timerEvent", "DelayedCall", 216);
    } else if (due.target) {
        methodData::invokeMethod(due.target, due.method, due.args);
    }
    if (due.singleShot) {
        event->accept();
        killTimer(event->timerId());
    }
    QObject::timerEvent(event);
}

bool CDelayedInvoker::methodData::invokeMethod(QObject* target, const char* method, const QVariantList& args)
{
    if (!target || !method) {
        return false;
    }
    if (args.size() > maxArguments) {
        reportAssertion("`anonymous-namespace'::CDelayedInvoker::methodData::invokeMethod", "DelayedCall",
                        258);
        return false;
    }
    std::array<QGenericArgument, maxArguments> a;
    std::transform(args.begin(), args.end(), a.begin(),
                   [](const QVariant& arg) { return QGenericArgument(arg.typeName(), arg.constData()); });
    return QMetaObject::invokeMethod(target, method, a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8]);
}

} // namespace

/// Holds one invoker for each thread that has asked for a call. The end of a thread deletes its invoker.
class Q_DECL_HIDDEN CDelayedCall::Store
{
public:
    ~Store();

    /// The invoker of the calling thread, or null.
    CDelayedInvoker* current() { return m_invokers.localData(); }
    CDelayedInvoker& currentOrNew();

    static void schedule(int msec, QObject* object, const char* method, const QVariantList& args,
                         bool singleShot);

private:
    void endOtherThreads();

    InvokerRegistry m_registry;
    QThreadStorage<CDelayedInvoker*> m_invokers;
};

CDelayedInvoker& CDelayedCall::Store::currentOrNew()
{
    CDelayedInvoker* invoker = m_invokers.localData();
    if (!invoker) {
        invoker = new CDelayedInvoker(m_registry);
        m_invokers.setLocalData(invoker);
    }
    return *invoker;
}

void CDelayedCall::Store::schedule(int msec, QObject* object, const char* method, const QVariantList& args,
                                   bool singleShot)
{
    if (object && method) {
        instance().m_store->currentOrNew().schedule(msec, object, method, singleShot, args);
    }
}

CDelayedCall::Store::~Store()
{
    if (m_invokers.hasLocalData()) {
        m_invokers.setLocalData(nullptr);
    }
    // Without an application object the process is ending, and other threads may have ended.
    if (QCoreApplication::instance()) {
        endOtherThreads();
    }
}

/// Makes every other thread delete its invoker before the invoker's code is unloaded.
void CDelayedCall::Store::endOtherThreads()
{
    QDeadlineTimer limit(unloadLimit);
    std::unique_lock lock(m_registry.mutex, unloadLimit);
    if (!lock.owns_lock() || m_registry.invokers.isEmpty()) {
        return;
    }
    // Qt deletes a probe after the invoker of the same thread: when the probe is gone, no code of this
    // library runs in that thread any more.
    std::vector<QPointer<QObject>> probes;
    for (CDelayedInvoker* invoker : qAsConst(m_registry.invokers)) {
        QMetaObject::invokeMethod(
            invoker, [this] { m_invokers.setLocalData(nullptr); }, Qt::QueuedConnection);
        probes.emplace_back(new QObject);
        probes.back()->moveToThread(invoker->thread());
        probes.back()->deleteLater();
    }
    lock.unlock();
    const auto isGone = [](const QPointer<QObject>& probe) { return probe.isNull(); };
    while (!std::all_of(probes.begin(), probes.end(), isGone) && !limit.hasExpired()) {
        QThread::msleep(1);
    }
    if (lock.try_lock_for(unloadLimit)) {
        for (CDelayedInvoker* invoker : qAsConst(m_registry.invokers)) {
            QCoreApplication::removePostedEvents(invoker);
        }
    }
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
    CDelayedInvoker* const invoker = object ? instance().m_store->current() : nullptr;
    if (invoker) {
        invoker->discard(object, method);
    }
}

bool CDelayedCall::isActive(QObject* object, const char* method)
{
    CDelayedInvoker* const invoker = object && method ? instance().m_store->current() : nullptr;
    return invoker && invoker->isActive(object, method);
}

template class Singleton<CDelayedCall>;
