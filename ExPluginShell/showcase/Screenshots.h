#pragma once

#include <QString>

/// Lets every page do its work and writes it as a picture below \a folder, which is made where it is missing, in
/// a folder for each language. Beside them: the whole page with all widgets in each language, and the folder
/// "2x" with everything at double size. Prints the path. Leaves the process in the last language, the stored
/// one as it was. Needs an application object with widgets, but no display.
/// \return whether every picture could be written
bool writeScreenshots(const QString& folder);
