#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace TOLVAN_NAMESPACE::Platform
{

/// Opens an existing file that other processes may read or replace at the same moment.
///
/// On Windows a file that is being replaced can't be opened for a moment: the function waits at most half a
/// second for it, and lets other programs read or replace the file. On Unix it is a plain open.
/// \param file a closed file with its name set
/// \return whether it is open; at once if another process is not the reason of the failure
bool openSharedFile(QFile& file, QIODevice::OpenMode mode);

/// Replaces a text file, or creates it, as FileReplacement does.
/// \param text UTF-8 with the line ends "\n"; the file gets the system's
/// \return whether the file holds the text
bool replaceSharedFile(const QString& path, const QByteArray& text);

} // namespace TOLVAN_NAMESPACE::Platform
