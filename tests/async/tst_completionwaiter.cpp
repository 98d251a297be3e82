#include "AssertionReport.h"
#include "HappensBefore.h"
#include "TestMain.h"

#include <utilsDll/OperationCompletionWaiter.h>

#include <QLineEdit>
#include <QThread>
#include <QTimer>

#include <atomic>

using namespace TOLVAN_NAMESPACE;
using namespace std::chrono_literals;

class Operation : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void finish(bool ok)
    {
        Q_EMIT done();
        Q_EMIT finished(ok);
        handOver(this);
    }

Q_SIGNALS:
    void done();
    void finished(bool ok);
};

namespace
{

/// The outcome of a wait for \a operation, inside which \a action is called.
template <class Action>
WaitResult outcome(Operation* operation, std::chrono::milliseconds limit, Action action)
{
    COperationCompletionWaiter waiter(operation, SIGNAL(done()));
    QTimer::singleShot(0, &waiter, action);
    return waiter.startWaitingFor(limit);
}

} // namespace

class CompletionWaiterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void signalBeforeTheWait()
    {
        for (const bool ok : {true, false}) {
            Operation operation;
            COperationCompletionWaiter waiter(&operation, SIGNAL(done()));
            COperationCompletionWaiterWithResult outcome(&operation, SIGNAL(finished(bool)));
            operation.finish(ok);
            waiter.startWaiting(); // would hang if it waited
            outcome.startWaiting();
            outcome.startWaiting(); // stays completed
            QCOMPARE(outcome.isOperationSuccess(), ok);
        }
    }

    void signalOfAWorkerThread()
    {
        QThread thread;
        thread.start();
        Operation operation;
        operation.moveToThread(&thread);
        for (int i = 0; i < 50; ++i) {
            COperationCompletionWaiterWithResult waiter(&operation, SIGNAL(finished(bool)));
            QMetaObject::invokeMethod(&operation, "finish", Q_ARG(bool, i % 2 == 0));
            waiter.startWaiting();
            QCOMPARE(waiter.isOperationSuccess(), i % 2 == 0);
        }
        thread.quit();
        QVERIFY(thread.wait(30000));
        takeOver(&operation);
    }

    void misuseIsReported()
    {
        Operation operation;
        const COperationCompletionWaiterWithResult waiter(&operation, SIGNAL(finished(bool)));
        verifyReport("TOLVAN_NAMESPACE::COperationCompletionWaiterWithResult::isOperationSuccess",
                     "OperationCompletionWaiter", 52, nullptr,
                     [&] { QVERIFY(!waiter.isOperationSuccess()); });
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("QObject::connect: ")));
        verifyReport("TOLVAN_NAMESPACE::COperationCompletionWaiter::COperationCompletionWaiter",
                     "OperationCompletionWaiter", 16, nullptr,
                     [] { COperationCompletionWaiter(nullptr, SIGNAL(done())); });
    }

    void deadlines()
    {
        Operation operation;
        QLineEdit edit;
        const auto typeAndFinish = [&] {
            QTest::keyClicks(&edit, QStringLiteral("typed")); // input is processed
            operation.finish(true);
        };
        QCOMPARE(outcome(&operation, 30s, typeAndFinish), WaitResult::Done);
        QCOMPARE(edit.text(), QStringLiteral("typed"));
        QCOMPARE(outcome(&operation, 5ms, [] {}), WaitResult::TimedOut);
        auto* const dies = new Operation;
        QCOMPARE(outcome(dies, 30s, [dies] { delete dies; }), WaitResult::SenderGone);
        std::atomic<WaitResult> inThread{
            WaitResult::Done}; // the sanitizer does not see that the thread is awaited
        const std::unique_ptr<QThread> thread(QThread::create(
            [&] { inThread = outcome(&operation, 30s, [] { QThread::currentThread()->quit(); }); }));
        thread->start();
        QVERIFY(thread->wait(30000));
        QCOMPARE(inThread.load(), WaitResult::Stopped);
    }

    void completedBeforeTheSenderWent()
    {
#ifdef __SANITIZE_THREAD__
        QSKIP("the sanitizer does not see that a blocking queued call orders the threads");
#endif
        QThread thread;
        thread.start();
        auto operation = std::make_unique<Operation>();
        operation->moveToThread(&thread);
        COperationCompletionWaiter completed(operation.get(), SIGNAL(done()));
        QMetaObject::invokeMethod(operation.get(), "finish", Qt::BlockingQueuedConnection, Q_ARG(bool, true));
        COperationCompletionWaiter missed(operation.get(), SIGNAL(done()));
        thread.quit();
        QVERIFY(thread.wait(30000));
        takeOver(operation.get());
        operation.reset();
        QCOMPARE(completed.startWaitingFor(30s), WaitResult::Done);
        QCOMPARE(missed.startWaitingFor(30s), WaitResult::SenderGone);
    }
};

TOLVAN_GUI_TEST_MAIN(CompletionWaiterTest)
#include "tst_completionwaiter.moc"
