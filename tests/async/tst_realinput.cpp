#include "TestMain.h"

#include <utilsDll/ExcludeUserInpuEventLoop.h>
#include <utilsDll/Waiting.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "RealInput.h" // last: it brings macros along

/// Input of a real X server, as a user's mouse and keyboard make it, while the program waits. Runs on an X
/// server of its own with a window manager.
class RealInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
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

    void useAll();

    RealInput m_user;
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
    QVERIFY(m_user.isThere());
    m_window.show();
    m_window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_window));
}

void RealInputTest::init()
{
    m_window.edit->clear();
    m_window.edit->setFocus();
    QTRY_VERIFY(m_window.edit->hasFocus());
    m_user.moveTo(*m_window.edit);
    QTRY_VERIFY(m_window.edit->underMouse());
    m_window.clicks = m_window.moves = m_window.wheels = 0;
}

/// Types "ab", moves to the button, clicks it and turns the wheel there; the pointer then stays, because a
/// window manager may delay the click. Returns when the server has it all.
void RealInputTest::useAll()
{
    m_user.type(XK_a);
    m_user.type(XK_b);
    m_user.moveTo(*m_window.button);
    m_user.click(1); // left
    m_user.click(4); // wheel up
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
