#pragma once

#include "ExportedTemplate.h"
#include "Singleton.h"

#include <QFileDialog>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace TOLVAN_NAMESPACE
{

/// The one place through which the product asks the user for files and folders.
///
/// Four functions show Qt's standard file dialogs. getFileBrowserDirectory() is the product's own folder
/// picker, which shows the images of each folder while the user browses.
///
/// \code
/// auto& dialogs = Singleton<TOLVAN_NAMESPACE::CNativeDialogs>::instance();
/// const QString folder = dialogs.getFileBrowserDirectory(this, tr("Open folder"), lastFolder,
///                                                        QStringLiteral("*.jpg *.tif"), {});
/// \endcode
///
/// \par Blocking
/// Each dialog is modal and runs its own event loop until it is closed. Any object may have been deleted when
/// the call returns, the parent included.
/// \par Threads
/// Main thread only; needs a QApplication.
/// \par One object
/// All modules of the process share one instance, which this library holds.
class UTILSDLL_EXPORT CNativeDialogs : public QObject
{
    Q_OBJECT

public:
    /// Asks for one existing file.
    /// \param parent         the window that takes no input meanwhile; may be null
    /// \param caption        title of the window
    /// \param dir            the folder shown first, or a file in it that is preselected
    /// \param filter         name filters as QFileDialog takes them, separated by ";;"
    /// \param selectedFilter receives the filter that was in use; may be null
    /// \param options        ignored: the dialog gets no options
    /// \return the file with forward slashes; empty if the dialog was cancelled
    QString getOpenFileName(QWidget* parent, const QString& caption, const QString& dir,
                            const QString& filter, QString* selectedFilter, QFileDialog::Options options);
    /// Asks for existing files, like getOpenFileName().
    /// \return the files with forward slashes; empty if the dialog was cancelled
    QStringList getOpenFileNames(QWidget* parent, const QString& caption, const QString& dir,
                                 const QString& filter, QString* selectedFilter,
                                 QFileDialog::Options options);
    /// Asks for a file to write, like getOpenFileName(). The dialog asks before it returns an existing file.
    QString getSaveFileName(QWidget* parent, const QString& caption, const QString& dir,
                            const QString& filter, QString* selectedFilter, QFileDialog::Options options);
    /// Asks for an existing folder in a dialog that lists only folders. \a options is ignored.
    /// \return the folder with forward slashes; empty if the dialog was cancelled
    QString getExistingDirectory(QWidget* parent, const QString& caption, const QString& dir,
                                 QFileDialog::Options options);

    /// Asks for a folder and shows the images in it.
    ///
    /// The picker lists folders and the files of the type "Image Files". A double click or Enter on a file
    /// never closes it. "Select Folder" returns the folder that is open at that moment, not one that is only
    /// selected.
    ///
    /// \par Systems
    /// On Windows this is the system's file-open dialog, on Unix a QFileDialog with the same behaviour. On
    /// Windows "Select Folder" reacts to the mouse and the space bar, on Unix to every key of a button. The
    /// first call on Windows initialises COM on the calling thread until the process ends.
    /// \par One at a time
    /// While a picker is open, a second call returns an empty text at once.
    ///
    /// \param parent  the window that takes no input meanwhile; may be null
    /// \param caption title of the window; empty for the system's own
    /// \param dir     the folder shown first; empty for the system's choice
    /// \param filter  file patterns separated by blanks, for example "*.jpg *.tif"
    /// \param options ignored
    /// \return the folder with the system's own separators; empty if the picker was cancelled or closed, or
    ///         could not be shown (\a dir does not exist, or a call of the system failed)
    QString getFileBrowserDirectory(QWidget* parent, const QString& caption, const QString& dir,
                                    const QString& filter, QFileDialog::Options options);

    /// \name Predefined answers
    /// Kept for scripted runs. No function of this class reads them: the dialogs are always shown.
    /// @{
    void setOpenFileName(const QString& name);           ///< Stores an answer.
    void setSaveFileName(const QString& name);           ///< Stores an answer.
    void setExistingDirectory(const QString& directory); ///< Stores an answer.
    void setOpenFileNames(const QList<QVariant>& names); ///< Stores answers, converted to text.
    /// @}

private:
    friend class ::Singleton<CNativeDialogs>;
    CNativeDialogs();
    ~CNativeDialogs() override;

    QString m_openFileName;
    QString m_saveFileName;
    QString m_existingDirectory;
    QStringList m_openFileNames;
};

} // namespace TOLVAN_NAMESPACE

// Instantiated once, in this library, for all modules.
extern template class UTILSDLL_TEMPLATE_DECLARED Singleton<TOLVAN_NAMESPACE::CNativeDialogs>;
