#include "Report.h"
#include "Sections.h"

#include <utilsDll/StorageLocation.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <stdexcept>

using Location = TOLVAN_NAMESPACE::CStorageLocation;

namespace
{

struct Folder {
    const char* name;
    QString (*path)();
};

void showCreatedFolders(Report& report)
{
    const Folder folders[] = {
        {"currentDataLocation", &Location::currentDataLocation},
        {"diskCacheLocation", &Location::diskCacheLocation},
        {"cachedTokenFilePath", &Location::cachedTokenFilePath},
        {"packUserStoragePath", &Location::packUserStoragePath},
        {"favoritePresetPath", &Location::favoritePresetPath},
        {"cafDataPath", &Location::cafDataPath},
        {"crashFilesPath", &Location::crashFilesPath},
        {"crashTempFilesPath", &Location::crashTempFilesPath},
        {"loggerFilesPath", &Location::loggerFilesPath},
    };
    for (const Folder& folder : folders) {
        const QString path = folder.path();
        report.check(QString::fromLatin1(folder.name), path,
                     path.endsWith(QDir::separator()) && QFileInfo(path).isDir());
    }
}

void showOtherFolders(Report& report)
{
    const QString data = Location::appDataLocation(QStringLiteral("Trelio Frame"));
    report.check(QStringLiteral("appDataLocation"), data, data == Location::currentDataLocation());
    const QString samples = Location::getSamplePicturesLocation();
    report.check(QStringLiteral("getSamplePicturesLocation"), samples,
                 samples.isEmpty() || samples.endsWith(QDir::separator()));
    const QString session = Location::sessionSingleAppDirectory();
    report.check(QStringLiteral("sessionSingleAppDirectory"), session,
                 QDir(session).exists() && !session.endsWith(QLatin1Char('/')));
    const QString brightLab = Location::cafDataPathOfBrightLabLatestVersion();
    report.check(QStringLiteral("cafDataPathOfBrightLabLatestVersion"),
                 brightLab.isEmpty() ? QStringLiteral("(not installed)") : brightLab,
                 brightLab.isEmpty() || QDir(brightLab).isReadable());
    const QString vantora = Location::cafDataPathOfVantora2();
    report.check(QStringLiteral("cafDataPathOfVantora2"), vantora, vantora.endsWith(QDir::separator()));
}

void showPreferencesFile(Report& report)
{
    const QString preferences = Location::getDefaultPreferencesFilePath();
    report.check(QStringLiteral("getDefaultPreferencesFilePath"), preferences,
                 preferences.endsWith(QStringLiteral("Preferences.ini")));
    QString unset = QStringLiteral("(no error)");
    try {
        Location::getCurrentPreferencesFilePath();
    } catch (const std::runtime_error& error) {
        unset = QString::fromLatin1(error.what());
    }
    report.check(QStringLiteral("getCurrentPreferencesFilePath unset"), unset,
                 unset == QStringLiteral("Preferences file path not set"));
    Location::setPreferencesFilePath(preferences);
    report.check(QStringLiteral("getCurrentPreferencesFilePath"), Location::getCurrentPreferencesFilePath(),
                 Location::getCurrentPreferencesFilePath() == preferences);
}

} // namespace

void showStorage(Report& report)
{
    showCreatedFolders(report);
    showOtherFolders(report);
    showPreferencesFile(report);
    for (const QString& file :
         {Location::getOstraUserConfigFileLocation(), Location::getOstraGlobalConfigFileLocation()}) {
        report.check(QStringLiteral("suite configuration file"), file,
                     file.endsWith(QStringLiteral("/Tolvan/Ostra Collection/OstraCollection.cfg")));
    }
    const Folder scripts[] = {
        {"miniatureBlurShapesPath", &Location::miniatureBlurShapesPath},
        {"framePackPath", &Location::framePackPath},
        {"texturesPackPath", &Location::texturesPackPath},
        {"defectsPackPath", &Location::defectsPackPath},
    };
    const QString program = QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
    for (const Folder& script : scripts) {
        const QString path = script.path();
        report.check(QString::fromLatin1(script.name), path,
                     path.startsWith(program) && path.endsWith(QStringLiteral(".lua")));
    }
}
