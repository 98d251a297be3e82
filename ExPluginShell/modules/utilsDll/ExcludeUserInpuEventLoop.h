#pragma once

#include "utilsdll_global.h"

#include <QEventLoop>
#include <QObject>
#include <QPointer>

/// Swallows the user's input to one object, or, installed on the application object, to the whole
/// application.
///
/// Swallowed are exactly these event types:
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
/// All others pass, on purpose also MouseMove, Leave, Wheel, ContextMenu, the hover events and
/// NonClientAreaMouseMove: the cursor's shape and highlights keep following the mouse.
///
/// \par What is lost and what is late
/// An event of the list that reaches the filter (sent or posted by the program, or made by Qt itself) is
/// gone for good. Input of the window system that arrives during a wait of this library, presses, moves and
/// wheel turns alike, stays in Qt's queue and is delivered after it. Moves and wheel turns therefore always
/// arrive: at once when the program sends them, else after the wait.
/// \par Threads
/// Works on objects of the calling thread only.
class UTILSDLL_EXPORT CExcludeUserInpuEventsFilter : public QObject
{
public:
    /// Installs the filter on \a target and makes \a target its parent, so that the filter dies with it at
    /// the latest. A null \a target installs nothing. Neither does an object of another thread: the
    /// application object silently (a wait in a worker thread blocks nobody's input), any other with the
    /// warning "Logic error: can't install event filter in different thread".
    explicit CExcludeUserInpuEventsFilter(QObject* target);
    /// Ends the filtering.
    ~CExcludeUserInpuEventsFilter() override;

    /// Ignores and swallows the events listed above: true. Everything else passes: false.
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// A local event loop during which the user cannot click or type: timers, queued signals, painting and the
/// network go on, input is swallowed by a CExcludeUserInpuEventsFilter on the watched object.
/// \code
/// CExcludeUserInpuEventLoop loop;
/// connect(job, SIGNAL(succeeded()), &loop, SLOT(quit()));
/// connect(job, SIGNAL(failed()), &loop, SLOT(failedQuit()));
/// job->start();
/// const bool ok = loop.exec(0) == 0;
/// \endcode
///
/// \warning A nested event loop runs whatever is due in the program: timers, queued slots, even deferred
/// deletion of the objects whose functions are waiting. After exec() nothing that was true before it has to
/// be true still. Guard objects with QPointer, and do not start an operation that is not meant to run
/// twice.
/// \par Threads
/// Use an object in the thread that made it.
class UTILSDLL_EXPORT CExcludeUserInpuEventLoop : public QObject
{
    Q_OBJECT

public:
    /// Watches the application object, the whole application that is.
    CExcludeUserInpuEventLoop();
    /// \param watched object that gets no input while the loop runs; held weakly: destroyed or null,
    ///                nothing is excluded by the filter (input of the window system waits all the same)
    /// \param parent  owner of the loop object
    explicit CExcludeUserInpuEventLoop(QObject* watched, QObject* parent = nullptr);

    /// Whether exec() is under way.
    bool isRunning() const;

public Q_SLOTS:
    /// Runs the loop until quit(), failedQuit(), exit() or the time-out; blocks its caller meanwhile.
    /// \param nQuitTimeout milliseconds after which the loop is ended as by quit(), as a delayed call
    ///                     (CDelayedCall); 0 or less: no time-out. The time-out replaces one that is still
    ///                     pending from before
    /// \return the code that ended the loop: 0 for quit() **and for the time-out**, 1 for failedQuit(),
    ///         else that of exit(); -1 at once if the loop runs already, and when the application's own
    ///         loop is being quit
    ///
    /// A time-out is not cancelled when the loop ends early: it ends a later run of the same object that it
    /// falls into, unless that run has a time-out of its own.
    int exec(int nQuitTimeout);
    /// Ends the running loop with code 0. Like the other two without effect on a loop that is not running:
    /// it does not shorten the next run.
    void quit();
    /// Ends the running loop with code 1.
    void failedQuit();
    /// Ends the running loop with \a returnCode.
    void exit(int returnCode);

private:
    QPointer<QObject> m_watched;
    QEventLoop m_loop;
};
