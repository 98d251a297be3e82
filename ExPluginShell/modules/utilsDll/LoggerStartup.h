#pragma once

#include "ILoggerInterface.h"
#include "utilsdll_global.h"

#include <QString>

/// \file
/// The start of the library's logging.

namespace TOLVAN_NAMESPACE
{

/// Sets the logger of the library. The host calls this once, early, on its start-up thread; nothing is
/// locked.
///
/// - A second call returns the logger of the first and changes nothing.
/// - If isLoggerEnabled() is false there is no logger, not even a given one, and nothing is printed.
/// - A given \a logger is used unchanged; its host has already called init() on it.
/// - Otherwise the logger library "LoggerDllTrelioFrame.dll" (the same file name on every system) is loaded
///   and stays loaded: from the folder of this library, else from the folder of the program, else from where
///   the system's loader looks. Its export "loggerInstance" returns the logger, which is started in
///   CStorageLocation::loggerFilesPath() at the level of getLogLevel(). The folder and the name are printed to
///   standard output, and five start-up lines are logged.
///
/// \param logger the host's own logger, or null; the host keeps the ownership, and the logger has to live as
///        long as the process
/// \param logName name of the log that the logger library opens
/// \return the logger of the library; null if logging is switched off, and if the logger library or its
///         export is missing, returns null or throws, which is printed to standard error
UTILSDLL_EXPORT ILoggerInterface* initLoggerForUtilsDll(ILoggerInterface* logger, const QString& logName);

} // namespace TOLVAN_NAMESPACE
