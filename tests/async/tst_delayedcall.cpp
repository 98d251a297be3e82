#include "TestMain.h"

#include <utilsDll/DelayedCall.h>

#include <QElapsedTimer>
#include <QPointer>
#include <QProcess>
#include <QThread>

#include <cstdlib>
#include <functional>
#include <new>

/// A target that notes its calls and, on request, does something from inside them.
class Target : public QObject
{
    Q_OBJECT

public:
    int calls = 0;
    int others = 0;
    QVariantList received;
    std::function<void()> inside;

public Q_SLOTS:
    void m()
    {
        ++calls;
        if (inside) {
            inside();
        }
    }
    void other() { ++others; }
    /// One method for each number of arguments; those that were not given are 0.
    void take(int a, int b = 0, int c = 0, int d = 0, int e = 0, int f = 0, int g = 0, int h = 0, int i = 0)
    {
        received = {a, b, c, d, e, f, g, h, i};
    }
};

/// Run in a process of its own, because it happens at its end.
static int outliveTheSingleton(int argc, char* argv[])
{
    struct Outliving : Target {
        ~Outliving() override
        {
            CDelayedCall::invoke(1, this, "m");
            CDelayedCall::discard(this, nullptr);
            if (CDelayedCall::isActive(this, "m")) {
                std::_Exit(1);
            }
        }
    };
    static Outliving target; // the first call builds the singleton, which is destroyed before this object
    const QCoreApplication application(argc, argv);
    CDelayedCall::invoke(100000, &target, "m");
    return 0;
}

/// Everything that happens within one thread.
class DelayedCallTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void burstBecomesOneCall()
    {
        Target target;
        QElapsedTimer sinceLast;
        qint64 elapsed = -1;
        target.inside = [&] { elapsed = sinceLast.elapsed(); };
        for (int i = 0; i < 3; ++i) {
            sinceLast.start();
            CDelayedCall::invoke(50, &target, "m", true);
            QThread::msleep(30); // the delay of the first requests passes before events are processed again
        }
        QTRY_COMPARE(target.calls, 1);
        QVERIFY2(elapsed >= 45, qPrintable(QString::number(elapsed)));
        QVERIFY(!CDelayedCall::isActive(&target, "m"));
    }

    void periodicUntilDiscarded()
    {
        Target target;
        CDelayedCall::invoke(5, &target, "m", false);
        QTRY_VERIFY(target.calls >= 4);
        QVERIFY(CDelayedCall::isActive(&target, "m"));
        CDelayedCall::discard(&target, "m");
        QVERIFY(!CDelayedCall::isActive(&target, "m"));
        const int calls = target.calls;
        QTest::qWait(20);
        QCOMPARE(target.calls, calls);
    }

    void lastRequestWins()
    {
        Target target;
        const QByteArray sameText("take"); // texts are compared, not addresses
        CDelayedCall::invokeWithArgs(10, &target, "take", QVariant(1), false);
        CDelayedCall::invokeWithArgs(0, &target, sameText.constData(), QVariant(2), true);
        QVERIFY(target.received.isEmpty()); // also with a delay of 0 the call is not made at once
        QTRY_COMPARE(target.received.value(0).toInt(), 2);
        QVERIFY(!CDelayedCall::isActive(&target, "take")); // the flag was replaced as well
    }

    void discardOneOrAll()
    {
        Target target, bystander;
        for (Target* t : {&target, &bystander}) {
            CDelayedCall::invoke(20, t, "m");
            CDelayedCall::invoke(20, t, "other");
        }
        CDelayedCall::discard(&target, "m");
        QVERIFY(!CDelayedCall::isActive(&target, "m") && CDelayedCall::isActive(&target, "other"));
        CDelayedCall::invoke(20, &target, "m");
        CDelayedCall::discard(&target, nullptr);
        QTRY_COMPARE(bystander.calls + bystander.others, 2);
        QCOMPARE(target.calls + target.others, 0);
    }

    void nothingForNullOrNegative()
    {
        Target target;
        CDelayedCall::invoke(0, nullptr, "m");
        CDelayedCall::invoke(0, &target, nullptr);
        CDelayedCall::discard(nullptr, nullptr);
        CDelayedCall::invoke(10, &target, "m");
        QTest::ignoreMessage(QtWarningMsg, "QObject::startTimer: Timers cannot have negative intervals");
        CDelayedCall::invoke(-1, &target, "m"); // no timer, but the earlier request is cancelled
        QVERIFY(!CDelayedCall::isActive(&target, "m"));
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("No such method Target::take\\(double\\)")));
        CDelayedCall::invokeWithArgs(0, &target, "take", QVariant(5.0)); // type names have to match
        QTRY_VERIFY(!CDelayedCall::isActive(&target, "take"));
        QVERIFY(target.received.isEmpty());
        QCOMPARE(target.calls, 0);
    }

    void argumentsInOrder()
    {
        Target target;
        const QVariant a(1), b(2), c(3), d(4), e(5), f(6), g(7), h(8), i(9);
        CDelayedCall::invokeWithArgs(0, &target, "take", a, b, c, d, e, f, g, h, i);
        QTRY_COMPARE(target.received, QVariantList({a, b, c, d, e, f, g, h, i}));
        CDelayedCall::invokeWithArgs(0, &target, "take", a, b, c, d);
        QTRY_COMPARE(target.received, QVariantList({a, b, c, d, 0, 0, 0, 0, 0}));
    }

    void newObjectAtTheSameAddress()
    {
        alignas(Target) unsigned char room[sizeof(Target)];
        Target* target = new (room) Target;
        CDelayedCall::invoke(0, target, "m");
        target->~Target();
        target = new (room) Target;
        QVERIFY(!CDelayedCall::isActive(target, "m"));
        CDelayedCall::invoke(20, target, "other");
        QTRY_COMPARE(target->others, 1);
        QCOMPARE(target->calls, 0); // the old object's call has fallen due before
        target->~Target();
    }

    void staticObjectOutlivesTheSingleton()
    {
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedChannels);
        child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--outlive")});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 0);
    }

    void insideTheCall_data()
    {
        QTest::addColumn<bool>("singleShot");
        QTest::addColumn<int>("calls");
        QTest::newRow("nest") << true << 1;
        QTest::newRow("again") << true << 2;
        QTest::newRow("discard, single shot") << true << 1;
        QTest::newRow("discard, periodic") << false << 1;
        QTest::newRow("delete, single shot") << true << 1;
        QTest::newRow("delete, periodic") << false << 1;
    }

    void insideTheCall()
    {
        QFETCH(const bool, singleShot);
        QFETCH(const int, calls);
        const QByteArray action = QTest::currentDataTag();
        QPointer<Target> target = new Target;
        QPointer<Target> other = new Target;
        int made = 0;
        target->inside = [&, t = target.data()] {
            ++made;
            if (action == "again" && made == 1) {
                CDelayedCall::invoke(1, t, "m", true);
                QVERIFY(CDelayedCall::isActive(t, "m"));
            } else if (action == "nest") {
                QTest::qWait(30); // its timer is still running
            } else if (action.startsWith("delete")) {
                delete other;
                delete t; // with it this function
            } else {
                CDelayedCall::discard(t, "m");
            }
        };
        CDelayedCall::invoke(1, target, "m", singleShot);
        CDelayedCall::invoke(1, other, "other", singleShot);
        QTRY_COMPARE(made, calls);
        QTest::qWait(20);
        QCOMPARE(made, calls);
        QVERIFY(!target || !CDelayedCall::isActive(target, "m"));
        QTRY_VERIFY(!other || other->others > 0); // no call was lost
        delete target;
        delete other;
    }
};

int main(int argc, char* argv[])
{
    return argc == 2 && qstrcmp(argv[1], "--outlive") == 0
               ? outliveTheSingleton(argc, argv)
               : TestMain::run<QCoreApplication, DelayedCallTest>(argc, argv);
}

#include "tst_delayedcall.moc"
