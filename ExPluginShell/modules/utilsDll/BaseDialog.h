#pragma once

#include "utilsdll_global.h"

#include <QDialog>
#include <QPoint>

namespace TOLVAN_NAMESPACE
{

/// Base of the product's own dialogs: without a frame and translucent, so that the style sheet draws
/// everything, movable by its body, and centred on the screen of its parent when it is shown first.
///
/// \code
/// class ExportDialog : public TOLVAN_NAMESPACE::CBaseDialog
/// {
/// public:
///     explicit ExportDialog(QWidget* parent) : CBaseDialog(parent) { setHeaderHeight(32); }
/// };
/// \endcode
///
/// Main thread only, like every widget. A derived class that overrides a handler below calls the one here.
///
/// The methods that can be invoked by name are for an automation service outside this library, which calls
/// them through the meta-object system.
class UTILSDLL_EXPORT CBaseDialog : public QDialog
{
    Q_OBJECT

public:
    /// The dialog never has minimise, maximise and help buttons, even if \a flags ask for them.
    explicit CBaseDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~CBaseDialog() override;

    /// Does nothing: a hook for the automation service.
    Q_INVOKABLE void sendNotification();

private:
    Q_INVOKABLE void moveToScreenCenter();

public:
    /// The object name, for the automation service.
    Q_INVOKABLE QString getObjectName();

protected:
    /// Starts a drag with the left button, within the header or, where there is none, anywhere.
    void mousePressEvent(QMouseEvent* event) override;
    /// Ends a drag, whichever button is released.
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// Moves the dialog with the mouse during a drag.
    void mouseMoveEvent(QMouseEvent* event) override;
    /// Fits the size to the content and centres the dialog, the first time only. Later show events reach no
    /// base class, so a dialog that is hidden and shown again stays where the user left it.
    void showEvent(QShowEvent* event) override;

    /// Whether the automation service may use this dialog: true unless a derived class says no.
    virtual bool canUseInAATSignalService() const;

    /// Restricts dragging to the top \a height pixels, the line y = \a height included; 0 stands for the
    /// whole dialog.
    void setHeaderHeight(int height);

private:
    void fitAndCenter();

    bool m_firstShow = true;
    QPoint m_dragOffset; // of the cursor from the position of the dialog
    bool m_dragging = false;
    int m_headerHeight = 0;
};

} // namespace TOLVAN_NAMESPACE
