#pragma once

#include <QString>

/// Writes every page as a picture below \a folder, which is made where it is missing, in a folder for each
/// language, beside them the whole page with all widgets in each language, and prints where they are. Leaves
/// the process in the last language, the stored one as it was. Needs an application object with widgets, but
/// no display.
/// \return whether every picture could be written
bool writeScreenshots(const QString& folder);
