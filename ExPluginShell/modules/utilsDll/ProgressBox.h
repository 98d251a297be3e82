#pragma once

#include "BaseDialog.h"
#include "RunnableItem.h"

#include <QScopedPointer>

class QThreadPool;

/// The product's own progress box: a title, the current step, a progress bar, the remaining time and a button
/// "Cancel". It appears only if the work takes longer than a moment, and shows an error text at the end.
///
/// The box runs a work item of the library and waits for it:
/// \code
/// CProgressBox box(tr("Exporting the presets"), window);
/// connect(&job, SIGNAL(progress(qint64, qint64, QString)), &box, SLOT(setProgress(qint64, qint64, QString)));
/// connect(&job, SIGNAL(failed(QString)), &box, SLOT(setError(QString)));
/// if (box.run(job) == CProgressBox::Succeeded) {
///     showResult();
/// }
/// \endcode
///
/// Or it accompanies work that runs without it, here a download. begin() and end() return at once:
/// \code
/// auto* const box = new CProgressBox(tr("Downloading the lens data"), window);
/// box->setAttribute(Qt::WA_DeleteOnClose);
/// connect(reply, SIGNAL(downloadProgress(qint64, qint64)), box, SLOT(setProgress(qint64, qint64)));
/// connect(reply, SIGNAL(finished()), box, SLOT(end()));
/// connect(box, SIGNAL(cancelRequested()), reply, SLOT(abort()));
/// box->begin();
/// \endcode
///
/// \par Input
/// The box is modal: while it is visible, no other window takes input. run() also holds input back in the
/// moment before the box appears, see CExcludeUserInpuEventLoop.
///
/// \par Cancel
/// The button, Escape and the window's close button ask the work to stop. The box shows that it is stopping and
/// stays until the work has ended.
///
/// \par Remaining time
/// Appears when two seconds of progress allow an estimate, and only if setProgress() reports a total.
///
/// \par Names
/// The style sheet ":/qss/message_box.qss" addresses the widgets by name: "CProgressBox" is the box,
/// "wBackgroundWidget" its ground and frame, "titleLabel", "stepLabel", "progressBar", "timeLabel",
/// "iconWidget" and "errorLabel" the content, "cancelButton" the button.
///
/// Texts are in the language that is installed when the box is made. Main thread only; the slots may be
/// connected to signals of other threads.
class UTILSDLL_EXPORT CProgressBox : public TOLVAN_NAMESPACE::CBaseDialog
{
    Q_OBJECT

public:
    /// How the work ended.
    enum Result {
        Succeeded, ///< the work reported success, or no result at all
        Failed,    ///< the work reported a failure, or an error text was set
        Stopped    ///< the work was asked to stop and reported no success
    };

    /// \param title  one line that names the work
    /// \param parent owns the box and determines the screen on which it appears; may be null
    explicit CProgressBox(const QString& title, QWidget* parent = nullptr);
    /// Deleting the box while run() waits, for instance with its parent, asks the work to stop; run() then
    /// returns when the work has ended.
    ~CProgressBox() override;

    /// Runs \a item in a thread of its own and shows its progress. Blocks: runs its own event loop until the
    /// work has ended and, after a failure, the user has closed the box. Any object may have been deleted
    /// when the call returns.
    ///
    /// The caller keeps the ownership of \a item: the box does not delete it, and it may be deleted when
    /// run() has returned. An item that throws ends the program, as in every thread pool.
    /// \return how the work ended; Failed at once if the box runs an item already
    Result run(CQRunnableItem& item);
    /// The same for an item without signals. Connect cancelRequested() to what stops it: without such a
    /// connection the button is disabled.
    Result run(CRunnableItem<QRunnable>& item);

    /// Sets how long the work may take before the box appears. Call it before run() or begin().
    /// \param milliseconds 500 initially; 0 shows the box at once
    void setAppearanceDelay(int milliseconds);

    /// Returns the title.
    QString title() const;
    /// Returns the error text set with setError(); empty if there was none.
    QString errorText() const;

    /// Asks the work to stop instead of closing the box, unless the work has ended.
    void reject() override;

public Q_SLOTS:
    /// Starts the time before the box appears. For work that does not run through run().
    void begin();
    /// Ends the work that begin() announced. The box closes, or shows the error text if there is one.
    void end();
    /// Sets how much of the work is done.
    /// \param done  in any unit, such as bytes or files
    /// \param total in the same unit; 0 or less if it is not known: the bar then shows only that work goes on
    void setProgress(qint64 done, qint64 total);
    /// Sets how much is done and the current step.
    void setProgress(qint64 done, qint64 total, const QString& step);
    /// Sets the current step, for example the name of a file. A long text is shortened in its middle.
    void setStep(const QString& step);
    /// Sets the text that is shown when the work ends. An empty text stands for a failure without details.
    void setError(const QString& text);

Q_SIGNALS:
    /// The user asked the work to stop. Emitted once.
    void cancelRequested();

private Q_SLOTS:
    void refresh();
    void appear();
    void onItemFinished(bool ok, bool stopped);

private:
    struct Form;
    struct State;

    Result resultAfter(QThreadPool& pool, const CRunnableItem<QRunnable>& item);
    void start();
    void finishWork(bool stopped);
    void showError();
    void fitHeight();

    const QScopedPointer<Form> m_ui;
    const QScopedPointer<State> m_state;
};
