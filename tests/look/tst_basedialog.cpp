#include "ScreenProbe.h"
#include "TestMain.h"

#include <utilsDll/BaseDialog.h>

#include <QScreen>
#include <QVBoxLayout>

using TOLVAN_NAMESPACE::CBaseDialog;

namespace
{

constexpr QSize contentSize(241, 121);
const QColor contentColor(250, 3, 251);

class Dialog : public CBaseDialog
{
public:
    explicit Dialog(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags())
        : CBaseDialog(parent, flags)
    {
        setObjectName(QStringLiteral("testDialog"));
        auto* const layout = new QVBoxLayout(this);
        auto* const content = new QWidget;
        content->setFixedSize(contentSize);
        ScreenProbe::paint(*content, contentColor);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(content);
    }

    using CBaseDialog::canUseInAATSignalService;
    using CBaseDialog::setHeaderHeight;
};

/// Returns the position of a dialog of the content's size in the middle of \a screen.
QPoint middleOf(const QScreen& screen)
{
    const QSize free = screen.size() - contentSize;
    return screen.geometry().topLeft() + QPoint(free.width() / 2, free.height() / 2);
}

/// Returns the position at which the user sees the dialog.
QPoint seenAt(const QWidget& dialog)
{
    return ScreenProbe::canSee()
               ? ScreenProbe::areaOf(contentColor, *QGuiApplication::primaryScreen()).topLeft()
               : dialog.pos();
}

void showAndWait(QWidget& window)
{
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}

/// Shows \a dialog at \a place. Under a window manager Qt knows the position only after an explicit move.
void showAt(QWidget& dialog, const QPoint& place)
{
    showAndWait(dialog);
    dialog.move(place - QPoint(1, 1));
    dialog.move(place);
    QTRY_COMPARE(seenAt(dialog), place);
    QTRY_COMPARE(dialog.pos(), place);
}

/// One step of a drag, seen from the screen.
void sendMouse(QWidget& window, QEvent::Type type, const QPoint& global, Qt::MouseButton button)
{
    const Qt::MouseButtons held = type == QEvent::MouseMove ? Qt::LeftButton : button;
    QMouseEvent event(type, window.mapFromGlobal(global), global, button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

} // namespace

class BaseDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flags();
    void methodsForTheAutomationService();
    void firstShowCentres();
    void laterShowsKeepThePlace();
    void drag_data();
    void drag();
    void dragFromAnUnknownPosition();
    void derivedClassesHaveTheirFrame();
};

void BaseDialogTest::flags()
{
    const Qt::WindowFlags buttons(0x1C000); // minimise, maximise, help
    const Dialog dialog(nullptr, buttons | Qt::WindowStaysOnTopHint);
    QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QCOMPARE(dialog.windowFlags() & buttons, Qt::WindowFlags());
    QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));
}

void BaseDialogTest::methodsForTheAutomationService()
{
    Dialog dialog;
    QVERIFY(dialog.canUseInAATSignalService());
    QString name;
    QVERIFY(QMetaObject::invokeMethod(&dialog, "getObjectName", Q_RETURN_ARG(QString, name)));
    QCOMPARE(name, QStringLiteral("testDialog"));
    QVERIFY(QMetaObject::invokeMethod(&dialog, "sendNotification"));
    showAt(dialog, {1, 2});
    dialog.resize(400, 400);
    QVERIFY(QMetaObject::invokeMethod(&dialog, "moveToScreenCenter"));
    QCOMPARE(dialog.size(), contentSize);
    QTRY_COMPARE(seenAt(dialog), middleOf(*QGuiApplication::primaryScreen()));
}

void BaseDialogTest::firstShowCentres()
{
    QWidget parent;
    parent.setGeometry(20, 30, 100, 100);
    for (QWidget* const owner : {static_cast<QWidget*>(nullptr), &parent}) {
        Dialog dialog(owner);
        dialog.move(7, 9); // a place set before the first show does not count
        dialog.resize(500, 400);
        showAndWait(dialog);
        QCOMPARE(dialog.size(), contentSize);
        QTRY_COMPARE(seenAt(dialog), middleOf(*QGuiApplication::primaryScreen()));
    }
}

void BaseDialogTest::laterShowsKeepThePlace()
{
    const QPoint place(60, 40);
    Dialog dialog;
    showAt(dialog, place);
    dialog.hide();
    showAndWait(dialog);
    QTest::qWait(50);
    QTRY_COMPARE(seenAt(dialog), place);
}

void BaseDialogTest::drag_data()
{
    QTest::addColumn<int>("header");
    QTest::addColumn<int>("y");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("drags");
    QTest::newRow("in the header") << 30 << 10 << int(Qt::LeftButton) << true;
    QTest::newRow("on its last line") << 30 << 30 << int(Qt::LeftButton) << true;
    QTest::newRow("below it") << 30 << 31 << int(Qt::LeftButton) << false;
    QTest::newRow("no header: anywhere") << 0 << 110 << int(Qt::LeftButton) << true;
    QTest::newRow("right button") << 0 << 10 << int(Qt::RightButton) << false;
    QTest::newRow("negative header: nowhere") << -1 << 10 << int(Qt::LeftButton) << false;
}

void BaseDialogTest::drag()
{
    QFETCH(int, header);
    QFETCH(int, y);
    QFETCH(int, button);
    QFETCH(bool, drags);
    Dialog dialog;
    dialog.setHeaderHeight(header);
    const QPoint before(200, 150);
    showAt(dialog, before);
    const QPoint grip = dialog.mapToGlobal(QPoint(50, y));
    QPoint last = before;
    sendMouse(dialog, QEvent::MouseButtonPress, grip, static_cast<Qt::MouseButton>(button));
    for (const QPoint way : {QPoint(11, -7), QPoint(-90, 40), QPoint(-30, -20)}) {
        sendMouse(dialog, QEvent::MouseMove, grip + way, Qt::NoButton);
        last = drags ? before + way : before;
        QTRY_COMPARE(seenAt(dialog), last);
    }
    sendMouse(dialog, QEvent::MouseButtonRelease, grip, Qt::RightButton); // any ends the drag
    sendMouse(dialog, QEvent::MouseMove, grip + QPoint(80, 80), Qt::NoButton);
    QTest::qWait(20);
    QCOMPARE(seenAt(dialog), last);
}

/// Under some window managers Qt does not know where the dialog is.
void BaseDialogTest::dragFromAnUnknownPosition()
{
    Dialog dialog;
    showAt(dialog, {200, 150});
    const auto send = [&dialog](QEvent::Type type, const QPoint& global) {
        QMouseEvent event(type, QPoint(50, 10), global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&dialog, &event);
    };
    send(QEvent::MouseButtonPress, {450, 310}); // the dialog is at 400, 300
    send(QEvent::MouseMove, {455, 315});
    QTRY_COMPARE(seenAt(dialog), QPoint(405, 305));
}

void BaseDialogTest::derivedClassesHaveTheirFrame()
{
    qApp->setStyleSheet(
        QStringLiteral("TOLVAN_NAMESPACE--CBaseDialog { background: #102030; border: 2px solid #405060 }"));
    struct Derived : CBaseDialog {
    } dialog;
    dialog.resize(40, 40);
    const QImage image = dialog.grab().toImage();
    QCOMPARE(image.pixelColor(20, 20).name(), QStringLiteral("#102030"));
    QCOMPARE(image.pixelColor(1, 20).name(), QStringLiteral("#405060"));
    qApp->setStyleSheet(QString());
}

TOLVAN_GUI_TEST_MAIN(BaseDialogTest)
#include "tst_basedialog.moc"
