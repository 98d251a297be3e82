#pragma once

#include "utilsdll_global.h"

#include <QString>
#include <QStringList>

class QApplication;
class QWidget;

/// \file
/// The look of the product: style sheets, fonts and icon of the application, and two helpers for single
/// widgets.
///
/// A host does this once at start-up; the style may be set before or after the style sheet:
/// \code
/// using namespace TOLVAN_NAMESPACE;
/// loadFonts();
/// loadAppLogoIcon();
/// QApplication::setStyle(new CustomTolvanAppStyle);
/// setPredefinedAppStyleSheet(QString(), qApp);
/// \endcode
/// User-interface thread only. Nothing is thrown, and nothing is said of files that can't be read.

namespace TOLVAN_NAMESPACE
{

/// Puts style-sheet files together, in their order and with nothing between them, and makes the result the
/// application's style sheet. Blocks while the files are read and every widget takes on the new sheet.
///
/// The files are UTF-8, with or without a byte order mark. An empty path, and what can't be opened as a file,
/// is skipped; when that leaves nothing, the application's style sheet is cleared.
/// \param files paths of files or resources; later rules win over earlier ones of the same specificity
/// \param app   stays owned by the caller
/// \return the paths that were read, in order. Empty, with a failed assertion reported and the style sheet
///         left as it is, when \a app is null or \a files is empty
UTILSDLL_EXPORT QStringList setAppStyleSheet(const QStringList& files, QApplication* app);

/// Gives the application the product's style sheet: \a mainSheet, or ":/qss/custom.qss" when that is empty,
/// then the sheets of sliders, settings panels and message boxes, and last the fonts of ":/qss/win.qss", on
/// every system. See setAppStyleSheet() for files that are missing and for a null \a app.
UTILSDLL_EXPORT void setPredefinedAppStyleSheet(const QString& mainSheet, QApplication* app);

/// Registers the nine fonts under ":/fonts/" with the font database; one that can't be read is skipped. Each
/// call registers them anew, so call it once.
UTILSDLL_EXPORT void loadFonts();

/// Makes the product's logo, in eight sizes from 16 to 1024 pixels, the icon of the application's windows.
/// \return false, with the icon left as it is, when none of the eight images under
///         ":/icons/app_icon_trelioapp/" could be read
UTILSDLL_EXPORT bool loadAppLogoIcon();

/// Makes the style sheet look at \a widget again. Call it after a change of something that a selector of the
/// sheet tests, such as the object name or a dynamic property; children are not looked at.
UTILSDLL_EXPORT void reapplyWidgetQss(QWidget& widget);

/// Makes everything behind the text of \a widget transparent: the colours of its palette for windows,
/// buttons, bases and the shades between light and shadow, in every colour group. Text and highlight colours
/// stay as they are. A null \a widget is ignored.
UTILSDLL_EXPORT void setWidgetFullTransparency(QWidget* widget);

} // namespace TOLVAN_NAMESPACE
