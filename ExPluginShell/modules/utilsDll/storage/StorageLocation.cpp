#include "StorageLocation.h"

#include "frame/Logging.h"
#include "platform/KnownFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <stdexcept>

namespace TOLVAN_NAMESPACE
{

namespace
{

const QString companyFolder = QStringLiteral("Tolvan");
const QString productFolder = QStringLiteral("Trelio Frame");
const QString modulesFolder = QStringLiteral("Modules");
const QString suiteConfigFile = QStringLiteral("/Tolvan/Ostra Collection/OstraCollection.cfg");

// Locations in the two assertion reports, which are fixed texts.
constexpr int emptyFileNameLine = 70;
constexpr int emptyDescriptionLine = 73;

QString& preferencesFilePath()
{
    static QString path;
    return path;
}

/// Known folder / company folder / name; empty if the system reports no such folder.
QString companyPath(Platform::KnownFolder folder, const QString& name)
{
    const QString base = Platform::knownFolder(folder);
    return base.isEmpty() ? QString() : base + QDir::separator() + companyFolder + QDir::separator() + name;
}

QString asFolder(const QString& path)
{
    return path + QDir::separator();
}

QString nativeAbsolute(const QString& path)
{
    return path.isEmpty() ? QString() : QDir::toNativeSeparators(QDir(path).absolutePath());
}

/// Creates the folder with all missing parents if it does not exist. \return \a folder
QString ensureFolder(const QString& folder)
{
    if (!folder.isEmpty() && !QDir(folder).exists()) {
        QDir().mkpath(folder);
    }
    return folder;
}

QString inCurrentData(const QString& name)
{
    return asFolder(CStorageLocation::currentDataLocation() + name);
}

/// "Modules" of a sibling product; empty if its folder is unknown.
QString modulesOf(const QString& product)
{
    const QString data = CStorageLocation::appDataLocation(product);
    return data.isEmpty() ? data : asFolder(data + modulesFolder);
}

QString luaResourcePath(const QString& fileName, const QString& description)
{
    const char* const function = "`anonymous-namespace'::luaResourcePath";
    if (fileName.isEmpty()) {
        Logging::reportAssertion(function, "StorageLocation", emptyFileNameLine);
    }
    if (description.isEmpty()) {
        Logging::reportAssertion(function, "StorageLocation", emptyDescriptionLine);
    }
    const QString path = QDir::toNativeSeparators(QDir::cleanPath(
        asFolder(asFolder(QCoreApplication::applicationDirPath()) + QStringLiteral("Resources")) + fileName));
    UTILSDLL_LOG(LogLevel::Debug, function) << description << " : " << path;
    return path;
}

} // namespace

QString CStorageLocation::appDataLocation(const QString& name)
{
    const QString path = nativeAbsolute(companyPath(Platform::KnownFolder::LocalAppData, name));
    return path.isEmpty() ? path : asFolder(path);
}

QString CStorageLocation::currentDataLocation()
{
    return ensureFolder(appDataLocation(productFolder));
}

QString CStorageLocation::diskCacheLocation()
{
    static const QString path = inCurrentData(QStringLiteral("DiskCache"));
    return ensureFolder(path);
}

QString CStorageLocation::cachedTokenFilePath()
{
    static const QString path = inCurrentData(QStringLiteral("Facebook"));
    return ensureFolder(path);
}

QString CStorageLocation::packUserStoragePath()
{
    static const QString path = inCurrentData(QStringLiteral("PresetPack"));
    return ensureFolder(path);
}

QString CStorageLocation::favoritePresetPath()
{
    static const QString path = inCurrentData(QStringLiteral("Favorite"));
    return ensureFolder(path);
}

QString CStorageLocation::cafDataPath()
{
    static const QString path = inCurrentData(modulesFolder);
    return ensureFolder(path);
}

QString CStorageLocation::crashFilesPath()
{
    static const QString path = inCurrentData(QStringLiteral("CrashReports"));
    return ensureFolder(path);
}

QString CStorageLocation::crashTempFilesPath()
{
    static const QString path = asFolder(crashFilesPath() + QStringLiteral("temp"));
    return ensureFolder(path);
}

QString CStorageLocation::loggerFilesPath()
{
    static const QString path = asFolder(QDir::toNativeSeparators(
        companyPath(Platform::KnownFolder::LocalAppData, asFolder(productFolder) + QStringLiteral("Logs"))));
    return ensureFolder(path);
}

QString CStorageLocation::getSamplePicturesLocation()
{
    QString path = Platform::knownFolder(Platform::KnownFolder::CommonPictures);
    if (path.isEmpty()) {
        return path;
    }
    if (!path.endsWith(QDir::separator())) {
        path += QDir::separator();
    }
    return asFolder(path + QStringLiteral("Trelio Frame Samples"));
}

QString CStorageLocation::getDefaultPreferencesFilePath()
{
    const QString folder = companyPath(Platform::KnownFolder::ProgramData, productFolder);
    return folder.isEmpty() ? folder
                            : QDir::toNativeSeparators(
                                  QDir::cleanPath(asFolder(folder) + QStringLiteral("Preferences.ini")));
}

void CStorageLocation::setPreferencesFilePath(const QString& path)
{
    preferencesFilePath() = path;
}

QString CStorageLocation::getCurrentPreferencesFilePath()
{
    if (preferencesFilePath().isEmpty()) {
        throw std::runtime_error("Preferences file path not set");
    }
    return preferencesFilePath();
}

QString CStorageLocation::sessionSingleAppDirectory()
{
    return QDir(QDir::tempPath()).absolutePath();
}

const QString& CStorageLocation::getOstraUserConfigFileLocation()
{
    static const QString path =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + suiteConfigFile;
    return path;
}

const QString& CStorageLocation::getOstraGlobalConfigFileLocation()
{
    static const QString path = Platform::machineWideConfigBase() + suiteConfigFile;
    return path;
}

bool CStorageLocation::ensureOstraUserConfigFolder()
{
    return QDir(ensureFolder(QFileInfo(getOstraUserConfigFileLocation()).path())).exists();
}

bool CStorageLocation::ensureOstraGlobalConfigFolder()
{
    return QDir(ensureFolder(QFileInfo(getOstraGlobalConfigFileLocation()).path())).exists();
}

QString CStorageLocation::miniatureBlurShapesPath()
{
    static const QString path =
        luaResourcePath(QStringLiteral("BlurShapes.lua"), QStringLiteral("Miniature blur shapes data path"));
    return path;
}

QString CStorageLocation::framePackPath()
{
    static const QString path =
        luaResourcePath(QStringLiteral("Frames.lua"), QStringLiteral("Frames data path"));
    return path;
}

QString CStorageLocation::texturesPackPath()
{
    static const QString path =
        luaResourcePath(QStringLiteral("Textures.lua"), QStringLiteral("Textures data path"));
    return path;
}

QString CStorageLocation::defectsPackPath()
{
    static const QString path =
        luaResourcePath(QStringLiteral("Defects.lua"), QStringLiteral("Defects data path"));
    return path;
}

QString CStorageLocation::cafDataPathOfBrightLabLatestVersion()
{
    const QString candidates[] = {
        modulesOf(QStringLiteral("Tolvan BrightLab %1").arg(11)),
        modulesOf(QStringLiteral("Tolvan BrightLab %1").arg(10)),
        modulesOf(QStringLiteral("Tolvan Bright Lab %1").arg(9)),
    };
    for (const QString& candidate : candidates) {
        if (!candidate.isEmpty() && QDir(candidate).isReadable()) {
            return candidate;
        }
    }
    return {};
}

QString CStorageLocation::cafDataPathOfVantora2()
{
    return modulesOf(QStringLiteral("Tolvan Vantora 2"));
}

} // namespace TOLVAN_NAMESPACE
