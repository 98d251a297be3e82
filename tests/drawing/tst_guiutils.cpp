#include "AssertionReport.h"
#include "TestMain.h"

#include <utilsDll/GuiUtils.h>

#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSysInfo>
#include <QWindow>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

#include <utility>

using namespace TOLVAN_NAMESPACE;

namespace
{

template <class... Values>
QString describe(Values... values)
{
    QString text;
    (QDebug(&text) << ... << values);
    return text;
}

/// Keeps the mouse and hover events of a widget in their order.
class EventLog : public QObject
{
public:
    /// \a holdBack keeps moves and leaves from the widget, so that a menu keeps its active action.
    explicit EventLog(QWidget& widget, bool holdBack = false)
        : m_holdBack(holdBack)
    {
        widget.installEventFilter(this);
    }

    QStringList take() { return std::exchange(m_events, {}); }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::MouseMove) {
            const auto& move = *static_cast<QMouseEvent*>(event);
            m_events += describe("move", move.globalPos(), move.pos(), move.button(), move.buttons(),
                                 move.modifiers());
        } else if (event->type() == QEvent::Leave) {
            m_events += describe("leave");
        } else if (event->type() == QEvent::Enter) {
            m_events += describe("enter", static_cast<QEnterEvent*>(event)->globalPos());
            return false;
        } else {
            return false;
        }
        return m_holdBack;
    }

private:
    QStringList m_events;
    bool m_holdBack;
};

QString moveTo(const QPoint& pos, const QWidget& widget)
{
    return describe("move", pos, widget.mapFromGlobal(pos), Qt::NoButton, Qt::MouseButtons(),
                    Qt::KeyboardModifiers());
}

/// An active window at a place of its own.
class Window : public QWidget
{
public:
    Window()
    {
        setGeometry(100, 80, 300, 200);
        show();
        activateWindow();
    }
};

void moveCursor(const QPoint& pos)
{
    QCursor::setPos(pos);
    QTRY_COMPARE(QCursor::pos(), pos);
}

void verifyNotCentred(QWidget* window, QWidget* parent, int line, const char* message)
{
    verifyReport("TOLVAN_NAMESPACE::moveWindowToScreenCenter", "GuiUtils", line, message,
                 [=] { moveWindowToScreenCenter(window, parent); });
}

} // namespace

class GuiUtilsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { installedLogger().take(); }
    void scalingFactor();
    void centred_data();
    void centred();
    void notCentred();
    void mouseMoveIsSent();
    void hover();
    void hoverOverMenu_data();
    void hoverOverMenu();
    void closeButton();
};

void GuiUtilsTest::scalingFactor()
{
    // main() sets 120 dots per inch; Windows takes no such wish, and its display has 96.
    const bool windows = QSysInfo::kernelType() == QLatin1String("winnt");
    QCOMPARE(systemScalingFactor(), windows ? 1.0 : 1.25);
}

void GuiUtilsTest::centred_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("framed");
    QTest::addColumn<int>("parentScreen"); // -1: no parent
    QTest::newRow("framed") << QSize(400, 300) << true << -1;
    QTest::newRow("framed, with parent, odd size") << QSize(333, 211) << true << 0;
    QTest::newRow("frameless, odd size") << QSize(333, 211) << false << -1;
    // Window managers keep framed windows on the screen.
    QTest::newRow("larger than the screen") << QSize(3001, 2501) << false << 0;
    QTest::newRow("parent on the second screen") << QSize(301, 203) << true << 1;
}

void GuiUtilsTest::centred()
{
    QFETCH(QSize, size);
    QFETCH(bool, framed);
    QFETCH(int, parentScreen);
    const QList<QScreen*> screens = QGuiApplication::screens();
    if (parentScreen >= screens.size()) {
        QVERIFY(QGuiApplication::platformName() != QLatin1String("xcb")); // it is run with two
        QSKIP("there is no second screen");
    }
    QScreen* const screen = screens.at(qMax(0, parentScreen));
    QWidget parent;
    const auto frameless = Qt::FramelessWindowHint | Qt::BypassWindowManagerHint;
    QWidget window(nullptr, framed ? Qt::Window : Qt::Window | frameless);
    for (QWidget* const widget : {&parent, &window}) {
        widget->winId();
        widget->windowHandle()->setScreen(screen);
    }
    window.resize(size);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    moveWindowToScreenCenter(&window, parentScreen >= 0 ? &parent : nullptr);
    const QRect area = screen->geometry();
    const QSize frame = window.frameGeometry().size();
    const QPoint expected(area.x() + (area.width() - frame.width()) / 2,
                          area.y() + (area.height() - frame.height()) / 2);
    QTRY_COMPARE(window.pos(), expected);
    QTRY_COMPARE(window.frameGeometry().topLeft(), expected);
    QCOMPARE(window.windowHandle()->screen(), screen);
    QCOMPARE(installedLogger().take(), QStringList());
}

void GuiUtilsTest::notCentred()
{
    QWidget window;
    QWidget child(&window);
    child.move(3, 4);
    verifyNotCentred(nullptr, &window, 116, "Bug!!!");
    verifyNotCentred(&child, &window, 116, "Bug!!!");
    QCOMPARE(child.pos(), QPoint(3, 4));

    QGraphicsScene withoutExtent(QRectF(0, 0, -50, -50));
    auto* const embedded = new QWidget;
    withoutExtent.addWidget(embedded);
    withoutExtent.setSceneRect(QRectF(0, 0, -50, -50));
    window.move(5, 6);
    verifyNotCentred(&window, embedded, 90, "wrong screen geometry of parent widget");
    QCOMPARE(window.pos(), QPoint(5, 6));
}

void GuiUtilsTest::mouseMoveIsSent()
{
    QWidget widget;
    widget.setMouseTracking(true); // or else a move without buttons is not the widget's business
    EventLog log(widget);
    widget.move(100, 80);
    synthesizeMouseEvent(&widget, {123, 97});
    QCOMPARE(log.take(), QStringList(moveTo({123, 97}, widget)));
    synthesizeMouseEvent(nullptr, {1, 2});
}

void GuiUtilsTest::hover()
{
    Window window;
    QWidget child(&window);
    child.setGeometry(0, 0, 50, 50);
    child.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QPoint over = child.mapToGlobal({20, 20});
    EventLog log(child);
    moveCursor(over);
    log.take();
    flickHoverEvent(&child);
    QCOMPARE(log.take(), QStringList({describe("leave"), describe("enter", over)}));
    QCOMPARE(QCursor::pos(), over);

    moveCursor(child.mapToGlobal({50, 20})); // the first pixel beside it
    log.take();
    flickHoverEvent(&child);
    QCOMPARE(log.take(), QStringList(describe("leave")));
    flickHoverEvent(nullptr);

    QApplication::setActiveWindow(nullptr);
    flickHoverEvent(&child);
    QCOMPARE(log.take(), QStringList());
}

void GuiUtilsTest::hoverOverMenu_data()
{
    QTest::addColumn<bool>("steady");    // the menu takes no notice of the mouse
    QTest::addColumn<bool>("separator"); // it turns into a separator while it is active
    QTest::addColumn<int>("expected");   // -1: none
    QTest::newRow("chooses the entry under the cursor") << false << false << 0;
    QTest::newRow("an active entry stays") << true << false << 1;
    QTest::newRow("an active separator is let go") << true << true << -1;
}

void GuiUtilsTest::hoverOverMenu()
{
    QFETCH(const bool, steady);
    QFETCH(const bool, separator);
    QFETCH(const int, expected);
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QMenu menu(&window);
    QAction* const first = menu.addAction(QStringLiteral("First entry"));
    QAction* const active = menu.addAction(QStringLiteral("Last entry"));
    menu.popup(window.mapToGlobal({20, 20}));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    const QPoint pos = menu.mapToGlobal(menu.actionGeometry(first).center());
    moveCursor(pos);
    menu.setActiveAction(active); // the other one
    active->setSeparator(separator);
    QCOMPARE(menu.activeAction(), active);
    EventLog log(menu, steady);
    flickHoverEvent(&menu);
    QCOMPARE(log.take(),
             QStringList({describe("leave"), describe("enter", pos), moveTo(pos, menu), moveTo(pos, menu)}));
    QCOMPARE(menu.actions().indexOf(menu.activeAction()), expected);
    menu.close();
}

void GuiUtilsTest::closeButton()
{
#ifdef Q_OS_WIN
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        QSKIP("a window without a system menu; seen on the platform \"windows\"");
    }
#endif
    Window window;
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const WId handle = window.winId();
    const auto closable = [&] {
#ifdef Q_OS_WIN
        const HMENU menu = GetSystemMenu(reinterpret_cast<HWND>(handle), FALSE);
        return (GetMenuState(menu, SC_CLOSE, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED)) == 0;
#else
        return window.windowFlags().testFlag(Qt::WindowCloseButtonHint) &&
               window.windowHandle()->flags().testFlag(Qt::WindowCloseButtonHint);
#endif
    };
    QVERIFY(closable());
    enableWindowCloseButton(handle, false);
    QVERIFY(!closable());
    enableWindowCloseButton(handle, true);
    QVERIFY(closable());
    enableWindowCloseButton(0, false);
    enableWindowCloseButton(handle + 4711, false);
    QVERIFY(closable());
    QVERIFY(window.isVisible());
    QCOMPARE(window.winId(), handle);
}

static std::unique_ptr<QWidget> survivor; // of the application

/// What is left to do when the application object is gone.
class AfterApplicationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsDone();
};

void AfterApplicationTest::nothingIsDone()
{
    EventLog log(*survivor);
    flickHoverEvent(survivor.get());
    QCOMPARE(log.take(), QStringList());
    verifyNotCentred(survivor.get(), nullptr, 111, "desktop is unavailable");
}

int main(int argc, char* argv[])
{
    const IsolatedProfile profile;
    TestMain::prepare();
    qputenv("QT_FONT_DPI", "120");
    QTEST_SET_MAIN_SOURCE_PATH
    int failed = 0;
    {
        QApplication application(argc, argv);
        survivor = std::make_unique<QWidget>();
        GuiUtilsTest test;
        failed = QTest::qExec(&test, argc, argv);
    }
    AfterApplicationTest after;
    failed += QTest::qExec(&after, {QString::fromLocal8Bit(argv[0])}); // a result file is the first one's
    survivor.reset();
    return failed;
}

#include "tst_guiutils.moc"
