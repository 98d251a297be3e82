#pragma once

#include <QString>

namespace TOLVAN_NAMESPACE::Platform
{

/// Full path of a module that this process has loaded.
/// \param baseName file name of the module, extension included
/// \return empty when no such module is loaded
QString loadedModulePath(const QString& baseName);

/// Folder that this library was loaded from, without a separator at its end; empty if the system does not
/// report it.
QString ownLibraryFolder();

} // namespace TOLVAN_NAMESPACE::Platform
