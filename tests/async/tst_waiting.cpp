#include "EventSink.h"
#include "TestMain.h"

#include <utilsDll/Waiting.h>

#include <QTimer>
#include <QWheelEvent>

#include <thread>

class WaitingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        for (const bool excludeUserInput : {true, false}) { // the exclusion ends with the wait
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
};

TOLVAN_GUI_TEST_MAIN(WaitingTest)
#include "tst_waiting.moc"
