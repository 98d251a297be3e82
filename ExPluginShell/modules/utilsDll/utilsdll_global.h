#pragma once

/// \file
/// The export macro of UtilsDllTrelioFrame. Everything else in the library is hidden.

#include <QtCore/qglobal.h>

/// \def UTILSDLL_EXPORT
/// Marks what other modules may use.

#if defined(UTILSDLL_STATIC) // the objects are linked into the program itself (tests of internal units)
#define UTILSDLL_EXPORT
#elif defined(UTILSDLL_LIBRARY)
#define UTILSDLL_EXPORT Q_DECL_EXPORT
#else
#define UTILSDLL_EXPORT Q_DECL_IMPORT
#endif
