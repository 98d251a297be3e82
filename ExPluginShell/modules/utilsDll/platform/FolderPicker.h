#pragma once

#include <QString>

class QWidget;

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

/// Shows the product's folder picker and waits until it is closed. It lists the files that \a filter names,
/// under "Image Files", but choosing one never closes it: "Select Folder" returns the folder that is open.
/// GUI thread, one picker at a time.
/// \param parent  the window that is blocked meanwhile; may be null
/// \param caption title of the window; empty for the system's own
/// \param dir     folder to begin with; empty for the system's choice
/// \param filter  file patterns, separated by blanks or semicolons
/// \return the folder in the system's own form; empty when the picker was cancelled, a second one was asked
///         for, or \a dir is not there
QString pickFolder(QWidget* parent, const QString& caption, const QString& dir, const QString& filter);

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
