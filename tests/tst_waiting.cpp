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

/// A condition given as a function; counts its tests.
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

/// A widget that records the types of what it gets.
class Recorder : public QWidget
{
public:
    Recorder() { setMouseTracking(true); }
    QVector<QEvent::Type> got;

protected:
    bool event(QEvent* event) override
    {
        got += event->type();
        return QWidget::event(event);
    }
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
    void nonBlockingKeepsTimersAndQueuedCallsGoing_data();
    void nonBlockingKeepsTimersAndQueuedCallsGoing();
    void inputIsSwallowedWhileWaiting_data();
    void inputIsSwallowedWhileWaiting();
    void filterGoesWhenThePredicateThrows();
    void waitInAWorkerBlocksNobodysInput();
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

void WaitingTest::nonBlockingKeepsTimersAndQueuedCallsGoing_data()
{
    QTest::addColumn<bool>("excludeUserInput");
    QTest::newRow("input processed") << false;
    QTest::newRow("input excluded") << true;
}

void WaitingTest::nonBlockingKeepsTimersAndQueuedCallsGoing()
{
    QFETCH(const bool, excludeUserInput);
    QAtomicInt ticks(0), queued(0);
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] { ticks.ref(); });
    timer.start(5);
    QMetaObject::invokeMethod(
        this, [&] { queued.ref(); }, Qt::QueuedConnection);
    waitNonBlockingAtomicIntValue(ticks, 4, excludeUserInput);
    QCOMPARE(ticks.loadAcquire(), 4);
    QCOMPARE(queued.loadAcquire(), 1);
}

void WaitingTest::inputIsSwallowedWhileWaiting_data()
{
    QTest::addColumn<bool>("excludeUserInput");
    QTest::newRow("input processed") << false;
    QTest::newRow("input excluded") << true;
}

void WaitingTest::inputIsSwallowedWhileWaiting()
{
    QFETCH(const bool, excludeUserInput);
    Recorder recorder;
    QLineEdit edit;
    edit.show();
    bool sent = false;
    QTimer::singleShot(0, this, [&] {
        recorder.got.clear();
        sendAllKindsOfInput(recorder);
        QTest::keyClicks(&edit, QStringLiteral("text"));
        edit.close();
        sent = true;
    });
    waitNonBlocking(Condition([&] { return sent; }), excludeUserInput);
    const QVector<QEvent::Type> passed{QEvent::MouseMove, QEvent::Wheel};
    const QVector<QEvent::Type> blocked{QEvent::KeyPress, QEvent::KeyRelease, QEvent::MouseButtonPress,
                                        QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick};
    for (const auto type : passed) {
        QVERIFY2(recorder.got.contains(type), qPrintable(QString::number(type)));
    }
    for (const auto type : blocked) {
        QVERIFY2(recorder.got.contains(type) != excludeUserInput, qPrintable(QString::number(type)));
    }
    QCOMPARE(edit.text(), excludeUserInput ? QString() : QStringLiteral("text"));
    QCOMPARE(edit.isVisible(), excludeUserInput);
    QCoreApplication::processEvents(); // what was swallowed is gone for good
    QCOMPARE(edit.text(), excludeUserInput ? QString() : QStringLiteral("text"));
    QTest::keyClicks(&edit, QStringLiteral("later"));
    QVERIFY(edit.text().endsWith(QStringLiteral("later")));
}

void WaitingTest::filterGoesWhenThePredicateThrows()
{
    Recorder recorder;
    QVERIFY_EXCEPTION_THROWN(
        waitNonBlocking(Condition([]() -> bool { throw std::runtime_error("x"); }), true),
        std::runtime_error);
    QTest::mouseClick(&recorder, Qt::LeftButton);
    QVERIFY(recorder.got.contains(QEvent::MouseButtonPress));
}

void WaitingTest::waitInAWorkerBlocksNobodysInput()
{
    Recorder recorder;
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
    QTest::mouseClick(&recorder, Qt::LeftButton);
    value.storeRelease(1);
    worker.join();
    QVERIFY(recorder.got.contains(QEvent::MouseButtonPress));
}

TOLVAN_GUI_TEST_MAIN(WaitingTest)
#include "tst_waiting.moc"
