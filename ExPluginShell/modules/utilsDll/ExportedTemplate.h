#pragma once

#include "utilsdll_global.h"

/// \file
/// Class templates that this library instantiates for all modules. Visual Studio exports such a class where it is
/// instantiated and refuses an exported declaration; GCC and Clang want the export at the declaration.
///
/// \code
/// extern template class UTILSDLL_TEMPLATE_DECLARED Singleton<CThing>; // in the header
/// template class UTILSDLL_TEMPLATE_DEFINED Singleton<CThing>;         // in one source
/// \endcode

/// \def UTILSDLL_TEMPLATE_DECLARED
/// Stands in the declaration of an instance that the library exports.
/// \def UTILSDLL_TEMPLATE_DEFINED
/// Stands in the instantiation itself.

#if defined(Q_CC_MSVC) && defined(UTILSDLL_LIBRARY)
#define UTILSDLL_TEMPLATE_DECLARED
#define UTILSDLL_TEMPLATE_DEFINED UTILSDLL_EXPORT
#else
#define UTILSDLL_TEMPLATE_DECLARED UTILSDLL_EXPORT
#define UTILSDLL_TEMPLATE_DEFINED
#endif
