#include "BoxKinds.h"
#include "ModalDialog.h"
#include "TestMain.h"

#include <utilsDll/AboutDlg.h>
#include <utilsDll/ApplicationStyle.h>
#include <utilsDll/controls/IconViewer.h>
#include <utilsDll/customtolvanappstyle.h>
#include <utilsDll/LanguageManager.h>

#include <QLabel>
#include <QPushButton>

using namespace TOLVAN_NAMESPACE;

/// The product's dialogs as users see them: under the look, in each of the five languages.
class DialogLanguagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void nothingIsCutOff_data();
    void nothingIsCutOff();
};

namespace
{

/// What the dialog's buttons say.
QStringList checkTexts(const QDialog& dialog)
{
    QStringList texts;
    const auto verify = [](bool ok, const QString& text) { QVERIFY2(ok, qPrintable(text)); };
    for (const QLabel* const label : dialog.findChildren<QLabel*>()) {
        verify(label->height() >= label->heightForWidth(label->width()), label->text());
    }
    for (const QPushButton* const button : dialog.findChildren<QPushButton*>()) {
        texts += button->text();
        verify(button->width() >= button->sizeHint().width(), button->text());
        verify(button->width() >= 80 && button->height() >= 36, button->text());
        const QRect place(button->mapTo(&dialog, QPoint()), button->size());
        verify(dialog.rect().contains(place), button->text());
    }
    const auto* const viewer = dialog.findChild<CIconViewer*>();
    verify(viewer && !viewer->icon().isNull(), QStringLiteral("the icon"));
    return texts;
}

} // namespace

void DialogLanguagesTest::initTestCase()
{
    loadFonts();
    QApplication::setStyle(new CustomTolvanAppStyle);
    setPredefinedAppStyleSheet(QString(), qApp);
    CLanguageManager::instance()->loadLanguageForApp();
}

void DialogLanguagesTest::nothingIsCutOff_data()
{
    QTest::addColumn<unsigned>("number"); // of the language, in the product family
    QTest::addColumn<QString>("save");
    QTest::addColumn<QString>("quit");
    const auto row = [](const char* name, unsigned number, const char* save, const char* quit) {
        QTest::newRow(name) << number << QString::fromUtf8(save) << QString::fromUtf8(quit);
    };
    row("German", 0, "Nicht speichern, Speichern, Abbrechen", "Nicht beenden, Ohne Speichern beenden");
    row("French", 5, "Ne pas enregistrer, Enregistrer, Annuler", "Ne pas quitter, Quitter sans enregistrer");
    row("Japanese", 12, "保存しない, 保存, キャンセル", "終了しない, 保存せずに終了");
    row("Chinese", 13, "不保存, 保存, 取消", "不退出, 不保存并退出");
    row("English", 2, "Don't save, Save, Cancel", "Don't quit, Quit without saving");
}

void DialogLanguagesTest::nothingIsCutOff()
{
    QFETCH(const unsigned, number);
    QFETCH(const QString, save);
    QFETCH(const QString, quit);
    auto* const languages = CLanguageManager::instance();
    languages->changeLanguage(languages->getLanguageIndexFromID(number));
    const QString separator = QStringLiteral(", ");
    QMap<QString, QString> said;
    for (const BoxKinds::Kind& kind : BoxKinds::kinds()) {
        const auto check = [&](CMessageBox& box) {
            said[QString::fromLatin1(kind.name)] = checkTexts(box).join(separator);
        };
        QVERIFY(whileOpen<CMessageBox>([&] { kind.show(nullptr, save + separator + quit); }, check));
    }
    QCOMPARE(said.value(QStringLiteral("save, discard, cancel")), save);
    QCOMPARE(said.value(QStringLiteral("quit")), quit);
    QVERIFY(whileOpen<CAboutDlg>([] { CAboutDlg().exec(); }, &checkTexts));
    QVERIFY(whileOpen<CAboutOstraDlg>([] { CAboutOstraDlg().exec(); }, &checkTexts));
}

TOLVAN_GUI_TEST_MAIN(DialogLanguagesTest)
#include "tst_dialoglanguages.moc"
