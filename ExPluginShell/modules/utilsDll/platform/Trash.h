#pragma once

#include <QString>

namespace TOLVAN_NAMESPACE::Platform
{

/// Moves a file or a folder to a place from which the system's own programs can restore it, without asking.
/// On Windows this is the recycle bin, and \a path is passed to the shell unchanged. On Unix it is the
/// desktop's trash: that of the user, or that of the file system which holds the file.
/// \param place receives the path of the file in the recycle bin; empty if the system does not report it
/// \return whether the file was moved
bool moveToRecycleBin(const QString& path, QString* place = nullptr);

/// Moves a file or a folder from the recycle bin to \a path, where nothing may exist; missing folders are created.
/// \param place the path that moveToRecycleBin() gave
/// \return whether the file was moved
bool restoreFromRecycleBin(const QString& place, const QString& path);

} // namespace TOLVAN_NAMESPACE::Platform
