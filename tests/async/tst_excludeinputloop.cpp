#include "EventSink.h"
#include "TestMain.h"

#include <utilsDll/ExcludeUserInpuEventLoop.h>

#include <QElapsedTimer>
#include <QGestureEvent>
#include <QMimeData>
#include <QSet>
#include <QThread>
#include <QTimer>

#include <memory>

Q_DECLARE_METATYPE(QGenericArgument)

/// An event of any type, of the class that QApplication takes it for.
static std::unique_ptr<QEvent> makeEvent(int number)
{
    const auto type = static_cast<QEvent::Type>(number);
    static const QMimeData mime;
    switch (number) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return std::make_unique<QMouseEvent>(type, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                                             Qt::NoModifier);
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        return std::make_unique<QKeyEvent>(type, Qt::Key_A, Qt::NoModifier);
    case QEvent::Wheel:
        return std::make_unique<QWheelEvent>(QPointF(1, 1), QPointF(1, 1), QPoint(), QPoint(0, 120),
                                             Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
    case QEvent::HoverMove:
        return std::make_unique<QHoverEvent>(type, QPointF(1, 1), QPointF(2, 2));
    case QEvent::ContextMenu:
        return std::make_unique<QContextMenuEvent>(QContextMenuEvent::Mouse, QPoint(1, 1));
    case QEvent::ToolTip:
    case QEvent::WhatsThis:
    case QEvent::QueryWhatsThis:
        return std::make_unique<QHelpEvent>(type, QPoint(1, 1), QPoint(1, 1));
    case QEvent::TabletMove:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
        return std::make_unique<QTabletEvent>(type, QPointF(1, 1), QPointF(1, 1), QTabletEvent::Stylus,
                                              QTabletEvent::Pen, 1, 0, 0, 0, 0, 0, Qt::NoModifier, 1,
                                              Qt::NoButton, Qt::NoButton);
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        return std::make_unique<QTouchEvent>(type);
    case QEvent::NativeGesture:
        return std::make_unique<QNativeGestureEvent>(Qt::ZoomNativeGesture, nullptr, QPointF(), QPointF(),
                                                     QPointF(), 0, 0, 0);
    case QEvent::Gesture:
        return std::make_unique<QGestureEvent>(QList<QGesture*>());
    case QEvent::DragEnter:
        return std::make_unique<QDragEnterEvent>(QPoint(1, 1), Qt::CopyAction, &mime, Qt::NoButton,
                                                 Qt::NoModifier);
    case QEvent::DragMove:
        return std::make_unique<QDragMoveEvent>(QPoint(1, 1), Qt::CopyAction, &mime, Qt::NoButton,
                                                Qt::NoModifier);
    case QEvent::DragLeave:
        return std::make_unique<QDragLeaveEvent>();
    case QEvent::Drop:
        return std::make_unique<QDropEvent>(QPointF(1, 1), Qt::CopyAction, &mime, Qt::NoButton,
                                            Qt::NoModifier);
    default:
        return std::make_unique<QEvent>(type);
    }
}

class ExcludeInputLoopTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void swallowedTypes_data();
    void swallowedTypes();
    void filterAndTargetInEitherOrder();
    void filterNeedsTheTargetsThread();
    void metaObjectMethods();
    void endsWith_data();
    void endsWith();
    void timeOutEndsARunThatNothingElseEnds();
    void timeOutIsReplaced();
    void timeOutOfAnEarlierRun();
    void nestedExec();
    void inputIsExcludedOnlyWhileRunning();
    void watchedObjectDies();
};

void ExcludeInputLoopTest::swallowedTypes_data()
{
    QTest::addColumn<bool>("wholeApplication");
    QTest::newRow("filter on the widget") << false;
    QTest::newRow("filter on the application") << true;
}

void ExcludeInputLoopTest::swallowedTypes()
{
    QFETCH(const bool, wholeApplication);
    const QSet<int> expected{2,   3,   4,   6,   7,   8,   9,   10,  19,  51,  60,  61,  62, 63,
                             117, 155, 156, 157, 158, 159, 164, 165, 166, 167, 174, 175, 176};
    EventSink widget;
    const auto delivered = [&] {
        QSet<int> types;
        for (int type = 0; type <= 200; ++type) {
            widget.got.clear();
            QCoreApplication::sendEvent(&widget, makeEvent(type).get());
            if (widget.got.contains(type)) {
                types += type;
            }
        }
        return types;
    };
    const QSet<int> always = delivered();
    // Qt delivers these during a drag only: the filter is asked about them below.
    QVERIFY((expected - always).subtract({QEvent::DragMove, QEvent::DragLeave, QEvent::Drop}).isEmpty());
    const auto filter = std::make_unique<CExcludeUserInpuEventsFilter>(
        wholeApplication ? static_cast<QObject*>(qApp) : static_cast<QObject*>(&widget));
    QCOMPARE(always - delivered(), always & expected);
    for (int type = 0; type <= 200; ++type) {
        const auto event = makeEvent(type);
        event->accept();
        QCOMPARE(filter->eventFilter(&widget, event.get()), expected.contains(type));
        QCOMPARE(event->isAccepted(), !expected.contains(type));
    }
}

void ExcludeInputLoopTest::filterAndTargetInEitherOrder()
{
    auto target = std::make_unique<EventSink>();
    const auto press = [&] {
        QTest::mousePress(target.get(), Qt::LeftButton);
        return target->take(QEvent::MouseButtonPress) == 1;
    };
    auto* filter = new CExcludeUserInpuEventsFilter(target.get());
    QCOMPARE(filter->parent(), target.get());
    QVERIFY(!press());
    delete filter;
    QVERIFY(press());
    const QPointer<QObject> dies = new CExcludeUserInpuEventsFilter(target.get());
    target.reset();
    QVERIFY(!dies);
    const CExcludeUserInpuEventsFilter none(nullptr);
    QVERIFY(!none.parent());
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
    QTest::mousePress(&widget, Qt::LeftButton);
    QCOMPARE(widget.take(QEvent::MouseButtonPress), 1);
}

void ExcludeInputLoopTest::metaObjectMethods()
{
    QByteArray signatures;
    const QMetaObject& meta = CExcludeUserInpuEventLoop::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        signatures += meta.method(i).methodSignature() + ' ';
    }
    QCOMPARE(signatures, QByteArray("exec(int) quit() failedQuit() exit(int) "));
}

void ExcludeInputLoopTest::endsWith_data()
{
    QTest::addColumn<QGenericArgument>("argument");
    QTest::addColumn<int>("code");
    static const int code = 42;
    QTest::newRow("quit") << QGenericArgument() << 0;
    QTest::newRow("failedQuit") << QGenericArgument() << 1;
    QTest::newRow("exit") << QGenericArgument("int", &code) << code;
}

void ExcludeInputLoopTest::endsWith()
{
    QFETCH(const QGenericArgument, argument);
    QFETCH(const int, code);
    CExcludeUserInpuEventLoop loop;
    int result = -2;
    QTimer::singleShot(0, this, [&] {
        QVERIFY(loop.isRunning());
        QVERIFY(QMetaObject::invokeMethod(&loop, QTest::currentDataTag(), argument));
    });
    QVERIFY(!loop.isRunning());
    QVERIFY(QMetaObject::invokeMethod(&loop, "exec", Q_RETURN_ARG(int, result), Q_ARG(int, 0)));
    QCOMPARE(result, code);
    QVERIFY(!loop.isRunning());
}

void ExcludeInputLoopTest::timeOutEndsARunThatNothingElseEnds()
{
    CExcludeUserInpuEventLoop loop;
    loop.quit(); // none has an effect on a loop that is not running
    loop.failedQuit();
    loop.exit(3);
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(loop.exec(100), 0);
    QVERIFY2(clock.elapsed() >= 90 && clock.elapsed() < 30000, qPrintable(QString::number(clock.elapsed())));
}

void ExcludeInputLoopTest::timeOutIsReplaced()
{
    CExcludeUserInpuEventLoop loop;
    QTimer::singleShot(0, &loop, SLOT(failedQuit()));
    QCOMPARE(loop.exec(100), 1); // leaves its time-out behind
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(loop.exec(300), 0); // which this one replaces
    QVERIFY2(clock.elapsed() >= 270, qPrintable(QString::number(clock.elapsed())));
}

void ExcludeInputLoopTest::timeOutOfAnEarlierRun()
{
    CExcludeUserInpuEventLoop loop;
    QTimer::singleShot(0, &loop, SLOT(failedQuit()));
    QCOMPARE(loop.exec(100), 1);
    QTimer::singleShot(30000, &loop, SLOT(failedQuit()));
    QCOMPARE(loop.exec(0), 0); // ended by the earlier time-out
}

void ExcludeInputLoopTest::nestedExec()
{
    CExcludeUserInpuEventLoop outer, inner;
    int same = -2, other = -2;
    QTimer::singleShot(0, this, [&] {
        same = outer.exec(0);
        QTimer::singleShot(0, &inner, SLOT(failedQuit()));
        other = inner.exec(0); // a loop of its own may run inside
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
    QTimer::singleShot(0, this, [&] {
        QTest::mouseClick(&watched, Qt::LeftButton);
        QTest::mouseClick(&other, Qt::LeftButton);
        loop.quit();
    });
    QCOMPARE(loop.exec(0), 0);
    QCOMPARE(watched.take(QEvent::MouseButtonPress), 0);
    QCOMPARE(other.take(QEvent::MouseButtonPress), 1);
    QTest::mouseClick(&watched, Qt::LeftButton);
    QCOMPARE(watched.take(QEvent::MouseButtonPress), 1);
}

void ExcludeInputLoopTest::watchedObjectDies()
{
    auto* const watched = new EventSink;
    CExcludeUserInpuEventLoop loop(watched, nullptr);
    QTimer::singleShot(0, this, [&] { delete watched; }); // and its filter with it
    QCOMPARE(loop.exec(30), 0);
    QCOMPARE(loop.exec(10), 0); // nothing left to watch
}

TOLVAN_GUI_TEST_MAIN(ExcludeInputLoopTest)
#include "tst_excludeinputloop.moc"
