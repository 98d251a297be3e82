#include "pages/Pages.h"
#include "Pixels.h"
#include "ShowcaseWindow.h"
#include "TestMain.h"

#include <utilsDll/customtolvanappstyle.h>
#include <utilsDll/LanguageManager.h>
#include <utilsDll/SharedUtils.h>

namespace
{

QImage pictureOf(QWidget& window, const QWidget* part)
{
    const QRect place(part->mapTo(&window, QPoint(-3, -3)), part->size() + QSize(6, 6));
    return window.grab(place).toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

/// The host's window with its pages, in the look of the product.
class ShowcaseWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        using namespace TOLVAN_NAMESPACE;
        CLanguageManager::instance()->loadLanguageForApp();
        QApplication::setStyle(new CustomTolvanAppStyle);
        setPredefinedAppStyleSheet(QString(), qApp);
    }

    void init() { IsolatedProfile::clearStores(); }

    void placeAndPageComeBack()
    {
        QRect place;
        for (int start = 0; start < 3; ++start) { // and nothing drifts from start to start
            ShowcaseWindow window;
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            if (start == 0) {
                window.setGeometry(70, 60, 1177, 755);
                QTRY_COMPARE(window.geometry(), QRect(70, 60, 1177, 755));
                QTRY_VERIFY(window.frameGeometry().contains(window.geometry()));
                place = window.frameGeometry();
                window.showPage(2);
            }
            QTRY_COMPARE(window.frameGeometry(), place);
            QCOMPARE(window.findChild<QListWidget*>()->currentRow(), 2);
            window.close();
        }
    }

    /// Keys lead to a page, and Tab to each of its controls and back to the list of pages; each shows that it has
    /// the focus.
    void keyboardReachesEverything_data()
    {
        QTest::addColumn<int>("page");
        for (int i = 0; i < pages().size(); ++i) {
            QTest::newRow(pages().at(i).name) << i;
        }
    }
    void keyboardReachesEverything()
    {
        QFETCH(int, page);
        ShowcaseWindow window;
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        for (int i = 0; i < page; ++i) {
            QTest::keyClick(&window, Qt::Key_Tab, Qt::ControlModifier);
        }
        QCOMPARE(window.findChild<QListWidget*>()->currentRow(), page);
        QSet<const QWidget*> stops;
        for (const QWidget* stop = window.focusWidget(); !stops.contains(stop); stop = window.focusWidget()) {
            stops += stop;
            const QImage focused = pictureOf(window, stop);
            for (int part = 0; part < 3 && window.focusWidget() == stop; ++part) { // a date has three parts
                QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
            }
            const int changed = Pixels::countChanges(focused, pictureOf(window, stop), 3);
            QVERIFY2(changed >= 20, stop->metaObject()->className());
        }
        for (const QWidget* const control : window.findChildren<QWidget*>()) {
            const bool stop = control->isVisible() && control->isEnabled() && !control->focusProxy() &&
                              (control->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
            QVERIFY2(!stop || stops.contains(control), control->metaObject()->className());
        }
        if (auto* const tools = window.currentPage()->findChild<QButtonGroup*>()) {
            tools->button(0)->click();
            for (auto* const button : window.findChildren<QPushButton*>()) {
                if (button->text() == QStringLiteral("Cancel")) { // is hidden by it
                    button->setFocus();
                    QTest::keyClick(button, Qt::Key_Space);
                }
            }
            QVERIFY(window.currentPage()->isAncestorOf(window.focusWidget()));
        }
    }
};

TOLVAN_GUI_TEST_MAIN(ShowcaseWindowTest)
#include "tst_showcasewindow.moc"
