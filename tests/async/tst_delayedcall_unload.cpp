#include "TestMain.h"

#include <QLibrary>
#include <QThread>

#include <atomic>
#include <memory>

/// The library is loaded and unloaded as a host's plug-in would, with calls pending in several threads.
class DelayedCallUnloadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pendingCallsGoWithTheLibrary();
};

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

void DelayedCallUnloadTest::pendingCallsGoWithTheLibrary()
{
    Counter counter;
    QThread worker;
    QObject inWorker;
    inWorker.moveToThread(&worker);
    // Before the thread starts: under Wine a load that meets the start of a thread can hang.
    QVERIFY2(resolveInvoke(), qPrintable(library().errorString()));
    worker.start();
    for (int round = 0; round < 3; ++round) {
        const Invoke invoke = resolveInvoke();
        QVERIFY(invoke);
        invoke(1, &counter, "m", false);
        QMetaObject::invokeMethod(
            &inWorker, [&] { invoke(1, &counter, "m", false); }, Qt::BlockingQueuedConnection);
        const std::unique_ptr<QThread> ended(
            QThread::create([&] { invoke(1, &counter, "deleteLater", true); }));
        ended->start();
        QVERIFY(ended->wait(30000));
        QTRY_VERIFY(counter.calls > 10);
        QVERIFY(library().unload());
        QCoreApplication::processEvents();
        const int calls = counter.calls;
        QTest::qWait(30); // timers that outlived the library would run into unmapped code here
        QCOMPARE(counter.calls.load(), calls);
        counter.calls = 0;
    }
    worker.quit();
    QVERIFY(worker.wait(30000));
}

TOLVAN_CORE_TEST_MAIN(DelayedCallUnloadTest)
#include "tst_delayedcall_unload.moc"
