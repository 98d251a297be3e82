#pragma once

#include <QtGlobal>

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

/// Looks up what showFatalMessage() will need, while the process can still afford it. Main thread.
void prepareFatalMessages();

/// Shows a modal error box with one button and returns when the user has closed it. Allocates nothing in this
/// process and uses no widget; may be called from any thread.
///
/// Windows: the system's message box. Elsewhere: the message program that prepareFatalMessages() found; when
/// there is none, or it cannot be run, title and text go to standard error.
/// \param owner native handle of the window that the box belongs to, 0 for none; used on Windows alone
void showFatalMessage(const ushort* text, const ushort* title, quintptr owner);

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
