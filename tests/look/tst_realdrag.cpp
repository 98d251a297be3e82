#include "ScreenProbe.h"
#include "TestMain.h"

#include <utilsDll/BaseDialog.h>

#include "RealInput.h" // last: it brings macros along

/// A dialog dragged by the mouse of a real X server under a window manager, as the user sees it.
class RealDragTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drag()
    {
        const RealInput user;
        QVERIFY(user.isThere());
        const QColor color(250, 3, 251);
        TOLVAN_NAMESPACE::CBaseDialog dialog;
        QWidget content(&dialog);
        content.setFixedSize(240, 120);
        content.setStyleSheet(QStringLiteral("background: ") + color.name());
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        const QPoint place(200, 150);
        dialog.move(place);
        QTRY_COMPARE(ScreenProbe::placeOf(color), place);
        QTRY_COMPARE(dialog.pos(), place);
        const QPoint grip = place + QPoint(50, 30);
        user.moveTo(grip);
        QTRY_VERIFY(dialog.underMouse());
        user.setButton(1, true);
        for (const QPoint way :
             {QPoint(3, 2), QPoint(140, 90), QPoint(-60, 40)}) { // out of the dialog as well
            user.moveTo(grip + way);
            QTRY_COMPARE(ScreenProbe::placeOf(color), place + way);
        }
        user.setButton(1, false);
        user.moveTo(grip);
        QTest::qWait(50);
        QCOMPARE(ScreenProbe::placeOf(color), place + QPoint(-60, 40));
    }
};

TOLVAN_GUI_TEST_MAIN(RealDragTest)
#include "tst_realdrag.moc"
