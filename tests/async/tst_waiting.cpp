#include "EventSink.h"
#include "TestMain.h"

#include <utilsDll/Waiting.h>

#include <QTimer>
#include <QWheelEvent>

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

} // namespace

class WaitingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void conditionThatHoldsIsTestedOnce()
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

    void blockingWaitForAnotherThread()
    {
        QAtomicInt value(0);
        int written = 0; // guarded by the order of the atomic
        std::thread other([&] {
            written = 1;
            value.storeRelease(1);
            waitBlockingAtomicIntValue(value, -1);
        });
        waitBlockingAtomicIntValue(value, 1);
        QCOMPARE(written, 1);
        value.storeRelease(-1);
        other.join();
    }

    void eventsOfANonBlockingWait()
    {
        for (const bool excludeUserInput : {false, true}) {
            EventSink sink;
            QWidget window;
            window.show();
            QAtomicInt over(0);
            QTimer::singleShot(5, this, [&] {
                QTest::keyClick(&sink, Qt::Key_A);
                QTest::mouseClick(&sink, Qt::LeftButton);
                QTest::mouseDClick(&sink, Qt::LeftButton);
                QMouseEvent move(QEvent::MouseMove, QPointF(1, 1), Qt::NoButton, Qt::NoButton,
                                 Qt::NoModifier);
                QCoreApplication::sendEvent(&sink, &move);
                QWheelEvent wheel(QPointF(1, 1), QPointF(1, 1), QPoint(), QPoint(0, 120), Qt::NoButton,
                                  Qt::NoModifier, Qt::NoScrollPhase, false);
                QCoreApplication::sendEvent(&sink, &wheel);
                window.close();
                QTimer::singleShot(5, this, [&] { over.storeRelease(1); });
            });
            waitNonBlockingAtomicIntValue(over, 1, excludeUserInput);
            QCoreApplication::processEvents(); // what was swallowed is lost
            QVERIFY(sink.got.contains(QEvent::MouseMove) && sink.got.contains(QEvent::Wheel));
            for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease, QEvent::MouseButtonPress,
                                    QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick}) {
                QVERIFY2(sink.got.contains(type) != excludeUserInput, qPrintable(QString::number(type)));
            }
            QCOMPARE(window.isVisible(), excludeUserInput);
        }
    }

    void filterGoesWhenThePredicateThrows()
    {
        EventSink sink;
        QVERIFY_EXCEPTION_THROWN(
            waitNonBlocking(Condition([]() -> bool { throw std::runtime_error("x"); }), true),
            std::runtime_error);
        QTest::mouseClick(&sink, Qt::LeftButton);
        QCOMPARE(sink.take(QEvent::MouseButtonPress), 1);
    }

    void waitInAWorkerBlocksNoInput()
    {
        EventSink sink;
        QAtomicInt state(0);
        std::thread worker([&] {
            const auto over = [&] {
                state.testAndSetOrdered(0, 1);
                return state.loadAcquire() == 2;
            };
            waitNonBlocking(Condition(over), true);
        });
        waitBlockingAtomicIntValue(state, 1);
        QTest::mouseClick(&sink, Qt::LeftButton);
        state.storeRelease(2);
        worker.join();
        QCOMPARE(sink.take(QEvent::MouseButtonPress), 1);
    }
};

TOLVAN_GUI_TEST_MAIN(WaitingTest)
#include "tst_waiting.moc"
