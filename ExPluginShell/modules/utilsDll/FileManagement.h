#pragma once

#include "utilsdll_global.h"

#include <QDir>
#include <QFileInfo>
#include <QSize>
#include <QString>
#include <QStringList>

/// \file
/// File functions of the product: checking names, moving, deleting and showing files, sizes as text.
///
/// No function throws. Every function may be called from any thread, except selectFilesInShell() and
/// sizeToString(), which belong to the GUI thread.

namespace TOLVAN_NAMESPACE
{

/// Result of moveFileToTrash().
enum ErrorCodes {
    FileOperationSucceeded = 0, ///< the file is in the recycle bin
    FileOperationFailed = 2,    ///< the file was not moved, or does not exist
};

/// Which parts of two paths isEqualFileOrDirNames() compares. Any other value makes everything equal.
enum FileCompareCondition {
    CompareFullPath = 0,       ///< the cleaned path
    CompareDirAndBaseName = 1, ///< the cleaned folder and the name without its last suffix
    CompareFileName = 2,       ///< the name with its suffix
    CompareBaseName = 3,       ///< the name without its last suffix
};

/// Checks a file name or a path that the user typed. The disk is not accessed.
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
/// \return true if it may be used; the reason for a refusal is not reported
UTILSDLL_EXPORT bool validateFileName(const QString& name, bool isPath);

/// A key for comparing paths without regard to case: native separators, lower case. The path is not cleaned.
UTILSDLL_EXPORT QString normalizedFilePath(const QString& path);

/// Whether two paths are equal, without regard to case, in the parts that \a condition names. Compares texts
/// only: links and relative paths are not resolved.
UTILSDLL_EXPORT bool isEqualFileOrDirNames(const QFileInfo& a, const QFileInfo& b,
                                           FileCompareCondition condition);

/// Renames or moves a file or a folder. An existing target is never replaced, even if another process creates
/// it at the same moment.
///
/// \par Systems
/// On Windows a file can be moved to another drive, a folder cannot; renaming to the same name succeeds.
/// On Unix both can be moved across file systems: the content is copied beside the target, and the target appears
/// complete; then the source is removed. Times, permissions, holes and hard links among the moved files are kept,
/// extended attributes and the owner as far as the target and the rights of the user allow it. If the source can't be removed,
/// the call fails: the copy of a file is removed again, the copy of a folder stays.
///
/// \par Blocking
/// Returns when the move is complete. Across file systems that takes as long as copying.
///
/// \param from path of an existing file or folder
/// \param to   path that is not in use; its folder has to exist
/// \return whether the file was moved
UTILSDLL_EXPORT bool renameFile(const QString& from, const QString& to);

/// Moves a file or a folder to the recycle bin, without asking.
///
/// \par Systems
/// On Windows the path is passed to the shell unchanged. **Windows deletes permanently, without asking**, a file
/// that is named by a relative path, that lies on a network share or a drive without a recycle bin, or that is
/// larger than the bin or has a name too long for it. Use a full path with backslashes.
///
/// On Unix the file goes to the desktop's trash: that of the user, or that of the file system which holds the
/// file. Every program that supports the freedesktop.org layout can restore it. If the file system offers no
/// trash, the file is copied into the user's own.
/// \return FileOperationSucceeded, or FileOperationFailed if there is no such file or the system refuses. A
///         refusal is logged.
UTILSDLL_EXPORT ErrorCodes moveFileToTrash(const QString& path);

/// Where a file went that was moved to the recycle bin.
struct UTILSDLL_EXPORT TrashReceipt {
    bool isTrashed = false; ///< whether the file was moved
    QString originalPath;   ///< where it was: an absolute path
    QString trashPath;      ///< where it is; empty if the system does not report it
};

/// moveFileToTrash() with a receipt for restore(). The path may be relative.
///
/// \par Systems
/// On Windows an empty trashPath after a success means that the shell did not report the place, as Wine does, or
/// that it deleted the file permanently (see moveFileToTrash()).
UTILSDLL_EXPORT TrashReceipt trash(const QString& path);

/// Moves a file or a folder from the recycle bin back to where it was. Creates missing folders, never replaces
/// an existing file, and removes the entry of the bin. Blocks as renameFile() does.
/// \return whether the file was moved; false also for a receipt without a place
UTILSDLL_EXPORT bool restore(const TrashReceipt& receipt);

/// Deletes all files in a folder and below it. The folders stay.
///
/// Hidden and system entries are deleted as well. A link is deleted, never followed. Folders are handled
/// before files. The work ends at the first entry that can't be deleted. On Unix it also ends at a folder that
/// is nested deeper than the number of files which the process may have open. If \a dir has name filters, only
/// the files that match them are deleted from it.
///
/// \warning The result is that of the entry handled last. A folder without entries returns false, and so does
/// any tree that contains an empty folder, because emptying that folder returns false and ends the work. Treat
/// false only as a sign that some files may be left.
UTILSDLL_EXPORT bool removeDirectoryContent(const QDir& dir);

/// Bytes that the user may still write on the volume that holds \a path; -1 if there is no such volume.
UTILSDLL_EXPORT qint64 availableDiskSpace(const QString& path);

/// Opens the system's file browser on \a folder with \a files selected. GUI thread.
///
/// Files that don't exist are reported on the Qt debug stream and left out; if none remains, nothing opens.
/// A folder that does not exist is logged as a failed assertion; an empty \a folder is ignored.
///
/// \par Systems
/// On Unix the desktop's file manager is asked over D-Bus; the call waits at most a second for its reply.
/// Without such a file manager the folder is opened with the desktop's default program.
/// \param folder the folder to show
/// \param files  full paths of files in it
UTILSDLL_EXPORT void selectFilesInShell(const QString& folder, const QStringList& files);

/// A file size for display, in the user's language, without a blank before the unit: up to 1024 bytes
/// "1024B", then in KB up to 1048576 bytes ("1.0KB"), then in MB ("1.5MB"), one decimal.
UTILSDLL_EXPORT QString fileSizeToString(qint64 bytes);

/// The size of an image for display, "width x height" and the unit, in the user's language. GUI thread.
///
/// The product's setting "imageSizeUnits" chooses the unit: 0 pixels, 1 inches (two decimals), 2 centimetres
/// (one decimal), 3 millimetres. Lengths are calculated with the physical horizontal and vertical dots per inch
/// of the primary screen. 96 dots per inch are assumed without a screen, without a QGuiApplication, and if the
/// screen reports no size. Another unit number is logged as a failed assertion and treated as pixels.
/// \param size in pixels
UTILSDLL_EXPORT QString sizeToString(const QSize& size);

} // namespace TOLVAN_NAMESPACE
