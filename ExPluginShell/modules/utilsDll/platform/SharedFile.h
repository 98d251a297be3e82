#pragma once

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

/// Whether a file that could not be replaced may let itself be replaced a little later, because a reader has
/// it open. Blocks for the moment to wait.
/// \param attempt how often replacing it was tried before
/// \return on Windows false after about half a second; elsewhere always false, as readers are no obstacle
/// there
bool isWorthReplacingAgain(const QString& path, int attempt);

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
