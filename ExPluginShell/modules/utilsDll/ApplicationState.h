#pragma once

#include "utilsdll_global.h"

#include <QString>

/// \file
/// Small pieces of state that the plug-in, its host connector and its crash reporter share.
///
/// Each call constructs a CSettings of its own, so the values follow the temporary mode unless a function's
/// description says otherwise. No function reports a failure: a store that can't be written loses the value.
/// Call them on the main thread; the values are not locked between processes.

namespace TOLVAN_NAMESPACE
{

/// Whether this user never started the product: there is no value under "app_launched".
UTILSDLL_EXPORT bool isFirstLaunch();
/// Stores that the product was started ("app_launched" = 1).
UTILSDLL_EXPORT void setNotFirstLaunch();

/// Mode of the last start ("app_launchMode"); empty if there was none.
UTILSDLL_EXPORT QString getLastLaunchMode();
/// Stores the mode of this start.
UTILSDLL_EXPORT void setLastLaunchMode(const QString& mode);

/// Counts one more start of a risky phase, under "crashCounter_" and the mode of setLastLaunchMode(). The
/// host resets the counter when the phase ended well; its value is then the number of abnormal ends in a row.
UTILSDLL_EXPORT void incrementCrashCounter();
/// Number of abnormal ends in a row of \a mode; 0 if there is no counter.
UTILSDLL_EXPORT int crashCounterForPlugin(const QString& mode);
/// Sets the counter of \a mode to 0 and removes it.
UTILSDLL_EXPORT void crashCounterReset(const QString& mode);

/// Identifier of this user, a UUID without braces (36 characters), created by the first call and kept in the
/// company's own store, never in temporary settings. Processes that call it at the same time get the same
/// identifier; the first call waits at most five seconds for them. If the store can't be written, all calls
/// of one process return the same identifier. May be called from any thread.
UTILSDLL_EXPORT QString getUserID();

/// Always "Tolvan"; the text stored by setResellerID() is not read.
UTILSDLL_EXPORT QString getResellerID();
/// Stores \a id under "resellerId", for other programs.
UTILSDLL_EXPORT void setResellerID(const QString& id);

/// Lowest level letter that is logged ("loggerLevel"); "D" if none is stored.
UTILSDLL_EXPORT QString getLogLevel();
/// Stores the log level.
UTILSDLL_EXPORT void setLogLevel(const QString& level);
/// Whether logging is switched on: false only for a stored "0" under "loggerEnabled".
UTILSDLL_EXPORT bool isLoggerEnabled();
/// Stores the logging switch, as the text "1" or "0".
UTILSDLL_EXPORT void setLoggerEnabled(bool enabled);

/// Whether results are saved as actions: false only for a stored text "0" under "UseActionSave". A missing
/// value means true, and so does a stored boolean false.
UTILSDLL_EXPORT bool useActionSave();

/// Always true; the value stored by setStatisticSent() is not read.
UTILSDLL_EXPORT bool isStatisticSent();
/// Writes the permission for statistics to the machine-wide suite configuration file: group
/// "Instrumentation", key "AllowSending", type "bool". A failure is logged.
UTILSDLL_EXPORT void setStatisticSent(bool allowed);

/// Whether crash reports may be sent: false only for a stored "0" under "TolvanSentCrashReport".
UTILSDLL_EXPORT bool crashReportSendingAllowed();
/// Stores the permission for crash reports, as the text "1" or "0".
UTILSDLL_EXPORT void allowCrashReportSending(bool allowed);
/// Runs the companion program "CrashSender" and blocks until it ends. The system's search path is used. Its
/// exit code, or that it is missing, is not reported.
UTILSDLL_EXPORT void startCrashSender();

/// Folder of the Qt plug-ins that belong to the product. The first non-empty result is kept for the life of
/// the process; later calls return it for every argument.
/// \param fromConnector true for the folder of the loaded connector module (native separators, one at the
///        end), false for the folder of the program (no separator at the end)
/// \return empty if \a fromConnector is true and the connector module is not loaded
UTILSDLL_EXPORT QString getQtPluginsDir(bool fromConnector);

} // namespace TOLVAN_NAMESPACE
