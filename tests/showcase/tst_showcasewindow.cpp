#include "pages/Pages.h"
#include "ShowcaseWindow.h"
#include "TestMain.h"

#include <utilsDll/Settings.h>

#include <QLabel>
#include <QListWidget>

/// The pages of this window: nothing of the subsystems.
QVector<Page> pages()
{
    const auto make = [](QWidget* parent) -> QWidget* { return new QLabel(parent); };
    return {{"first", "First", "", make}, {"second", "Second", "", make}, {"third", "Third", "", make}};
}

/// The host's window with pages of the test's own.
class ShowcaseWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { IsolatedProfile::clearStores(); }
    void placeAndPageComeBack();
    void nothingToComeBackTo_data();
    void nothingToComeBackTo();
    void keysStepThroughThePages();
};

namespace
{

QString headingOf(const ShowcaseWindow& window)
{
    return window.findChild<QLabel*>(QStringLiteral("pageHeading"))->text();
}

} // namespace

void ShowcaseWindowTest::placeAndPageComeBack()
{
    QRect place;
    for (int start = 0; start < 3; ++start) { // and nothing drifts from start to start
        ShowcaseWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        if (start == 0) {
            window.setGeometry(70, 60, 777, 555);
            QTRY_COMPARE(window.geometry(), QRect(70, 60, 777, 555));
            QTRY_VERIFY(window.frameGeometry().contains(window.geometry()));
            place = window.frameGeometry();
            window.showPage(2);
        }
        QTRY_COMPARE(window.size(), QSize(777, 555));
        QTRY_COMPARE(window.frameGeometry(), place);
        QCOMPARE(headingOf(window), QStringLiteral("Third"));
        window.close();
    }
}

void ShowcaseWindowTest::nothingToComeBackTo_data()
{
    QTest::addColumn<QVariant>("geometry");
    QTest::addColumn<QVariant>("page");
    QTest::newRow("first start") << QVariant() << QVariant();
    QTest::newRow("no geometry, no page")
        << QVariant(QByteArray("wide")) << QVariant(QStringLiteral("fourth"));
}

void ShowcaseWindowTest::nothingToComeBackTo()
{
    QFETCH(const QVariant, geometry);
    QFETCH(const QVariant, page);
    TOLVAN_NAMESPACE::CSettings settings;
    settings.setValue(QStringLiteral("showcase/geometry"), geometry);
    settings.setValue(QStringLiteral("showcase/page"), page);
    const ShowcaseWindow window;
    QCOMPARE(window.size(), QSize(1280, 800));
    QCOMPARE(headingOf(window), QStringLiteral("First"));
}

void ShowcaseWindowTest::keysStepThroughThePages()
{
    ShowcaseWindow window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto* const list = window.findChild<QListWidget*>();
    QVERIFY(list->hasFocus());
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(list, key, modifiers);
        return headingOf(window);
    };
    QCOMPARE(press(Qt::Key_Down, Qt::NoModifier), QStringLiteral("Second"));
    QCOMPARE(press(Qt::Key_Tab, Qt::ControlModifier), QStringLiteral("Third"));
    QCOMPARE(press(Qt::Key_Tab, Qt::ControlModifier), QStringLiteral("First"));
    QCOMPARE(press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), QStringLiteral("Third"));
}

TOLVAN_GUI_TEST_MAIN(ShowcaseWindowTest)
#include "tst_showcasewindow.moc"
