#pragma once

#include "RecordingLogger.h"

#include <utilsDll/LoggerStartup.h>

/// In the header, so that it reaches the library in the way the test program links it.
inline RecordingLogger& installedLogger()
{
    static RecordingLogger logger;
    static const ILoggerInterface* const taken = TOLVAN_NAMESPACE::initLoggerForUtilsDll(&logger, QString());
    Q_ASSERT(taken == &logger);
    Q_UNUSED(taken)
    return logger;
}
