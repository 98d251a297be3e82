#pragma once

#include "utilsdll_global.h"

#include <QString>

/// \file
/// The program that the library runs inside.

/// Name and version of running programs.
///
/// No function throws: a failure returns the empty name or the unknown version. Both functions may be called
/// from any thread.
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

/// Base file name of the running executable, extension included, at most 260 characters on Windows. On Unix
/// it is the name of the file that the process was started from. Empty if the system does not report it.
UTILSDLL_EXPORT QString currentProcessName();

/// File version of the executable of the first running process whose base name equals \a processName without
/// regard to case.
///
/// Blocks while it searches the first 1024 processes and loads the executable that it finds, which stays
/// loaded: call it once per run and keep the result. Processes that can't be opened are skipped.
/// \return the unknown version for an empty name, if no such process is found, if the file has no version
///         resource, and always on Unix, where executables carry none
UTILSDLL_EXPORT BinaryVersion binaryFileVersionByProcessName(const QString& processName);

} // namespace UtilsDll
