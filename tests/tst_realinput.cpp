#include "TestMain.h"

#include <utilsDll/ExcludeUserInpuEventLoop.h>
#include <utilsDll/Waiting.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <X11/Xlib.h>

/// Input of a real X server, as a user's mouse and keyboard make it, while the program waits. Runs on an X
/// server of its own with a window manager.
class RealInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase() { XCloseDisplay(m_display); }
    void inputArrivesWithoutAWait();
    void inputWaits_data();
    void inputWaits();

private:
    struct Window : QWidget {
        Window();
        bool eventFilter(QObject* watched, QEvent* event) override;
        QString seen() const;

        QPushButton* button = new QPushButton(QStringLiteral("Apply"));
        QLineEdit* edit = new QLineEdit;
        int clicks = 0, moves = 0, wheels = 0;
    };

    void type(KeySym key);
    void moveTo(const QWidget* widget);
    void useAll();

    Display* m_display = nullptr;
    Window m_window;
};

RealInputTest::Window::Window()
{
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(button);
    layout->addWidget(edit);
    connect(button, &QPushButton::clicked, this, [this] { ++clicks; });
    button->setMouseTracking(true);
    edit->installEventFilter(this);
    button->installEventFilter(this);
}

bool RealInputTest::Window::eventFilter(QObject* watched, QEvent* event)
{
    moves += watched == button && event->type() == QEvent::MouseMove;
    wheels += event->type() == QEvent::Wheel;
    return false;
}

QString RealInputTest::Window::seen() const
{
    return QStringLiteral("text '%1', %2 clicks, moves: %3, %4 wheel turns")
        .arg(edit->text())
        .arg(clicks)
        .arg(moves > 0 ? QStringLiteral("yes") : QStringLiteral("no"))
        .arg(wheels);
}

void RealInputTest::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
    m_display = XOpenDisplay(nullptr);
    int unused = 0;
    QVERIFY(m_display && XTestQueryExtension(m_display, &unused, &unused, &unused, &unused));
    m_window.show();
    m_window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_window));
}

void RealInputTest::init()
{
    m_window.edit->clear();
    m_window.edit->setFocus();
    QTRY_VERIFY(m_window.edit->hasFocus());
    moveTo(m_window.edit);
    XSync(m_display, False);
    QTRY_VERIFY(m_window.edit->underMouse());
    m_window.clicks = m_window.moves = m_window.wheels = 0;
}

void RealInputTest::type(KeySym key)
{
    const unsigned int code = XKeysymToKeycode(m_display, key);
    XTestFakeKeyEvent(m_display, code, True, CurrentTime);
    XTestFakeKeyEvent(m_display, code, False, CurrentTime);
}

void RealInputTest::moveTo(const QWidget* widget)
{
    const QPoint to = widget->mapToGlobal(widget->rect().center());
    XTestFakeMotionEvent(m_display, -1, to.x(), to.y(), CurrentTime);
}

/// Types "ab", moves to the button, clicks it and turns the wheel there; the pointer then stays, because a
/// window manager may delay the click. Returns when the server has it all.
void RealInputTest::useAll()
{
    type(XK_a);
    type(XK_b);
    moveTo(m_window.button);
    for (const unsigned int button : {1U, 4U}) { // left, wheel up
        XTestFakeButtonEvent(m_display, button, True, CurrentTime);
        XTestFakeButtonEvent(m_display, button, False, CurrentTime);
    }
    XSync(m_display, False);
}

static const QString everything = QStringLiteral("text 'ab', 1 clicks, moves: yes, 1 wheel turns");
static const QString nothing = QStringLiteral("text '', 0 clicks, moves: no, 0 wheel turns");

void RealInputTest::inputArrivesWithoutAWait()
{
    useAll();
    QTRY_COMPARE(m_window.seen(), everything);
}

void RealInputTest::inputWaits_data()
{
    QTest::addColumn<bool>("asleep");
    QTest::newRow("CExcludeUserInpuEventLoop") << true;
    QTest::newRow("waitNonBlocking") << false;
}

void RealInputTest::inputWaits()
{
    QFETCH(const bool, asleep);
    QString during;
    QAtomicInt over(0);
    CExcludeUserInpuEventLoop loop;
    QTimer::singleShot(0, this, [this] { useAll(); });
    QTimer::singleShot(300, this, [&] {
        during = m_window.seen();
        over.storeRelease(1);
        loop.quit();
    });
    if (asleep) {
        loop.exec(0);
    } else {
        waitNonBlockingAtomicIntValue(over, 1, true);
    }
    QCOMPARE(during, nothing);
    QTRY_COMPARE(m_window.seen(), everything); // held back, not lost
}

TOLVAN_GUI_TEST_MAIN(RealInputTest)
#include "tst_realinput.moc"
