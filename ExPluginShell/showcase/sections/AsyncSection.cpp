#include "Report.h"
#include "Sections.h"

#include <utilsDll/DelayedCall.h>
#include <utilsDll/ExcludeUserInpuEventLoop.h>
#include <utilsDll/OperationCompletionWaiter.h>
#include <utilsDll/RunnableItem.h>

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QThread>
#include <QThreadPool>
#include <QTimer>

#include <memory>
#include <vector>

namespace
{

/// Waits asleep, with timers and queued calls going on.
void turnLoop(int msec)
{
    CExcludeUserInpuEventLoop().exec(msec);
}

/// The same until \a done, ten seconds at most.
template <class Condition>
void turnLoopUntil(Condition done)
{
    for (const QDeadlineTimer limit(10000); !done() && !limit.hasExpired();) {
        turnLoop(5);
    }
}

void showDelayedCalls(Report& report)
{
    QTimer target; // its slot start() counts as well as any other
    int calls = 0;
    target.setSingleShot(true);
    QObject::connect(&target, &QTimer::timeout, [&calls] { ++calls; });
    for (int i = 0; i < 10; ++i) {
        CDelayedCall::invoke(20, &target, "start");
        QThread::msleep(2);
    }
    turnLoopUntil([&] { return calls > 0; });
    turnLoop(40);
    report.check(QStringLiteral("ten requests within 20 ms"), QStringLiteral("calls made: %1").arg(calls),
                 calls == 1);

    calls = 0;
    CDelayedCall::invoke(10, &target, "start", false);
    turnLoopUntil([&] { return calls > 4; });
    CDelayedCall::discard(&target, "start");
    const int beforeDiscard = calls;
    turnLoop(40);
    report.check(
        QStringLiteral("a periodic call, every 10 ms"),
        QStringLiteral("calls made: %1, after discard: %2").arg(beforeDiscard).arg(calls - beforeDiscard),
        beforeDiscard > 4 && calls - beforeDiscard <= 1);
}

/// Counts to ten thousand, unless it is stopped.
class CountingItem : public CQRunnableItem
{
public:
    explicit CountingItem(QAtomicInt& steps)
        : m_steps(steps)
    {
        setAutoDelete(false);
    }

private:
    bool doRun() override
    {
        for (int i = 0; i < 10000; ++i) {
            if (stopRequired()) {
                return false;
            }
            QThread::msleep(1);
            m_steps.ref();
        }
        return true;
    }

    QAtomicInt& m_steps;
};

void showItems(Report& report)
{
    QThreadPool pool; // of its own: the global pool also serves Qt's painting
    QAtomicInt steps(0);
    int finished = 0, stopped = 0;
    std::vector<std::unique_ptr<CountingItem>> items;
    for (int i = 0; i < 6; ++i) {
        items.push_back(std::make_unique<CountingItem>(steps));
        QObject::connect(items.back().get(), &CQRunnableItem::finished, &pool, [&](bool, bool bStopped) {
            ++finished;
            stopped += bStopped;
        });
        pool.start(items.back().get());
    }
    turnLoopUntil([&] { return steps.loadAcquire() > 20; });
    const int progress = steps.loadAcquire();
    for (const auto& item : items) {
        item->stop();
    }
    pool.waitForDone();
    turnLoop(1); // the last announcements
    report.check(
        QStringLiteral("a pool of six work items, stopped"),
        QStringLiteral("progress: %1 of 60,000 steps, stopped at work: %2").arg(progress).arg(stopped),
        progress > 0 && progress < 60000 && finished == stopped);
}

void showWaits(Report& report)
{
    QAtomicInt ticks(0), done(0);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&ticks] { ticks.ref(); });
    timer.start(5);
    const std::unique_ptr<QThread> worker(QThread::create([&] {
        for (int i = 0; i < 1000 && ticks.loadAcquire() < 10; ++i) {
            QThread::msleep(5);
        }
        done.storeRelease(1);
    }));
    worker->start();
    waitNonBlockingAtomicIntValue(done, 1, true);
    worker->wait();
    report.check(QStringLiteral("waiting for a worker, input excluded"),
                 QStringLiteral("a timer ticked %1 times meanwhile").arg(ticks.loadAcquire()),
                 ticks.loadAcquire() >= 10);

    QElapsedTimer clock;
    clock.start();
    CExcludeUserInpuEventLoop loop;
    const int code = loop.exec(50);
    report.check(QStringLiteral("a loop with a time-out of 50 ms"),
                 QStringLiteral("code %1 after %2 ms").arg(code).arg(clock.elapsed()),
                 code == 0 && clock.elapsed() >= 45);
}

void showCompletion(Report& report)
{
    QThread worker;
    QTimer operation;
    operation.setInterval(20);
    operation.setSingleShot(true);
    operation.moveToThread(&worker);
    worker.start();
    TOLVAN_NAMESPACE::COperationCompletionWaiter waiter(&worker, SIGNAL(finished()));
    QObject::connect(&operation, &QTimer::timeout, &worker, &QThread::quit, Qt::DirectConnection);
    QElapsedTimer clock;
    clock.start();
    QMetaObject::invokeMethod(&operation, "start");
    waiter.startWaiting();
    worker.wait();
    report.check(QStringLiteral("completion of a worker's operation"),
                 QStringLiteral("after %1 ms").arg(clock.elapsed()), clock.elapsed() >= 15);
}

} // namespace

void showAsync(Report& report)
{
    showDelayedCalls(report);
    showItems(report);
    showWaits(report);
    showCompletion(report);
}
