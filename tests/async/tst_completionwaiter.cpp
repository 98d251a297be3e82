#include "HappensBefore.h"
#include "InstalledLogger.h"
#include "TestMain.h"

#include <utilsDll/OperationCompletionWaiter.h>

#include <QElapsedTimer>
#include <QLineEdit>
#include <QThread>
#include <QTimer>

using namespace TOLVAN_NAMESPACE;

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

TOLVAN_GUI_TEST_MAIN(CompletionWaiterTest)
#include "tst_completionwaiter.moc"
