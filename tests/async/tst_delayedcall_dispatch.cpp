#include "RecordingLogger.h"
#include "TestMain.h"

// The invoker is private to its source: what the public operations can't bring about is tested in here.
#ifndef __clang__
#pragma GCC diagnostic ignored "-Wsubobject-linkage" // which is meant for headers
#endif
#include "async/DelayedCall.cpp"

class DelayedCallDispatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TOLVAN_NAMESPACE::Logging::setLogger(&m_logger); }
    void nullMethodIsReported();
    void moreThanNineArgumentsAreReported();

private:
    RecordingLogger m_logger;
};

void DelayedCallDispatchTest::nullMethodIsReported()
{
    InvokerRegistry registry;
    CDelayedInvoker invoker(registry);
    QTest::ignoreMessage(QtDebugMsg, "ASSERT in ExPluginShell\\modules\\utilsDll\\DelayedCall:216");
    invoker.schedule(0, this, nullptr, true, {});
    QStringList lines;
    QVERIFY(QTest::qWaitFor([&] { return !(lines = m_logger.take()).isEmpty(); }));
    QCOMPARE(lines,
             QStringList{QStringLiteral("E `anonymous-namespace'::CDelayedInvoker::timerEvent: ASSERT in "
                                        "ExPluginShell\\modules\\utilsDll\\DelayedCall:216")});
}

void DelayedCallDispatchTest::moreThanNineArgumentsAreReported()
{
    QTest::ignoreMessage(QtDebugMsg, "ASSERT in ExPluginShell\\modules\\utilsDll\\DelayedCall:258");
    QVERIFY(!CDelayedInvoker::methodData::invokeMethod(nullptr, "deleteLater", {})); // not an assertion
    QVERIFY(!CDelayedInvoker::methodData::invokeMethod(this, nullptr, {}));
    const QVariantList ten{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    QVERIFY(!CDelayedInvoker::methodData::invokeMethod(this, "deleteLater", ten));
    QCOMPARE(m_logger.take(),
             QStringList{
                 QStringLiteral("E `anonymous-namespace'::CDelayedInvoker::methodData::invokeMethod: ASSERT "
                                "in ExPluginShell\\modules\\utilsDll\\DelayedCall:258")});
}

TOLVAN_CORE_TEST_MAIN(DelayedCallDispatchTest)
#include "tst_delayedcall_dispatch.moc"
