#include "TestMain.h"

#include <utilsDll/AboutDlg.h>
#include <utilsDll/ApplicationStyle.h>
#include <utilsDll/controls/IconViewer.h>
#include <utilsDll/customtolvanappstyle.h>
#include <utilsDll/LanguageManager.h>
#include <utilsDll/MessageBox.h>

#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <functional>

using namespace TOLVAN_NAMESPACE;

/// The product's dialogs as users see them: under the look, in each of the five languages.
class DialogLanguagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void boxes_data();
    void boxes();
    void aboutDialogs_data() { boxes_data(); }
    void aboutDialogs();

private:
    static void checkWhileOpen(const std::function<void()>& open, const std::function<void(QWidget&)>& check);
};

namespace
{

void checkTexts(QWidget& dialog)
{
    for (const QLabel* const label : dialog.findChildren<QLabel*>()) {
        QVERIFY2(label->height() >= label->heightForWidth(label->width()), qPrintable(label->text()));
    }
    for (const QPushButton* const button : dialog.findChildren<QPushButton*>()) {
        QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
        QVERIFY2(button->width() >= 80 && button->height() >= 36, qPrintable(button->text()));
        QVERIFY(dialog.rect().contains(QRect(button->mapTo(&dialog, QPoint()), button->size())));
    }
    const auto* const viewer = dialog.findChild<CIconViewer*>();
    QVERIFY(viewer && !viewer->icon().isNull());
}

QStringList buttonTexts(const QWidget& dialog)
{
    QStringList texts;
    for (const QPushButton* const button : dialog.findChildren<QPushButton*>()) {
        texts += button->text();
    }
    return texts;
}

} // namespace

void DialogLanguagesTest::checkWhileOpen(const std::function<void()>& open,
                                         const std::function<void(QWidget&)>& check)
{
    bool checked = false;
    QTimer::singleShot(0, [&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        QVERIFY(dialog);
        check(*dialog);
        checked = true;
        dialog->close();
    });
    open();
    QVERIFY(checked);
}

void DialogLanguagesTest::initTestCase()
{
    loadFonts();
    QApplication::setStyle(new CustomTolvanAppStyle);
    setPredefinedAppStyleSheet(QString(), qApp);
    CLanguageManager::instance()->loadLanguageForApp();
}

void DialogLanguagesTest::boxes_data()
{
    QTest::addColumn<int>("number"); // of the language, in the product family
    QTest::addColumn<QStringList>("texts");
    const auto row = [](const char* name, int number, std::initializer_list<const char*> texts) {
        QStringList list;
        for (const char* const text : texts) {
            list += QString::fromUtf8(text);
        }
        QTest::newRow(name) << number << list;
    };
    row("German", 0,
        {"Nicht speichern", "Speichern", "Abbrechen", "Nicht beenden", "Ohne Speichern beenden"});
    row("French", 5,
        {"Ne pas enregistrer", "Enregistrer", "Annuler", "Ne pas quitter", "Quitter sans enregistrer"});
    row("Japanese", 12, {"保存しない", "保存", "キャンセル", "終了しない", "保存せずに終了"});
    row("Chinese", 13, {"不保存", "保存", "取消", "不退出", "不保存并退出"});
    row("English", 2, {"Don't save", "Save", "Cancel", "Don't quit", "Quit without saving"});
}

void DialogLanguagesTest::boxes()
{
    QFETCH(int, number);
    QFETCH(QStringList, texts);
    auto* const languages = CLanguageManager::instance();
    languages->changeLanguage(languages->getLanguageIndexFromID(static_cast<unsigned>(number)));
    const QString text = texts.join(QStringLiteral(", ")); // some words of the language
    const std::function<void()> others[] = {[&] { CMessageBox::information(nullptr, text, 165); },
                                            [&] { CMessageBox::warning(nullptr, text, 165); },
                                            [&] { CMessageBox::critical(nullptr, text, 165); },
                                            [&] { CMessageBox::yesNoMessage(nullptr, text, 165); },
                                            [&] { CMessageBox::rotateQuestion(nullptr, text, 165); }};
    for (const auto& open : others) {
        checkWhileOpen(open, &checkTexts);
    }
    QStringList shown;
    const auto checkAndNote = [&](QWidget& dialog) {
        checkTexts(dialog);
        shown += buttonTexts(dialog);
    };
    checkWhileOpen([&] { CMessageBox::saveDiscardCancelMessage(nullptr, text, 165); }, checkAndNote);
    checkWhileOpen([&] { CMessageBox::backgroundProcessingCancelMessage(nullptr, text); }, checkAndNote);
    QCOMPARE(shown, texts);
}

void DialogLanguagesTest::aboutDialogs()
{
    QFETCH(int, number);
    auto* const languages = CLanguageManager::instance();
    languages->changeLanguage(languages->getLanguageIndexFromID(static_cast<unsigned>(number)));
    checkWhileOpen([] { CAboutDlg().exec(); }, &checkTexts);
    checkWhileOpen([] { CAboutOstraDlg().exec(); }, &checkTexts);
}

TOLVAN_GUI_TEST_MAIN(DialogLanguagesTest)
#include "tst_dialoglanguages.moc"
