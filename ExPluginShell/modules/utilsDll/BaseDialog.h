#pragma once

#include "utilsdll_global.h"

#include <QDialog>
#include <QPoint>

namespace TOLVAN_NAMESPACE
{

/// Base of the product's own dialogs. The dialog has no window frame and is translucent, so that the style
/// sheet draws everything. The user moves it by its body. The first show centres it on the screen of its
/// parent.
///
/// \par Style sheet
/// The selector `TOLVAN_NAMESPACE--CBaseDialog` addresses every class derived from this one; the product's
/// sheets give it the ground and the frame of a dialog. A selector with the object name, such as
/// `#exportDialog`, addresses a single dialog. The dialog paints the background and border of these rules
/// itself, also where Qt would leave out the background of a translucent window. Without any rule it is
/// transparent. A border takes part of the dialog's area: leave it free with the margins of the layout.
/// The dialog draws no shadow, because a shadow inside the window would change its size. A desktop that gives
/// shadows to windows without a frame does so here.
///
/// \code
/// class ExportDialog : public TOLVAN_NAMESPACE::CBaseDialog
/// {
/// public:
///     explicit ExportDialog(QWidget* parent)
///         : CBaseDialog(parent)
///     {
///         setObjectName(QStringLiteral("exportDialog"));
///         setHeaderHeight(32);
///     }
/// };
/// \endcode
///
/// A derived class that overrides an event handler below calls the one of this class. Main thread only.
///
/// An automation service outside this library calls the invokable methods through the meta-object system.
class UTILSDLL_EXPORT CBaseDialog : public QDialog
{
    Q_OBJECT

public:
    /// \param parent owns the dialog and determines the screen on which it appears; may be null
    /// \param flags  window flags; buttons for minimise, maximise and help are removed from them
    explicit CBaseDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~CBaseDialog() override;

    /// Does nothing. A hook for the automation service.
    Q_INVOKABLE void sendNotification();

private:
    Q_INVOKABLE void moveToScreenCenter();

public:
    /// Returns the object name, for the automation service.
    Q_INVOKABLE QString getObjectName();

protected:
    /// Starts a drag on a press of the left button within the header, see setHeaderHeight().
    void mousePressEvent(QMouseEvent* event) override;
    /// Ends a drag when any button is released.
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// Moves the dialog during a drag.
    void mouseMoveEvent(QMouseEvent* event) override;
    /// On the first show event, adjusts the size to the content and centres the dialog. Later show events are
    /// not passed on to QDialog, so a dialog that is hidden and shown again keeps its position.
    void showEvent(QShowEvent* event) override;

    /// Returns whether the automation service may use this dialog: true unless a derived class returns false.
    virtual bool canUseInAATSignalService() const;

    /// Sets the height of the header, the part at the top in which a press starts a drag.
    /// \param height in pixels; the line y = \a height belongs to the header. 0, the initial value, makes the
    ///               whole dialog the header
    void setHeaderHeight(int height);

private:
    void fitAndCenter();

    bool m_firstShow = true;
    QPoint m_dragOffset; // from the dialog's position to the cursor
    bool m_dragging = false;
    int m_headerHeight = 0;
};

} // namespace TOLVAN_NAMESPACE
