#pragma once

#include <QStringList>

namespace TOLVAN_NAMESPACE::Platform
{

/// Opens the system's file browser on \a folder with \a files selected. They are full paths of existing files;
/// without any, nothing opens. On Unix the file manager is asked over D-Bus and waited for at most a second;
/// without one the folder is opened.
/// \return false if the Windows shell does not find the folder
bool selectInFileBrowser(const QString& folder, const QStringList& files);

} // namespace TOLVAN_NAMESPACE::Platform
