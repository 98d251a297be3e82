#include "EventSink.h"
#include "TestMain.h"

#include <utilsDll/ExcludeUserInpuEventLoop.h>

#include <QElapsedTimer>
#include <QTimer>

#include <memory>

namespace
{

bool isPressDelivered(EventSink& widget)
{
    QTest::mousePress(&widget, Qt::LeftButton);
    return widget.take(QEvent::MouseButtonPress) == 1;
}

} // namespace

class ExcludeInputLoopTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filterAndTargetInEitherOrder()
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

    void endsWith()
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

    void timeOuts()
    {
        CExcludeUserInpuEventLoop loop;
        QElapsedTimer clock;
        for (const int second : {150, 0}) {
            QTimer::singleShot(0, &loop, SLOT(failedQuit()));
            QCOMPARE(loop.exec(100), 1); // leaves its time-out behind
            clock.start();
            QTimer::singleShot(30000, &loop, SLOT(failedQuit()));
            QCOMPARE(loop.exec(second), 0); // which a new one replaces, and which else ends this run
            QVERIFY2(clock.elapsed() >= (second ? 135 : 0), qPrintable(QString::number(clock.elapsed())));
        }
    }

    void nestedExec()
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

    void inputIsExcludedOnlyWhileRunning()
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

    void watchedObjectDies()
    {
        auto* const watched = new EventSink;
        CExcludeUserInpuEventLoop loop(watched, nullptr);
        QTimer::singleShot(0, this, [&] { delete watched; }); // and its filter with it
        QCOMPARE(loop.exec(30), 0);
        QCOMPARE(loop.exec(10), 0); // without a filter
    }
};

TOLVAN_GUI_TEST_MAIN(ExcludeInputLoopTest)
#include "tst_excludeinputloop.moc"
