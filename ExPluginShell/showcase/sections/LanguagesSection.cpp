#include "Report.h"
#include "Sections.h"
#include "StoredLanguage.h"

#include <utilsDll/LanguageManager.h>

#include <QElapsedTimer>
#include <QLocale>
#include <QObject>

using namespace TOLVAN_NAMESPACE;

namespace
{

/// Changes to the language in \a row and shows a text of the library and a number in it.
void showLanguage(Report& report, CLanguageManager& languages, int row)
{
    const unsigned number = languages.getLangIdFromIndex(row);
    languages.changeLanguage(row);
    const QString name = languages.model()->index(row, 0).data().toString();
    report.check(
        QStringLiteral("changed to %1").arg(languages.currentLanguageAbbrv()),
        QStringLiteral("%1: \"%2\", %3").arg(name, QObject::tr("Error"), QLocale().toString(12345.6, 'f', 1)),
        languages.loadedLanguageID() == number &&
            languages.settingsAbbrv() == languages.currentLanguageAbbrv());
}

} // namespace

void showLanguages(Report& report)
{
    const StoredLanguage storedLanguage;
    CLanguageManager& languages = *CLanguageManager::instance();
    QElapsedTimer timer;
    timer.start();
    languages.loadLanguageForApp();
    report.check(QStringLiteral("languages found"),
                 QStringLiteral("%1 in %2 µs").arg(languages.langCount()).arg(timer.nsecsElapsed() / 1000),
                 languages.langCount() == 5);
    const int stored = languages.currentLanguageIndex();
    for (int row = 0; row < languages.langCount(); ++row) {
        showLanguage(report, languages, row);
    }
    languages.changeLanguage(stored);
    report.check(QStringLiteral("back to the stored language"), languages.currentLanguageAbbrv(),
                 languages.currentLanguageIndex() == stored);
    report.check(QStringLiteral("a change to the same language"), QStringLiteral("nothing happens"),
                 !languages.changeLanguage(stored));
}
