#include "AssertionReport.h"
#include "TestMain.h"

#include "async/DelayedInvoker.h"

/// What the public operations can't bring about.
class DelayedInvokerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nullMethodIsReported();
    void moreThanNineArgumentsAreReported();
};

void DelayedInvokerTest::nullMethodIsReported()
{
    CDelayedInvoker invoker;
    invoker.schedule(0, this, nullptr, true, {});
    QVERIFY(!invoker.isIdle());
    verifyReport("`anonymous-namespace'::CDelayedInvoker::timerEvent", "DelayedCall", 216, nullptr,
                 [&] { QVERIFY(QTest::qWaitFor([&] { return invoker.isIdle(); })); });
}

void DelayedInvokerTest::moreThanNineArgumentsAreReported()
{
    using Call = CDelayedInvoker::methodData;
    QVERIFY(!Call::invokeMethod(nullptr, "deleteLater", {})); // not an assertion
    QVERIFY(!Call::invokeMethod(this, nullptr, {}));
    const QVariantList ten{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    verifyReport("`anonymous-namespace'::CDelayedInvoker::methodData::invokeMethod", "DelayedCall", 258,
                 nullptr, [&] { QVERIFY(!Call::invokeMethod(this, "deleteLater", ten)); });
}

TOLVAN_CORE_TEST_MAIN(DelayedInvokerTest)
#include "tst_delayedinvoker.moc"
