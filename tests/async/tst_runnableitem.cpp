#include "EventSink.h"
#include "HappensBefore.h"
#include "TestMain.h"

#include <utilsDll/RunnableItem.h>

#include <QSignalSpy>
#include <QThread>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

namespace
{

using namespace std::chrono_literals;

#if defined(TOLVAN_THREAD_SANITIZER) || defined(__SANITIZE_ADDRESS__)
constexpr int waitsOnShortWork = 20000, deletions = 6000;
#else
constexpr int waitsOnShortWork = 1000, deletions = 600;
#endif

/// An item whose work is a function; notes its hooks. Deleted by the test.
class Item : public TakenOver<CQRunnableItem>
{
public:
    explicit Item(std::function<bool(const Item&)> function, bool emitSignals = true)
        : TakenOver<CQRunnableItem>(emitSignals)
        , work(std::move(function))
    {
        setAutoDelete(false);
    }
    ~Item() override { waitFinishBlocking(); }

    using CQRunnableItem::entriesCounter;
    using CQRunnableItem::setStopFlag;
    QStringList hooks;
    std::atomic<int> runs{0};

private:
    bool doRun() override
    {
        ++runs;
        return work(*this);
    }
    void doBeforeStopped() override { note("before", false); }
    void doStopped() override { note("after", true); }
    void note(const char* hook, bool afterTheRequest)
    {
        const std::lock_guard lock(m_mutex); // several threads may stop the item
        if (stopFlag() == afterTheRequest) {
            hooks += QString::fromLatin1(hook);
        }
    }

    std::mutex m_mutex;
    const std::function<bool(const Item&)> work;
};

bool until(const std::atomic<bool>& go)
{
    while (!go) {
        QThread::yieldCurrentThread();
    }
    return true;
}

bool untilStopped(const Item& item)
{
    while (!item.stopRequired()) {
        QThread::yieldCurrentThread();
    }
    return true;
}

void spinFor(std::chrono::microseconds time)
{
    const auto end = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < end) {
    }
}

/// Opens the constructors to the checks below.
struct OpenItem : CQRunnableItem {
    using CQRunnableItem::CQRunnableItem;
    bool doRun() override { return true; }
    template <class... Args>
    static auto takes(int) -> decltype(OpenItem(std::declval<Args>()...), std::true_type());
    template <class... Args>
    static std::false_type takes(...);
};
static_assert(decltype(OpenItem::takes<bool>(0))::value);
static_assert(decltype(OpenItem::takes<bool, QObject*>(0))::value);
static_assert(!decltype(OpenItem::takes<QThread*>(0))::value); // a parent is no flag

/// The three signals of an item.
struct Spies {
    explicit Spies(CQRunnableItem& item)
        : started(&item, SIGNAL(started()))
        , wantsToStop(&item, SIGNAL(wantsToStop()))
        , finished(&item, SIGNAL(finished(bool, bool)))
    {
    }
    QSignalSpy started, wantsToStop, finished;
};

} // namespace

class RunnableItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outcome();
    void stoppedBeforeItRuns();
    void stoppedFromAnotherThread();
    void workThatThrows();
    void interruptedThread();
    void shortWorkIsSeenAndTheItemDeleted();
    void deletedInItsFinishedSlot();
    void deadlines();
    void waitKeepsTimersAndSwallowsInput();
    void thousandItemsStoppedByManyThreads();
};

void RunnableItemTest::outcome()
{
    const auto run = [this](bool ok, bool stopped, bool emitSignals) {
        int counted = 0, countedAtFinished = 0;
        const auto work = [&](const Item& self) {
            if (stopped) {
                const_cast<Item&>(self).stop();
            }
            counted = self.entriesCounter();
            return ok;
        };
        Item item(work, emitSignals);
        const Spies spies(item);
        connect(&item, &CQRunnableItem::finished, this, [&] { countedAtFinished = item.entriesCounter(); });
        item.run();
        QCOMPARE(counted, 1);
        QCOMPARE(countedAtFinished, 0);
        QCOMPARE(spies.started.count(), int(emitSignals));
        QCOMPARE(spies.wantsToStop.count(), int(stopped && emitSignals));
        QCOMPARE(QVariantList(spies.finished.value(0)),
                 emitSignals ? QVariantList({ok, stopped}) : QVariantList());
        QCOMPARE(item.hooks.size(), stopped ? 2 : 0);
    };
    for (const bool ok : {true, false}) {
        run(ok, false, true);
        run(ok, true, true);
        run(ok, true, false);
    }
}

void RunnableItemTest::stoppedBeforeItRuns()
{
    Item item(untilStopped);
    const Spies spies(item);
    for (const char* const slot : {"stop", "stop", "run"}) { // the second stop is silent
        QVERIFY(QMetaObject::invokeMethod(&item, slot));
    }
    QCOMPARE(item.runs.load(), 0);
    QCOMPARE(spies.wantsToStop.count(), 1);
    QCOMPARE(spies.started.count() + spies.finished.count(), 0);
    QCOMPARE(item.hooks, QStringList({QStringLiteral("before"), QStringLiteral("after")}));
    item.setStopFlag(false);
    QVERIFY(!item.stopRequired());
}

void RunnableItemTest::stoppedFromAnotherThread()
{
    for (const int executions : {1, 3}) { // an item may be run by several threads at once
        QThreadPool pool;
        pool.setMaxThreadCount(executions);
        std::atomic<int> finished{0}; // QSignalSpy is not thread-safe
        Item item(untilStopped);
        connect(
            &item, &CQRunnableItem::finished, &item,
            [&](bool ok, bool stopped) { finished += ok && stopped ? 1 : 0; }, Qt::DirectConnection);
        for (int i = 0; i < executions; ++i) {
            startOn(pool, item);
        }
        item.waitStartBlocking();
        QVERIFY(item.isStarted() && !item.isFinished());
        QTRY_COMPARE(item.entriesCounter(), executions);
        item.stop();
        item.waitFinishNonBlocking(false);
        QCOMPARE(item.entriesCounter(), 0);
        QVERIFY(finishOn(pool));
        QCOMPARE(finished.load(), executions);
    }
}

void RunnableItemTest::workThatThrows()
{
    Item item([](const Item&) -> bool { throw std::runtime_error("x"); });
    const Spies spies(item);
    QVERIFY_EXCEPTION_THROWN(item.run(), std::runtime_error);
    QCOMPARE(item.entriesCounter(), 0);
    QCOMPARE(spies.started.count(), 1);
    QCOMPARE(spies.finished.count(), 0);
}

void RunnableItemTest::interruptedThread()
{
    Item item(untilStopped);
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        item.run();
        handOver(&item);
    }));
    thread->start();
    item.waitStartBlocking();
    QVERIFY(!item.stopRequired()); // the interruption is that of another thread
    thread->requestInterruption();
    item.waitFinishBlocking();
    QVERIFY(thread->wait(30000));
    takeOver(&item);
    QCOMPARE(item.runs.load(), 1);
}

void RunnableItemTest::shortWorkIsSeenAndTheItemDeleted()
{
    QThreadPool pool;
    std::atomic<int> finished{0};
    int started = 0;
    for (const auto time : {0us, 20us, 200us}) {
        for (int i = 0; i < waitsOnShortWork; ++i) {
            Item item([&](const Item&) {
                spinFor(time);
                return true;
            });
            connect(
                &item, &CQRunnableItem::finished, &item, [&] { ++finished; }, Qt::DirectConnection);
            startOn(pool, item);
            i % 2 == 0 ? item.waitExecuteBlocking() : item.waitExecuteNonBlocking(false);
            QCOMPARE(finished.load(), ++started); // and the item may go
        }
    }
    QVERIFY(finishOn(pool));
}

void RunnableItemTest::deletedInItsFinishedSlot()
{
    QThreadPool pool;
    std::atomic<int> deleted{0};
    for (int i = 0; i < deletions; ++i) {
        auto* const item = new Item([](const Item&) { return true; });
        const auto remove = [item, &deleted] {
            item->waitFinishBlocking();
            delete item;
            ++deleted;
        };
        connect(item, &CQRunnableItem::finished, this, remove,
                i % 2 == 0 ? Qt::DirectConnection : Qt::QueuedConnection);
        startOn(pool, *item);
    }
    QTRY_COMPARE_WITH_TIMEOUT(deleted.load(), deletions, 60000);
    QVERIFY(finishOn(pool));
}

void RunnableItemTest::deadlines()
{
    QThreadPool pool;
    std::atomic<bool> go{false};
    Item item([&](const Item&) { return until(go); });
    item.waitFinishBlocking(); // not started yet: returns at once
    item.waitFinishNonBlocking(true);
    QCOMPARE(item.waitStartBlockingFor(0ms), WaitResult::TimedOut);
    QCOMPARE(item.waitExecuteNonBlockingFor(true, 5ms), WaitResult::TimedOut);
    startOn(pool, item);
    QCOMPARE(item.waitStartNonBlockingFor(false, 30s), WaitResult::Done);
    QCOMPARE(item.waitFinishBlockingFor(5ms), WaitResult::TimedOut);
    item.stop(); // which the work does not heed
    QCOMPARE(item.waitExecuteBlockingFor(5ms), WaitResult::TimedOut);
    WaitResult inPlainThread = WaitResult::Done;
    std::thread([&] { inPlainThread = item.waitFinishNonBlockingFor(false, 30s); }).join();
    QCOMPARE(inPlainThread, WaitResult::NoEventLoop);
    go = true;
    QCOMPARE(item.waitExecuteBlockingFor(30s), WaitResult::Done);
    QVERIFY(finishOn(pool));
    Item never(untilStopped);
    never.stop();
    QCOMPARE(never.waitExecuteNonBlockingFor(true, 30s), WaitResult::Stopped);
    QCOMPARE(never.waitFinishNonBlockingFor(true, 30s), WaitResult::Done);
}

void RunnableItemTest::waitKeepsTimersAndSwallowsInput()
{
    QThreadPool pool;
    std::atomic<bool> go{false};
    Item item([&](const Item&) { return until(go); });
    EventSink widget;
    int ticks = 0, ticksSinceStart = 0;
    QTimer timer; // the wait can't end without it
    connect(&timer, &QTimer::timeout, this, [&] {
        QTest::mouseClick(&widget, Qt::LeftButton);
        QTest::keyClick(&widget, Qt::Key_A);
        if (++ticks == 1) {
            startOn(pool, item);
        }
        ticksSinceStart += item.isStarted();
        go = ticksSinceStart > 2; // the wait has seen the start in between
    });
    timer.start(5);
    item.waitExecuteNonBlocking(true);
    timer.stop();
    QVERIFY(!widget.got.contains(QEvent::MouseButtonPress) && !widget.got.contains(QEvent::KeyPress));
    QTest::mouseClick(&widget, Qt::LeftButton);
    QCOMPARE(widget.take(QEvent::MouseButtonPress), 1);
    QVERIFY(finishOn(pool));
}

void RunnableItemTest::thousandItemsStoppedByManyThreads()
{
    constexpr std::size_t count = 1000, stoppers = 4;
    std::vector<std::unique_ptr<Item>> items;
    std::atomic<int> finished{0}, worked{0};
    QThreadPool pool;
    pool.setMaxThreadCount(4);
    for (std::size_t i = 0; i < count; ++i) {
        items.push_back(std::make_unique<Item>([&worked, i](const Item& self) {
            ++worked;
            return i % 2 == 0 ? untilStopped(self) : self.stopRequired();
        }));
        connect(
            items.back().get(), &CQRunnableItem::finished, this, [&] { ++finished; }, Qt::DirectConnection);
        startOn(pool, *items.back());
    }
    std::vector<std::thread> threads;
    for (std::size_t first = 0; first < count; first += count / stoppers) {
        threads.emplace_back([&items, first] {
            for (std::size_t i = 0; i < count; ++i) {
                items[(first + i) % count]->stop();
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    QVERIFY(finishOn(pool));
    QCOMPARE(finished.load(), worked.load());
    QVERIFY(std::all_of(items.begin(), items.end(), [](const auto& item) {
        return item->isFinished() && item->stopRequired() && item->runs <= 1;
    }));
}

TOLVAN_GUI_TEST_MAIN(RunnableItemTest)
#include "tst_runnableitem.moc"
