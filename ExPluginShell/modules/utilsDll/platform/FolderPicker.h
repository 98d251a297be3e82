#pragma once

#include <QString>

class QWidget;

namespace TOLVAN_NAMESPACE::Platform
{

/// Shows the product's folder picker and waits until it is closed. It lists the files that match \a filter
/// under "Image Files". Choosing a file never closes it; "Select Folder" returns the folder that is open.
/// Main thread, one picker at a time.
/// \param parent  the window that takes no input meanwhile; may be null
/// \param caption title of the window; empty for the system's own
/// \param dir     the folder shown first; empty for the system's choice
/// \param filter  file patterns, separated by blanks or semicolons
/// \return the folder with the system's own separators; empty if the picker was cancelled, one is open
///         already, or \a dir does not exist
QString pickFolder(QWidget* parent, const QString& caption, const QString& dir, const QString& filter);

} // namespace TOLVAN_NAMESPACE::Platform
