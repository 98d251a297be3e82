#include "ModalDialog.h"
#include "TestMain.h"

#include <utilsDll/AboutDlg.h>

#include <QLabel>
#include <QPushButton>

/// The About dialogs: their texts, the names that the style sheets address, and how they close.
class AboutDialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void styleSheetReachesTheName();
    void closes_data();
    void closes();
};

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

void AboutDialogsTest::texts_data()
{
    QTest::addColumn<bool>("family");
    QTest::addColumn<QString>("name");
    QTest::newRow("product") << false << QStringLiteral("Trelio Frame");
    QTest::newRow("family") << true << QStringLiteral("Ostra Collection");
}

void AboutDialogsTest::texts()
{
    QFETCH(bool, family);
    QFETCH(QString, name);
    const auto dialog = make(family);
    QCOMPARE(labelText(*dialog, 1), name);
    QVERIFY(labelText(*dialog, 2).contains(QStringLiteral(PRODUCT_VERSION)));
    QVERIFY(labelText(*dialog, 3).contains(QStringLiteral("Tolvan")));
    QCOMPARE(labelText(*dialog, 4).contains(QStringLiteral("LGPL 3")), !family);
    QVERIFY(labelText(*dialog, 5).contains(QStringLiteral("https://")));
}

void AboutDialogsTest::styleSheetReachesTheName()
{
    qApp->setStyleSheet(QStringLiteral("CAboutDlg #label_1 { font-size: 31px; }"));
    for (const bool family : {false, true}) {
        const auto dialog = make(family);
        auto* const label = dialog->findChild<QLabel*>(QStringLiteral("label_1"));
        label->ensurePolished();
        QCOMPARE(label->font().pixelSize() == 31, !family);
    }
    qApp->setStyleSheet(QString());
}

void AboutDialogsTest::closes_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("button") << 0;
    QTest::newRow("Enter") << int(Qt::Key_Return);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
}

void AboutDialogsTest::closes()
{
    QFETCH(int, key);
    for (const bool family : {false, true}) {
        const auto dialog = make(family);
        bool closed = false;
        const auto act = [&](QDialog& open) {
            if (key != 0) {
                QTest::keyClick(&open, static_cast<Qt::Key>(key));
            } else {
                open.findChild<QPushButton*>(QStringLiteral("closeButton"))->click();
            }
            closed = !open.isVisible();
        };
        QVERIFY(whileOpen<QDialog>([&] { dialog->exec(); }, act));
        QVERIFY(closed);
    }
}

TOLVAN_GUI_TEST_MAIN(AboutDialogsTest)
#include "tst_aboutdialogs.moc"
