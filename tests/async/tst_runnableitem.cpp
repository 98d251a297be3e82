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
    std::atomic<int> before{0}, after{0}; // hooks, called with the stop flag as it has to be
    std::atomic<int> runs{0};

private:
    bool doRun() override
    {
        ++runs;
        return work(*this);
    }
    void doBeforeStopped() override { before += !stopFlag(); }
    void doStopped() override { after += stopFlag(); }

    const std::function<bool(const Item&)> work;
};

template <class Condition>
bool until(Condition condition)
{
    while (!condition()) {
        QThread::yieldCurrentThread();
    }
    return true;
}

bool untilStopped(const Item& item)
{
    return until([&] { return item.stopRequired(); });
}

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
    void outcome()
    {
        for (const int number : {0, 1, 2, 3, 6}) {
            const bool ok = number & 1, stopped = number & 2, emitSignals = !(number & 4);
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
            connect(&item, &CQRunnableItem::finished, this,
                    [&] { countedAtFinished = item.entriesCounter(); });
            item.run();
            QCOMPARE(counted, 1);
            QCOMPARE(countedAtFinished, 0);
            QCOMPARE(spies.started.count(), int(emitSignals));
            QCOMPARE(spies.wantsToStop.count(), int(stopped && emitSignals));
            QCOMPARE(QVariantList(spies.finished.value(0)),
                     emitSignals ? QVariantList({ok, stopped}) : QVariantList());
            QCOMPARE(item.before + item.after, stopped ? 2 : 0);
        }
    }

    void stoppedBeforeItRuns()
    {
        Item item(untilStopped);
        const Spies spies(item);
        for (const char* const slot : {"stop", "stop", "run"}) { // the second stop is silent
            QVERIFY(QMetaObject::invokeMethod(&item, slot));
        }
        QCOMPARE(item.runs.load(), 0);
        QCOMPARE(spies.wantsToStop.count(), 1);
        QCOMPARE(spies.started.count() + spies.finished.count(), 0);
        QVERIFY(item.before == 1 && item.after == 1);
        item.setStopFlag(false);
        QVERIFY(!item.stopRequired());
    }

    void stoppedFromAnotherThread()
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

    void interruptedThread()
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
    }

    void shortWorkIsSeenAndTheItemDeleted()
    {
        QThreadPool pool;
        std::atomic<int> finished{0};
        int started = 0;
        for (const auto time : {0us, 20us, 200us}) {
            for (int i = 0; i < waitsOnShortWork; ++i) {
                Item item([&](const Item&) {
                    const auto end = std::chrono::steady_clock::now() + time;
                    while (std::chrono::steady_clock::now() < end) { // without giving the processor away
                    }
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

    void deletedInItsFinishedSlot()
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

    void deadlines()
    {
        QThreadPool pool;
        std::atomic<bool> go{false};
        Item item([&](const Item&) { return until([&] { return go.load(); }); });
        item.waitFinishBlocking(); // not started yet: returns at once
        item.waitFinishNonBlocking(true);
        QCOMPARE(item.waitStartBlockingFor(0ms), WaitResult::TimedOut);
        EventSink sink;
        QTimer::singleShot(0, &sink, [&] { QTest::mouseClick(&sink, Qt::LeftButton); });
        QCOMPARE(item.waitExecuteNonBlockingFor(true, 5ms), WaitResult::TimedOut);
        QVERIFY(!sink.got.contains(QEvent::MouseButtonPress));
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

    void thousandItemsStoppedByManyThreads()
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
                items.back().get(), &CQRunnableItem::finished, this, [&] { ++finished; },
                Qt::DirectConnection);
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
};

TOLVAN_GUI_TEST_MAIN(RunnableItemTest)
#include "tst_runnableitem.moc"
