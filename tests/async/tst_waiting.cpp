#include "EventSink.h"
#include "TestMain.h"

#include <utilsDll/Waiting.h>

#include <QLineEdit>
#include <QTimer>
#include <QWheelEvent>

#include <atomic>
#include <functional>
#include <stdexcept>
#include <thread>

namespace
{

/// A condition made from a function; counts its tests.
struct Condition : ICustomWaitPredicate {
    explicit Condition(std::function<bool()> condition)
        : function(std::move(condition))
    {
    }
    bool test() const override
    {
        ++tests;
        return function();
    }
    const std::function<bool()> function;
    mutable int tests = 0;
};

void sendAllKindsOfInput(QWidget& widget)
{
    QTest::keyClick(&widget, Qt::Key_A);
    QTest::mouseClick(&widget, Qt::LeftButton);
    QTest::mouseDClick(&widget, Qt::LeftButton);
    QMouseEvent move(QEvent::MouseMove, QPointF(1, 1), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
    QWheelEvent wheel(QPointF(1, 1), QPointF(1, 1), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &wheel);
}

} // namespace

class WaitingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void conditionThatHoldsIsTestedOnce();
    void blockingWaitForAnotherThread();
    void eventsOfANonBlockingWait_data();
    void eventsOfANonBlockingWait();
    void filterGoesWhenThePredicateThrows();
    void waitInAWorkerBlocksNoInput();
};

void WaitingTest::conditionThatHoldsIsTestedOnce()
{
    const Condition holds([] { return true; });
    bool processed = false;
    QMetaObject::invokeMethod(
        this, [&] { processed = true; }, Qt::QueuedConnection);
    waitBlocking(holds);
    waitNonBlocking(holds, true);
    const QAtomicInt zero(0);
    waitBlockingAtomicIntValue(zero, 0);
    waitNonBlockingAtomicIntValue(zero, 0, false);
    QCOMPARE(holds.tests, 2);
    QVERIFY(!processed);
    QCoreApplication::processEvents();
}

void WaitingTest::blockingWaitForAnotherThread()
{
    QAtomicInt value(0);
    int written = 0; // guarded by the order of the atomic
    std::thread other([&] {
        for (int i = 1; i <= 3; ++i) {
            written = i;
            value.storeRelease(i);
            waitBlockingAtomicIntValue(value, -i);
        }
    });
    for (int i = 1; i <= 3; ++i) {
        waitBlockingAtomicIntValue(value, i);
        QCOMPARE(written, i);
        value.storeRelease(-i);
    }
    other.join();
}

void WaitingTest::eventsOfANonBlockingWait_data()
{
    QTest::addColumn<bool>("excludeUserInput");
    QTest::newRow("input processed") << false;
    QTest::newRow("input excluded") << true;
}

void WaitingTest::eventsOfANonBlockingWait()
{
    QFETCH(const bool, excludeUserInput);
    EventSink sink;
    QLineEdit edit;
    edit.show();
    bool queued = false;
    QMetaObject::invokeMethod(
        this, [&] { queued = true; }, Qt::QueuedConnection);
    QAtomicInt over(0);
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (++ticks == 1) {
            sink.got.clear();
            sendAllKindsOfInput(sink);
            QTest::keyClicks(&edit, QStringLiteral("text"));
            edit.close();
        } else if (ticks == 4) {
            over.storeRelease(1);
        }
    });
    timer.start(5);
    waitNonBlockingAtomicIntValue(over, 1, excludeUserInput);
    QVERIFY(queued);
    QVERIFY(sink.got.contains(QEvent::MouseMove) && sink.got.contains(QEvent::Wheel));
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease, QEvent::MouseButtonPress,
                            QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick}) {
        QVERIFY2(sink.got.contains(type) != excludeUserInput, qPrintable(QString::number(type)));
    }
    QCOMPARE(edit.isVisible(), excludeUserInput);
    QCoreApplication::processEvents(); // what was swallowed is gone for good
    QTest::keyClicks(&edit, QStringLiteral(" later"));
    QCOMPARE(edit.text(), excludeUserInput ? QStringLiteral(" later") : QStringLiteral("text later"));
}

void WaitingTest::filterGoesWhenThePredicateThrows()
{
    EventSink sink;
    QVERIFY_EXCEPTION_THROWN(
        waitNonBlocking(Condition([]() -> bool { throw std::runtime_error("x"); }), true),
        std::runtime_error);
    QTest::mouseClick(&sink, Qt::LeftButton);
    QCOMPARE(sink.take(QEvent::MouseButtonPress), 1);
}

void WaitingTest::waitInAWorkerBlocksNoInput()
{
    EventSink sink;
    QAtomicInt value(0);
    std::atomic<bool> waiting{false};
    std::thread worker([&] {
        waitNonBlocking(Condition([&] {
                            waiting = true;
                            return value.loadAcquire() == 1;
                        }),
                        true);
    });
    QTRY_VERIFY(waiting.load());
    QTest::mouseClick(&sink, Qt::LeftButton);
    value.storeRelease(1);
    worker.join();
    QCOMPARE(sink.take(QEvent::MouseButtonPress), 1);
}

TOLVAN_GUI_TEST_MAIN(WaitingTest)
#include "tst_waiting.moc"
