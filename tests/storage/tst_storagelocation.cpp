#include "InstalledLogger.h"
#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/StorageLocation.h>

#include <QDir>
#include <QFileInfo>

#include <stdexcept>
#include <tuple>

using Location = TOLVAN_NAMESPACE::CStorageLocation;
using PathFunction = QString (*)();
Q_DECLARE_METATYPE(PathFunction)

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

    void createdFolders_data()
    {
        QTest::addColumn<PathFunction>("path");
        QTest::addColumn<QString>("relative");
        const auto row = [](const char* relative, PathFunction path) {
            QTest::newRow(relative) << path << text(relative);
        };
        row("", &Location::currentDataLocation);
        row("DiskCache/", &Location::diskCacheLocation);
        row("Facebook/", &Location::cachedTokenFilePath);
        row("PresetPack/", &Location::packUserStoragePath);
        row("Favorite/", &Location::favoritePresetPath);
        row("Modules/", &Location::cafDataPath);
        row("CrashReports/", &Location::crashFilesPath);
        row("CrashReports/temp/", &Location::crashTempFilesPath);
        row("Logs/", &Location::loggerFilesPath);
    }

    void createdFolders()
    {
        QFETCH(PathFunction, path);
        QFETCH(QString, relative);
        const QString expected = native(localData() + text("/Tolvan/Trelio Frame/") + relative);
        QCOMPARE(path(), expected);
        QVERIFY(QFileInfo(expected).isDir());
        QVERIFY(QDir(expected).removeRecursively());
        QCOMPARE(path(), expected); // cached or not, the folder is there again
        QVERIFY(QFileInfo(expected).isDir());
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
    }

    void preferencesFilePath()
    {
        QVERIFY_EXCEPTION_THROWN(Location::getCurrentPreferencesFilePath(), std::runtime_error);
        Location::setPreferencesFilePath(text("p.ini"));
        QCOMPARE(Location::getCurrentPreferencesFilePath(), text("p.ini"));
        Location::setPreferencesFilePath(text(""));
        QVERIFY_EXCEPTION_THROWN(Location::getCurrentPreferencesFilePath(), std::runtime_error);
    }

    void scriptResourcesAreLoggedOnce()
    {
        installedLogger().take();
        const std::tuple<PathFunction, const char*, const char*> resources[] = {
            {&Location::miniatureBlurShapesPath, "BlurShapes", "Miniature blur shapes"},
            {&Location::framePackPath, "Frames", "Frames"},
            {&Location::texturesPackPath, "Textures", "Textures"},
            {&Location::defectsPackPath, "Defects", "Defects"}};
        for (const auto& [function, file, description] : resources) {
            const QString path = native(QCoreApplication::applicationDirPath() + text("/Resources/") +
                                        text(file) + text(".lua"));
            QCOMPARE(function(), path);
            QCOMPARE(function(), path);
            QCOMPARE(installedLogger().take(),
                     QStringList(text("D `anonymous-namespace'::luaResourcePath: ") + text(description) +
                                 text(" data path : ") + path));
        }
    }

    void newestSiblingProduct()
    {
        QCOMPARE(Location::cafDataPathOfBrightLabLatestVersion(), QString());
        const auto install = [](const char* product) {
            QVERIFY(QDir().mkpath(Location::appDataLocation(text(product)) + text("Modules")));
        };
        for (const char* foreign : {"Tolvan Bright Lab 8", "Tolvan BrightLab 9", "Tolvan BrightLab 12"}) {
            install(foreign);
        }
        QCOMPARE(Location::cafDataPathOfBrightLabLatestVersion(), QString());
        for (const char* product : {"Tolvan Bright Lab 9", "Tolvan BrightLab 10", "Tolvan BrightLab 11"}) {
            install(product);
            QCOMPARE(Location::cafDataPathOfBrightLabLatestVersion(),
                     native(localData() + text("/Tolvan/") + text(product) + text("/Modules/")));
        }
    }
};

TOLVAN_CORE_TEST_MAIN(StorageLocationTest)
#include "tst_storagelocation.moc"
