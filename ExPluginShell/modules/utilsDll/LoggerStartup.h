#pragma once

#include "ILoggerInterface.h"
#include "utilsdll_global.h"

#include <QString>

/// \file
/// The start of the library's logging.

namespace TOLVAN_NAMESPACE
{

/// Gives the library its logger. The host calls this once, early, from its start-up thread; nothing is
/// locked.
///
/// - A second call, whatever its arguments, returns the logger of the first and changes nothing.
/// - With logging switched off in the settings (isLoggerEnabled()) there is no logger, not even a given one,
///   and no message of any kind.
/// - A given \a logger is taken as it is; its host has already called init() on it.
/// - Otherwise the logger library "LoggerDllTrelioFrame.dll" (the same file name on every system) is loaded
///   and stays loaded: from the folder of this library, else from the folder of the program, else from where
///   the system's loader looks. Its export "loggerInstance" gives the logger, which is started in
///   CStorageLocation::loggerFilesPath() at the level of getLogLevel(); where it writes is told on standard
///   output, and five start-up lines are logged.
///
/// \param logger the host's own logger, which stays owned by the host and has to live as long as the process,
///        or null
/// \param logName name of the log that the logger library opens
/// \return the logger of the library; null when logging is off, or when the logger library or its export is
///        missing or gives none, which is told on standard error
UTILSDLL_EXPORT ILoggerInterface* initLoggerForUtilsDll(ILoggerInterface* logger, const QString& logName);

} // namespace TOLVAN_NAMESPACE
