#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

/// Opens an existing file that other processes may read or replace at the same moment.
///
/// On Windows a file that is being replaced can't be opened for a moment: this waits for it, at most half a
/// second, and keeps nobody else from reading or replacing the file. Elsewhere a plain open.
/// \param file a closed file with its name set
/// \return whether it is open; at once when the failure is not another process's doing
bool openSharedFile(QFile& file, QIODevice::OpenMode mode);

/// Replaces a file whole, or makes it: who reads it, also after a crash, finds the old text or the new.
///
/// The text goes to a file beside it that takes its place; where the folder refuses such a file, the text is
/// written in place. On Windows a file that others have open can't be replaced: this waits for them, at most
/// half a second.
/// \param text UTF-8 with the line ends "\n"; the file gets the system's
/// \return whether the file holds the text
bool replaceSharedFile(const QString& path, const QByteArray& text);

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
