#include "InstalledLogger.h"
#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/StorageLocation.h>

#include <QDir>
#include <QFileInfo>

#include <stdexcept>

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
        const QString programData = qEnvironmentVariable("XDG_CONFIG_DIRS");
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
        const QString folder = QCoreApplication::applicationDirPath() + text("/Resources/");
        const QString expected[] = {
            native(folder + text("BlurShapes.lua")), native(folder + text("Frames.lua")),
            native(folder + text("Textures.lua")), native(folder + text("Defects.lua"))};
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(Location::miniatureBlurShapesPath(), expected[0]);
            QCOMPARE(Location::framePackPath(), expected[1]);
            QCOMPARE(Location::texturesPackPath(), expected[2]);
            QCOMPARE(Location::defectsPackPath(), expected[3]);
        }
        const QString prefix = text("D `anonymous-namespace'::luaResourcePath: ");
        QCOMPARE(installedLogger().take(),
                 QStringList({prefix + text("Miniature blur shapes data path : ") + expected[0],
                              prefix + text("Frames data path : ") + expected[1],
                              prefix + text("Textures data path : ") + expected[2],
                              prefix + text("Defects data path : ") + expected[3]}));
    }

    void newestSiblingProduct_data()
    {
        QTest::addColumn<QStringList>("installed");
        QTest::addColumn<QString>("found");
        const QString v8 = text("Tolvan Bright Lab 8"), v9 = text("Tolvan Bright Lab 9"),
                      v10 = text("Tolvan BrightLab 10"), v11 = text("Tolvan BrightLab 11"),
                      v12 = text("Tolvan BrightLab 12");
        QTest::newRow("none") << QStringList() << QString();
        QTest::newRow("oldest") << QStringList({v9}) << v9;
        QTest::newRow("newest wins") << QStringList({v9, v10, v11}) << v11;
        QTest::newRow("second newest") << QStringList({v9, v10}) << v10;
        QTest::newRow("out of range") << QStringList({v8, v12, text("Tolvan BrightLab 9")}) << QString();
    }

    void newestSiblingProduct()
    {
        QFETCH(QStringList, installed);
        QFETCH(QString, found);
        for (const QString& product : installed) {
            QVERIFY(QDir().mkpath(Location::appDataLocation(product) + text("Modules")));
        }
        const QString path = Location::cafDataPathOfBrightLabLatestVersion();
        for (const QString& product : installed) {
            QVERIFY(QDir(Location::appDataLocation(product)).removeRecursively());
        }
        QCOMPARE(path, found.isEmpty() ? found
                                       : native(localData() + text("/Tolvan/") + found + text("/Modules/")));
    }
};

TOLVAN_CORE_TEST_MAIN(StorageLocationTest)
#include "tst_storagelocation.moc"
