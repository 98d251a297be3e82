#include "ModalDialog.h"
#include "TestMain.h"

#include <utilsDll/look/RemainingTime.h>
#include <utilsDll/ProgressBox.h>

#include <QAccessible>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace
{

/// Works until it is stopped, or until it may end.
struct Work : CQRunnableItem {
    ~Work() override { waitFinishBlocking(); }
    bool doRun() override
    {
        while (!stopRequired() && !mayEnd.loadAcquire()) {
            QThread::msleep(1);
        }
        return ok && !stopRequired();
    }
    bool ok = true;
    QAtomicInt mayEnd;
};

const QString title = QStringLiteral("Exporting");
int descriptions = 0; // given to assistive technology

} // namespace

class ProgressBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shortWorkShowsNoBox()
    {
        CProgressBox box(title);
        box.setAppearanceDelay(60000);
        QPushButton other; // takes no input meanwhile
        QSignalSpy clicks(&other, SIGNAL(clicked()));
        Work work;
        QTimer::singleShot(0, this, [&] {
            QTest::mouseClick(&other, Qt::LeftButton);
            QVERIFY(!box.isVisible());
            QCOMPARE(box.run(work), CProgressBox::Failed); // one at a time
            work.mayEnd.storeRelease(1);
        });
        QCOMPARE(box.run(work), CProgressBox::Succeeded);
        QCOMPARE(clicks.count(), 0);
        Work stopped;
        stopped.stop();
        QCOMPARE(box.run(stopped), CProgressBox::Stopped);
    }

    void cancelling()
    {
        for (const bool byButton : {true, false}) {
            CProgressBox box(title);
            box.setAppearanceDelay(0);
            QSignalSpy requests(&box, SIGNAL(cancelRequested()));
            Work work;
            CProgressBox::Result result = CProgressBox::Failed;
            const auto act = [&](CProgressBox& open) {
                QVERIFY(open.isModal());
                QTest::keyClick(&open, Qt::Key_Return); // typed as the box appeared
                QCOMPARE(requests.count(), 0);
                byButton ? find<QPushButton>(open, "cancelButton")->click() : void(open.close());
                QVERIFY(open.isVisible()); // until the work has ended
                QVERIFY(!find<QPushButton>(open, "cancelButton")->isEnabled());
                QCOMPARE(find<QLabel>(open, "timeLabel")->text(), QStringLiteral("Stopping…"));
            };
            QVERIFY(whileOpen<CProgressBox>([&] { result = box.run(work); }, act));
            QCOMPARE(result, CProgressBox::Stopped);
            QCOMPARE(requests.count(), 1);
            QVERIFY(work.stopRequired() && !box.isVisible());
        }
    }

    void failure()
    {
        for (const QString& text : {QStringLiteral("The disk is full."), QString()}) {
            CProgressBox box(title);
            box.setError(QStringLiteral("of an earlier run"));
            Work work;
            work.ok = false;
            work.mayEnd.storeRelease(1);
            QString shown;
            connect(&work, &CQRunnableItem::started, &box,
                    [&] { text.isNull() ? void() : box.setError(text); });
            QTimer close;
            close.callOnTimeout([&] {
                if (box.isVisible()) {
                    shown = find<QLabel>(box, "errorLabel")->text();
                    QTest::keyClick(&box, Qt::Key_Return);
                }
            });
            close.start(10);
            QCOMPARE(box.run(work), CProgressBox::Failed);
            QCOMPARE(shown, text.isNull() ? QStringLiteral("The work could not be completed.") : text);
        }
    }

    void parentDeleted()
    {
        auto* const parent = new QWidget;
        auto* const box = new CProgressBox(title, parent);
        box->setAppearanceDelay(0);
        Work work;
        CProgressBox::Result result = CProgressBox::Failed;
        whileOpen<CProgressBox>([&] { result = box->run(work); }, [parent](CProgressBox&) { delete parent; });
        QCOMPARE(result, CProgressBox::Stopped);
        QVERIFY(work.stopRequired());
    }

    void whatIsShown()
    {
        CProgressBox box(title);
        box.setAppearanceDelay(0);
        const QString path = QStringLiteral("C:\\Users\\Anna\\%1.CR3").arg(QString(300, QLatin1Char('x')));
        box.begin();
        QTRY_VERIFY(box.isVisible());
        auto* const bar = find<QProgressBar>(box, "progressBar");
        QCOMPARE(bar->maximum(), 0); // the total is not known
        box.setProgress(qint64(1) << 40, qint64(1) << 42, path);
        QAccessible::setActive(true);
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            descriptions += event->type() == QAccessible::DescriptionChanged;
        });
        QTRY_COMPARE(bar->maximum(), 1000);
        QTest::qWait(250); // two refreshes without news
        QCOMPARE(descriptions, QAccessible::isActive() ? 1 : 0);
        QAccessible::installUpdateHandler(nullptr);
        QCOMPARE(bar->value(), 250);
        const auto* const step = find<QLabel>(box, "stepLabel");
        QVERIFY(step->text().size() < path.size() && step->text().endsWith(QStringLiteral("x.CR3")));
        QCOMPARE(step->toolTip(), path);
        QCOMPARE(box.accessibleDescription(), path);
        box.setError(path);
        box.end();
        QCOMPARE(box.focusWidget(), find<QLabel>(box, "errorLabel")); // is read aloud
    }

    void accompanies()
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

    void remainingTime()
    {
        const std::pair<QVector<int>, int> rows[] = {
            // done once a second, of 100 | seconds left
            {{0, 10}, -1},            // too early
            {{0, 10, 20, 29}, 8},     // rounded up
            {{20, 20, 20, 20}, -1},   // does not move
            {{50, 90, 0, 10, 20}, 8}, // starts anew
            {{0, 0, 0, 0, 5, 10, 15, 20, 25, 30, 35, 40, 45, 50}, 10},
            {{0, 50, 100}, 0},
            {{0, 1, 2, 3}, 97},
        };
        for (const auto& [done, left] : rows) {
            TOLVAN_NAMESPACE::RemainingTime remaining;
            for (int i = 0; i < done.size(); ++i) {
                remaining.add(i * 1000, done.at(i), 100);
            }
            QCOMPARE(remaining.seconds(), left);
            QCOMPARE(remaining.text(), left < 0    ? QString()
                                       : left == 0 ? QStringLiteral("A few seconds left")
                                       : left > 60 ? QStringLiteral("About 2 minutes left")
                                                   : QStringLiteral("About 10 seconds left"));
        }
    }
};

TOLVAN_GUI_TEST_MAIN(ProgressBoxTest)
#include "tst_progressbox.moc"
