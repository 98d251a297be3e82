#pragma once

#include <utilsDll/ILoggerInterface.h>

#include "loggerdll_export.h"

/// The product's logger, found by its name "loggerInstance".
///
/// Returns the same object in every call, never null; the library owns it. It drops its lines until init() is
/// called. It must not be used after the library was unloaded; while the process ends it may be called and
/// writes its lines.
extern "C" LOGGERDLL_EXPORT ILoggerInterface* loggerInstance();
