#pragma once

#include "BaseDialog.h"

/// The product's About dialog: name, version of this build, copyright, the libraries used with their
/// licences, and links to these.
///
/// \code
/// CAboutDlg(window).exec();
/// \endcode
///
/// The style sheet addresses its widgets by name: "wBackgroundWidget" is the frame, "iconWidget" the logo,
/// "label_1" the product's name, "label_2" the version, "label_3" the copyright, "label_4" the libraries,
/// "label_5" the links, "closeButton" the button that closes it, as Enter and Escape do. Links open in the
/// user's browser. A missing logo leaves its place empty.
///
/// Texts are of the language installed when the dialog is made. Main thread only.
class UTILSDLL_EXPORT CAboutDlg : public TOLVAN_NAMESPACE::CBaseDialog
{
    Q_OBJECT

public:
    /// Builds the dialog, to be shown with exec() or show(). \a parent owns it and gives the screen it
    /// appears on.
    explicit CAboutDlg(QWidget* parent = nullptr);
    ~CAboutDlg() override;
};

/// The About dialog of the product family: what the Ostra Collection is and which member of it this is. Built
/// and named like CAboutDlg; "label_4" tells what the members share.
class UTILSDLL_EXPORT CAboutOstraDlg : public TOLVAN_NAMESPACE::CBaseDialog
{
    Q_OBJECT

public:
    /// Builds the dialog, to be shown with exec() or show(). \a parent owns it and gives the screen it
    /// appears on.
    explicit CAboutOstraDlg(QWidget* parent = nullptr);
    ~CAboutOstraDlg() override;
};

namespace TOLVAN_NAMESPACE
{
// The style sheets know the dialogs by their global names; code may use either.
using ::CAboutDlg;
using ::CAboutOstraDlg;
} // namespace TOLVAN_NAMESPACE
