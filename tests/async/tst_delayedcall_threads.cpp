#include "HappensBefore.h"
#include "TestMain.h"

#include <utilsDll/DelayedCall.h>

#include <QThread>

#include <atomic>
#include <thread>

/// Counts its calls and notes the thread of the last one. Read while other threads run.
class SharedTarget : public QObject
{
    Q_OBJECT

public:
    SharedTarget() { handOver(this); }
    std::atomic<int> calls{0};
    std::atomic<QThread*> calledIn{nullptr};

public Q_SLOTS:
    void m()
    {
        takeOver(this);
        calledIn = QThread::currentThread();
        ++calls;
    }
};

/// A thread that runs a function, then its event loop, and has ended at the end of the scope.
class WorkerThread : public QThread
{
public:
    explicit WorkerThread(std::function<void()> function)
        : m_function(std::move(function))
    {
        start();
    }
    ~WorkerThread() override { end(); }
    void end()
    {
        quit();
        QVERIFY(wait(30000));
        takeOver(this);
    }

protected:
    void run() override
    {
        m_function();
        exec();
        handOver(this);
    }

private:
    const std::function<void()> m_function;
};

class DelayedCallThreadsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void callsAreSeenByTheirThreadOnly()
    {
        SharedTarget target;
        CDelayedCall::invoke(1, &target, "m", false);
        bool seen = true;
        std::thread([&] {
            seen = CDelayedCall::isActive(&target, "m");
            CDelayedCall::discard(&target, nullptr);
        }).join();
        QVERIFY(!seen);
        QVERIFY(CDelayedCall::isActive(&target, "m"));
        QTRY_VERIFY(target.calls > 0);
        CDelayedCall::discard(&target, nullptr);
    }

    void targetInAnotherThread()
    {
        SharedTarget here; // asked for there, called here
        WorkerThread worker([&] { CDelayedCall::invoke(1, &here, "m"); });
        QTRY_COMPARE(here.calls.load(), 1);
        QCOMPARE(here.calledIn.load(), QThread::currentThread());
        SharedTarget there; // asked for here, called there
        there.moveToThread(&worker);
        CDelayedCall::invoke(1, &there, "m");
        QTRY_COMPARE(there.calls.load(), 1);
        QCOMPARE(there.calledIn.load(), static_cast<QThread*>(&worker));
        worker.end();
    }

    void threadEndsWithCallsPending()
    {
        SharedTarget target;
        {
            WorkerThread worker([&] {
                CDelayedCall::invoke(1, &target, "m", false);
                CDelayedCall::invoke(100000, &target, "deleteLater");
            });
            QTRY_VERIFY(target.calls > 1);
        }
        QCoreApplication::processEvents();
        const int calls = target.calls;
        QTest::qWait(20);
        QCOMPARE(target.calls.load(), calls);
    }

    void manyThreadsAtOnce()
    {
        constexpr int threads = 8, requests = 500;
        SharedTarget target; // one target for all: the indexes of the threads are their own
        std::vector<std::unique_ptr<WorkerThread>> workers;
        for (int t = 0; t < threads; ++t) {
            workers.push_back(std::make_unique<WorkerThread>([&target] {
                for (int i = 0; i < requests; ++i) {
                    CDelayedCall::invoke(i % 3, &target, "m");
                    CDelayedCall::discard(&target, i % 7 == 0 ? "m" : "none");
                }
                CDelayedCall::invoke(0, &target, "m");
            }));
        }
        QTRY_COMPARE(target.calls.load(), threads);
    }
};

TOLVAN_CORE_TEST_MAIN(DelayedCallThreadsTest)
#include "tst_delayedcall_threads.moc"
