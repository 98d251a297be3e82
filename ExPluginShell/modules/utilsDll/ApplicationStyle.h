#pragma once

#include "utilsdll_global.h"

#include <QString>
#include <QStringList>

class QApplication;
class QWidget;

/// \file
/// The look of the product: style sheets, fonts and icon of the application, and two functions for single
/// widgets.
///
/// A host calls these once at start-up. The style may be set before or after the style sheet:
/// \code
/// using namespace TOLVAN_NAMESPACE;
/// loadFonts();
/// loadAppLogoIcon();
/// QApplication::setStyle(new CustomTolvanAppStyle);
/// setPredefinedAppStyleSheet(QString(), qApp);
/// \endcode
/// \par Before the application object
/// So that everything is sharp on screens with a scale, also with one like 125 or 150 percent, a host sets these
/// before it makes its QApplication:
/// \code
/// QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
/// QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
/// QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
/// \endcode
/// A plug-in inside a host that has made its application object already takes over the host's choice.
///
/// \par Text size
/// The sheets give font sizes in points, so texts follow the system's text size (its logical dots per inch).
/// Layouts of the library's dialogs adapt to it.
///
/// \par Contrast
/// Each of the sheets' 28 colours has a counterpart for high contrast, see setAppStyleSheetWithContrast().
///
/// Main thread only. Nothing is thrown. Files that can't be read are skipped without a message.

namespace TOLVAN_NAMESPACE
{

/// Concatenates style-sheet files, in their order and with nothing between them, and makes the result the
/// application's style sheet. Blocks while the files are read and every widget is restyled.
///
/// The files are UTF-8, with or without a byte order mark. Empty paths and files that can't be opened are
/// skipped. If nothing could be read, the application's style sheet is cleared.
/// \param files paths of files or resources; later rules win over earlier ones of the same specificity
/// \param app   stays owned by the caller
/// \return the paths that were read, in order. If \a app is null or \a files is empty, the list is empty, an
///         assertion failure is reported and the style sheet stays as it is
UTILSDLL_EXPORT QStringList setAppStyleSheet(const QStringList& files, QApplication* app);

/// Sets the product's style sheet. It consists of \a mainSheet, the sheets for sliders, settings panels and
/// message boxes, and last the fonts of ":/qss/win.qss", on every system. See setAppStyleSheet() for missing
/// files and for a null \a app.
/// \param mainSheet path of the first sheet; ":/qss/custom.qss" if empty
/// \param app       stays owned by the caller
UTILSDLL_EXPORT void setPredefinedAppStyleSheet(const QString& mainSheet, QApplication* app);

/// The colours of the product's style sheet.
enum class Contrast {
    System, ///< high contrast if the user asked the system for it
    Normal, ///< always the colours of the sheets
    High    ///< always the counterparts for high contrast
};

/// The same as setPredefinedAppStyleSheet(), which uses Contrast::System, with a choice of colours. With high
/// contrast every colour of the product's palette is replaced in the joined text of the sheets; a host that has
/// sheets of its own in \a mainSheet gets the replacement for the colours that it has in common with the palette.
UTILSDLL_EXPORT void setAppStyleSheetWithContrast(const QString& mainSheet, QApplication* app,
                                                  Contrast contrast);

/// Returns whether the user asked the system for high contrast. On Windows this is the setting "High contrast",
/// on Linux that of the desktop portal; false without a portal. May block for half a second on Linux.
UTILSDLL_EXPORT bool systemUsesHighContrast();

/// Registers the nine fonts under ":/fonts/" with the font database. A font that can't be read is skipped.
/// Each call registers the fonts again, so call it once.
UTILSDLL_EXPORT void loadFonts();

/// Makes the product's logo, in eight sizes from 16 to 1024 pixels, the icon of the application's windows.
/// \return whether at least one of the eight images under ":/icons/app_icon_trelioapp/" could be read;
///         otherwise the icon stays as it is
UTILSDLL_EXPORT bool loadAppLogoIcon();

/// Applies the style sheet to \a widget again, but not to its children. Call it after a change of something
/// that a selector tests, such as the object name or a dynamic property.
UTILSDLL_EXPORT void reapplyWidgetQss(QWidget& widget);

/// Makes the background of \a widget transparent: the palette's colours for windows, buttons, bases and the
/// shades between light and shadow, in every colour group. Text and highlight colours stay as they are. A
/// null \a widget is ignored.
UTILSDLL_EXPORT void setWidgetFullTransparency(QWidget* widget);

} // namespace TOLVAN_NAMESPACE
