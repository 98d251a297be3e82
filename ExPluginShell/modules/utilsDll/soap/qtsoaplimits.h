#pragma once

#include "../utilsdll_global.h"

#include <QtGlobal>

namespace TOLVAN_NAMESPACE
{

/// \brief What a document may ask of the process that reads it; a larger one is refused with an error.
///
/// The defaults are far above what services send. With them, reading any document takes less than 256 MB of
/// memory. The limits of one client are set with QtSoapMessage::setLimits() and
/// QtSoapHttpTransport::setLimits(). Nesting deeper than 256 levels is refused under any limits.
struct QtSoapLimits {
    qint64 documentBytes = 64 * 1024 * 1024; ///< size of the document, after unpacking
    qint64 memoryBytes = 208 * 1024 * 1024;  ///< memory for the document and for the values read from it
    int elements = 1 << 21;                  ///< number of elements, those of resolved references included
};

} // namespace TOLVAN_NAMESPACE
