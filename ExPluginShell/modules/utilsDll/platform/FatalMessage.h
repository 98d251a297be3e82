#pragma once

#include <QtGlobal>

namespace TOLVAN_NAMESPACE::Platform
{

/// Prepares what showFatalMessage() needs, while memory can still be allocated. Main thread.
void prepareFatalMessages();

/// Shows a modal error box with one button and returns when the user has closed it. Allocates no memory in
/// this process and uses no widget; may be called from any thread.
///
/// On Windows this is the system's message box. On Unix it is the box of the message program that
/// prepareFatalMessages() found, if it found one; title and text are also written to standard error.
/// \param text  the message, zero-terminated UTF-16
/// \param title caption of the box, zero-terminated UTF-16
/// \param owner native handle of the window that owns the box, 0 for none; used on Windows only
void showFatalMessage(const ushort* text, const ushort* title, quintptr owner);

} // namespace TOLVAN_NAMESPACE::Platform
