#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/StorageLocation.h>

#include <QDir>
#include <QFileInfo>

using Location = TOLVAN_NAMESPACE::CStorageLocation;
using PathFunction = QString (*)();

namespace
{

/// Local application data as the test itself finds it.
QString localData()
{
#ifdef Q_OS_WIN
    return QDir::fromNativeSeparators(qEnvironmentVariable("LOCALAPPDATA"));
#else
    return qEnvironmentVariable("XDG_DATA_HOME");
#endif
}

QString native(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

} // namespace

class StorageLocationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_CONFIG_DIRS", "/desktop-session:" + qgetenv("XDG_CONFIG_DIRS")); }

    void createdFolders()
    {
        const QPair<PathFunction, const char*> folders[] = {
            {&Location::currentDataLocation, ""},
            {&Location::diskCacheLocation, "DiskCache/"},
            {&Location::cachedTokenFilePath, "Facebook/"},
            {&Location::packUserStoragePath, "PresetPack/"},
            {&Location::favoritePresetPath, "Favorite/"},
            {&Location::cafDataPath, "Modules/"},
            {&Location::crashFilesPath, "CrashReports/"},
            {&Location::crashTempFilesPath, "CrashReports/temp/"},
            {&Location::loggerFilesPath, "Logs/"}};
        for (const auto& [path, relative] : folders) {
            const QString expected = native(localData() + text("/Tolvan/Trelio Frame/") + text(relative));
            for (int call = 0; call < 2; ++call) { // cached or not, the folder is there again
                QCOMPARE(path(), expected);
                QVERIFY(QFileInfo(expected).isDir());
                QVERIFY(QDir(expected).removeRecursively());
            }
        }
    }

    void otherPlaces()
    {
#ifdef Q_OS_WIN
        const QString programData = qEnvironmentVariable("PROGRAMDATA");
        const QString suiteBase = text("C:/ProgramData");
        const QString pictures = qEnvironmentVariable("PUBLIC");
        const QString userConfig = localData();
#else
        const QString programData = qEnvironmentVariable("XDG_CONFIG_DIRS").section(QLatin1Char(':'), -1);
        const QString suiteBase = programData;
        const QString pictures =
            qEnvironmentVariable("XDG_DATA_DIRS").section(QLatin1Char(':'), 0, 0) + text("/pictures");
        const QString userConfig = qEnvironmentVariable("XDG_CONFIG_HOME");
#endif
        QCOMPARE(Location::getDefaultPreferencesFilePath(),
                 native(programData + text("/Tolvan/Trelio Frame/Preferences.ini")));
        const QString samples = Location::getSamplePicturesLocation();
        QVERIFY2(samples.startsWith(native(pictures)), qPrintable(samples));
        QVERIFY2(samples.endsWith(native(text("/Trelio Frame Samples/"))), qPrintable(samples));
        const QString suiteFile = text("/Tolvan/Ostra Collection/OstraCollection.cfg");
        QCOMPARE(Location::getOstraUserConfigFileLocation(), userConfig + suiteFile);
        QCOMPARE(Location::getOstraGlobalConfigFileLocation(), suiteBase + suiteFile);
        const QString product = native(localData() + text("/Tolvan/Some Product/"));
        QCOMPARE(Location::appDataLocation(text("Some Product")), product);
        QVERIFY(!QFileInfo::exists(product));
        QCOMPARE(Location::cafDataPathOfVantora2(),
                 native(localData() + text("/Tolvan/Tolvan Vantora 2/Modules/")));
        const QString session = Location::sessionSingleAppDirectory();
        QVERIFY2(QFileInfo(session).isDir() && !session.endsWith(QLatin1Char('/')), qPrintable(session));
        const QString resources = native(QCoreApplication::applicationDirPath() + text("/Resources/"));
        for (const PathFunction function : {&Location::miniatureBlurShapesPath, &Location::framePackPath,
                                            &Location::texturesPackPath, &Location::defectsPackPath}) {
            QVERIFY2(function().startsWith(resources), qPrintable(function()));
        }
    }

    void newestSiblingProduct()
    {
        const char* const others[] = {"Tolvan Bright Lab 8", "Tolvan BrightLab 9", "Tolvan BrightLab 12"};
        const char* const products[] = {"Tolvan Bright Lab 9", "Tolvan BrightLab 10", "Tolvan BrightLab 11"};
        const auto newestAfter = [](const char* product) {
            QDir().mkpath(Location::appDataLocation(text(product)) + text("Modules"));
            return Location::cafDataPathOfBrightLabLatestVersion();
        };
        for (const char* product : others) {
            QCOMPARE(newestAfter(product), QString());
        }
        for (const char* product : products) {
            QCOMPARE(newestAfter(product),
                     native(localData() + text("/Tolvan/") + text(product) + text("/Modules/")));
        }
    }
};

TOLVAN_CORE_TEST_MAIN(StorageLocationTest)
#include "tst_storagelocation.moc"
