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

using namespace TOLVAN_NAMESPACE;

namespace
{

bool onWindows()
{
    return QSysInfo::kernelType() == QLatin1String("winnt");
}

/// Keeps the mouse and hover events that it gets.
class Recorder : public QWidget
{
public:
    explicit Recorder(QWidget* parent = nullptr)
        : QWidget(parent)
    {
    }

    QStringList events;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::MouseMove) {
            const auto& move = *static_cast<QMouseEvent*>(event);
            events += QStringLiteral("move %1,%2 %3,%4 buttons %5/%6 keys %7")
                          .arg(move.x())
                          .arg(move.y())
                          .arg(move.globalX())
                          .arg(move.globalY())
                          .arg(move.button())
                          .arg(move.buttons())
                          .arg(move.modifiers());
        } else if (event->type() == QEvent::Leave) {
            events += QStringLiteral("leave");
        } else if (event->type() == QEvent::Enter) {
            const QPoint pos = static_cast<QEnterEvent*>(event)->globalPos();
            events += QStringLiteral("enter %1,%2").arg(pos.x()).arg(pos.y());
        }
        return QWidget::event(event);
    }
};

/// A menu that keeps its active action whatever the mouse does, and counts the moves.
class SteadyMenu : public QMenu
{
public:
    using QMenu::QMenu;

    int moves = 0;

protected:
    bool event(QEvent* event) override
    {
        moves += event->type() == QEvent::MouseMove ? 1 : 0;
        return event->type() == QEvent::MouseMove || event->type() == QEvent::Leave || QMenu::event(event);
    }
};

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
    void hoverOverWidget();
    void hoverBesideWidget();
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
    Recorder widget;
    widget.setMouseTracking(true); // or else a move without buttons is not the widget's business
    widget.move(100, 80);
    const QPoint local = widget.mapFromGlobal({123, 97});
    synthesizeMouseEvent(&widget, {123, 97});
    QCOMPARE(
        widget.events,
        QStringList(QStringLiteral("move %1,%2 123,97 buttons 0/0 keys 0").arg(local.x()).arg(local.y())));
    synthesizeMouseEvent(nullptr, {1, 2});
}

void GuiUtilsTest::hoverOverWidget()
{
    Recorder widget;
    widget.resize(200, 150);
    widget.show();
    widget.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&widget));
    const QPoint centre = widget.mapToGlobal(widget.rect().center());
    QCursor::setPos(centre);
    QTRY_COMPARE(QCursor::pos(), centre);
    QTest::qWait(50); // what the move itself brought
    widget.events.clear();
    flickHoverEvent(&widget);
    const QStringList synchronous = widget.events;
    QCOMPARE(synchronous, QStringList({QStringLiteral("leave"),
                                       QStringLiteral("enter %1,%2").arg(centre.x()).arg(centre.y())}));
    QCOMPARE(QCursor::pos(), centre);
}

void GuiUtilsTest::hoverBesideWidget()
{
    Recorder window;
    window.resize(200, 150);
    Recorder child(&window);
    child.setGeometry(0, 0, 50, 50);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QPoint beside = window.mapToGlobal({50, 20});
    QCursor::setPos(beside);
    QTRY_COMPARE(QCursor::pos(), beside);
    QTest::qWait(50);
    child.events.clear();
    flickHoverEvent(&child);
    QCOMPARE(child.events, QStringList(QStringLiteral("leave")));
    flickHoverEvent(nullptr);
}

void GuiUtilsTest::hoverOverMenu()
{
    QWidget window;
    window.resize(300, 200);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QMenu menu(&window);
    QAction* const first = menu.addAction(QStringLiteral("First entry"));
    menu.addSeparator();
    menu.addAction(QStringLiteral("Last entry"));
    menu.popup(window.mapToGlobal({20, 20}));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    QCursor::setPos(menu.mapToGlobal(menu.actionGeometry(first).center()));
    QTest::qWait(50);
    menu.setActiveAction(nullptr);
    flickHoverEvent(&menu);
    QCOMPARE(menu.activeAction(), first);
    menu.close();
    SteadyMenu steady(&window);
    QAction* const entry = steady.addAction(QStringLiteral("Entry"));
    QAction* const separator = steady.addSeparator();
    steady.popup(window.mapToGlobal({20, 20}));
    QVERIFY(QTest::qWaitForWindowExposed(&steady));
    QCursor::setPos(steady.mapToGlobal(steady.rect().center()));
    QTest::qWait(50);
    for (QAction* const active : {entry, separator}) {
        steady.setActiveAction(active);
        steady.moves = 0;
        flickHoverEvent(&steady);
        QCOMPARE(steady.moves, 2);
        QCOMPARE(steady.activeAction(), active == separator ? nullptr : active);
    }
    steady.close();
}

void GuiUtilsTest::hoverWithoutActiveWindow()
{
    Recorder widget;
    widget.setAttribute(Qt::WA_ShowWithoutActivating);
    QApplication::setActiveWindow(nullptr);
    QVERIFY(!QApplication::activeWindow());
    flickHoverEvent(&widget);
    QCOMPARE(widget.events, QStringList());
}

void GuiUtilsTest::closeButton()
{
#ifdef Q_OS_WIN
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        QSKIP("a window without a system menu; seen on the platform \"windows\"");
    }
#endif
    QWidget window;
    window.resize(300, 100);
    window.show();
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
    explicit AfterApplicationTest(Recorder& survivor)
        : m_survivor(survivor)
    {
    }

private Q_SLOTS:
    void centring();
    void hovering();

private:
    Recorder& m_survivor;
};

void AfterApplicationTest::centring()
{
    installedLogger().take();
    expectReport(111, "desktop is unavailable");
    moveWindowToScreenCenter(&m_survivor, nullptr);
    QCOMPARE(installedLogger().take(), report(111, "desktop is unavailable"));
}

void AfterApplicationTest::hovering()
{
    flickHoverEvent(&m_survivor);
    QCOMPARE(m_survivor.events, QStringList());
}

int main(int argc, char* argv[])
{
    const IsolatedProfile profile;
    TestMain::prepare();
    qputenv("QT_FONT_DPI", "120");
    QTEST_SET_MAIN_SOURCE_PATH
    int failed = 0;
    std::unique_ptr<Recorder> survivor;
    {
        QApplication application(argc, argv);
        survivor = std::make_unique<Recorder>();
        GuiUtilsTest test;
        failed = QTest::qExec(&test, argc, argv);
    }
    AfterApplicationTest after(*survivor);
    return failed +
           QTest::qExec(&after, {QString::fromLocal8Bit(argv[0])}); // a result file is the first one's
}

#include "tst_guiutils.moc"
