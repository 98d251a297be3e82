#pragma once

/// \file
/// The name under which host modules know the start-up, state and style functions of the library.

#include "ApplicationState.h"
#include "ApplicationStyle.h"
#include "LoggerStartup.h"
