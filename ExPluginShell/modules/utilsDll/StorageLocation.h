#pragma once

#include "utilsdll_global.h"

#include <QString>

namespace TOLVAN_NAMESPACE
{

/// Paths of the product's files and folders.
///
/// All operations are static. Folder paths end with a separator (sessionSingleAppDirectory() alone does not),
/// file paths do not. Paths have the system's own separators unless an operation says otherwise.
///
/// \par Created
/// Operations marked "created" create the folder, with all missing parents, on every call if it does not
/// exist. The path is returned also if the folder can't be created.
/// \par Cached
/// Operations marked "cached" compute their text on the first call and keep it until the library is unloaded.
/// They do not see a later change of the environment; a created folder is checked on every call.
/// \par Systems
/// "Local application data", "program data" and the common pictures are known folders on Windows. On Unix
/// they are `XDG_DATA_HOME`, the last folder of `XDG_CONFIG_DIRS`, and `pictures` under the first folder of
/// `XDG_DATA_DIRS`. An operation returns an empty path if the system reports no such folder.
/// \par Threads
/// Every operation may be called from any thread. The preferences file path is a text without a lock: set it
/// once at start, before other threads read it.
class UTILSDLL_EXPORT CStorageLocation
{
public:
    /// Local application data / "Tolvan" / \a name, absolute. Nothing is created.
    static QString appDataLocation(const QString& name);

    /// The product's data folder, appDataLocation("Trelio Frame"). Created.
    static QString currentDataLocation();
    /// "DiskCache" in currentDataLocation(). Created, cached.
    static QString diskCacheLocation();
    /// "Facebook" in currentDataLocation(), where the social network's token lies. Created, cached.
    static QString cachedTokenFilePath();
    /// "PresetPack" in currentDataLocation(). Created, cached.
    static QString packUserStoragePath();
    /// "Favorite" in currentDataLocation(). Created, cached.
    static QString favoritePresetPath();
    /// "Modules" in currentDataLocation(), for calibration modules. Created, cached.
    static QString cafDataPath();
    /// "CrashReports" in currentDataLocation(). Created, cached.
    static QString crashFilesPath();
    /// "temp" in crashFilesPath(). Created, cached.
    static QString crashTempFilesPath();
    /// "Logs" in the product's data folder. Created, cached.
    static QString loggerFilesPath();

    /// "Trelio Frame Samples" in the pictures of all users. Empty if the system reports none.
    static QString getSamplePicturesLocation();

    /// The machine-wide "Preferences.ini" under program data. Empty if the system reports no such folder.
    static QString getDefaultPreferencesFilePath();
    /// Sets what getCurrentPreferencesFilePath() returns; the file need not exist.
    static void setPreferencesFilePath(const QString& path);
    /// The path set with setPreferencesFilePath().
    /// \throws std::runtime_error "Preferences file path not set" if that is empty
    static QString getCurrentPreferencesFilePath();

    /// The temporary folder of the system, without a separator at its end.
    static QString sessionSingleAppDirectory();

    /// The user's suite configuration file, with forward slashes. Cached.
    static const QString& getOstraUserConfigFileLocation();
    /// The machine-wide suite configuration file, with forward slashes. It lies below the fixed folder
    /// "C:/ProgramData" on Windows, and below the last folder of `XDG_CONFIG_DIRS` on Unix. Cached.
    static const QString& getOstraGlobalConfigFileLocation();
    /// Creates the folder of the user's suite configuration file, with all missing parents. Call it before the
    /// first write: CSettings does not create the folder.
    /// \return whether the folder exists afterwards
    static bool ensureOstraUserConfigFolder();
    /// Like ensureOstraUserConfigFolder(), for the machine-wide file, whose folder most users can't create.
    static bool ensureOstraGlobalConfigFolder();

    /// "Resources/BlurShapes.lua" beside the program. Cached. The file need not exist; the path is logged
    /// once.
    static QString miniatureBlurShapesPath();
    /// "Resources/Frames.lua" beside the program, like miniatureBlurShapesPath().
    static QString framePackPath();
    /// "Resources/Textures.lua" beside the program, like miniatureBlurShapesPath().
    static QString texturesPackPath();
    /// "Resources/Defects.lua" beside the program, like miniatureBlurShapesPath().
    static QString defectsPackPath();

    /// "Modules" of the newest installed sibling photo processor: version 11, then 10, then 9 (whose product
    /// name is written in two words). Empty if none of these folders can be read.
    static QString cafDataPathOfBrightLabLatestVersion();
    /// "Modules" of the second sibling product, whether it is installed or not.
    static QString cafDataPathOfVantora2();
};

} // namespace TOLVAN_NAMESPACE
