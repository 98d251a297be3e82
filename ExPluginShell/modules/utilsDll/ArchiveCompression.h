#pragma once

#include "utilsdll_global.h"

#include <QString>
#include <QStringList>

/// \file
/// Zip archives: a list of files packed into one archive, and an archive unpacked into a folder.
///
/// Both functions return when the work is done, need the same memory for files of any size, never throw, and
/// may be called from any thread. Archives are exchanged with other programs: names are written as UTF-8, large
/// files and many entries with ZIP64.

namespace TOLVAN_NAMESPACE
{

/// Packs files into a new zip archive.
///
/// Each file becomes one entry with the file's own name, without its folder. Of two files of the same name in
/// different folders both are stored, under that one name, and the result is true; unpacking leaves the one
/// that comes last in the list. On Unix a link to a file or a folder is stored as a link.
///
/// The archive is written to a temporary file beside its target, which then replaces the target: on failure
/// there is no new archive, and an existing one stays as it was. Only if the folder refuses new files, an
/// existing archive is overwritten directly; a failure then leaves it empty. Missing folders above \a archive
/// are created.
/// \param files   paths of existing files; an empty list gives an empty archive
/// \param archive path of the archive
/// \return false when a file is missing, is a folder or can't be read, or when the archive can't be written
UTILSDLL_EXPORT bool CompressFiles(const QStringList& files, const QString& archive);

/// Unpacks a zip archive into a folder, which is created with all missing parents.
///
/// An existing file is replaced by the entry of its name, whole: an entry that can't be read in full leaves
/// the old file as it was. Of two entries of one name the later stays. Permissions are taken from the
/// archive where the file system keeps them, but the owner can always read a file and use a folder; times
/// are not taken.
///
/// Nothing is reported. Entries that fail are left out and the others are written. An entry fails when
/// - its name leads out of the folder: "..", an absolute path, a drive, through a link;
/// - it is a link that points out of the folder (or any link, on Windows);
/// - its name can't be used on this system (device names, "a:b" and the like on Windows) or has more than 256
/// parts;
/// - its content is damaged, encrypted, or packed in another way than stored or deflated;
/// - it is larger than the free space of the volume. Nothing else bounds the size: an archive of a few
///   megabytes may expand to gigabytes.
///
/// A name without the mark of UTF-8 is read as UTF-8 where it is valid as such, else in code page 437.
/// \param archive path of the archive; when it is none, nothing but the folder is made
/// \param folder  where the entries go
UTILSDLL_EXPORT void DecompressFiles(const QString& archive, const QString& folder);

} // namespace TOLVAN_NAMESPACE
