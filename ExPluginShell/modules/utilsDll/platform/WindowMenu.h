#pragma once

#include <QtCore/qglobal.h>

namespace TOLVAN_NAMESPACE::Platform
{

/// Enables or disables the close command in the frame of a native window. An invalid handle is ignored.
void setCloseCommandEnabled(quint64 window, bool enable);

} // namespace TOLVAN_NAMESPACE::Platform
