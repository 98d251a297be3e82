#include "ScreenProbe.h"
#include "TestMain.h"

#include <utilsDll/BaseDialog.h>

#include <QGuiApplication>

#include "RealInput.h" // last: it brings macros along

namespace
{

const QColor color(250, 3, 251);

class Dialog : public TOLVAN_NAMESPACE::CBaseDialog
{
public:
    Dialog()
    {
        setHeaderHeight(30);
        m_content.setFixedSize(240, 120);
        m_content.setStyleSheet(QStringLiteral("background: ") + color.name());
    }

private:
    QWidget m_content{this};
};

} // namespace

/// A dialog dragged by the mouse of a real X server under a window manager, as the user sees it.
class RealDragTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
        QVERIFY(m_user.isThere());
    }

    void drag()
    {
        struct Row {
            int y;
            unsigned button;
            bool follows;
        };
        for (const Row& row : {Row{30, 1, true}, Row{31, 1, false}, Row{10, 3, false}}) {
            Dialog dialog;
            dialog.show();
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            QPoint place(200, 150);
            dialog.move(place);
            QTRY_COMPARE(ScreenProbe::placeOf(color), place);
            QTRY_COMPARE(dialog.pos(), place);
            const QPoint grip = place + QPoint(50, row.y);
            m_user.moveTo(grip);
            QTRY_VERIFY(dialog.underMouse());
            m_user.setButton(row.button, true);
            for (const QPoint way :
                 {QPoint(3, 2), QPoint(140, 90), QPoint(-60, 40)}) { // out of the dialog as well
                m_user.moveTo(grip + way);
                QTRY_COMPARE(ScreenProbe::placeOf(color), row.follows ? place + way : place);
            }
            m_user.setButton(row.button, false);
            place = ScreenProbe::placeOf(color);
            m_user.moveTo(grip);
            QTest::qWait(50);
            QCOMPARE(ScreenProbe::placeOf(color), place);
        }
    }

private:
    RealInput m_user;
};

TOLVAN_GUI_TEST_MAIN(RealDragTest)
#include "tst_realdrag.moc"
