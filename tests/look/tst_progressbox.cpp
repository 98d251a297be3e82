#include "ModalDialog.h"
#include "TestMain.h"

#include <utilsDll/look/RemainingTime.h>
#include <utilsDll/ProgressBox.h>

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace
{

/// Works until it is stopped, or until it may end.
class Work : public CQRunnableItem
{
public:
    explicit Work(bool ok, bool waits = true)
        : m_ok(ok)
        , m_mayEnd(waits ? 0 : 1)
    {
    }
    ~Work() override { waitFinishBlocking(); }

    void letEnd() { m_mayEnd.storeRelease(1); }

    bool doRun() override
    {
        while (!stopRequired() && !m_mayEnd.loadAcquire()) {
            QThread::msleep(1);
        }
        return m_ok && !stopRequired();
    }

private:
    const bool m_ok;
    QAtomicInt m_mayEnd;
};

struct PlainWork : CRunnableItem<QRunnable> {
    ~PlainWork() override { waitFinishBlocking(); }
    void run() override { QThread::msleep(20); }
};

template <class T>
T* find(const QDialog& box, const char* name)
{
    return box.findChild<T*>(QString::fromLatin1(name));
}

const QString title = QStringLiteral("Exporting");

} // namespace

class ProgressBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shortWorkShowsNoBox();
    void cancelling_data();
    void cancelling();
    void failure();
    void parentDeleted();
    void whatIsShown();
    void accompanies();
    void itemWithoutSignals();
    void remainingTime_data();
    void remainingTime();
};

void ProgressBoxTest::shortWorkShowsNoBox()
{
    CProgressBox box(title);
    box.setAppearanceDelay(60000);
    QSignalSpy spy(&box, SIGNAL(finished(int)));
    QPushButton other; // takes no input meanwhile
    QSignalSpy clicks(&other, SIGNAL(clicked()));
    Work work(true);
    QTimer::singleShot(0, this, [&] {
        QTest::mouseClick(&other, Qt::LeftButton);
        QVERIFY(!box.isVisible());
        QCOMPARE(box.run(work), CProgressBox::Failed); // one at a time
        work.letEnd();
    });
    QCOMPARE(box.run(work), CProgressBox::Succeeded);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(clicks.count(), 0);
    Work stopped(true);
    stopped.stop();
    QCOMPARE(box.run(stopped), CProgressBox::Stopped);
}

void ProgressBoxTest::cancelling_data()
{
    QTest::addColumn<QString>("way");
    for (const char* const way : {"button", "Escape", "window"}) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

void ProgressBoxTest::cancelling()
{
    QFETCH(QString, way);
    CProgressBox box(title);
    box.setAppearanceDelay(0);
    QSignalSpy requests(&box, SIGNAL(cancelRequested()));
    Work work(true);
    CProgressBox::Result result = CProgressBox::Failed;
    const auto cancel = [&](CProgressBox& open) {
        QVERIFY(open.isModal());
        auto* const button = find<QPushButton>(open, "cancelButton");
        QTest::keyClick(&open, Qt::Key_Return); // typed as the box appeared
        QCOMPARE(requests.count(), 0);
        if (way == QLatin1String("button")) {
            button->click();
        } else if (way == QLatin1String("Escape")) {
            QTest::keyClick(&open, Qt::Key_Escape);
        } else {
            open.close();
        }
        QVERIFY(open.isVisible()); // until the work has ended
        QVERIFY(!button->isEnabled());
        QCOMPARE(find<QLabel>(open, "timeLabel")->text(), QStringLiteral("Stopping…"));
        QVERIFY(work.stopRequired());
    };
    QVERIFY(whileOpen<CProgressBox>([&] { result = box.run(work); }, cancel));
    QCOMPARE(result, CProgressBox::Stopped);
    QCOMPARE(requests.count(), 1);
    QVERIFY(!box.isVisible());
}

void ProgressBoxTest::failure()
{
    for (const QString& text : {QStringLiteral("The disk is full."), QString()}) {
        CProgressBox box(title);
        box.setError(QStringLiteral("of an earlier run"));
        Work work(false, false);
        CProgressBox::Result result = CProgressBox::Succeeded;
        QString shown;
        connect(&work, &CQRunnableItem::started, &box, [&] { text.isNull() ? void() : box.setError(text); });
        QTimer close;
        close.callOnTimeout([&] {
            if (box.isVisible()) {
                shown = find<QLabel>(box, "errorLabel")->text();
                QTest::keyClick(&box, Qt::Key_Return);
            }
        });
        close.start(10);
        result = box.run(work);
        QCOMPARE(result, CProgressBox::Failed);
        QCOMPARE(shown, text.isNull() ? QStringLiteral("The work could not be completed.") : text);
    }
}

void ProgressBoxTest::parentDeleted()
{
    auto* const parent = new QWidget;
    auto* const box = new CProgressBox(title, parent);
    box->setAppearanceDelay(0);
    Work work(true);
    CProgressBox::Result result = CProgressBox::Failed;
    whileOpen<CProgressBox>([&] { result = box->run(work); }, [parent](CProgressBox&) { delete parent; });
    QCOMPARE(result, CProgressBox::Stopped);
    QVERIFY(work.stopRequired());
}

void ProgressBoxTest::whatIsShown()
{
    CProgressBox box(title);
    box.setAppearanceDelay(0);
    const QString path = QStringLiteral("C:\\Users\\Anna\\%1.CR3").arg(QString(300, QLatin1Char('x')));
    box.begin();
    QTRY_VERIFY(box.isVisible());
    auto* const bar = find<QProgressBar>(box, "progressBar");
    QCOMPARE(bar->maximum(), 0); // the total is not known
    const QSize size = box.size();
    box.setProgress(qint64(1) << 40, qint64(1) << 42, path);
    QTRY_COMPARE(bar->maximum(), 1000);
    QCOMPARE(bar->value(), 250);
    const auto* const step = find<QLabel>(box, "stepLabel");
    QVERIFY(step->text().size() < path.size() && step->text().endsWith(QStringLiteral("x.CR3")));
    QVERIFY(step->fontMetrics().horizontalAdvance(step->text()) <= step->width());
    QCOMPARE(step->toolTip(), path);
    QCOMPARE(box.accessibleDescription(), path);
    QCOMPARE(box.size(), size);
    box.end();
    QVERIFY(!box.isVisible());
}

void ProgressBoxTest::accompanies()
{
    const QPointer<CProgressBox> box(new CProgressBox(title));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setAppearanceDelay(60000);
    QSignalSpy ends(box, SIGNAL(finished(int)));
    box->end(); // without begin()
    QCOMPARE(ends.count(), 0);
    box->begin();
    box->end();
    QCOMPARE(ends.count(), 1);
    QTRY_VERIFY(!box);
}

void ProgressBoxTest::itemWithoutSignals()
{
    CProgressBox box(title);
    box.setAppearanceDelay(0);
    PlainWork work;
    bool enabled = true;
    QTimer::singleShot(0, this, [&] { enabled = find<QPushButton>(box, "cancelButton")->isEnabled(); });
    QCOMPARE(box.run(work), CProgressBox::Succeeded);
    QVERIFY(!enabled); // nothing is connected that could stop the work
}

void ProgressBoxTest::remainingTime_data()
{
    QTest::addColumn<QVector<int>>("done"); // once a second, of 100
    QTest::addColumn<int>("left");
    QTest::newRow("nothing yet") << QVector<int>{} << -1;
    QTest::newRow("too early") << QVector<int>{0, 10} << -1;
    QTest::newRow("even") << QVector<int>{0, 10, 20, 30} << 7;
    QTest::newRow("rounded up") << QVector<int>{0, 10, 20, 29} << 8;
    QTest::newRow("does not move") << QVector<int>{20, 20, 20, 20} << -1;
    QTest::newRow("slow at first") << QVector<int>{0, 0, 0, 0, 5, 10, 15, 20, 25, 30, 35, 40, 45, 50} << 10;
    QTest::newRow("starts anew") << QVector<int>{50, 90, 0, 10, 20} << 8;
    QTest::newRow("done") << QVector<int>{0, 50, 100} << 0;
}

void ProgressBoxTest::remainingTime()
{
    QFETCH(QVector<int>, done);
    QFETCH(int, left);
    TOLVAN_NAMESPACE::RemainingTime remaining;
    for (int i = 0; i < done.size(); ++i) {
        remaining.add(i * 1000, done.at(i), 100);
    }
    QCOMPARE(remaining.seconds(), left);
    const QString text = QStringLiteral("About %1 seconds left").arg(10);
    QCOMPARE(remaining.text(), left < 0    ? QString()
                               : left <= 5 ? QStringLiteral("A few seconds left")
                                           : text);
}

TOLVAN_GUI_TEST_MAIN(ProgressBoxTest)
#include "tst_progressbox.moc"
