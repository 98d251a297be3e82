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
        content->setStyleSheet(QStringLiteral("background: ") + contentColor.name());
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(content);
    }

    using CBaseDialog::canUseInAATSignalService;
    using CBaseDialog::setHeaderHeight;
};

/// Returns the position at which the user sees the dialog.
QPoint seenAt(const QWidget& dialog)
{
    return ScreenProbe::canSee() ? ScreenProbe::placeOf(contentColor) : dialog.pos();
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

/// One step of a drag of a dialog that is at \a place.
void sendMouse(QWidget& window, QEvent::Type type, const QPoint& at, const QPoint& place,
               Qt::MouseButton button)
{
    const Qt::MouseButtons held = type == QEvent::MouseMove ? Qt::LeftButton : button;
    QMouseEvent event(type, at, place + at, button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

} // namespace

class BaseDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flags()
    {
        const Qt::WindowFlags buttons(0x1C000); // minimise, maximise, help
        const Dialog dialog(nullptr, buttons | Qt::WindowStaysOnTopHint);
        QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QCOMPARE(dialog.windowFlags() & buttons, Qt::WindowFlags());
        QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));
    }

    void methodsForTheAutomationService()
    {
        Dialog dialog;
        QVERIFY(dialog.canUseInAATSignalService());
        QString name;
        QVERIFY(QMetaObject::invokeMethod(&dialog, "getObjectName", Q_RETURN_ARG(QString, name)));
        QCOMPARE(name, QStringLiteral("testDialog"));
        QVERIFY(QMetaObject::invokeMethod(&dialog, "sendNotification"));
        QVERIFY(QMetaObject::invokeMethod(&dialog, "moveToScreenCenter"));
        QCOMPARE(dialog.size(), contentSize);
    }

    void firstShowCentres()
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        const QSize free = screen.size() - contentSize;
        const QPoint middle = screen.topLeft() + QPoint(free.width() / 2, free.height() / 2);
        QWidget parent;
        parent.setGeometry(20, 30, 100, 100);
        for (QWidget* const owner : {static_cast<QWidget*>(nullptr), &parent}) {
            Dialog dialog(owner);
            dialog.move(7, 9); // a place set before the first show does not count
            dialog.resize(500, 400);
            showAndWait(dialog);
            QCOMPARE(dialog.size(), contentSize);
            QTRY_COMPARE(seenAt(dialog), middle);
        }
    }

    void laterShowsKeepThePlace()
    {
        const QPoint place(60, 40);
        Dialog dialog;
        showAt(dialog, place);
        dialog.hide();
        showAndWait(dialog);
        QTest::qWait(50);
        QTRY_COMPARE(seenAt(dialog), place);
    }

    /// The events say where the dialog is: under some window managers Qt does not know it.
    void drag()
    {
        struct Row {
            int header;
            int y;
            Qt::MouseButton button;
            bool drags;
        };
        for (const Row& row : {Row{30, 30, Qt::LeftButton, true}, Row{30, 31, Qt::LeftButton, false},
                               Row{0, 110, Qt::LeftButton, true}, Row{0, 10, Qt::RightButton, false},
                               Row{-1, 10, Qt::LeftButton, false}}) { // nowhere
            const QPoint grip(50, row.y);
            Dialog dialog;
            dialog.setHeaderHeight(row.header);
            showAt(dialog, {200, 150});
            sendMouse(dialog, QEvent::MouseButtonPress, grip, {400, 300}, row.button);
            sendMouse(dialog, QEvent::MouseMove, grip, {370, 310}, Qt::NoButton);
            const QPoint last = row.drags ? QPoint(370, 310) : QPoint(200, 150);
            QTRY_COMPARE(seenAt(dialog), last);
            sendMouse(dialog, QEvent::MouseButtonRelease, grip, last, Qt::RightButton); // any ends the drag
            sendMouse(dialog, QEvent::MouseMove, grip, {80, 80}, Qt::NoButton);
            QTest::qWait(20);
            QCOMPARE(seenAt(dialog), last);
        }
    }

    void derivedClassesHaveTheirFrame()
    {
        qApp->setStyleSheet(QStringLiteral(
            "TOLVAN_NAMESPACE--CBaseDialog { background: #102030; border: 2px solid #405060 }"));
        struct Derived : CBaseDialog {
        } dialog;
        dialog.resize(40, 40);
        const QImage image = dialog.grab().toImage();
        QCOMPARE(image.pixelColor(20, 20).name(), QStringLiteral("#102030"));
        QCOMPARE(image.pixelColor(1, 20).name(), QStringLiteral("#405060"));
        qApp->setStyleSheet(QString());
    }
};

TOLVAN_GUI_TEST_MAIN(BaseDialogTest)
#include "tst_basedialog.moc"
