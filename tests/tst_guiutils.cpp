#include "InstalledLogger.h"
#include "TestMain.h"

#include <utilsDll/GuiUtils.h>

#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSysInfo>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

#include <utility>

using namespace TOLVAN_NAMESPACE;

namespace
{

bool onWindows()
{
    return QSysInfo::kernelType() == QLatin1String("winnt");
}

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

void expectReport(int line, const char* message)
{
    const QString text =
        QStringLiteral("ASSERT_X in ExPluginShell\\modules\\utilsDll\\GuiUtils line %1:").arg(line);
    QTest::ignoreMessage(QtDebugMsg, qPrintable(text + QLatin1Char(' ') + QString::fromLatin1(message)));
}

QStringList report(int line, const char* message)
{
    return {QStringLiteral("E TOLVAN_NAMESPACE::moveWindowToScreenCenter: ASSERT_X in "
                           "ExPluginShell\\modules\\utilsDll\\GuiUtils line %1:%2")
                .arg(line)
                .arg(QString::fromLatin1(message))};
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
    void misplacedWindows();
    void screenOfParentWithoutExtent();
    void mouseMoveIsSent();
    void hover();
    void hoverOverMenu_data();
    void hoverOverMenu();
    void hoverWithoutActiveWindow();
    void closeButton();
};

void GuiUtilsTest::scalingFactor()
{
    // main() sets 120 dots per inch; Windows takes no such wish, and its display has 96.
    QCOMPARE(systemScalingFactor(), onWindows() ? 1.0 : 1.25);
}

void GuiUtilsTest::centred_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("framed");
    QTest::addColumn<bool>("withParent");
    for (const bool framed : {true, false}) {
        for (const bool withParent : {true, false}) {
            const char* const kind = framed ? "framed" : "frameless";
            const char* const parent = withParent ? "parent" : "no parent";
            QTest::addRow("%s, %s", kind, parent) << QSize(400, 300) << framed << withParent;
            QTest::addRow("%s, %s, odd size", kind, parent) << QSize(333, 211) << framed << withParent;
        }
    }
    // Window managers keep framed windows on the screen.
    QTest::addRow("larger than the screen") << QSize(3001, 2501) << false << true;
}

void GuiUtilsTest::centred()
{
    QFETCH(QSize, size);
    QFETCH(bool, framed);
    QFETCH(bool, withParent);
    QWidget parent;
    const auto kind = framed ? Qt::WindowFlags(Qt::Window) : Qt::Window | Qt::BypassWindowManagerHint;
    QWidget window(nullptr, framed ? kind : kind | Qt::FramelessWindowHint);
    window.resize(size);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    moveWindowToScreenCenter(&window, withParent ? &parent : nullptr);
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const QSize frame = window.frameGeometry().size();
    const QPoint expected(screen.x() + (screen.width() - frame.width()) / 2,
                          screen.y() + (screen.height() - frame.height()) / 2);
    QTRY_COMPARE(window.pos(), expected);
    QTRY_COMPARE(window.frameGeometry().topLeft(), expected);
    QCOMPARE(installedLogger().take(), QStringList());
}

void GuiUtilsTest::misplacedWindows()
{
    QWidget parent;
    QWidget child(&parent);
    child.move(3, 4);
    for (QWidget* const window : {static_cast<QWidget*>(nullptr), &child}) {
        expectReport(116, "Bug!!!");
        moveWindowToScreenCenter(window, &parent);
        QCOMPARE(installedLogger().take(), report(116, "Bug!!!"));
    }
    QCOMPARE(child.pos(), QPoint(3, 4));
}

void GuiUtilsTest::screenOfParentWithoutExtent()
{
    QGraphicsScene scene(QRectF(0, 0, -50, -50));
    auto* const embedded = new QWidget;
    scene.addWidget(embedded);
    scene.setSceneRect(QRectF(0, 0, -50, -50));
    QWidget window;
    window.move(5, 6);
    expectReport(90, "wrong screen geometry of parent widget");
    moveWindowToScreenCenter(&window, embedded);
    QCOMPARE(installedLogger().take(), report(90, "wrong screen geometry of parent widget"));
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

void GuiUtilsTest::hoverWithoutActiveWindow()
{
    QWidget widget;
    EventLog log(widget);
    QApplication::setActiveWindow(nullptr);
    QVERIFY(!QApplication::activeWindow());
    flickHoverEvent(&widget);
    QCOMPARE(log.take(), QStringList());
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

/// What is left to do when the application object is gone.
class AfterApplicationTest : public QObject
{
    Q_OBJECT

public:
    explicit AfterApplicationTest(QWidget& survivor)
        : m_survivor(survivor)
    {
    }

private Q_SLOTS:
    void nothingIsDone();

private:
    QWidget& m_survivor;
};

void AfterApplicationTest::nothingIsDone()
{
    EventLog log(m_survivor);
    flickHoverEvent(&m_survivor);
    QCOMPARE(log.take(), QStringList());
    installedLogger().take();
    expectReport(111, "desktop is unavailable");
    moveWindowToScreenCenter(&m_survivor, nullptr);
    QCOMPARE(installedLogger().take(), report(111, "desktop is unavailable"));
}

int main(int argc, char* argv[])
{
    const IsolatedProfile profile;
    TestMain::prepare();
    qputenv("QT_FONT_DPI", "120");
    QTEST_SET_MAIN_SOURCE_PATH
    int failed = 0;
    std::unique_ptr<QWidget> survivor;
    {
        QApplication application(argc, argv);
        survivor = std::make_unique<QWidget>();
        GuiUtilsTest test;
        failed = QTest::qExec(&test, argc, argv);
    }
    AfterApplicationTest after(*survivor);
    return failed +
           QTest::qExec(&after, {QString::fromLocal8Bit(argv[0])}); // a result file is the first one's
}

#include "tst_guiutils.moc"
