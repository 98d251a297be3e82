#pragma once

#include <QString>

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

/// Moves a file or a folder where the user can restore it with the system's own programs. Asks nothing and
/// shows nothing. On Windows the recycle bin, and \a path goes to the shell as it is; elsewhere the desktop's
/// trash: that of the user, or that of the file system which holds the file.
/// \return whether the file is in the recycle bin now; otherwise it is where it was
bool moveToRecycleBin(const QString& path);

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
