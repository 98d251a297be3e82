#pragma once

namespace TOLVAN_NAMESPACE
{

/// Gives the library's widgets their roles for assistive technology, until the library is unloaded. Without it
/// a message box has the role of any dialog, and its icon that of a plain widget. Main thread; may be called
/// again and again.
void installAccessibleRoles();

} // namespace TOLVAN_NAMESPACE
