#pragma once

#include "utilsdll_global.h"

#include <QString>

namespace TOLVAN_NAMESPACE
{

/// The single place that knows where the product keeps its files.
///
/// All operations are static. Folder paths end with a separator (sessionSingleAppDirectory() alone does not),
/// file paths do not. Paths have the system's own separators unless an operation says otherwise.
///
/// \par Created
/// Operations marked "created" make the folder, with all missing parents, on every call if it is not there. A
/// folder that can't be created is not reported; the path is returned all the same.
/// \par Cached
/// Operations marked "cached" compute their text on the first call and keep it until the library is unloaded.
/// A later change of the environment is not seen; a created folder is still checked on every call.
/// \par Systems
/// "Local application data" is the known folder of that name on Windows and `XDG_DATA_HOME` elsewhere;
/// "program data" is the first folder of `XDG_CONFIG_DIRS` elsewhere; the common pictures are `pictures`
/// under the first folder of `XDG_DATA_DIRS` elsewhere. A folder that the system does not tell gives an empty
/// path.
/// \par Threads
/// Every operation may be called from any thread. The preferences file path alone is a plain text without a
/// lock: set it once at start, before other threads read it.
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

    /// "Trelio Frame Samples" in the pictures of all users. Empty when the system does not tell that folder.
    static QString getSamplePicturesLocation();

    /// The machine-wide "Preferences.ini" under program data. Empty when the system does not tell that
    /// folder.
    static QString getDefaultPreferencesFilePath();
    /// Sets what getCurrentPreferencesFilePath() returns; the file is not looked at.
    static void setPreferencesFilePath(const QString& path);
    /// The path set with setPreferencesFilePath().
    /// \throws std::runtime_error "Preferences file path not set" while that is empty
    static QString getCurrentPreferencesFilePath();

    /// The temporary folder of the system, without a separator at its end.
    static QString sessionSingleAppDirectory();

    /// The user's suite configuration file, with forward slashes. Cached.
    static const QString& getOstraUserConfigFileLocation();
    /// The machine-wide suite configuration file, with forward slashes: a fixed place below "C:/ProgramData"
    /// on Windows that does not ask the system, below the first folder of `XDG_CONFIG_DIRS` elsewhere.
    /// Cached.
    static const QString& getOstraGlobalConfigFileLocation();

    /// "Resources/BlurShapes.lua" beside the program. Cached; the file is not looked for, the path is logged
    /// once.
    static QString miniatureBlurShapesPath();
    /// "Resources/Frames.lua" beside the program, like miniatureBlurShapesPath().
    static QString framePackPath();
    /// "Resources/Textures.lua" beside the program, like miniatureBlurShapesPath().
    static QString texturesPackPath();
    /// "Resources/Defects.lua" beside the program, like miniatureBlurShapesPath().
    static QString defectsPackPath();

    /// "Modules" of the newest installed sibling photo processor: version 11, then 10, then 9 (whose product
    /// name is written in two words). Empty when none of these folders can be read.
    static QString cafDataPathOfBrightLabLatestVersion();
    /// "Modules" of the second sibling product, whether it is installed or not.
    static QString cafDataPathOfVantora2();
};

} // namespace TOLVAN_NAMESPACE
