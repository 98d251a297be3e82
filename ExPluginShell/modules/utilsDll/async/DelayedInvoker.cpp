#include "DelayedInvoker.h"

#include "frame/Logging.h"

#include <QScopeGuard>
#include <QTimerEvent>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

using TOLVAN_NAMESPACE::Logging::reportAssertion;

namespace
{

constexpr int maxArguments = 9;

} // namespace

void CDelayedInvoker::schedule(int msec, QObject* object, const char* method, bool singleShot,
                               const QVariantList& args)
{
    const auto update = qScopeGuard([this] { updateLoad(); });
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
    // Destroyed last, because the destructor of an argument may use delayed calls.
    const QVariantList replaced = std::exchange(call.mapped().args, args);
    const int id = startTimer(msec, Qt::CoarseTimer);
    if (id < 1) {
        m_objects.erase(entry);
        return;
    }
    call.key() = id;
    call.mapped().method = method;
    call.mapped().singleShot = singleShot;
    m_calls.insert(std::move(call));
    entry->second = id;
}

void CDelayedInvoker::discard(QObject* object, const char* method)
{
    // Destroyed last, because the destructor of an argument may use delayed calls.
    std::vector<CallTable::node_type> discarded;
    auto entry = findLive(m_objects.lower_bound(object), object, method);
    while (entry != m_objects.end()) {
        killTimer(entry->second);
        discarded.push_back(m_calls.extract(entry->second));
        entry = m_objects.erase(entry);
        entry = method ? m_objects.end() : findLive(entry, object, method);
    }
    updateLoad();
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
    ++m_dispatching;
    const auto update = qScopeGuard([this] {
        --m_dispatching;
        updateLoad();
    });
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
