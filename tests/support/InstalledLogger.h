#pragma once

#include "RecordingLogger.h"

#include <utilsDll/LoggerStartup.h>

/// Inline, so that it uses the library that the test program links.
inline RecordingLogger& installedLogger()
{
    static RecordingLogger logger;
    static const ILoggerInterface* const taken = TOLVAN_NAMESPACE::initLoggerForUtilsDll(&logger, QString());
    Q_ASSERT(taken == &logger);
    Q_UNUSED(taken)
    return logger;
}
