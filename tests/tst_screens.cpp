#include "TestMain.h"

#include <utilsDll/GuiUtils.h>

#include <QScreen>
#include <QWindow>

using namespace TOLVAN_NAMESPACE;

/// Windows on two screens of different size, each a desktop of its own; started by a script that provides
/// them.
class ScreensTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void parentChoosesTheScreen_data();
    void parentChoosesTheScreen();
};

void ScreensTest::initTestCase()
{
    QCOMPARE(QGuiApplication::screens().size(), 2);
    QVERIFY(QGuiApplication::screens().at(0)->size() != QGuiApplication::screens().at(1)->size());
}

void ScreensTest::parentChoosesTheScreen_data()
{
    QTest::addColumn<int>("parentScreen"); // -1: no parent
    QTest::addColumn<QSize>("size");
    QTest::newRow("no parent") << -1 << QSize(300, 200);
    QTest::newRow("parent on the first") << 0 << QSize(300, 200);
    QTest::newRow("parent on the second") << 1 << QSize(300, 200);
    QTest::newRow("odd size") << 1 << QSize(301, 203);
}

void ScreensTest::parentChoosesTheScreen()
{
    QFETCH(int, parentScreen);
    QFETCH(QSize, size);
    const QList<QScreen*> screens = QGuiApplication::screens();
    QWidget parent;
    parent.resize(200, 150);
    if (parentScreen >= 0) {
        parent.winId();
        parent.windowHandle()->setScreen(screens.at(parentScreen));
        parent.show();
        QVERIFY(QTest::qWaitForWindowExposed(&parent));
        QTRY_COMPARE(parent.windowHandle()->screen(), screens.at(parentScreen));
    }
    QWidget window;
    window.resize(size);
    window.winId();
    window.windowHandle()->setScreen(screens.at(qMax(0, parentScreen)));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    moveWindowToScreenCenter(&window, parentScreen >= 0 ? &parent : nullptr);
    QScreen& expectedScreen = *screens.at(qMax(0, parentScreen));
    const QRect screen = expectedScreen.geometry();
    const QSize frame = window.frameGeometry().size();
    const QPoint expected(screen.x() + (screen.width() - frame.width()) / 2,
                          screen.y() + (screen.height() - frame.height()) / 2);
    QCOMPARE(window.windowHandle()->screen(), &expectedScreen);
    QTRY_COMPARE(window.frameGeometry().topLeft(), expected);
}

TOLVAN_GUI_TEST_MAIN(ScreensTest)
#include "tst_screens.moc"
