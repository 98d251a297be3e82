#pragma once

#include "utilsdll_global.h"

#include <QEventLoop>
#include <QObject>
#include <QPointer>

/// Swallows the user's input to one object. Installed on the application object it swallows the input of
/// the whole application.
///
/// It swallows exactly these event types:
///
/// | kind | `QEvent::Type` |
/// |---|---|
/// | mouse buttons | MouseButtonPress, MouseButtonRelease, MouseButtonDblClick |
/// | keys | KeyPress, KeyRelease, ShortcutOverride, Shortcut |
/// | focus and windows | FocusIn, FocusOut, Enter, Close |
/// | drag and drop | DragEnter, DragMove, DragLeave, Drop |
/// | graphics scenes, mouse | GraphicsSceneMouseMove, GraphicsSceneMousePress, GraphicsSceneMouseRelease |
/// | graphics scenes, more mouse | GraphicsSceneMouseDoubleClick, GraphicsSceneContextMenu |
/// | graphics scenes, dragging | GraphicsSceneDragEnter, GraphicsSceneDragMove, GraphicsSceneDragLeave |
/// | graphics scenes, dropping | GraphicsSceneDrop |
/// | window frame, press | NonClientAreaMouseButtonPress, NonClientAreaMouseButtonRelease |
/// | window frame, double | NonClientAreaMouseButtonDblClick |
///
/// All others pass. MouseMove, Leave, Wheel, ContextMenu, the hover events and NonClientAreaMouseMove pass on
/// purpose: the cursor's shape and highlights keep following the mouse.
///
/// \par Lost and delayed events
/// An event of the list that reaches the filter (sent or posted by the program, or made by Qt) is lost. Input
/// of the window system that arrives during a wait of this library stays in Qt's queue and is delivered after
/// the wait; this includes moves and wheel turns.
/// \par Threads
/// Works on objects of the calling thread only.
class UTILSDLL_EXPORT CExcludeUserInpuEventsFilter : public QObject
{
public:
    /// Installs the filter on \a target and makes \a target its parent, which deletes the filter with itself.
    /// \param target the object without input. Null, or the application object when it lives in another
    ///               thread, installs nothing. Any other object of another thread installs nothing either,
    ///               with the warning "Logic error: can't install event filter in different thread".
    explicit CExcludeUserInpuEventsFilter(QObject* target);
    /// Ends the filtering.
    ~CExcludeUserInpuEventsFilter() override;

    /// Ignores the events listed above and returns true for them; returns false for all others.
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// A local event loop during which the user cannot click or type. Timers, queued signals, painting and the
/// network continue; a CExcludeUserInpuEventsFilter on the watched object swallows input.
/// \code
/// CExcludeUserInpuEventLoop loop;
/// connect(job, SIGNAL(succeeded()), &loop, SLOT(quit()));
/// connect(job, SIGNAL(failed()), &loop, SLOT(failedQuit()));
/// job->start();
/// const bool ok = loop.exec(0) == 0;
/// \endcode
///
/// \warning A nested event loop runs everything that is due in the thread: timers, queued slots, and
/// deferred deletions, also of the object whose function is waiting. Guard objects with QPointer, check
/// again after exec() what was checked before it, and make sure that the operation cannot be started a
/// second time meanwhile.
/// \par Threads
/// Use an object only in the thread that created it.
class UTILSDLL_EXPORT CExcludeUserInpuEventLoop : public QObject
{
    Q_OBJECT

public:
    /// Watches the application object and thereby the whole application.
    CExcludeUserInpuEventLoop();
    /// \param watched object that gets no input while the loop runs, not owned. If it is null or has been
    ///                destroyed, no filter is installed; input of the window system is still delayed
    /// \param parent  owner of the loop object
    explicit CExcludeUserInpuEventLoop(QObject* watched, QObject* parent = nullptr);

    /// Whether exec() is running.
    bool isRunning() const;

public Q_SLOTS:
    /// Runs the loop until quit(), failedQuit(), exit() or the time-out, and blocks its caller until then.
    ///
    /// A time-out is not cancelled when the loop ends early: it also ends a later run of the same object,
    /// unless that run has its own time-out, which replaces it.
    /// \param nQuitTimeout milliseconds until a delayed call (CDelayedCall) of quit(); 0 or less
    ///                     sets no time-out
    /// \return the code that ended the loop: 0 for quit() **and for the time-out**, 1 for failedQuit(),
    ///         else that of exit(); -1 at once if the loop is already running, if the thread's event
    ///         loop is being quit, or if the thread has no event dispatcher, as the main thread without
    ///         an application object
    int exec(int nQuitTimeout);
    /// Ends the running loop with code 0. Like failedQuit() and exit() it does nothing if the loop
    /// is not running.
    void quit();
    /// Ends the running loop with code 1.
    void failedQuit();
    /// Ends the running loop with \a returnCode.
    void exit(int returnCode);

private:
    QPointer<QObject> m_watched;
    QEventLoop m_loop;
};
