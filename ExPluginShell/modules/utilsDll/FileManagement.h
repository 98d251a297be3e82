#pragma once

#include "utilsdll_global.h"

#include <QDir>
#include <QFileInfo>
#include <QSize>
#include <QString>
#include <QStringList>

/// \file
/// File chores of the product: names that the user types, moving, removing, showing files, sizes as text.
///
/// No function throws. Every function may be called from any thread, except selectFilesInShell() and
/// sizeToString(), which belong to the GUI thread.

namespace TOLVAN_NAMESPACE
{

/// Result of moveFileToTrash().
enum ErrorCodes {
    FileOperationSucceeded = 0, ///< the file is in the recycle bin
    FileOperationFailed = 2,    ///< the file is where it was, or was not there
};

/// Which parts of two paths isEqualFileOrDirNames() compares. Any other value makes everything equal.
enum FileCompareCondition {
    CompareFullPath = 0,       ///< the cleaned path
    CompareDirAndBaseName = 1, ///< the cleaned folder and the name without its last suffix
    CompareFileName = 2,       ///< the name with its suffix
    CompareBaseName = 3,       ///< the name without its last suffix
};

/// Whether a file name, or a path, that the user typed may be used. Nothing on disk is looked at.
///
/// The text is cleaned and given the system's separators first. It is refused when
/// - it is empty or has 32767 characters or more, or a part between separators has more than 260;
/// - it contains one of < > " | ? *, or for a name (not a path) a colon, a slash or a backslash;
/// - it still contains ".." after cleaning, wherever that stands ("a..b" is refused);
/// - the whole name, or the last part of a path, is a reserved device name in any case (CON, PRN, AUX, NUL,
///   COM1 to COM9, LPT1 to LPT9). A device name with a suffix passes, and so does COM10.
///
/// A last part of a path begins after a slash or a backslash on every system; only the system's own separator
/// divides the parts whose length counts. Blanks and dots at the end, control characters and marks that
/// change the direction of writing pass.
/// \param name   what the user typed; length is counted in UTF-16 units
/// \param isPath true when \a name may hold folders and a drive
/// \return true when it may be used; the reason for a refusal is not told
UTILSDLL_EXPORT bool validateFileName(const QString& name, bool isPath);

/// A key for comparing paths without regard to case: native separators, lower case. The path is not cleaned.
UTILSDLL_EXPORT QString normalizedFilePath(const QString& path);

/// Whether two paths are equal, without regard to case, in the parts that \a condition names. Compares texts
/// only: links and relative paths are not resolved.
UTILSDLL_EXPORT bool isEqualFileOrDirNames(const QFileInfo& a, const QFileInfo& b,
                                           FileCompareCondition condition);

/// Renames or moves a file or a folder. An existing target is never replaced, also when another process makes
/// it at the same moment.
///
/// \par Systems
/// On Windows a file may move to another drive, a folder not; renaming to the same name succeeds there.
/// Elsewhere both move across file systems: the content is copied beside the target, with its times and
/// permissions, and the target appears whole; then the source is removed. A source that can't be removed
/// makes the call fail; a file's copy is then withdrawn, a folder's copy stays.
///
/// \par Blocking
/// Until the move is complete, which across file systems takes as long as copying.
///
/// \param from path of an existing file or folder
/// \param to   path that is not in use; its folder has to exist
/// \return whether the file has its new name now
UTILSDLL_EXPORT bool renameFile(const QString& from, const QString& to);

/// Moves a file or a folder to the recycle bin, without asking.
///
/// \par Systems
/// On Windows the path goes to the shell as it is: give a full path with backslashes, since the shell deletes
/// what it is told in a relative path for good. Elsewhere the file goes to the desktop's trash (the user's
/// own, or that of the file system that holds it) and any program that knows the freedesktop layout restores
/// it; where the file system offers no trash it is copied into the user's own.
/// \return FileOperationSucceeded, or FileOperationFailed when there is no such file or, which is logged, the
///         system refuses
UTILSDLL_EXPORT ErrorCodes moveFileToTrash(const QString& path);

/// Deletes everything in a folder; the folder itself stays, and so does every folder below it, emptied.
///
/// Hidden and system entries are deleted as well. A link is deleted, never followed. Folders are handled
/// before files, and the first entry that can't be deleted ends the work; so does, elsewhere than on Windows,
/// a folder nested deeper than the files that the process may have open. Name filters of \a dir keep the
/// other files in it.
///
/// \warning The result tells little: it is that of the entry handled last. A folder without entries answers
/// false, and so does any tree with an empty folder in it, since emptying that one answers false and ends the
/// work. Treat false as "not everything was removed, perhaps", and nothing more.
UTILSDLL_EXPORT bool removeDirectoryContent(const QDir& dir);

/// Bytes that the user may still write on the volume that holds \a path; -1 when there is no such volume.
UTILSDLL_EXPORT qint64 availableDiskSpace(const QString& path);

/// Opens the system's file browser on \a folder with \a files selected. GUI thread.
///
/// Files that don't exist are reported on the Qt debug stream and left out; when none is left nothing opens.
/// A folder that does not exist is logged as a failed assertion; an empty \a folder does nothing.
///
/// \par Systems
/// Elsewhere than on Windows the desktop's file manager is asked over D-Bus, and waited for no longer than a
/// second; without one the folder is opened by whatever program opens folders.
/// \param folder the folder to show
/// \param files  full paths of files in it
UTILSDLL_EXPORT void selectFilesInShell(const QString& folder, const QStringList& files);

/// A file size for display, in the user's language, without a blank before the unit: up to 1024 bytes
/// "1024B", then in KB up to 1048576 bytes ("1.0KB"), then in MB ("1.5MB"), one decimal.
UTILSDLL_EXPORT QString fileSizeToString(qint64 bytes);

/// The size of an image for display, "width x height" and the unit, in the user's language. GUI thread.
///
/// The product's setting "imageSizeUnits" chooses the unit: 0 pixels, 1 inches (two decimals), 2 centimetres
/// (one decimal), 3 millimetres. Lengths follow from the physical dots per inch of the primary screen, across
/// and down. Without a screen, in a program that has no QGuiApplication, or when the screen does not tell its
/// size, 96 dots per inch are taken. Another unit number is logged as a failed assertion and read as pixels.
/// \param size in pixels
UTILSDLL_EXPORT QString sizeToString(const QSize& size);

} // namespace TOLVAN_NAMESPACE
