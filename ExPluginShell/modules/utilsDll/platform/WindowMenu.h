#pragma once

#include <QtCore/qglobal.h>

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

/// Enables or disables the user's way to close a native window through its frame. A handle that is no window
/// is ignored.
void setCloseCommandEnabled(quint64 window, bool enable);

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
