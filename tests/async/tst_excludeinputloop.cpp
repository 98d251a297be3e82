#include "EventSink.h"
#include "TestMain.h"

#include <utilsDll/ExcludeUserInpuEventLoop.h>

#include <QElapsedTimer>
#include <QSet>
#include <QThread>
#include <QTimer>

#include <memory>

class ExcludeInputLoopTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void swallowedTypes();
    void filterAndTargetInEitherOrder();
    void filterNeedsTheTargetsThread();
    void methodsInOrder();
    void endsWith();
    void timeOuts();
    void nestedExec();
    void inputIsExcludedOnlyWhileRunning();
    void watchedObjectDies();
};

namespace
{

bool isPressDelivered(EventSink& widget)
{
    QTest::mousePress(&widget, Qt::LeftButton);
    return widget.take(QEvent::MouseButtonPress) == 1;
}

} // namespace

void ExcludeInputLoopTest::swallowedTypes()
{
    const QSet<int> expected{2,   3,   4,   6,   7,   8,   9,   10,  19,  51,  60,  61,  62, 63,
                             117, 155, 156, 157, 158, 159, 164, 165, 166, 167, 174, 175, 176};
    QObject object;
    CExcludeUserInpuEventsFilter filter(&object);
    for (int type = 0; type <= 200; ++type) {
        QEvent event(static_cast<QEvent::Type>(type));
        QCOMPARE(filter.eventFilter(&object, &event), expected.contains(type));
        QCOMPARE(event.isAccepted(), !expected.contains(type));
    }
}

void ExcludeInputLoopTest::filterAndTargetInEitherOrder()
{
    auto target = std::make_unique<EventSink>();
    auto* filter = new CExcludeUserInpuEventsFilter(target.get());
    QCOMPARE(filter->parent(), target.get());
    QVERIFY(!isPressDelivered(*target));
    delete filter;
    QVERIFY(isPressDelivered(*target));
    const QPointer<QObject> dies = new CExcludeUserInpuEventsFilter(target.get());
    target.reset();
    QVERIFY(!dies);
    QVERIFY(!CExcludeUserInpuEventsFilter(nullptr).parent());
}

void ExcludeInputLoopTest::filterNeedsTheTargetsThread()
{
    EventSink widget;
    QTest::ignoreMessage(QtWarningMsg, "Logic error: can't install event filter in different thread");
    const std::unique_ptr<QThread> worker(QThread::create([&] {
        const CExcludeUserInpuEventsFilter warned(&widget);
        const CExcludeUserInpuEventsFilter silent(qApp);
    }));
    worker->start();
    QVERIFY(worker->wait(30000));
    QVERIFY(isPressDelivered(widget));
}

void ExcludeInputLoopTest::methodsInOrder()
{
    QByteArray signatures;
    const QMetaObject& meta = CExcludeUserInpuEventLoop::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        signatures += meta.method(i).methodSignature() + ' ';
    }
    QCOMPARE(signatures, QByteArray("exec(int) quit() failedQuit() exit(int) "));
}

void ExcludeInputLoopTest::endsWith()
{
    CExcludeUserInpuEventLoop loop;
    const auto code = [&](auto end) {
        end(); // has no effect on a loop that is not running
        QTimer::singleShot(0, this, [&] {
            QVERIFY(loop.isRunning());
            end();
        });
        const int result = loop.exec(0);
        return loop.isRunning() ? -2 : result;
    };
    QCOMPARE(code([&] { loop.quit(); }), 0);
    QCOMPARE(code([&] { loop.failedQuit(); }), 1);
    QCOMPARE(code([&] { loop.exit(42); }), 42);
}

void ExcludeInputLoopTest::timeOuts()
{
    CExcludeUserInpuEventLoop loop;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(loop.exec(50), 0);
    QVERIFY2(clock.elapsed() >= 45, qPrintable(QString::number(clock.elapsed())));
    for (const int second : {300, 0}) {
        QTimer::singleShot(0, &loop, SLOT(failedQuit()));
        QCOMPARE(loop.exec(100), 1); // leaves its time-out behind
        clock.start();
        QTimer::singleShot(30000, &loop, SLOT(failedQuit()));
        QCOMPARE(loop.exec(second), 0); // which a new one replaces, and which else ends this run
        QVERIFY2(clock.elapsed() >= (second ? 270 : 0), qPrintable(QString::number(clock.elapsed())));
    }
}

void ExcludeInputLoopTest::nestedExec()
{
    CExcludeUserInpuEventLoop outer, inner;
    int same = -2, other = -2;
    QTimer::singleShot(0, this, [&] {
        same = outer.exec(0);
        QTimer::singleShot(0, &inner, SLOT(failedQuit()));
        other = inner.exec(0); // another loop may run inside
        outer.exit(7);
    });
    QCOMPARE(outer.exec(0), 7);
    QCOMPARE(same, -1);
    QCOMPARE(other, 1);
}

void ExcludeInputLoopTest::inputIsExcludedOnlyWhileRunning()
{
    EventSink watched, other;
    CExcludeUserInpuEventLoop loop(&watched, nullptr);
    bool excluded = false;
    QTimer::singleShot(0, this, [&] {
        excluded = !isPressDelivered(watched) && isPressDelivered(other);
        loop.quit();
    });
    QCOMPARE(loop.exec(0), 0);
    QVERIFY(excluded && isPressDelivered(watched));
}

void ExcludeInputLoopTest::watchedObjectDies()
{
    auto* const watched = new EventSink;
    CExcludeUserInpuEventLoop loop(watched, nullptr);
    QTimer::singleShot(0, this, [&] { delete watched; }); // and its filter with it
    QCOMPARE(loop.exec(30), 0);
    QCOMPARE(loop.exec(10), 0); // without a filter
}

TOLVAN_GUI_TEST_MAIN(ExcludeInputLoopTest)
#include "tst_excludeinputloop.moc"
