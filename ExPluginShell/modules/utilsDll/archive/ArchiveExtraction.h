#pragma once

#include <QString>

#include <functional>
#include <string>

namespace TOLVAN_NAMESPACE
{

/// Unpacking an archive entry by entry. Internal; compiled into tests and the showcase.

/// Receives the number of bytes read or written so far; returns false to end the work.
using ArchiveProgress = std::function<bool(qint64 bytes)>;

/// Unpacks every entry of a zip archive below a folder, with the rules that DecompressFiles() documents. A
/// failed entry leaves nothing behind and does not stop the others.
/// \return true when every entry was extracted; false also for an archive that can't be opened or has no
///         entries, and when \a progress ended the work (what is complete stays)
bool extractEntries(const QString& archive, const QString& folder, const ArchiveProgress& progress = {});

/// extractEntries() under its older signature.
bool DecompressFiles(const std::wstring& archive, const std::wstring& folder);

} // namespace TOLVAN_NAMESPACE
