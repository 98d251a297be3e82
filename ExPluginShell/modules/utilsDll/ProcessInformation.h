#pragma once

#include "utilsdll_global.h"

#include <QString>

/// \file
/// The program that the library runs inside.

/// What the host plug-in wants to know of the program that it runs inside.
///
/// Nothing here reports or throws: whatever fails gives the empty name or the unknown version. Both functions
/// may be called from any thread.
namespace UtilsDll
{

/// File version of an executable. All zeros with an empty text means "unknown".
struct BinaryVersion {
    QString text;         ///< left empty by binaryFileVersionByProcessName()
    quint32 major = 0;    ///< high 16 bits of the most significant word
    quint32 minor = 0;    ///< low 16 bits of the most significant word
    quint32 build = 0;    ///< high 16 bits of the least significant word
    quint32 revision = 0; ///< low 16 bits of the least significant word
};

/// Base file name of the running executable, extension included, at most 260 characters on Windows. Elsewhere
/// the name is that of the file the process was started from. Empty when the system does not tell.
UTILSDLL_EXPORT QString currentProcessName();

/// File version of the executable of the first running process whose base name equals \a processName without
/// regard to case.
///
/// Blocks while it walks all processes (at most the first 1024) and loads the executable that it finds, which
/// stays loaded: ask once per run and keep the answer. Processes that may not be opened are skipped.
/// \return the unknown version for an empty name, when no such process is found, when the file has no version
///        resource, and always on systems whose executables carry none
UTILSDLL_EXPORT BinaryVersion binaryFileVersionByProcessName(const QString& processName);

} // namespace UtilsDll
