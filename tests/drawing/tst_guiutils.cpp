#include "InstalledLogger.h"
#include "TestMain.h"

#include <utilsDll/GuiUtils.h>

#include <QMenu>
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

QString at(const char* event, const QPoint& pos)
{
    return QStringLiteral("%1 %2,%3").arg(QLatin1String(event)).arg(pos.x()).arg(pos.y());
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
    bool eventFilter(QObject* widget, QEvent* event) override
    {
        if (event->type() == QEvent::Enter) {
            m_events += at("enter", static_cast<QEnterEvent*>(event)->globalPos());
        } else if (event->type() == QEvent::Leave) {
            m_events += QStringLiteral("leave");
        } else if (event->type() == QEvent::MouseMove) {
            const auto* const move = static_cast<QMouseEvent*>(event);
            const bool plain = move->button() == Qt::NoButton && !move->buttons() && !move->modifiers() &&
                               move->pos() == static_cast<QWidget*>(widget)->mapFromGlobal(move->globalPos());
            m_events += at(plain ? "move" : "wrong move", move->globalPos());
        }
        return m_holdBack && (event->type() == QEvent::Leave || event->type() == QEvent::MouseMove);
    }

private:
    QStringList m_events;
    bool m_holdBack;
};

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

} // namespace

class GuiUtilsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { installedLogger().take(); }

    void scalingFactor()
    {
        // main() sets 120 dots per inch; Windows takes no such wish, and its display has 96.
        const bool windows = QSysInfo::kernelType() == QLatin1String("winnt");
        QCOMPARE(systemScalingFactor(), windows ? 1.0 : 1.25);
    }

    void centred()
    {
        const auto check = [](QSize size, Qt::WindowFlags flags, QScreen* screen, bool withParent) {
            QWidget parent;
            QWidget window(nullptr, Qt::Window | flags);
            for (QWidget* const widget : {&parent, &window}) {
                widget->winId();
                widget->windowHandle()->setScreen(screen);
            }
            window.resize(size);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            moveWindowToScreenCenter(&window, withParent ? &parent : nullptr);
            const QRect area = screen->geometry();
            const QSize frame = window.frameGeometry().size();
            const QPoint expected(area.x() + (area.width() - frame.width()) / 2,
                                  area.y() + (area.height() - frame.height()) / 2);
            QTRY_COMPARE(window.pos(), expected);
            QTRY_COMPARE(window.frameGeometry().topLeft(), expected);
            QCOMPARE(window.windowHandle()->screen(), screen);
            QCOMPARE(installedLogger().take(), QStringList());
        };
        const QList<QScreen*> screens = QGuiApplication::screens();
        check({333, 211}, {}, screens.first(), false);
        // Larger than the screen: window managers keep framed windows on it.
        check({3001, 2501}, Qt::FramelessWindowHint | Qt::BypassWindowManagerHint, screens.first(), true);
        if (QGuiApplication::platformName() == QLatin1String("xcb")) { // it is run with two screens
            check({301, 203}, {}, screens.value(1), true);
        }
    }

    void mouseMoveIsSent()
    {
        QWidget widget;
        widget.setMouseTracking(true); // or else a move without buttons is not the widget's business
        EventLog log(widget);
        widget.move(100, 80);
        synthesizeMouseEvent(&widget, {123, 97});
        QCOMPARE(log.take(), QStringList(at("move", {123, 97})));
        synthesizeMouseEvent(nullptr, {1, 2});
    }

    void hover()
    {
        Window window;
        QWidget child(&window);
        child.setGeometry(0, 0, 50, 50);
        child.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        EventLog log(child);
        const auto flickedAt = [&](const QPoint& pos) {
            moveCursor(child.mapToGlobal(pos));
            log.take();
            flickHoverEvent(&child);
            return log.take();
        };
        const QString leave = QStringLiteral("leave");
        QCOMPARE(flickedAt({20, 20}), QStringList({leave, at("enter", child.mapToGlobal(QPoint(20, 20)))}));
        QCOMPARE(QCursor::pos(), child.mapToGlobal(QPoint(20, 20)));
        QCOMPARE(flickedAt({50, 20}), QStringList(leave)); // the first pixel beside it
        flickHoverEvent(nullptr);
        QApplication::setActiveWindow(nullptr);
        flickHoverEvent(&child);
        QCOMPARE(log.take(), QStringList());
    }

    void hoverOverMenu()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        // Returns which entry is active afterwards; a steady menu ignores the mouse itself.
        const auto activeAfterwards = [&window](bool steady, bool separator) {
            QMenu menu(&window);
            QAction* const first = menu.addAction(QStringLiteral("First entry"));
            QAction* const active = menu.addAction(QStringLiteral("Last entry"));
            menu.popup(window.mapToGlobal(QPoint(20, 20)));
            [&] { QVERIFY(QTest::qWaitForWindowExposed(&menu)); }();
            const QPoint pos = menu.mapToGlobal(menu.actionGeometry(first).center());
            moveCursor(pos);
            menu.setActiveAction(active); // the other one
            active->setSeparator(separator);
            EventLog log(menu, steady);
            flickHoverEvent(&menu);
            const QStringList expected{QStringLiteral("leave"), at("enter", pos), at("move", pos),
                                       at("move", pos)};
            [&] { QCOMPARE(log.take(), expected); }();
            return menu.actions().indexOf(menu.activeAction());
        };
        QCOMPARE(activeAfterwards(false, false), 0);
        QCOMPARE(activeAfterwards(true, false), 1);
        QCOMPARE(activeAfterwards(true, true), -1); // an active separator is let go
    }

    void closeButton()
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
            return window.windowHandle()->flags().testFlag(Qt::WindowCloseButtonHint);
#endif
        };
        for (const bool enable : {false, true}) {
            enableWindowCloseButton(handle, enable);
            enableWindowCloseButton(0, !enable);
            enableWindowCloseButton(handle + 4711, !enable);
            QCOMPARE(closable(), enable);
        }
        QVERIFY(window.isVisible());
        QCOMPARE(window.winId(), handle);
    }
};

int main(int argc, char* argv[])
{
    qputenv("QT_FONT_DPI", "120");
    return TestMain::run<QApplication, GuiUtilsTest>(argc, argv);
}

#include "tst_guiutils.moc"
