#pragma once

#include <QStringList>

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

/// Opens the system's file browser on \a folder with \a files (existing ones, with their full paths)
/// selected; does nothing when no file is left to show. Elsewhere than on Windows the file manager is asked
/// over D-Bus and waited for no longer than a second; without one the folder is opened.
/// \return false when the system's shell does not know the folder
bool selectInFileBrowser(const QString& folder, const QStringList& files);

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
