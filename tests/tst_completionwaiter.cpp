#include "HappensBefore.h"
#include "InstalledLogger.h"
#include "TestMain.h"

#include <utilsDll/OperationCompletionWaiter.h>

#include <QElapsedTimer>
#include <QLineEdit>
#include <QThread>
#include <QTimer>

using namespace TOLVAN_NAMESPACE;

namespace
{

const QString prefix = QStringLiteral("E TOLVAN_NAMESPACE::COperationCompletionWaiter");

QString assertionText(int line)
{
    return QStringLiteral("ASSERT in ExPluginShell\\modules\\utilsDll\\OperationCompletionWaiter:%1")
        .arg(line);
}

} // namespace

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
    void outcomeBeforeCompletion();
    void nullArguments_data();
    void nullArguments();
    void userInputIsProcessed();
};

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
    QElapsedTimer clock;
    clock.start();
    QTimer::singleShot(0, this, [&] { inner.startWaiting(); }); // a wait inside a wait
    QTimer::singleShot(50, &operation, [&] { operation.finish(true); });
    outer.startWaiting();
    QVERIFY2(clock.elapsed() >= 45, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(inner.isOperationSuccess());
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

void CompletionWaiterTest::outcomeBeforeCompletion()
{
    Operation operation;
    const COperationCompletionWaiterWithResult waiter(&operation, SIGNAL(finished(bool)));
    QTest::ignoreMessage(QtDebugMsg, qPrintable(assertionText(52)));
    QVERIFY(!waiter.isOperationSuccess());
    QCOMPARE(installedLogger().take(),
             QStringList{prefix + QStringLiteral("WithResult::isOperationSuccess: ") + assertionText(52)});
}

void CompletionWaiterTest::nullArguments_data()
{
    QTest::addColumn<bool>("withResult");
    QTest::addColumn<bool>("noSender");
    QTest::addColumn<int>("line");
    QTest::newRow("no sender") << false << true << 16;
    QTest::newRow("no signal") << false << false << 17;
    QTest::newRow("with result, no sender") << true << true << 43;
    QTest::newRow("with result, no signal") << true << false << 44;
}

void CompletionWaiterTest::nullArguments()
{
    QFETCH(const bool, withResult);
    QFETCH(const bool, noSender);
    QFETCH(const int, line);
    Operation operation;
    Operation* const sender = noSender ? nullptr : &operation;
    const char* const signal = noSender ? SIGNAL(done()) : nullptr;
    QTest::ignoreMessage(QtDebugMsg, qPrintable(assertionText(line)));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("QObject::connect: ")));
    if (withResult) {
        const COperationCompletionWaiterWithResult waiter(sender, signal);
    } else {
        const COperationCompletionWaiter waiter(sender, signal);
    }
    const QString kind = withResult ? QStringLiteral("WithResult") : QString();
    QCOMPARE(installedLogger().take(),
             QStringList{prefix + kind + QStringLiteral("::COperationCompletionWaiter") + kind +
                         QStringLiteral(": ") + assertionText(line)});
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

TOLVAN_GUI_TEST_MAIN(CompletionWaiterTest)
#include "tst_completionwaiter.moc"
