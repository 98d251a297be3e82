#include "InstalledLogger.h"
#include "TestMain.h"

#include <utilsDll/LanguageManager.h>

#include <QAbstractButton>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QLabel>
#include <QMessageBox>
#include <QSettings>
#include <QSignalSpy>
#include <QTextLayout>

#include <stdexcept>

using TOLVAN_NAMESPACE::CLanguageManager;

namespace
{

struct Language {
    const char* abbreviation;
    unsigned number;
    const char* name;
    const char* error;  // the text of the key "Error"
    const char* cancel; // the text of Qt's own button
    int translators;
};

const Language languageTable[] = {
    {"de", 0, "Deutsch", "Fehler", "Abbrechen", 2}, {"en", 2, "English", "Error", "Cancel", 1},
    {"fr", 5, "Français", "Erreur", "Annuler", 2},  {"ja", 12, "日本語", "エラー", "キャンセル", 2},
    {"zh-CN", 13, "简体中文", "错误", "取消", 2},
};

void store(const QVariant& number)
{
    if (number.isValid()) {
        QSettings(QStringLiteral("Tolvan"), QStringLiteral("Ostra Collection"))
            .setValue(QStringLiteral("currentLanguage"), number);
    }
}

int installedByApplication()
{
    return qApp->findChildren<QTranslator*>(QString(), Qt::FindDirectChildrenOnly).size();
}

QString cancelButtonText()
{
    QMessageBox box(QMessageBox::Question, QString(), QString(), QMessageBox::Cancel);
    return box.button(QMessageBox::Cancel)->text().remove(QLatin1Char('&'));
}

/// A window that follows the language as the product's windows do.
class Window : public QLabel
{
protected:
    void changeEvent(QEvent* event) override
    {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::LanguageChange) {
            setText(QObject::tr("Error"));
        }
    }
};

} // namespace

class LanguageManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        IsolatedProfile::clearStores();
        installedLogger().take();
    }

    void cleanup()
    {
        qDeleteAll(qApp->findChildren<QTranslator*>());
        QLocale::setDefault(QLocale::c());
    }

    void table()
    {
        CLanguageManager manager;
        QCOMPARE(manager.langCount(), 0);
        QCOMPARE(manager.loadedLanguageID(), 0xFFFFFFFFu);
        manager.loadLanguages();
        manager.loadLanguages();
        QCOMPARE(manager.langCount(), 5);
        for (const Language& language : languageTable) {
            const int row = manager.getLanguageIndexFromID(language.number);
            QCOMPARE(manager.getLangIdFromIndex(row), language.number);
            const QString abbreviation = QString::fromLatin1(language.abbreviation);
            QCOMPARE(CLanguageManager::stringFromCodeLanguage(language.number), abbreviation);
            const QStringList expected{QString::fromUtf8(language.name), QString::number(language.number),
                                       QStringLiteral(":/translations/tolvan_%1.qm").arg(abbreviation),
                                       abbreviation};
            for (int column = 0; column < expected.size(); ++column) {
                QCOMPARE(manager.model()->index(row, column).data().toString(), expected.at(column));
            }
        }
        QCOMPARE(manager.getLangIdFromIndex(5), 0u);
        QCOMPARE(installedLogger().take(), QStringList());
        QCOMPARE(manager.getLanguageIndexFromID(7), -1);
        QCOMPARE(installedLogger().take(),
                 QStringList(QStringLiteral("E TOLVAN_NAMESPACE::CLanguageManager::getLanguageIndexFromID: "
                                            "Cannot find language with ID: 7")));
        QVERIFY_EXCEPTION_THROWN(CLanguageManager::stringFromCodeLanguage(7), std::invalid_argument);
    }

    void storedNumber()
    {
        for (const QVariant& stored :
             {QVariant(), QVariant(12), QVariant(QStringLiteral("German")), QVariant(7)}) {
            const bool isJapanese = stored == QVariant(12);
            const QString abbreviation = isJapanese ? QStringLiteral("ja") : QStringLiteral("en");
            IsolatedProfile::clearStores();
            store(stored);
            CLanguageManager manager;
            QCOMPARE(CLanguageManager::currentLanguageNumber(), isJapanese ? 12u : 2u);
            QCOMPARE(manager.settingsAbbrv(), abbreviation);
            QCOMPARE(manager.currentLanguageAbbrv(), QString()); // it needs the table
            manager.loadLanguages();
            QCOMPARE(manager.currentLanguageAbbrv(), abbreviation);
        }
    }

    void tenChangesAndBack()
    {
        store(5);
        CLanguageManager manager;
        manager.loadLanguageForApp();
        int translators = 2;
        QCOMPARE(installedByApplication(), translators);
        QCOMPARE(QObject::tr("Error"), QStringLiteral("Erreur"));
        Window window;
        window.show();
        QSignalSpy changed(&manager, SIGNAL(languageChanged()));
        const int order[] = {0, 2, 1, 3, 4, 0, 1, 4, 2, 3, 1};
        for (int place : order) {
            const Language& language = languageTable[place];
            QVERIFY(manager.changeLanguage(manager.getLanguageIndexFromID(language.number)));
            // The one installed last goes; the product's catalogue of a language with two stays beneath.
            translators += language.translators - 1;
            QCOMPARE(installedByApplication(), translators);
            QCOMPARE(manager.loadedLanguageID(), language.number);
            QCOMPARE(CLanguageManager::currentLanguageNumber(), language.number);
            QCOMPARE(QLocale().language(), QLocale(QString::fromLatin1(language.abbreviation)).language());
            QCOMPARE(cancelButtonText(), QString::fromUtf8(language.cancel));
            QCoreApplication::sendPostedEvents();
            QCOMPARE(window.text(), QString::fromUtf8(language.error));
        }
        QCOMPARE(changed.size(), int(std::size(order)));
        QCOMPARE(installedLogger().take(), QStringList());
    }

    void applicationFreesTranslators()
    {
        // As an application object that ends before the manager does.
        CLanguageManager manager;
        manager.loadLanguageForApp();
        qDeleteAll(qApp->findChildren<QTranslator*>());
        QVERIFY(manager.changeLanguage(manager.getLanguageIndexFromID(0)));
        QCOMPARE(installedByApplication(), 2);
    }

    void glyphsOfTheLanguage()
    {
        if (!QFontDatabase().families().contains(QStringLiteral("Noto Sans CJK SC"))) {
            QSKIP("needs the Noto CJK fonts");
        }
        if (qVersion()[0] != '5') {
            QSKIP("Qt 6 keeps the fallback fonts that it found first");
        }
        CLanguageManager manager;
        manager.loadLanguages();
        QLabel plain, styled;
        styled.setStyleSheet(QStringLiteral("font-family: 'Lucida Sans Unicode', 'Open Sans'"));
        const auto familyIn = [](const QLabel& label) {
            label.ensurePolished();
            QTextLayout layout(QString(QChar(0x76F4)),
                               label.font()); // its glyph differs between the languages
            layout.beginLayout();
            layout.createLine();
            layout.endLayout();
            return layout.glyphRuns().value(0).rawFont().familyName().toLower();
        };
        QVERIFY(!familyIn(plain).isEmpty() && !familyIn(styled).isEmpty()); // fonts that are in use
        for (const unsigned number : {12u, 13u, 0u, 12u, 13u}) {
            manager.changeLanguage(manager.getLanguageIndexFromID(number));
            const QString expected = QLatin1String(number == 13 ? "noto sans cjk sc" : "noto sans cjk jp");
            QVERIFY2(number == 0 || familyIn(plain) == expected, qPrintable(familyIn(plain)));
            QVERIFY2(number == 0 || familyIn(styled) == expected, qPrintable(familyIn(styled)));
        }
    }

    void sameLanguage()
    {
        store(12);
        CLanguageManager manager;
        manager.loadLanguages();
        QSignalSpy changed(&manager, SIGNAL(languageChanged()));
        QVERIFY(!manager.changeLanguage(manager.currentLanguageIndex()));
        QCOMPARE(changed.size(), 0);
        QCOMPARE(installedByApplication(), 0);
    }
};

TOLVAN_GUI_TEST_MAIN(LanguageManagerTest)
#include "tst_languagemanager.moc"
