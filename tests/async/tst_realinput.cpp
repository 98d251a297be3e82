#include "TestMain.h"

#include <utilsDll/ExcludeUserInpuEventLoop.h>
#include <utilsDll/Waiting.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "RealInput.h" // last: it brings macros along

/// A window that counts its input.
struct InputWindow : QWidget {
    InputWindow()
    {
        auto* const layout = new QVBoxLayout(this);
        layout->addWidget(button);
        layout->addWidget(edit);
        connect(button, &QPushButton::clicked, this, [this] { ++clicks; });
        button->setMouseTracking(true);
        edit->installEventFilter(this);
        button->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        moved = moved || (watched == button && event->type() == QEvent::MouseMove);
        wheels += event->type() == QEvent::Wheel;
        return false;
    }
    QVariantList seen() const { return {edit->text(), clicks, moved, wheels}; }

    QPushButton* button = new QPushButton(QStringLiteral("Apply"));
    QLineEdit* edit = new QLineEdit;
    int clicks = 0, wheels = 0;
    bool moved = false;
};

static const QVariantList everything{QStringLiteral("ab"), 1, true, 1}, nothing{QString(), 0, false, 0};

/// Input of a real X server, as a user's mouse and keyboard make it, while the program waits. Runs on an X
/// server of its own with a window manager.
class RealInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_user.isThere());
        m_window.show();
        m_window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_window));
    }

    void init()
    {
        m_window.edit->clear();
        m_window.edit->setFocus();
        QTRY_VERIFY(m_window.edit->hasFocus());
        m_user.moveTo(*m_window.edit);
        QTRY_VERIFY(m_window.edit->underMouse());
        m_window.clicks = m_window.wheels = 0;
        m_window.moved = false;
    }

    void inputArrivesWithoutAWait()
    {
        useAll();
        QTRY_COMPARE(m_window.seen(), everything);
    }

    void inputWaits()
    {
        for (const bool asleep : {true, false}) {
            init();
            QVariantList during;
            QAtomicInt over(0);
            CExcludeUserInpuEventLoop loop;
            QTimer::singleShot(0, this, [this] { useAll(); });
            QTimer::singleShot(300, this, [&] {
                during = m_window.seen();
                over.storeRelease(1);
                loop.quit();
            });
            asleep ? void(loop.exec(0)) : waitNonBlockingAtomicIntValue(over, 1, true);
            QCOMPARE(during, nothing);
            QTRY_COMPARE(m_window.seen(), everything); // held back, not lost
        }
    }

private:
    /// Types "ab", moves to the button, clicks it and turns the wheel there; the pointer then stays, because a
    /// window manager may delay the click. Returns when the server has it all.
    void useAll()
    {
        m_user.type(XK_a);
        m_user.type(XK_b);
        m_user.moveTo(*m_window.button);
        m_user.click(1); // left
        m_user.click(4); // wheel up
    }

    RealInput m_user;
    InputWindow m_window;
};

TOLVAN_GUI_TEST_MAIN(RealInputTest)
#include "tst_realinput.moc"
