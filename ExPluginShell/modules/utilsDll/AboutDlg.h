#pragma once

#include "BaseDialog.h"

/// The product's About dialog: name, version of this build, copyright, the libraries it uses with their
/// licences, and links to the licences.
///
/// \code
/// CAboutDlg(window).exec();
/// \endcode
///
/// The style sheet addresses the widgets by name: "wBackgroundWidget" is the frame, "iconWidget" the logo,
/// "label_1" the product's name, "label_2" the version, "label_3" the copyright, "label_4" the libraries,
/// "label_5" the links to the licences, "websiteIcon" the picture beside them and "closeButton" the button. The
/// button, Enter and Escape close the dialog. Links open in the user's browser; Tab goes from one to the next.
/// The mouse drags the dialog everywhere but at links and the button. Missing pictures leave their places empty.
///
/// The texts are in the language that is installed when the dialog is made. Main thread only.
class UTILSDLL_EXPORT CAboutDlg : public TOLVAN_NAMESPACE::CBaseDialog
{
    Q_OBJECT

public:
    /// Builds the dialog; show it with exec() or show().
    /// \param parent owns the dialog and determines the screen on which it appears; may be null
    explicit CAboutDlg(QWidget* parent = nullptr);
    ~CAboutDlg() override;
};

/// The About dialog of the product family: what the Ostra Collection is and which member of it this is. Its
/// widgets have the names given for CAboutDlg; "label_4" describes what the members share.
class UTILSDLL_EXPORT CAboutOstraDlg : public TOLVAN_NAMESPACE::CBaseDialog
{
    Q_OBJECT

public:
    /// Builds the dialog; show it with exec() or show().
    /// \param parent owns the dialog and determines the screen on which it appears; may be null
    explicit CAboutOstraDlg(QWidget* parent = nullptr);
    ~CAboutOstraDlg() override;
};

namespace TOLVAN_NAMESPACE
{
// Style sheets use the global names; code may use either.
using ::CAboutDlg;
using ::CAboutOstraDlg;
} // namespace TOLVAN_NAMESPACE
