#pragma once

#include <QString>

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

/// Folders that the system hands out, in the product's words.
enum class KnownFolder {
    LocalAppData,   ///< the user's data that stays on this machine
    ProgramData,    ///< data shared by all users of the machine
    CommonPictures, ///< pictures shared by all users of the machine
};

/// Path of a known folder, in the system's own form, without a separator at its end.
/// \return empty when the system does not tell
QString knownFolder(KnownFolder folder);

/// Base folder of the machine-wide suite configuration file, with forward slashes. On Windows a fixed text
/// that does not ask the system; elsewhere the first folder of XDG_CONFIG_DIRS.
QString machineWideConfigBase();

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
