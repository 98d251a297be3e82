#include <benchmark/benchmark.h>

#include <utilsDll/DelayedCall.h>
#include <utilsDll/RunnableItem.h>

#include <QCoreApplication>
#include <QFile>
#include <QSemaphore>
#include <QtConcurrentRun>
#include <QThreadPool>
#include <QTimer>

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <thread>
#include <vector>

namespace
{

constexpr int delay = 100000; // nothing falls due while measuring
using Clock = std::chrono::steady_clock;

/// Calls pending on other objects, all gone at the end of the scope.
struct PendingCalls {
    explicit PendingCalls(int count)
        : objects(static_cast<std::size_t>(count))
    {
        for (QObject& object : objects) {
            CDelayedCall::invoke(delay, &object, "deleteLater");
        }
    }
    ~PendingCalls()
    {
        for (auto object = objects.rbegin(); object != objects.rend(); ++object) {
            CDelayedCall::discard(&*object, nullptr);
        }
    }
    std::vector<QObject> objects;
};

void scheduleAgain(benchmark::State& state)
{
    const PendingCalls others(static_cast<int>(state.range(0)));
    QObject object;
    for (auto _ : state) {
        CDelayedCall::invoke(delay, &object, "deleteLater");
    }
    CDelayedCall::discard(&object, nullptr);
}
BENCHMARK(scheduleAgain)->Name("debounce/CDelayedCall::invoke")->Arg(0)->Arg(100)->Arg(1000)->Arg(10000);

/// One timer object each, as an own QTimer per debounced call would be.
void restartTimer(benchmark::State& state)
{
    std::vector<std::unique_ptr<QTimer>> others;
    for (int i = 0; i < state.range(0); ++i) {
        others.push_back(std::make_unique<QTimer>());
        others.back()->start(delay);
    }
    QTimer timer;
    timer.setSingleShot(true);
    for (auto _ : state) {
        timer.start(delay);
    }
    while (!others.empty()) {
        others.pop_back();
    }
}
BENCHMARK(restartTimer)->Name("debounce/QTimer::start")->Arg(0)->Arg(100)->Arg(1000)->Arg(10000);

/// All timers on one object: what lies under CDelayedCall.
void restartOnOneObject(benchmark::State& state)
{
    QObject object;
    for (int i = 0; i < state.range(0); ++i) {
        object.startTimer(delay);
    }
    int id = object.startTimer(delay);
    for (auto _ : state) {
        object.killTimer(id);
        id = object.startTimer(delay);
    }
}
BENCHMARK(restartOnOneObject)->Name("debounce/QObject::startTimer")->Arg(0)->Arg(100)->Arg(1000)->Arg(10000);

/// Method names that are all different.
std::vector<QByteArray> methodNames(int count)
{
    std::vector<QByteArray> names;
    for (int i = 0; i < count; ++i) {
        names.push_back("method" + QByteArray::number(i));
    }
    return names;
}

void scheduleAll(QObject& object, const std::vector<QByteArray>& methods)
{
    for (const QByteArray& method : methods) {
        CDelayedCall::invoke(delay, &object, method.constData());
    }
}

void discardOne(benchmark::State& state)
{
    QObject object;
    const auto methods = methodNames(static_cast<int>(state.range(0)));
    scheduleAll(object, methods);
    const char* const middle = methods[methods.size() / 2].constData();
    for (auto _ : state) {
        CDelayedCall::discard(&object, middle);
        state.PauseTiming();
        CDelayedCall::invoke(delay, &object, middle);
        state.ResumeTiming();
    }
    CDelayedCall::discard(&object, nullptr);
}
BENCHMARK(discardOne)
    ->Name("discard one of N/CDelayedCall")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Iterations(2000);

void discardAll(benchmark::State& state)
{
    QObject object;
    const auto methods = methodNames(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        scheduleAll(object, methods);
        state.ResumeTiming();
        CDelayedCall::discard(&object, nullptr);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(discardAll)->Name("discard all of N/CDelayedCall")->Arg(100)->Arg(1000)->Arg(10000)->Iterations(3);

void stopAllTimers(benchmark::State& state)
{
    std::vector<QTimer> timers(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        for (QTimer& timer : timers) {
            timer.start(delay);
        }
        state.ResumeTiming();
        for (QTimer& timer : timers) {
            timer.stop();
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(stopAllTimers)
    ->Name("discard all of N/QTimer::stop")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Iterations(3);

std::size_t bytesInUse()
{
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

/// Not a time: bytes of the heap for each pending call.
void bytesPerCall(benchmark::State& state)
{
    constexpr int count = 10000;
    std::vector<QObject> objects(count);
    QObject timers;
    const bool bare = state.range(0);
    for (auto _ : state) {
        const std::size_t before = bytesInUse();
        for (QObject& object : objects) {
            bare ? void(timers.startTimer(delay)) : CDelayedCall::invoke(delay, &object, "deleteLater");
        }
        state.counters["bytes"] = static_cast<double>(bytesInUse() - before) / count;
        for (auto object = objects.rbegin(); object != objects.rend(); ++object) {
            CDelayedCall::discard(&*object, nullptr);
        }
    }
}
BENCHMARK(bytesPerCall)->Name("bytes per pending call/CDelayedCall")->Arg(0)->Iterations(1);
BENCHMARK(bytesPerCall)->Name("bytes per pending call/QObject::startTimer")->Arg(1)->Iterations(1);

/// Single times. Their lower decile and median are reported, because other programs lengthen the rest.
class Latencies
{
public:
    void add(benchmark::State& state, Clock::duration time)
    {
        m_times.push_back(std::chrono::duration<double, std::micro>(time).count());
        state.SetIterationTime(m_times.back() * 1e-6);
    }
    void report(benchmark::State& state)
    {
        std::sort(m_times.begin(), m_times.end());
        state.counters["p10_us"] = m_times[m_times.size() / 10];
        state.counters["p50_us"] = m_times[m_times.size() / 2];
    }

private:
    std::vector<double> m_times;
};

/// From start() to the first line of the work, for each kind of item; the pool's threads are up and idle.
template <class Start>
void startLatency(benchmark::State& state, Start start)
{
    QThreadPool pool;
    pool.setMaxThreadCount(1);
    pool.setExpiryTimeout(-1);
    QSemaphore done;
    Clock::time_point began;
    const auto work = [&] {
        began = Clock::now();
        done.release();
    };
    start(pool, work);
    done.acquire();
    Latencies latencies;
    for (auto _ : state) {
        pool.waitForDone();
        std::this_thread::sleep_for(std::chrono::microseconds(20)); // the thread has gone to sleep
        const auto asked = Clock::now();
        start(pool, work);
        done.acquire();
        latencies.add(state, began - asked);
    }
    latencies.report(state);
}

template <class Work>
class Item : public CQRunnableItem
{
public:
    Item(const Work& function, bool emitSignals)
        : CQRunnableItem(emitSignals)
        , work(function)
    {
    }
    bool doRun() override
    {
        work();
        return true;
    }
    const Work work;
};

template <class Work>
struct BareItem : QRunnable {
    explicit BareItem(const Work& function)
        : work(function)
    {
    }
    void run() override { work(); }
    const Work work;
};

template <bool emitSignals>
void startItem(benchmark::State& state)
{
    startLatency(state, [](QThreadPool& pool, const auto& work) {
        pool.start(new Item<std::decay_t<decltype(work)>>(work, emitSignals));
    });
}
BENCHMARK_TEMPLATE(startItem, true)->Name("start/CQRunnableItem")->UseManualTime();
BENCHMARK_TEMPLATE(startItem, false)->Name("start/CQRunnableItem, no signals")->UseManualTime();

void startBare(benchmark::State& state)
{
    startLatency(state, [](QThreadPool& pool, const auto& work) {
        pool.start(new BareItem<std::decay_t<decltype(work)>>(work));
    });
}
BENCHMARK(startBare)->Name("start/QRunnable")->UseManualTime();

void startConcurrent(benchmark::State& state)
{
    startLatency(state, [](QThreadPool& pool, const auto& work) { QtConcurrent::run(&pool, work); });
}
BENCHMARK(startConcurrent)->Name("start/QtConcurrent::run")->UseManualTime();

/// From the store of another thread to the return of the wait.
void blockingAnswer(benchmark::State& state)
{
    QAtomicInt value(0);
    std::atomic<bool> end{false};
    QAtomicInt wanted(0);
    Clock::time_point stored;
    Latencies latencies;
    std::thread other([&] {
        while (!end) {
            if (wanted.testAndSetOrdered(1, 0)) {
                std::this_thread::sleep_for(std::chrono::microseconds(50));
                stored = Clock::now();
                value.storeRelease(1);
            }
            std::this_thread::yield();
        }
    });
    for (auto _ : state) {
        value.storeRelease(0);
        wanted.storeRelease(1);
        waitBlockingAtomicIntValue(value, 1);
        latencies.add(state, Clock::now() - stored);
    }
    latencies.report(state);
    end = true;
    other.join();
}
BENCHMARK(blockingAnswer)->Name("answer/waitBlocking")->UseManualTime()->Iterations(10000);

/// Seconds of this thread: on a processor, and ready to run without getting one.
struct ThreadTimes {
    ThreadTimes()
    {
        QFile file(QStringLiteral("/proc/thread-self/schedstat"));
        file.open(QIODevice::ReadOnly);
        const QList<QByteArray> fields = file.readAll().split(' ');
        running = fields.value(0).toDouble() * 1e-9;
        ready = fields.value(1).toDouble() * 1e-9;
    }
    double running, ready;
};

/// A precise 1 ms timer during a second: with a wait that polls, and in a loop that sleeps.
void timerPace(benchmark::State& state)
{
    const bool polling = state.range(0);
    for (auto _ : state) {
        int ticks = 0;
        QAtomicInt over(0);
        QEventLoop loop;
        QTimer timer;
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
        timer.start(1);
        QTimer::singleShot(1000, Qt::PreciseTimer, &loop, [&] {
            over.storeRelease(1);
            loop.quit();
        });
        const ThreadTimes before;
        polling ? waitNonBlockingAtomicIntValue(over, 1, true) : void(loop.exec());
        state.counters["ticks"] = ticks;
        const ThreadTimes after;
        state.counters["running"] = after.running - before.running;
        state.counters["ready"] = after.ready - before.ready;
        state.counters["ticks_per_running_s"] = ticks / (after.running - before.running);
    }
}
BENCHMARK(timerPace)
    ->Name("1 ms timer for 1 s/waitNonBlocking")
    ->Arg(1)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(timerPace)
    ->Name("1 ms timer for 1 s/QEventLoop")
    ->Arg(0)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
