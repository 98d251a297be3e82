#pragma once

#include "Singleton.h"
#include "utilsdll_global.h"

#include <QFileDialog>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace TOLVAN_NAMESPACE
{

/// The one place through which the product asks the user for files and folders.
///
/// Four operations are the toolkit's standard file dialogs; getFileBrowserDirectory() is the product's own
/// folder picker, which shows images while the user looks for their folder.
///
/// \code
/// auto& dialogs = Singleton<TOLVAN_NAMESPACE::CNativeDialogs>::instance();
/// const QString folder = dialogs.getFileBrowserDirectory(this, tr("Open folder"), lastFolder,
///                                                        QStringLiteral("*.jpg *.tif"), {});
/// \endcode
///
/// \par Blocking
/// Each dialog is modal and turns an event loop of its own until it is closed. Everything that events can
/// reach may have changed when the call returns, the parent included.
/// \par Threads
/// GUI thread only; needs a QApplication.
/// \par One object
/// All modules of the process share the one instance, which lives in this library.
class UTILSDLL_EXPORT CNativeDialogs : public QObject
{
    Q_OBJECT

public:
    /// Asks for one existing file.
    /// \param parent         the window that is blocked meanwhile; may be null
    /// \param caption        title of the window
    /// \param dir            folder to begin with, or a file in it that is preselected
    /// \param filter         name filters as the toolkit writes them, separated by ";;"
    /// \param selectedFilter receives the filter that was in use; may be null
    /// \param options        ignored: the dialog gets no options
    /// \return the file with forward slashes, empty when the dialog was cancelled
    QString getOpenFileName(QWidget* parent, const QString& caption, const QString& dir,
                            const QString& filter, QString* selectedFilter, QFileDialog::Options options);
    /// Asks for existing files, like getOpenFileName().
    /// \return the files, none when it was cancelled
    QStringList getOpenFileNames(QWidget* parent, const QString& caption, const QString& dir,
                                 const QString& filter, QString* selectedFilter,
                                 QFileDialog::Options options);
    /// Asks for a file to write, like getOpenFileName(); the user confirms an existing one.
    QString getSaveFileName(QWidget* parent, const QString& caption, const QString& dir,
                            const QString& filter, QString* selectedFilter, QFileDialog::Options options);
    /// Asks for an existing folder in a dialog that lists folders only, whatever \a options says.
    /// \return the folder with forward slashes, empty when the dialog was cancelled
    QString getExistingDirectory(QWidget* parent, const QString& caption, const QString& dir,
                                 QFileDialog::Options options);

    /// Asks for a folder and shows the images in it.
    ///
    /// The picker lists folders and the files of the type "Image Files". Choosing a file, by a double click
    /// or Enter, never closes it; "Select Folder" returns the folder that is open at that moment, not one
    /// that is only marked.
    ///
    /// \par Systems
    /// The system's file-open dialog on Windows; elsewhere the toolkit's own dialog with the same behaviour.
    /// On Windows "Select Folder" answers to the mouse and the space bar, elsewhere to the keyboard as any
    /// button does. The first call on Windows initialises COM on the calling thread, for good.
    /// \par One at a time
    /// While a picker is open, a second call returns at once, with nothing.
    ///
    /// \param parent  the window that is blocked meanwhile; may be null
    /// \param caption title of the window; empty for the system's own
    /// \param dir     folder to begin with; empty for the system's choice
    /// \param filter  file patterns separated by blanks, for example "*.jpg *.tif"
    /// \param options ignored
    /// \return the folder with the system's own separators; empty when the picker was cancelled or closed, or
    ///         when it can't be shown (a \a dir that is not there, a failing step of the system)
    QString getFileBrowserDirectory(QWidget* parent, const QString& caption, const QString& dir,
                                    const QString& filter, QFileDialog::Options options);

    /// \name Predefined answers
    /// Kept for scripted runs. No operation of this class reads them: the dialogs are shown all the same.
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

/// The instance is made in this library, once for all modules.
extern template class UTILSDLL_EXPORT Singleton<TOLVAN_NAMESPACE::CNativeDialogs>;
