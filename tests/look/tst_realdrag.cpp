#include "ScreenProbe.h"
#include "TestMain.h"

#include <utilsDll/BaseDialog.h>

#include <QScreen>

#include "RealInput.h" // last: it brings macros along

/// A dialog dragged by the mouse of a real X server under a window manager, as the user sees it.
class RealDragTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void drag_data();
    void drag();

private:
    RealInput m_user;
};

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
        ScreenProbe::paint(m_content, color);
    }

private:
    QWidget m_content{this};
};

QPoint seenAt()
{
    return ScreenProbe::areaOf(color, *QGuiApplication::primaryScreen()).topLeft();
}

} // namespace

void RealDragTest::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
    QVERIFY(m_user.isThere());
}

void RealDragTest::drag_data()
{
    QTest::addColumn<int>("y");
    QTest::addColumn<unsigned>("button");
    QTest::addColumn<bool>("follows");
    QTest::newRow("by its header") << 30 << 1U << true;
    QTest::newRow("below it") << 31 << 1U << false;
    QTest::newRow("with the right button") << 10 << 3U << false;
}

void RealDragTest::drag()
{
    QFETCH(const int, y);
    QFETCH(const unsigned, button);
    QFETCH(const bool, follows);
    Dialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QPoint place(200, 150);
    dialog.move(place);
    QTRY_COMPARE(seenAt(), place);
    QTRY_COMPARE(dialog.pos(), place);
    const QPoint grip = place + QPoint(50, y);
    m_user.moveTo(grip);
    QTRY_VERIFY(dialog.underMouse());
    m_user.setButton(button, true);
    for (const QPoint way : {QPoint(3, 2), QPoint(140, 90), QPoint(-60, 40)}) { // out of the dialog as well
        m_user.moveTo(grip + way);
        QTRY_COMPARE(seenAt(), follows ? place + way : place);
    }
    m_user.setButton(button, false);
    place = seenAt();
    m_user.moveTo(grip);
    QTest::qWait(50);
    QCOMPARE(seenAt(), place);
}

TOLVAN_GUI_TEST_MAIN(RealDragTest)
#include "tst_realdrag.moc"
