#pragma once

#include "utilsdll_global.h"

#include <QString>
#include <QStringList>

/// \file
/// Zip archives: a list of files packed into one archive, and an archive unpacked into a folder.
///
/// Both functions return when the work is done, need at most 128 MB for archives of any size, never throw, and
/// may be called from any thread. They do the work of a CArchiveJob (see ArchiveJob.h), which also reports
/// progress and failures and can be stopped.
///
/// Archives are exchanged with other programs: names are written as UTF-8, large files and many entries with
/// ZIP64, times as UTC beside the local time of the format.

namespace TOLVAN_NAMESPACE
{

/// Packs files into a new zip archive.
///
/// Each file becomes one entry with the file's own name, without its folder. Of two files of the same name in
/// different folders both are stored, under that one name, and the result is true; unpacking leaves the one
/// that comes last in the list. On Unix a link to a file or a folder is stored as a link.
///
/// The archive is written to a temporary file, which then replaces the target: on failure there is no new
/// archive, and an existing one stays as it was. Only if the folder refuses new files, an existing archive is
/// overwritten directly. Missing folders above \a archive are created.
/// \param files   paths of existing files; an empty list gives an empty archive
/// \param archive path of the archive
/// \return false if a file is missing, is a folder, a pipe or a device, can't be read or changes its size
///         meanwhile, or if the archive can't be written
UTILSDLL_EXPORT bool CompressFiles(const QStringList& files, const QString& archive);

/// Unpacks a zip archive into a folder, which is created with all missing parents.
///
/// An existing file is replaced by the entry of its name, also a read-only one: an entry that can't be read
/// completely leaves the old file as it was. Of two entries of one name the later stays. Permissions are taken
/// from the archive where the file system keeps them, but the owner can always read a file and use a folder.
/// The time of the last change is taken as well, for files.
///
/// Nothing is reported, but an archive that is not unpacked completely is logged. Entries that fail are left out
/// and the others are written. An entry fails if
/// - its name leads out of the folder: "..", an absolute path, a drive, through a link;
/// - it is a link that points out of the folder (on Windows: any link);
/// - its name can't be used on this system (device names, "a:b" and the like on Windows) or has more than 256
///   parts;
/// - its content is damaged, encrypted, or compressed in another way than stored, deflated or, on Linux, bzip2;
/// - it is larger than the free space of the volume;
/// - it shares data with another entry, or the entries before it and itself claim more than 1,100 times the size
///   of the archive, which deflating can't reach. Nothing else bounds the size: an archive of a few megabytes
///   may expand to gigabytes.
///
/// A name that is not marked as UTF-8 is read as UTF-8 if it is valid as such. Otherwise it is read in the code
/// page of the user's system on Windows. On Linux it is read as Chinese (GBK), Cyrillic (code page 866) or
/// Japanese (Shift-JIS) if its bytes look like that and the user's language decides where several fit, else in
/// code page 437.
/// \param archive path of the archive; if it is none, only the folder is created
/// \param folder  where the entries go
UTILSDLL_EXPORT void DecompressFiles(const QString& archive, const QString& folder);

} // namespace TOLVAN_NAMESPACE
