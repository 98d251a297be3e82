#include "HappensBefore.h"
#include "InstalledLogger.h"
#include "TestMain.h"

#include <utilsDll/ExcludeUserInpuEventLoop.h>
#include <utilsDll/OperationCompletionWaiter.h>

#include <QLineEdit>
#include <QThread>
#include <QTimer>

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

class CompletionWaiterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { installedLogger().take(); }
    void signalBeforeTheWait();
    void signalDuringTheWait();
    void signalOfAWorkerThread();
    void assertions_data();
    void assertions();
    void userInputIsProcessed();
    void deadlines();
    void completedBeforeTheSenderWent();
    void withoutApplicationObject();
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

/// What loops and waits return in a process that has no application object yet.
struct {
    int exec = 0;
    WaitResult limited = WaitResult::Done;
    bool unlimitedHasReturned = false;
} withoutApplication;

void runWithoutApplication()
{
    withoutApplication.exec = CExcludeUserInpuEventLoop().exec(50);
    Operation operation;
    COperationCompletionWaiter waiter(&operation, SIGNAL(done()));
    withoutApplication.limited = waiter.startWaitingFor(30s);
    waiter.startWaiting();
    withoutApplication.unlimitedHasReturned = true;
}

} // namespace

void CompletionWaiterTest::signalBeforeTheWait()
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
    QVERIFY(installedLogger().take().isEmpty());
}

void CompletionWaiterTest::signalDuringTheWait()
{
    Operation operation;
    COperationCompletionWaiter outer(&operation, SIGNAL(done()));
    COperationCompletionWaiterWithResult inner(&operation, SIGNAL(finished(bool)));
    bool emitted = false;
    QTimer::singleShot(0, this, [&] { inner.startWaiting(); }); // a wait inside a wait
    QTimer::singleShot(20, &operation, [&] {
        emitted = true;
        operation.finish(true);
    });
    outer.startWaiting();
    QVERIFY(emitted && inner.isOperationSuccess());
}

void CompletionWaiterTest::signalOfAWorkerThread()
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

void CompletionWaiterTest::assertions_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<int>("line");
    const QString plain = QStringLiteral("::COperationCompletionWaiter");
    const QString withResult = QStringLiteral("WithResult::COperationCompletionWaiterWithResult");
    QTest::newRow("no sender") << plain << 16;
    QTest::newRow("no signal") << plain << 17;
    QTest::newRow("with result, no sender") << withResult << 43;
    QTest::newRow("with result, no signal") << withResult << 44;
    QTest::newRow("outcome before completion") << QStringLiteral("WithResult::isOperationSuccess") << 52;
}

void CompletionWaiterTest::assertions()
{
    QFETCH(const QString, function);
    QFETCH(const int, line);
    const QString text =
        QStringLiteral("ASSERT in ExPluginShell\\modules\\utilsDll\\OperationCompletionWaiter:%1").arg(line);
    Operation operation;
    QTest::ignoreMessage(QtDebugMsg, qPrintable(text));
    if (line < 52) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("QObject::connect: ")));
    }
    switch (line) {
    case 16:
        COperationCompletionWaiter(nullptr, SIGNAL(done()));
        break;
    case 17:
        COperationCompletionWaiter(&operation, nullptr);
        break;
    case 43:
        COperationCompletionWaiterWithResult(nullptr, SIGNAL(finished(bool)));
        break;
    case 44:
        COperationCompletionWaiterWithResult(&operation, nullptr);
        break;
    default:
        QVERIFY(
            !COperationCompletionWaiterWithResult(&operation, SIGNAL(finished(bool))).isOperationSuccess());
    }
    QCOMPARE(installedLogger().take(),
             QStringList{QStringLiteral("E TOLVAN_NAMESPACE::COperationCompletionWaiter") + function +
                         QStringLiteral(": ") + text});
}

void CompletionWaiterTest::userInputIsProcessed()
{
    Operation operation;
    QLineEdit edit;
    COperationCompletionWaiter waiter(&operation, SIGNAL(done()));
    QTimer::singleShot(0, this, [&] {
        QTest::keyClicks(&edit, QStringLiteral("typed"));
        operation.finish(true);
    });
    waiter.startWaiting();
    QCOMPARE(edit.text(), QStringLiteral("typed"));
}

void CompletionWaiterTest::deadlines()
{
    Operation operation;
    QCOMPARE(outcome(&operation, 30s, [&] { operation.finish(true); }), WaitResult::Done);
    QCOMPARE(outcome(&operation, 5ms, [] {}), WaitResult::TimedOut);
    auto* const dies = new Operation;
    QCOMPARE(outcome(dies, 30s, [dies] { delete dies; }), WaitResult::SenderGone);
    WaitResult inThread = WaitResult::Done;
    const std::unique_ptr<QThread> thread(QThread::create(
        [&] { inThread = outcome(&operation, 30s, [] { QThread::currentThread()->quit(); }); }));
    thread->start();
    QVERIFY(thread->wait(30000));
    QCOMPARE(inThread, WaitResult::Stopped);
}

void CompletionWaiterTest::completedBeforeTheSenderWent()
{
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

void CompletionWaiterTest::withoutApplicationObject()
{
    QCOMPARE(withoutApplication.exec, -1);
    QCOMPARE(withoutApplication.limited, WaitResult::NoEventLoop);
    QVERIFY(withoutApplication.unlimitedHasReturned);
}

int main(int argc, char* argv[])
{
    runWithoutApplication();
    return TestMain::run<QApplication, CompletionWaiterTest>(argc, argv);
}

#include "tst_completionwaiter.moc"
