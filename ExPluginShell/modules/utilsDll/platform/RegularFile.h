#pragma once

class QFile;

namespace TOLVAN_NAMESPACE::Platform
{

/// Opens a file for reading, without a buffer, if it is a regular file. Never waits: opening a pipe would, until
/// another process writes to it.
/// \return whether the file is open
bool openRegularFile(QFile& file);

} // namespace TOLVAN_NAMESPACE::Platform
