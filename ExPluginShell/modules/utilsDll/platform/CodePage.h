#pragma once

#include <QByteArray>
#include <QString>

namespace TOLVAN_NAMESPACE::Platform
{

/// Text in the code page that programs of this system use for file names in archives: on Windows the OEM code page
/// of the user's system.
/// \return null on Unix, which has none, and for bytes that the code page does not have
QString fromSystemCodePage(const QByteArray& bytes);

} // namespace TOLVAN_NAMESPACE::Platform
