#include "TestMain.h"

#include <QElapsedTimer>
#include <QLibrary>
#include <QSemaphore>
#include <QThread>

#include <atomic>
#include <memory>

class Counter : public QObject
{
    Q_OBJECT

public:
    std::atomic<int> calls{0};

public Q_SLOTS:
    void m() { ++calls; }
};

namespace
{

constexpr int rounds = 3;
using Invoke = void (*)(int, QObject*, const char*, bool);

QLibrary& library()
{
    static QLibrary library(QCoreApplication::applicationDirPath() + QStringLiteral("/UtilsDllTrelioFrame"));
    return library;
}

Invoke resolveInvoke()
{
    return reinterpret_cast<Invoke>(library().resolve("_ZN12CDelayedCall6invokeEiP7QObjectPKcb"));
}

} // namespace

/// The library is loaded and unloaded as a host's plug-in would, with calls pending in several threads.
class DelayedCallUnloadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pendingCallsGoWithTheLibrary()
    {
        Counter counter;
        QThread worker;
        QObject inWorker;
        inWorker.moveToThread(&worker);
        // Before the thread starts: under Wine a load that meets the start of a thread can hang.
        QVERIFY2(resolveInvoke(), qPrintable(library().errorString()));
        worker.start();
        QSemaphore asked, done;
        // Processes no events; has used delayed calls in each round, and none is pending.
        const std::unique_ptr<QThread> idle(QThread::create([&] {
            for (int round = 0; round < rounds; ++round) {
                asked.acquire();
                resolveInvoke()(100000, &counter, "m", true);
                const auto discard = library().resolve("_ZN12CDelayedCall7discardEP7QObjectPKc");
                reinterpret_cast<void (*)(QObject*, const char*)>(discard)(&counter, "m");
                done.release();
            }
        }));
        idle->start();
        for (int round = 0; round < rounds; ++round) {
            const Invoke invoke = resolveInvoke();
            QVERIFY(invoke);
            invoke(1, &counter, "m", false);
            QMetaObject::invokeMethod(
                &inWorker, [&] { invoke(1, &counter, "m", false); }, Qt::BlockingQueuedConnection);
            const std::unique_ptr<QThread> ended(
                QThread::create([&] { invoke(1, &counter, "deleteLater", true); }));
            ended->start();
            QVERIFY(ended->wait(30000));
            asked.release();
            done.acquire();
            QVERIFY(round < rounds - 1 || idle->wait(30000));
            QTRY_VERIFY(counter.calls > 10);
            QElapsedTimer clock;
            clock.start();
            QVERIFY(library().unload());
            QVERIFY2(clock.elapsed() < 700, "waited for the idle thread");
            QCoreApplication::processEvents();
            const int calls = counter.calls;
            QTest::qWait(30); // timers that outlived the library would run into unmapped code here
            QCOMPARE(counter.calls.load(), calls);
            counter.calls = 0;
        }
        worker.quit();
        QVERIFY(worker.wait(30000));
    }
};

TOLVAN_CORE_TEST_MAIN(DelayedCallUnloadTest)
#include "tst_delayedcall_unload.moc"
