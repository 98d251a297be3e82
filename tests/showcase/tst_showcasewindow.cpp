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

namespace
{

QString headingOf(const ShowcaseWindow& window)
{
    return window.findChild<QLabel*>(QStringLiteral("pageHeading"))->text();
}

} // namespace

/// The host's window with pages of the test's own.
class ShowcaseWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { IsolatedProfile::clearStores(); }

    void placeAndPageComeBack()
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

    /// Neither at the first start nor after one that stored what is no geometry and no page.
    void nothingToComeBackTo()
    {
        for (const char* const stored : {"", "wide"}) {
            TOLVAN_NAMESPACE::CSettings settings;
            settings.setValue(QStringLiteral("showcase/geometry"), QByteArray(stored));
            settings.setValue(QStringLiteral("showcase/page"), QLatin1String(stored));
            const ShowcaseWindow window;
            QCOMPARE(window.size(), QSize(1280, 800));
            QCOMPARE(headingOf(window), QStringLiteral("First"));
        }
    }

    void keysStepThroughThePages()
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
};

TOLVAN_GUI_TEST_MAIN(ShowcaseWindowTest)
#include "tst_showcasewindow.moc"
