#pragma once

#include <QObject>
#include <QPointer>
#include <QVariant>

#include <atomic>
#include <map>

/// The pending calls of one thread. Internal, not installed. All but isIdle() is called in that thread.
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

    /// Whether no call is pending or being made. May be called from any thread.
    bool isIdle() const { return m_load.load(std::memory_order_acquire) == 0; }

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
    void updateLoad() { m_load.store(m_calls.size() + m_dispatching, std::memory_order_release); }

    CallTable m_calls;
    ObjectIndex m_objects;
    std::size_t m_dispatching = 0; // calls being made, one inside the other
    std::atomic<std::size_t> m_load{0};
};
