#include "TestMain.h"

#include <utilsDll/AboutDlg.h>

#include <QLabel>

namespace
{

QString labelText(const QDialog& dialog, int number)
{
    const auto* const label = dialog.findChild<QLabel*>(QStringLiteral("label_%1").arg(number));
    return label ? label->text() : QStringLiteral("(no label)");
}

std::unique_ptr<TOLVAN_NAMESPACE::CBaseDialog> make(bool family)
{
    if (family) {
        return std::make_unique<CAboutOstraDlg>();
    }
    return std::make_unique<TOLVAN_NAMESPACE::CAboutDlg>();
}

} // namespace

/// The About dialogs: their texts, the names that the style sheets address, and their links.
class AboutDialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts()
    {
        for (const bool family : {false, true}) {
            const auto dialog = make(family);
            QCOMPARE(labelText(*dialog, 1),
                     QString::fromLatin1(family ? "Ostra Collection" : "Trelio Frame"));
            QVERIFY(labelText(*dialog, 2).contains(QStringLiteral(PRODUCT_VERSION)));
            QVERIFY(labelText(*dialog, 3).contains(QStringLiteral("Tolvan")));
            QCOMPARE(labelText(*dialog, 4).contains(QStringLiteral("<p>Made with:</p>")), !family);
            for (const char* const licence :
                 {"lgpl-3.0", "lgpl-2.1", "LICENSE-2.0", "openfont", "mit", "zlib"}) {
                QVERIFY2(labelText(*dialog, 5).contains(QLatin1String(licence)), licence);
            }
        }
    }

    /// Tab marks the first link at once. A press beside the links drags the dialog.
    void linksAndDragging()
    {
        const auto dialog = make(true);
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        auto* const links = dialog->findChild<QLabel*>(QStringLiteral("label_5"));
        QApplication::setActiveWindow(dialog.get());
        links->setFocus(Qt::TabFocusReason);
        QCOMPARE(links->selectedText(), QString::fromUtf8("GNU\u00a0LGPL\u00a03"));
        QTest::keyClick(links, Qt::Key_Tab);
        QCOMPARE(links->accessibleName(),
                 QString::fromUtf8("GNU\u00a0LGPL\u00a02.1")); // heard, as it is seen
        for (int number = 1; number <= 5; ++number) {
            auto* const label = dialog->findChild<QLabel*>(QStringLiteral("label_%1").arg(number));
            const QPoint before = dialog->pos();
            const QPoint grip(label->width() - 1, 1);
            QTest::mousePress(label, Qt::LeftButton, {}, grip);
            QMouseEvent move(QEvent::MouseMove, grip + QPoint(9, 5), label->mapToGlobal(grip + QPoint(9, 5)),
                             Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(label, &move);
            QTest::mouseRelease(label, Qt::LeftButton, {}, grip);
            QVERIFY2(dialog->pos() != before, qPrintable(label->objectName()));
        }
    }
};

TOLVAN_GUI_TEST_MAIN(AboutDialogsTest)
#include "tst_aboutdialogs.moc"
