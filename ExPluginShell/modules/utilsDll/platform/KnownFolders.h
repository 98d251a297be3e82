#pragma once

#include <QString>

namespace TOLVAN_NAMESPACE::Platform
{

/// Folders that the system assigns.
enum class KnownFolder {
    LocalAppData,   ///< the user's data that stays on this machine
    ProgramData,    ///< data shared by all users of the machine
    CommonPictures, ///< pictures shared by all users of the machine
};

/// Path of a known folder, in the system's own form, without a separator at its end.
/// \return empty if the system reports no such folder
QString knownFolder(KnownFolder folder);

/// Base folder of the machine-wide suite configuration file, with forward slashes. On Windows it is a fixed
/// text that does not ask the system; on Unix it is the last folder of XDG_CONFIG_DIRS.
QString machineWideConfigBase();

} // namespace TOLVAN_NAMESPACE::Platform
