#pragma once

#include <QString>

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

/// Full path of a module that this process has loaded.
/// \param baseName file name of the module, extension included
/// \return empty when no such module is loaded
QString loadedModulePath(const QString& baseName);

/// Folder that this library was loaded from, without a separator at its end; empty when the system does not
/// tell.
QString ownLibraryFolder();

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
